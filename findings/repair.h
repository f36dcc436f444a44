#pragma once

// What was probably meant by a word that the reader refuses.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "SdkDebugDialog/Diagnosis.h"
#include "findings/names.h"
#include "options/syntax.h"
#include "settings/walk.h"

namespace SdkDebugDialog {

// The place in the syntax at which a word is refused. What does not hold there is null.
struct Refusal {
  Slot slot = Slot::head;
  Source source = Source::command;
  const Head* head = nullptr;
  const Target* target = nullptr;  // of a connection
  const Run* run = nullptr;        // in which options stand
  const Option* option = nullptr;  // of a keyword or a value
  const Keyword* row = nullptr;    // of a value
  const LetterCase* letterCase = nullptr;
  Names names = {};  // those that are valid there
};

// The names that are valid there.
Names names_at(const Refusal& refusal);

// A safe fix, and the words that then stand in the place of the one refused.
struct Repair {
  std::string remedy;
  Fix fix;
  std::vector<Piece> words;
};

// A separator, quotes, a missing blank, a dash too many or too few, or one letter that differs from a single name.
std::optional<Repair> repair(const Refusal& refusal, const Piece& word);

// An option with two dashes, with none, or with one that a word processor has changed.
std::optional<Repair> with_one_dash(const Refusal& refusal, const Piece& word);

// A dash in front of a keyword, or of a value that is one of a few words.
std::optional<Repair> without_dash(const Names& names, const Piece& word);

// Whether the reader takes the word for an option.
bool is_option_word(std::string_view word);

// Whether all of the word is characters that others separate words with, and the remedy.
bool is_separator(std::string_view word);
std::string not_a_blank(std::string_view separator);

}  // namespace SdkDebugDialog
