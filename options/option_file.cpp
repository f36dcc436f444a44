#include "options/option_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <boost/filesystem/operations.hpp>
#include <boost/filesystem/path.hpp>
#include <cerrno>
#include <chrono>
#include <string_view>
#include <utility>

namespace SdkDebugDialog {
namespace {

namespace fs = boost::filesystem;

constexpr std::size_t kLongestLine = 1023;

// A file descriptor that closes itself.
class Descriptor {
 public:
  explicit Descriptor(int fd) : m_fd(fd) {}
  ~Descriptor() {
    if (m_fd >= 0) ::close(m_fd);
  }
  Descriptor(Descriptor&& other) noexcept : m_fd(std::exchange(other.m_fd, -1)) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  explicit operator bool() const { return m_fd >= 0; }
  int get() const { return m_fd; }
  // Closes now, for the error that this may report.
  bool close() { return ::close(std::exchange(m_fd, -1)) == 0; }

 private:
  int m_fd;
};

// Empty when the working directory cannot be told, or when the name holds a byte that no path may hold.
fs::path option_path(const std::string& processor) {
  boost::system::error_code error;
  const fs::path directory = fs::current_path(error);
  if (error || processor.find('\0') != std::string::npos) return {};
  return directory.string() + "/etc/qvt_" + processor + ".opt";
}

bool is_regular(const struct stat& status) { return S_ISREG(status.st_mode); }

// Opens a regular file for reading. Anything else is not even opened: that alone may wake whoever waits at its other
// end.
Descriptor open_regular(const fs::path& path) {
  struct stat status = {};
  if (::stat(path.c_str(), &status) != 0 || !is_regular(status)) return Descriptor(-1);
  Descriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
  if (!file || ::fstat(file.get(), &status) != 0 || !is_regular(status)) return Descriptor(-1);
  return file;
}

// --- Reading ---

// Reads what comes next into the buffer; 0 at the end of the file, negative when it cannot be read.
ssize_t read_some(int fd, char* buffer, std::size_t size) {
  ssize_t count = 0;
  do {
    count = ::read(fd, buffer, size);
  } while (count < 0 && errno == EINTR);
  return count;
}

// --- Writing ---

// Where a chain of links ends, whether or not something is there; empty for one that does not end.
fs::path follow_links(fs::path path) {
  boost::system::error_code error;
  for (int links = 0; links < 40; ++links) {
    if (fs::symlink_status(path, error).type() != fs::symlink_file) return path;
    const fs::path next = fs::read_symlink(path, error);
    if (error) return {};
    path = fs::absolute(next, path.parent_path());
  }
  return {};
}

bool write_all(int fd, std::string_view text) {
  while (!text.empty()) {
    const ssize_t count = ::write(fd, text.data(), text.size());
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) return false;
    text.remove_prefix(static_cast<std::size_t>(count));
  }
  return true;
}

// A file as it is before it is replaced.
struct Before {
  bool exists = false;
  bool replaceable = true;
  struct stat status = {};
};

Before look_at(int folder, const char* name) {
  Before before;
  if (::fstatat(folder, name, &before.status, AT_SYMLINK_NOFOLLOW) != 0) {
    before.replaceable = errno == ENOENT;
    return before;
  }
  before.exists = true;
  // Whoever may not write the file may not replace it either.
  before.replaceable = is_regular(before.status) &&
                       Descriptor(::openat(folder, name, O_WRONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
  return before;
}

// Fills a new file, which nobody else may read before it has the old one's mode, and sees to it that it is on the disk.
bool fill(Descriptor& file, const Before& before, std::string_view text) {
  if (before.exists) {
    // Owner and group are kept where we may, if only the group; the mode comes after, for a new owner cuts it.
    const bool owned = ::fchown(file.get(), before.status.st_uid, before.status.st_gid) == 0 ||
                       ::fchown(file.get(), static_cast<uid_t>(-1), before.status.st_gid) == 0;
    const mode_t kept = owned ? 07777 : 0777;
    if (::fchmod(file.get(), before.status.st_mode & kept) != 0) return false;
  }
  return write_all(file.get(), text) && ::fsync(file.get()) == 0 && file.close();
}

// The text goes to a new file that then takes the place of the old one. Whoever has the folder to himself uses a name
// that all writers share, and clears away what a writer that died has left there; one that finds another at work takes
// a name of its own. The folder stays locked until it is closed.
std::string new_file_name(int folder, const std::string& optionFile) {
  std::string name = ".qvt_new";
  if (name != optionFile && ::flock(folder, LOCK_EX | LOCK_NB) == 0) {
    ::unlinkat(folder, name.c_str(), 0);
    return name;
  }
  const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
  return name + "." + std::to_string(::getpid()) + "." + std::to_string(now);
}

}  // namespace

std::string read_option_line(const std::string& processor) {
  const Descriptor file = open_regular(option_path(processor));
  if (!file) return {};
  std::string line;
  char buffer[kLongestLine + 1];
  ssize_t count = 0;
  while ((count = read_some(file.get(), buffer, sizeof buffer)) > 0) {
    std::string_view part(buffer, static_cast<std::size_t>(count));
    if (line.empty()) part.remove_prefix(std::min(part.find_first_not_of('\n'), part.size()));
    const std::size_t end = part.find('\n');
    line += part.substr(0, end);
    if (line.size() >= kLongestLine) line.resize(kLongestLine);
    if (line.size() == kLongestLine || end != std::string_view::npos) return line;
  }
  return count == 0 ? line : std::string();
}

bool write_option_file(const std::string& processor, const std::string& text) {
  const fs::path path = follow_links(option_path(processor));
  const Descriptor folder(::open(path.parent_path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!folder) return false;

  const std::string name = path.filename().string();
  const std::string newName = new_file_name(folder.get(), name);
  const Before before = look_at(folder.get(), name.c_str());
  if (!before.replaceable) return false;
  const mode_t mode = before.exists ? 0600 : 0666;
  Descriptor file(::openat(folder.get(), newName.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, mode));
  if (!file) return false;
  const bool written =
      fill(file, before, text) && ::renameat(folder.get(), newName.c_str(), folder.get(), name.c_str()) == 0;
  if (!written) {
    ::unlinkat(folder.get(), newName.c_str(), 0);
    return false;
  }
  ::fsync(folder.get());
  return true;
}

}  // namespace SdkDebugDialog
