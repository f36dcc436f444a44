#include "SdkDebugDialog/ProcessorInfo.h"

#include <memory>
#include <new>
#include <string>
#include <utility>

namespace SdkDebugDialog {

void ProcessorInfoImp::ProcessorInfoImpInit() {
  // Made anew in its place, in half the time of an assignment. No default is so long that making it could fail.
  struct {
    std::string name;
    std::uint32_t procFamily, procVariant, allowedConnections;
    std::uint8_t cpuNr;
  } kept = {std::move(name), procFamily, procVariant, allowedConnections, cpuNr};
  std::destroy_at(this);
  ::new (this) ProcessorInfoImp;  // with parentheses it would be cleared before
  name = std::move(kept.name);
  procFamily = kept.procFamily;
  procVariant = kept.procVariant;
  allowedConnections = kept.allowedConnections;
  cpuNr = kept.cpuNr;
}

}  // namespace SdkDebugDialog
