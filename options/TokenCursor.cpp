// Nearly every token stands between two single blanks. So the cursor looks 64 characters ahead at once and keeps a bit
// for each blank among them: the lowest bit is the end of the next token. Two cases are left to a plain loop: a run of
// blanks, and a block that contains any character below the blank, such as a tab or a line end. On machines without
// SSE2 the plain loop reads every token.

#include "options/TokenCursor.h"

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

#include <algorithm>
#include <array>
#include <cstring>
#include <stdexcept>

namespace SdkDebugDialog {

#if defined(__SSE2__)
namespace {

struct Block {
  std::uint64_t blanks = 0;
  bool plain = false;  // nothing in it is below the blank, so that no other character is white space
};

Block look_at(const char* text) {
  const __m128i blank = _mm_set1_epi8(' ');
  Block found;
  __m128i lowest = blank;
  for (std::size_t i = 0; i < TokenCursor::kBlock; i += sizeof(__m128i)) {
    __m128i some;
    std::memcpy(&some, text + i, sizeof some);
    found.blanks |= static_cast<std::uint64_t>(_mm_movemask_epi8(_mm_cmpeq_epi8(some, blank))) << i;
    lowest = _mm_min_epu8(lowest, some);
  }
  found.plain = _mm_movemask_epi8(_mm_cmpeq_epi8(lowest, blank)) == 0xFFFF;
  return found;
}

// The last characters of a text, which are fewer. A token may end at the end of the text.
Block look_at_last(std::string_view text) {
  std::array<char, TokenCursor::kBlock> block;
  block.fill('x');
  text.copy(block.data(), text.size());
  Block found = look_at(block.data());
  found.blanks |= std::uint64_t{1} << text.size();
  return found;
}

}  // namespace

// Goes on to the next block with a blank, if the next token begins behind one.
bool TokenCursor::look_ahead() {
  if (m_end >= m_text.size() || m_text[m_end] != ' ') return false;
  for (std::size_t next = m_block + kBlock; next <= m_text.size(); next += kBlock) {
    const bool isWhole = m_text.size() - next >= kBlock;
    const Block found = isWhole ? look_at(m_text.data() + next) : look_at_last(m_text.substr(next));
    if (!found.plain) return false;
    m_block = next;
    m_blanks = found.blanks;
    if (m_blanks != 0) return true;
  }
  return false;
}

#else

bool TokenCursor::look_ahead() { return false; }

#endif

bool TokenCursor::cut_any(std::string_view& token) {
  const char* const text = m_text.data();
  const char* const textEnd = text + m_text.size();
  const char* const begin = std::find_if_not(text + m_end, textEnd, is_space);
  // Only blanks and tabs separate tokens: other white space in front of them is dropped, inside a token it stays.
  const char* end = std::find_if(begin, textEnd, [](char c) { return c == ' ' || c == '\t'; });
  while (end != begin && is_space(end[-1])) --end;
  m_end = static_cast<std::size_t>(end - text);
  m_block = m_end + 1 - kBlock;
  m_blanks = 0;
  if (begin == end) return false;
  token = {begin, static_cast<std::size_t>(end - begin)};
  return true;
}

void TokenCursor::throw_lone_dash() {
  // The text that std::string::at gives for the character after the dash; callers know it.
  throw std::out_of_range("basic_string::at: __n (which is 1) >= this->size() (which is 1)");
}

}  // namespace SdkDebugDialog
