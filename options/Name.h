#pragma once

// The names of the syntax: heads, targets, options, keywords and words.

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "options/LetterCase.h"

namespace SdkDebugDialog {

// The bytes of a word as three numbers, so that a few comparisons tell words of one length apart: the first eight, the
// last eight, and of a word of more than 16 those that follow the first. They may overlap; up to 24 bytes none is left
// out.
struct Bytes {
  std::uint64_t first = 0;
  std::uint64_t middle = 0;
  std::uint64_t last = 0;
};

template <class Number>
constexpr Number load(const char* from) {
  std::array<char, sizeof(Number)> bytes{};
  std::copy_n(from, bytes.size(), bytes.begin());
  return std::bit_cast<Number>(bytes);
}

constexpr Bytes bytes_of(std::string_view word) {
  const char* const text = word.data();
  const std::size_t size = word.size();
  if (size >= 8) {
    const std::uint64_t middle = size > 16 ? load<std::uint64_t>(text + 8) : 0;
    return {load<std::uint64_t>(text), middle, load<std::uint64_t>(text + size - 8)};
  }
  if (size >= 4) return {load<std::uint32_t>(text), 0, load<std::uint32_t>(text + size - 4)};
  if (size == 0) return {};
  const auto byte = [&](std::size_t i) { return static_cast<std::uint64_t>(static_cast<unsigned char>(text[i])); };
  return {byte(0) << 8 | byte(size / 2), 0, byte(size - 1)};
}

// A name that the reader finds in any case and the writer writes as it stands here, with the blanks around it.
class Name {
 public:
  static constexpr std::size_t kRoom = 24;

  // Not explicit, so that a row of a table names itself by a plain text. One of more than 24 bytes does not compile.
  consteval Name(const char* written) {
    std::string_view text = written;
    if (text.size() > kRoom) throw "the name is too long";
    m_writtenSize = static_cast<std::uint8_t>(text.copy(m_written.data(), kRoom));
    m_begin = static_cast<std::uint8_t>(std::min(text.find_first_not_of(' '), text.size()));
    m_size = static_cast<std::uint8_t>(text.find_last_not_of(' ') + 1 - m_begin);
    text = text.substr(m_begin, m_size);
    std::array<char, kRoom> mask{};
    std::ranges::transform(text, mask.begin(), [](char c) {
      const bool isLetter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
      return static_cast<char>(isLetter ? ~0x20 : ~0);
    });
    m_bytes = bytes_of(text);
    m_mask = bytes_of({mask.data(), m_size});
  }

  constexpr std::string_view text() const { return {m_written.data() + m_begin, m_size}; }

  // As it is written, and as many bytes as a writer may copy at once.
  constexpr std::string_view written() const { return {m_written.data(), m_writtenSize}; }
  constexpr const std::array<char, kRoom>& padded() const { return m_written; }

  // Whether the word, whose bytes these are, is this name in any case.
  bool is(std::string_view word, const Bytes& bytes, const LetterCase& letterCase) const {
    if (word.size() != m_size) return false;
    if (!letterCase.is_classic()) return letterCase.same(text(), word);
    return (((bytes.first ^ m_bytes.first) & m_mask.first) | ((bytes.middle ^ m_bytes.middle) & m_mask.middle) |
            ((bytes.last ^ m_bytes.last) & m_mask.last)) == 0;
  }

 private:
  std::array<char, kRoom> m_written{};
  std::uint8_t m_writtenSize = 0;
  std::uint8_t m_begin = 0;
  std::uint8_t m_size = 0;
  Bytes m_bytes;
  Bytes m_mask;  // without the bit that tells a capital letter from a small one
};

// The row that the word names; null when there is none. No two names of a table differ in case alone.
template <class Row>
const Row* find_name(std::span<const Row> rows, std::string_view word, const LetterCase& letterCase) {
  const Bytes bytes = bytes_of(word);
  for (const Row& row : rows) {
    if (row.name.is(word, bytes, letterCase)) return &row;
  }
  return nullptr;
}

}  // namespace SdkDebugDialog
