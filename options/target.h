#pragma once

// What the readers of all targets share.

#include <cstdint>

#include "SdkDebugDialog/EngineImp.h"
#include "SdkDebugDialog/ProcessorInfo.h"

namespace SdkDebugDialog {

// Whether the selected processor may be connected this way. Where no hardware is known, the text is believed.
inline bool admits(const EngineImp& imp, std::uint32_t connection) {
  return imp.hwManager == nullptr || (imp.currentProcessor->allowedConnections & connection) != 0;
}

// Where no hardware is known, the text tells what the processor is ...
inline void learn_processor(EngineImp& imp, std::uint32_t family, std::uint32_t variant) {
  if (imp.hwManager != nullptr) return;
  imp.currentProcessor->procFamily = family;
  imp.currentProcessor->procVariant = variant;
}

// ... and what it admits.
inline void learn_connection(EngineImp& imp, std::uint32_t connection) {
  if (imp.hwManager == nullptr) imp.currentProcessor->allowedConnections |= connection;
}

}  // namespace SdkDebugDialog
