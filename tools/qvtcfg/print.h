#pragma once

// Settings and their values, as text and as JSON.

#include <SdkDebugDialog/Configuration.h>

#include <optional>
#include <string>
#include <vector>

#include "output.h"

namespace qvtcfg {

// Which settings to show.
struct Choice {
  bool changed_only = false;     // only what differs from its default; the identity is always shown
  bool all = false;              // also what does not apply
  bool cable_text_only = false;  // only settings of cable and chain
};

// A value for the terminal. What is not set is a dash or "not set".
std::string shown_value(const SdkDebugDialog::Setting& setting, const SdkDebugDialog::SettingValue& value);

// Numbers are numbers, and what is not set is null.
Json json_value(const SdkDebugDialog::Setting& setting, const SdkDebugDialog::SettingValue& value);

// Lines under group headings; a star marks what differs from its default. Without choice.all, a setting that does not
// apply is shown only if it differs.
void print_settings(const SdkDebugDialog::Configuration& configuration, const Choice& choice, Output& out);

// A setting, the members that every answer has.
Json setting_json(const SdkDebugDialog::Setting& setting, const SdkDebugDialog::SettingState& state);

// {group: {setting: ...}}; complete unless choice.changed_only is set.
Json settings_json(const SdkDebugDialog::Configuration& configuration, const Choice& choice);

// Such as "frequency  6 MHz -> 12 MHz".
std::string difference_line(const SdkDebugDialog::Difference& difference);
Json difference_json(const SdkDebugDialog::Difference& difference);

Json losses_json(const std::vector<SdkDebugDialog::Loss>& losses);

}  // namespace qvtcfg
