// Values that are not what they seem.

#include "findings/checks.h"

namespace SdkDebugDialog {

void check_number(const Keyword& /*row*/, std::string_view /*value*/, const Place& /*place*/, Report& /*report*/) {}

void check_text(std::string_view /*value*/, const Place& /*place*/, Report& /*report*/) {}

}  // namespace SdkDebugDialog
