#pragma once

// Random texts with random changes.

#include <string>

#include "edit_check.h"
#include "tests/compare/random.h"

// A value for a setting, as text: mostly one that the configuration accepts.
std::string random_value(Random& random, const SdkDebugDialog::Setting& setting,
                         const SdkDebugDialog::SettingState& state);

// A case in which as much as possible is accepted.
EditCase random_edit(Random& random, const EditBench& bench);
