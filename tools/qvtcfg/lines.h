#pragma once

// The lines of a text.

#include <cstddef>
#include <string_view>
#include <vector>

namespace qvtcfg {

// Both from 1, in bytes.
struct Position {
  std::size_t line = 1;
  std::size_t column = 1;
};

class Lines {
 public:
  // The text must outlive it.
  explicit Lines(std::string_view text);

  std::string_view text() const { return m_text; }

  Position position(std::size_t offset) const;
  // The offset of the line's first byte; lines from 1.
  std::size_t begin(std::size_t line) const { return m_begins[line - 1]; }
  // The line without its end.
  std::string_view line(std::size_t line) const;

 private:
  std::string_view m_text;
  std::vector<std::size_t> m_begins;
};

}  // namespace qvtcfg
