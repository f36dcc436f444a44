#pragma once

// A lone dash as a token makes every reader throw; nothing else does.

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>

#include "fuzz/check.h"

inline constexpr int kThrown = -1;

inline bool is_lone_dash(std::string_view token) {
  constexpr std::string_view kSpace = " \t\n\v\f\r";
  const std::size_t dash = token.find_first_not_of(kSpace);
  return dash != token.npos && token[dash] == '-' && token.find_first_not_of(kSpace, dash + 1) == token.npos;
}

inline bool has_lone_dash(std::string_view text) {
  for (std::size_t end = 0; end != text.npos; text.remove_prefix(end == text.npos ? 0 : end + 1)) {
    end = text.find_first_of(" \t");
    if (is_lone_dash(text.substr(0, end))) return true;
  }
  return false;
}

// The result of a reader, or kThrown. The text is a copy, because the reader may change the original.
template <class Read>
int result_of(std::string text, Read read) {
  try {
    return read();
  } catch (const std::out_of_range& error) {
    expect_same(error.what(), "basic_string::at: __n (which is 1) >= this->size() (which is 1)",
                "the exception's text");
    expect(has_lone_dash(text), "an exception for a lone dash only", text);
    return kThrown;
  }
}
