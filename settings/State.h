#pragma once

// The settings of one processor as a value.

#include <cstdint>
#include <vector>

#include "SdkDebugDialog/CableOption.h"
#include "SdkDebugDialog/JtagOption.h"
#include "SdkDebugDialog/ProcessorInfo.h"

namespace SdkDebugDialog {

struct State {
  ProcessorInfoImp processor;  // its command is not used
  CableOption cable;
  std::int32_t cpuJtag = 0;
  std::vector<JtagOption> chain;
};

}  // namespace SdkDebugDialog
