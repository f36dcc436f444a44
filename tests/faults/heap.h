#pragma once

// Replaces operator new and delete: counts allocations, and makes one fail where a test wants it.

#include <cstddef>

namespace heap {

std::size_t blocks();  // currently allocated
std::size_t bytes();   // currently allocated
std::size_t peak();    // maximum of bytes() since restart_peak()
void restart_peak();

// While it lives, the n-th allocation from now on throws std::bad_alloc; the others succeed.
class Refusal {
 public:
  explicit Refusal(std::size_t n);
  ~Refusal();
  Refusal(const Refusal&) = delete;
  Refusal& operator=(const Refusal&) = delete;

  // Whether the n-th allocation was made.
  static bool happened();
};

}  // namespace heap
