// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The option file, in which a processor's connect command is kept.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "SdkDebugDialog/Expected.h"
#include "SdkDebugDialog/Export.h"

namespace SdkDebugDialog {

inline constexpr std::size_t kLongestLine = 1023;  ///< in bytes; what stands behind it in a line is not read

/// The path of a processor's option file, relative to the working directory: "etc/qvt_NAME.opt".
SDKDEBUGDIALOG_API std::string option_file_path(std::string_view processor);

/// The whole content of a file; std::nullopt when there is no such file. Only a regular file of at most 16 MB is read;
/// links are followed. ErrorCode::file.
SDKDEBUGDIALOG_API Expected<std::optional<std::string>> read_option_file(const std::string& path);

/// The part of the content of a file that is read: its first line that is not empty, or its first 1,023 bytes. Empty
/// when there is no such line.
SDKDEBUGDIALOG_API std::string_view option_line(std::string_view content);

/// Makes text the whole content of a file, if that is still as expected, such as read_option_file returned it:
/// std::nullopt for a file that must not exist, an empty text for one that exists and is empty. Of several writers that
/// expect the same, one succeeds. Links and the file's mode are kept; if it fails, the file is as it was.
/// ErrorCode::changedMeanwhile, file.
SDKDEBUGDIALOG_API Expected<void> replace_option_file(const std::string& path,
                                                      const std::optional<std::string>& expected,
                                                      std::string_view text);

}  // namespace SdkDebugDialog
