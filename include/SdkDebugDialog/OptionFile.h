// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The option file, in which a processor's connect command is kept.

#include <cstddef>
#include <string>
#include <string_view>

#include "SdkDebugDialog/Expected.h"
#include "SdkDebugDialog/Export.h"

namespace SdkDebugDialog {

inline constexpr std::size_t kLongestLine = 1023;  ///< in bytes; what stands behind it in a line is not read

/// The part of the content of a file that is read: its first line that is not empty, or its first 1,023 bytes. Empty
/// when there is no such line.
SDKDEBUGDIALOG_API std::string_view option_line(std::string_view content);

/// Makes text the whole content of a file, if that is still as expected: of several writers that expect the same, one
/// succeeds. Links and the file's mode are kept; if it fails, the file is as it was. ErrorCode::changedMeanwhile, file.
SDKDEBUGDIALOG_API Expected<void> replace_option_file(const std::string& path, std::string_view expected,
                                                      std::string_view text);

}  // namespace SdkDebugDialog
