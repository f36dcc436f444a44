#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "SdkDebugDialog/Engine.h"

namespace qvtcfg {

// The supported frequencies of a cable type in Hz; empty if there are none.
std::vector<unsigned int> offered_frequencies(SdkDebugDialog::Engine::CableType type);

// Throws Failure, naming the argument, unless the frequency is supported.
void require_offered(const std::string& argument, SdkDebugDialog::Engine::CableType type, unsigned int frequency);

std::string listed(const std::vector<unsigned int>& frequencies, std::string_view separator);

}  // namespace qvtcfg
