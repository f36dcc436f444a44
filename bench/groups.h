#pragma once

// Interpretation of the words of an option, for the readers that use another library to find the options.

#include <cstddef>
#include <string>
#include <vector>

#include "bench/hand_written.h"

namespace bench {

inline bool take_head(const std::vector<std::string>& words, Settings& settings) {
  return words.size() == 3 && same(words[0], "connect") && take_target(words[1], settings) &&
         take_connection(words[2], settings);
}

// Words that alternate between key and value.
inline bool take_pairs(const std::vector<std::string>& words, TakePair take, Settings& settings) {
  if (words.size() % 2 != 0) return false;
  for (std::size_t i = 0; i < words.size(); i += 2) {
    if (!take(words[i], words[i + 1], settings)) return false;
  }
  return true;
}

}  // namespace bench
