#pragma once

// What each word of a text is, by the registry of the syntax.

#include <cstddef>
#include <string_view>
#include <vector>

#include "SdkDebugDialog/Annotation.h"
#include "options/syntax.h"

namespace SdkDebugDialog {

struct WalkedWord {
  std::size_t begin = 0;  // in bytes
  std::size_t end = 0;
  Role role = Role::ignored;
  const Target* target = nullptr;          // of the target's word and all that follow
  const Connection* connection = nullptr;  // of the connection's word and all that follow
  const Run* run = nullptr;                // where the option stands; of an option and what belongs to it
  const Option* option = nullptr;          // of an option and what belongs to it; null for an unknown one
  const Keyword* keyword = nullptr;        // the row of a keyword and its value, and of an option's own value
  // The words of one option, with its keywords and values, have the same number; the first option has 1, the words
  // before it have 0.
  std::size_t group = 0;
};

// Every word of the text. It goes on after a mistake, with the next option: what no row of the registry knows in its
// place is Role::unknown. Values are not checked, and no processor is asked.
std::vector<WalkedWord> walk(std::string_view text, TextKind kind);

}  // namespace SdkDebugDialog
