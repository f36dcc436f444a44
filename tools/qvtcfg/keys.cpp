#include "keys.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <limits>

#include "SdkDebugDialog/EngineImp.h"
#include "catalogue.h"
#include "failure.h"
#include "output.h"
#include "text.h"
#include "words.h"

namespace qvtcfg {
namespace {

using SdkDebugDialog::Engine;

struct Key {
  const char* name;
  const char* takes;
  const char* meaning;
  void (*apply)(Engine&, const Change&);
};

Failure refused(const Change& change, const std::string& why) {
  return {kRefused, one_line(change.argument) + ": " + why};
}

Failure wrong_value(const Change& change, const std::string& expected) {
  return {kUsage, one_line(change.argument) + ": expected " + expected};
}

// Calls a setter; a refusal is explained by the engine's text.
template <auto Set, typename... Values>
void set(Engine& engine, const Change& change, Values... values) {
  engine.SetErrorStr("");
  if ((engine.*Set)(values...) == 0) return;
  std::string text;
  engine.GetErrorStr(text);
  throw refused(change, text.empty() ? "refused" : one_line(text));
}

// What a getter answers for a setting that the processor or its connection does not have.
constexpr int kNotApplicable = 2;

void require_applicable(int answer, const Change& change) {
  if (answer != kNotApplicable) return;
  throw refused(change, "the processor has no such setting with its connection; 'qvtcfg show' tells the connection");
}

void require_cable_in_use(Engine& engine, const Change& change) {
  unsigned int frequency = 0;
  require_applicable(engine.GetCableSpeed(frequency), change);
}

void require_serial_stub(Engine& engine, const Change& change) {
  Engine::StubType stub = Engine::STUB_OVER_JTAG;
  if (engine.GetStubType(stub) == 0 && stub == Engine::STUB_OVER_SERIAL) return;
  throw refused(change, "the processor is not reached through a serial stub; add connection=stub stub=serial");
}

// --- Values ---

std::uint32_t number(const Change& change, std::string_view text, std::uint32_t max) {
  const bool hex = text.starts_with("0x") || text.starts_with("0X");
  const std::string_view digits = hex ? text.substr(2) : text;
  std::uint32_t value = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value, hex ? 16 : 10);
  // The command's syntax takes a leading 0 for octal, people rarely do.
  const bool ambiguous = !hex && digits.size() > 1 && digits.front() == '0';
  if (error == std::errc() && end == digits.data() + digits.size() && !ambiguous && value <= max) return value;
  throw wrong_value(change, "a number from 0 to " + std::to_string(max) + ", decimal or with 0x");
}

std::uint32_t number(const Change& change, std::uint32_t max = std::numeric_limits<std::uint32_t>::max()) {
  return number(change, change.value, max);
}

unsigned int word(const Change& change, std::span<const Word> words) {
  const Word* const found = find_word(words, change.value);
  if (found == nullptr) throw wrong_value(change, join(names_of(words)) + suggestion(change.value, names_of(words)));
  return found->value;
}

// The command's syntax has no quoting: a value is one word, and a dash begins an option unless a digit follows.
std::string one_word(const Change& change) {
  const std::string& text = change.value;
  const bool option = text.starts_with('-') && (text.size() == 1 || text[1] < '0' || text[1] > '9');
  const bool plain = text.find_first_of(" \t\n\v\f\r") == std::string::npos && !first_non_text(text);
  if (plain && !option && !text.empty()) return text;
  throw wrong_value(change, "one word of text, without blanks and without a dash in front");
}

// --- Keys ---

void apply_connection(Engine& engine, const Change& change) {
  const auto type = static_cast<Engine::ConnectionType>(word(change, kSelectable));
  if (engine.SetConnectionType(type) == 0) return;
  const auto admitted = names_in_set(kSelectable, engine.imp->currentProcessor->allowedConnections);
  throw refused(change, "the processor does not admit this connection; it admits " + join(admitted));
}

// The engine looks for the marks of a stub's devices in the selected connection, where the writer wants the stub
// alone: they are there for the moment.
void apply_stub(Engine& engine, const Change& change) {
  const auto stub = static_cast<Engine::StubType>(word(change, kStubs));
  Engine::ConnectionType selected = Engine::HARDWARE;
  if (engine.GetConnectionType(selected) != 0 || selected != Engine::STUB) {
    throw refused(change, "the connection is no stub; add connection=stub");
  }
  constexpr unsigned int kMarks = Engine::STUB_JTAG_PRESENT | Engine::STUB_UART_PRESENT;
  const unsigned int present = engine.imp->currentProcessor->allowedConnections & kMarks;
  set<&Engine::SetConnectionType>(engine, change, static_cast<Engine::ConnectionType>(Engine::STUB | present));
  set<&Engine::SetStubType>(engine, change, stub);
  set<&Engine::SetConnectionType>(engine, change, Engine::STUB);
}

void apply_stub_port(Engine& engine, const Change& change) {
  require_serial_stub(engine, change);
  set<&Engine::SetStubSerialPort>(engine, change, one_word(change));
}

void apply_stub_baud(Engine& engine, const Change& change) {
  require_serial_stub(engine, change);
  set<&Engine::SetStubBaudrate>(engine, change,
                                static_cast<int>(number(change, std::numeric_limits<std::int32_t>::max())));
}

void apply_debug_device(Engine& engine, const Change& change) {
  int device = 0;
  require_applicable(engine.GetDebugDevice(device), change);
  set<&Engine::SetDebugDevice>(engine, change, static_cast<int>(number(change, 127)));
}

void apply_cpu_jtag(Engine& engine, const Change& change) {
  if (change.value != "on") throw wrong_value(change, "on; a command read with 'qvtcfg read' takes it back");
  require_cable_in_use(engine, change);
  set<&Engine::SetCpuJtag>(engine, change);
}

void apply_address_map(Engine& engine, const Change& change) {
  if (change.value != "unset") throw wrong_value(change, "unset");
  unsigned int base = 0;
  require_applicable(engine.GetDebugAddressMap(base), change);
  set<&Engine::UnSetDebugAddressMap>(engine, change);
}

template <auto Set, auto Get>
void apply_address(Engine& engine, const Change& change) {
  unsigned int base = 0;
  require_applicable((engine.*Get)(base), change);
  set<Set>(engine, change, number(change));
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
    throw wrong_value(change, "START,SIZE or unset");
  } else {
    constexpr auto kMax = std::numeric_limits<std::uint32_t>::max();
    start = number(change, std::string_view(change.value).substr(0, comma), kMax);
    size = number(change, std::string_view(change.value).substr(comma + 1), kMax);
  }
  set<&Engine::SetROMem>(engine, change, start, size);
}

void apply_cable(Engine& engine, const Change& change) {
  const unsigned int type = word(change, kCables);
  require_cable_in_use(engine, change);
  set<&Engine::SetCableType>(engine, change, static_cast<Engine::CableType>(type));
}

void apply_frequency(Engine& engine, const Change& change) {
  const std::uint32_t frequency = number(change);
  Engine::CableType type = Engine::CABLE_NONE;
  require_applicable(engine.GetCableType(type), change);
  const std::vector<unsigned int> offered = offered_frequencies(type);
  if (std::ranges::find(offered, frequency) == offered.end()) {
    std::vector<std::string> names;
    for (const unsigned int f : offered) names.push_back(std::to_string(f));
    throw refused(change, "cable " + name_of(kCables, type) +
                              (names.empty() ? " has no frequency to choose" : " supports " + join(names)));
  }
  set<&Engine::SetCableSpeed>(engine, change, frequency);
}

void apply_port(Engine& engine, const Change& change) {
  require_cable_in_use(engine, change);
  set<&Engine::SetCablePort>(engine, change, one_word(change));
}

void apply_esn(Engine& engine, const Change& change) {
  require_cable_in_use(engine, change);
  set<&Engine::SetCableESN>(engine, change, change.value.empty() ? "" : one_word(change));
}

// In the order in which they are applied.
constexpr Key kKeys[] = {
    {"connection", "WORD", "simulator, hardware, stub or virtual-platform", apply_connection},
    {"stub", "WORD", "how the stub is reached: jtag or serial", apply_stub},
    {"stub-port", "TEXT", "serial device of the stub, such as /dev/ttyS0", apply_stub_port},
    {"stub-baud", "NUMBER", "baud rate of the stub", apply_stub_baud},
    {"debug-device", "NUMBER", "number of the debug device in the JTAG chain, 0 for none", apply_debug_device},
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
  for (const std::string& argument : arguments) changes.push_back(parse_change(argument));
  std::ranges::stable_sort(changes, {}, &Change::key);
  const auto twice = std::ranges::adjacent_find(changes, {}, &Change::key);
  if (twice != changes.end()) {
    throw Failure(kUsage, one_line(std::next(twice)->argument) + ": the key is given twice");
  }
  return changes;
}

void apply_change(Engine& engine, const Change& change) { kKeys[change.key].apply(engine, change); }

std::string keys_help() {
  std::string text = "Keys:\n";
  for (const Key& key : kKeys) {
    text += "  " + padded(std::string(key.name) + "=" + key.takes, 28) + key.meaning + "\n";
  }
  return text;
}

}  // namespace qvtcfg
