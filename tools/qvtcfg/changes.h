#pragma once

// The changes that `qvtcfg set` and `qvtcfg unset` make.

#include <SdkDebugDialog/Configuration.h>

#include <string>
#include <vector>

namespace qvtcfg {

struct GivenChange : SdkDebugDialog::Change {
  std::string argument;  // as given
  const SdkDebugDialog::Setting* meant = nullptr;
  bool append = false;  // to the list that the setting has
};

// KEY=VALUE, KEY= for the default, or LIST+=VALUE each; sorted into the order in which they are applied: a setting
// comes before those that depend on it. Throws Failure for a key that is unknown or given twice.
std::vector<GivenChange> parse_changes(const std::vector<std::string>& arguments);

// The names of settings to be put back to their defaults, in the same way.
std::vector<GivenChange> parse_defaults(const std::vector<std::string>& names);

// Makes the changes; returns warnings about what they result in. Throws Failure. Texts begin with the subject.
std::vector<std::string> apply_changes(const std::vector<GivenChange>& changes,
                                       SdkDebugDialog::Configuration& configuration, const std::string& subject);

// What `qvtcfg set` can set.
struct Key {
  const SdkDebugDialog::Setting* setting;
  std::string takes;  // such as "ADDRESS"
  std::string about;  // its meaning, and the words that it takes
};
std::vector<Key> keys();

// Help text: one line per key.
std::string keys_help();

}  // namespace qvtcfg
