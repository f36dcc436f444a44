#include "SdkDebugDialog/ProcessorInfo.h"

#include <utility>

namespace SdkDebugDialog {

void ProcessorInfoImp::ProcessorInfoImpInit() {
  ProcessorInfoImp fresh;
  fresh.name.swap(name);
  fresh.procFamily = procFamily;
  fresh.procVariant = procVariant;
  fresh.allowedConnections = allowedConnections;
  fresh.cpuNr = cpuNr;
  *this = std::move(fresh);
}

}  // namespace SdkDebugDialog
