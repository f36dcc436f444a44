#include "util/replace_file.h"

#include <dirent.h>
#include <fcntl.h>
#include <pthread.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <boost/filesystem/operations.hpp>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <ctime>
#include <memory>
#include <string>
#include <utility>

#include "util/Descriptor.h"

namespace SdkDebugDialog {
namespace {

namespace fs = boost::filesystem;

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

// While it lives, a write beyond the file-size limit fails with EFBIG and no more: SIGXFSZ, which would end a program
// that does not expect it, comes to the thread that writes, is held back and then taken away.
class FileSizeSignal {
 public:
  FileSizeSignal() {
    ::sigemptyset(&m_signal);
    ::sigaddset(&m_signal, SIGXFSZ);
    sigset_t pending;
    ::sigemptyset(&pending);
    ::sigpending(&pending);
    m_waits = ::sigismember(&pending, SIGXFSZ) == 1;
    ::pthread_sigmask(SIG_BLOCK, &m_signal, &m_before);
  }
  ~FileSizeSignal() {
    // One that was held back by somebody else already is theirs.
    const timespec now = {};
    if (!m_waits) uninterrupted([&] { return ::sigtimedwait(&m_signal, nullptr, &now); });
    ::pthread_sigmask(SIG_SETMASK, &m_before, nullptr);
  }
  FileSizeSignal(const FileSizeSignal&) = delete;
  FileSizeSignal& operator=(const FileSizeSignal&) = delete;

 private:
  sigset_t m_signal;
  sigset_t m_before;
  bool m_waits = false;
};

bool write_all(int fd, std::string_view text) {
  const FileSizeSignal held;
  while (!text.empty()) {
    const ssize_t count = uninterrupted([&] { return ::write(fd, text.data(), text.size()); });
    if (count <= 0) return false;
    text.remove_prefix(static_cast<std::size_t>(count));
  }
  return true;
}

Descriptor open_to_write(int folder, const char* name) {
  return Descriptor(
      uninterrupted([&] { return ::openat(folder, name, O_WRONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC); }));
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
  before.replaceable = S_ISREG(before.status.st_mode) && open_to_write(folder, name);
  return before;
}

// The text goes to a new file that then takes the place of the old one. Every writer has a name of its own for it, so
// that none waits for another, and keeps it locked, so that whoever writes next can tell the file of a writer at work
// from one that a writer left when it died. Neither name nor lock has to be right for the file to stay whole: a writer
// whose new file is cleared away has nothing to rename.
constexpr std::string_view kNewFile = ".qvt_new.";

bool is_new_file(std::string_view name) {
  return name.starts_with(kNewFile) && name.find_first_not_of("0123456789.", kNewFile.size()) == name.npos;
}

std::string new_file_name() {
  const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
  return std::string(kNewFile) + std::to_string(::getpid()) + "." + std::to_string(now);
}

enum class Lock { got, heldByAnother, unknown };  // unknown: some file systems have no locks

Lock lock(const Descriptor& file) {
  if (::flock(file.get(), LOCK_EX | LOCK_NB) == 0) return Lock::got;
  return errno == EWOULDBLOCK ? Lock::heldByAnother : Lock::unknown;
}

// A new, empty file that goes away again unless it takes another's place. It has no name when it cannot be made.
class NewFile {
 public:
  NewFile(int folder, mode_t mode) : m_folder(folder), m_file(-1) {
    for (int tries = 0; tries < 100; ++tries) {
      std::string name = new_file_name();
      Descriptor file(uninterrupted(
          [&] { return ::openat(folder, name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, mode); }));
      if (!file && errno == EEXIST) continue;
      if (!file) return;
      m_name = std::move(name);
      m_file = std::move(file);
      // Before it was locked somebody may have taken it for one left behind.
      struct stat status = {};
      if (lock(m_file) != Lock::heldByAnother && ::fstat(m_file.get(), &status) == 0 && status.st_nlink > 0) return;
      remove();
    }
  }
  ~NewFile() { remove(); }
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;

  explicit operator bool() const { return !m_name.empty(); }

  // Nobody else may read it before it has the old one's mode. Sees to it that the text is on the disk.
  bool fill(const Before& before, std::string_view text) {
    if (before.exists) {
      // Owner and group are kept where we may, if only the group; the mode comes after, for a new owner cuts it.
      const bool owned = ::fchown(m_file.get(), before.status.st_uid, before.status.st_gid) == 0 ||
                         ::fchown(m_file.get(), static_cast<uid_t>(-1), before.status.st_gid) == 0;
      const mode_t kept = owned ? 07777 : 0777;
      if (::fchmod(m_file.get(), before.status.st_mode & kept) != 0) return false;
    }
    return write_all(m_file.get(), text) && uninterrupted([&] { return ::fsync(m_file.get()); }) == 0;
  }

  bool replace(const std::string& name) {
    // Closing may report an error as well; the lock lasts as long as the second descriptor.
    const Descriptor locked(::fcntl(m_file.get(), F_DUPFD_CLOEXEC, 0));
    if (!m_file.close() || ::renameat(m_folder, m_name.c_str(), m_folder, name.c_str()) != 0) return false;
    m_name.clear();
    return true;
  }

 private:
  void remove() {
    if (!m_name.empty()) ::unlinkat(m_folder, m_name.c_str(), 0);
    m_name.clear();
  }

  int m_folder;
  Descriptor m_file;
  std::string m_name;
};

// Clears a new file away whose writer has died. Where locks cannot tell, be it that there are none or that the file may
// not be opened, its age does: writing takes moments.
void clear_if_left_behind(int folder, const char* name) {
  constexpr time_t kHour = 3600;
  struct stat status = {};
  if (::fstatat(folder, name, &status, AT_SYMLINK_NOFOLLOW) != 0 || !S_ISREG(status.st_mode)) return;
  const Descriptor file = open_to_write(folder, name);
  const Lock locked = file ? lock(file) : Lock::unknown;
  if (locked == Lock::got || (locked == Lock::unknown && std::time(nullptr) - status.st_mtim.tv_sec > kHour)) {
    ::unlinkat(folder, name, 0);
  }
}

void clear_left_behind(const fs::path& path, int folder, const std::string& target) {
  struct Close {
    void operator()(DIR* names) const { ::closedir(names); }
  };
  const std::unique_ptr<DIR, Close> names(::opendir(path.c_str()));
  if (names == nullptr) return;
  while (const dirent* const entry = ::readdir(names.get())) {
    if (is_new_file(entry->d_name) && entry->d_name != target) clear_if_left_behind(folder, entry->d_name);
  }
}

}  // namespace

bool replace_file(const fs::path& path, std::string_view text) {
  const fs::path target = follow_links(path);
  const fs::path folderPath = target.parent_path();
  const Descriptor folder(
      uninterrupted([&] { return ::open(folderPath.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); }));
  if (!folder) return false;

  const std::string name = target.filename().string();
  const Before before = look_at(folder.get(), name.c_str());
  if (!before.replaceable) return false;
  clear_left_behind(folderPath, folder.get(), name);
  NewFile newFile(folder.get(), before.exists ? 0600 : 0666);
  if (!newFile || !newFile.fill(before, text) || !newFile.replace(name)) return false;
  ::fsync(folder.get());
  return true;
}

}  // namespace SdkDebugDialog
