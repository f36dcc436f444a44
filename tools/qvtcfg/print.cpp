#include "print.h"

#include <algorithm>
#include <string_view>
#include <variant>

#include "answer.h"
#include "text.h"

namespace qvtcfg {
namespace {

using SdkDebugDialog::Configuration;
using SdkDebugDialog::Difference;
using SdkDebugDialog::JtagOption;
using SdkDebugDialog::Loss;
using SdkDebugDialog::Setting;
using SdkDebugDialog::SettingKind;
using SdkDebugDialog::settings;
using SdkDebugDialog::SettingState;
using SdkDebugDialog::SettingValue;
using Devices = std::vector<JtagOption>;

constexpr const char* kHardPpcs[] = {"none", "ppc405", "other"};

bool is_identity(const Setting& setting) { return setting.group == "identity"; }

bool is_in_cable_text(const Setting& setting) {
  if (setting.readOnly) return false;
  return setting.group == "cable" || setting.group == "jtag-chain" || setting.name == "debug-device";
}

Json device_json(const JtagOption& d) {
  return {{"device", d.devicenr}, {"part", d.partname},    {"irlength", d.irlength},
          {"idcode", d.idcode},   {"fpga", d.isfpga != 0}, {"hard-ppc", kHardPpcs[std::clamp<int>(d.hardppc, 0, 2)]},
          {"ppc-count", d.nppc}};
}

struct ToJson {
  Json operator()(std::monostate /*not_set*/) const { return {}; }
  Json operator()(const Devices& devices) const {
    Json list = Json::array();
    for (const JtagOption& device : devices) list.push_back(device_json(device));
    return list;
  }
  template <class Value>
  Json operator()(const Value& value) const {
    return value;
  }
};

// Such as "device 1, part X, ...".
std::string device_line(const JtagOption& device) {
  std::vector<std::string> members;
  const Json object = device_json(device);
  for (const auto& [name, value] : object.items()) {
    std::string text = value.is_string() ? visible(value.get<std::string>()) : value.dump();
    if (value.is_boolean()) text = value.get<bool>() ? "yes" : "no";
    if (name == "idcode") text = hex_text(device.idcode);
    members.push_back(std::string(name).append(" ").append(text));
  }
  return join(members);
}

Json unit_json(const Setting& setting) { return text_or_null(std::string(setting.unit)); }

// Whether the value is not the default. The identity has no defaults.
bool differs(const Setting& setting, const SettingState& state) {
  return !is_identity(setting) && state.value != state.initial;
}

// Calls visit(setting, state) for every setting that is chosen.
template <typename Visit>
void for_each_setting(const Configuration& configuration, const Choice& choice, Visit visit) {
  for (const Setting& setting : settings()) {
    if (choice.cable_text_only && !is_in_cable_text(setting)) continue;
    const SettingState state = configuration.state(setting);
    const bool usual = !choice.changed_only && (choice.all || state.applies);
    if (usual || differs(setting, state) || is_identity(setting)) visit(setting, state);
  }
}

void print_setting(const Setting& setting, const SettingState& state, Output& out) {
  const bool set = differs(setting, state);
  const auto* const devices = std::get_if<Devices>(&state.value);
  const bool listed = devices != nullptr && !devices->empty();
  std::string text = std::string(set ? "* " : "  ") + padded(std::string(setting.name), 18) + "  " +
                     (listed ? std::to_string(devices->size()) : shown_value(setting, state.value));
  if (!state.applies && !is_identity(setting)) text += "  (" + state.whyNot + ")";
  out.line(is_identity(setting) ? text : out.styled(set ? Style::kSet : Style::kDefault, text));
  if (!listed) return;
  for (const JtagOption& device : *devices) out.line("    " + device_line(device));
}

}  // namespace

std::string shown_value(const Setting& setting, const SettingValue& value) {
  if (const auto* const words = std::get_if<std::vector<std::string>>(&value); words != nullptr && !words->empty()) {
    return join(*words);
  }
  std::string text = visible(value_text(setting, value));
  if (!text.empty()) return text;
  return setting.kind == SettingKind::text && !is_identity(setting) ? "-" : "not set";
}

// The name of a record that no design has is empty.
Json json_value(const Setting& setting, const SettingValue& value) {
  if (is_identity(setting) && value == SettingValue(std::string())) return {};
  return std::visit(ToJson(), value);
}

void print_settings(const Configuration& configuration, const Choice& choice, Output& out) {
  std::string_view group;
  bool any_differs = false;
  for_each_setting(configuration, choice, [&](const Setting& setting, const SettingState& state) {
    if (group != setting.group) {
      out.line("");
      out.line(out.styled(Style::kHeading, std::string(setting.group)));
    }
    group = setting.group;
    any_differs |= differs(setting, state);
    print_setting(setting, state, out);
  });
  out.line("");
  out.line(any_differs ? "* differs from its default" : "every setting has its default");
}

Json setting_json(const Setting& setting, const SettingState& state) {
  return {{"value", json_value(setting, state.value)},
          {"unit", unit_json(setting)},
          {"changed", differs(setting, state)},
          {"applies", state.applies},
          {"changeable", state.changeable},
          {"whyNot", text_or_null(state.whyNot)}};
}

Json settings_json(const Configuration& configuration, const Choice& choice) {
  const Choice complete{choice.changed_only, true, choice.cable_text_only};
  Json groups = Json::object();
  for_each_setting(configuration, complete, [&](const Setting& setting, const SettingState& state) {
    groups[setting.group][setting.name] = setting_json(setting, state);
  });
  return groups;
}

std::string difference_line(const Difference& difference) {
  const Setting& setting = *difference.setting;
  return std::string(setting.name) + "  " + shown_value(setting, difference.before) + " -> " +
         shown_value(setting, difference.after);
}

Json difference_json(const Difference& difference) {
  const Setting& setting = *difference.setting;
  return {{"setting", setting.name},
          {"unit", unit_json(setting)},
          {"before", json_value(setting, difference.before)},
          {"after", json_value(setting, difference.after)}};
}

Json losses_json(const std::vector<Loss>& losses) {
  Json list = Json::array();
  for (const Loss& loss : losses) {
    list.push_back({{"setting", loss.setting != nullptr ? Json(loss.setting->name) : Json()},
                    {"what", loss.what},
                    {"why", loss.why}});
  }
  return list;
}

}  // namespace qvtcfg
