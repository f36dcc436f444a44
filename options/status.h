#pragma once

namespace SdkDebugDialog {

// What the tokenizer and every reader of an option group return: what ended the reading.
inline constexpr int kValue = 0;   // a value, or a key with its value
inline constexpr int kOption = 1;  // the next option; whoever cut it off knows its name: TokenCursor, newoption_token
inline constexpr int kError = 2;   // an error, or a key without its value
inline constexpr int kEnd = 3;     // the text ran out

// What the readers of whole texts return besides kValue, which is their success.
inline constexpr int kNotUnderstood = 3;
inline constexpr int kNoOptionFile = 4;  // missing, or nothing in it

// A missing option file is as good as one that was read.
inline bool was_read(int status) { return status == kValue || status == kNoOptionFile; }

// What the writers of whole texts return besides 0.
inline constexpr int kCannotBeWritten = 1;
inline constexpr int kFileNotWritten = 4;

}  // namespace SdkDebugDialog
