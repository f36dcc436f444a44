// The PowerPC instruction-set simulator: what follows "ppc sim".

#include "SdkDebugDialog/EngineImp.h"
#include "SdkDebugDialog/ProcessorInfo.h"
#include "options/QvtOption_Parser.h"
#include "options/groups.h"
#include "options/ipcport.h"
#include "options/option_loop.h"
#include "options/status.h"
#include "options/text_out.h"

namespace SdkDebugDialog {
namespace {

constexpr std::string_view kIcf = "-icf";
constexpr std::string_view kIpcport = "-ipcport";
constexpr std::uint32_t kDefaultPort = 6470;

// Both arguments are the next token of whatever kind; at the end of the text nothing is stored.
int read_icf(TokenCursor& in, std::string_view /*option*/, EngineImp& imp) {
  std::string_view file;
  if (in.next(file) != kEnd) imp.currentProcessor->simConfigFile = file;
  return kValue;
}

int read_ipcport(TokenCursor& in, std::string_view /*option*/, EngineImp& imp) {
  ProcessorInfoImp& processor = *imp.currentProcessor;
  std::string_view address;
  if (in.next(address) != kEnd && !read_host_and_port(address, processor.simHost, processor.simPort)) {
    processor.simPort = kDefaultPort;
  }
  return kValue;
}

constexpr Option kOptions[] = {
    {.name = kIcf, .argument = read_icf},
    {.name = kIpcport, .argument = read_ipcport},
    {.name = "-debugdevice", .group = read_debugdevice},  // never written here
};

}  // namespace

int read_ppcsim(TokenCursor& in, EngineImp& imp) {
  const int end = read_options<kOptions>(in, imp, "UNKNOWN  PowerPC Sim Option '%s'", UnknownName::option);
  return end == kEnd ? kValue : kError;
}

int QvtOption_Parser::parse_ppcsim_options(std::string& text, EngineImp& imp) {
  return on_text<read_ppcsim>(text, imp);
}

// A configuration file has precedence over the port.
int write_ppcsim(TextOut& out, EngineImp& imp) {
  const ProcessorInfoImp& processor = *imp.currentProcessor;
  if (!processor.simConfigFile.empty()) {
    out.put(" ");
    out.put(kIcf);
    out.put(" ");
    out.put(processor.simConfigFile);
  } else if (!processor.simHost.empty()) {
    out.put(" ");
    out.put(kIpcport);
    out.put(" ");
    out.put(processor.simHost);
    out.put(":");
    out.put_decimal(static_cast<std::int32_t>(processor.simPort));
  }
  return kValue;
}

int QvtOption_Parser::write_ppcsim_options(std::string& out, EngineImp& imp) { return on_end<write_ppcsim>(out, imp); }

}  // namespace SdkDebugDialog
