#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "options/LetterCase.h"
#include "options/status.h"
#include "options/word_index.h"

namespace SdkDebugDialog {

class EngineImp;

// White space as in the classic C locale, whatever the program's locale is.
constexpr bool is_space(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

// Walks over the tokens of a connect command. Nothing is copied or moved: the text must outlive the cursor, and
// tokens are views into it.
//
// A token is a run of characters between blanks or tabs. There is no quoting, no escape and no comment.
class TokenCursor {
 public:
  explicit TokenCursor(std::string_view text)
      : m_at(text.data()), m_end(text.data() + text.size()), m_begin(m_at), m_ahead(m_at) {}

  // Cuts the next token off. kValue, kOption or kEnd; with kEnd the token stays as it was. An option starts with "-"
  // and goes on with anything but a decimal digit; its text is stored in newoption_token too. A lone "-" throws
  // std::out_of_range.
  int next(std::string_view& token) { return cut(token) ? classify(token) : kEnd; }

  // Reads a key and its value. kOption or kEnd when there is no key; kError when there is no value, even where an
  // option, which is consumed then, stands in its place.
  int next_pair(std::string_view& key, std::string_view& value) {
    if (const int kind = next(key); kind != kValue) return kind;
    return next(value) == kValue ? kValue : kError;
  }

  // The last option that was read, as newoption_token has it too.
  std::string_view option() const { return m_option; }

  // What was not consumed yet.
  std::string_view rest() const { return {m_at, static_cast<std::size_t>(m_end - m_at)}; }

  LetterCase& letter_case() { return m_letterCase; }

  // The two halves of next: cuts a token off (false at the end of the text), and tells its kind.
  bool cut(std::string_view& token) {
    // Nearly every token holds no white space of its own and ends at a blank.
    while (m_white != 0 || look_ahead()) {
      const char* const blank = m_block + std::countr_zero(m_white);
      if (*blank != ' ' && *blank != '\t') break;
      m_white &= m_white - 1;
      const char* const begin = std::exchange(m_begin, blank + 1);
      if (begin == blank) continue;
      token = {begin, static_cast<std::size_t>(blank - begin)};
      m_at = blank;
      return true;
    }
    return cut_any(token);
  }
  int classify(std::string_view token) { return token.front() == '-' ? classify_dash(token) : kValue; }

 private:
  bool look_ahead();
  bool cut_any(std::string_view& token);
  int classify_dash(std::string_view token);

  const char* m_at;  // what was not consumed yet
  const char* m_end;
  const char* m_begin;            // where the next token begins, unless there is white space
  const char* m_ahead;            // what was not looked at yet
  const char* m_block = nullptr;  // the eight characters that were looked at last
  std::uint64_t m_white = 0;      // those of them that are not above the blank and were not consumed
  std::string_view m_option;
  LetterCase m_letterCase;
};

// Runs a reader on the front of a caller's text and leaves in the text what the reader did not consume.
template <class Reader>
int read_front(std::string& text, Reader reader) {
  struct Front {
    explicit Front(std::string& t) : text(t), cursor(t) {}
    ~Front() { text.erase(0, text.size() - cursor.rest().size()); }
    Front(const Front&) = delete;
    Front& operator=(const Front&) = delete;
    std::string& text;
    TokenCursor cursor;
  };
  Front front(text);
  return reader(front.cursor);
}

// The same for a reader that works on an engine.
template <auto reader>
int on_text(std::string& text, EngineImp& imp) {
  return read_front(text, [&](TokenCursor& in) { return reader(in, imp); });
}

}  // namespace SdkDebugDialog
