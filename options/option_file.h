#pragma once

// The file in which a processor's connect command is kept: <working directory>/etc/qvt_<processor>.opt.

#include <string>

namespace SdkDebugDialog {

// The first line of the file that is not empty, or its first 1,023 characters. Empty when there is no such line, and
// when the file is missing, cannot be read, or is no regular file.
std::string read_option_line(const std::string& processor);

// Makes text the whole content of the file: afterwards the file holds either the text or what it held before, whatever
// happens meanwhile. To that end a new file takes the old one's place, which needs the right to create files in the
// folder. A symbolic link stays one, an existing file keeps its mode, and its owner and group where we may set them;
// further hard links keep the old text. A file that may not be written, and anything but a regular file, is refused.
// False when the file was not written. Waits for nobody, and raises no signal. A writer that is killed may leave its
// new file, which the next one clears away.
bool write_option_file(const std::string& processor, const std::string& text);

}  // namespace SdkDebugDialog
