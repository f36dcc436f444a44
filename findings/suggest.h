#pragma once

// Names that were probably meant.

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace SdkDebugDialog {

using Names = std::vector<std::string_view>;

struct Nearest {
  Names names;             // that resemble the word most; empty if none does
  bool isOneEdit = false;  // there is a single one, and one edit of a letter leads to it
};

// Names that differ by one or two letters, whatever the case; if there are none, those that begin with the word.
Nearest nearest(std::string_view word, const Names& names);

// Whether the word is one of the names, in any case.
bool is_one_of(std::string_view word, const Names& names);

// "'a', 'b' or 'c'"; commas alone for an empty last word.
std::string listed(const Names& names, std::string_view last = "or");

}  // namespace SdkDebugDialog
