#include "settings/Draft.h"

#include <algorithm>

namespace SdkDebugDialog {

Draft::Draft(std::string t, TextKind k) : text(std::move(t)), kind(k), words(walk(text, k)) {
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (!is_read(i)) continue;
    const std::size_t group = words[i].group;
    if (group >= groups.size()) groups.resize(group + 1, {i, i, words[i].option});
    groups[group].end = i + 1;
  }
}

std::string_view Draft::word(std::size_t i) const {
  return std::string_view(text).substr(words[i].begin, words[i].end - words[i].begin);
}

std::size_t Draft::read_end() const {
  std::size_t end = words.size();
  while (end > 0 && !is_read(end - 1)) --end;
  return end;
}

void Changes::replace(std::size_t word, std::string_view by) {
  m_splices.push_back({m_draft.words[word].begin, m_draft.words[word].end, std::string(by)});
}

void Changes::remove(std::size_t word) {
  const std::size_t begin = word == 0 ? 0 : m_draft.words[word - 1].end;
  m_splices.push_back({begin, m_draft.words[word].end, {}});
}

void Changes::add(std::size_t words, std::string_view text) {
  if (words == 0 && !m_draft.words.empty()) {
    const std::size_t begin = m_draft.words.front().begin;
    m_splices.push_back({begin, begin, std::string(text.substr(1)) + " "});
  } else {
    const std::size_t end = words == 0 ? m_draft.text.size() : m_draft.words[words - 1].end;
    m_splices.push_back({end, end, std::string(text)});
  }
}

std::string Changes::made() const {
  std::vector<Splice> splices = m_splices;
  std::ranges::stable_sort(splices, {}, &Splice::end);
  std::string text;
  std::size_t from = 0;
  for (const Splice& splice : splices) {
    text.append(m_draft.text, from, splice.begin - from);
    text += splice.text;
    from = splice.end;
  }
  return text.append(m_draft.text, from);
}

std::string with_added(const Draft& draft, std::size_t words, std::string_view text) {
  Changes changes(draft);
  changes.add(words, text);
  return changes.made();
}

}  // namespace SdkDebugDialog
