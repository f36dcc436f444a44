#pragma once

// Runs of dash options.

#include <string>
#include <string_view>

#include "SdkDebugDialog/EngineImp.h"
#include "model/error_text.h"
#include "options/TokenCursor.h"
#include "options/keyword.h"
#include "options/status.h"

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
template <const auto& options>
int read_options(TokenCursor& in, EngineImp& imp, const char* unknown, UnknownName name) {
  std::string_view token;
  std::string_view lastToken;
  int kind = in.next(token);
  while (kind == kOption) {
    // Whoever read the option, the cursor knows it.
    const std::string_view option = in.option();
    const Option* const row = find_row<options>(option, in.letter_case());
    if (row == nullptr) {
      set_error(imp, unknown, std::string(name == UnknownName::option ? option : lastToken).c_str());
      return kError;
    }
    if (row->group != nullptr) {
      kind = row->group(in, imp);
    } else if (row->argument(in, option, imp) == kError) {
      kind = kError;
    } else {
      kind = in.next(lastToken);
    }
  }
  return kind == kEnd ? kEnd : kError;
}

}  // namespace SdkDebugDialog
