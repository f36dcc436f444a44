// The connections to a software stub.

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "SdkDebugDialog/Engine.h"
#include "SdkDebugDialog/EngineImp.h"
#include "hwquery/serial_stub.h"
#include "platform/HHSMHwManager.h"

namespace SdkDebugDialog {
namespace {

constexpr std::string_view kLightUarts[] = {"opb_serial_lite", "tfb_serial_lite"};

}  // namespace

unsigned int serial_stub(HHSMHwManager& hw, const std::string& processor) {
  std::vector<std::string> peripherals;
  hw.getPeripherals(processor, peripherals);
  const bool hasUart = std::ranges::any_of(peripherals, [&](const std::string& instance) {
    return std::ranges::find(kLightUarts, hw.getIpName(instance)) != std::end(kLightUarts);
  });
  return hasUart ? Engine::STUB | Engine::STUB_UART_PRESENT : 0;
}

unsigned int EngineImp::IsStubSerialConnect(std::string processor) {
  return hwManager != nullptr ? serial_stub(*hwManager, processor) : 0;
}

unsigned int EngineImp::IsStubJtagConnect(std::string /*processor*/) { return 0; }

}  // namespace SdkDebugDialog
