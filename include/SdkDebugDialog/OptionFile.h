#pragma once

// The option file, in which a processor's connect command is kept.

#include <cstddef>
#include <string_view>

#include "SdkDebugDialog/Export.h"

namespace SdkDebugDialog {

inline constexpr std::size_t kLongestLine = 1023;  // bytes

// The part of the content of a file that is read: its first line that is not empty, or its first 1,023 bytes. Empty
// when there is no such line.
SDKDEBUGDIALOG_API std::string_view option_line(std::string_view content);

}  // namespace SdkDebugDialog
