#pragma once

// What the reader accepts although it has no effect, or not the one that was probably meant. For texts without errors.

#include <string_view>

#include "findings/Report.h"
#include "findings/examine.h"
#include "options/syntax.h"
#include "settings/State.h"

namespace SdkDebugDialog {

// What is given twice, overwritten, or does not apply; frequencies that nothing checks; other processors' targets.
void check_effects(const Subject& subject, const Examined& examined, const State& state, Report& report);

// What the command would lose if it were written anew, and what would not be read back. What is known to have no effect
// is left out.
void check_rewriting(const Subject& subject, const Examined& examined, const State& state, Report& report);

// A frequency that the cable does not support. It replaces what was found about the value.
Finding& add_frequency(const CableType& type, std::uint32_t hz, const Said& frequency, Report& report);

}  // namespace SdkDebugDialog
