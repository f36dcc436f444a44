// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The settings of the download cable.

#include <cstdint>
#include <string>

#include "SdkDebugDialog/Engine.h"
#include "SdkDebugDialog/Export.h"

namespace SdkDebugDialog {

/// Plain data; each engine owns one (EngineImp::cable). Copies are independent.
/// Fields are added at its end, in a major version only.
struct SDKDEBUGDIALOG_API CableOption {
  Engine::CableType type = Engine::CABLE_NONE;  ///< CABLE_NONE for no cable
  std::uint32_t frequency = 0;                  ///< Hz; 0 counts as not set
  std::string port;                             ///< such as "LPT1" or "USB21"
  std::string esn;                              ///< electronic serial number that selects one cable
  std::string fname;                            ///< output file of an SVF-file cable; read, never written
  std::string modulename;                       ///< module of a plug-in cable
  std::string modulearg;                        ///< arguments of the module, separated by ";"
  std::string url;                              ///< read, never written

  /// Sets the type, and the frequency and port to the defaults of the type; clears all other fields.
  void CableOptionInit(Engine::CableType t);
};

}  // namespace SdkDebugDialog
