#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "options/LetterCase.h"

namespace SdkDebugDialog {

// White space as in the classic C locale, whatever the program's locale is.
constexpr bool is_space(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

// What a token is. An option begins with "-", and no decimal digit follows.
enum class Token { value, option, end };

// What was found where a keyword and its value may stand. It is incomplete where the value is missing, even if an
// option, which is consumed then, stands in its place.
enum class Pair { complete, option, incomplete, end };

// Walks over the tokens of a connect command: runs of characters between blanks or tabs. There is no quoting, no escape
// and no comment. Nothing is copied: the text must outlive the cursor, and tokens are views into it.
class TokenCursor {
 public:
  // How many characters are looked at at once.
  static constexpr std::size_t kBlock = 64;

  explicit TokenCursor(std::string_view text) : m_text(text) {}

  // Reads the next token; at the end of the text the token stays as it was. A lone "-" throws std::out_of_range.
  Token next(std::string_view& token) { return cut(token) ? classify(token) : Token::end; }

  Pair next_pair(std::string_view& key, std::string_view& value);

  // The last option that was read; empty when there was none.
  std::string_view option() const { return m_option; }

  // What was not consumed yet.
  std::string_view rest() const { return m_text.substr(m_end); }

  const LetterCase& letter_case() const { return m_letterCase; }

  // The two halves of next: consumes a token (false at the end of the text), and tells what it is.
  bool cut(std::string_view& token);
  Token classify(std::string_view token);

 private:
  bool look_ahead();
  bool cut_any(std::string_view& token);
  [[noreturn]] static void throw_lone_dash();

  std::string_view m_text;
  std::size_t m_end = 0;  // of the last token: the blank behind it, if one follows
  // The block of characters that was looked at last begins here; the next one begins 64 characters on. Before anything
  // was looked at, that is the character behind m_end.
  std::size_t m_block = 1 - kBlock;
  std::uint64_t m_blanks = 0;  // a bit for each blank of the block that no token has ended at
  std::string_view m_option;
  LetterCase m_letterCase;
};

inline bool TokenCursor::cut(std::string_view& token) {
  if (m_blanks == 0 && !look_ahead()) return cut_any(token);
  const std::size_t begin = m_end + 1;
  const std::size_t blank = m_block + static_cast<unsigned>(std::countr_zero(m_blanks));
  if (blank == begin) return cut_any(token);
  token = {m_text.data() + begin, blank - begin};
  m_end = blank;
  m_blanks &= m_blanks - 1;
  return true;
}

inline Token TokenCursor::classify(std::string_view token) {
  if (token.front() != '-') [[likely]] {
    return Token::value;
  }
  if (token.size() == 1) throw_lone_dash();
  if (token[1] >= '0' && token[1] <= '9') return Token::value;
  m_option = token;
  return Token::option;
}

inline Pair TokenCursor::next_pair(std::string_view& key, std::string_view& value) {
  const Token found = next(key);
  if (found != Token::value) return found == Token::option ? Pair::option : Pair::end;
  return next(value) == Token::value ? Pair::complete : Pair::incomplete;
}

}  // namespace SdkDebugDialog
