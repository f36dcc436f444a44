#include "catalogue.h"

#include <algorithm>
#include <sstream>

#include "SdkDebugDialog/CableCatalogue.h"
#include "values.h"
#include "words.h"

namespace qvtcfg {

std::vector<unsigned int> offered_frequencies(SdkDebugDialog::Engine::CableType type) {
  std::istringstream list(SdkDebugDialog::getcable_supported_frequency(type));
  std::vector<unsigned int> frequencies;
  for (unsigned int frequency = 0; list >> frequency;) {
    if (frequency != 0) frequencies.push_back(frequency);
  }
  return frequencies;
}

std::string listed(const std::vector<unsigned int>& frequencies, std::string_view separator) {
  std::string text;
  for (const unsigned int frequency : frequencies) {
    if (!text.empty()) text += separator;
    text += std::to_string(frequency);
  }
  return text;
}

void require_offered(const std::string& argument, SdkDebugDialog::Engine::CableType type, unsigned int frequency) {
  const std::vector<unsigned int> offered = offered_frequencies(type);
  if (std::ranges::find(offered, frequency) != offered.end()) return;
  throw refused(argument, "cable " + name_of(kCables, type) +
                              (offered.empty() ? " has no frequency to choose" : " supports " + listed(offered, ", ")));
}

}  // namespace qvtcfg
