#include "SdkDebugDialog/CableOption.h"

#include "SdkDebugDialog/CableCatalogue.h"

namespace SdkDebugDialog {

void CableOption::CableOptionInit(Engine::CableType t) {
  *this = CableOption();
  type = t;
  frequency = setcable_default_frequency(t);
  port = setcable_default_port(t);
}

}  // namespace SdkDebugDialog
