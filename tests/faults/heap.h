#pragma once

// The heap of this program, which counts what is taken from it and refuses what a test wants refused.

#include <cstddef>

namespace heap {

std::size_t blocks();  // that are held now
std::size_t bytes();   // that are held now
std::size_t peak();    // the most bytes since restart_peak
void restart_peak();

// Refuses the n-th allocation of those that are made while this lives, with std::bad_alloc, and no other.
class Refusal {
 public:
  explicit Refusal(std::size_t n);
  ~Refusal();
  Refusal(const Refusal&) = delete;
  Refusal& operator=(const Refusal&) = delete;

  // Whether there were that many.
  static bool happened();
};

}  // namespace heap
