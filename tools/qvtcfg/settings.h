#pragma once

// All settings of a processor, printed as text or as JSON from one table.

#include <vector>

#include "SdkDebugDialog/CableOption.h"
#include "SdkDebugDialog/EngineImp.h"
#include "SdkDebugDialog/JtagOption.h"
#include "SdkDebugDialog/ProcessorInfo.h"
#include "output.h"

namespace qvtcfg {

// The records that hold the settings.
struct Settings {
  const SdkDebugDialog::ProcessorInfoImp& processor;
  const SdkDebugDialog::CableOption& cable;
  int cpuJtag;
  const std::vector<SdkDebugDialog::JtagOption*>& chain;
};

// The settings of the selected processor.
Settings settings_of(const SdkDebugDialog::EngineImp& state);

// Which settings to show.
struct Choice {
  bool changed_only = false;     // only values that differ from the default; the identity is always shown
  bool cable_text_only = false;  // only settings of cable and chain
};

// {group: {setting: {"value": ..., "default": true or false}}}, where "default" tells whether the value is the default.
// Members of the identity are plain values, because they have no default. A value that is not set is null.
Json settings_json(const Settings& settings, const Choice& choice);

// The same as lines under group headings; a star marks what differs from its default.
void print_settings(const Settings& settings, const Choice& choice, Output& out);

}  // namespace qvtcfg
