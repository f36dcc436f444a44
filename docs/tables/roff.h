#pragma once

// Text of man pages, in the macros of mdoc.

#include <string>
#include <string_view>

#include "docs/tables/markdown.h"

namespace roff {

// A text, with `words of a program` as in Markdown, in the middle of a line.
std::string text(std::string_view markdown);

// The same as lines of their own; an empty text is none.
std::string lines(std::string_view markdown);

// A sentence made of it: with a capital letter in front and a full stop behind.
std::string sentence(std::string_view markdown);

// A list of items that begin with ".It".
std::string list(std::string_view items);

// An item for each row, named by the first cell. The others have the names of their columns in front, unless they speak
// for themselves.
std::string list(const markdown::Table& table);

}  // namespace roff
