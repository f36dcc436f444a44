#pragma once

// A hand-written reader and writer of the connect command, as the baseline.

#include <string>
#include <string_view>

#include "bench/Settings.h"

namespace bench {

// False on an error; the settings before the error are then stored.
bool read_by_hand(std::string_view text, Settings& settings);

std::string write_by_hand(const Settings& settings);

// Parts of the reader, for the other readers; they differ in how they find words and options.
bool same(std::string_view text, std::string_view lowerCaseWord);
bool take_target(std::string_view target, Settings& settings);
bool take_connection(std::string_view connection, Settings& settings);

using TakePair = bool (*)(std::string_view key, std::string_view value, Settings& settings);
bool take_cable(std::string_view key, std::string_view value, Settings& settings);
bool take_debug_device(std::string_view key, std::string_view value, Settings& settings);
// A key and value of the last device in the chain.
bool take_device(std::string_view key, std::string_view value, Settings& settings);

}  // namespace bench
