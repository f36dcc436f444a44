#pragma once

// How the targets that read a text take an input: its first byte chooses among the ways to read, "0" being the first
// one, and the rest is the text. So seeds are plain texts with a digit in front.

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
