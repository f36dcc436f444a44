#pragma once

// Reads texts and finds what is wrong with them.

#include <SdkDebugDialog/Configuration.h>

#include <optional>
#include <vector>

#include "checked.h"

namespace qvtcfg {

// Reads and checks the texts, on all processors of the machine; those that have an error already are left out. On a
// terminal, standard error tells the progress when it takes long.
void check_texts(std::vector<Checked>& texts, const std::optional<SdkDebugDialog::Design>& design);

// Makes the safe fixes and checks again what has changed. With dry_run nothing is written.
void fix_texts(std::vector<Checked>& texts, const std::optional<SdkDebugDialog::Design>& design, bool dry_run);

// Adds what disagrees between option files of the same folder.
void compare_texts(std::vector<Checked>& texts);

}  // namespace qvtcfg
