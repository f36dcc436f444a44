#pragma once

// The file in which a processor's connect command is kept: <working directory>/etc/qvt_<processor>.opt.

#include <cstddef>
#include <string>

#include "SdkDebugDialog/Expected.h"
#include "SdkDebugDialog/OptionFile.h"
#include "util/guarded_file.h"

namespace SdkDebugDialog {

inline constexpr std::size_t kLargestFile = std::size_t{16} << 20;  // in bytes; a larger option file is not read

// The same as read_option_file, to be compared with the file later.
Expected<FileContent> content_of(const std::string& path);

// The error of a writer that expected another content: that which was read, or that there is no such file.
Error changed_meanwhile(const std::string& path, bool wasRead);

// The line that is read (option_line) of the processor's file. Empty also when the file is missing, cannot be read, or
// is no regular file.
std::string read_option_line(const std::string& processor);

// Makes text the whole content of the file, as replace_file does (util/replace_file.h). False when it was not written:
// the file then holds what it held before.
bool write_option_file(const std::string& processor, const std::string& text);

}  // namespace SdkDebugDialog
