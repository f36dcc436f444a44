#pragma once

// Reads and writes the rows of a group.

#include <cstdint>
#include <span>
#include <string_view>

#include "options/syntax.h"

namespace SdkDebugDialog {

// How the reading of pairs ended.
struct PairsRead {
  Outcome outcome;         // never done
  bool refused = false;    // a complete pair was the error
  std::uint32_t seen = 0;  // a bit for each row of the group (at most 32) whose pair was read without an error
};

// Reads pairs until something else comes.
PairsRead read_pairs(TokenCursor& in, const Group& group, const Records& to);

// Reads one value; false for an error.
bool read_value(const Keyword& row, const KeywordAndValue& pair, const Records& to);

// Stores the value of a word of the row; false for any other word.
bool read_word(const Keyword& row, const KeywordAndValue& pair, const Records& to);

bool is_written(const Keyword& row, const Records& from);

// Appends the rows that are to be written.
void write_pairs(TextOut& out, std::span<const Keyword> rows, const Records& from);
void write_pair(TextOut& out, const Keyword& row, const Records& from);

}  // namespace SdkDebugDialog
