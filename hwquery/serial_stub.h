#pragma once

#include <string>

class HHSMHwManager;

namespace SdkDebugDialog {

// EngineImp::IsStubSerialConnect for a processor of this design. There is no counterpart for JTAG: no stub over JTAG is
// ever reported.
unsigned int serial_stub(HHSMHwManager& hw, const std::string& processor);

}  // namespace SdkDebugDialog
