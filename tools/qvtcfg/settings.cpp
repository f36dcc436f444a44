#include "settings.h"

#include <cstdio>
#include <string>

#include "text.h"
#include "words.h"

namespace qvtcfg {
namespace {

using SdkDebugDialog::CableOption;
using SdkDebugDialog::EngineImp;
using SdkDebugDialog::JtagOption;
using P = SdkDebugDialog::ProcessorInfoImp;

// What the settings are taken from; the defaults are another one of these.
struct State {
  const P& processor;
  const CableOption& cable;
  int cpuJtag;
  const std::vector<JtagOption*>& chain;
};

struct Setting {
  const char* group;  // settings of one group stand together
  const char* name;
  Json (*value)(const State&);
  bool hex = false;
};

template <auto Member>
Json processor(const State& s) {
  return s.processor.*Member;
}

template <auto Member>
Json flag(const State& s) {
  return s.processor.*Member != 0;
}

template <auto Member>
Json address(const State& s) {
  const std::uint32_t a = s.processor.*Member;
  return a != SdkDebugDialog::kAddressNotSet ? Json(a) : Json();
}

template <auto Member, const auto& Words>
Json word(const State& s) {
  return name_of(Words, s.processor.*Member);
}

template <auto Member>
Json cable(const State& s) {
  return s.cable.*Member;
}

Json cable_type(const State& s) { return name_of(kCables, s.cable.type); }

Json cpu_number(const State& s) { return static_cast<std::int8_t>(s.processor.cpuNr); }

Json allowed_connections(const State& s) { return names_in_set(kConnections, s.processor.allowedConnections); }

// A value without a single word, as a stub's with its marks, is spelled bit by bit.
Json connection(const State& s) {
  const std::vector<std::string> words = names_in_set(kConnections, s.processor.connectionType);
  return words.empty() ? Json() : Json(join(words, "+"));
}

Json cpu_jtag(const State& s) { return s.cpuJtag != 0; }

Json device(const JtagOption& d) {
  return {{"device", d.devicenr},   {"part", d.partname},
          {"irlength", d.irlength}, {"idcode", d.idcode},
          {"fpga", d.isfpga != 0},  {"hard-ppc", name_of(kHardPpcs, static_cast<unsigned int>(d.hardppc))},
          {"ppc-count", d.nppc}};
}

Json devices(const State& s) {
  Json list = Json::array();
  for (const JtagOption* d : s.chain) list.push_back(device(*d));
  return list;
}

constexpr const char* kIdentity = "identity";

constexpr Setting kSettings[] = {
    {kIdentity, "name", processor<&P::name>},
    {kIdentity, "family", word<&P::procFamily, kFamilies>},
    {kIdentity, "variant", word<&P::procVariant, kVariants>},
    {kIdentity, "cpu", cpu_number},
    {kIdentity, "connections", allowed_connections},
    {kIdentity, "fpu", word<&P::fpuType, kFpus>},

    {"connection", "connection", connection},

    {"stub", "stub", word<&P::stubType, kStubs>},
    {"stub", "stub-port", processor<&P::stubSerialPort>},
    {"stub", "stub-baud", processor<&P::stubBaudRate>},
    {"stub", "stub-timeout", processor<&P::stubTimeout>},

    {"simulator", "memory-size", processor<&P::memSize>},
    {"simulator", "config-file", processor<&P::simConfigFile>},
    {"simulator", "sim-host", processor<&P::simHost>},
    {"simulator", "sim-port", processor<&P::simPort>},

    {"virtual-platform", "configured", flag<&P::vpConfigured>},
    {"virtual-platform", "cycle-approximate", flag<&P::vpCycleApproximate>},

    {"hardware-simulator", "enabled", flag<&P::modelSimEnabled>},
    {"hardware-simulator", "host", processor<&P::modelSimHost>},
    {"hardware-simulator", "port", processor<&P::modelSimPort>},

    {"debug-device", "debug-device", processor<&P::debugDevice>},
    {"debug-device", "bscan", word<&P::bscanPort, kBscanPorts>},
    {"debug-device", "uart", flag<&P::uartEnabled>},
    {"debug-device", "cpu-version", processor<&P::cpuVersion>},
    {"debug-device", "odm-version", processor<&P::odmVersion>},
    {"debug-device", "cpu-count", processor<&P::nCpu>},

    {"address-map", "address-map", address<&P::debugAddressMap>, true},
    {"address-map", "icache", address<&P::icacheStartAddr>, true},
    {"address-map", "itag", address<&P::itagStartAddr>, true},
    {"address-map", "dcache", address<&P::dcacheStartAddr>, true},
    {"address-map", "dtag", address<&P::dtagStartAddr>, true},
    {"address-map", "tlb", address<&P::tlbStartAddr>, true},
    {"address-map", "dcr", address<&P::dcrStartAddr>, true},

    {"memories", "isocm", address<&P::isocmStartAddr>, true},
    {"memories", "isocm-size", processor<&P::isocmSize>},
    {"memories", "isocm-dcr", address<&P::isocmDcrStartAddr>, true},
    {"memories", "rom", address<&P::romemStartAddr>, true},
    {"memories", "rom-size", processor<&P::romemSize>},

    {"cable", "cable", cable_type},
    {"cable", "frequency", cable<&CableOption::frequency>},
    {"cable", "port", cable<&CableOption::port>},
    {"cable", "esn", cable<&CableOption::esn>},
    {"cable", "svf-file", cable<&CableOption::fname>},
    {"cable", "svf-file-named", flag<&P::svfFileSet>},
    {"cable", "module", cable<&CableOption::modulename>},
    {"cable", "module-arguments", cable<&CableOption::modulearg>},
    {"cable", "url", cable<&CableOption::url>},

    {"jtag-chain", "cpu-jtag", cpu_jtag},
    {"jtag-chain", "devices", devices},
};

std::string hex_text(std::uint32_t value) {
  char text[11];
  std::snprintf(text, sizeof text, "0x%08x", value);
  return text;
}

std::string text_of(const Json& value, bool hex);

// "device 1, part X, ..."
std::string members_text(const Json& object) {
  std::vector<std::string> members;
  for (const auto& [name, value] : object.items()) {
    members.push_back(name + " " + text_of(value, name == "idcode"));
  }
  return join(members);
}

std::string list_text(const Json& list) {
  std::vector<std::string> items;
  for (const Json& item : list) items.push_back(text_of(item, false));
  return items.empty() ? "none" : join(items);
}

std::string text_of(const Json& value, bool hex) {
  switch (value.type()) {
    case Json::value_t::null:
      return "not set";
    case Json::value_t::boolean:
      return value.get<bool>() ? "yes" : "no";
    case Json::value_t::string: {
      const std::string text = visible(value.get<std::string>());
      return text.empty() ? "-" : text;
    }
    case Json::value_t::array:
      return list_text(value);
    case Json::value_t::object:
      return members_text(value);
    default:
      return hex ? hex_text(value.get<std::uint32_t>()) : value.dump();
  }
}

bool is_identity(const Setting& setting) { return setting.group == kIdentity; }

void print_setting(const Setting& setting, const Json& value, bool marked, Output& out) {
  const std::string start = std::string(marked ? "* " : "  ") + padded(setting.name, 20);
  const Style style = marked ? Style::kSet : Style::kDefault;
  const bool listed = !value.empty() && value.is_array() && value.front().is_object();
  if (!listed) {
    const std::string text = start + text_of(value, setting.hex);
    out.line(is_identity(setting) ? text : out.styled(style, text));
    return;
  }
  out.line(out.styled(style, start + std::to_string(value.size())));
  for (const Json& item : value) out.line("    " + text_of(item, false));
}

// Calls visit(setting, value, differs from the default) for every setting.
template <typename Visit>
void for_each_setting(const EngineImp& engine, Visit visit) {
  const P default_processor;
  const CableOption default_cable;
  const std::vector<JtagOption*> default_chain;
  const State state{*engine.currentProcessor, *engine.cable, engine.cpuJtag, engine.jtagChain};
  const State defaults{default_processor, default_cable, 0, default_chain};
  for (const Setting& setting : kSettings) {
    const Json value = setting.value(state);
    visit(setting, value, !is_identity(setting) && value != setting.value(defaults));
  }
}

}  // namespace

Json settings_json(const EngineImp& state) {
  Json groups = Json::object();
  for_each_setting(state, [&](const Setting& setting, const Json& value, bool differs) {
    Json& member = groups[setting.group][setting.name];
    member = is_identity(setting) ? value : Json{{"value", value}, {"default", !differs}};
  });
  return groups;
}

void print_settings(const EngineImp& state, Output& out) {
  std::string_view group;
  for_each_setting(state, [&](const Setting& setting, const Json& value, bool differs) {
    if (group != setting.group) {
      out.line("");
      out.line(out.styled(Style::kHeading, setting.group));
    }
    group = setting.group;
    print_setting(setting, value, differs, out);
  });
  out.line("");
  out.line("* differs from its default");
}

}  // namespace qvtcfg
