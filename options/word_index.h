#pragma once

// Finds a word in a table of names without comparing it with every one of them.

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <string_view>
#include <type_traits>

namespace SdkDebugDialog {

// The letters of up to 8 characters in one number, the first one lowest.
constexpr std::uint64_t letters(const char* text, std::size_t count) {
  std::uint64_t packed = 0;
  if (!std::is_constant_evaluated() && std::endian::native == std::endian::little) {
    std::memcpy(&packed, text, count);
    return packed;
  }
  for (std::size_t i = 0; i < count; ++i) {
    packed |= static_cast<std::uint64_t>(static_cast<unsigned char>(text[i])) << (8 * i);
  }
  return packed;
}

// Turns a to z among them into A to Z, all at once.
constexpr std::uint64_t upper_ascii(std::uint64_t packed) {
  constexpr std::uint64_t kEach = 0x0101010101010101U;
  const std::uint64_t low = packed & (0x7F * kEach);
  const std::uint64_t from_a = low + (0x80 - 'a') * kEach;
  const std::uint64_t above_z = low + (0x7F - 'z') * kEach;
  const std::uint64_t lower = (from_a ^ above_z) & ~packed & (0x80 * kEach);
  return packed ^ (lower >> 2);
}

// A word without regard to the case of ASCII letters. Words of up to 16 characters are the same when this is; of longer
// ones it holds the first and the last 8 characters.
struct FoldedWord {
  std::uint64_t first = 0;
  std::uint64_t last = 0;
  std::size_t size = 0;

  constexpr FoldedWord() = default;
  constexpr explicit FoldedWord(std::string_view word) : size(word.size()) {
    const char* const text = word.data();
    if (size >= 8) {
      first = letters(text, 8);
      last = letters(text + size - 8, 8);
    } else if (size >= 4) {
      first = letters(text, 4);
      last = letters(text + size - 4, 4);
    } else if (size > 0) {
      first = letters(text, 1) | letters(text + size / 2, 1) << 8 | letters(text + size - 1, 1) << 16;
    }
    first = upper_ascii(first);
    last = upper_ascii(last);
  }

  constexpr bool operator==(const FoldedWord&) const = default;
};

// Gives every name of a table a place of its own, found by trial when the program is compiled.
template <std::size_t N>
class WordIndex {
 public:
  static constexpr std::size_t kNone = N;

  template <class Row>
  consteval explicit WordIndex(std::span<const Row, N> rows) {
    for (std::size_t i = 0; i < N; ++i) m_words[i] = FoldedWord(rows[i].name);
    while (!fits()) m_factor = m_factor * 6364136223846793005U + 1442695040888963407U;
  }

  // The only row that may have this word as its name, or kNone.
  constexpr std::size_t find(const FoldedWord& word) const {
    const std::size_t row = m_rows[place(word)];
    return row != kNone && m_words[row] == word ? row : kNone;
  }

 private:
  static constexpr unsigned kBits = N <= 4 ? 4 : N <= 8 ? 5 : 7;
  static_assert(N <= 32);

  constexpr std::size_t place(const FoldedWord& word) const {
    return static_cast<std::size_t>(((word.first ^ (word.last << 7) ^ word.size) * m_factor) >> (64 - kBits));
  }

  consteval bool fits() {
    m_rows.fill(kNone);
    for (std::size_t i = 0; i < N; ++i) {
      std::uint8_t& row = m_rows[place(m_words[i])];
      if (row != kNone) return false;
      row = static_cast<std::uint8_t>(i);
    }
    return true;
  }

  std::array<FoldedWord, N> m_words{};
  std::array<std::uint8_t, std::size_t{1} << kBits> m_rows{};
  std::uint64_t m_factor = 0x9E3779B97F4A7C15U;
};

}  // namespace SdkDebugDialog
