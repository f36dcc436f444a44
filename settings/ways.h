#pragma once

// The ways to say a setting in a text.

#include <set>
#include <string>
#include <vector>

#include "settings/Draft.h"
#include "settings/State.h"
#include "settings/catalogue.h"

namespace SdkDebugDialog {

// What the text means, and what it is to mean.
struct Meanings {
  const State& now;
  const State& wanted;
};

// New texts, the best one first, that may say the setting as it is wanted: the caller reads each. With toDefault its
// words go if possible.
std::vector<std::string> ways_of(const Draft& draft, const SettingRow& row, const Meanings& meanings, bool toDefault);

// New texts without the words of a setting; none when it has no words.
std::vector<std::string> ways_without(const Draft& draft, const SettingRow& row);

// Whether the word tells the setting, alone or with others.
bool is_about(const Keyword* keyword, const Setting& setting);
// Whether the option, with its value or its pairs, sets nothing.
bool sets_nothing(const Option& option);

// The settings that a text has words for, and whether a setting is told by one of them.
std::set<const Setting*> said_by(const Draft& draft);
bool is_said(const Setting& setting, const std::set<const Setting*>& said);

// The form in which the writer writes the processor's own JTAG pins, which no reader knows: its words, and a text with
// it.
std::vector<std::size_t> own_pins_written(const Draft& draft);
std::string with_own_pins(const Draft& draft, const State& now);

}  // namespace SdkDebugDialog
