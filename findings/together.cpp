// What disagrees between configurations that are used side by side, and files without a processor.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <optional>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "SdkDebugDialog/Diagnosis.h"
#include "SdkDebugDialog/Engine.h"
#include "findings/Report.h"
#include "findings/kinds.h"
#include "settings/number_text.h"

namespace SdkDebugDialog {
namespace {

Finding finding_of(Code code, std::string message, std::string remedy) {
  Finding finding;
  finding.kind = &kind_of(code);
  finding.severity = finding.kind->severity;
  finding.message = std::move(message);
  finding.remedy = std::move(remedy);
  return finding;
}

// --- Keys: equal where what they describe is equal ---

template <class Number>
void append(std::string& key, const Number& number) {
  key.append(reinterpret_cast<const char*>(&number), sizeof number);
}

void append(std::string& key, const std::string& text) {
  append(key, text.size());
  key += text;
}

template <class... Values>
std::string key_of(const Values&... values) {
  std::string key;
  (append(key, values), ...);
  return key;
}

bool uses_cable(const Configuration& configuration) {
  const ProcessorInfoImp& p = configuration.record();
  const bool isOnStub = (p.connectionType & Engine::STUB) != 0 && p.stubType == Engine::STUB_OVER_JTAG;
  const bool isOnHardware = (p.connectionType & Engine::HARDWARE) != 0 && p.modelSimEnabled == 0;
  return (isOnHardware || isOnStub) && configuration.cable().type != Engine::CABLE_NONE;
}

// A cable with a serial number is that one, wherever it is plugged in.
std::string cable_key(const CableOption& cable) {
  const auto type = static_cast<std::uint32_t>(cable.type);
  if (!cable.esn.empty()) return key_of(type, cable.esn);
  return key_of(type, std::string(), cable.port, cable.modulename, cable.modulearg, cable.url);
}

// What a text that is written anew has of a device.
std::string device_key(const JtagOption& d) { return key_of(d.devicenr, d.partname, d.irlength, d.idcode); }

// The indexes of the devices that are described: reading "-configdevice jtagport cpu" adds one that is not.
std::vector<std::size_t> described(const std::vector<JtagOption>& chain) {
  std::vector<std::size_t> indexes;
  for (std::size_t i = 0; i < chain.size(); ++i) {
    if (chain[i] != JtagOption()) indexes.push_back(i);
  }
  return indexes;
}

std::string chain_key(const std::vector<JtagOption>& chain) {
  std::string key;
  for (const std::size_t i : described(chain)) key += device_key(chain[i]);
  return key;
}

// The first configuration of each key, and the values that were met with it.
class Firsts {
 public:
  // The first configuration of the key, if this value is another than its value and was not met before.
  std::optional<std::size_t> differs(const std::string& key, std::string value, std::size_t configuration) {
    const auto [met, isFirst] = m_met.try_emplace(key, Met{configuration, {}});
    const bool isNew = met->second.values.insert(std::move(value)).second;
    return isNew && !isFirst ? std::optional(met->second.first) : std::nullopt;
  }

 private:
  struct Met {
    std::size_t first;
    std::unordered_set<std::string> values;
  };
  std::unordered_map<std::string, Met> m_met;
};

// --- Places ---

class Words {
 public:
  explicit Words(const std::vector<SideBySide>& sides) : m_sides(sides) {}

  // The value of a setting; of several words the last one counts. Where there is none, that of another setting.
  Place value(std::size_t side, std::string_view setting, std::string_view otherwise) {
    const std::vector<Annotation>& words = of(side);
    for (const Setting* const wanted : {find_setting(setting), find_setting(otherwise)}) {
      const auto found = std::find_if(words.rbegin(), words.rend(), [&](const Annotation& word) {
        return word.role == Role::value && word.setting == wanted;
      });
      if (found != words.rend()) return {found->begin, found->end};
    }
    return {};
  }

  // A device of the chain with all its words.
  Place device(std::size_t side, std::size_t index) {
    const std::vector<Annotation>& words = of(side);
    const Setting* const devices = find_setting("devices");
    const auto isOption = [](const Annotation& word) { return word.role == Role::option; };
    const auto isDevice = [&](const Annotation& word) { return isOption(word) && word.setting == devices; };
    auto option = std::ranges::find_if(words, isDevice);
    for (; index > 0 && option != words.end(); --index) option = std::find_if(option + 1, words.end(), isDevice);
    if (option == words.end()) return {};
    return {option->begin, std::prev(std::find_if(option + 1, words.end(), isOption))->end};
  }

 private:
  const std::vector<Annotation>& of(std::size_t side) {
    const auto [found, isNew] = m_words.try_emplace(side);
    if (isNew) found->second = annotate(m_sides[side].text, m_sides[side].kind);
    return found->second;
  }

  const std::vector<SideBySide>& m_sides;
  std::unordered_map<std::size_t, std::vector<Annotation>> m_words;
};

// --- Findings ---

class Comparison {
 public:
  explicit Comparison(const std::vector<SideBySide>& sides) : m_sides(sides), m_words(sides) {}

  void compare(std::size_t i) {
    const Configuration& configuration = *m_sides[i].configuration;
    const ProcessorInfoImp& p = configuration.record();
    const CableOption& cable = configuration.cable();
    const std::string key = cable_key(cable);
    if (std::string chain = chain_key(configuration.chain()); !chain.empty()) {
      if (const auto other = m_chains.differs(key, std::move(chain), i)) add_chains(i, *other);
    }
    if (cable.frequency != 0) {
      if (const auto other = m_frequencies.differs(key, std::to_string(cable.frequency), i)) add_frequencies(i, *other);
    }
    if (p.debugDevice != 0) {
      const auto [same, isFirst] = m_processors.emplace(key + key_of(p.debugDevice, p.cpuNr, p.procFamily), i);
      if (!isFirst) add_processors(i, same->second);
    }
  }

  std::vector<SharedFinding> findings() && { return std::move(m_findings); }

 private:
  std::string name(std::size_t side) const { return quoted(m_sides[side].name); }

  void add(std::size_t i, std::size_t other, Finding finding, const Place& place, const Place& otherPlace,
           std::string remark) {
    finding.begin = place.begin;
    finding.end = place.end;
    finding.remarks.push_back({otherPlace.begin, otherPlace.end, std::move(remark)});
    m_findings.push_back({i, other, std::move(finding)});
  }

  void add_chains(std::size_t i, std::size_t other) {
    const std::vector<JtagOption>& chain = m_sides[i].configuration->chain();
    const std::vector<JtagOption>& otherChain = m_sides[other].configuration->chain();
    const std::vector<std::size_t> devices = described(chain);
    const std::vector<std::size_t> otherDevices = described(otherChain);
    const auto differing = std::ranges::mismatch(devices, otherDevices, [&](std::size_t a, std::size_t b) {
      return device_key(chain[a]) == device_key(otherChain[b]);
    });
    // Where one chain is the beginning of the other, its last device.
    const bool isLonger = differing.in2 == otherDevices.end();
    const bool isShorter = differing.in1 == devices.end();
    const std::size_t device = isShorter ? devices.back() : *differing.in1;
    const std::size_t otherDevice = isLonger ? otherDevices.back() : *differing.in2;
    const std::string shared = " for " + name(other) + ", which is on the same cable";
    std::string message = "device " + std::to_string(chain[device].devicenr) + " of the JTAG chain is another than";
    if (isLonger || isShorter) {
      message = "the number of devices in the JTAG chain is " + std::to_string(devices.size()) + ", but " +
                std::to_string(otherDevices.size());
    }
    add(i, other, finding_of(Code::sharedCableChain, message + shared, "describe the chain of a cable the same way"),
        m_words.device(i, device), m_words.device(other, otherDevice), "the chain of " + name(other));
  }

  void add_frequencies(std::size_t i, std::size_t other) {
    const auto text = [&](std::size_t side) {
      return number_text(m_sides[side].configuration->cable().frequency, Scale::decimal, "Hz");
    };
    add(i, other,
        finding_of(Code::sharedCableFrequency,
                   "the cable runs at " + text(i) + ", but at " + text(other) + " for " + name(other) +
                       ", which is on the same cable",
                   "give processors on one cable the same frequency"),
        m_words.value(i, "frequency", "cable"), m_words.value(other, "frequency", "cable"),
        text(other) + " for " + name(other));
  }

  void add_processors(std::size_t i, std::size_t other) {
    const ProcessorInfoImp& p = m_sides[i].configuration->record();
    add(i, other,
        finding_of(Code::sameProcessor,
                   name(other) + " has the same debug device " + std::to_string(p.debugDevice) +
                       " and processor number " + std::to_string(p.cpuNr) + " on the same cable",
                   "give each processor a number of its own"),
        m_words.value(i, "cpu", "debug-device"), m_words.value(other, "cpu", "debug-device"),
        "the processor of " + name(other));
  }

  const std::vector<SideBySide>& m_sides;
  Words m_words;
  Firsts m_chains;
  Firsts m_frequencies;
  std::unordered_map<std::string, std::size_t> m_processors;
  std::vector<SharedFinding> m_findings;
};

}  // namespace

std::vector<SharedFinding> diagnose_together(const std::vector<SideBySide>& configurations) {
  Comparison comparison(configurations);
  for (std::size_t i = 0; i < configurations.size(); ++i) {
    const Configuration* const configuration = configurations[i].configuration;
    if (configuration != nullptr && uses_cable(*configuration)) comparison.compare(i);
  }
  return std::move(comparison).findings();
}

Finding no_such_processor(const Error& error) { return finding_of(Code::noSuchProcessor, error.message, {}); }

}  // namespace SdkDebugDialog
