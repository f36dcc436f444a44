#include "keys.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <limits>

#include "SdkDebugDialog/EngineImp.h"
#include "SdkDebugDialog/Result.h"
#include "catalogue.h"
#include "failure.h"
#include "output.h"
#include "text.h"
#include "values.h"
#include "words.h"

namespace qvtcfg {
namespace {

using SdkDebugDialog::Engine;
using SdkDebugDialog::JtagOption;

struct Key {
  const char* name;
  const char* takes;
  const char* meaning;
  void (*apply)(Engine&, const Change&);
};

// Calls a setter; if it fails, throws Failure with the engine's error text.
template <auto Set, typename... Values>
void set(Engine& engine, const Change& change, Values... values) {
  engine.SetErrorStr("");
  if ((engine.*Set)(values...) == SdkDebugDialog::kOk) return;
  std::string text;
  engine.GetErrorStr(text);
  throw refused(change.argument, text.empty() ? "refused" : one_line(text));
}

// Result codes of the engine's getters.
enum Answer { kNotSet = 1, kNotApplicable = 2 };

void require_applicable(int answer, const Change& change) {
  if (answer != kNotApplicable) return;
  throw refused(change.argument,
                "the setting does not apply to this processor and connection; 'qvtcfg show' prints the connection");
}

void require_cable_in_use(Engine& engine, const Change& change) {
  unsigned int frequency = 0;
  require_applicable(engine.GetCableSpeed(frequency), change);
}

void require_serial_stub(Engine& engine, const Change& change) {
  Engine::StubType stub = Engine::STUB_OVER_JTAG;
  if (engine.GetStubType(stub) == SdkDebugDialog::kOk && stub == Engine::STUB_OVER_SERIAL) return;
  throw refused(change.argument, "the processor is not reached through a serial stub; add connection=stub stub=serial");
}

// --- Keys ---

void apply_connection(Engine& engine, const Change& change) {
  const auto type = static_cast<Engine::ConnectionType>(word(change.argument, change.value, kSelectable));
  if (engine.SetConnectionType(type) == SdkDebugDialog::kOk) return;
  const auto admitted = names_in_set(kSelectable, engine.imp->currentProcessor->allowedConnections);
  throw refused(change.argument, "the processor does not admit this connection; it admits " + join(admitted));
}

// The engine checks the flags STUB_JTAG_PRESENT and STUB_UART_PRESENT in the selected connection, but the writer
// accepts only STUB. So the flags are selected only while the stub type is set.
void apply_stub(Engine& engine, const Change& change) {
  const auto stub = static_cast<Engine::StubType>(word(change.argument, change.value, kStubs));
  Engine::ConnectionType selected = Engine::HARDWARE;
  if (engine.GetConnectionType(selected) != SdkDebugDialog::kOk || selected != Engine::STUB) {
    throw refused(change.argument, "the connection is not stub; add connection=stub");
  }
  constexpr unsigned int kMarks = Engine::STUB_JTAG_PRESENT | Engine::STUB_UART_PRESENT;
  const unsigned int present = engine.imp->currentProcessor->allowedConnections & kMarks;
  set<&Engine::SetConnectionType>(engine, change, static_cast<Engine::ConnectionType>(Engine::STUB | present));
  set<&Engine::SetStubType>(engine, change, stub);
  set<&Engine::SetConnectionType>(engine, change, Engine::STUB);
}

void apply_stub_port(Engine& engine, const Change& change) {
  require_serial_stub(engine, change);
  set<&Engine::SetStubSerialPort>(engine, change, one_word(change.argument, change.value));
}

void apply_stub_baud(Engine& engine, const Change& change) {
  require_serial_stub(engine, change);
  set<&Engine::SetStubBaudrate>(
      engine, change,
      static_cast<int>(number(change.argument, change.value, std::numeric_limits<std::int32_t>::max())));
}

void apply_debug_device(Engine& engine, const Change& change) {
  int device = 0;
  require_applicable(engine.GetDebugDevice(device), change);
  set<&Engine::SetDebugDevice>(engine, change, static_cast<int>(number(change.argument, change.value, kMaxByte)));
}

// The caller that replaces the chain deletes the old devices.
void apply_devices(Engine& engine, const Change& change) {
  std::vector<JtagOption*> before;
  require_applicable(engine.GetJtagChainOptions(before), change);
  std::vector<JtagOption> devices;
  if (change.value != "none") {
    for (const std::string& text : split_at(change.value, ':')) devices.push_back(chain_device(change.argument, text));
  }
  std::vector<JtagOption*> after;
  after.reserve(devices.size());
  for (const JtagOption& device : devices) after.push_back(new JtagOption(device));
  set<&Engine::SetJtagChainOptions, std::vector<JtagOption*>&>(engine, change, after);
  for (const JtagOption* const device : before) delete device;
}

void apply_cpu_jtag(Engine& engine, const Change& change) {
  if (change.value != "on") throw wrong_value(change.argument, "on; a command read with 'qvtcfg read' resets it");
  require_cable_in_use(engine, change);
  set<&Engine::SetCpuJtag>(engine, change);
}

void apply_address_map(Engine& engine, const Change& change) {
  if (change.value != "unset") throw wrong_value(change.argument, "unset");
  unsigned int base = 0;
  require_applicable(engine.GetDebugAddressMap(base), change);
  set<&Engine::UnSetDebugAddressMap>(engine, change);
}

template <auto Set, auto Get>
void apply_address(Engine& engine, const Change& change) {
  unsigned int base = 0;
  require_applicable((engine.*Get)(base), change);
  set<Set>(engine, change, number(change.argument, change.value));
}

void apply_rom(Engine& engine, const Change& change) {
  unsigned int start = SdkDebugDialog::kAddressNotSet;
  unsigned int size = 0;
  require_applicable(engine.GetROMem(start, size), change);
  const std::size_t comma = change.value.find(',');
  if (change.value == "unset") {
    start = SdkDebugDialog::kAddressNotSet;
    size = 0;
  } else if (comma == std::string::npos) {
    throw wrong_value(change.argument, "START,SIZE or unset");
  } else {
    start = number(change.argument, std::string_view(change.value).substr(0, comma));
    size = number(change.argument, std::string_view(change.value).substr(comma + 1));
  }
  set<&Engine::SetROMem>(engine, change, start, size);
}

void apply_cable(Engine& engine, const Change& change) {
  const unsigned int type = word(change.argument, change.value, kCables);
  require_cable_in_use(engine, change);
  set<&Engine::SetCableType>(engine, change, static_cast<Engine::CableType>(type));
}

void apply_frequency(Engine& engine, const Change& change) {
  const std::uint32_t frequency = number(change.argument, change.value);
  Engine::CableType type = Engine::CABLE_NONE;
  require_applicable(engine.GetCableType(type), change);
  require_offered(change.argument, type, frequency);
  set<&Engine::SetCableSpeed>(engine, change, frequency);
}

void apply_port(Engine& engine, const Change& change) {
  require_cable_in_use(engine, change);
  set<&Engine::SetCablePort>(engine, change, one_word(change.argument, change.value));
}

void apply_esn(Engine& engine, const Change& change) {
  require_cable_in_use(engine, change);
  set<&Engine::SetCableESN>(engine, change, change.value.empty() ? "" : one_word(change.argument, change.value));
}

// The engine accepts a module only as option text, and appends the arguments to the existing ones. So the cable is
// reset first.
void apply_module(Engine& engine, const Change& change) {
  Engine::CableType type = Engine::CABLE_NONE;
  require_applicable(engine.GetCableType(type), change);
  if (type != Engine::ZARVEK_PLUGIN) {
    throw refused(change.argument, "cable " + name_of(kCables, type) + " has no module; add cable=zarvek_plugin");
  }
  std::string text = "-cable";
  for (const std::string& item : split_at(change.value, ',')) {
    text += (text == "-cable" ? " modulename " : " modulearg ") + one_word(change.argument, item);
  }
  set<&Engine::SetCableType>(engine, change, Engine::ZARVEK_PLUGIN);
  set<&Engine::SetPluginCableOptions>(engine, change, text);
}

// In the order in which the changes are applied.
constexpr Key kKeys[] = {
    {"connection", "WORD", "simulator, hardware, stub or virtual-platform", apply_connection},
    {"stub", "WORD", "how the stub is reached: jtag or serial", apply_stub},
    {"stub-port", "TEXT", "serial device of the stub, such as /dev/ttyS0", apply_stub_port},
    {"stub-baud", "NUMBER", "baud rate of the stub", apply_stub_baud},
    {"debug-device", "NUMBER", "number of the debug device in the JTAG chain, 0 for none", apply_debug_device},
    {"devices", "LIST", "devices of the JTAG chain, NR,PART,IRLENGTH,IDCODE each and a colon between; or none",
     apply_devices},
    {"cpu-jtag", "on", "reach the processor through its own JTAG pins", apply_cpu_jtag},
    {"address-map", "unset", "unset the bases of the debug address map", apply_address_map},
    {"icache", "ADDRESS", "base of the instruction cache and of the debug address map",
     apply_address<&Engine::SetIcacheBaseAddr, &Engine::GetIcacheBaseAddr>},
    {"itag", "ADDRESS", "base of the instruction tags",
     apply_address<&Engine::SetITagBaseAddr, &Engine::GetITagBaseAddr>},
    {"dcache", "ADDRESS", "base of the data cache",
     apply_address<&Engine::SetDcacheBaseAddr, &Engine::GetDcacheBaseAddr>},
    {"dtag", "ADDRESS", "base of the data tags", apply_address<&Engine::SetDTagBaseAddr, &Engine::GetDTagBaseAddr>},
    {"tlb", "ADDRESS", "base of the TLB", apply_address<&Engine::SetTlbBaseAddr, &Engine::GetTlbBaseAddr>},
    {"dcr", "ADDRESS", "base of the device control registers",
     apply_address<&Engine::SetDcrBaseAddr, &Engine::GetDcrBaseAddr>},
    {"rom", "START,SIZE", "read-only memory in bytes, or unset", apply_rom},
    {"cable", "WORD", "cable type, see 'qvtcfg cables'; its other settings become its defaults", apply_cable},
    {"module", "NAME[,ARG...]", "module of a zarvek_plugin cable, and its arguments", apply_module},
    {"frequency", "NUMBER", "clock of the cable in Hz, one that the cable supports", apply_frequency},
    {"port", "TEXT", "port of the cable, such as USB21", apply_port},
    {"esn", "TEXT", "serial number of the cable; empty for none", apply_esn},
};

std::vector<std::string> key_names() {
  std::vector<std::string> names;
  for (const Key& key : kKeys) names.emplace_back(key.name);
  return names;
}

Change parse_change(const std::string& argument) {
  const std::size_t equals = argument.find('=');
  if (equals == std::string::npos) {
    throw Failure(kUsage, one_line(argument) + ": expected KEY=VALUE, such as cable=zarvek_platformusb");
  }
  const std::string name = argument.substr(0, equals);
  const auto* const key = std::ranges::find_if(kKeys, [&](const Key& k) { return name == k.name; });
  if (key == std::end(kKeys)) {
    throw Failure(kUsage, one_line(argument) + ": no such key" + suggestion(name, key_names()) + "; the keys are " +
                              join(key_names()));
  }
  return {argument, static_cast<std::size_t>(key - kKeys), argument.substr(equals + 1)};
}

}  // namespace

std::vector<Change> parse_changes(const std::vector<std::string>& arguments) {
  std::vector<Change> changes;
  std::ranges::transform(arguments, std::back_inserter(changes), parse_change);
  std::ranges::stable_sort(changes, {}, &Change::key);
  const auto twice = std::ranges::adjacent_find(changes, {}, &Change::key);
  if (twice != changes.end()) {
    throw Failure(kUsage, one_line(std::next(twice)->argument) + ": the key is given twice");
  }
  return changes;
}

void apply_changes(Engine& engine, const std::vector<Change>& changes) {
  for (const Change& change : changes) kKeys[change.key].apply(engine, change);
  std::string module;
  if (engine.GetPluginCableOptions(module) == kNotSet) {
    throw Failure(kRefused, "cable zarvek_plugin needs a module; add module=NAME");
  }
}

std::string keys_help() {
  std::string text = "Keys:\n";
  for (const Key& key : kKeys) {
    text += "  " + padded(std::string(key.name) + "=" + key.takes, 28) + key.meaning + "\n";
  }
  return text;
}

}  // namespace qvtcfg
