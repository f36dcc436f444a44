#pragma once

// Every setting of a processor, described once and shown as text or as JSON.

#include <vector>

#include "SdkDebugDialog/CableOption.h"
#include "SdkDebugDialog/EngineImp.h"
#include "SdkDebugDialog/JtagOption.h"
#include "SdkDebugDialog/ProcessorInfo.h"
#include "output.h"

namespace qvtcfg {

// What the settings are taken from.
struct Settings {
  const SdkDebugDialog::ProcessorInfoImp& processor;
  const SdkDebugDialog::CableOption& cable;
  int cpuJtag;
  const std::vector<SdkDebugDialog::JtagOption*>& chain;
};

// Those of the processor that is selected.
Settings settings_of(const SdkDebugDialog::EngineImp& state);

// Which of them to show.
struct Choice {
  bool changed_only = false;     // what differs from its default; the identity, which has none, stays
  bool cable_text_only = false;  // what a text of cable and chain alone can say
};

// Groups of settings: {group: {setting: {"value": ..., "default": true or false}}}. Members of the identity are plain
// values, as they come from the design and have no default. A value that is not set is null.
Json settings_json(const Settings& settings, const Choice& choice);

// The same as lines under group headings; a star marks what differs from its default.
void print_settings(const Settings& settings, const Choice& choice, Output& out);

}  // namespace qvtcfg
