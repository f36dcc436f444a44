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
  bool offered = true;  // where a value is asked for
};

struct SettingRow;

// When a setting applies, and the reason why it does not otherwise.
struct Applies {
  bool (*holds)(const State& state);
  const char* otherwise;
  const Applies* first = nullptr;  // must hold as well, and is told first
};

// What only some settings have.
struct SettingTraits {
  std::vector<SettingWord> words = {};  // that the value can be, of a kind that is made of words
  std::int64_t max = 0;                 // the largest number

  // Only where a value is not simply kept in the field. set changes the state and returns an empty text, or changes
  // nothing and returns why.
  SettingValue (*get)(const SettingRow& row, const State& state) = nullptr;
  std::string (*set)(const SettingRow& row, State& state, const SettingValue& value) = nullptr;
  bool resetPlainly = false;  // a reset stores the default in the field, without set
  bool alsoWhenSame = false;  // setting the value that it already has has an effect
  bool manyWords = false;     // a text that may be several words; set checks it
  // The default, where it depends on other settings or on the design.
  SettingValue (*initial)(const State& state, const State& defaults) = nullptr;
  // The values accepted now, as text.
  std::vector<std::string> (*choices)(const SettingRow& row, const State& state) = nullptr;
  // Why the setting may not be changed here; null if it may.
  const char* (*fixed)(const State& state) = nullptr;
  // What looks wrong about the setting, alone or together with others, although it is accepted.
  void (*warn)(const State& state, std::vector<std::string>& warnings) = nullptr;
};

struct SettingRow {
  const Setting* setting = nullptr;
  Field field = {};  // where a plain value is kept
  Applies applies = {};
  SettingTraits traits = {};
};

std::span<const SettingRow> setting_rows();
const SettingRow& row_of(const Setting& setting);
const SettingRow& row_named(std::string_view name);  // a setting of this name must exist

// The setting that a row of the syntax sets; null if it sets none.
const Setting* setting_of(const Keyword& keyword);

// The setting whose words tell this one: itself, or another one of which it is a part.
const Setting& told_by(const Setting& setting);

// Why the setting does not apply; empty if it does.
std::string why_not(const SettingRow& row, const State& state);

std::size_t place_of(const SettingRow& row);  // in the catalogue

SettingValue value_of(const SettingRow& row, const State& state);
SettingValue initial_of(const SettingRow& row, const State& state, const State& defaults);

// Why the setting cannot have the value; empty if it can.
std::string why_invalid(const SettingRow& row, const State& state, const SettingValue& value);
// Sets a valid value. Returns an empty text, or why it was refused; then nothing has changed.
std::string set_value(const SettingRow& row, State& state, const SettingValue& value);
// Sets the default. The settings that follow this one get their defaults as well.
void reset_value(const SettingRow& row, State& state, const State& defaults);

// What looks wrong about the setting, alone or together with others, although it is accepted.
std::vector<std::string> warnings_of(const SettingRow& row, const State& state);

// The rows whose values differ, in the order of the catalogue.
std::vector<const SettingRow*> differing(const State& a, const State& b);

// Whether the text can be one word of a connect command that is no option; there is no quoting.
bool is_plain_word(std::string_view text);

}  // namespace SdkDebugDialog
