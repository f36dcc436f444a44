#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "util/Descriptor.h"

namespace SdkDebugDialog {

// A regular file, opened for reading. Other kinds of files are not opened: opening a pipe or a device can block or have
// side effects.
//
//   RegularFile file(path);
//   if (!file) ...  // file.error() or file.other_kind() says why
//   while ((count = file.read(buffer, sizeof buffer)) > 0) ...
//   if (count < 0) ...  // file.error() says why
class RegularFile {
 public:
  explicit RegularFile(const std::string& path);

  explicit operator bool() const { return static_cast<bool>(m_file); }

  // The kind of a file that is not regular, such as "a directory"; null if the file is regular or there is another
  // error.
  const char* other_kind() const { return m_otherKind; }

  // The errno of the last failed call.
  int error() const { return m_error; }

  // The size in bytes when the file was opened.
  std::uint64_t size() const { return m_size; }

  // Reads up to size bytes and returns the number read; 0 at the end of the file, negative on an error.
  std::ptrdiff_t read(char* buffer, std::size_t size);

 private:
  Descriptor m_file;
  const char* m_otherKind = nullptr;
  int m_error = 0;
  std::uint64_t m_size = 0;
};

}  // namespace SdkDebugDialog
