#pragma once

#include <chrono>
#include <cstddef>
#include <string>
#include <string_view>

namespace SdkDebugDialog {

// What a file held when it was read. With an error, the other two tell nothing.
struct FileContent {
  bool exists = false;
  std::string bytes;
  std::string
      error;  // why it cannot be read: "is a directory", "Permission denied"; empty if it was read or is missing
};

// Reads a regular file of at most limit bytes; symbolic links are followed. Other kinds of files are not opened.
FileContent read_whole_file(const std::string& path, std::size_t limit);

// Whether two paths lead to the same file, which need not be there.
bool is_same_path(const std::string& a, const std::string& b);

enum class Replaced {
  done,     // the file holds the text
  changed,  // not written: the file is not as expected
  failed,   // not written: see the error
};

struct ReplaceResult {
  Replaced result;
  std::string error;  // why it failed, and what to do: "there is no folder etc: make it first"
};

// Replaces the content of a file that people and other programs change too, if it is still as it was read:
//
//   const FileContent before = read_whole_file(path, kLimit);
//   ...                                                           // the new text is made
//   const ReplaceResult stored = replace_file_if_unchanged(path, before, text);
//   if (stored.result == Replaced::changed) ...                   // somebody else changed the file: read it again
//
// The steps; if one fails, the file is unchanged:
//   1. The folder of the file is locked with flock. For a symbolic link it is the folder of the file that the link
//   leads
//      to. While another program holds the lock, this waits, up to the limit.
//   2. The file is read again and compared with what is expected, unless evenIfChanged is set.
//   3. The file is replaced atomically by replace_file (util/replace_file.h), and the folder is unlocked.
//
// Of several callers that expect the same, in threads or processes, exactly one succeeds. An editor or another program
// that takes no lock is noticed unless it writes between steps 2 and 3. The same holds on a file system without locks.
ReplaceResult replace_file_if_unchanged(const std::string& path, const FileContent& expected, std::string_view text,
                                        bool evenIfChanged = false,
                                        std::chrono::milliseconds limit = std::chrono::seconds(5));

}  // namespace SdkDebugDialog
