#pragma once

// What each word of a text is, according to the tables of the syntax.

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
  const Target* target = nullptr;          // of the target's word and all that follow in the command
  const Connection* connection = nullptr;  // of the connection's word and all that follow in the command
  const Run* run = nullptr;                // where the option stands; of an option and what belongs to it
  const Option* option = nullptr;          // of an option and what belongs to it; null for an unknown one
  const Keyword* keyword = nullptr;        // the row of a keyword and its value, and of an option's own value
  // The words of one option, with its keywords and values, have the same number; the first option has 1. Words that
  // belong to no option have 0.
  std::size_t group = 0;
};

// Every word of the text. It goes on after a mistake: what may not stand in its place is Role::unknown, and what
// follows is read as the reader would have read it without the mistake. Values are not checked, and no processor is
// asked.
//
//   no such head               a target of either kind may follow
//   no such target, connection general options may follow
//   no such option             it takes all words up to the next option
//   no such keyword            it takes a value
//   a lone dash                it counts as no word, so that what follows stands in its place
std::vector<WalkedWord> walk(std::string_view text, TextKind kind);

}  // namespace SdkDebugDialog
