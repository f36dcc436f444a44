#include "options/TokenCursor.h"

#include <bit>
#include <cstdint>
#include <stdexcept>

#include "options/QvtOption_Parser.h"
#include "options/status.h"
#include "options/word_index.h"

namespace SdkDebugDialog {

std::string newoption_token;

namespace {

// The first blank or tab, looked for in eight characters at a time; end if there is none.
const char* find_blank(const char* text, const char* end) {
  constexpr std::uint64_t kEach = 0x0101010101010101U;
  for (; end - text >= 8; text += 8) {
    const std::uint64_t packed = letters(text, 8);
    // A byte that becomes 0 here borrows from its highest bit; the lowest one that does so is exact.
    const std::uint64_t blank = packed ^ (' ' * kEach);
    const std::uint64_t tab = packed ^ ('\t' * kEach);
    const std::uint64_t found = (((blank - kEach) & ~blank) | ((tab - kEach) & ~tab)) & (0x80 * kEach);
    if (found != 0) return text + std::countr_zero(found) / 8;
  }
  while (text != end && *text != ' ' && *text != '\t') ++text;
  return text;
}

}  // namespace

bool TokenCursor::cut(std::string_view& token) {
  const char* begin = m_rest.data();
  const char* const textEnd = begin + m_rest.size();
  while (begin != textEnd && is_space(*begin)) ++begin;
  // Only blanks and tabs part tokens; a line end before one of them is dropped, one inside a token stays.
  const char* end = find_blank(begin, textEnd);
  while (end != begin && is_space(end[-1])) --end;
  m_rest = {end, static_cast<std::size_t>(textEnd - end)};
  if (begin == end) return false;
  token = {begin, static_cast<std::size_t>(end - begin)};
  return true;
}

int TokenCursor::classify(std::string_view token) {
  if (token.front() != '-') return kValue;
  if (token.size() == 1) {
    // The text that std::string::at gives for the character after the dash; callers know it.
    throw std::out_of_range("basic_string::at: __n (which is 1) >= this->size() (which is 1)");
  }
  if (token[1] >= '0' && token[1] <= '9') return kValue;
  newoption_token.assign(token);
  m_option = token;
  return kOption;
}

int TokenCursor::next(std::string_view& token) { return cut(token) ? classify(token) : kEnd; }

int TokenCursor::next_pair(std::string_view& key, std::string_view& value) {
  if (const int kind = next(key); kind != kValue) return kind;
  return next(value) == kValue ? kValue : kError;
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
