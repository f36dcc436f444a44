#include "lines.h"

#include <algorithm>

#include "text.h"

namespace qvtcfg {

Lines::Lines(std::string_view text) : m_text(text), m_begins{0} {
  for (std::size_t end = text.find('\n'); end != std::string_view::npos; end = text.find('\n', end + 1)) {
    m_begins.push_back(end + 1);
  }
}

Position Lines::position(std::size_t offset) const {
  const auto after = std::ranges::upper_bound(m_begins, offset);
  return {static_cast<std::size_t>(after - m_begins.begin()), offset - *(after - 1) + 1};
}

std::size_t Lines::characters_before(std::size_t offset) const {
  constexpr std::size_t kDistance = 4096;
  const auto step = [&](Counted& at) {
    at.offset += std::max<std::size_t>(1, character_length(m_text.substr(at.offset)));
    ++at.characters;
  };
  if (m_counted.empty()) {
    m_counted.push_back({0, 0});
    for (Counted at = {0, 0}; at.offset < m_text.size(); step(at)) {
      if (at.offset - m_counted.back().offset >= kDistance) m_counted.push_back(at);
    }
  }
  Counted at = *(std::ranges::upper_bound(m_counted, offset, {}, &Counted::offset) - 1);
  while (at.offset < offset) step(at);
  return at.characters;
}

Position Lines::position_in_characters(std::size_t offset) const {
  const std::size_t line = position(offset).line;
  return {line, characters_before(offset) - characters_before(begin(line)) + 1};
}

std::string_view Lines::line(std::size_t line) const {
  const std::size_t end = line < m_begins.size() ? m_begins[line] - 1 : m_text.size();
  return m_text.substr(begin(line), end - begin(line));
}

}  // namespace qvtcfg
