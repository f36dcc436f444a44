#include "SdkDebugDialog/CableOption.h"

#include "model/cable_kind.h"

namespace SdkDebugDialog {

void CableOption::CableOptionInit(Engine::CableType t) {
  const CableKind& kind = cable_kind(t);
  type = t;
  frequency = kind.defaultFrequency;
  port = kind.defaultPort;
  for (std::string* const text : {&esn, &fname, &modulename, &modulearg, &url}) text->clear();
}

}  // namespace SdkDebugDialog
