#include "util/guarded_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <boost/filesystem/operations.hpp>
#include <boost/filesystem/path.hpp>
#include <cerrno>
#include <cstddef>
#include <system_error>
#include <thread>

#include "util/Descriptor.h"
#include "util/lock.h"
#include "util/regular_file.h"
#include "util/replace_file.h"

namespace SdkDebugDialog {
namespace {

namespace fs = boost::filesystem;

constexpr const char* kNulByte = "its name contains a NUL byte";

std::string error_text(int error) { return std::generic_category().message(error); }

// Reads until the file ends or more than limit bytes are there.
FileContent read_beyond(const std::string& path, std::size_t limit) {
  FileContent content;
  RegularFile file(path);
  if (!file) {
    if (file.other_kind() != nullptr) {
      content.error = std::string("is ") + file.other_kind();
    } else if (file.error() != ENOENT) {
      content.error = error_text(file.error());
    }
    return content;
  }
  content.exists = true;
  char buffer[16384];
  std::ptrdiff_t count = 0;
  while (content.bytes.size() <= limit && (count = file.read(buffer, sizeof buffer)) > 0) {
    content.bytes.append(buffer, static_cast<std::size_t>(count));
  }
  if (count < 0) content.error = error_text(file.error());
  return content;
}

// False while another program holds the lock.
bool lock_within(std::chrono::milliseconds limit, const Descriptor& folder) {
  constexpr std::chrono::milliseconds kPause(10);
  const auto end = std::chrono::steady_clock::now() + limit;
  while (lock(folder) == Lock::heldByAnother) {
    if (std::chrono::steady_clock::now() >= end) return false;
    std::this_thread::sleep_for(kPause);
  }
  return true;
}

bool may(int how, const fs::path& path) { return ::faccessat(AT_FDCWD, path.c_str(), how, AT_EACCESS) == 0; }

// Looks for the reason after the failure. The last resort is what to say if nothing is found.
std::string why_not_written(const fs::path& folder, const fs::path& file, const std::string& lastResort) {
  struct stat status = {};
  if (::stat(folder.c_str(), &status) != 0) {
    if (errno == ENOENT) return "there is no folder " + folder.string() + ": make it first";
    return "the folder " + folder.string() + " cannot be used: " + error_text(errno);
  }
  if (!S_ISDIR(status.st_mode)) return folder.string() + " is no folder";
  if (::stat(file.c_str(), &status) == 0) {
    if (!S_ISREG(status.st_mode)) return "it is not a regular file";
    if (!may(W_OK, file)) return "it is not writable";
  }
  if (!may(W_OK | X_OK, folder)) return "the folder " + folder.string() + " is not writable";
  if (!may(R_OK, folder)) return "the folder " + folder.string() + " is not readable";
  return lastResort;
}

}  // namespace

bool is_same_path(const std::string& a, const std::string& b) {
  if (a == b) return true;
  boost::system::error_code error;
  const fs::path first = fs::weakly_canonical(a, error);
  if (error) return false;
  const fs::path second = fs::weakly_canonical(b, error);
  return !error && first == second;
}

FileContent read_whole_file(const std::string& path, std::size_t limit) {
  if (path.find('\0') != std::string::npos) return {false, "", kNulByte};
  FileContent content = read_beyond(path, limit);
  if (content.bytes.size() > limit) return {false, "", "is larger than " + std::to_string(limit) + " bytes"};
  return content;
}

ReplaceResult replace_file_if_unchanged(const std::string& path, const FileContent& expected, std::string_view text,
                                        bool evenIfChanged, std::chrono::milliseconds limit) {
  if (path.find('\0') != std::string::npos) return {Replaced::failed, kNulByte};
  const fs::path target = follow_links(path);
  if (target.empty()) return {Replaced::failed, error_text(path.empty() ? ENOENT : ELOOP)};
  const fs::path folder = target.has_parent_path() ? target.parent_path() : ".";
  const fs::path file = folder / target.filename();
  const auto failed = [&](const std::string& lastResort) {
    return ReplaceResult{Replaced::failed, why_not_written(folder, file, lastResort)};
  };

  const Descriptor locked(uninterrupted([&] { return ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); }));
  if (!locked) return failed(error_text(errno));
  if (!lock_within(limit, locked)) return {Replaced::failed, "another program is writing in this folder"};
  if (!evenIfChanged) {
    const FileContent now = read_beyond(file.string(), expected.bytes.size());
    if (!now.error.empty()) return failed("it cannot be read: " + now.error);
    if (now.exists != expected.exists || now.bytes != expected.bytes) return {Replaced::changed, ""};
  }
  if (!replace_file(file, text)) return failed("check that the disk has free space; the file is unchanged");
  return {Replaced::done, ""};
}

}  // namespace SdkDebugDialog
