#pragma once

// A text that was written, read by a fresh engine and written a second time: the second one is the first, but for the
// exceptions that again.cpp lists.

#include <string>

#include "SdkDebugDialog/EngineImp.h"
#include "tests/support/FakeHardware.h"

// How a fresh engine is given the text.
enum class Way {
  command,    // as a command, without a design
  design,     // as a command for the listed processor of the same name
  described,  // as a command that tells which listed processor it is for
  file,       // in that processor's option file, in the working directory
  cable,      // as cable and chain alone
};

// The design that is known, where one is.
FakeHardware& known_design();

// Writes the settings of the engine, and again after a fresh engine has read them. False when they cannot be written.
bool check_writing(SdkDebugDialog::EngineImp& imp, Way way);

// The engine wrote the text. A fresh engine that read it answered result, and wrote second.
void check_second_text(const SdkDebugDialog::EngineImp& imp, Way way, const std::string& text, int result,
                       const std::string& second);
