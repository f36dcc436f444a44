// Fuzz target: settings made by setters are written, read and written again.

#include <fuzzer/FuzzedDataProvider.h>

#include <cstdint>
#include <iterator>
#include <string>
#include <vector>

#include "SdkDebugDialog/Engine.h"
#include "SdkDebugDialog/EngineImp.h"
#include "SdkDebugDialog/JtagOption.h"
#include "SdkDebugDialog/ProcessorInfo.h"
#include "fuzz/again.h"
#include "fuzz/check.h"
#include "model/processor_list.h"
#include "tests/support/SelectedEngine.h"

using namespace SdkDebugDialog;

namespace {

constexpr std::uint32_t kNumbers[] = {
    0,    1,    2,      3,      4,       8,       64,      128,        132,        200,        255,        256,
    1023, 9600, 200000, 625000, 5000000, 6000000, 0x10000, 0x70000000, 0x7FFFFFFF, 0x80000000, 0xFFFF0000, 0xFFFFFFFF};
const char* const kTexts[] = {"",       "a",         "-5",        "-x",        "-",    "a b", " a",
                              "a\n",    "a\nb",      "a;b",       ";",         "a;;b", "a;-", "LPT1",
                              "USB21",  "h:1",       "localhost", "type",      "port", "cpu", "prom32",
                              "-cable", "modulearg", "file.icf",  "/dev/ttyS0"};

// The engine to configure, and the input that selects the setters and their values.
struct Maker {
  FuzzedDataProvider& bytes;
  EngineImp& imp;
  bool withDesign;

  Engine& engine() { return *imp.engine; }
  ProcessorInfoImp& processor() { return *imp.currentProcessor; }

  std::uint32_t number() {
    return bytes.ConsumeBool() ? bytes.PickValueInArray(kNumbers) : bytes.ConsumeIntegral<std::uint32_t>();
  }
  std::uint32_t address() { return bytes.ConsumeBool() ? number() : number() & 0xFFFF0000U; }
  std::string text() {
    if (bytes.ConsumeBool()) return bytes.PickValueInArray(kTexts);
    return bytes.ConsumeRandomLengthString(40);
  }
};

// A getter must return the value that was set, unless it fails.
template <class Value, class Get>
void expect_kept(const Value& value, Get get) {
  Value found{};
  if (get(found) != 0) return;
  expect(found == value, "a getter to answer what was set");
}

template <int (Engine::*set)(std::string), int (Engine::*get)(std::string&)>
void set_text(Maker& m) {
  const std::string value = m.text();
  expect((m.engine().*set)(value) == 0, "any text to be taken");
  expect_kept(value, [&](std::string& found) { return (m.engine().*get)(found); });
}

template <int (Engine::*set)(unsigned int), int (Engine::*get)(unsigned int&)>
void set_base(Maker& m) {
  const std::uint32_t value = m.address();
  unsigned int before = 0;
  const int had = (m.engine().*get)(before);
  const bool taken = (m.engine().*set)(value) == 0;
  expect(taken == (value % 0x10000 == 0), "a multiple of 64 KB to be taken, and nothing else");
  if (taken) {
    expect_kept<unsigned int>(value, [&](unsigned int& found) { return (m.engine().*get)(found); });
  } else if (had == 0) {
    expect_kept(before, [&](unsigned int& found) { return (m.engine().*get)(found); });
  }
}

void set_connection(Maker& m) {
  const auto connection = static_cast<Engine::ConnectionType>(m.number());
  const bool admitted = (m.processor().allowedConnections & connection) != 0;
  expect((m.engine().SetConnectionType(connection) == 0) == admitted, "an admitted connection to be taken");
}

// SetStubType needs a bit in the connection that tells how a stub can be reached.
void set_stub(Maker& m) {
  const auto type = static_cast<Engine::StubType>(m.bytes.ConsumeIntegralInRange(0, 2));
  m.processor().connectionType = Engine::STUB | Engine::STUB_UART_PRESENT | Engine::STUB_JTAG_PRESENT;
  expect(m.engine().SetStubType(type) == 0, "any stub to be taken");
  expect_kept(type, [&](Engine::StubType& found) { return m.engine().GetStubType(found); });
  m.processor().connectionType = Engine::STUB;
}

void set_device(Maker& m) {
  const std::uint32_t value = m.number();
  m.engine().SetDebugDevice(static_cast<int>(value));
  expect_kept<int>(static_cast<std::int8_t>(value), [&](int& found) { return m.engine().GetDebugDevice(found); });
}

void set_read_only_memory(Maker& m) {
  const std::uint32_t start = m.address();
  m.engine().SetROMem(start, m.number());
  unsigned int size = 0;
  expect_kept<unsigned int>(start, [&](unsigned int& found) { return m.engine().GetROMem(found, size); });
}

void set_cable_type(Maker& m) {
  m.engine().SetCableType(static_cast<Engine::CableType>(m.bytes.ConsumeIntegralInRange(0, 9)));
}

void set_cable_speed(Maker& m) {
  const unsigned int value = m.number();
  m.engine().SetCableSpeed(value);
  expect_kept(value, [&](unsigned int& found) { return m.engine().GetCableSpeed(found); });
}

// Few devices, so that commands in option files are not cut too often.
void add_device(Maker& m) {
  if (m.imp.jtagChain.size() > 12) return;
  auto* const device = new JtagOption;
  device->partname = m.text();
  device->idcode = m.number();
  device->irlength = m.bytes.ConsumeIntegral<std::int8_t>();
  device->devicenr = m.bytes.ConsumeIntegral<std::int8_t>();
  std::vector<JtagOption*> chain = m.imp.jtagChain;
  chain.push_back(device);
  m.engine().SetJtagChainOptions(chain);
}

void set_own_pins(Maker& m) { m.engine().SetCpuJtag(); }
void set_baud_rate(Maker& m) { m.engine().SetStubBaudrate(static_cast<int>(m.number())); }
void unset_map(Maker& m) { m.engine().UnSetDebugAddressMap(); }
void assign_map(Maker& m) { m.imp.AssignAddressMap(m.address()); }

// Settings without a setter are stored in the record.
void set_simulator(Maker& m) {
  if (m.bytes.ConsumeBool()) m.processor().simConfigFile = m.text();
  m.processor().simHost = m.text();
  m.processor().simPort = m.number();
}
void set_virtual_platform(Maker& m) {
  m.processor().vpConfigured = m.bytes.ConsumeIntegralInRange<std::uint32_t>(0, 1);
  m.processor().vpCycleApproximate = m.bytes.ConsumeIntegralInRange<std::uint32_t>(0, 1);
}
void set_onchip_memory(Maker& m) {
  m.processor().isocmStartAddr = m.number();
  m.processor().isocmSize = m.number();
  m.processor().isocmDcrStartAddr = m.number();
}
void set_timeout(Maker& m) { m.processor().stubTimeout = static_cast<std::int32_t>(m.number()); }
void set_bscan(Maker& m) { m.processor().bscanPort = m.number(); }
void set_module(Maker& m) {
  m.imp.cable->modulename = m.text();
  m.imp.cable->modulearg = m.text();
}

// With a design these come from the design; without one they may have any value.
void set_identity(Maker& m) {
  if (m.withDesign) return;
  m.processor().procFamily = m.bytes.ConsumeIntegralInRange<std::uint32_t>(0, 2);
  m.processor().procVariant = m.bytes.ConsumeIntegralInRange<std::uint32_t>(0, 6);
  m.processor().allowedConnections = m.number();
  m.processor().cpuNr = m.bytes.ConsumeIntegral<std::uint8_t>();
  m.processor().fpuType = m.number();
}

constexpr void (*kSetters[])(Maker&) = {
    set_connection,
    set_connection,
    set_stub,
    set_text<&Engine::SetStubSerialPort, &Engine::GetStubSerialPort>,
    set_baud_rate,
    set_timeout,
    set_device,
    set_own_pins,
    set_base<&Engine::SetIcacheBaseAddr, &Engine::GetIcacheBaseAddr>,
    set_base<&Engine::SetDcacheBaseAddr, &Engine::GetDcacheBaseAddr>,
    set_base<&Engine::SetITagBaseAddr, &Engine::GetITagBaseAddr>,
    set_base<&Engine::SetDTagBaseAddr, &Engine::GetDTagBaseAddr>,
    set_base<&Engine::SetTlbBaseAddr, &Engine::GetTlbBaseAddr>,
    set_base<&Engine::SetDcrBaseAddr, &Engine::GetDcrBaseAddr>,
    unset_map,
    assign_map,
    set_read_only_memory,
    set_onchip_memory,
    set_cable_type,
    set_cable_speed,
    set_text<&Engine::SetCablePort, &Engine::GetCablePort>,
    set_text<&Engine::SetCableESN, &Engine::GetCableESN>,
    set_module,
    add_device,
    set_bscan,
    set_simulator,
    set_virtual_platform,
    set_identity,
};

void set_and_write(Maker m) {
  while (m.bytes.remaining_bytes() > 0) m.bytes.PickValueInArray(kSetters)(m);
  check_writing(m.imp, m.withDesign ? Way::design : Way::command);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr const char* kProcessors[] = {nullptr, "ovrin_0", "ovrin_1", "ppc405_0", "ppc440_0", "a9_0"};
  FuzzedDataProvider bytes(data, size);
  const char* const name = bytes.PickValueInArray(kProcessors);
  if (name == nullptr) {
    SelectedEngine selected;
    set_and_write({bytes, selected.imp, false});
  } else {
    DiscoveredEngine engine(known_design());
    engine.imp.currentProcessor = find_listed(engine.imp, name);
    engine.imp.EngineImpInit();
    set_and_write({bytes, engine.imp, true});
  }
  return 0;
}
