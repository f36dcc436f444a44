#include "lines.h"

#include <algorithm>

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

std::string_view Lines::line(std::size_t line) const {
  const std::string_view rest = m_text.substr(begin(line));
  return rest.substr(0, rest.find('\n'));
}

}  // namespace qvtcfg
