#pragma once

// Runs of dash options.

#include <span>
#include <string_view>

#include "SdkDebugDialog/EngineImp.h"
#include "options/TokenCursor.h"

namespace SdkDebugDialog {

// One option that may stand in a run. Either it opens a group, whose reader returns the kind of token at which it
// stopped, or it has an argument of its own (or none), after which the run reads on by itself.
struct Option {
  std::string_view name;  // read in any case
  int (*group)(TokenCursor& in, EngineImp& imp) = nullptr;
  // Gets the option as it was typed. kError ends the run; any other result does not.
  int (*argument)(TokenCursor& in, std::string_view option, EngineImp& imp) = nullptr;
};

// What an unknown option is called in the error text.
enum class UnknownName {
  option,     // by its name
  lastToken,  // by the last token that the run read itself, which after a group is an older one, or none
};

// Reads options until the text ends: kEnd, or kError. An option that is not listed sets the error text unknown.
int read_options(TokenCursor& in, EngineImp& imp, std::span<const Option> options, const char* unknown,
                 UnknownName name);

}  // namespace SdkDebugDialog
