#pragma once

#include <string>
#include <vector>

namespace qvtcfg {

class Output;

// A word of a text, and whether it belongs to the difference.
struct MarkedWord {
  std::string word;
  bool changed = false;
};

struct WordDiff {
  std::vector<MarkedWord> before;
  std::vector<MarkedWord> after;
};

// A minimal difference of two texts, word by word.
WordDiff word_diff(const std::string& before, const std::string& after);

// A line with "-" and one with "+"; every run of changed words is in brackets.
void print_word_diff(const std::string& before, const std::string& after, Output& out);

}  // namespace qvtcfg
