// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Defaults and supported frequencies of each cable type. Values outside Engine::CableType are treated as
/// Engine::CABLE_NONE.

#include <string>

#include "SdkDebugDialog/Engine.h"
#include "SdkDebugDialog/Export.h"

namespace SdkDebugDialog {

/// The default clock frequency in Hz; 0 if the type has none.
SDKDEBUGDIALOG_API unsigned int setcable_default_frequency(Engine::CableType type);

/// The default port; empty if the type has none.
SDKDEBUGDIALOG_API std::string setcable_default_port(Engine::CableType type);

/// The frequencies in Hz to offer for this type, in ascending order, separated by one blank; "0" if there are none. For
/// the TCF cable it is "0", although the option reader accepts seventeen frequencies for it.
SDKDEBUGDIALOG_API std::string getcable_supported_frequency(Engine::CableType type);

}  // namespace SdkDebugDialog
