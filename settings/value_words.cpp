#include "settings/value_words.h"

#include "options/field.h"
#include "options/groups.h"
#include "options/pairs.h"
#include "settings/words.h"

namespace SdkDebugDialog {
namespace {

using P = ProcessorInfoImp;

std::string host_and_port(const Keyword& row, const State& state) {
  const P& p = state.processor;
  const bool isHdlSimulator = row.field == Field(&P::modelSimHost);
  const std::string& host = isHdlSimulator ? p.modelSimHost : p.simHost;
  const std::uint32_t port = isHdlSimulator ? p.modelSimPort : p.simPort;
  return host + ":" + std::to_string(static_cast<std::int32_t>(port));
}

// What the writer of the row writes, without the name and without blanks at the ends.
std::string written_value(const Keyword& row, const Records& from) {
  std::string text;
  TextOut out(text);
  write_pair(out, row, from);
  out.flush();
  text.erase(0, row.name.written().size());
  text.erase(0, text.find_first_not_of(' '));
  text.erase(text.find_last_not_of(' ') + 1);
  return text;
}

std::string named(const Keyword& row, const std::string& value) {
  return spaced(row.name.text()) + (value.empty() ? "" : spaced(value));
}

}  // namespace

std::string value_words(const Keyword& row, const State& state) {
  if (row.kind == Kind::flag) return {};
  if (row.kind == Kind::hostAndPort) return host_and_port(row, state);
  if (row.field.index() == 0) return std::string(cable_type(state.cable.type).names.front().text());
  State copy = state;
  return written_value(row, {.processor = &copy.processor, .cable = &copy.cable});
}

std::string pair_text(const Keyword& row, const State& state) { return named(row, value_words(row, state)); }

std::string device_value(const Keyword& row, const JtagOption& device) {
  if (row.field.index() == 0) return {};
  if (row.field == Field(&JtagOption::hardppc) && device.hardppc != 1) {
    return device.hardppc == 0 ? "" : "other";  // any other word stands for another core
  }
  JtagOption copy = device;
  const bool isNever = row.written.holds == nullptr;
  std::string value = written_value(row, {.device = &copy});
  return isNever && value == "0" ? "" : value;
}

std::string device_pair_text(const Keyword& row, const JtagOption& device) {
  const std::string value = device_value(row, device);
  return value.empty() ? "" : named(row, value);
}

std::string device_text_of_command(const JtagOption& device) {
  std::string text;
  for (const Option& option : options()) {
    if (&option.group != &kConfigdevice) continue;
    text = spaced(option.name.text());
    break;
  }
  for (const Keyword& row : kConfigdevice.keywords) text += device_pair_text(row, device);
  return text;
}

bool is_unsaid(const SettingRow& row, const State& state) {
  if (row.setting->name == "cable") return state.cable.type == Engine::CABLE_NONE;
  const SettingValue value = value_of(row, state);
  if (const auto* const flag = std::get_if<bool>(&value)) return !*flag;
  if (const auto* const text = std::get_if<std::string>(&value)) return text->empty() || *text == "none";
  return std::holds_alternative<std::monostate>(value);
}

}  // namespace SdkDebugDialog
