#include "words.h"

#include <algorithm>

namespace qvtcfg {

std::string name_of(std::span<const Word> words, unsigned int value) {
  const auto row = std::ranges::find(words, value, &Word::value);
  return row != words.end() ? row->name : std::to_string(value);
}

const Word* find_word(std::span<const Word> words, std::string_view name) {
  const auto row = std::ranges::find_if(words, [&](const Word& word) { return name == word.name; });
  return row != words.end() ? &*row : nullptr;
}

std::vector<std::string> names_of(std::span<const Word> words) {
  std::vector<std::string> names;
  for (const Word& word : words) names.emplace_back(word.name);
  return names;
}

std::vector<std::string> names_in_set(std::span<const Word> words, unsigned int set) {
  std::vector<std::string> names;
  for (const Word& word : words) {
    if ((set & word.value) != 0) names.emplace_back(word.name);
  }
  return names;
}

}  // namespace qvtcfg
