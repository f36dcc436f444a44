// The connect command of the selected processor.

#include "SdkDebugDialog/Engine.h"
#include "SdkDebugDialog/EngineImp.h"
#include "SdkDebugDialog/Result.h"
#include "options/QvtOption_Parser.h"

namespace SdkDebugDialog {

int Engine::Generate() { return imp->currentProcessor != nullptr ? QvtOption_Parser::WriteQvtOptFile(*imp) : kRefused; }

int Engine::GenerateCmdString(std::string& command) {
  return imp->currentProcessor != nullptr ? QvtOption_Parser::WriteQvtCmdString(*imp, command) : kRefused;
}

}  // namespace SdkDebugDialog
