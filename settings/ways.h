#pragma once

// The ways to change a setting in a text.

#include <set>
#include <string>
#include <vector>

#include "settings/Draft.h"
#include "settings/State.h"
#include "settings/catalogue.h"

namespace SdkDebugDialog {

// What a text meant before anything was changed in it, what it means now, and what it is to mean.
struct Meanings {
  const State& before;
  const State& now;
  const State& wanted;
};

// Candidates for a new text that has the setting as wanted, the best one first; the caller reads each to find out. With
// toDefault the words of the setting are removed if possible.
std::vector<std::string> ways_of(const Draft& draft, const SettingRow& row, const Meanings& meanings, bool toDefault);

// Candidates for a text without the words of a setting; none if there are no such words.
std::vector<std::string> ways_without(const Draft& draft, const SettingRow& row);

// Whether the keyword sets the setting, alone or together with others.
bool is_about(const Keyword* keyword, const Setting& setting);
// Whether the option, with its value or its pairs, sets nothing.
bool sets_nothing(const Option& option);

// The settings that a text has words for, and whether a setting is one of them or shares the words of one.
std::set<const Setting*> said_by(const Draft& draft);
bool is_said(const Setting& setting, const std::set<const Setting*>& said);

// The form in which the writer writes the processor's own JTAG pins, which no reader accepts: the words of it in a
// text, and a text with it added.
std::vector<std::size_t> own_pins_written(const Draft& draft);
std::string with_own_pins(const Draft& draft, const State& now);

}  // namespace SdkDebugDialog
