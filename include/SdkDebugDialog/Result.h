#pragma once

// What operations return. Each operation says which of these it can answer, and whether it stores an error text.

namespace SdkDebugDialog {

inline constexpr int kOk = 0;

// Setters, getters and the operations of a selected processor.
inline constexpr int kRefused = 1;        // a setter refused the value, or no processor is selected
inline constexpr int kNotSet = 1;         // a getter has no value, or no processor is selected
inline constexpr int kNotApplicable = 2;  // not with this processor or connection

// Selecting a processor, and reading a text.
inline constexpr int kNotListed = 2;      // no such processor
inline constexpr int kNotUnderstood = 3;  // the text cannot be read
inline constexpr int kNoOptionFile = 4;   // no option file, or nothing in it: the settings are the defaults

// Writing.
inline constexpr int kCannotBeWritten = 1;  // the selected connection or cable has no text
inline constexpr int kFileNotWritten = 4;   // the option file is as it was

// Whether a text was read; no option file is as good as one that was.
constexpr bool was_read(int result) { return result == kOk || result == kNoOptionFile; }

}  // namespace SdkDebugDialog
