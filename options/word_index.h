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

// The same byte eight times.
constexpr std::uint64_t eight_of(unsigned char byte) { return byte * std::uint64_t{0x0101010101010101U}; }

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
  const std::uint64_t low = packed & eight_of(0x7F);
  const std::uint64_t from_a = low + eight_of(0x80 - 'a');
  const std::uint64_t above_z = low + eight_of(0x7F - 'z');
  const std::uint64_t lower = (from_a ^ above_z) & ~packed & eight_of(0x80);
  return packed ^ (lower >> 2);
}

// A word as numbers: those of words of up to kLongest characters are the same when the words are.
struct PackedWord {
  static constexpr std::size_t kLongest = 24;

  std::uint64_t first = 0;
  std::uint64_t middle = 0;
  std::uint64_t last = 0;
  std::size_t size = 0;

  constexpr PackedWord() = default;
  constexpr explicit PackedWord(std::string_view word) : size(word.size()) {
    const char* const text = word.data();
    if (size >= 8) {
      first = letters(text, 8);
      last = letters(text + size - 8, 8);
      if (size > 16) middle = letters(text + 8, 8);
    } else if (size >= 4) {
      first = letters(text, 4);
      last = letters(text + size - 4, 4);
    } else if (size > 0) {
      first = letters(text, 1) | letters(text + size / 2, 1) << 8 | letters(text + size - 1, 1) << 16;
    }
  }

  constexpr PackedWord upper() const {
    PackedWord word = *this;
    word.first = upper_ascii(first);
    word.last = upper_ascii(last);
    if (size > 16) word.middle = upper_ascii(middle);
    return word;
  }

  constexpr bool operator==(const PackedWord&) const = default;
};

// Gives every name of a table a place of its own, found by trial when the program is compiled.
template <std::size_t N>
class WordIndex {
 public:
  static constexpr std::size_t kNone = N;

  template <class Row>
  consteval explicit WordIndex(std::span<const Row, N> rows) {
    for (std::size_t i = 0; i < N; ++i) {
      if (rows[i].name.size() > PackedWord::kLongest) throw "a name is too long";
      m_words[i] = PackedWord(rows[i].name);
      m_upper[i] = m_words[i].upper();
    }
    while (!fits()) m_factor = m_factor * 6364136223846793005U + 1442695040888963407U;
  }

  // The only row whose name the word may be but for the case of ASCII letters; kNone when there is none.
  constexpr std::size_t candidate(const PackedWord& word) const { return m_rows[place(word)]; }

  constexpr bool is_name(std::size_t row, const PackedWord& word) const { return m_words[row] == word; }

  constexpr bool is_name_in_any_ascii_case(std::size_t row, const PackedWord& word) const {
    return m_upper[row] == word.upper();
  }

 private:
  static constexpr unsigned kBits = N <= 4 ? 4 : N <= 8 ? 5 : 7;
  static_assert(N <= 32);

  // Setting the bit that tells the cases of a letter apart makes them the same, and some other characters too.
  constexpr std::size_t place(const PackedWord& word) const {
    const std::uint64_t folded = (word.first ^ (word.last << 7)) | eight_of(0x20) | eight_of(0x20) << 7;
    return static_cast<std::size_t>(((folded + word.size) * m_factor) >> (64 - kBits));
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

  std::array<PackedWord, N> m_words{};
  std::array<PackedWord, N> m_upper{};
  std::array<std::uint8_t, std::size_t{1} << kBits> m_rows{};
  std::uint64_t m_factor = 0x9E3779B97F4A7C15U;
};

}  // namespace SdkDebugDialog
