#pragma once

// The interface of the shells' completions, which works for other programs as well:
//
//   qvtcfg complete INDEX WORD...
//
// The words are those of a command line, without quotes; the first one is the program. The answer is what can stand in
// place of the word with the index, counted from 0; the index of the last word and 1 stands for a new word.
//
// Every line is a candidate, a tab, and a few words about it. A candidate is a whole word, without quotes, that begins
// with what is there. A candidate that ends with "=" goes on with a value: no blank belongs behind it.
// A line that begins with a tab asks for the names of files or folders instead: "\tfiles" or "\tfolders". They are
// relative to the folder behind another tab, if there is one, otherwise to the current folder.
//
// Nothing is written, and a design or an option file that cannot be read has no candidates.

#include <string>
#include <vector>

#include "failure.h"

namespace qvtcfg {

class Output;

// The arguments are those behind "complete". Throws Failure only if the index is missing or wrong.
ExitCode complete(const std::vector<std::string>& arguments, Output& out);

}  // namespace qvtcfg
