#pragma once

// Lists of words in texts.

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace SdkDebugDialog {

// Equal but for the case of ASCII letters.
bool same_word(std::string_view a, std::string_view b);

// How many edits lead from one word to the other: a letter replaced, added or left out, or two neighbours swapped. The
// case of ASCII letters counts.
std::size_t edit_distance(std::string_view a, std::string_view b);

// A blank and the word.
std::string spaced(std::string_view word);

std::string joined(std::span<const std::string> items, std::string_view separator);

// At every separator; the result has at least one item, and items can be empty.
std::vector<std::string_view> split(std::string_view text, char separator);

}  // namespace SdkDebugDialog
