#pragma once

// Every setting of a processor, described once and shown as text or as JSON.

#include "SdkDebugDialog/EngineImp.h"
#include "output.h"

namespace qvtcfg {

// Groups of settings: {group: {setting: {"value": ..., "default": true or false}}}. Members of the identity are plain
// values, as they come from the design and have no default. A value that is not set is null.
Json settings_json(const SdkDebugDialog::EngineImp& state);

// The same as lines under group headings; a star marks what differs from its default.
void print_settings(const SdkDebugDialog::EngineImp& state, Output& out);

}  // namespace qvtcfg
