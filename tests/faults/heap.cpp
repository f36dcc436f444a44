#include "tests/faults/heap.h"

#include <malloc.h>

#include <algorithm>
#include <cstdlib>
#include <new>

namespace {

std::size_t heldBlocks = 0;
std::size_t heldBytes = 0;
std::size_t mostBytes = 0;
std::size_t untilRefusal = 0;  // 0: no allocation fails

}  // namespace

void* operator new(std::size_t size) {
  if (untilRefusal > 0 && --untilRefusal == 0) throw std::bad_alloc();
  void* const block = std::malloc(size);
  if (block == nullptr) throw std::bad_alloc();
  ++heldBlocks;
  heldBytes += malloc_usable_size(block);
  mostBytes = std::max(mostBytes, heldBytes);
  return block;
}

// The sanitizers have one of their own, whose blocks the operator below could not release.
void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
  try {
    return operator new(size);
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
}

void operator delete(void* block) noexcept {
  if (block == nullptr) return;
  --heldBlocks;
  heldBytes -= malloc_usable_size(block);
  std::free(block);
}

void operator delete(void* block, std::size_t /*size*/) noexcept { operator delete(block); }

namespace heap {

std::size_t blocks() { return heldBlocks; }
std::size_t bytes() { return heldBytes; }
std::size_t peak() { return mostBytes; }
void restart_peak() { mostBytes = heldBytes; }

Refusal::Refusal(std::size_t n) { untilRefusal = n; }
Refusal::~Refusal() { untilRefusal = 0; }
bool Refusal::happened() { return untilRefusal == 0; }

}  // namespace heap
