#include "word_diff.h"

#include <algorithm>

#include "output.h"
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

// A line of the difference: the sign, then the words, with every run of changed words in brackets.
std::string marked(const char* sign, const std::vector<MarkedWord>& words, Style style, const Output& out) {
  std::vector<std::string> runs = {sign};
  for (auto word = words.begin(); word != words.end();) {
    std::vector<std::string> run;
    const bool changed = word->changed;
    for (; word != words.end() && word->changed == changed; ++word) run.push_back(visible(word->word));
    const std::string text = join(run, " ");
    runs.push_back(changed ? out.styled(style, "[" + text + "]") : text);
  }
  return join(runs, " ");
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

void print_word_diff(const std::string& before, const std::string& after, Output& out) {
  const WordDiff diff = word_diff(before, after);
  out.line(marked("-", diff.before, Style::kRemoved, out));
  out.line(marked("+", diff.after, Style::kAdded, out));
}

}  // namespace qvtcfg
