#pragma once

#include <boost/filesystem/path.hpp>
#include <string_view>

namespace SdkDebugDialog {

// Makes text the whole content of a file, which then holds either the text or what it held before, whatever happens
// meanwhile: a full disk, a signal, another writer, a loss of the process.
//
//   if (!replace_file(path, text)) ...  // not written: the file is as it was
//
// The steps, each of which may fail without harm:
//   1. Symbolic links are followed; a link stays one. The file at their end may be missing, but not its folder.
//   2. Anything but a regular file is refused, and so is a file that may not be written.
//   3. New files that dead writers left in the folder are removed.
//   4. The text goes to a new file in the same folder, named .qvt_new.<process>.<time>, which its writer keeps locked.
//      It gets the old file's mode, and its owner and group where we may set them, and is synced to the disk.
//   5. The new file is renamed to the old one's name, and the folder is synced.
//
// So the right to create files in the folder is needed, and further hard links keep the old text. No writer waits for
// another: the last to rename wins. No signal is raised, SIGXFSZ included. A writer that is killed may leave its new
// file, which the next writer removes.
bool replace_file(const boost::filesystem::path& path, std::string_view text);

}  // namespace SdkDebugDialog
