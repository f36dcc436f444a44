// Values as text, and texts as people type them.

#include <algorithm>
#include <limits>

#include "SdkDebugDialog/Settings.h"
#include "settings/catalogue.h"
#include "settings/number_text.h"
#include "settings/words.h"

namespace SdkDebugDialog {
namespace {

Scale scale_of(const Setting& setting) {
  switch (setting.kind) {
    case SettingKind::frequency:
      return Scale::decimal;
    case SettingKind::size:
    case SettingKind::address:
      return Scale::binary;
    default:
      return setting.unit.empty() ? Scale::none : Scale::decimal;
  }
}

// --- Chain devices ---

constexpr std::string_view kHardCores[] = {"none", "ppc405", "other"};
constexpr std::size_t kShort = 4;  // fields of a device
constexpr std::size_t kLong = 7;

std::string device_text(const JtagOption& d) {
  std::string text =
      std::to_string(d.devicenr) + "," + d.partname + "," + std::to_string(d.irlength) + "," + address_text(d.idcode);
  if (d.isfpga == 0 && d.hardppc == 0 && d.nppc == 0) return text;
  const auto core = static_cast<std::size_t>(d.hardppc);
  return text + "," + std::to_string(d.isfpga) + "," + std::string(kHardCores[core < 3 ? core : 2]) + "," +
         std::to_string(d.nppc);
}

bool parse_byte(std::string_view text, std::int8_t& byte) {
  const auto number = parse_number(text, Scale::none, "");
  if (!number || *number < 0 || *number > std::numeric_limits<std::int8_t>::max()) return false;
  byte = static_cast<std::int8_t>(*number);
  return true;
}

bool parse_device(std::string_view text, JtagOption& device) {
  const auto fields = split(text, ',');
  if (fields.size() != kShort && fields.size() != kLong) return false;
  const auto idcode = parse_number(fields[3], Scale::none, "");
  if (!parse_byte(fields[0], device.devicenr) || !is_plain_word(fields[1]) || !parse_byte(fields[2], device.irlength) ||
      !idcode || *idcode < 0 || *idcode > std::numeric_limits<std::uint32_t>::max()) {
    return false;
  }
  device.partname = fields[1];
  device.idcode = static_cast<std::uint32_t>(*idcode);
  if (fields.size() == kShort) return true;
  const auto* const core =
      std::ranges::find_if(kHardCores, [&](std::string_view c) { return same_word(c, fields[5]); });
  device.hardppc = static_cast<std::int8_t>(core - std::begin(kHardCores));
  return core != std::end(kHardCores) && parse_byte(fields[4], device.isfpga) && parse_byte(fields[6], device.nppc);
}

// --- What is accepted, in words ---

std::string accepted(const Setting& setting) {
  switch (setting.kind) {
    case SettingKind::flag:
      return "on or off";
    case SettingKind::number:
      return setting.unit.empty() ? "a number, decimal or with 0x" : "a number such as 115200 or 115.2k";
    case SettingKind::frequency:
      return "a frequency such as 12000000, 12M or 12 MHz";
    case SettingKind::size:
      return "a number of bytes such as 4096, 0x1000 or 4K";
    case SettingKind::address:
      return "an address such as 0x70000000, or unset";
    case SettingKind::text:
      return "one word";
    case SettingKind::word:
    case SettingKind::words: {
      std::vector<std::string> names;
      for (const SettingWord& word : row_of(setting).traits.words) {
        if (word.offered) names.emplace_back(word.name);
      }
      return joined(names, ", ");
    }
    case SettingKind::devices:
      return "devices as NR,PART,IRLENGTH,IDCODE (or with ,FPGA,HARDPPC,PPCCOUNT) with a colon between, such as "
             "1,prom32,16,0xa5059093; or none";
  }
  return {};
}

Error no_value(const Setting& setting, std::string_view text) {
  std::string hint;
  const bool isNumber = setting.kind != SettingKind::text && setting.kind != SettingKind::word;
  if (isNumber && text.size() > 1 && text[0] == '0' && text[1] >= '0' && text[1] <= '9') {
    hint = "; a leading 0 is refused, since the connect command takes such a number as octal";
  }
  return {ErrorCode::invalidValue, std::string(setting.name) + ": expected " + accepted(setting) + hint, {}};
}

// The word's own spelling; empty when there is no such word.
std::string parse_word(const Setting& setting, std::string_view text) {
  for (const SettingWord& word : row_of(setting).traits.words) {
    if (same_word(word.name, text)) return std::string(word.name);
  }
  if (setting.name != "cable") return {};
  // A type of cable may have several names.
  for (const CableType& type : cable_types()) {
    for (const Name& name : type.names) {
      if (same_word(name.text(), text)) return std::string(type.names.back().text());
    }
  }
  return {};
}

bool parse_flag(std::string_view text, SettingValue& value) {
  constexpr std::string_view kOn[] = {"on", "yes", "true", "1"};
  constexpr std::string_view kOff[] = {"off", "no", "false", "0"};
  const auto is = [&](std::string_view word) { return same_word(word, text); };
  const bool isOn = std::ranges::any_of(kOn, is);
  value = isOn;
  return isOn || std::ranges::any_of(kOff, is);
}

bool parse_words(const Setting& setting, std::string_view text, SettingValue& value) {
  std::vector<std::string> names;
  for (const std::string_view part : split(text, ',')) {
    const std::size_t begin = std::min(part.find_first_not_of(' '), part.size());
    names.push_back(parse_word(setting, part.substr(begin)));
    if (names.back().empty()) return text.empty();
  }
  value = std::move(names);
  return true;
}

bool parse_devices(std::string_view text, SettingValue& value) {
  std::vector<JtagOption> chain;
  if (!text.empty() && !same_word(text, "none")) {
    for (const std::string_view part : split(text, ':')) {
      if (!parse_device(part, chain.emplace_back())) return false;
    }
  }
  value = std::move(chain);
  return true;
}

// False, with value as it happens to be, for a text that is no value.
bool parse(const Setting& setting, std::string_view text, SettingValue& value) {
  switch (setting.kind) {
    case SettingKind::flag:
      return parse_flag(text, value);
    case SettingKind::address:
      if (text.empty() || same_word(text, "none") || same_word(text, "unset")) return true;
      [[fallthrough]];
    case SettingKind::number:
    case SettingKind::frequency:
    case SettingKind::size: {
      const auto number = parse_number(text, scale_of(setting), setting.unit);
      value = number.value_or(0);
      return number.has_value();
    }
    case SettingKind::text:
      value = std::string(text);
      return true;
    case SettingKind::word: {
      std::string word = parse_word(setting, text);
      const bool isWord = !word.empty();
      value = std::move(word);
      return isWord;
    }
    case SettingKind::words:
      value = std::vector<std::string>();
      return parse_words(setting, text, value);
    case SettingKind::devices:
      return parse_devices(text, value);
  }
  return false;
}

}  // namespace

std::string value_text(const Setting& setting, const SettingValue& value) {
  if (const auto* const flag = std::get_if<bool>(&value)) return *flag ? "on" : "off";
  if (const auto* const number = std::get_if<std::int64_t>(&value)) {
    if (setting.kind == SettingKind::address) return address_text(static_cast<std::uint32_t>(*number));
    return number_text(*number, scale_of(setting), setting.unit);
  }
  if (const auto* const text = std::get_if<std::string>(&value)) return *text;
  if (const auto* const names = std::get_if<std::vector<std::string>>(&value)) return joined(*names, ", ");
  if (const auto* const chain = std::get_if<std::vector<JtagOption>>(&value)) {
    std::vector<std::string> texts;
    std::ranges::transform(*chain, std::back_inserter(texts), device_text);
    return texts.empty() ? "none" : joined(texts, ":");
  }
  return {};
}

Expected<SettingValue> parse_value(const Setting& setting, std::string_view text) {
  SettingValue value;
  if (!parse(setting, text, value)) return no_value(setting, text);
  return value;
}

}  // namespace SdkDebugDialog
