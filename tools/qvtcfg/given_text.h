#pragma once

// Option text from an argument, from standard input or from a file.

#include <string>

namespace qvtcfg {

struct GivenText {
  std::string text;
  std::string source;  // where it comes from, for messages
};

// The argument with name as its source; for "-", the text from standard input.
GivenText given_text(const std::string& argument, const std::string& name);

// Throws Failure when the text has control bytes or invalid UTF-8; advice is appended to the message.
void require_text(const GivenText& given, const std::string& advice = "");

}  // namespace qvtcfg
