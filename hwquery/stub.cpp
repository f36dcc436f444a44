// How a processor can reach a software stub.

#include <algorithm>
#include <string>
#include <vector>

#include "SdkDebugDialog/Engine.h"
#include "SdkDebugDialog/EngineImp.h"
#include "platform/HHSMHwManager.h"

namespace SdkDebugDialog {

unsigned int EngineImp::IsStubSerialConnect(std::string processor) {
  if (hwManager == nullptr) return 0;
  std::vector<std::string> peripherals;
  hwManager->getPeripherals(processor, peripherals);
  const bool hasUart = std::ranges::any_of(peripherals, [&](const std::string& instance) {
    const std::string type = hwManager->getIpName(instance);
    return type == "opb_serial_lite" || type == "tfb_serial_lite";
  });
  return hasUart ? Engine::STUB | Engine::STUB_UART_PRESENT : 0;
}

unsigned int EngineImp::IsStubJtagConnect(std::string /*processor*/) { return 0; }

}  // namespace SdkDebugDialog
