#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <random>
#include <utility>

// Random choices; the same seed gives the same ones.
class Random {
 public:
  explicit Random(std::uint64_t seed) : m_engine(seed) {}

  std::uint64_t bits() { return m_engine(); }
  // 0 to count - 1.
  std::size_t below(std::size_t count) { return static_cast<std::size_t>(m_engine() % count); }
  // first to last, both included.
  std::size_t between(std::size_t first, std::size_t last) { return first + below(last - first + 1); }
  bool chance(unsigned percent) { return below(100) < percent; }

  template <class List>
  const auto& pick(const List& list) {
    return list[below(std::size(list))];
  }

  template <class List>
  void shuffle(List& list) {
    for (std::size_t i = list.size(); i > 1; --i) std::swap(list[i - 1], list[below(i)]);
  }

 private:
  std::mt19937_64 m_engine;
};
