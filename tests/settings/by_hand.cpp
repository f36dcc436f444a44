#include "by_hand.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <span>
#include <stdexcept>
#include <type_traits>
#include <variant>

#include "SdkDebugDialog/Result.h"
#include "fuzz/input.h"
#include "model/processor_list.h"
#include "options/QvtOption_Parser.h"
#include "options/TokenCursor.h"
#include "options/framing.h"

using SdkDebugDialog::Engine;
using SdkDebugDialog::EngineImp;
using SdkDebugDialog::JtagOption;
using SdkDebugDialog::ProcessorInfo;
using SdkDebugDialog::QvtOption_Parser;
using SdkDebugDialog::SettingValue;
using SdkDebugDialog::TextKind;
using C = SdkDebugDialog::CableOption;
using P = SdkDebugDialog::ProcessorInfoImp;

namespace {

// --- Words ---

struct Word {
  std::uint32_t value;
  const char* name;
};
constexpr Word kFamilies[] = {{0, "ovrin"}, {1, "ppc"}, {2, "arm"}};
constexpr Word kVariants[] = {{0, "soft"}, {1, "ppc405"}, {2, "ppc440"}, {4, "cortex-a9"}, {5, "r5"}, {6, "other"}};
constexpr Word kConnections[] = {{1, "simulator"},   {2, "hardware"},     {4, "stub"},         {8, "virtual-platform"},
                                 {16, "odm-target"}, {32, "qmtc-target"}, {256, "dcc-target"}, {512, "dap-target"},
                                 {64, "stub-jtag"},  {128, "stub-uart"}};
constexpr Word kStubs[] = {{0, "jtag"}, {1, "serial"}};
constexpr Word kCables[] = {{0, "none"},
                            {1, "zarvek_svffile"},
                            {2, "zarvek_parallel4"},
                            {3, "zarvek_platformusb"},
                            {4, "zarvek_parallel3"},
                            {5, "zarvek_plugin"},
                            {6, "digilent_plugin"},
                            {7, "zarvek_tcf"}};
constexpr Word kFpus[] = {{0, "none"}, {1, "sp"}, {2, "dp"}};
constexpr Word kBscans[] = {{2, "USER1"}, {3, "USER2"}, {34, "USER3"}, {35, "USER4"}};

std::string name_of(std::span<const Word> words, std::uint32_t value) {
  const auto* const found =
      std::find_if(words.data(), words.data() + words.size(), [&](const Word& word) { return word.value == value; });
  return found != words.data() + words.size() ? found->name : std::to_string(value);
}

std::uint32_t value_of(std::span<const Word> words, const SettingValue& value) {
  const auto& name = std::get<std::string>(value);
  for (const Word& word : words) {
    if (name == word.name) return word.value;
  }
  throw std::logic_error("no word " + name);
}

// --- Getting ---

std::int64_t number_of(const SettingValue& value) {
  const auto* const number = std::get_if<std::int64_t>(&value);
  return number != nullptr ? *number : static_cast<std::int64_t>(SdkDebugDialog::kAddressNotSet);
}

template <auto Member>
auto& field(EngineImp& imp) {
  if constexpr (requires { imp.currentProcessor->*Member; }) {
    return imp.currentProcessor->*Member;
  } else {
    return imp.cable->*Member;
  }
}

template <auto Member>
SettingValue number(EngineImp& imp) {
  return static_cast<std::int64_t>(field<Member>(imp));
}
template <auto Member>
SettingValue text(EngineImp& imp) {
  return field<Member>(imp);
}
template <auto Member>
SettingValue flag(EngineImp& imp) {
  return field<Member>(imp) != 0;
}
template <auto Member>
SettingValue address(EngineImp& imp) {
  if (field<Member>(imp) == SdkDebugDialog::kAddressNotSet) return {};
  return number<Member>(imp);
}
template <auto Member, const auto& Words>
SettingValue word(EngineImp& imp) {
  return name_of(Words, field<Member>(imp));
}
// Written, and so shown, as a signed number.
template <auto Member>
SettingValue port(EngineImp& imp) {
  return static_cast<std::int64_t>(static_cast<std::int32_t>(field<Member>(imp)));
}

// Without a design every connection of the processor's family is admitted, whatever the texts told.
constexpr unsigned int kSelectable = Engine::SIMULATOR | Engine::HARDWARE | Engine::STUB | Engine::VIRTUAL_PLATFORM;

SettingValue connections(EngineImp& imp) {
  std::vector<std::string> names;
  for (const Word& word : kConnections) {
    if (imp.hwManager == nullptr && (word.value & kSelectable) != 0) continue;
    if ((imp.currentProcessor->allowedConnections & word.value) != 0) names.emplace_back(word.name);
  }
  return names;
}

SettingValue devices(EngineImp& imp) {
  std::vector<JtagOption> chain;
  for (const JtagOption* const device : imp.jtagChain) chain.push_back(*device);
  return chain;
}

// --- Setting ---

using Set = void (*)(Engine&, const SettingValue&);

template <auto Member>
void set_number(Engine& engine, const SettingValue& value) {
  auto& to = field<Member>(*engine.imp);
  to = static_cast<std::remove_reference_t<decltype(to)>>(number_of(value));
}
template <auto Member>
void set_text(Engine& engine, const SettingValue& value) {
  field<Member>(*engine.imp) = std::get<std::string>(value);
}
template <auto Member>
void set_flag(Engine& engine, const SettingValue& value) {
  field<Member>(*engine.imp) = std::get<bool>(value) ? 1 : 0;
}
template <auto Member, const auto& Words>
void set_word(Engine& engine, const SettingValue& value) {
  field<Member>(*engine.imp) = value_of(Words, value);
}
template <class Value>
void call_with(Engine& engine, int (Engine::*setter)(Value), const SettingValue& value) {
  if constexpr (std::is_same_v<Value, std::string>) {
    (engine.*setter)(std::get<std::string>(value));
  } else {
    (engine.*setter)(static_cast<Value>(number_of(value)));
  }
}
template <auto Setter>
void call(Engine& engine, const SettingValue& value) {
  call_with(engine, Setter, value);
}
// A setter refuses the value that stands for "not set".
template <auto Setter, auto Member>
void set_base(Engine& engine, const SettingValue& value) {
  if (std::holds_alternative<std::monostate>(value)) {
    set_number<Member>(engine, value);
  } else {
    call<Setter>(engine, value);
  }
}

void admit(Engine& engine, unsigned int connection) {
  if (engine.imp->hwManager == nullptr) engine.imp->currentProcessor->allowedConnections |= connection;
}

void set_connection(Engine& engine, const SettingValue& value) {
  admit(engine, value_of(kConnections, value));
  engine.SetConnectionType(static_cast<Engine::ConnectionType>(value_of(kConnections, value)));
}

// The engine looks for the flag in the selected connection, and the writer wants it gone.
void set_stub(Engine& engine, const SettingValue& value) {
  constexpr unsigned int kFlags = Engine::STUB | Engine::STUB_UART_PRESENT | Engine::STUB_JTAG_PRESENT;
  engine.imp->currentProcessor->connectionType = kFlags;
  engine.SetStubType(static_cast<Engine::StubType>(value_of(kStubs, value)));
  engine.imp->currentProcessor->connectionType = Engine::STUB;
  admit(engine, Engine::STUB);
}

void set_icache(Engine& engine, const SettingValue& value) {
  set_base<&Engine::SetIcacheBaseAddr, &P::icacheStartAddr>(engine, value);
  set_number<&P::debugAddressMap>(engine, value);
}

void set_svf_file(Engine& engine, const SettingValue& value) {
  set_text<&C::fname>(engine, value);
  engine.imp->currentProcessor->svfFileSet = engine.imp->cable->fname.empty() ? 0 : 1;
}

// "-config" sets both, and has a word for this one only.
void set_accuracy(Engine& engine, const SettingValue& value) {
  set_flag<&P::vpConfigured>(engine, value);
  set_flag<&P::vpCycleApproximate>(engine, value);
}
void set_configured(Engine& engine, const SettingValue& value) {
  set_flag<&P::vpConfigured>(engine, value);
  if (!std::get<bool>(value)) set_flag<&P::vpCycleApproximate>(engine, value);
}

// In a text there is no host without a port, and no port without a host.
void set_sim_host(Engine& engine, const SettingValue& value) {
  P& p = *engine.imp->currentProcessor;
  set_text<&P::simHost>(engine, value);
  if (p.simHost.empty()) p.simPort = 0;
}
void set_sim_port(Engine& engine, const SettingValue& value) {
  P& p = *engine.imp->currentProcessor;
  set_number<&P::simPort>(engine, value);
  if (p.simPort != 0 && p.simHost.empty()) p.simHost = "localhost";
}

void set_hdl_simulator(Engine& engine, const SettingValue& value) {
  set_flag<&P::modelSimEnabled>(engine, value);
  if (std::get<bool>(value)) return;
  engine.imp->currentProcessor->modelSimHost = "localhost";
  engine.imp->currentProcessor->modelSimPort = 9998;
}

// A new type has no file.
void set_cable(Engine& engine, const SettingValue& value) {
  engine.imp->currentProcessor->svfFileSet = 0;
  engine.SetCableType(static_cast<Engine::CableType>(value_of(kCables, value)));
}

// "jtagport cpu" makes a device when it is read, which goes with it.
void set_cpu_jtag(Engine& engine, const SettingValue& value) {
  if (std::get<bool>(value)) {
    engine.SetCpuJtag();
    return;
  }
  engine.imp->cpuJtag = 0;
  std::erase_if(engine.imp->jtagChain, [](const JtagOption* device) {
    if (*device != JtagOption()) return false;
    delete device;
    return true;
  });
}

void set_devices(Engine& engine, const SettingValue& value) {
  std::vector<JtagOption*> chain;
  for (const JtagOption& device : std::get<std::vector<JtagOption>>(value)) chain.push_back(new JtagOption(device));
  for (const JtagOption* const device : engine.imp->jtagChain) delete device;
  engine.SetJtagChainOptions(chain);
}

// --- The table ---

constexpr struct {
  std::string_view name;
  SettingValue (*get)(EngineImp&);
  Set set = nullptr;  // null: what the design tells
} kRows[] = {
    {"name", text<&P::name>},
    {"family", word<&P::procFamily, kFamilies>},
    {"variant", word<&P::procVariant, kVariants>, set_word<&P::procVariant, kVariants>},
    {"cpu",
     [](EngineImp& imp) -> SettingValue { return std::int64_t{static_cast<std::int8_t>(imp.currentProcessor->cpuNr)}; },
     set_number<&P::cpuNr>},
    {"connections", connections},
    {"fpu", word<&P::fpuType, kFpus>, set_word<&P::fpuType, kFpus>},
    {"connection", word<&P::connectionType, kConnections>, set_connection},
    {"stub", word<&P::stubType, kStubs>, set_stub},
    {"stub-port", text<&P::stubSerialPort>, call<&Engine::SetStubSerialPort>},
    {"stub-baud", number<&P::stubBaudRate>, call<&Engine::SetStubBaudrate>},
    {"stub-timeout", number<&P::stubTimeout>, set_number<&P::stubTimeout>},
    {"memory-size", number<&P::memSize>, set_number<&P::memSize>},
    {"config-file", text<&P::simConfigFile>, set_text<&P::simConfigFile>},
    {"sim-host", text<&P::simHost>, set_sim_host},
    {"sim-port", port<&P::simPort>, set_sim_port},
    {"configured", flag<&P::vpConfigured>, set_configured},
    {"cycle-approximate", flag<&P::vpCycleApproximate>, set_accuracy},
    {"enabled", flag<&P::modelSimEnabled>, set_hdl_simulator},
    {"hardware-simulator-host", text<&P::modelSimHost>, set_text<&P::modelSimHost>},
    {"hardware-simulator-port", port<&P::modelSimPort>, set_number<&P::modelSimPort>},
    {"debug-device", number<&P::debugDevice>, call<&Engine::SetDebugDevice>},
    {"bscan", word<&P::bscanPort, kBscans>, set_word<&P::bscanPort, kBscans>},
    {"uart", flag<&P::uartEnabled>, set_flag<&P::uartEnabled>},
    {"cpu-version", text<&P::cpuVersion>, set_text<&P::cpuVersion>},
    {"odm-version", text<&P::odmVersion>, set_text<&P::odmVersion>},
    {"cpu-count", number<&P::nCpu>, set_number<&P::nCpu>},
    {"address-map", address<&P::debugAddressMap>,
     [](Engine& engine, const SettingValue&) { engine.UnSetDebugAddressMap(); }},
    {"icache", address<&P::icacheStartAddr>, set_icache},
    {"itag", address<&P::itagStartAddr>, set_base<&Engine::SetITagBaseAddr, &P::itagStartAddr>},
    {"dcache", address<&P::dcacheStartAddr>, set_base<&Engine::SetDcacheBaseAddr, &P::dcacheStartAddr>},
    {"dtag", address<&P::dtagStartAddr>, set_base<&Engine::SetDTagBaseAddr, &P::dtagStartAddr>},
    {"tlb", address<&P::tlbStartAddr>, set_base<&Engine::SetTlbBaseAddr, &P::tlbStartAddr>},
    {"dcr", address<&P::dcrStartAddr>, set_base<&Engine::SetDcrBaseAddr, &P::dcrStartAddr>},
    {"isocm", address<&P::isocmStartAddr>, set_number<&P::isocmStartAddr>},
    {"isocm-size", number<&P::isocmSize>, set_number<&P::isocmSize>},
    {"isocm-dcr", address<&P::isocmDcrStartAddr>, set_number<&P::isocmDcrStartAddr>},
    {"rom", address<&P::romemStartAddr>, set_number<&P::romemStartAddr>},
    {"rom-size", number<&P::romemSize>, set_number<&P::romemSize>},
    {"cable", word<&C::type, kCables>, set_cable},
    {"frequency", number<&C::frequency>, call<&Engine::SetCableSpeed>},
    {"port", text<&C::port>, call<&Engine::SetCablePort>},
    {"esn", text<&C::esn>, call<&Engine::SetCableESN>},
    {"svf-file", text<&C::fname>, set_svf_file},
    {"svf-file-named", flag<&P::svfFileSet>},
    {"module", text<&C::modulename>, set_text<&C::modulename>},
    {"module-arguments", text<&C::modulearg>, set_text<&C::modulearg>},
    {"url", text<&C::url>, set_text<&C::url>},
    {"cpu-jtag", [](EngineImp& imp) -> SettingValue { return imp.cpuJtag != 0; }, set_cpu_jtag},
    {"devices", devices, set_devices},
};

}  // namespace

const SettingValue& value_in(const State& state, std::string_view name) {
  const auto found = std::ranges::find(state, name, &State::value_type::first);
  if (found == state.end()) throw std::logic_error("no setting " + std::string(name));
  return found->second;
}

std::vector<std::string_view> differing(const State& a, const State& b) {
  std::vector<std::string_view> names;
  for (std::size_t i = 0; i < a.size(); ++i) {
    if (a[i].second != b[i].second) names.push_back(a[i].first);
  }
  return names;
}

ByHand::ByHand(Hardware& hardware, const std::string& processor) : m_name(processor) {
  if (!m_name.empty()) m_engine.engine.GetProcessorList(&hardware);
  imp().currentProcessor = m_name.empty() ? &m_alone : find_listed(imp(), m_name);
  imp().EngineImpInit();
  if (!m_name.empty()) imp().GetFPUType();
}

int ByHand::read_file(const std::string& content) {
  const std::string line = first_line(content);
  if (line.empty()) return SdkDebugDialog::kNoOptionFile;
  imp().EngineImpInit();
  SdkDebugDialog::TokenCursor in(line);
  if (!SdkDebugDialog::read_connect(in, imp(), SdkDebugDialog::Source::file)) return SdkDebugDialog::kNotUnderstood;
  if (!m_name.empty()) imp().GetFPUType();
  return SdkDebugDialog::kOk;
}

bool ByHand::read(const std::string& text, TextKind kind) {
  try {
    switch (kind) {
      case TextKind::optionFile:
        return read_file(text) != SdkDebugDialog::kNotUnderstood;
      case TextKind::cableText: {
        std::string rest = text;
        return QvtOption_Parser::ReadJtagCableOptions(rest, imp()) == SdkDebugDialog::kOk;
      }
      default:
        break;
    }
    ProcessorInfo info;
    return (m_name.empty() ? QvtOption_Parser::ReadQvtCommand(text, imp())
                           : engine().ParseProcessorInfo(m_name, info, text)) == SdkDebugDialog::kOk;
  } catch (const std::out_of_range&) {
    return false;
  }
}

void ByHand::set(std::string_view name, const SettingValue& value) {
  const auto* const row = std::ranges::find(kRows, name, [](const auto& r) { return r.name; });
  if (row == std::end(kRows) || row->set == nullptr) throw std::logic_error("cannot be set: " + std::string(name));
  row->set(engine(), value);
}

State ByHand::state() const {
  State state;
  state.reserve(std::size(kRows));
  for (const auto& row : kRows) state.emplace_back(row.name, row.get(m_engine.imp));
  return state;
}

std::string ByHand::command() {
  std::string command;
  engine().GenerateCmdString(command);
  return command;
}
