#pragma once

#include <vector>

#include "SdkDebugDialog/Engine.h"

namespace qvtcfg {

// The frequencies in Hz that the catalogue offers for a cable; empty where it offers none.
std::vector<unsigned int> offered_frequencies(SdkDebugDialog::Engine::CableType type);

}  // namespace qvtcfg
