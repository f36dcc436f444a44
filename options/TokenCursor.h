#pragma once

#include <string>
#include <string_view>

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
  explicit TokenCursor(std::string_view text) : m_rest(text) {}

  // Cuts the next token off. kValue, kOption or kEnd; with kEnd the token stays as it was. An option starts with "-"
  // and goes on with anything but a decimal digit; its text is stored in newoption_token too. A lone "-" throws
  // std::out_of_range.
  int next(std::string_view& token);

  // Reads a key and its value. kOption or kEnd when there is no key; kError when there is no value, even where an
  // option, which is consumed then, stands in its place.
  int next_pair(std::string_view& key, std::string_view& value);

  // The last option that was read, as newoption_token has it too.
  std::string_view option() const { return m_option; }

  // What was not consumed yet.
  std::string_view rest() const { return m_rest; }

  // The two halves of next: cuts a token off (false at the end of the text), and tells its kind.
  bool cut(std::string_view& token);
  int classify(std::string_view token);

 private:
  std::string_view m_rest;
  std::string_view m_option;
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
