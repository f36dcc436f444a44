#pragma once

#include <boost/filesystem/path.hpp>
#include <string_view>

namespace SdkDebugDialog {

// Replaces the content of a file by text, atomically: afterwards the file holds either text or its old content, even
// after a full disk, a signal, a concurrent writer or the end of the process.
//
//   if (!replace_file(path, text)) ...  // not written: the file is unchanged
//
// The steps; if one fails, the file is unchanged:
//   1. Symbolic links are followed and kept. The target file may be missing, its folder may not.
//   2. A target that is not a regular file, or is not writable, is refused.
//   3. Temporary files that terminated writers left in the folder are removed.
//   4. The text is written to a temporary file in the same folder, named .qvt_new.<process>.<time> and locked by its
//      writer. It gets the mode of the old file, and its owner and group if permitted, and is synced to the disk.
//   5. The temporary file is renamed to the target, and the folder is synced.
//
// The caller needs permission to create files in the folder. Other hard links to the file keep the old content. Writers
// do not wait for each other: the last rename wins. No signal is raised, not even SIGXFSZ. A writer that is killed may
// leave its temporary file, which the next writer removes.
bool replace_file(const boost::filesystem::path& path, std::string_view text);

// The target of a chain of symbolic links, which need not exist; the path itself if it is no link; empty for a loop.
boost::filesystem::path follow_links(boost::filesystem::path path);

}  // namespace SdkDebugDialog
