#pragma once

// Writes the settings of an engine, reads the text with a new engine and writes again. Both texts must be the same,
// except in the cases that again.cpp lists.

#include <string>

#include "SdkDebugDialog/EngineImp.h"
#include "tests/support/FakeHardware.h"

// How the new engine reads the text.
enum class Way {
  command,    // as a command, without a design
  design,     // as a command for the listed processor of the same name
  described,  // with GetProcessorInfo, which takes the processor from the command
  file,       // in that processor's option file, in the working directory
  cable,      // as cable and chain alone
};

// The design for the ways that have one.
FakeHardware& known_design();

// Writes the settings of the engine, reads them with a new engine and writes again. False when the settings cannot be
// written.
bool check_writing(SdkDebugDialog::EngineImp& imp, Way way);

// Checks a second text: imp wrote text, a new engine read it with this result and then wrote second.
void check_second_text(const SdkDebugDialog::EngineImp& imp, Way way, const std::string& text, int result,
                       const std::string& second);
