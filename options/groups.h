#pragma once

// The readers and writers of the option groups, and of runs of options.

#include <string_view>

#include "options/syntax.h"

namespace SdkDebugDialog {

// --- Reading ---

// For Option::read.
Outcome read_cable(const Option& option, TokenCursor& in, std::string_view typed, EngineImp& imp);
Outcome read_configdevice(const Option& option, TokenCursor& in, std::string_view typed, EngineImp& imp);

// The value of an option of the stub, of any name; or what is there instead of a value.
Outcome read_stub_option(std::string_view option, TokenCursor& in, EngineImp& imp);

// Reads options up to the end of the text; false for an error.
bool read_options(TokenCursor& in, EngineImp& imp, const Run& run);

// The option that the word names in this run; null when it names none.
const Option* find_option(std::string_view word, const Run& run, const LetterCase& letterCase);

// The row that describes the option's own value, or the flag that it sets; null for an option with pairs.
const Keyword* value_row(const Option& option);

// The chain's way through the processor's own JTAG pins as it is written. It is not read back.
inline constexpr std::string_view kOwnPinsWritten = " jtagpin cpujtag";

// --- Writing: false where the group cannot be written ---

bool write_cable(TextOut& out, EngineImp& imp);                                      // nothing without a cable
void write_cable_keywords(TextOut& out, CableOption& cable, const CableType& type);  // as a cable of this type has them
bool write_cable_and_chain(TextOut& out, EngineImp& imp);
bool write_chain_and_device(TextOut& out, EngineImp& imp);  // the cable first
void write_debugdevice(TextOut& out, EngineImp& imp);
void write_bscan(TextOut& out, EngineImp& imp);
bool write_stub(TextOut& out, EngineImp& imp);
void write_serial_stub(TextOut& out, EngineImp& imp);
bool write_ppcsim(TextOut& out, EngineImp& imp);

// Gives the cable its type's default frequency, or checks the one it has: false, with an error text for some types,
// when the type does not accept it.
bool set_frequency(EngineImp& imp, bool useDefault);

// What must hold where "-cable" ends the text; a cable that other options follow is not checked. False, with an error
// text for some types, when it does not hold.
bool check_cable(EngineImp& imp, bool hasFrequency);

}  // namespace SdkDebugDialog
