#pragma once

#include <cstdint>

namespace SdkDebugDialog {

class EngineImp;

// Whether a base of the debug address map lies on a 64 KB boundary; if not, "<what> Start Address should be aligned
// at 64k boundry" becomes the engine's error text.
bool check_base_alignment(EngineImp& imp, const char* what, std::uint32_t address);

}  // namespace SdkDebugDialog
