#pragma once

// The file in which a processor's connect command is kept: <working directory>/etc/qvt_<processor>.opt.

#include <cstddef>
#include <string>
#include <string_view>

namespace SdkDebugDialog {

inline constexpr std::size_t kLongestLine = 1023;  // bytes

// The part of the content of a file that is read: its first line that is not empty, or its first 1,023 bytes.
// Empty when there is no such line.
std::string_view option_line(std::string_view content);

// The same of the processor's file. Empty also when the file is missing, cannot be read, or is no regular file.
std::string read_option_line(const std::string& processor);

// Makes text the whole content of the file, as replace_file does (util/replace_file.h). False when it was not written:
// the file then holds what it held before.
bool write_option_file(const std::string& processor, const std::string& text);

}  // namespace SdkDebugDialog
