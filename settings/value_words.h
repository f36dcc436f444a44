#pragma once

// Values as words of a connect command.

#include <string>

#include "options/syntax.h"
#include "settings/State.h"
#include "settings/catalogue.h"

namespace SdkDebugDialog {

// The value of a row as it is read, such as "12000000". A keyword that stands several times, once for each value,
// stands between the values.
std::string value_words(const Keyword& row, const State& state);
// The row's name and its value, with a blank before each; of an option without a value the name.
std::string pair_text(const Keyword& row, const State& state);

// The same for a device of the chain; empty where there is nothing to say.
std::string device_value(const Keyword& row, const JtagOption& device);
std::string device_pair_text(const Keyword& row, const JtagOption& device);
// The option of a device with all its keywords, with a blank in front.
std::string device_text_of_command(const JtagOption& device);

// Whether a text says the value of the setting by not having its words.
bool is_unsaid(const SettingRow& row, const State& state);

}  // namespace SdkDebugDialog
