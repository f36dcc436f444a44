#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "SdkDebugDialog/Engine.h"

namespace qvtcfg {

// The frequencies in Hz that the catalogue offers for a cable; empty where it offers none.
std::vector<unsigned int> offered_frequencies(SdkDebugDialog::Engine::CableType type);

// Throws Failure about the argument unless the frequency is one of them.
void require_offered(const std::string& argument, SdkDebugDialog::Engine::CableType type, unsigned int frequency);

std::string listed(const std::vector<unsigned int>& frequencies, std::string_view separator);

}  // namespace qvtcfg
