#pragma once

// The sample commands and their settings.

#include <cstddef>
#include <string>

#include "bench/Settings.h"

namespace bench {

std::string simulator_text();
Settings simulator_settings();

// Cable, two chain devices and a debug device, as the library writes them.
std::string hardware_text();
// The same settings in another order and case, as a user could type them.
std::string hardware_text_retyped();
Settings hardware_settings();

std::string chain_text(std::size_t devices);
Settings chain_settings(std::size_t devices);

}  // namespace bench
