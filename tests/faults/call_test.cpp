// System calls that fail, are interrupted, or at which the process is killed. A helper process reads or writes an
// option file under strace, which injects the faults.

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <set>
#include <string>
#include <vector>

#include "tests/faults/file_folder.h"
#include "tests/faults/strace.h"

namespace {

const std::string kWritten = std::string("0||") + kNewText;
const std::string kRefused = std::string("4|Error Opening File|") + kNewText;
constexpr char kMissing[] = "4||an older command";

// The nth call with this name, and the errors to inject.
struct Fault {
  const char* call;
  int nth;
  std::vector<const char*> errors;
};

class Calls : public FileFolder {
 protected:
  void SetUp() override {
#ifndef __x86_64__
    GTEST_SKIP() << "the system calls are named as 64-bit x86 makes them";
#endif
    if (const std::string why = why_no_strace(); !why.empty()) GTEST_SKIP() << "strace cannot trace here: " << why;
  }

  // The system calls of a run, without those for memory.
  std::vector<Call> calls(const std::string& mode) const {
    static const std::set<std::string> memory = {"brk", "mmap", "munmap", "mprotect", "madvise", "mremap", "futex"};
    std::vector<Call> all = run_traced(path(), mode).calls;
    std::erase_if(all, [](const Call& call) { return memory.contains(call.name); });
    EXPECT_GE(all.size(), 6U);
    return all;
  }

  // Runs the helper with a fault injected into a call; how is the fault in strace's syntax, such as "error=EIO".
  Trace run_with(const std::string& mode, const Call& call, const std::string& how, const std::string& until = "") {
    Trace trace = run_traced(path(), mode, {call.name + ":" + how + ":when=" + std::to_string(call.count) + until});
    if (how.starts_with("signal")) {
      EXPECT_EQ(trace.end, "+++ killed by SIGKILL +++");
    } else {
      EXPECT_GE(trace.injected, 1) << "nothing was injected";
    }
    return trace;
  }
  static Call find(const std::vector<Call>& all, const Fault& fault) {
    const auto found =
        std::ranges::find_if(all, [&](const Call& call) { return call.name == fault.call && call.nth == fault.nth; });
    EXPECT_TRUE(found != all.end()) << fault.call << ' ' << fault.nth << " is not called";
    return found != all.end() ? *found : Call();
  }

  // Expects this output of the helper and this content of the file, for each error of each fault.
  void expect_write(const std::vector<Fault>& faults, const std::string& output, const std::string& after) {
    write_old();
    const std::vector<Call> all = calls("write");
    for (const Fault& fault : faults) {
      const Call call = find(all, fault);
      for (const char* const error : fault.errors) {
        SCOPED_TRACE(call.line + " fails with " + error);
        write_old();
        EXPECT_EQ(run_with("write", call, std::string("error=") + error).output, output);
        EXPECT_EQ(content(), after);
        expect_file_alone();
      }
    }
  }
};

// --- Writing ---

TEST_F(Calls, ThatAreNeededToWriteFailAndTheOldFileStays) {
  expect_write({{"getcwd", 1, {"ENOENT", "EACCES"}},
                {"openat", 1, {"EACCES", "EIO", "EMFILE", "ENFILE", "ENOTDIR"}},          // the folder
                {"newfstatat", 2, {"EIO", "EACCES"}},                                     // the old file
                {"openat", 2, {"EACCES", "EROFS", "ETXTBSY"}},                            // the old file, to write
                {"openat", 4, {"EACCES", "EDQUOT", "EIO", "EMFILE", "ENOSPC", "EROFS"}},  // the new file
                {"fchmod", 1, {"EPERM", "EIO"}},
                {"write", 1, {"EIO", "ENOSPC", "EDQUOT", "EFBIG"}},
                {"fsync", 1, {"EIO", "ENOSPC", "EDQUOT"}},
                {"close", 3, {"EIO", "ENOSPC", "EDQUOT"}},
                {"renameat", 1, {"EIO", "EACCES", "ENOSPC", "EROFS", "EBUSY"}}},
               kRefused, kOldText);
}

TEST_F(Calls, ThatAreNotNeededToWriteMayFail) {
  expect_write({{"openat", 3, {"EACCES", "EIO", "EMFILE"}},  // the folder, to list it
                {"getdents64", 1, {"EIO"}},
                {"openat", 4, {"EEXIST"}},  // the writer then tries another name
                {"flock", 1, {"ENOLCK", "EOPNOTSUPP", "EINVAL", "EAGAIN"}},
                {"fchown", 1, {"EPERM", "EIO"}},
                {"fcntl", 1, {"EMFILE"}},
                {"fsync", 2, {"EIO", "EINVAL"}}},  // the folder, after the file was replaced
               kWritten, kNewText);
}

TEST_F(Calls, OfAWriteThatASignalInterruptsAreMadeAgain) {
  write_old();
  const std::vector<Call> all = calls("write");
  for (const Fault& fault :
       {Fault{"openat", 1, {}}, {"openat", 2, {}}, {"openat", 4, {}}, {"write", 1, {}}, {"fsync", 1, {}}}) {
    const Call call = find(all, fault);
    SCOPED_TRACE(call.line);
    write_old();
    const Trace trace = run_with("write", call, "error=EINTR", ".." + std::to_string(call.count + 2));
    EXPECT_EQ(trace.injected, 3);
    EXPECT_EQ(trace.output, kWritten);
    EXPECT_EQ(content(), kNewText);
    expect_file_alone();
  }
  // close() is not repeated: an interrupted close has closed the file, and fsync came before.
  write_old();
  EXPECT_EQ(run_with("write", find(all, {"close", 3, {}}), "error=EINTR").output, kWritten);
  EXPECT_EQ(content(), kNewText);
}

TEST_F(Calls, ThatWriteAPartAreFollowedByOneForTheRest) {
  // The injected result claims that five characters were written, so only the rest is in the file.
  write_old();
  const Call call = find(calls("write"), {"write", 1, {}});
  write_old();
  EXPECT_EQ(run_with("write", call, "retval=5").output, kWritten);
  EXPECT_EQ(content(), std::string(kNewText).substr(5));
  write_old();
  EXPECT_EQ(run_with("write", call, "retval=0").output, kRefused);
  EXPECT_EQ(content(), kOldText);
  expect_file_alone();
}

TEST_F(Calls, ThatSetTheOwnerMayFailAndTheModeIsKept) {
  write_old();
  std::filesystem::permissions(file(), std::filesystem::perms(0640));
  EXPECT_EQ(run_with("write", find(calls("write"), {"fchown", 1, {}}), "error=EPERM", "+").output, kWritten);
  EXPECT_EQ(content(), kNewText);
  EXPECT_EQ(std::filesystem::status(file()).permissions(), std::filesystem::perms(0640));
}

TEST_F(Calls, OfAWriteThatFailLeaveTheOldFileOrTheNewOneAndNoOther) {
  for (const bool existed : {true, false}) {
    std::filesystem::remove(file());
    if (existed) write_old();
    for (const Call& call : calls("write")) {
      SCOPED_TRACE(call.line);
      std::filesystem::remove(file());
      if (existed) write_old();
      const std::string output = run_with("write", call, "error=EIO").output;
      if (output == kWritten) {
        EXPECT_EQ(content(), kNewText);
        expect_file_alone();
      } else {
        EXPECT_EQ(output, kRefused);
        EXPECT_EQ(content(), existed ? kOldText : "");
        EXPECT_EQ(WorkFolder::list(etc()).size(), existed ? 1U : 0U);
      }
    }
  }
}

TEST_F(Calls, CreateTheNewFileUnreadableForOthers) {
  write_old();
  std::filesystem::permissions(file(), std::filesystem::perms(0600));
  run_with("write", find(calls("write"), {"fchown", 1, {}}), "signal=SIGKILL");
  ASSERT_EQ(new_files().size(), 1U);
  EXPECT_EQ(std::filesystem::status(etc() / new_files().front()).permissions(), std::filesystem::perms(0600));
}

TEST_F(Calls, AtWhichAWriterIsKilledLeaveTheOldFileOrTheNewOneAndTheNextWriterCleansUp) {
  write_old();
  int left = 0;
  for (const Call& call : calls("write")) {
    SCOPED_TRACE(call.line);
    write_old();
    run_with("write", call, "signal=SIGKILL");
    EXPECT_TRUE(content() == kOldText || content() == kNewText) << content();
    EXPECT_LE(new_files().size(), 1U);
    left += new_files().empty() ? 0 : 1;
    expect_written();
  }
  EXPECT_GT(left, 5) << "no writer died with its new file in the folder";
}

TEST_F(Calls, ThatRemoveTheNewFileMayFailAndTheNextWriterRemovesIt) {
  write_old();
  const Call write = find(calls("write"), {"write", 1, {}});
  write_old();
  const Trace trace =
      run_traced(path(), "write", {"write:error=ENOSPC:when=" + std::to_string(write.count), "unlinkat:error=EIO"});
  EXPECT_EQ(trace.injected, 2);
  EXPECT_EQ(trace.output, kRefused);
  EXPECT_EQ(content(), kOldText);
  EXPECT_EQ(new_files().size(), 1U);
  expect_written();
}

TEST_F(Calls, ForLocksMayFailAndLeftFilesAreRemovedByAge) {
  write_old();
  const std::filesystem::path left = etc() / ".qvt_new.4711.123456789";
  for (const bool old : {false, true}) {
    WorkFolder::write(left, "half a te");
    using std::chrono::minutes;
    std::filesystem::last_write_time(left, std::filesystem::file_time_type::clock::now() - minutes(old ? 61 : 59));
    const Trace trace = run_traced(path(), "write", {"flock:error=ENOLCK"});
    EXPECT_EQ(trace.injected, 2);
    EXPECT_EQ(trace.output, kWritten);
    EXPECT_EQ(std::filesystem::exists(left), !old);
  }
  expect_written();
}

// --- Reading ---

TEST_F(Calls, ThatAreNeededToReadFailAndTheFileCountsAsMissing) {
  WorkFolder::write(file(), "connect ov sim");
  const std::vector<Call> all = calls("read");
  for (const Fault& fault : {Fault{"getcwd", 1, {"ENOENT", "EACCES"}},
                             {"newfstatat", 1, {"EIO", "EACCES", "ELOOP"}},
                             {"openat", 1, {"EACCES", "EIO", "EMFILE", "ENFILE"}},
                             {"newfstatat", 2, {"EIO"}},
                             {"read", 1, {"EIO", "EISDIR"}},
                             {"read", 2, {"EIO"}}}) {
    const Call call = find(all, fault);
    for (const char* const error : fault.errors) {
      SCOPED_TRACE(call.line + " fails with " + error);
      EXPECT_EQ(run_with("read", call, std::string("error=") + error).output, kMissing);
      EXPECT_EQ(content(), "connect ov sim");
    }
  }
  EXPECT_EQ(run_with("read", find(all, {"close", 1, {}}), "error=EIO").output, "0||connect ov sim");
}

TEST_F(Calls, OfAReadThatASignalInterruptsAreMadeAgain) {
  WorkFolder::write(file(), "connect ov sim");
  const std::vector<Call> all = calls("read");
  for (const Fault& fault : {Fault{"openat", 1, {}}, {"read", 1, {}}, {"read", 2, {}}}) {
    const Call call = find(all, fault);
    SCOPED_TRACE(call.line);
    const Trace trace = run_with("read", call, "error=EINTR", ".." + std::to_string(call.count + 2));
    EXPECT_EQ(trace.injected, 3);
    EXPECT_EQ(trace.output, "0||connect ov sim");
  }
}

TEST_F(Calls, OfAReadThatFailDoNoHarm) {
  WorkFolder::write(file(), "connect ov sim");
  for (const Call& call : calls("read")) {
    SCOPED_TRACE(call.line);
    const std::string output = run_with("read", call, "error=EIO").output;
    EXPECT_TRUE(output == kMissing || output == "0||connect ov sim") << output;
  }
  expect_file_alone();
}

}  // namespace
