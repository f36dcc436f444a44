#pragma once

// A simple reference tokenizer.

#include <cstddef>
#include <string_view>

struct PlainToken {
  int kind = 3;         // 0 value, 1 option, 3 end of the text
  bool thrown = false;  // a lone dash, which throws
  std::string_view token = {};
  std::size_t end = 0;  // length of the consumed text
};

inline PlainToken plain_token(std::string_view text) {
  constexpr std::string_view kSpace = " \t\n\v\f\r";
  const std::size_t begin = text.find_first_not_of(kSpace);
  if (begin == text.npos) return {.end = text.size()};
  const std::size_t blank = text.find_first_of(" \t", begin);
  std::string_view token = text.substr(begin, blank == text.npos ? blank : blank - begin);
  token = token.substr(0, token.find_last_not_of(kSpace) + 1);
  const bool dash = token.front() == '-';
  const bool digit = token.size() > 1 && token[1] >= '0' && token[1] <= '9';
  return {dash && !digit ? 1 : 0, token == "-", token, begin + token.size()};
}
