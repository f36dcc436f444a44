// The hardware-description-language simulator: what follows "-sim". It is read and never written.

#include "SdkDebugDialog/EngineImp.h"
#include "SdkDebugDialog/ProcessorInfo.h"
#include "options/QvtOption_Parser.h"
#include "options/groups.h"
#include "options/ipcport.h"
#include "options/option_loop.h"
#include "options/status.h"

namespace SdkDebugDialog {
namespace {

// The argument is the next token of whatever kind; without a colon it changes nothing.
int read_ipcport(TokenCursor& in, std::string_view /*option*/, EngineImp& imp) {
  ProcessorInfoImp& processor = *imp.currentProcessor;
  std::string_view address;
  if (in.next(address) != kEnd) read_host_and_port(address, processor.modelSimHost, processor.modelSimPort);
  return kValue;
}

constexpr Option kOptions[] = {
    {.name = "-ipcport", .argument = read_ipcport},
    {.name = "-configdevice", .group = read_configdevice},
};

}  // namespace

// The group takes all options that follow, so that the run around it ends with it.
int read_modelsim(TokenCursor& in, EngineImp& imp) {
  imp.currentProcessor->modelSimEnabled = 1;
  return read_options<kOptions>(in, imp, "UNKNOWN  ModelSim Option '%s'", UnknownName::option);
}

int QvtOption_Parser::parse_modelsim_options(std::string& text, EngineImp& imp) {
  return on_text<read_modelsim>(text, imp);
}

}  // namespace SdkDebugDialog
