#include "model/error_text.h"

#include <cstdarg>
#include <cstdio>

#include "SdkDebugDialog/Engine.h"
#include "SdkDebugDialog/EngineImp.h"

namespace SdkDebugDialog {

void set_error(EngineImp& imp, const char* format, ...) {
  char text[2048] = {};
  std::va_list args;
  va_start(args, format);
  std::vsnprintf(text, sizeof text, format, args);
  va_end(args);
  imp.engine->SetErrorStr(text);
}

}  // namespace SdkDebugDialog
