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
  bool hasDesign = false;  // a design tells what the processor is and which connections it admits
};

}  // namespace SdkDebugDialog
