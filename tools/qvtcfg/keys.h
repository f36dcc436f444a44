#pragma once

// The settings that `set` changes.

#include <string>
#include <vector>

#include "SdkDebugDialog/Engine.h"

namespace qvtcfg {

// One KEY=VALUE of the command line.
struct Change {
  std::string argument;  // as given
  std::size_t key = 0;   // index of the key's description
  std::string value;
};

// Splits the arguments and puts them in the order in which they are applied: what resets other settings comes before
// these. Throws Failure for a key that is unknown or given twice.
std::vector<Change> parse_changes(const std::vector<std::string>& arguments);

// Applies changes through the engine's setters. Throws Failure, with the engine's text where it has one, for a value
// that is wrong or refused, for a setting that the selected connection does not have, and for a cable without the
// module that it needs.
void apply_changes(SdkDebugDialog::Engine& engine, const std::vector<Change>& changes);

// A line for each key: what it takes and what it is.
std::string keys_help();

}  // namespace qvtcfg
