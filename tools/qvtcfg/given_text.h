#pragma once

// Option text from an argument, from standard input or from a file.

#include <cstddef>
#include <string>

namespace qvtcfg {

struct GivenText {
  std::string text;
  std::string source;  // where it comes from, for messages
};

// The argument with name as its source; for "-", the text from standard input.
GivenText given_text(const std::string& argument, const std::string& name);

// No more is read of standard input or of a file.
inline constexpr std::size_t kMostBytes = std::size_t{16} << 20;

struct Content {
  std::string text;
  bool cut = false;   // there is more than kMostBytes
  std::string error;  // why it cannot be read; empty if it can
};

Content read_to_end(int descriptor);

// Throws Failure when the text has control bytes or invalid UTF-8; advice is appended to the message.
void require_text(const GivenText& given, const std::string& advice = "");

}  // namespace qvtcfg
