#pragma once

// Reads and writes a state with the engine's readers and writers.

#include <cstddef>
#include <string>
#include <string_view>

#include "SdkDebugDialog/Annotation.h"
#include "SdkDebugDialog/Configuration.h"
#include "SdkDebugDialog/Expected.h"
#include "settings/State.h"

namespace SdkDebugDialog {

// The defaults of a processor, with the FPU that it has in the design.
State defaults_of(const Processor& processor);

// What was read from a text; the defaults from an option file with nothing in it.
struct Reading {
  bool understood = false;
  State state;               // only if the text was understood
  std::string engineText;    // the reader's error text, often empty
  bool loneDash = false;     // the reader stopped at a lone dash
  std::size_t consumed = 0;  // where the reader stopped, in bytes from the beginning of the text
};
Reading read_state(const Processor& processor, std::string_view text, TextKind kind);

// Why the text was not understood, as an error.
Error not_understood(const Reading& reading, std::string_view text);

// The text that the engine writes for the state: a command, or a text of cable and chain alone.
// ErrorCode::cannotBeWritten.
Expected<std::string> write_state(const State& state, TextKind kind);

}  // namespace SdkDebugDialog
