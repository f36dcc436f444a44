#include "options/TokenCursor.h"

#include <stdexcept>

#include "options/QvtOption_Parser.h"
#include "options/status.h"

namespace SdkDebugDialog {

std::string newoption_token;

namespace {

// White space as in the classic C locale, whatever the program's locale is.
constexpr std::string_view kSpace = " \t\n\v\f\r";

std::size_t or_end(std::size_t position, std::string_view text) {
  return position != std::string_view::npos ? position : text.size();
}

}  // namespace

bool TokenCursor::cut(std::string_view& token) {
  m_rest.remove_prefix(or_end(m_rest.find_first_not_of(kSpace), m_rest));
  if (m_rest.empty()) return false;
  // Only blanks and tabs part tokens; a line end before one of them is dropped, one inside a token stays.
  token = m_rest.substr(0, m_rest.find_first_of(" \t"));
  token = token.substr(0, token.find_last_not_of(kSpace) + 1);
  m_rest.remove_prefix(token.size());
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
    return TokenCursor::classify(found);
  });
}

int QvtOption_Parser::get_tokenpair(std::string& input, std::string& key, std::string& value) {
  if (const int kind = get_token(input, key); kind != kValue) return kind;
  return get_token(input, value) == kValue ? kValue : kError;
}

}  // namespace SdkDebugDialog
