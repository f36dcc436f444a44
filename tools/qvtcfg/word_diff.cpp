#include "word_diff.h"

#include <algorithm>

#include "text.h"

namespace qvtcfg {
namespace {

using Lengths = std::vector<std::vector<std::size_t>>;

std::vector<MarkedWord> all_changed(const std::string& text) {
  std::vector<MarkedWord> words;
  for (std::string& word : split_words(text)) words.push_back({std::move(word), true});
  return words;
}

// common[i][j]: the length of the longest common subsequence of a from i on and b from j on.
Lengths common_lengths(const std::vector<MarkedWord>& a, const std::vector<MarkedWord>& b) {
  Lengths common(a.size() + 1, std::vector<std::size_t>(b.size() + 1));
  for (std::size_t i = a.size(); i-- > 0;) {
    for (std::size_t j = b.size(); j-- > 0;) {
      common[i][j] = a[i].word == b[j].word ? common[i + 1][j + 1] + 1 : std::max(common[i + 1][j], common[i][j + 1]);
    }
  }
  return common;
}

}  // namespace

WordDiff word_diff(const std::string& before, const std::string& after) {
  WordDiff diff{all_changed(before), all_changed(after)};
  const Lengths common = common_lengths(diff.before, diff.after);
  for (std::size_t i = 0, j = 0; i < diff.before.size() && j < diff.after.size();) {
    if (diff.before[i].word == diff.after[j].word) {
      diff.before[i++].changed = diff.after[j++].changed = false;
    } else if (common[i + 1][j] >= common[i][j + 1]) {
      ++i;
    } else {
      ++j;
    }
  }
  return diff;
}

}  // namespace qvtcfg
