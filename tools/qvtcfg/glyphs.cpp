#include "glyphs.h"

#include <algorithm>
#include <cstdint>

#include "text.h"

namespace qvtcfg {
namespace {

constexpr std::size_t kDots = 3;
// A line of marks that take no column ends somewhere.
constexpr std::size_t kMostBytes = 4096;

struct Range {
  std::uint32_t first, last;
};

// Marks that join the character before them.
constexpr Range kMarks[] = {{0x0300, 0x036F}, {0x0483, 0x0489}, {0x0591, 0x05BD}, {0x064B, 0x065F}, {0x1AB0, 0x1AFF},
                            {0x1DC0, 0x1DFF}, {0x20D0, 0x20FF}, {0xFE00, 0xFE0F}, {0xFE20, 0xFE2F}};
constexpr Range kWide[] = {{0x1100, 0x115F},   {0x2E80, 0x303E},   {0x3041, 0x33FF},  {0x3400, 0x4DBF},
                           {0x4E00, 0x9FFF},   {0xA000, 0xA4CF},   {0xAC00, 0xD7A3},  {0xF900, 0xFAFF},
                           {0xFE30, 0xFE6F},   {0xFF00, 0xFF60},   {0xFFE0, 0xFFE6},  {0x1F300, 0x1F64F},
                           {0x1F680, 0x1F6FF}, {0x1F900, 0x1F9FF}, {0x20000, 0x3FFFD}};

template <std::size_t count>
bool is_in(const Range (&ranges)[count], std::uint32_t character) {
  return std::ranges::any_of(ranges, [&](const Range& r) { return r.first <= character && character <= r.last; });
}

Glyph spelled(std::string shown, std::size_t bytes) {
  const std::size_t columns = shown.size();
  return {std::move(shown), bytes, columns, true};
}

Glyph spelled_byte(char byte) {
  if (byte == '\t') return spelled("\\t", 1);
  if (byte == '\r') return spelled("\\r", 1);
  return spelled(visible(std::string_view(&byte, 1)), 1);
}

// The end of what fits into the columns from begin on; columns becomes what is left.
std::size_t fitting(std::string_view line, std::size_t begin, std::size_t& columns) {
  std::size_t at = begin;
  while (at < line.size() && at - begin < kMostBytes) {
    const Glyph glyph = first_glyph(line.substr(at));
    if (glyph.columns > columns) break;
    columns -= glyph.columns;
    at += glyph.bytes;
  }
  return at;
}

}  // namespace

Glyph first_glyph(std::string_view text) {
  const std::size_t bytes = character_length(text);
  if (bytes == 0) return spelled_byte(text[0]);
  std::string character(text.substr(0, bytes));
  if (bytes == 1) return {std::move(character), 1, 1, false};
  if (is_unseen(character)) return spelled(visible(character), bytes);
  const std::uint32_t value = code_point(character);
  return {std::move(character), bytes, is_in(kMarks, value) ? 0U : is_in(kWide, value) ? 2U : 1U, false};
}

std::size_t last_glyph_size(std::string_view text) {
  for (std::size_t bytes = 2; bytes <= std::min<std::size_t>(4, text.size()); ++bytes) {
    if (character_length(text.substr(text.size() - bytes)) == bytes) return bytes;
  }
  return 1;
}

Window window_around(std::string_view line, std::size_t begin, std::size_t end, std::size_t columns) {
  std::size_t left = columns;
  if (fitting(line, 0, left) == line.size()) return {0, line.size()};
  left = columns - kDots;
  const std::size_t last = fitting(line, 0, left);
  if (std::max(begin + 1, end) <= last) return {0, last};
  // A third of the columns for what is before the place.
  std::size_t from = begin;
  for (std::size_t before = columns / 3; from > 0 && begin - from < kMostBytes;) {
    const std::size_t size = last_glyph_size(line.substr(0, from));
    const std::size_t wide = first_glyph(line.substr(from - size)).columns;
    if (wide > before) break;
    before -= wide;
    from -= size;
  }
  left = columns - (from == 0 ? 1 : 2) * kDots;
  std::size_t to = fitting(line, from, left);
  if (to < line.size()) return {from, to};
  return {from, line.size()};
}

}  // namespace qvtcfg
