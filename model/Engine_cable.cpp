// The cable and the JTAG chain.

#include <utility>

#include "SdkDebugDialog/CableCatalogue.h"
#include "SdkDebugDialog/CableOption.h"
#include "SdkDebugDialog/Engine.h"
#include "SdkDebugDialog/EngineImp.h"
#include "SdkDebugDialog/Result.h"

namespace SdkDebugDialog {
namespace {

// kOk when the selected connection uses a cable.
int check_cable_in_use(const EngineImp& imp) {
  const ProcessorInfoImp* const p = imp.currentProcessor;
  if (p == nullptr) return kNotSet;
  const bool inUse = p->connectionType != Engine::SIMULATOR && p->stubType != Engine::STUB_OVER_SERIAL &&
                     p->connectionType != Engine::VIRTUAL_PLATFORM;
  return inUse ? kOk : kNotApplicable;
}

int get_text(const EngineImp& imp, const std::string& field, std::string& text) {
  if (const int refused = check_cable_in_use(imp); refused != kOk) return refused;
  text = field;
  return text.empty() ? kNotSet : kOk;
}

}  // namespace

int Engine::SetCableType(CableType t) {
  imp->cable->CableOptionInit(t);
  return kOk;
}

int Engine::GetCableType(CableType& t) {
  const int refused = check_cable_in_use(*imp);
  if (refused == kOk) t = imp->cable->type;
  return refused;
}

Engine::CableType Engine::GetCableType(std::string /*name*/) { return ZARVEK_SVFFILE; }

std::string Engine::GetCableName(CableType /*t*/) { return {}; }

int Engine::SetCableSpeed(unsigned int f) {
  imp->cable->frequency = f;
  return kOk;
}

int Engine::GetCableSpeed(unsigned int& f) {
  if (const int refused = check_cable_in_use(*imp); refused != kOk) return refused;
  f = imp->cable->frequency;
  return f == 0 ? kNotSet : kOk;
}

std::string Engine::GetSupportedCableSpeed(CableType t) { return getcable_supported_frequency(t); }

unsigned int Engine::GetDefaultCableSpeed(CableType t) { return setcable_default_frequency(t); }

std::string Engine::GetDefaultCablePort(CableType t) { return setcable_default_port(t); }

int Engine::SetCablePort(std::string p) {
  imp->cable->port = std::move(p);
  return kOk;
}

int Engine::GetCablePort(std::string& p) { return get_text(*imp, imp->cable->port, p); }

int Engine::SetCableESN(std::string e) {
  imp->cable->esn = std::move(e);
  return kOk;
}

int Engine::GetCableESN(std::string& e) { return get_text(*imp, imp->cable->esn, e); }

int Engine::SetZarvekCableOptions(CableOption& c, CableType t, unsigned int frequency, std::string port) {
  if (t == ZARVEK_PLUGIN) return kRefused;
  c.type = t;
  c.frequency = frequency;
  c.port = std::move(port);
  return kOk;
}

int Engine::SetDigilentCableOptions(CableOption& c, CableType t, unsigned int /*frequency*/, std::string /*port*/) {
  if (t != DIGILENT_PLUGIN) return kRefused;
  c.type = t;
  return kOk;
}

int Engine::SetJtagChainOptions(std::vector<JtagOption*>& v) {
  // With the engine's own chain as the argument, the result is an empty chain (see Engine.h).
  if (&v == &imp->jtagChain) {
    v.clear();
  } else {
    imp->jtagChain = v;
  }
  return kOk;
}

int Engine::GetJtagChainOptions(std::vector<JtagOption*>& v) {
  const ProcessorInfoImp* const p = imp->currentProcessor;
  if (p == nullptr) return kNotSet;
  if (p->connectionType == SIMULATOR || p->stubType == STUB_OVER_SERIAL) return kNotApplicable;
  if (imp->jtagChain.empty()) return kNotSet;
  v = imp->jtagChain;
  return kOk;
}

}  // namespace SdkDebugDialog
