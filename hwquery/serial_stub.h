#pragma once

#include <string>

class HHSMHwManager;

namespace SdkDebugDialog {

// What EngineImp::IsStubSerialConnect answers for a processor of this design. No processor reaches a stub over JTAG, so
// that this is all there is to know of its stub.
unsigned int serial_stub(HHSMHwManager& hw, const std::string& processor);

}  // namespace SdkDebugDialog
