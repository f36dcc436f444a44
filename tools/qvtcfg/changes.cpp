#include "changes.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "failure.h"
#include "output.h"
#include "text.h"

namespace qvtcfg {
namespace {

using SdkDebugDialog::Configuration;
using SdkDebugDialog::Expected;
using SdkDebugDialog::find_setting;
using SdkDebugDialog::JtagOption;
using SdkDebugDialog::parse_value;
using SdkDebugDialog::Setting;
using SdkDebugDialog::SettingKind;
using SdkDebugDialog::settings;
using SdkDebugDialog::SettingValue;

// Two settings that one key sets: FIRST=VALUE,SECOND...
struct Pair {
  std::string_view first;
  const char* second;
  const char* takes;
  bool anew;  // without a second part the second setting gets its default
};
constexpr Pair kPairs[] = {{"rom", "rom-size", "START,SIZE", false},
                           {"module", "module-arguments", "NAME[,ARG...]", true}};

const Pair* pair_of(std::string_view key) {
  const auto* const pair = std::ranges::find(kPairs, key, &Pair::first);
  return pair != std::end(kPairs) ? pair : nullptr;
}

GivenChange change(const std::string& argument, const std::string& key, const std::string& value) {
  return {{key, value, value.empty()}, argument, find_setting(key)};
}

// The library's message names the nearest setting.
void require_setting(const GivenChange& given) {
  if (given.meant != nullptr) return;
  require(Configuration().set(given.setting, given.value), one_line(given.argument),
          "; 'qvtcfg set --help' lists the keys");
}

GivenChange parse_change(const std::string& argument) {
  const std::size_t equals = argument.find('=');
  if (equals == std::string::npos) {
    throw Failure(kUsage, one_line(argument) + ": expected KEY=VALUE, such as cable=zarvek_platformusb");
  }
  const bool append = equals > 0 && argument[equals - 1] == '+';
  GivenChange given = change(argument, argument.substr(0, equals - (append ? 1 : 0)), argument.substr(equals + 1));
  given.append = append;
  if (append) given.toDefault = false;
  require_setting(given);
  if (append && given.meant->kind != SettingKind::devices) {
    throw Failure(kUsage, one_line(argument) + ": only to devices can be appended; use " + given.setting + "=VALUE");
  }
  return given;
}

bool is_unset(const GivenChange& given) {
  const auto value = parse_value(*given.meant, given.value);
  return given.toDefault || (value && *value == SettingValue());
}

// What stands behind the first comma goes to the second setting of a pair.
void split_pair(std::vector<GivenChange>& changes, std::size_t at) {
  GivenChange& given = changes[at];
  const Pair* const pair = pair_of(given.setting);
  if (pair == nullptr) return;
  const std::size_t comma = given.value.find(',');
  GivenChange second = change(given.argument, pair->second, "");
  if (comma != std::string::npos) {
    second.value = given.value.substr(comma + 1);
    second.toDefault = false;
    std::ranges::replace(second.value, ',', ';');
    given.value.resize(comma);
  } else if ((!pair->anew && !is_unset(given)) ||
             std::ranges::find(changes, second.meant, &GivenChange::meant) != changes.end()) {
    return;
  }
  changes.push_back(std::move(second));
}

// To a list that the configuration has.
Expected<std::vector<std::string>> append(const GivenChange& change, Configuration& configuration) {
  auto devices = std::get<std::vector<JtagOption>>(configuration.value(*change.meant));
  const auto added = parse_value(*change.meant, change.value);
  if (!added) return added.error();
  std::ranges::copy(std::get<std::vector<JtagOption>>(*added), std::back_inserter(devices));
  return configuration.set(*change.meant, SettingValue(std::move(devices)));
}

// The catalogue is a vector in the order of application.
std::vector<GivenChange> sorted(std::vector<GivenChange> changes) {
  std::ranges::stable_sort(changes, {}, &GivenChange::meant);
  const auto twice = std::ranges::adjacent_find(changes, {}, &GivenChange::meant);
  if (twice != changes.end()) {
    throw Failure(kUsage, one_line(std::next(twice)->argument) + ": the key is given twice");
  }
  return changes;
}

const char* takes(const Setting& setting) {
  if (const Pair* const pair = pair_of(setting.name)) return pair->takes;
  switch (setting.kind) {
    case SettingKind::flag:
      return "on|off";
    case SettingKind::number:
      return "NUMBER";
    case SettingKind::address:
      return "ADDRESS";
    case SettingKind::frequency:
      return "FREQUENCY";
    case SettingKind::size:
      return "SIZE";
    case SettingKind::text:
      return "TEXT";
    case SettingKind::word:
      return "WORD";
    case SettingKind::words:
    case SettingKind::devices:
      break;
  }
  return "LIST";
}

}  // namespace

std::vector<GivenChange> parse_changes(const std::vector<std::string>& arguments) {
  std::vector<GivenChange> changes;
  std::ranges::transform(arguments, std::back_inserter(changes), parse_change);
  for (std::size_t at = 0; at < arguments.size(); ++at) split_pair(changes, at);
  return sorted(std::move(changes));
}

std::vector<GivenChange> parse_defaults(const std::vector<std::string>& names) {
  std::vector<GivenChange> changes;
  for (const std::string& name : names) {
    changes.push_back(change(name, name, ""));
    require_setting(changes.back());
  }
  return sorted(std::move(changes));
}

std::vector<std::string> apply_changes(const std::vector<GivenChange>& changes, Configuration& configuration,
                                       const std::string& subject) {
  for (const GivenChange& change : changes) {
    const std::string argument = subject + one_line(change.argument);
    if (change.toDefault) {
      require(configuration.reset(*change.meant), argument, "", change.setting);
    } else if (change.append) {
      require(append(change, configuration), argument, "", change.setting);
    } else {
      require(configuration.set(change.setting, change.value), argument, "", change.setting);
    }
  }
  std::vector<std::string> warnings;
  for (const GivenChange& change : changes) {
    for (const std::string& warning : configuration.warnings(*change.meant)) {
      const std::string text = subject + warning;
      if (std::ranges::find(warnings, text) == warnings.end()) warnings.push_back(text);
    }
  }
  return warnings;
}

std::vector<Key> keys() {
  const Configuration any;
  std::vector<Key> keys;
  for (const Setting& setting : settings()) {
    if (setting.readOnly) continue;
    std::string about(setting.meaning);
    const std::vector<std::string> choices = any.state(setting).choices;
    if (setting.kind == SettingKind::word && choices.size() > 1) about += " One of " + join(choices) + ".";
    keys.push_back({&setting, takes(setting), std::move(about)});
  }
  return keys;
}

std::string keys_help() {
  std::string text = "Keys:\n";
  for (const Key& key : keys()) {
    text += "  " + padded(std::string(key.setting->name) + "=" + key.takes, 32) + key.about + "\n";
  }
  return text +
         "KEY= puts back the default, and devices+=LIST appends devices. Numbers are decimal, or hexadecimal with 0x;\n"
         "12M and 64K are understood.";
}

}  // namespace qvtcfg
