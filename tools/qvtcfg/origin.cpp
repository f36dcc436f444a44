#include "origin.h"

#include <SdkDebugDialog/Annotation.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <map>
#include <string>

#include "text.h"

namespace qvtcfg {
namespace {

using SdkDebugDialog::annotate;
using SdkDebugDialog::Annotation;
using SdkDebugDialog::Configuration;
using SdkDebugDialog::find_setting;
using SdkDebugDialog::parse_value;
using SdkDebugDialog::Role;
using SdkDebugDialog::Setting;
using SdkDebugDialog::SettingKind;
using SdkDebugDialog::settings;
using SdkDebugDialog::SettingState;
using SdkDebugDialog::SettingValue;
using SdkDebugDialog::TextKind;
using SdkDebugDialog::value_text;
using WordsOf = std::map<const Setting*, std::vector<Words>>;

// The words that are about each setting. A value joins its keyword or its option, and a device of the chain is one run.
WordsOf words_of_settings(const Configuration& configuration, std::string_view text) {
  WordsOf found;
  const Setting* const devices = find_setting("devices");
  const Setting* before = nullptr;
  for (const Annotation& word : annotate(text, TextKind::optionFile, configuration.processor())) {
    const Setting* const setting = word.role == Role::ignored || word.role == Role::unknown ? nullptr : word.setting;
    const bool joins = word.role == Role::value || (setting == devices && word.role == Role::keyword);
    if (setting != nullptr && setting == before && joins) {
      found[setting].back().end = word.end;
    } else if (setting != nullptr) {
      found[setting].push_back({word.begin, word.end});
    }
    before = setting;
  }
  return found;
}

std::string_view last_word(const std::vector<Words>& words, std::string_view text) {
  const std::string_view run = text.substr(0, words.back().end).substr(words.back().begin);
  return run.substr(run.find_last_of(kWhiteSpace) + 1);
}

// Whether the reader takes this value from the word. The last word of a setting can be without effect: it comes before
// the type of the cable, or before another cable.
bool tells(std::string_view word, const Setting& setting, const SettingValue& value) {
  const std::string as_text = value_text(setting, value);
  if (as_text.empty()) return false;
  if (const auto* const number = std::get_if<std::int64_t>(&value)) {
    return std::strtoll(std::string(word).c_str(), nullptr, 0) == *number;
  }
  if (setting.kind == SettingKind::text) return word == as_text || word.starts_with(as_text + ":");
  // Some words of a text are not those of the setting, such as "odm".
  const auto parsed = parse_value(setting, word);
  return !parsed || *parsed == value;
}

bool follows(const Setting& setting, const Setting& other) {
  return std::ranges::count(split_words(other.follows), setting.name) != 0;
}

// "host:port" has the setting of the host.
bool has_port(std::string_view word, const Setting& setting, const SettingValue& value) {
  const std::size_t colon = word.rfind(':');
  return colon != std::string_view::npos && tells(word.substr(colon + 1), setting, value);
}

const Setting* followed_by(const Setting& setting, const SettingValue& value, const WordsOf& words,
                           std::string_view text) {
  for (const auto& [other, of_other] : words) {
    if (other->group == setting.group && has_port(last_word(of_other, text), setting, value)) return other;
  }
  const auto found = std::ranges::find_if(words, [&](const auto& item) { return follows(setting, *item.first); });
  return found != words.end() ? found->first : nullptr;
}

Origin origin_of(const Setting& setting, const SettingState& state, const Configuration& configuration,
                 const WordsOf& words, std::string_view text) {
  using Kind = Origin::Kind;
  const bool is_default = state.value == state.initial;
  if (const auto own = words.find(&setting); own != words.end()) {
    const bool counts = !is_default || tells(last_word(own->second, text), setting, state.value);
    if (counts) return {Kind::words, nullptr, own->second};
  }
  const Setting* const other = is_default ? nullptr : followed_by(setting, state.value, words, text);
  if (other != nullptr) return {Kind::otherWords, other, words.at(other)};
  if (setting.group == "identity")
    return {configuration.processor().name().empty() ? Kind::initial : Kind::design, nullptr, {}};
  const bool of_cable = setting.initial == "that of the cable" && state.applies;
  return {of_cable ? Kind::cable : Kind::initial, nullptr, {}};
}

}  // namespace

std::vector<Origin> origins(const Configuration& configuration, std::string_view text) {
  const WordsOf words = words_of_settings(configuration, text);
  const std::vector<SettingState> states = configuration.states();
  std::vector<Origin> found;
  found.reserve(states.size());
  for (std::size_t i = 0; i < states.size(); ++i) {
    found.push_back(origin_of(settings()[i], states[i], configuration, words, text));
  }
  return found;
}

}  // namespace qvtcfg
