// What is wrong with an option file, beside the command in it.

#include "findings/checks.h"

namespace SdkDebugDialog {

void check_file(const Subject& /*subject*/, Report& /*report*/) {}

}  // namespace SdkDebugDialog
