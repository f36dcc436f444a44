#pragma once

// A line of any bytes as a terminal shows it.

#include <cstddef>
#include <string>
#include <string_view>

namespace qvtcfg {

// A character, or a byte that is none. What a terminal would not show is spelled: "\t", "\xff", "\u202e".
struct Glyph {
  std::string shown;
  std::size_t bytes = 0;
  std::size_t columns = 0;
  bool spelled = false;
};

// That at the start of a text, which must not be empty.
Glyph first_glyph(std::string_view text);

// The size in bytes of that at the end of a text, which must not be empty.
std::size_t last_glyph_size(std::string_view text);

// A part of a line, in bytes.
struct Window {
  std::size_t begin = 0;
  std::size_t end = 0;
};

// The part of a line that is shown in so many columns around the bytes from begin to end: the whole line if it fits. A
// part that is cut leaves room for "..." at its ends. Looks at no more of the line than it needs.
Window window_around(std::string_view line, std::size_t begin, std::size_t end, std::size_t columns);

}  // namespace qvtcfg
