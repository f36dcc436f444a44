#include "origin.h"

#include <algorithm>
#include <map>
#include <string>

#include "SdkDebugDialog/Annotation.h"
#include "text.h"

namespace qvtcfg {
namespace {

using SdkDebugDialog::annotate;
using SdkDebugDialog::Annotation;
using SdkDebugDialog::Configuration;
using SdkDebugDialog::find_setting;
using SdkDebugDialog::Role;
using SdkDebugDialog::Setting;
using SdkDebugDialog::settings;
using SdkDebugDialog::SettingState;
using SdkDebugDialog::TextKind;
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

bool follows(const Setting& setting, const Setting& other) {
  return std::ranges::count(split_words(other.follows), setting.name) != 0;
}

// "host:port" has the setting of the host.
const Setting* host_of(const Setting& setting) {
  constexpr std::string_view kPort = "port";
  if (!setting.name.ends_with(kPort)) return nullptr;
  return find_setting(std::string(setting.name.substr(0, setting.name.size() - kPort.size())) + "host");
}

const Setting* followed_by(const Setting& setting, const WordsOf& words) {
  const Setting* const host = host_of(setting);
  if (host != nullptr && words.contains(host)) return host;
  const auto found = std::ranges::find_if(words, [&](const auto& item) { return follows(setting, *item.first); });
  return found != words.end() ? found->first : nullptr;
}

Origin origin_of(const Setting& setting, const SettingState& state, const Configuration& configuration,
                 const WordsOf& words) {
  using Kind = Origin::Kind;
  if (const auto own = words.find(&setting); own != words.end()) return {Kind::words, nullptr, own->second};
  if (state.value != state.initial) {
    if (const Setting* const other = followed_by(setting, words)) return {Kind::otherWords, other, words.at(other)};
  }
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
    found.push_back(origin_of(settings()[i], states[i], configuration, words));
  }
  return found;
}

}  // namespace qvtcfg
