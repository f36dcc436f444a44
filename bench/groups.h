#pragma once

// What a reader does with the words of an option, when its library has found the option.

#include <cstddef>
#include <string>
#include <vector>

#include "bench/hand_written.h"

namespace bench {

inline bool take_head(const std::vector<std::string>& words, Settings& settings) {
  return words.size() == 3 && same(words[0], "connect") && take_target(words[1], settings) &&
         take_connection(words[2], settings);
}

// Keys and values in turn.
inline bool take_pairs(const std::vector<std::string>& words, TakePair take, Settings& settings) {
  if (words.size() % 2 != 0) return false;
  for (std::size_t i = 0; i < words.size(); i += 2) {
    if (!take(words[i], words[i + 1], settings)) return false;
  }
  return true;
}

}  // namespace bench
