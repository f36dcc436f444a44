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
  // The same with the column in characters; a byte that belongs to none counts as one.
  Position position_in_characters(std::size_t offset) const;
  // The offset of the line's first byte; lines from 1.
  std::size_t begin(std::size_t line) const { return m_begins[line - 1]; }
  // The line without its end.
  std::string_view line(std::size_t line) const;

 private:
  struct Counted {
    std::size_t offset;
    std::size_t characters;  // before it
  };

  std::size_t characters_before(std::size_t offset) const;

  std::string_view m_text;
  std::vector<std::size_t> m_begins;
  mutable std::vector<Counted> m_counted;  // at regular distances; made when needed
};

}  // namespace qvtcfg
