#pragma once

// An event-based JSON reader.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace SdkDebugDialog {

enum class JsonKind { object, array, text, number, boolean, null };

// Receives the events in the order of the text. An exception ends reading.
class JsonListener {
 public:
  virtual ~JsonListener() = default;

  // A string or member name without escapes is a view into the text that is read. Others are valid during the call
  // only.
  virtual void text(std::string_view text) = 0;
  virtual void key(std::string_view name) = 0;
  virtual void scalar(JsonKind kind) = 0;  // a number, boolean or null

  virtual void start(JsonKind kind) = 0;  // an object or array
  virtual void end(JsonKind kind) = 0;
};

// The first syntax error in a text; offset in bytes.
struct JsonFault {
  std::size_t offset;
  std::string found;
  std::string expected;
};

// Returns the error, or nothing when the whole text is one JSON value. Nesting uses heap memory, not the stack. A byte
// order mark at the beginning is accepted.
std::optional<JsonFault> read_json(const std::string& text, JsonListener& listener);

// Text for use in a message: escaped to printable characters on one line, and truncated if long.
std::string escaped(std::string_view text);
std::string in_quotes(std::string_view text);

constexpr bool is_letter_or_digit(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}

}  // namespace SdkDebugDialog
