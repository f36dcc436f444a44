// The virtual platform, whose command has a head of its own.

#include "SdkDebugDialog/Engine.h"
#include "SdkDebugDialog/EngineImp.h"
#include "SdkDebugDialog/ProcessorInfo.h"
#include "model/processor_kind.h"
#include "options/QvtOption_Parser.h"
#include "options/groups.h"
#include "options/ipcport.h"
#include "options/keyword.h"
#include "options/option_loop.h"
#include "options/target.h"

namespace SdkDebugDialog {
namespace {

constexpr std::string_view kConfig = "-config";
constexpr std::string_view kIpcport = "-ipcport";
constexpr std::uint32_t kDefaultPort = 2340;
constexpr std::string_view kTarget = "ov";  // the only one
constexpr std::string_view kCycleApproximate = "cycle_approximate";

int read_config(TokenCursor& in, std::string_view /*option*/, EngineImp& imp) {
  std::string_view word;
  if (in.next(word) != kValue || !in.letter_case().same(word, kCycleApproximate)) return kError;
  imp.currentProcessor->vpConfigured = 1;
  imp.currentProcessor->vpCycleApproximate = 1;
  return kValue;
}

int read_ipcport(TokenCursor& in, std::string_view /*option*/, EngineImp& imp) {
  ProcessorInfoImp& processor = *imp.currentProcessor;
  std::string_view address;
  if (in.next(address) != kValue) return kError;
  if (!read_host_and_port(address, processor.simHost, processor.simPort)) processor.simPort = kDefaultPort;
  return kValue;
}

constexpr Option kOptions[] = {
    {.name = kConfig, .argument = read_config},
    {.name = kIpcport, .argument = read_ipcport},
};

}  // namespace

int read_virtual_platform(TokenCursor& in, EngineImp& imp) {
  std::string_view target;
  if (in.next(target) == kEnd || !in.letter_case().same(target, kTarget)) return kError;
  if (!admits(imp, Engine::VIRTUAL_PLATFORM)) return kError;
  imp.currentProcessor->connectionType = Engine::VIRTUAL_PLATFORM;
  learn_connection(imp, Engine::VIRTUAL_PLATFORM);
  if (imp.hwManager == nullptr) imp.currentProcessor->procVariant = kVariantSoft;  // the family is left alone
  const int end = read_options<kOptions>(in, imp, "UNKNOWN virtual platform Option '%s'", UnknownName::option);
  return end == kEnd ? kValue : kError;
}

int QvtOption_Parser::parse_vpoptions(std::string& text, EngineImp& imp) {
  return on_text<read_virtual_platform>(text, imp);
}

int write_virtual_platform(TextOut& out, EngineImp& imp) {
  const ProcessorInfoImp& processor = *imp.currentProcessor;
  out.put("vpconnect");
  if (processor.procFamily != kFamilySoft) return kError;
  out.put(" ");
  out.put(kTarget);
  if (processor.vpConfigured != 0) {
    out.put(" ");
    out.put(kConfig);
    if (processor.vpCycleApproximate != 0) {
      out.put(" ");
      out.put(kCycleApproximate);
    }
  } else if (!processor.simHost.empty()) {
    // Option, host and port are written without anything between them; such a text is not read back.
    out.put(" ");
    out.put(kIpcport);
    out.put(processor.simHost);
    out.put_decimal(static_cast<std::int32_t>(processor.simPort));
  }
  return kValue;
}

int QvtOption_Parser::write_vpoptions(std::string& out, EngineImp& imp) {
  out.clear();
  return on_end<write_virtual_platform>(out, imp);
}

}  // namespace SdkDebugDialog
