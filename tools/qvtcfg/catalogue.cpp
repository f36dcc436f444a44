#include "catalogue.h"

#include <sstream>

#include "SdkDebugDialog/CableCatalogue.h"

namespace qvtcfg {

std::vector<unsigned int> offered_frequencies(SdkDebugDialog::Engine::CableType type) {
  std::istringstream list(SdkDebugDialog::getcable_supported_frequency(type));
  std::vector<unsigned int> frequencies;
  for (unsigned int frequency = 0; list >> frequency;) {
    if (frequency != 0) frequencies.push_back(frequency);
  }
  return frequencies;
}

}  // namespace qvtcfg
