#pragma once

#include <cstdint>

#include "SdkDebugDialog/ProcessorInfo.h"

namespace SdkDebugDialog {

class EngineImp;

// Each base of the debug address map has a block of its own.
inline constexpr std::uint32_t kMapBlock = 0x10000;  // bytes

// Stores a base of the PowerPC debug address map in the current processor, which must not be null; field is one of the
// six bases. Returns false, with the error text "... Start Address should be aligned at 64k boundry", for an address
// that is not a multiple of 64 KB.
bool set_map_base(EngineImp& imp, std::uint32_t ProcessorInfoImp::*field, std::uint32_t address);

}  // namespace SdkDebugDialog
