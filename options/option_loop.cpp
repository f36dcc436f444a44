#include "options/option_loop.h"

#include <string>

#include "model/error_text.h"
#include "options/QvtOption_Parser.h"
#include "options/keyword.h"
#include "options/status.h"

namespace SdkDebugDialog {

int read_options(TokenCursor& in, EngineImp& imp, std::span<const Option> options, const char* unknown,
                 UnknownName name) {
  std::string option;
  std::string_view token;
  std::string_view lastToken;
  int kind = in.next(token);
  while (kind == kOption) {
    // Whoever read the option, its name is in the pushback token, which the option's own reader may overwrite.
    option = newoption_token;
    const Option* const row = find_row(options, option);
    if (row == nullptr) {
      set_error(imp, unknown, name == UnknownName::option ? option.c_str() : std::string(lastToken).c_str());
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
