// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Result codes. Each operation documents the codes that it returns and the error texts that it stores.

namespace SdkDebugDialog {

inline constexpr int kOk = 0;  ///< success

// Setters, getters and the operations of a selected processor.
inline constexpr int kRefused = 1;        ///< a setter refused the value, or no processor is selected
inline constexpr int kNotSet = 1;         ///< a getter has no value, or no processor is selected
inline constexpr int kNotApplicable = 2;  ///< does not apply to this processor or connection

// Selecting a processor, and reading a text.
inline constexpr int kNotListed = 2;      ///< the list of processors has no such name
inline constexpr int kNotUnderstood = 3;  ///< the text has an error
inline constexpr int kNoOptionFile = 4;   ///< no option file, or nothing in it: the settings are the defaults

// Writing.
inline constexpr int kCannotBeWritten = 1;  ///< the selected connection or cable cannot be written
inline constexpr int kFileNotWritten = 4;   ///< the option file could not be written; it is unchanged

/// Whether reading succeeded. A missing option file counts as success: the settings are the defaults.
constexpr bool was_read(int result) { return result == kOk || result == kNoOptionFile; }

}  // namespace SdkDebugDialog
