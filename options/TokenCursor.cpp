#include "options/TokenCursor.h"

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

#include <algorithm>
#include <cstring>
#include <stdexcept>

#include "options/QvtOption_Parser.h"

namespace SdkDebugDialog {

std::string newoption_token;

namespace {

// A bit for each of eight characters that is not above the blank; letters beyond ASCII are above it.
std::uint64_t up_to_blank(std::uint64_t packed) {
  const std::uint64_t above = ((packed & eight_of(0x7F)) + eight_of(0x7F - ' ')) | packed;
  // The multiplication brings the bits of the eight bytes side by side.
  return (((~above & eight_of(0x80)) >> 7) * 0x0102040810204080U) >> 56;
}

// A bit for each of 64 characters, the same way.
std::uint64_t up_to_blank_64(const char* text) {
  std::uint64_t bits = 0;
#if defined(__SSE2__)
  const __m128i blanks = _mm_set1_epi8(' ');
  for (int i = 0; i < 64; i += 16) {
    __m128i some;
    std::memcpy(&some, text + i, sizeof some);
    const int found = _mm_movemask_epi8(_mm_cmpeq_epi8(_mm_min_epu8(some, blanks), some));
    bits |= static_cast<std::uint64_t>(found) << i;
  }
#else
  for (int i = 0; i < 64; i += 8) bits |= up_to_blank(letters(text + i, 8)) << i;
#endif
  return bits;
}

}  // namespace

bool TokenCursor::look_ahead() {
  std::uint64_t white = 0;
  while (white == 0 && m_ahead != m_end) {
    m_block = m_ahead;
    const char* ahead = m_ahead;
    if (m_end - ahead >= 64) {
      white = up_to_blank_64(ahead);
      m_ahead += 64;
      continue;
    }
    for (; m_end - ahead >= 8; ahead += 8) white |= up_to_blank(letters(ahead, 8)) << (ahead - m_block);
    // The last ones, filled up with what is no blank.
    const auto count = static_cast<std::size_t>(m_end - ahead);
    if (count != 0) {
      white |= up_to_blank(letters(ahead, count) | ~std::uint64_t{0} << (8 * count)) << (ahead - m_block);
    }
    m_ahead = m_end;
  }
  m_white = white;
  return white != 0;
}

bool TokenCursor::cut_any(std::string_view& token) {
  const char* const begin = std::find_if_not(m_at, m_end, is_space);
  // Only blanks and tabs part tokens; a line end before one of them is dropped, one inside a token stays.
  const char* end = std::find_if(begin, m_end, [](char c) { return c == ' ' || c == '\t'; });
  while (end != begin && is_space(end[-1])) --end;
  m_at = m_begin = m_ahead = end;
  m_white = 0;
  if (begin == end) return false;
  token = {begin, static_cast<std::size_t>(end - begin)};
  return true;
}

int TokenCursor::classify_dash(std::string_view token) {
  if (token.size() == 1) {
    // The text that std::string::at gives for the character after the dash; callers know it.
    throw std::out_of_range("basic_string::at: __n (which is 1) >= this->size() (which is 1)");
  }
  if (token[1] >= '0' && token[1] <= '9') return kValue;
  newoption_token.assign(token);
  m_option = token;
  return kOption;
}

int QvtOption_Parser::get_token(std::string& input, std::string& token) {
  return read_front(input, [&](TokenCursor& in) {
    std::string_view found;
    if (!in.cut(found)) return kEnd;
    token.assign(found);
    return in.classify(found);
  });
}

int QvtOption_Parser::get_tokenpair(std::string& input, std::string& key, std::string& value) {
  if (const int kind = get_token(input, key); kind != kValue) return kind;
  return get_token(input, value) == kValue ? kValue : kError;
}

}  // namespace SdkDebugDialog
