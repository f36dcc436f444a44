#include "options/TokenCursor.h"

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

#include <algorithm>
#include <array>
#include <cstring>
#include <stdexcept>

#include "options/QvtOption_Parser.h"
#include "options/packed_letters.h"

namespace SdkDebugDialog {

std::string newoption_token;

namespace {

constexpr std::size_t kBlock = TokenCursor::kBlock;

struct Block {
  std::uint64_t blanks = 0;  // a bit for each character that is a blank
  bool plain = false;        // nothing in it is below the blank, so that no other character is white space
};

#if defined(__SSE2__)

Block look_at(const char* text) {
  const __m128i blank = _mm_set1_epi8(' ');
  Block block;
  __m128i lowest = blank;
  for (std::size_t i = 0; i < kBlock; i += 16) {
    __m128i some;
    std::memcpy(&some, text + i, sizeof some);
    block.blanks |= static_cast<std::uint64_t>(_mm_movemask_epi8(_mm_cmpeq_epi8(some, blank))) << i;
    lowest = _mm_min_epu8(lowest, some);
  }
  block.plain = _mm_movemask_epi8(_mm_cmpeq_epi8(lowest, blank)) == 0xFFFF;
  return block;
}

#else

// A bit for each of eight characters that is not above c, which is one of ASCII.
std::uint64_t up_to(unsigned char c, std::uint64_t packed) {
  const std::uint64_t above = ((packed & eight_of(0x7F)) + eight_of(static_cast<unsigned char>(0x7F - c))) | packed;
  // The multiplication brings the bits of the eight bytes side by side.
  return (((~above & eight_of(0x80)) >> 7) * 0x0102040810204080U) >> 56;
}

Block look_at(const char* text) {
  Block block;
  std::uint64_t below = 0;
  for (std::size_t i = 0; i < kBlock; i += 8) {
    const std::uint64_t some = letters<8>(text + i);
    block.blanks |= up_to(' ', some) << i;
    below |= up_to(' ' - 1, some);
  }
  block.plain = below == 0;
  return block;
}

#endif

// The last characters of a text, which are fewer. Its end parts tokens as a blank does. Apart from next_block, which
// would be slower with it.
[[gnu::noinline]] Block look_at_last(std::string_view text, std::size_t count) {
  Block block;
  if (text.size() >= kBlock) {
    block = look_at(text.data() + text.size() - kBlock);
    block.blanks = count == 0 ? 0 : block.blanks >> (kBlock - count);
  } else {
    std::array<char, kBlock> all;
    all.fill('x');
    std::ranges::copy(text.substr(text.size() - count), all.begin());
    block = look_at(all.data());
  }
  block.blanks |= std::uint64_t{1} << count;
  return block;
}

}  // namespace

// Goes on to the next characters with a blank. There are none at the end of the text, and none are looked for where
// there is other white space.
void TokenCursor::next_block() {
  const std::size_t size = m_text.size();
  for (std::size_t next = m_at.block + kBlock; next <= size; next += kBlock) {
    const std::size_t count = size - next;
    const Block block = count >= kBlock ? look_at(m_text.data() + next) : look_at_last(m_text, count);
    if (!block.plain) return;
    m_at.block = next;
    m_at.blanks = block.blanks;
    if (block.blanks != 0) return;
  }
}

// Empty at the end of the text.
std::string_view TokenCursor::cut_any() {
  const char* const text = m_text.data();
  const char* const textEnd = text + m_text.size();
  const char* const begin = std::find_if_not(text + std::min(m_at.next, m_text.size()), textEnd, is_space);
  // Only blanks and tabs part tokens; a line end before one of them is dropped, one inside a token stays.
  const char* end = std::find_if(begin, textEnd, [](char c) { return c == ' ' || c == '\t'; });
  while (end != begin && is_space(end[-1])) --end;
  const auto at = static_cast<std::size_t>(end - text);
  // Behind the blank, so that the next token begins where the next look does.
  m_at.next = at == m_text.size() || *end == ' ' ? at + 1 : at;
  m_at.block = m_at.next - kBlock;
  m_at.blanks = 0;
  return {begin, static_cast<std::size_t>(end - begin)};
}

// The blank that ended the last token is not consumed.
std::string_view TokenCursor::rest() const {
  const bool behindBlank = m_at.next > m_text.size() || (m_at.next != 0 && m_text[m_at.next - 1] == ' ');
  return m_text.substr(behindBlank ? m_at.next - 1 : m_at.next);
}

void TokenCursor::throw_lone_dash() {
  // The text that std::string::at gives for the character after the dash; callers know it.
  throw std::out_of_range("basic_string::at: __n (which is 1) >= this->size() (which is 1)");
}

void keep_option(const TokenCursor& in) {
  if (!in.option().empty()) newoption_token.assign(in.option());
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
