#pragma once

// What can be said about a word that the reader refuses, where it is not certain what was meant.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "findings/Report.h"
#include "findings/repair.h"

namespace SdkDebugDialog {

// What stands around the word.
struct Surroundings {
  std::string_view next;  // the word behind it; empty if there is none
  Place nextPlace;
  const Keyword* row = nullptr;  // of the value in front of it; null if none stands there
  std::string_view value;
  Place valuePlace;
  std::string_view skipped;   // an option in front of it that the reader took as a value, or skipped; else empty
  bool isBehindHead = false;  // a command has begun
};

struct Guess {
  std::optional<Code> code = {};  // if it is another one than that of the slot
  std::string message = {};       // the same
  std::string remedy = {};
  std::vector<Fix> fixes = {};
  bool goesOn = false;  // what follows can be read as if the word were right, or not there
};

// The first of some explanations that fits; what is accepted there if none does.
Guess guess(const Refusal& refusal, const Piece& word, const Surroundings& around);

// A keyword of another option, or an option of other places: rather misplaced than misspelt.
bool is_known_elsewhere(const Refusal& refusal, std::string_view word);

}  // namespace SdkDebugDialog
