#pragma once

// Values as words of a connect command.

#include <string>

#include "options/syntax.h"
#include "settings/State.h"
#include "settings/catalogue.h"

namespace SdkDebugDialog {

// The value of a row as a text has it, such as "12000000". A keyword that is repeated for each of several values stands
// between them: "a=1 modulearg b".
std::string value_words(const Keyword& row, const State& state);
// The row's name and its value, with a blank before each; for an option without a value the name alone.
std::string pair_text(const Keyword& row, const State& state);

// The same for a device of the chain; empty if a text does not need it.
std::string device_value(const Keyword& row, const JtagOption& device);
std::string device_pair_text(const Keyword& row, const JtagOption& device);
// The option of a device with all its keywords, with a blank in front.
std::string device_text_of_command(const JtagOption& device);

// Whether a text has this value when it has no word of the setting, as "off" of a flag.
bool is_unsaid(const SettingRow& row, const State& state);

}  // namespace SdkDebugDialog
