// The settings: their table, and what is special about some of them.

#include "settings/catalogue.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <unordered_map>
#include <utility>

#include "SdkDebugDialog/Engine.h"
#include "SdkDebugDialog/EngineImp.h"
#include "model/base_address.h"
#include "model/processor_kind.h"
#include "options/field.h"
#include "options/groups.h"
#include "settings/number_text.h"
#include "settings/words.h"

namespace SdkDebugDialog {
namespace {

using P = ProcessorInfoImp;
using C = CableOption;

constexpr std::int64_t kMaxSignedByte = std::numeric_limits<std::int8_t>::max();
constexpr std::int64_t kMaxSigned = std::numeric_limits<std::int32_t>::max();
constexpr std::int64_t kMaxUnsigned = std::numeric_limits<std::uint32_t>::max();
constexpr std::int64_t kMaxAddress = kMaxUnsigned - 1;  // the largest number stands for "not set"
constexpr std::int64_t kMaxPort = 65535;

std::string text_of(const SettingValue& value) { return std::get<std::string>(value); }

// --- When settings apply ---

constexpr unsigned kStubFlags = Engine::STUB_JTAG_PRESENT | Engine::STUB_UART_PRESENT;
constexpr unsigned kSelectable = Engine::SIMULATOR | Engine::HARDWARE | Engine::STUB | Engine::VIRTUAL_PLATFORM;

// The connections that the processor admits. Without a design these are all that targets of its family have.
unsigned admitted(const State& s) {
  const unsigned told = s.processor.allowedConnections;
  if (s.hasDesign || is_bare_target(told)) return told;
  unsigned all = 0;
  for (const Target& target : targets()) {
    if (target.family != s.processor.procFamily || target.admits != 0) continue;
    if (target.virtualPlatform) all |= Engine::VIRTUAL_PLATFORM;
    for (const Connection& connection : target.connections) all |= connection.type;
  }
  return all;
}

bool has(const State& s, std::uint32_t connection) { return (s.processor.connectionType & connection) != 0; }
bool is_hardware(const State& s) { return s.processor.connectionType == Engine::HARDWARE; }
bool is_serial(const State& s) { return has(s, Engine::STUB) && s.processor.stubType != Engine::STUB_OVER_JTAG; }
bool is_powerpc(const State& s) { return s.processor.procFamily == kFamilyPowerPC; }
bool uses_cable(const State& s) { return !has(s, Engine::SIMULATOR | Engine::VIRTUAL_PLATFORM) && !is_serial(s); }
bool is_ppc_simulator(const State& s) { return has(s, Engine::SIMULATOR) && s.processor.procFamily != kFamilySoft; }
const CableType& type_of(const State& s) { return cable_type(s.cable.type); }

constexpr Applies kEverywhere = {[](const State&) { return true; }, ""};
constexpr Applies kWithStub = {[](const State& s) { return (admitted(s) & Engine::STUB) != 0; },
                               "the processor has no stub connection"};
constexpr Applies kSerialStub = {is_serial, "it is for the connection 'stub' over a serial line"};
constexpr Applies kSoftSimulator = {
    [](const State& s) { return has(s, Engine::SIMULATOR) && s.processor.procFamily == kFamilySoft; },
    "it is for the simulator of a soft processor"};
constexpr Applies kPpcSimulator = {is_ppc_simulator, "it is for the simulator of a PowerPC"};
constexpr Applies kSimulatorPort = {
    [](const State& s) { return is_ppc_simulator(s) || has(s, Engine::VIRTUAL_PLATFORM); },
    "it is for the simulator of a PowerPC and for the virtual platform"};
constexpr Applies kPlatform = {[](const State& s) { return has(s, Engine::VIRTUAL_PLATFORM); },
                               "it is for the connection 'virtual-platform'"};
constexpr Applies kHdlSimulator = {[](const State& s) { return has(s, Engine::HARDWARE | Engine::STUB); },
                                   "it is for the connections 'hardware' and 'stub'"};
constexpr Applies kWithHdlSimulator = {[](const State& s) { return s.processor.modelSimEnabled != 0; },
                                       "the hardware simulator is not enabled", &kHdlSimulator};
constexpr Applies kOnCable = {uses_cable, "the connection uses no cable"};
constexpr Applies kPpcHardware = {[](const State& s) { return is_powerpc(s) && is_hardware(s); },
                                  "it is for a PowerPC with the connection 'hardware'"};
constexpr Applies kPpc405Hardware = {
    [](const State& s) { return s.processor.procVariant == kVariantPpc405 && is_hardware(s); },
    "it is for a ppc405 with the connection 'hardware'"};
constexpr Applies kHardware = {is_hardware, "it is for the connection 'hardware'"};
constexpr Applies kPowerPC = {is_powerpc, "only a PowerPC has one"};
constexpr Applies kClocked = {[](const State& s) { return !type_of(s).accepted.empty(); },
                              "the cable has no such setting", &kOnCable};
constexpr Applies kPlugin = {[](const State& s) { return s.cable.type == Engine::ZARVEK_PLUGIN; },
                             "it is for a cable of the type 'zarvek_plugin'", &kOnCable};

// The options that a command for the state can have; null if the processor cannot be connected like this.
const Run* run_of(const State& s) {
  const ProcessorInfoImp& p = s.processor;
  const bool isPlatform = p.connectionType == Engine::VIRTUAL_PLATFORM;
  const bool isBare = is_bare_target(p.allowedConnections);
  for (const Target& target : targets()) {
    if (isBare ? target.admits != p.allowedConnections
               : target.admits != 0 || target.virtualPlatform != isPlatform || target.family != p.procFamily) {
      continue;
    }
    if (target.options != nullptr) return target.options;
    const auto found = std::ranges::find(target.connections, p.connectionType,
                                         [](const Connection& c) -> std::uint32_t { return c.type; });
    if (found != target.connections.end()) return &found->options;
  }
  // An ARM processor is written like a PowerPC, and so is its simulator.
  return p.connectionType == Engine::SIMULATOR ? &kPpcSimOptions : nullptr;
}

// --- Words ---

std::vector<SettingWord> words_of(const Group& group, std::string_view keyword) {
  const auto row = std::ranges::find(group.keywords, keyword, [](const Keyword& k) { return k.name.text(); });
  std::vector<SettingWord> words;
  for (const Word& word : row->words) words.push_back({word.name.text(), word.value});
  return words;
}

// A type is called by its last name, which is also the longest.
std::vector<SettingWord> cable_words() {
  std::vector<SettingWord> words = {{"none", Engine::CABLE_NONE}};
  for (const CableType& type : cable_types())
    words.push_back({type.names.back().text(), type.type, type.notRead == nullptr});
  std::ranges::sort(words, {}, &SettingWord::value);
  return words;
}

std::vector<SettingWord> fpu_words() {
  std::vector<SettingWord> words = words_of(kDebugdevice, "fpuType");
  words.insert(words.begin(), SettingWord{"none", kFpuNone});
  return words;
}

constexpr SettingWord kFamilies[] = {{"ovrin", kFamilySoft}, {"ppc", kFamilyPowerPC}, {"arm", kFamilyArm}};
constexpr SettingWord kVariants[] = {{"soft", kVariantSoft},     {"ppc405", kVariantPpc405},
                                     {"ppc440", kVariantPpc440}, {"cortex-a9", kVariantCortexA9},
                                     {"r5", kVariantR5},         {"other", kVariantOtherPowerPC}};

// Bits. The first four are connections that can be selected.
constexpr SettingWord kConnections[] = {
    {"simulator", Engine::SIMULATOR},
    {"hardware", Engine::HARDWARE},
    {"stub", Engine::STUB},
    {"virtual-platform", Engine::VIRTUAL_PLATFORM},
    {"odm-target", Engine::ODM_TARGET, false},
    {"qmtc-target", Engine::QMTC_TARGET, false},
    {"dcc-target", Engine::DCC_TARGET, false},
    {"dap-target", Engine::DAP_TARGET, false},
    {"stub-jtag", Engine::STUB_JTAG_PRESENT, false},
    {"stub-uart", Engine::STUB_UART_PRESENT, false},
};

std::vector<std::string> names_in_set(std::uint32_t set) {
  std::vector<std::string> names;
  for (const SettingWord& word : kConnections) {
    if ((set & word.value) != 0) names.emplace_back(word.name);
  }
  return names;
}

// --- Engines for a call ---

// Runs an operation of an engine on the state. Returns an empty text, or the engine's error text.
template <class Operation>
std::string by_engine(State& state, Operation operation) {
  Engine engine;
  engine.imp->currentProcessor = &state.processor;
  std::swap(*engine.imp->cable, state.cable);
  const int result = operation(engine);
  std::swap(*engine.imp->cable, state.cable);
  std::string text;
  engine.GetErrorStr(text);
  return result == 0 ? "" : text.empty() ? "refused" : text;
}

// --- Identity ---

const char* as_in_design(const State& s) { return s.hasDesign ? "the design tells it" : nullptr; }

std::vector<std::string> choose_variant(const SettingRow& /*row*/, const State& /*s*/) {
  std::vector<std::string> names;
  for (const SettingWord& word : words_of(kDebugdevice, "proctype")) names.emplace_back(word.name);
  return names;
}

SettingValue get_connections(const SettingRow& /*row*/, const State& s) { return names_in_set(admitted(s)); }

// --- Connection and stub ---

// All bits, joined by "+": a stub connection can have several.
SettingValue get_connection(const SettingRow& /*row*/, const State& s) {
  return joined(names_in_set(s.processor.connectionType), "+");
}

std::vector<std::string> choose_connection(const SettingRow& row, const State& s) {
  std::vector<std::string> names;
  for (const SettingWord& word : row.traits.words) {
    if ((admitted(s) & kSelectable & word.value) != 0) names.emplace_back(word.name);
  }
  return names;
}

std::string set_connection(const SettingRow& row, State& s, const SettingValue& value) {
  const auto type = std::ranges::find(row.traits.words, text_of(value), &SettingWord::name)->value;
  const std::vector<std::string> choices = choose_connection(row, s);
  if (choices.empty()) return "a command for this target has no other connection";
  if (std::ranges::find(choices, text_of(value)) == choices.end()) {
    return "the processor does not admit this connection; it admits " + joined(choices, ", ");
  }
  if (!s.hasDesign) s.processor.allowedConnections |= type;
  return by_engine(s, [&](Engine& e) { return e.SetConnectionType(static_cast<Engine::ConnectionType>(type)); });
}

void warn_of_connection(const State& s, std::vector<std::string>& warnings) {
  if ((admitted(s) & s.processor.connectionType) == 0) {
    warnings.emplace_back("the processor does not admit this connection: a command with it is not read back");
  }
  const bool hasOnlySerialStub = (s.processor.allowedConnections & kStubFlags) == Engine::STUB_UART_PRESENT;
  if (has(s, Engine::STUB) && !is_serial(s) && hasOnlySerialStub) {
    warnings.emplace_back("the design has a stub over a serial line only; set stub to serial");
  }
}

std::vector<std::string> choose_stub(const SettingRow& row, const State& s) {
  std::vector<std::string> names;
  for (const SettingWord& word : row.traits.words) {
    const auto flag = word.value == Engine::STUB_OVER_JTAG ? Engine::STUB_JTAG_PRESENT : Engine::STUB_UART_PRESENT;
    const bool isPresent = (s.processor.allowedConnections & flag) != 0;
    if (!s.hasDesign || isPresent || s.processor.stubType == word.value) names.emplace_back(word.name);
  }
  return names;
}

// Selects the stub. To change the link, the engine needs its flag in the selected connection; the writer accepts no
// flag there. Without a design the flags are not known, and any link is accepted.
std::string set_stub(const SettingRow& row, State& s, const SettingValue& value) {
  const auto type =
      static_cast<Engine::StubType>(std::ranges::find(row.traits.words, text_of(value), &SettingWord::name)->value);
  State changed = s;
  if (type != s.processor.stubType) {
    changed.processor.connectionType =
        Engine::STUB | (s.hasDesign ? s.processor.allowedConnections & kStubFlags : kStubFlags);
    const std::string why = by_engine(changed, [&](Engine& e) { return e.SetStubType(type); });
    if (!why.empty()) return "the design has no such link to a stub; accepted: " + joined(choose_stub(row, s), ", ");
  }
  if (!s.hasDesign) changed.processor.allowedConnections |= Engine::STUB;
  changed.processor.connectionType = Engine::STUB;
  s = std::move(changed);
  return {};
}

// --- Simulators ---

// A port is a signed number, as in the command.
template <std::uint32_t P::*port>
SettingValue get_port(const SettingRow& /*row*/, const State& s) {
  return std::int64_t{static_cast<std::int32_t>(s.processor.*port)};
}

// A text has no port without a host.
std::string set_sim_port(const SettingRow& /*row*/, State& s, const SettingValue& value) {
  s.processor.simPort = static_cast<std::uint32_t>(std::get<std::int64_t>(value));
  if (s.processor.simPort != 0 && s.processor.simHost.empty()) s.processor.simHost = "localhost";
  return {};
}

constexpr const char* kNoColon = "it must not have a colon, which separates host and port";

std::string set_sim_host(const SettingRow& /*row*/, State& s, const SettingValue& value) {
  if (text_of(value).find(':') != std::string::npos) return kNoColon;
  s.processor.simHost = text_of(value);
  if (s.processor.simHost.empty()) s.processor.simPort = 0;
  return {};
}

// The text has one word for this setting and "configured".
std::string set_accuracy(const SettingRow& /*row*/, State& s, const SettingValue& value) {
  s.processor.vpCycleApproximate = std::get<bool>(value) ? 1 : 0;
  s.processor.vpConfigured = s.processor.vpCycleApproximate;
  return {};
}
std::string set_configured(const SettingRow& /*row*/, State& s, const SettingValue& value) {
  s.processor.vpConfigured = std::get<bool>(value) ? 1 : 0;
  if (s.processor.vpConfigured == 0) s.processor.vpCycleApproximate = 0;
  return {};
}

std::string set_hdl_host(const SettingRow& /*row*/, State& s, const SettingValue& value) {
  if (text_of(value).find(':') != std::string::npos) return kNoColon;
  s.processor.modelSimHost = text_of(value);
  return {};
}

// Host and port stand behind the option of the simulator, and go with it.
std::string set_hdl_simulator(const SettingRow& /*row*/, State& s, const SettingValue& value) {
  s.processor.modelSimEnabled = std::get<bool>(value) ? 1 : 0;
  if (s.processor.modelSimEnabled == 0) {
    const P fresh;
    s.processor.modelSimHost = fresh.modelSimHost;
    s.processor.modelSimPort = fresh.modelSimPort;
  }
  return {};
}

// --- Debug device and addresses ---

SettingValue get_cpu(const SettingRow& /*row*/, const State& s) {
  return std::int64_t{static_cast<std::int8_t>(s.processor.cpuNr)};
}

// Sets a base, or unsets it. The base of the instruction cache is that of the map.
template <std::uint32_t P::*base>
std::string set_base(const SettingRow& /*row*/, State& s, const SettingValue& value) {
  if (std::holds_alternative<std::monostate>(value)) {
    s.processor.*base = kAddressNotSet;
    if (base == &P::icacheStartAddr) s.processor.debugAddressMap = kAddressNotSet;
    return {};
  }
  const auto address = static_cast<std::uint32_t>(std::get<std::int64_t>(value));
  if (address % kMapBlock != 0) {
    const std::uint32_t below = address - address % kMapBlock;
    std::string nearest = address_text(below);
    if (below + kMapBlock != 0) nearest += " and " + address_text(below + kMapBlock);
    return "it must be a multiple of 64 KB (0x10000); the nearest are " + nearest;
  }
  return by_engine(s, [&](Engine& e) { return set_map_base(*e.imp, base, address) ? 0 : 1; });
}

std::vector<std::string> choose_address_map(const SettingRow& /*row*/, const State& /*s*/) { return {"unset"}; }

std::string set_address_map(const SettingRow& /*row*/, State& s, const SettingValue& value) {
  if (!std::holds_alternative<std::monostate>(value)) return "it can only be unset; it is set with icache";
  return by_engine(s, [](Engine& e) { return e.UnSetDebugAddressMap(); });
}

// --- Cable ---

std::string_view cable_name(Engine::CableType type) {
  if (type == Engine::CABLE_NONE) return "none";
  const CableType& row = cable_type(type);
  return row.names.empty() ? std::string_view() : row.names.back().text();
}

SettingValue get_cable(const SettingRow& /*row*/, const State& s) {
  const std::string_view name = cable_name(s.cable.type);
  return name.empty() ? std::to_string(s.cable.type) : std::string(name);
}

std::vector<std::string> choose_cable(const SettingRow& row, const State& /*s*/) {
  std::vector<std::string> names;
  for (const SettingWord& word : row.traits.words) {
    if (word.offered) names.emplace_back(word.name);
  }
  return names;
}

// A new type brings its own defaults. Setting the type again changes nothing.
std::string set_cable(const SettingRow& row, State& s, const SettingValue& value) {
  const auto type =
      static_cast<Engine::CableType>(std::ranges::find(row.traits.words, text_of(value), &SettingWord::name)->value);
  if (type == s.cable.type) return {};
  if (cable_type(type).notRead != nullptr) {
    return "this type is not read; the types are " + joined(choose_cable(row, s), ", ");
  }
  s.processor.svfFileSet = 0;  // as the file's name, which goes
  return by_engine(s, [&](Engine& e) { return e.SetCableType(type); });
}

std::vector<std::string> choose_frequency(const SettingRow& row, const State& s) {
  std::vector<std::string> texts;
  for (const std::uint32_t hz : type_of(s).accepted) texts.push_back(value_text(*row.setting, std::int64_t{hz}));
  return texts;
}

// The error names the nearest frequencies below and above.
std::string set_frequency_of_cable(const SettingRow& row, State& s, const SettingValue& value) {
  const std::int64_t hz = std::get<std::int64_t>(value);
  const auto accepted = type_of(s).accepted;
  if (hz != 0 && std::ranges::find(accepted, hz) == accepted.end()) {
    const auto above = std::ranges::upper_bound(accepted, hz);
    std::vector<std::string> nearest;
    if (above != accepted.begin()) nearest.push_back(value_text(*row.setting, std::int64_t{*std::prev(above)}));
    if (above != accepted.end()) nearest.push_back(value_text(*row.setting, std::int64_t{*above}));
    const std::string all = joined(choose_frequency(row, s), ", ");
    return "cable " + std::string(cable_name(s.cable.type)) + " does not support " + value_text(*row.setting, value) +
           (accepted.empty() ? "; it has no frequency"
                             : "; the nearest: " + joined(nearest, " and ") + "; all: " + all);
  }
  s.cable.frequency = static_cast<std::uint32_t>(hz);
  return {};
}

SettingValue initial_frequency(const State& s, const State& /*defaults*/) {
  return std::int64_t{type_of(s).defaultFrequency};
}
SettingValue initial_port(const State& s, const State& /*defaults*/) { return std::string(type_of(s).defaultPort); }

std::vector<std::string> choose_port(const SettingRow& /*row*/, const State& s) {
  const std::string port(type_of(s).defaultPort);
  return port.empty() ? std::vector<std::string>() : std::vector<std::string>{port};
}

std::string set_module(const SettingRow& /*row*/, State& s, const SettingValue& value) {
  if (text_of(value).empty()) return "a zarvek_plugin cable needs a module";
  s.cable.modulename = text_of(value);
  return {};
}

std::string set_arguments(const SettingRow& /*row*/, State& s, const SettingValue& value) {
  const std::string arguments = text_of(value);
  if (!arguments.empty()) {
    for (const std::string_view argument : split(arguments, ';')) {
      if (!is_plain_word(argument)) return "each argument must be one word without a dash in front; ';' separates them";
    }
  }
  s.cable.modulearg = arguments;
  return {};
}

void warn_of_plugin(const State& s, std::vector<std::string>& warnings) {
  if (s.cable.type == Engine::ZARVEK_PLUGIN && s.cable.modulename.empty()) {
    warnings.emplace_back("a zarvek_plugin cable needs a module");
  }
}

void warn_of_cable(const State& s, std::vector<std::string>& warnings) {
  warn_of_plugin(s, warnings);
  if (s.cable.type != Engine::CABLE_NONE && type_of(s).notWritten != nullptr) {
    warnings.emplace_back("a command with this cable cannot be written anew: " + std::string(type_of(s).notWritten));
  }
}

void warn_of_rom(const State& s, std::vector<std::string>& warnings) {
  if ((s.processor.romemStartAddr == kAddressNotSet) != (s.processor.romemSize == 0)) {
    warnings.emplace_back("the read-only memory needs both, rom and rom-size");
  }
}

void warn_of_chain(const State& s, std::vector<std::string>& warnings) {
  const int device = s.processor.debugDevice;
  std::vector<int> numbers;
  for (const JtagOption& d : s.chain) numbers.push_back(d.devicenr);
  if (device != 0 && !numbers.empty() && std::ranges::find(numbers, device) == numbers.end()) {
    warnings.push_back("no device of the JTAG chain has the number " + std::to_string(device) + " of the debug device");
  }
  std::ranges::sort(numbers);
  const auto twice = std::ranges::adjacent_find(numbers);
  if (twice != numbers.end()) {
    warnings.push_back("two devices of the JTAG chain have the number " + std::to_string(*twice));
  }
}

std::string set_svf_file(const SettingRow& /*row*/, State& s, const SettingValue& value) {
  s.cable.fname = text_of(value);
  s.processor.svfFileSet = s.cable.fname.empty() ? 0 : 1;
  return {};
}

// --- Chain ---

SettingValue get_cpu_jtag(const SettingRow& /*row*/, const State& s) { return s.cpuJtag != 0; }

// Reading "-configdevice jtagport cpu" adds a device without any value; it is removed with the setting.
std::string set_cpu_jtag(const SettingRow& /*row*/, State& s, const SettingValue& value) {
  const bool on = std::get<bool>(value);
  if (!on && s.cpuJtag != 0) std::erase(s.chain, JtagOption());
  s.cpuJtag = on ? 1 : 0;
  return {};
}

SettingValue get_devices(const SettingRow& /*row*/, const State& s) { return s.chain; }

std::string set_devices(const SettingRow& /*row*/, State& s, const SettingValue& value) {
  const auto& devices = std::get<std::vector<JtagOption>>(value);
  for (const JtagOption& device : devices) {
    if (!is_plain_word(device.partname)) return "a part name must be one word without a dash in front";
  }
  s.chain = devices;
  return {};
}

// --- The table ---

constexpr std::string_view kCableParts = "frequency port esn svf-file svf-file-named module module-arguments url";
constexpr std::string_view kBases = "icache itag dcache dtag tlb dcr";

// The parts of a description that only some settings have.
struct Shown {
  std::string_view unit = {};
  std::string_view follows = {};
  std::string_view initial = {};
  bool readOnly = false;
};

struct Entry {
  Setting setting;
  SettingRow row;
};

Entry row(std::string_view group, std::string_view name, std::string_view label, std::string_view meaning,
          SettingKind kind, Field field, const Applies& applies, SettingTraits traits = {}, Shown shown = {}) {
  return {.setting = {.name = name,
                      .group = group,
                      .label = label,
                      .meaning = meaning,
                      .kind = kind,
                      .unit = shown.unit,
                      .initial = shown.initial,
                      .follows = shown.follows,
                      .readOnly = shown.readOnly},
          .row = {.field = field, .applies = applies, .traits = std::move(traits)}};
}

template <std::uint32_t P::*field>
Entry base(std::string_view name, std::string_view label, std::string_view meaning, std::string_view follows = {}) {
  return row("address-map", name, label, meaning, SettingKind::address, field, kPpcHardware,
             {.max = kMaxAddress, .set = set_base<field>}, {.follows = follows});
}

// In the order in which changes are applied; the settings of a group stand together.
std::vector<Entry> make_entries() {
  using enum SettingKind;
  return {
      row("identity", "name", "Name", "Instance name of the processor in the design.", text, &P::name, kEverywhere,
          {.fixed = as_in_design}, {.readOnly = true}),
      row("identity", "family", "Family", "Kind of processor.", word, &P::procFamily, kEverywhere,
          {.words = {std::begin(kFamilies), std::end(kFamilies)}, .fixed = as_in_design}, {.readOnly = true}),
      row("identity", "variant", "Variant",
          "Core of the processor; the address map and the memories of a PowerPC depend on it.", word, &P::procVariant,
          kPowerPC,
          {.words = {std::begin(kVariants), std::end(kVariants)}, .choices = choose_variant, .fixed = as_in_design},
          {.initial = "as in the design"}),
      row("identity", "cpu", "Processor number", "Number of the processor on its debug link.", number, &P::cpuNr,
          kEverywhere, {.max = kMaxSignedByte, .get = get_cpu, .fixed = as_in_design},
          {.initial = "1, or as in the design"}),
      row("identity", "connections", "Connections", "The connections that the processor admits.", words,
          &P::allowedConnections, kEverywhere,
          {.words = {std::begin(kConnections), std::end(kConnections)}, .get = get_connections, .fixed = as_in_design},
          {.readOnly = true}),
      row("identity", "fpu", "FPU", "Floating-point unit of a PowerPC: single or double precision.", word, &P::fpuType,
          kPowerPC, {.words = fpu_words(), .fixed = as_in_design}, {.initial = "as in the design"}),

      row("connection", "connection", "Connection",
          "What the debugger connects to: simulator, hardware, stub or virtual-platform.", word, &P::connectionType,
          kEverywhere,
          {.words = {std::begin(kConnections), std::end(kConnections)},
           .get = get_connection,
           .set = set_connection,
           .resetPlainly = true,
           .choices = choose_connection,
           .warn = warn_of_connection}),

      row("stub", "stub", "Stub link", "How the software stub is reached; setting it selects the connection 'stub'.",
          word, &P::stubType, kWithStub,
          {.words = words_of(kStub, "-comm"),
           .set = set_stub,
           .resetPlainly = true,
           .alsoWhenSame = true,
           .choices = choose_stub,
           .warn = warn_of_connection},
          {.follows = "connection"}),
      row("stub", "stub-port", "Stub serial device", "Serial device of this computer that the stub is connected to.",
          text, &P::stubSerialPort, kSerialStub),
      row("stub", "stub-baud", "Stub baud rate", "Rate of the serial line; 0 for none.", number, &P::stubBaudRate,
          kSerialStub, {.max = kMaxSigned}, {.unit = "baud"}),
      row("stub", "stub-timeout", "Stub time-out", "Handed to the debugger as it is.", number, &P::stubTimeout,
          kSerialStub, {.max = kMaxSigned}),

      row("simulator", "memory-size", "Simulator memory", "Memory of the soft-processor simulator.", number,
          &P::memSize, kSoftSimulator, {.max = kMaxUnsigned}),
      row("simulator", "config-file", "Simulator configuration file",
          "Configuration file of the PowerPC simulator; it has precedence over host and port.", text, &P::simConfigFile,
          kPpcSimulator),
      row("simulator", "sim-host", "Simulator host", "Host on which the simulator or the virtual platform runs.", text,
          &P::simHost, kSimulatorPort, {.set = set_sim_host}, {.follows = "sim-port"}),
      row("simulator", "sim-port", "Simulator port", "Port of the simulator or the virtual platform.", number,
          &P::simPort, kSimulatorPort, {.max = kMaxPort, .get = get_port<&P::simPort>, .set = set_sim_port},
          {.follows = "sim-host"}),

      row("virtual-platform", "configured", "Accuracy configured",
          "The accuracy of the virtual platform is set; without an accuracy the text is not read back.", flag,
          &P::vpConfigured, kPlatform, {.set = set_configured}, {.follows = "cycle-approximate"}),
      row("virtual-platform", "cycle-approximate", "Cycle approximate",
          "The virtual platform counts cycles approximately.", flag, &P::vpCycleApproximate, kPlatform,
          {.set = set_accuracy}, {.follows = "configured"}),

      row("hardware-simulator", "enabled", "Hardware simulator",
          "The hardware is run by a hardware-description-language simulator.", flag, &P::modelSimEnabled, kHdlSimulator,
          {.set = set_hdl_simulator}, {.follows = "hardware-simulator-host hardware-simulator-port"}),
      row("hardware-simulator", "hardware-simulator-host", "Hardware simulator host",
          "Host on which the hardware simulator runs.", text, &P::modelSimHost, kWithHdlSimulator,
          {.set = set_hdl_host}),
      row("hardware-simulator", "hardware-simulator-port", "Hardware simulator port", "Port of the hardware simulator.",
          number, &P::modelSimPort, kWithHdlSimulator, {.max = kMaxPort, .get = get_port<&P::modelSimPort>}),

      row("debug-device", "debug-device", "Debug device",
          "Number of the device in the JTAG chain that holds the processor; 0 for none.", number, &P::debugDevice,
          kOnCable, {.max = kMaxSignedByte, .warn = warn_of_chain}),
      row("debug-device", "bscan", "BSCAN register", "JTAG user register that the debug module uses.", word,
          &P::bscanPort, kOnCable, {.words = words_of(kBscan, "-bscan")}),
      row("debug-device", "uart", "UART", "The UART of the debug module is used.", flag, &P::uartEnabled, kEverywhere),
      row("debug-device", "cpu-version", "Processor version", "Version of the processor, kept for programs.", text,
          &P::cpuVersion, kOnCable),
      row("debug-device", "odm-version", "Debug module version", "Version of the debug module, kept for programs.",
          text, &P::odmVersion, kOnCable),
      row("debug-device", "cpu-count", "Number of processors", "Number of processors, kept for programs.", number,
          &P::nCpu, kOnCable, {.max = kMaxSigned}),

      row("address-map", "address-map", "Debug address map",
          "Base of the debug address map: that of the instruction cache. Unset, all bases are unset.", address,
          &P::debugAddressMap, kPpcHardware,
          {.max = kMaxAddress, .set = set_address_map, .choices = choose_address_map}, {.follows = kBases}),
      base<&P::icacheStartAddr>("icache", "Instruction cache",
                                "Base of the instruction cache and of the debug address map.", "address-map"),
      base<&P::itagStartAddr>("itag", "Instruction tags", "Base of the instruction tags."),
      base<&P::dcacheStartAddr>("dcache", "Data cache", "Base of the data cache."),
      base<&P::dtagStartAddr>("dtag", "Data tags", "Base of the data tags."),
      base<&P::tlbStartAddr>("tlb", "TLB", "Base of the translation look-aside buffer."),
      base<&P::dcrStartAddr>("dcr", "DCR", "Base of the device control registers."),

      row("memories", "isocm", "On-chip instruction memory", "Base of the on-chip instruction memory of a ppc405.",
          address, &P::isocmStartAddr, kPpc405Hardware, {.max = kMaxAddress}),
      row("memories", "isocm-size", "On-chip memory size", "Size of the on-chip instruction memory.", size,
          &P::isocmSize, kPpc405Hardware, {.max = kMaxUnsigned}, {.unit = "bytes"}),
      row("memories", "isocm-dcr", "On-chip memory DCR base", "DCR base of the on-chip instruction memory.", address,
          &P::isocmDcrStartAddr, kPpc405Hardware, {.max = kMaxAddress}),
      row("memories", "rom", "Read-only memory", "Base of the read-only memory.", address, &P::romemStartAddr,
          kHardware, {.max = kMaxAddress, .warn = warn_of_rom}),
      row("memories", "rom-size", "Read-only memory size", "Size of the read-only memory.", size, &P::romemSize,
          kHardware, {.max = kMaxUnsigned, .warn = warn_of_rom}, {.unit = "bytes"}),

      row("cable", "cable", "Cable", "Type of the download cable; a new type comes with its own port and frequency.",
          word, {}, kOnCable,
          {.words = cable_words(), .get = get_cable, .set = set_cable, .choices = choose_cable, .warn = warn_of_cable},
          {.follows = kCableParts}),
      row("cable", "frequency", "Cable frequency", "JTAG clock of the cable.", frequency, &C::frequency, kClocked,
          {.max = kMaxUnsigned,
           .set = set_frequency_of_cable,
           .initial = initial_frequency,
           .choices = choose_frequency},
          {.unit = "Hz", .initial = "that of the cable"}),
      row("cable", "port", "Cable port", "Where the cable is plugged in.", text, &C::port, kClocked,
          {.initial = initial_port, .choices = choose_port}, {.initial = "that of the cable"}),
      row("cable", "esn", "Cable serial number", "Electronic serial number that selects one of several cables.", text,
          &C::esn, kClocked),
      row("cable", "svf-file", "SVF file", "Output file of a cable that writes one.", text, &C::fname, kOnCable,
          {.set = set_svf_file}, {.follows = "svf-file-named"}),
      row("cable", "svf-file-named", "SVF file named", "A name was given for the SVF file.", flag, &P::svfFileSet,
          kOnCable, {}, {.readOnly = true}),
      row("cable", "module", "Module", "Module of a plug-in cable.", text, &C::modulename, kPlugin,
          {.set = set_module, .resetPlainly = true, .warn = warn_of_plugin}),
      row("cable", "module-arguments", "Module arguments", "Arguments of the module, separated by ';'.", text,
          &C::modulearg, kPlugin, {.set = set_arguments, .manyWords = true}),
      row("cable", "url", "Cable URL", "Address of a cable on the network.", text, &C::url, kOnCable),

      row("jtag-chain", "cpu-jtag", "Own JTAG pins",
          "The processor is reached through its own JTAG pins; such a command is not read back.", flag, {}, kOnCable,
          {.get = get_cpu_jtag, .set = set_cpu_jtag}, {.follows = "devices"}),
      row("jtag-chain", "devices", "JTAG chain", "The devices of the JTAG chain, in their order.", devices, {},
          kOnCable, {.get = get_devices, .set = set_devices, .warn = warn_of_chain}),
  };
}

struct Catalogue {
  std::vector<Setting> settings;
  std::vector<SettingRow> rows;  // each points to the setting of the same place
};

const Catalogue& catalogue() {
  static const Catalogue made = [] {
    Catalogue all;
    for (Entry& entry : make_entries()) {
      for (const SettingWord& word : entry.row.traits.words) entry.setting.words.push_back(word.name);
      all.settings.push_back(std::move(entry.setting));
      all.rows.push_back(std::move(entry.row));
    }
    for (std::size_t i = 0; i < all.rows.size(); ++i) all.rows[i].setting = &all.settings[i];
    return all;
  }();
  return made;
}

const Setting* find_setting_of(const Keyword& keyword) {
  const auto named = [](std::string_view name) { return find_setting(name); };
  const auto in = [&](const Group& group) {
    return &keyword >= group.keywords.data() && &keyword < group.keywords.data() + group.keywords.size();
  };
  if (in(kConfigdevice)) return named(keyword.field.index() == 0 ? "cpu-jtag" : "devices");
  if (keyword.field.index() == 0) return in(kCable) ? named("cable") : nullptr;
  const auto row = std::ranges::find(catalogue().rows, keyword.field, &SettingRow::field);
  return row != catalogue().rows.end() ? row->setting : nullptr;
}

}  // namespace

const Setting& told_by(const Setting& setting) {
  constexpr std::pair<std::string_view, std::string_view> kTold[] = {
      {"sim-port", "sim-host"},
      {"hardware-simulator-port", "hardware-simulator-host"},
      {"configured", "cycle-approximate"},
      {"svf-file-named", "svf-file"},
      {"address-map", "icache"},
  };
  const auto* const row = std::ranges::find(kTold, setting.name, [](const auto& told) { return told.first; });
  return row != std::end(kTold) ? *find_setting(row->second) : setting;
}

// A setting that no option of the command tells does not apply; one that no option tells at all, such as the
// connection, does not depend on them.
std::string why_not(const SettingRow& row, const State& state) {
  for (const Applies& applies : {row.applies.first != nullptr ? *row.applies.first : row.applies, row.applies}) {
    if (!applies.holds(state)) return applies.otherwise;
  }
  const Setting& told = told_by(*row.setting);
  const Run* const run = run_of(state);
  const unsigned behindSim = run == &kGeneralOptions ? kHdlSimOptions.bit : 0;
  bool isTold = false;
  for (const Option& option : options()) {
    const Keyword* const own = value_row(option);
    const auto tells = [&](const Keyword& keyword) {
      return setting_of(keyword) == &told && (own == nullptr || own == &keyword);
    };
    if (std::ranges::none_of(option.group.keywords, tells)) continue;
    isTold = true;
    if (run != nullptr && (option.runs & (run->bit | behindSim)) != 0) return {};
  }
  return isTold ? "a command for this target and connection does not take it" : "";
}

std::span<const SettingRow> setting_rows() { return catalogue().rows; }

const SettingRow& row_of(const Setting& setting) {
  return catalogue().rows[static_cast<std::size_t>(&setting - settings().data())];
}

std::size_t place_of(const SettingRow& row) { return static_cast<std::size_t>(&row - setting_rows().data()); }

const SettingRow& row_named(std::string_view name) { return row_of(*find_setting(name)); }

const std::vector<Setting>& settings() { return catalogue().settings; }

const std::vector<SettingGroup>& setting_groups() {
  static const std::vector<SettingGroup> groups = {
      {"identity", "Processor"},
      {"connection", "Connection"},
      {"stub", "Stub"},
      {"simulator", "Simulator"},
      {"virtual-platform", "Virtual platform"},
      {"hardware-simulator", "Hardware simulator"},
      {"debug-device", "Debug device"},
      {"address-map", "Address map"},
      {"memories", "Memories"},
      {"cable", "Cable"},
      {"jtag-chain", "JTAG chain"},
  };
  return groups;
}

const Setting* find_setting(std::string_view name) {
  const auto found = std::ranges::find(settings(), name, &Setting::name);
  return found != settings().end() ? &*found : nullptr;
}

const Setting* setting_of(const Keyword& keyword) {
  static const auto all = [] {
    std::unordered_map<const Keyword*, const Setting*> found;
    for (const Option& option : options()) {
      for (const Keyword& row : option.group.keywords) found.emplace(&row, find_setting_of(row));
    }
    return found;
  }();
  const auto found = all.find(&keyword);
  return found != all.end() ? found->second : nullptr;
}

bool is_plain_word(std::string_view text) {
  const auto isText = [](char c) { return static_cast<unsigned char>(c) > ' ' && c != 0x7F; };
  if (text.empty() || !std::ranges::all_of(text, isText)) return false;
  return text.front() != '-' || (text.size() > 1 && text[1] >= '0' && text[1] <= '9');
}

}  // namespace SdkDebugDialog
