// File systems that are full, out of inodes or read-only, and a process without free file descriptors.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <string>

#include "options/QvtOption_Parser.h"
#include "tests/faults/file_folder.h"
#include "tests/support/in_child.h"

namespace {

constexpr int kNotAllowed = 99;

// Gives this process a mount name space of its own, and a user name space in which it is root if it is not root.
bool own_name_space() {
  const std::string uid = "0 " + std::to_string(::getuid()) + " 1";
  const std::string gid = "0 " + std::to_string(::getgid()) + " 1";
  if (::unshare(CLONE_NEWNS) != 0) {
    if (::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) return false;
    std::ofstream("/proc/self/setgroups") << "deny";
    std::ofstream("/proc/self/uid_map") << uid;
    std::ofstream("/proc/self/gid_map") << gid;
  }
  // Mounts from now on are private to this process.
  return ::mount("none", "/", "none", MS_REC | MS_PRIVATE, nullptr) == 0;
}

class Disk : public FileFolder {
 protected:
  // Runs in a child process that has a small private file system mounted at etc, with an old option file in it. run
  // returns 0 for success.
  void on_disk(const std::string& options, const std::function<int()>& run) {
    const int result = in_child([&] {
      if (!own_name_space()) return kNotAllowed;
      if (::mount("none", etc().c_str(), "tmpfs", 0, options.c_str()) != 0) return kNotAllowed;
      write_old();
      return content() == kOldText ? run() : 98;
    });
    if (result == kNotAllowed) GTEST_SKIP() << "a private tmpfs may not be mounted here";
    EXPECT_EQ(result, 0);
  }

  // Writes a file until the disk is full.
  void fill_up() const {
    const int filler = ::open((etc() / "filler").c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    for (const std::size_t size : {4096U, 1U}) {
      const std::string some(size, 'f');
      while (::write(filler, some.data(), some.size()) > 0) {
      }
    }
    ::close(filler);
  }

  // 0 when the write was refused and the old file is unchanged, else the number of the failed check.
  int refused(SelectedEngine& e) const {
    const std::vector<std::string> before = WorkFolder::list(etc());
    if (e.engine.Generate() != 4) return 1;
    if (e.error() != "Error Opening File") return 2;
    if (!e.processor.command.starts_with("connect ov")) return 3;
    if (content() != kOldText) return 4;
    return WorkFolder::list(etc()) == before ? 0 : 5;
  }
  int written() const {
    Writer e;
    return e.engine.Generate() == 0 && content() == kNewText && new_files().empty() ? 0 : 6;
  }
};

TEST_F(Disk, ThatIsFullKeepsTheOldFile) {
  on_disk("size=64k", [this] {
    fill_up();
    Writer e;
    if (const int wrong = refused(e); wrong != 0) return wrong;
    std::filesystem::remove(etc() / "filler");
    return written();
  });
}

TEST_F(Disk, ThatHasRoomForAPartOfTheTextKeepsTheOldFile) {
  on_disk("size=64k", [this] {
    fill_up();
    std::filesystem::resize_file(etc() / "filler", std::filesystem::file_size(etc() / "filler") - 8192);
    StubWriter e(std::string(20000, 'x'));
    if (const int wrong = refused(e); wrong != 0) return wrong;
    return written();
  });
}

TEST_F(Disk, WithoutAFreeInodeKeepsTheOldFile) {
  on_disk("size=64k,nr_inodes=3", [this] {
    std::ofstream(etc() / "filler") << "f";
    Writer e;
    if (const int wrong = refused(e); wrong != 0) return wrong;
    std::filesystem::remove(etc() / "filler");
    return written();
  });
}

TEST_F(Disk, ThatIsReadOnlyKeepsTheOldFileAndItCanBeRead) {
  on_disk("size=64k", [this] {
    WorkFolder::write(file(), "connect ov sim");
    if (::mount("none", etc().c_str(), "tmpfs", MS_REMOUNT | MS_RDONLY, "size=64k") != 0) return kNotAllowed;
    Writer e;
    if (e.engine.Generate() != 4 || e.error() != "Error Opening File") return 1;
    if (e.processor.command != kNewText) return 2;
    if (WorkFolder::list(etc()).size() != 1) return 3;
    SelectedEngine reader;
    if (SdkDebugDialog::QvtOption_Parser::ReadQvtOptFile("p", reader.imp) != 0) return 4;
    return reader.processor.command == "connect ov sim" ? 0 : 5;
  });
}

// --- Descriptors ---

TEST_F(Disk, KeepsTheOldFileWhenTheProcessHasTooFewFileDescriptors) {
  write_old();
  EXPECT_EQ(in_child([this] {
              rlimit limit = {};
              ::getrlimit(RLIMIT_NOFILE, &limit);
              // The lowest free descriptor.
              const int next = ::dup(0);
              ::close(next);
              int refusals = 0;
              for (limit.rlim_cur = static_cast<rlim_t>(next);; ++limit.rlim_cur) {
                ::setrlimit(RLIMIT_NOFILE, &limit);
                Writer e;
                const int status = e.engine.Generate();
                const std::string error = e.error();
                SelectedEngine reader;
                const int read = SdkDebugDialog::QvtOption_Parser::ReadQvtOptFile("p", reader.imp);
                const rlimit enough = {limit.rlim_max, limit.rlim_max};
                ::setrlimit(RLIMIT_NOFILE, &enough);
                if (!new_files().empty()) return 1;
                if (read != (refusals == 0 ? 4 : 3) && status == 4) return 2;
                if (status == 0) return content() == kNewText && refusals == 2 ? 0 : 3;
                if (status != 4 || error != "Error Opening File") return 4;
                if (content() != kOldText) return 5;
                if (++refusals > 10) return 6;
              }
            }),
            0);
  expect_file_alone();
}

}  // namespace
