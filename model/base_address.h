#pragma once

#include <cstdint>

#include "SdkDebugDialog/ProcessorInfo.h"

namespace SdkDebugDialog {

class EngineImp;

// Stores a base of the PowerPC debug address map, which is one of its six fields, in the current processor. An address
// that does not lie on a 64 KB boundary is refused with the error text "... Start Address should be aligned at 64k
// boundry", and false.
bool set_map_base(EngineImp& imp, std::uint32_t ProcessorInfoImp::*field, std::uint32_t address);

}  // namespace SdkDebugDialog
