#include "util/guarded_file.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <thread>
#include <vector>

#include "tests/options/work_folder.h"
#include "tests/support/GlobalLocale.h"
#include "tests/support/become_nobody.h"
#include "tests/support/in_child.h"
#include "util/Descriptor.h"

namespace SdkDebugDialog {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using namespace std::string_literals;
using testing::ElementsAre;
using testing::IsEmpty;

const FileContent kMissing = {};

FileContent holding(const std::string& bytes) { return {.exists = true, .bytes = bytes, .error = ""}; }

class GuardedFile : public testing::Test {
 protected:
  const fs::path& folder() const { return m_folder.path(); }
  fs::path etc() const { return m_folder.path() / "etc"; }
  std::string path() const { return (etc() / "file").string(); }
  std::string content() const { return WorkFolder::read(path()); }
  void write(const std::string& text) const { WorkFolder::write(path(), text); }

 private:
  GlobalLocale m_classic;  // for the texts of the system
  WorkFolder m_folder;     // the working directory
};

Descriptor locked_folder(const fs::path& folder) {
  Descriptor locked(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  EXPECT_EQ(::flock(locked.get(), LOCK_EX | LOCK_NB), 0);
  return locked;
}

void expect_done(const ReplaceResult& result) {
  EXPECT_EQ(result.result, Replaced::done);
  EXPECT_EQ(result.error, "");
}

void expect_changed(const ReplaceResult& result) {
  EXPECT_EQ(result.result, Replaced::changed);
  EXPECT_EQ(result.error, "");
}

void expect_failed(const ReplaceResult& result, const std::string& error) {
  EXPECT_EQ(result.result, Replaced::failed);
  EXPECT_EQ(result.error, error);
}

// --- Reading ---

void expect_content(const std::string& path, std::size_t limit, const std::string& bytes) {
  SCOPED_TRACE(path);
  const FileContent content = read_whole_file(path, limit);
  EXPECT_TRUE(content.exists);
  EXPECT_EQ(content.bytes, bytes);
  EXPECT_EQ(content.error, "");
}

void expect_unreadable(const std::string& path, std::size_t limit, const std::string& error) {
  SCOPED_TRACE(path);
  const FileContent content = read_whole_file(path, limit);
  EXPECT_FALSE(content.exists);
  EXPECT_EQ(content.bytes, "");
  EXPECT_EQ(content.error, error);
}

TEST_F(GuardedFile, IsReadWhole) {
  for (const std::string& text : {""s, "x"s, "a\0b\n"s, std::string(100000, 'x')}) {
    write(text);
    expect_content(path(), text.size(), text);
    expect_content("etc/file", std::string::npos, text);
  }
  fs::create_symlink("file", etc() / "link");
  expect_content("etc/link", 100000, std::string(100000, 'x'));
}

TEST_F(GuardedFile, IsReadUpToALimit) {
  write("four");
  expect_content(path(), 4, "four");
  expect_unreadable(path(), 3, "is larger than 3 bytes");
  expect_unreadable(path(), 0, "is larger than 0 bytes");
  // A file without an end, which is larger than the memory.
  write("");
  fs::resize_file(path(), std::uintmax_t{1} << 40U);
  expect_unreadable(path(), 1000, "is larger than 1000 bytes");
}

TEST_F(GuardedFile, ThatIsMissingIsNoError) {
  for (const char* const missing : {"etc/file", "nowhere/file", ""}) expect_unreadable(missing, 100, "");
  fs::create_symlink("nowhere", etc() / "link");
  expect_unreadable("etc/link", 100, "");
}

TEST_F(GuardedFile, ThatCannotBeReadIsAnError) {
  expect_unreadable("etc", 100, "is a directory");
  expect_unreadable("/dev/zero", 100, "is a character device");
  ASSERT_EQ(::mkfifo("pipe", 0600), 0);
  expect_unreadable("pipe", 100, "is a pipe");
  write("");
  expect_unreadable("etc/file/x", 100, "Not a directory");
  expect_unreadable("etc/file\0x"s, 100, "its name contains a NUL byte");
  expect_unreadable(std::string(300, 'x'), 100, "File name too long");
  fs::create_symlink("link", etc() / "link");
  expect_unreadable("etc/link", 100, "Too many levels of symbolic links");
}

// --- Replacing ---

TEST_F(GuardedFile, IsReplacedAsLongAsItIsAsExpected) {
  expect_done(replace_file_if_unchanged(path(), kMissing, "first"));
  EXPECT_EQ(content(), "first");
  expect_done(replace_file_if_unchanged(path(), holding("first"), "a\0b"s));
  EXPECT_EQ(content(), "a\0b"s);
  expect_done(replace_file_if_unchanged("etc/file", read_whole_file("etc/file", 100), ""));
  EXPECT_EQ(content(), "");
  expect_done(replace_file_if_unchanged("etc/file", holding(""), std::string(100000, 'x')));
  EXPECT_EQ(content(), std::string(100000, 'x'));
  EXPECT_THAT(WorkFolder::list(etc()), ElementsAre("file"));
}

TEST_F(GuardedFile, InTheWorkingDirectoryNeedsNoFolderInItsPath) {
  expect_done(replace_file_if_unchanged("plain", kMissing, "first"));
  fs::create_symlink("plain", "link");
  expect_done(replace_file_if_unchanged("link", holding("first"), "second"));
  EXPECT_EQ(WorkFolder::read("plain"), "second");
  EXPECT_TRUE(fs::is_symlink("link"));
}

TEST_F(GuardedFile, ThatWasChangedIsLeftAlone) {
  expect_changed(replace_file_if_unchanged(path(), holding(""), "new"));
  EXPECT_THAT(WorkFolder::list(etc()), IsEmpty());

  write("other");
  for (const FileContent& expected : {kMissing, holding(""), holding("othe"), holding("othex"), holding("other\n")}) {
    SCOPED_TRACE(expected.bytes);
    expect_changed(replace_file_if_unchanged(path(), expected, "new"));
    EXPECT_EQ(content(), "other");
  }
  write("");
  expect_changed(replace_file_if_unchanged(path(), kMissing, "new"));
  // It is not read into memory to find out.
  fs::resize_file(path(), std::uintmax_t{1} << 40U);
  expect_changed(replace_file_if_unchanged(path(), holding(""), "new"));
  EXPECT_THAT(WorkFolder::list(etc()), ElementsAre("file"));
}

TEST_F(GuardedFile, ThatWasChangedIsReplacedOnRequest) {
  write("other");
  expect_done(replace_file_if_unchanged(path(), kMissing, "new", true));
  EXPECT_EQ(content(), "new");
  fs::remove(path());
  expect_done(replace_file_if_unchanged(path(), holding("new"), "again", true));
  EXPECT_EQ(content(), "again");
}

TEST_F(GuardedFile, BehindLinksIsReplacedAndTheLinksStay) {
  fs::create_directory("real");
  fs::create_symlink("../real/second", path());
  fs::create_symlink("third", "real/second");
  for (const std::string& place : {path(), "etc/file"s}) {
    fs::remove("real/third");
    expect_done(replace_file_if_unchanged(place, kMissing, "first"));
    expect_changed(replace_file_if_unchanged(place, holding("old"), "second"));
    expect_done(replace_file_if_unchanged(place, holding("first"), "second"));
    EXPECT_EQ(WorkFolder::read("real/third"), "second");
    EXPECT_TRUE(fs::is_regular_file(fs::symlink_status("real/third")));
    EXPECT_EQ(fs::read_symlink(path()), "../real/second");
    EXPECT_EQ(fs::read_symlink("real/second"), "third");
  }
}

// --- Several writers ---

// The results of writers that begin together and expect the same.
template <class Write>
std::vector<Replaced> race(int writers, const Write& write) {
  std::atomic<int> waiting = writers;
  std::vector<Replaced> results(static_cast<std::size_t>(writers));
  std::vector<std::thread> threads;
  threads.reserve(results.size());
  for (std::size_t i = 0; i < results.size(); ++i) {
    threads.emplace_back([&, i] {
      for (--waiting; waiting != 0;) std::this_thread::yield();
      results[i] = write(std::string(i + 1, 'x'));
    });
  }
  for (std::thread& thread : threads) thread.join();
  return results;
}

// Exactly one has written, and its text, which its number tells, is in the file.
void expect_one_winner(const std::vector<Replaced>& results, const std::string& content) {
  EXPECT_EQ(std::ranges::count(results, Replaced::done), 1);
  EXPECT_EQ(std::ranges::count(results, Replaced::changed), static_cast<std::ptrdiff_t>(results.size()) - 1);
  const auto winner = std::ranges::find(results, Replaced::done) - results.begin();
  EXPECT_EQ(content, std::string(static_cast<std::size_t>(winner) + 1, 'x'));
}

TEST_F(GuardedFile, IsWrittenByOneOfSeveralThreadsThatExpectTheSame) {
  for (int round = 0; round < 30; ++round) {
    const FileContent before = read_whole_file(path(), 100);
    const auto results =
        race(4, [&](const std::string& text) { return replace_file_if_unchanged(path(), before, text).result; });
    expect_one_winner(results, content());
    write("before");
  }
}

TEST_F(GuardedFile, IsWrittenByOneOfSeveralProcessesThatExpectTheSame) {
  for (int round = 0; round < 10; ++round) {
    const FileContent before = read_whole_file(path(), 100);
    const auto results = race(4, [&](const std::string& text) {
      return static_cast<Replaced>(
          in_child([&] { return static_cast<int>(replace_file_if_unchanged(path(), before, text).result); }));
    });
    expect_one_winner(results, content());
    write("before");
  }
}

TEST_F(GuardedFile, IsNotWrittenWhileAnotherProcessHoldsTheLock) {
  write("old");
  const Descriptor held = locked_folder(etc());
  for (const bool evenIfChanged : {false, true}) {
    EXPECT_EQ(in_child([&] {
                const auto begin = std::chrono::steady_clock::now();
                const ReplaceResult result =
                    replace_file_if_unchanged(path(), holding("old"), "new", evenIfChanged, 50ms);
                if (std::chrono::steady_clock::now() - begin < 50ms) return 1;
                if (result.error != "another program is writing in this folder") return 2;
                return result.result == Replaced::failed ? 0 : 3;
              }),
              0);
  }
  EXPECT_EQ(content(), "old");
  EXPECT_THAT(WorkFolder::list(etc()), ElementsAre("file"));
}

TEST_F(GuardedFile, IsWrittenWhenTheLockIsReleasedInTime) {
  write("old");
  Descriptor held = locked_folder(etc());
  std::thread holder([&] {
    std::this_thread::sleep_for(100ms);
    EXPECT_TRUE(held.close());
  });
  expect_done(replace_file_if_unchanged(path(), holding("old"), "new"));
  holder.join();
  EXPECT_EQ(content(), "new");
  // And the lock is free again.
  EXPECT_TRUE(locked_folder(etc()));
}

TEST_F(GuardedFile, BehindALinkNeedsTheLockOfItsOwnFolder) {
  fs::create_directory("real");
  fs::create_symlink("../real/file", path());
  {
    const Descriptor held = locked_folder("real");
    expect_failed(replace_file_if_unchanged(path(), kMissing, "new", false, 0ms),
                  "another program is writing in this folder");
  }
  const Descriptor held = locked_folder(etc());
  expect_done(replace_file_if_unchanged(path(), kMissing, "new", false, 0ms));
}

// --- Failures ---

TEST_F(GuardedFile, InAFolderThatCannotBeUsedIsNotWritten) {
  expect_failed(replace_file_if_unchanged("nowhere/file", kMissing, "new"),
                "there is no folder nowhere: make it first");
  write("old");
  expect_failed(replace_file_if_unchanged("etc/file/x", kMissing, "new"), "etc/file is no folder");
  expect_failed(replace_file_if_unchanged("etc/file/x/y", kMissing, "new"),
                "the folder etc/file/x cannot be used: Not a directory");
  fs::create_symlink("../nowhere/file", etc() / "link");
  expect_failed(replace_file_if_unchanged("etc/link", kMissing, "new"),
                "there is no folder etc/../nowhere: make it first");
  EXPECT_EQ(content(), "old");
}

TEST_F(GuardedFile, ThatIsNoRegularFileIsNotReplaced) {
  fs::create_directory(path());
  ASSERT_EQ(::mkfifo("etc/pipe", 0600), 0);
  for (const char* const name : {"etc/file", "etc/pipe", "etc/", ".", "/dev/null"}) {
    SCOPED_TRACE(name);
    for (const bool evenIfChanged : {false, true}) {
      expect_failed(replace_file_if_unchanged(name, kMissing, "new", evenIfChanged), "it is not a regular file");
    }
  }
  EXPECT_THAT(WorkFolder::list(etc()), ElementsAre("file", "pipe"));
}

TEST_F(GuardedFile, WithoutAProperNameIsNotWritten) {
  fs::create_symlink("link", "link");
  expect_failed(replace_file_if_unchanged("link", kMissing, "new"), "Too many levels of symbolic links");
  expect_failed(replace_file_if_unchanged("", kMissing, "new"), "No such file or directory");
  expect_failed(replace_file_if_unchanged("etc/file\0x"s, kMissing, "new"), "its name contains a NUL byte");
  expect_failed(replace_file_if_unchanged("etc/" + std::string(300, 'x'), kMissing, "new"),
                "it cannot be read: File name too long");
  EXPECT_THAT(WorkFolder::list(etc()), IsEmpty());
}

TEST_F(GuardedFile, OnAFullDiskIsUnchanged) {
  write("old");
  EXPECT_EQ(in_child([&] {
              const rlimit ten = {10, 10};
              ::setrlimit(RLIMIT_FSIZE, &ten);
              const ReplaceResult result = replace_file_if_unchanged(path(), holding("old"), "more than ten bytes");
              if (result.error != "check that the disk has free space; the file is unchanged") return 1;
              return result.result == Replaced::failed ? 0 : 2;
            }),
            0);
  EXPECT_EQ(content(), "old");
  EXPECT_THAT(WorkFolder::list(etc()), ElementsAre("file"));
}

TEST_F(GuardedFile, IsNotWrittenWithoutAFreeDescriptor) {
  EXPECT_EQ(in_child([&] {
              const rlimit none = {0, 0};
              ::setrlimit(RLIMIT_NOFILE, &none);
              const ReplaceResult result = replace_file_if_unchanged(path(), kMissing, "new");
              return result.result == Replaced::failed && result.error == "Too many open files" ? 0 : 1;
            }),
            0);
  EXPECT_THAT(WorkFolder::list(etc()), IsEmpty());
}

// As an unprivileged user.
class GuardedFileOfOthers : public GuardedFile {
 protected:
  void SetUp() override {
    if (::geteuid() != 0) GTEST_SKIP() << "needs root to switch to another user";
    fs::permissions(folder(), fs::perms::all);
    fs::permissions(etc(), fs::perms::all);
  }
  void set_modes(mode_t ofFolder, mode_t ofFile) const {
    write("old");
    ASSERT_EQ(::chmod(path().c_str(), ofFile), 0);
    ASSERT_EQ(::chmod(etc().c_str(), ofFolder), 0);
  }
  static void expect_error_as_nobody(const std::string& error, const std::function<std::string()>& run) {
    EXPECT_EQ(in_child([&] {
                if (!become_nobody()) return 100;
                const std::string actual = run();
                if (actual != error) std::fprintf(stderr, "%s\n", actual.c_str());
                return actual == error ? 0 : 1;
              }),
              0)
        << error;
  }
  static void expect_not_written_as_nobody(const std::string& error, bool evenIfChanged = false) {
    expect_error_as_nobody(error, [&] {
      const ReplaceResult result = replace_file_if_unchanged("etc/file", holding("old"), "new", evenIfChanged);
      return result.result == Replaced::failed ? result.error : "not failed";
    });
    EXPECT_EQ(WorkFolder::read("etc/file"), "old");
    EXPECT_THAT(WorkFolder::list("etc"), ElementsAre("file"));
  }
};

TEST_F(GuardedFileOfOthers, IsNotReadWithoutPermission) {
  set_modes(0777, 0600);
  expect_error_as_nobody("Permission denied", [&] { return read_whole_file("etc/file", 100).error; });
  set_modes(0700, 0666);
  expect_error_as_nobody("Permission denied", [&] { return read_whole_file("etc/file", 100).error; });
}

TEST_F(GuardedFileOfOthers, IsNotWrittenWithoutPermission) {
  set_modes(0755, 0666);
  expect_not_written_as_nobody("the folder etc is not writable");
  set_modes(0777, 0644);
  expect_not_written_as_nobody("it is not writable");
  set_modes(0777, 0622);
  expect_not_written_as_nobody("it cannot be read: Permission denied");
  set_modes(0733, 0666);
  expect_not_written_as_nobody("the folder etc is not readable");
  set_modes(0777, 0600);
  expect_not_written_as_nobody("it is not writable", true);
  ASSERT_EQ(::chmod(folder().c_str(), 0700), 0);
  expect_not_written_as_nobody("the folder etc cannot be used: Permission denied");
}

TEST_F(GuardedFileOfOthers, IsWrittenWithPermission) {
  set_modes(0777, 0666);
  expect_error_as_nobody("", [&] { return replace_file_if_unchanged("etc/file", holding("old"), "new").error; });
  EXPECT_EQ(content(), "new");
}

}  // namespace
}  // namespace SdkDebugDialog
