#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "options/LetterCase.h"
#include "options/status.h"

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
  // How many characters are looked at at once.
  static constexpr std::size_t kBlock = 64;

  explicit TokenCursor(std::string_view text) : m_text(text) {}

  // Cuts the next token off. kValue, kOption or kEnd; with kEnd the token stays as it was. An option starts with "-"
  // and goes on with anything but a decimal digit. A lone "-" throws std::out_of_range.
  int next(std::string_view& token) { return cut(token) ? classify(token) : kEnd; }

  // Reads pairs of a key and a value until something else comes, and calls take(key, value) with each. kOption or kEnd
  // when there is no further key; kError when there is no value, even where an option, which is consumed then, stands
  // in its place, and when take answers false.
  template <class Take>
  int next_pairs(Take take) {
    Position at = m_at;
    std::string_view key;
    std::string_view value;
    for (;;) {
      if (!cut(at, key)) return kEnd;
      if (const int kind = classify(key); kind != kValue) return kind;
      if (!cut(at, value) || classify(value) != kValue || !take(key, value)) return kError;
    }
  }

  // The last option that was read; empty when there was none.
  std::string_view option() const { return m_option; }

  // What was not consumed yet.
  std::string_view rest() const;

  LetterCase& letter_case() { return m_letterCase; }

  // The two halves of next: cuts a token off (false at the end of the text), and tells its kind.
  bool cut(std::string_view& token) {
    Position at = m_at;
    return cut(at, token);
  }
  int classify(std::string_view token) {
    if (token.front() != '-') [[likely]] {
      return kValue;
    }
    if (token.size() == 1) throw_lone_dash();
    if (token[1] >= '0' && token[1] <= '9') return kValue;
    m_option = token;
    return kOption;
  }

 private:
  // Positions are those in the text. One behind its end stands where a blank behind the text would have been consumed.
  struct Position {
    std::size_t next = 0;         // behind the blank that ended the last token, or behind the token itself
    std::size_t block = -kBlock;  // the characters that were looked at last begin here
    std::uint64_t blanks = 0;     // a bit for each blank among them that was not consumed
  };

  // Works on a copy of our position, which a compiler keeps in registers, and keeps ours up to date.
  bool cut(Position& at, std::string_view& token) {
    if (at.blanks == 0) [[unlikely]] {
      next_block();
      at = m_at;
    }
    // Nearly every token stands between two blanks.
    const std::size_t begin = at.next;
    const std::size_t blank = at.block + static_cast<unsigned>(std::countr_zero(at.blanks));
    if (at.blanks == 0 || begin == blank) [[unlikely]] {
      const std::string_view any = cut_any();
      at = m_at;
      if (any.empty()) return false;
      token = any;
      return true;
    }
    m_at.next = at.next = blank + 1;
    m_at.blanks = at.blanks &= at.blanks - 1;
    token = {m_text.data() + begin, blank - begin};
    return true;
  }
  std::string_view cut_any();
  void next_block();
  [[noreturn]] static void throw_lone_dash();

  std::string_view m_text;
  Position m_at;
  std::string_view m_option;
  LetterCase m_letterCase;
};

// Stores the last option that was read, if any, in newoption_token.
void keep_option(const TokenCursor& in);

// Runs a reader; newoption_token holds the last option that it read then, however it ended.
template <class Reader>
int read_and_keep_option(TokenCursor& in, Reader reader) {
  int end = kError;
  try {
    end = reader(in);
  } catch (...) {
    keep_option(in);
    throw;
  }
  keep_option(in);
  return end;
}

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
  return read_and_keep_option(front.cursor, reader);
}

// The same for a reader that works on an engine.
template <auto reader>
int on_text(std::string& text, EngineImp& imp) {
  return read_front(text, [&](TokenCursor& in) { return reader(in, imp); });
}

}  // namespace SdkDebugDialog
