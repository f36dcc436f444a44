#include "util/replace_file.h"

#include <dirent.h>
#include <fcntl.h>
#include <pthread.h>
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
#include "util/lock.h"

namespace SdkDebugDialog {
namespace {

namespace fs = boost::filesystem;

// Blocks SIGXFSZ in this thread, so that a write beyond the file-size limit fails with EFBIG instead of terminating the
// program. The destructor removes the pending signal and restores the signal mask.
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
    // A signal that was already pending before is left pending.
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

// The state of the file before it is replaced.
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
  // Without write permission for the file itself, it must not be replaced either.
  before.replaceable = S_ISREG(before.status.st_mode) && open_to_write(folder, name);
  return before;
}

// Prefix of the temporary files. Every writer uses a name of its own, so writers do not wait for each other. A writer
// keeps its file locked, so the next writer can tell a file in use from one whose writer was terminated. A wrong guess
// does no harm: a writer whose temporary file was removed cannot rename it and fails.
constexpr std::string_view kNewFile = ".qvt_new.";

bool is_new_file(std::string_view name) {
  return name.starts_with(kNewFile) && name.find_first_not_of("0123456789.", kNewFile.size()) == name.npos;
}

std::string new_file_name() {
  const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
  return std::string(kNewFile) + std::to_string(::getpid()) + "." + std::to_string(now);
}

// A temporary file, created empty. The destructor removes it unless it was renamed. False when it cannot be created.
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
      // Another writer may have removed it, as left behind, before it was locked.
      struct stat status = {};
      if (lock(m_file) != Lock::heldByAnother && ::fstat(m_file.get(), &status) == 0 && status.st_nlink > 0) return;
      remove();
    }
  }
  ~NewFile() { remove(); }
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;

  explicit operator bool() const { return !m_name.empty(); }

  // Sets owner and mode first, so that the text is never readable for more users than before; then writes and syncs.
  bool fill(const Before& before, std::string_view text) {
    if (before.exists) {
      // Keep owner and group if permitted, else at least the group. The mode is set after them, because a change of
      // owner clears the set-user-ID and set-group-ID bits; these are dropped if not even the group is kept.
      const bool owned = ::fchown(m_file.get(), before.status.st_uid, before.status.st_gid) == 0 ||
                         ::fchown(m_file.get(), static_cast<uid_t>(-1), before.status.st_gid) == 0;
      const mode_t kept = owned ? 07777 : 0777;
      if (::fchmod(m_file.get(), before.status.st_mode & kept) != 0) return false;
    }
    return write_all(m_file.get(), text) && uninterrupted([&] { return ::fsync(m_file.get()); }) == 0;
  }

  bool replace(const std::string& name) {
    // close() can report a write error. The duplicate descriptor keeps the lock until the file is renamed.
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

// Removes a temporary file whose writer has terminated. If the lock cannot be checked, because the file system has no
// locks or the file cannot be opened, the file is removed when it is older than an hour.
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

fs::path follow_links(fs::path path) {
  boost::system::error_code error;
  for (int links = 0; links < 40; ++links) {
    if (fs::symlink_status(path, error).type() != fs::symlink_file) return path;
    const fs::path next = fs::read_symlink(path, error);
    if (error) return {};
    path = next.is_absolute() ? next : path.parent_path() / next;
  }
  return {};
}

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
