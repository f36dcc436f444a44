// Cable and chain settings as text. What does not say otherwise works on a state of its own, so that neither the live
// configuration nor its error text is touched.

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "SdkDebugDialog/CableOption.h"
#include "SdkDebugDialog/Engine.h"
#include "SdkDebugDialog/EngineImp.h"
#include "SdkDebugDialog/JtagOption.h"
#include "SdkDebugDialog/ProcessorInfo.h"
#include "SdkDebugDialog/Result.h"
#include "options/QvtOption_Parser.h"

namespace SdkDebugDialog {
namespace {

// A configuration for one call.
struct Scratch {
  Engine engine;
  ProcessorInfoImp processor;
  EngineImp& imp = *engine.imp;

  Scratch() { imp.currentProcessor = &processor; }
};

// A scratch configuration for reading. It owns the devices that the reader creates, until a caller takes the chain.
struct ReadScratch : Scratch {
  ReadScratch() = default;
  ~ReadScratch() {
    for (const JtagOption* const device : imp.jtagChain) delete device;
  }
  ReadScratch(const ReadScratch&) = delete;
  ReadScratch& operator=(const ReadScratch&) = delete;
};

void write_plugin_cable(std::string& out, const CableOption& cable) {
  out = "-cable type zarvek_plugin";
  QvtOption_Parser::write_plugin_cableoptions(out, cable);
}

}  // namespace

int Engine::SetPluginCableOptions(std::string text) {
  if (imp->cable->type != ZARVEK_PLUGIN) {
    SetErrorStr("Internal Error: Other Cable Options applies only for ZARVEK_PLUGIN cable type");
    return kRefused;
  }
  if (imp->currentProcessor == nullptr) return kRefused;
  return was_read(QvtOption_Parser::ReadJtagCableOptions(text, *imp)) ? kOk : kRefused;
}

int Engine::GetPluginCableOptions(std::string& out) {
  if (imp->cable->type != ZARVEK_PLUGIN) return kNotApplicable;
  out.clear();
  if (imp->cable->modulename.empty()) return kNotSet;
  write_plugin_cable(out, *imp->cable);
  return kOk;
}

int Engine::Get3rdPartyCableOptions(std::string& out, CableOption c) {
  if (c.type != ZARVEK_PLUGIN) return kRefused;
  write_plugin_cable(out, c);
  return kOk;
}

int Engine::Set3rdPartyCableOptions(CableOption& c, std::string text) {
  ReadScratch scratch;
  if (!was_read(QvtOption_Parser::ReadJtagCableOptions(text, scratch.imp))) return kRefused;
  c = std::move(*scratch.imp.cable);
  return kOk;
}

int Engine::ParseJtagCableInfo(std::string text, CableOption& c, std::vector<JtagOption*>& chain, int& cpuJtag,
                               char& debugDevice) {
  ReadScratch scratch;
  const int status = QvtOption_Parser::ReadJtagCableOptions(text, scratch.imp);
  if (!was_read(status)) return status;
  std::int8_t device = scratch.processor.debugDevice;
  if (device == 0) {
    // Without a number in the text the first FPGA of the chain is meant.
    const auto& devices = scratch.imp.jtagChain;
    const auto fpga = std::ranges::find_if(devices, [](const JtagOption* d) { return d->isfpga != 0; });
    if (fpga != devices.end()) device = (*fpga)->devicenr;
  }
  c = std::move(*scratch.imp.cable);
  chain = std::move(scratch.imp.jtagChain);
  scratch.imp.jtagChain.clear();
  cpuJtag = scratch.imp.cpuJtag;
  debugDevice = static_cast<char>(device);
  return status;
}

int Engine::GenerateJtagCableCmdString(std::string& out, CableType type, unsigned int frequency, std::string port,
                                       std::vector<JtagOption*>& chain, char debugDevice) {
  CableOption cable;
  cable.type = type;
  cable.frequency = frequency;
  cable.port = std::move(port);
  return GenerateJtagCableCmdString(out, std::move(cable), chain, debugDevice);
}

int Engine::GenerateJtagCableCmdString(std::string& out, CableOption c, std::vector<JtagOption*>& chain,
                                       char debugDevice) {
  Scratch scratch;
  *scratch.imp.cable = std::move(c);
  scratch.imp.jtagChain = chain;
  scratch.processor.debugDevice = static_cast<std::int8_t>(debugDevice);
  return QvtOption_Parser::WriteJtagCableOptionsString(scratch.imp, out);
}

}  // namespace SdkDebugDialog
