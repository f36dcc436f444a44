#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "util/Descriptor.h"

namespace SdkDebugDialog {

// A regular file, opened for reading. Anything else is not even opened: that alone may block, act on a device, or wake
// whoever waits at the other end.
//
//   RegularFile file(path);
//   if (!file) ...  // file.error() or file.other_kind() says why
//   while ((count = file.read(buffer, sizeof buffer)) > 0) ...
//   if (count < 0) ...  // file.error() says why
class RegularFile {
 public:
  explicit RegularFile(const std::string& path);

  explicit operator bool() const { return static_cast<bool>(m_file); }

  // What there is instead of a regular file, as in "a directory"; null where that is not why it is not open.
  const char* other_kind() const { return m_otherKind; }

  // The number of the system's error in the last call that failed.
  int error() const { return m_error; }

  // When it was opened, in bytes.
  std::uint64_t size() const { return m_size; }

  // Reads up to that many bytes, and returns how many; 0 at the end of the file, negative after an error.
  std::ptrdiff_t read(char* buffer, std::size_t size);

 private:
  Descriptor m_file;
  const char* m_otherKind = nullptr;
  int m_error = 0;
  std::uint64_t m_size = 0;
};

}  // namespace SdkDebugDialog
