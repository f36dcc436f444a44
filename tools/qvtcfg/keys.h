#pragma once

// The keys of `qvtcfg set`.

#include <string>
#include <vector>

#include "SdkDebugDialog/Engine.h"

namespace qvtcfg {

// One KEY=VALUE of the command line.
struct Change {
  std::string argument;  // as given
  std::size_t key = 0;   // index in the table of keys
  std::string value;
};

// Splits the arguments and sorts them into the order in which they are applied: a change that resets other settings
// comes before changes of those settings. Throws Failure for a key that is unknown or given twice.
std::vector<Change> parse_changes(const std::vector<std::string>& arguments);

// Applies changes through the engine's setters. Throws Failure, with the engine's error text if there is one, for a
// value that is invalid or refused, for a setting that does not apply to the selected connection, and for a plug-in
// cable without a module.
void apply_changes(SdkDebugDialog::Engine& engine, const std::vector<Change>& changes);

// Help text: one line per key with its values and its meaning.
std::string keys_help();

}  // namespace qvtcfg
