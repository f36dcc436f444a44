// Measures the peak heap use of reading a chain. Prints one line per chain: the number of devices, and in bytes the
// sizes of the text, of the resulting records, and the peak.

#include <malloc.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <new>

#include "bench/ours.h"
#include "bench/texts.h"

namespace {

std::size_t held = 0;
std::size_t peak = 0;

}  // namespace

void* operator new(std::size_t size) {
  void* const block = std::malloc(size);
  if (block == nullptr) throw std::bad_alloc();
  held += malloc_usable_size(block);
  peak = std::max(peak, held);
  return block;
}

void operator delete(void* block) noexcept {
  held -= malloc_usable_size(block);
  std::free(block);
}

void operator delete(void* block, std::size_t /*size*/) noexcept { operator delete(block); }

int main() {
  using SdkDebugDialog::JtagOption;
  constexpr std::size_t kDevices[] = {2, 100, 100000};
  for (const std::size_t devices : kDevices) {
    const std::string text = devices == 2 ? bench::hardware_text() : bench::chain_text(devices);
    bench::Ours ours;
    const std::size_t before = held;
    peak = held;
    ours.read(text);
    const std::size_t records = devices * (sizeof(JtagOption) + sizeof(JtagOption*));
    std::printf("%zu %zu %zu %zu\n", devices, text.size(), records, peak - before);
  }
}
