#pragma once

// The connect command read and written by plain code made for nothing else: what there is to beat.

#include <string>
#include <string_view>

#include "bench/Settings.h"

namespace bench {

// False when the command is not understood; the settings are then those up to the mistake.
bool read_by_hand(std::string_view text, Settings& settings);

std::string write_by_hand(const Settings& settings);

// Parts of the reader, for readers that find words and options in another way.
bool same(std::string_view text, std::string_view lowerCaseWord);
bool take_target(std::string_view target, Settings& settings);
bool take_connection(std::string_view connection, Settings& settings);

using TakePair = bool (*)(std::string_view key, std::string_view value, Settings& settings);
bool take_cable(std::string_view key, std::string_view value, Settings& settings);
bool take_debug_device(std::string_view key, std::string_view value, Settings& settings);
// A pair of the chain's last device.
bool take_device(std::string_view key, std::string_view value, Settings& settings);

}  // namespace bench
