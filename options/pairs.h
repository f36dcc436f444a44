#pragma once

// Reads and writes the rows of a group.

#include <span>
#include <string_view>

#include "options/syntax.h"

namespace SdkDebugDialog {

// How the reading of pairs ended.
struct PairsRead {
  Outcome outcome;       // never done
  bool refused = false;  // a complete pair was the error
  bool noted = false;    // the pair of the row to be noted was read without an error
};

// Reads pairs until something else comes, and notes whether one of a row, which may be null, was there.
PairsRead read_pairs(TokenCursor& in, const Group& group, const Records& to, const Keyword* toNote = nullptr);

// Reads one value; false for an error.
bool read_value(const Keyword& row, const KeywordAndValue& pair, const Records& to);

// Stores the value of a word of the row; false for any other word.
bool read_word(const Keyword& row, const KeywordAndValue& pair, const Records& to);

bool is_written(const Keyword& row, const Records& from);

// Appends the rows that are to be written.
void write_pairs(TextOut& out, std::span<const Keyword> rows, const Records& from);
void write_pair(TextOut& out, const Keyword& row, const Records& from);

}  // namespace SdkDebugDialog
