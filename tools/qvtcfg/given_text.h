#pragma once

// Text of options that the user gave: as an argument, on standard input or in a file.

#include <string>

namespace qvtcfg {

struct GivenText {
  std::string text;
  std::string source;  // names where it comes from in messages
};

// The argument itself, of which messages speak as name, or standard input for a dash.
GivenText given_text(const std::string& argument, const std::string& name);

// Throws Failure when there are bytes that are no text.
void require_text(const GivenText& given, const std::string& advice = "");

// How the library's exception for such a text is told.
inline constexpr const char* kLoneDash = "a lone '-' stands where an option or a value belongs";

}  // namespace qvtcfg
