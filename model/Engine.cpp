#include "SdkDebugDialog/Engine.h"

#include <utility>

#include "SdkDebugDialog/EngineImp.h"
#include "SdkDebugDialog/Result.h"
#include "model/processor_kind.h"

namespace SdkDebugDialog {

Engine::Engine() : imp(new EngineImp), partName("zd4qa25") { imp->engine = this; }

Engine::~Engine() { delete imp; }

void Engine::SetErrorStr(std::string& text) { imp->errorStr = text; }

void Engine::SetErrorStr(const char* text) { imp->errorStr = text != nullptr ? text : ""; }

void Engine::GetErrorStr(std::string& text) { text = imp->errorStr; }

// --- Connection ---

int Engine::SetConnectionType(ConnectionType t) {
  ProcessorInfoImp* const p = imp->currentProcessor;
  if (p == nullptr || (p->allowedConnections & t) == 0) return kRefused;
  p->connectionType = t;
  return kOk;
}

int Engine::GetConnectionType(ConnectionType& t) {
  const ProcessorInfoImp* const p = imp->currentProcessor;
  if (p == nullptr || p->connectionType == 0) return kNotSet;
  t = static_cast<ConnectionType>(p->connectionType);
  return kOk;
}

// --- Software stub ---

int Engine::SetStubType(StubType s) {
  ProcessorInfoImp* const p = imp->currentProcessor;
  if (p == nullptr) return kRefused;
  // The flag must be in the selected connection; allowedConnections does not count.
  if (s == STUB_OVER_SERIAL && (p->connectionType & STUB_UART_PRESENT) == 0) {
    SetErrorStr("UART device not present in system");
    return kRefused;
  }
  if (s == STUB_OVER_JTAG && (p->connectionType & STUB_JTAG_PRESENT) == 0) {
    SetErrorStr("JTAG device not present in system");
    return kRefused;
  }
  p->stubType = s;
  return kOk;
}

int Engine::GetStubType(StubType& s) {
  const ProcessorInfoImp* const p = imp->currentProcessor;
  if (p == nullptr) return kNotSet;
  if ((p->connectionType & STUB) == 0) return kNotApplicable;
  s = static_cast<StubType>(p->stubType);
  return kOk;
}

int Engine::SetStubSerialPort(std::string port) {
  if (imp->currentProcessor == nullptr) return kRefused;
  imp->currentProcessor->stubSerialPort = std::move(port);
  return kOk;
}

int Engine::GetStubSerialPort(std::string& port) {
  if (imp->currentProcessor == nullptr) return kNotSet;
  port = imp->currentProcessor->stubSerialPort;
  return kOk;
}

int Engine::SetStubBaudrate(int baud) {
  if (imp->currentProcessor == nullptr) return kRefused;
  imp->currentProcessor->stubBaudRate = baud;
  return kOk;
}

int Engine::GetStubBaudRate(int& baud) {
  const ProcessorInfoImp* const p = imp->currentProcessor;
  if (p == nullptr || p->stubBaudRate == 0) return kNotSet;
  baud = p->stubBaudRate;
  return kOk;
}

// --- Debug device ---

int Engine::SetDebugDevice(int device) {
  if (imp->currentProcessor == nullptr) return kRefused;
  imp->currentProcessor->debugDevice = static_cast<std::int8_t>(device);
  return kOk;
}

int Engine::GetDebugDevice(int& device) {
  const ProcessorInfoImp* const p = imp->currentProcessor;
  if (p == nullptr) return kNotSet;
  if (p->connectionType == SIMULATOR || p->stubType == STUB_OVER_SERIAL) return kNotApplicable;
  if (p->debugDevice == 0) return kNotSet;
  device = p->debugDevice;
  return kOk;
}

int Engine::SetCpuJtag() {
  imp->cpuJtag = 1;
  return kOk;
}

// --- PowerPC simulator ---

int Engine::SetPPCSimConfigFile(std::string /*file*/) { return kOk; }

int Engine::GetPPCSimConfigFile(std::string& file) {
  const ProcessorInfoImp* const p = imp->currentProcessor;
  if (p == nullptr) return kNotSet;
  if (p->procFamily != kFamilyPowerPC || p->connectionType != SIMULATOR) return kNotApplicable;
  if (p->simConfigFile.empty()) return kNotSet;
  file = p->simConfigFile;
  return kOk;
}

}  // namespace SdkDebugDialog
