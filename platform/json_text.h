#pragma once

// JSON text, told value by value.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace SdkDebugDialog {

enum class JsonKind { object, array, text, number, boolean, null };

// Is told what stands in a text, in its order. An exception ends the reading.
class JsonListener {
 public:
  virtual ~JsonListener() = default;

  // A text, or a member's name, that has no escapes is a part of the text that is read. Others are valid during the
  // call only.
  virtual void text(std::string_view text) = 0;
  virtual void key(std::string_view name) = 0;
  virtual void scalar(JsonKind kind) = 0;  // any other value without parts

  virtual void start(JsonKind kind) = 0;  // an object or array
  virtual void end(JsonKind kind) = 0;
};

// Why a text is not JSON.
struct JsonFault {
  std::size_t offset;
  std::string found;
  std::string expected;
};

// Nothing where the whole text is one value. Nesting takes memory, not stack; a byte order mark may stand in front.
std::optional<JsonFault> read_json(const std::string& text, JsonListener& listener);

// A part of the text for use in a message: printable, bounded, on one line.
std::string escaped(std::string_view text);
std::string in_quotes(std::string_view text);

constexpr bool is_letter_or_digit(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}

}  // namespace SdkDebugDialog
