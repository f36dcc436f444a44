#pragma once

#include <string>
#include <vector>

namespace qvtcfg {

// Words with the runs that the other text does not have.
struct MarkedWord {
  std::string word;
  bool changed = false;
};

struct WordDiff {
  std::vector<MarkedWord> before;
  std::vector<MarkedWord> after;
};

// The fewest changes that lead from one text to the other, word by word.
WordDiff word_diff(const std::string& before, const std::string& after);

}  // namespace qvtcfg
