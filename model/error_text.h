#pragma once

namespace SdkDebugDialog {

class EngineImp;

// Stores a formatted text as the engine's last error; it is cut after 2,047 characters.
void set_error(EngineImp& imp, const char* format, ...) __attribute__((format(printf, 2, 3)));

}  // namespace SdkDebugDialog
