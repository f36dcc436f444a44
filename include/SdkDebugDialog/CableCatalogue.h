#pragma once

// What each cable type defaults to and supports. Values outside Engine::CableType are answered like
// Engine::CABLE_NONE.

#include <string>

#include "SdkDebugDialog/Engine.h"
#include "SdkDebugDialog/Export.h"

namespace SdkDebugDialog {

// The clock frequency in Hz that a cable of this type starts with; 0 where the type has none.
SDKDEBUGDIALOG_API unsigned int setcable_default_frequency(Engine::CableType type);

// The port that a cable of this type starts with; empty where the type has none.
SDKDEBUGDIALOG_API std::string setcable_default_port(Engine::CableType type);

// The frequencies in Hz to offer for this type, ascending, separated by one blank; "0" where there are none. The
// TCF cable answers "0" although the option reader accepts seventeen frequencies for it.
SDKDEBUGDIALOG_API std::string getcable_supported_frequency(Engine::CableType type);

}  // namespace SdkDebugDialog
