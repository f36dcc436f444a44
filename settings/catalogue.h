#pragma once

// What the library knows about each setting beyond its public description.

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "SdkDebugDialog/Configuration.h"
#include "SdkDebugDialog/Settings.h"
#include "options/syntax.h"
#include "settings/State.h"

namespace SdkDebugDialog {

struct SettingWord {
  std::string_view name;
  std::uint32_t value = 0;
};

struct SettingRow;

// When a setting applies, and the reason why it otherwise does not.
struct Applies {
  bool (*holds)(const State& state);
  const char* otherwise;
};

struct SettingRow {
  const Setting* setting = nullptr;
  Field field;                     // where a plain value is kept
  std::vector<SettingWord> words;  // of a word or of a set of words
  Applies applies;
  std::int64_t max = 0;  // the largest number

  // Only where a value is not simply kept in the field. set changes the state and answers an empty text, or changes
  // nothing and answers why.
  SettingValue (*get)(const SettingRow& row, const State& state) = nullptr;
  std::string (*set)(const SettingRow& row, State& state, const SettingValue& value, bool hasDesign) = nullptr;
  bool resetPlainly = false;  // the default is kept in the field, without set
  bool alsoWhenSame = false;  // setting the value that there is has an effect
  bool manyWords = false;     // a text that set checks, not one word
  // The default, where it depends on other settings or on the design.
  SettingValue (*initial)(const State& state, const State& defaults) = nullptr;
  // The values accepted now as text, and whether others are accepted too.
  std::vector<std::string> (*choices)(const SettingRow& row, const State& state) = nullptr;
  // Why the setting may not be changed here; null: it may.
  const char* (*fixed)(const State& state, bool hasDesign) = nullptr;
};

std::span<const SettingRow> setting_rows();
const SettingRow& row_of(const Setting& setting);
const SettingRow& row_named(std::string_view name);  // there must be one

// The setting that the row of the syntax sets; null when it sets none.
const Setting* setting_of(const Keyword& keyword);

SettingValue value_of(const SettingRow& row, const State& state);
SettingValue initial_of(const SettingRow& row, const State& state, const State& defaults);

// Why the value is none that the setting can have; empty if it can.
std::string why_invalid(const SettingRow& row, const State& state, const SettingValue& value);
// Sets a valid value. Empty, or why it was refused: nothing is changed then.
std::string set_value(const SettingRow& row, State& state, const SettingValue& value, bool hasDesign);
// Puts the default in. For a setting that other settings follow these get their defaults as well.
void reset_value(const SettingRow& row, State& state, const State& defaults);

// What is accepted and yet looks wrong, of the settings that this one has to do with.
std::vector<std::string> warnings_of(const SettingRow& row, const State& state);

// The rows whose values differ, in the order of the catalogue.
std::vector<const SettingRow*> differing(const State& a, const State& b);

// Whether the text can be one word of a connect command that is no option; there is no quoting.
bool is_plain_word(std::string_view text);

}  // namespace SdkDebugDialog
