// qvtcfg cables

#include <SdkDebugDialog/CableCatalogue.h>
#include <SdkDebugDialog/Configuration.h>

#include <iterator>
#include <sstream>
#include <utility>

#include "answer.h"
#include "command_line.h"
#include "output.h"
#include "text.h"

namespace qvtcfg {
namespace {

using SdkDebugDialog::Configuration;
using SdkDebugDialog::Engine;
using SdkDebugDialog::find_setting;

struct Cable {
  unsigned int type;
  std::string name;
  bool written;
  unsigned int frequency;
  std::string port;
  std::vector<unsigned int> frequencies;
};

std::vector<unsigned int> frequencies_of(Engine::CableType type) {
  std::istringstream list(SdkDebugDialog::getcable_supported_frequency(type));
  std::vector<unsigned int> frequencies;
  for (unsigned int frequency = 0; list >> frequency;) {
    if (frequency != 0) frequencies.push_back(frequency);
  }
  return frequencies;
}

// No cable is a choice that needs no words.
bool is_written(const std::string& name) {
  Configuration configuration;
  if (!configuration.set("cable", name)) return false;
  configuration.set("module", "any");  // only a plug-in cable has one, and needs it
  return name == "none" || configuration.state(*find_setting("cable")).written;
}

Cable described(unsigned int number) {
  const auto type = static_cast<Engine::CableType>(number);
  const std::string name(find_setting("cable")->words[number]);
  return {number,
          name,
          is_written(name),
          SdkDebugDialog::setcable_default_frequency(type),
          SdkDebugDialog::setcable_default_port(type),
          frequencies_of(type)};
}

std::vector<std::string> row(const Cable& cable) {
  std::vector<std::string> frequencies;
  for (const unsigned int frequency : cable.frequencies) frequencies.push_back(std::to_string(frequency));
  return {std::to_string(cable.type),
          cable.name,
          cable.written ? "yes" : "no",
          cable.frequency != 0 ? std::to_string(cable.frequency) : "-",
          cable.port.empty() ? "-" : cable.port,
          frequencies.empty() ? "-" : join(frequencies, " ")};
}

Json member(const Cable& cable) {
  return {{"cable", cable.name},
          {"type", cable.type},
          {"written", cable.written},
          {"frequency", cable.frequency != 0 ? Json(cable.frequency) : Json()},
          {"port", text_or_null(cable.port)},
          {"frequencies", cable.frequencies},
          {"unit", find_setting("frequency")->unit}};
}

}  // namespace

ExitCode run_cables(const Arguments& arguments, Output& out) {
  Json list = Json::array();
  std::vector<std::vector<std::string>> rows = {
      {"TYPE", "NAME", "WRITTEN", "FREQUENCY", "PORT", "SUPPORTED FREQUENCIES (Hz)"}};
  for (unsigned int type = 0; type < find_setting("cable")->words.size(); ++type) {
    const Cable cable = described(type);
    rows.push_back(row(cable));
    list.push_back(member(cable));
  }
  if (arguments.json) {
    out.result({{"cables", std::move(list)}});
  } else {
    out.table(rows);
  }
  return kDone;
}

}  // namespace qvtcfg
