#pragma once

// Inputs of the targets that read a text: the first byte selects how the text is read ('0' is the first way), the rest
// is the text. So a seed is a plain text after a digit.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>

struct Input {
  std::size_t way = 0;
  std::string text;
};

inline Input split(const std::uint8_t* data, std::size_t size, std::size_t ways) {
  if (size == 0) return {};
  return {static_cast<std::uint8_t>(data[0] - '0') % ways, std::string(data + 1, data + size)};
}

// The command in an option file: at most 1023 characters of the first line that is not empty.
inline std::string first_line(const std::string& content) {
  const std::size_t begin = content.find_first_not_of('\n');
  if (begin == content.npos) return {};
  return content.substr(begin, std::min<std::size_t>(content.find('\n', begin) - begin, 1023));
}
