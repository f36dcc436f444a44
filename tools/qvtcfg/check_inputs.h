#pragma once

// Which texts qvtcfg check checks.

#include <SdkDebugDialog/Configuration.h>

#include <optional>
#include <string>
#include <vector>

#include "checked.h"
#include "command_line.h"

namespace qvtcfg {

struct Inputs {
  std::vector<Checked> texts;         // sorted by what is shown, each once; with an error for what cannot be found
  std::vector<std::string> defaults;  // processors without an option file
};

// Those that the operands name; without operands, the option files of the working directory.
Inputs find_inputs(const Arguments& arguments, const std::optional<SdkDebugDialog::Design>& design);

}  // namespace qvtcfg
