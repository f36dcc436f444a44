#pragma once

namespace SdkDebugDialog {

class EngineImp;

// Stores a formatted text as the engine's last error, truncated to 2,047 bytes.
void set_error(EngineImp& imp, const char* format, ...) __attribute__((format(printf, 2, 3)));

}  // namespace SdkDebugDialog
