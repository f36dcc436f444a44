// What is wrong with the JTAG chain.

#include "findings/checks.h"

namespace SdkDebugDialog {

void check_chain(std::span<const JtagOption> /*chain*/, std::span<const DeviceWords> /*words*/, int /*debugDevice*/,
                 const std::optional<Place>& /*debugDeviceWord*/, Report& /*report*/) {}

}  // namespace SdkDebugDialog
