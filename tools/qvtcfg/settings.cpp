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

enum class Mark {
  kNone,
  kHex,          // printed in hexadecimal
  kInCableText,  // also shown by `cable parse`
};
using enum Mark;

struct Setting {
  const char* group;  // the settings of a group are consecutive
  const char* name;
  Json (*value)(const Settings&);
  Mark mark = kNone;
};

template <auto Member>
Json processor(const Settings& s) {
  return s.processor.*Member;
}

// A port is shown as a signed number, as in the command.
template <auto Member>
Json port(const Settings& s) {
  return static_cast<std::int32_t>(s.processor.*Member);
}

template <auto Member>
Json flag(const Settings& s) {
  return s.processor.*Member != 0;
}

template <auto Member>
Json address(const Settings& s) {
  const std::uint32_t a = s.processor.*Member;
  return a != SdkDebugDialog::kAddressNotSet ? Json(a) : Json();
}

template <auto Member, const auto& Words>
Json word(const Settings& s) {
  return name_of(Words, s.processor.*Member);
}

template <auto Member>
Json cable(const Settings& s) {
  return s.cable.*Member;
}

Json cable_type(const Settings& s) { return name_of(kCables, s.cable.type); }

// A record that was created from a command may have no name.
Json processor_name(const Settings& s) { return s.processor.name.empty() ? Json() : Json(s.processor.name); }

Json cpu_number(const Settings& s) { return static_cast<std::int8_t>(s.processor.cpuNr); }

Json allowed_connections(const Settings& s) { return names_in_set(kConnections, s.processor.allowedConnections); }

// All bits, joined by "+": a stub connection can have several.
Json connection(const Settings& s) {
  const std::vector<std::string> words = names_in_set(kConnections, s.processor.connectionType);
  return words.empty() ? Json() : Json(join(words, "+"));
}

Json cpu_jtag(const Settings& s) { return s.cpuJtag != 0; }

Json device(const JtagOption& d) {
  return {{"device", d.devicenr},   {"part", d.partname},
          {"irlength", d.irlength}, {"idcode", d.idcode},
          {"fpga", d.isfpga != 0},  {"hard-ppc", name_of(kHardPpcs, static_cast<unsigned int>(d.hardppc))},
          {"ppc-count", d.nppc}};
}

Json devices(const Settings& s) {
  Json list = Json::array();
  for (const JtagOption* d : s.chain) list.push_back(device(*d));
  return list;
}

constexpr const char* kIdentity = "identity";

constexpr Setting kSettings[] = {
    {kIdentity, "name", processor_name},
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
    {"simulator", "sim-port", port<&P::simPort>},

    {"virtual-platform", "configured", flag<&P::vpConfigured>},
    {"virtual-platform", "cycle-approximate", flag<&P::vpCycleApproximate>},

    {"hardware-simulator", "enabled", flag<&P::modelSimEnabled>},
    {"hardware-simulator", "host", processor<&P::modelSimHost>},
    {"hardware-simulator", "port", port<&P::modelSimPort>},

    {"debug-device", "debug-device", processor<&P::debugDevice>, kInCableText},
    {"debug-device", "bscan", word<&P::bscanPort, kBscanPorts>},
    {"debug-device", "uart", flag<&P::uartEnabled>},
    {"debug-device", "cpu-version", processor<&P::cpuVersion>},
    {"debug-device", "odm-version", processor<&P::odmVersion>},
    {"debug-device", "cpu-count", processor<&P::nCpu>},

    {"address-map", "address-map", address<&P::debugAddressMap>, kHex},
    {"address-map", "icache", address<&P::icacheStartAddr>, kHex},
    {"address-map", "itag", address<&P::itagStartAddr>, kHex},
    {"address-map", "dcache", address<&P::dcacheStartAddr>, kHex},
    {"address-map", "dtag", address<&P::dtagStartAddr>, kHex},
    {"address-map", "tlb", address<&P::tlbStartAddr>, kHex},
    {"address-map", "dcr", address<&P::dcrStartAddr>, kHex},

    {"memories", "isocm", address<&P::isocmStartAddr>, kHex},
    {"memories", "isocm-size", processor<&P::isocmSize>},
    {"memories", "isocm-dcr", address<&P::isocmDcrStartAddr>, kHex},
    {"memories", "rom", address<&P::romemStartAddr>, kHex},
    {"memories", "rom-size", processor<&P::romemSize>},

    {"cable", "cable", cable_type, kInCableText},
    {"cable", "frequency", cable<&CableOption::frequency>, kInCableText},
    {"cable", "port", cable<&CableOption::port>, kInCableText},
    {"cable", "esn", cable<&CableOption::esn>, kInCableText},
    {"cable", "svf-file", cable<&CableOption::fname>, kInCableText},
    {"cable", "svf-file-named", flag<&P::svfFileSet>},
    {"cable", "module", cable<&CableOption::modulename>, kInCableText},
    {"cable", "module-arguments", cable<&CableOption::modulearg>, kInCableText},
    {"cable", "url", cable<&CableOption::url>, kInCableText},

    {"jtag-chain", "cpu-jtag", cpu_jtag, kInCableText},
    {"jtag-chain", "devices", devices, kInCableText},
};

std::string hex_text(std::uint32_t value) {
  char text[11];
  std::snprintf(text, sizeof text, "0x%08x", value);
  return text;
}

std::string text_of(const Json& value, bool hex);

// Such as "device 1, part X, ...".
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
    const std::string text = start + text_of(value, setting.mark == kHex);
    out.line(is_identity(setting) ? text : out.styled(style, text));
    return;
  }
  out.line(out.styled(style, start + std::to_string(value.size())));
  for (const Json& item : value) out.line("    " + text_of(item, false));
}

// Calls visit(setting, value, differs) for every chosen setting; differs: the value is not the default.
template <typename Visit>
void for_each_setting(const Settings& settings, const Choice& choice, Visit visit) {
  const P default_processor;
  const CableOption default_cable;
  const std::vector<JtagOption*> default_chain;
  const Settings defaults{default_processor, default_cable, 0, default_chain};
  for (const Setting& setting : kSettings) {
    if (choice.cable_text_only && setting.mark != kInCableText) continue;
    const Json value = setting.value(settings);
    const bool differs = !is_identity(setting) && value != setting.value(defaults);
    if (!choice.changed_only || is_identity(setting) || differs) visit(setting, value, differs);
  }
}

}  // namespace

Settings settings_of(const EngineImp& state) {
  return {*state.currentProcessor, *state.cable, state.cpuJtag, state.jtagChain};
}

Json settings_json(const Settings& settings, const Choice& choice) {
  Json groups = Json::object();
  for_each_setting(settings, choice, [&](const Setting& setting, const Json& value, bool differs) {
    Json& member = groups[setting.group][setting.name];
    member = is_identity(setting) ? value : Json{{"value", value}, {"default", !differs}};
  });
  return groups;
}

void print_settings(const Settings& settings, const Choice& choice, Output& out) {
  std::string_view group;
  bool any_differs = false;
  for_each_setting(settings, choice, [&](const Setting& setting, const Json& value, bool differs) {
    if (group != setting.group) {
      out.line("");
      out.line(out.styled(Style::kHeading, setting.group));
    }
    group = setting.group;
    any_differs |= differs;
    print_setting(setting, value, differs, out);
  });
  out.line("");
  out.line(any_differs ? "* differs from its default" : "every setting has its default");
}

}  // namespace qvtcfg
