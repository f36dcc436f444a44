// qvtcfg cables

#include "SdkDebugDialog/CableCatalogue.h"
#include "catalogue.h"
#include "command_line.h"
#include "output.h"
#include "words.h"

namespace qvtcfg {
namespace {

using SdkDebugDialog::Engine;

struct Cable {
  unsigned int type;
  const char* name;
  unsigned int frequency;
  std::string port;
  std::vector<unsigned int> frequencies;
};

Cable described(const Word& word) {
  const auto type = static_cast<Engine::CableType>(word.value);
  return {word.value, word.name, SdkDebugDialog::setcable_default_frequency(type),
          SdkDebugDialog::setcable_default_port(type), offered_frequencies(type)};
}

std::vector<std::string> row(const Cable& cable) {
  return {std::to_string(cable.type), cable.name, cable.frequency != 0 ? std::to_string(cable.frequency) : "-",
          cable.port.empty() ? "-" : cable.port, cable.frequencies.empty() ? "-" : listed(cable.frequencies, " ")};
}

Json member(const Cable& cable) {
  return {{"type", cable.type},
          {"name", cable.name},
          {"frequency", cable.frequency != 0 ? Json(cable.frequency) : Json()},
          {"port", cable.port.empty() ? Json() : Json(cable.port)},
          {"frequencies", cable.frequencies}};
}

}  // namespace

void run_cables(const Arguments& arguments, Output& out) {
  if (arguments.json) {
    Json list = Json::array();
    for (const Word& word : kCables) list.push_back(member(described(word)));
    out.json({{"cables", list}});
    return;
  }
  std::vector<std::vector<std::string>> rows = {{"TYPE", "NAME", "FREQUENCY", "PORT", "SUPPORTED FREQUENCIES (Hz)"}};
  for (const Word& word : kCables) rows.push_back(row(described(word)));
  out.table(rows);
}

}  // namespace qvtcfg
