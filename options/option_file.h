#pragma once

// The file in which a processor's connect command is kept: <working directory>/etc/qvt_<processor>.opt.

#include <string>

#include "SdkDebugDialog/OptionFile.h"

namespace SdkDebugDialog {

// The line that is read (option_line) of the processor's file. Empty also when the file is missing, cannot be read, or
// is no regular file.
std::string read_option_line(const std::string& processor);

// Makes text the whole content of the file, as replace_file does (util/replace_file.h). False when it was not written:
// the file then holds what it held before.
bool write_option_file(const std::string& processor, const std::string& text);

}  // namespace SdkDebugDialog
