#include "util/regular_file.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <iterator>

namespace SdkDebugDialog {
namespace {

// Null for a regular file.
const char* other_kind_of(const struct stat& status) {
  constexpr struct {
    mode_t type;
    const char* words;
  } kKinds[] = {{S_IFREG, nullptr},     {S_IFDIR, "a directory"},        {S_IFIFO, "a pipe"},
                {S_IFSOCK, "a socket"}, {S_IFCHR, "a character device"}, {S_IFBLK, "a block device"}};
  const auto* const kind =
      std::ranges::find_if(kKinds, [&](const auto& k) { return k.type == (status.st_mode & S_IFMT); });
  return kind != std::end(kKinds) ? kind->words : "something else";
}

}  // namespace

// Checks the kind again after opening: another process may have replaced the file in between.
RegularFile::RegularFile(const std::string& path) {
  struct stat status = {};
  const auto is_regular = [&](int result) {
    if (result != 0) {
      m_error = errno;
      return false;
    }
    m_otherKind = other_kind_of(status);
    return m_otherKind == nullptr;
  };
  if (!is_regular(::stat(path.c_str(), &status))) return;
  Descriptor file(uninterrupted([&] { return ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC); }));
  if (!file) {
    m_error = errno;
    return;
  }
  if (!is_regular(::fstat(file.get(), &status))) return;
  m_file = std::move(file);
  m_size = static_cast<std::uint64_t>(status.st_size);
}

std::ptrdiff_t RegularFile::read(char* buffer, std::size_t size) {
  const ssize_t count = uninterrupted([&] { return ::read(m_file.get(), buffer, size); });
  if (count < 0) m_error = errno;
  return count;
}

}  // namespace SdkDebugDialog
