// What callers are told about the types of cables.

#include "SdkDebugDialog/CableCatalogue.h"

#include <string>

#include "options/syntax.h"

namespace SdkDebugDialog {

unsigned int setcable_default_frequency(Engine::CableType type) { return cable_type(type).defaultFrequency; }

std::string setcable_default_port(Engine::CableType type) { return std::string(cable_type(type).defaultPort); }

std::string getcable_supported_frequency(Engine::CableType type) {
  std::string text;
  for (const std::uint32_t frequency : cable_type(type).offered) {
    if (!text.empty()) text += ' ';
    text += std::to_string(frequency);
  }
  return text.empty() ? "0" : text;
}

void CableOption::CableOptionInit(Engine::CableType t) {
  *this = CableOption();
  type = t;
  frequency = cable_type(t).defaultFrequency;
  port = cable_type(t).defaultPort;
}

}  // namespace SdkDebugDialog
