#pragma once

// How the targets that read a text take an input: its first byte chooses among the ways to read, "0" being the first
// one, and the rest is the text. So seeds are plain texts with a digit in front.

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

// What counts of an option file: the first line that is not empty, as far as it is read.
inline std::string first_line(const std::string& content) {
  const std::size_t begin = content.find_first_not_of('\n');
  if (begin == content.npos) return {};
  return content.substr(begin, std::min<std::size_t>(content.find('\n', begin) - begin, 1023));
}
