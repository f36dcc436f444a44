// Reading and writing the option file.

#include "options/option_file.h"

#include <fcntl.h>
#include <grp.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <csignal>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "SdkDebugDialog/Expected.h"
#include "options/QvtOption_Parser.h"
#include "tests/options/reading.h"
#include "tests/options/work_folder.h"
#include "tests/support/GlobalLocale.h"
#include "tests/support/OptionFileWriter.h"
#include "tests/support/become_nobody.h"
#include "tests/support/in_child.h"

namespace SdkDebugDialog {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using namespace std::string_literals;

mode_t mode_of(const fs::path& path) {
  struct stat status = {};
  EXPECT_EQ(::stat(path.c_str(), &status), 0);
  return status.st_mode & 07777;
}

class OptionFile : public testing::Test {
 protected:
  const WorkFolder& folder() const { return m_folder; }
  fs::path etc() const { return m_folder.path() / "etc"; }
  fs::path file() const { return m_folder.option_file("p"); }
  std::string content() const { return WorkFolder::read(file()); }

  // Writes a file with this content and expects these results of reading it.
  void expect_read(const std::string& fileContent, int status, const std::string& command) {
    SCOPED_TRACE(testing::PrintToString(fileContent.substr(0, 60)) + " of " + std::to_string(fileContent.size()));
    WorkFolder::write(file(), fileContent);
    expect_read_as_it_is(status, command);
  }
  void expect_read_as_it_is(int status, const std::string& command) {
    SelectedEngine e;
    e.processor.command = "an older command";
    EXPECT_EQ(QvtOption_Parser::ReadQvtOptFile("p", e.imp), status);
    EXPECT_TRUE(e.processor.command == command) << e.processor.command.size() << " characters";
    EXPECT_EQ(e.error(), "");
  }
  void expect_no_file() { expect_read_as_it_is(4, "an older command"); }

  // Expects that writing fails with the error text.
  void expect_refused() {
    Writer e;
    EXPECT_EQ(e.engine.Generate(), 4);
    EXPECT_EQ(e.error(), "Error Opening File");
    EXPECT_EQ(e.processor.command, kNewText);
  }
  void expect_written() {
    Writer e;
    EXPECT_EQ(e.engine.Generate(), 0);
    EXPECT_EQ(e.error(), "");
    EXPECT_EQ(content(), kNewText);
  }
  void expect_names(const std::vector<std::string>& names) { EXPECT_EQ(WorkFolder::list(etc()), names); }

 private:
  WorkFolder m_folder;
};

// --- Which file ---

TEST_F(OptionFile, LiesInTheWorkingDirectoryUnderTheNameOfTheProcessor) {
  WorkFolder::write(etc() / "qvt_ovrin_0.opt", "connect ov sim");
  WorkFolder::write(etc() / "qvt_.opt", "connect ov stub");
  WorkFolder::write(etc() / "qvt_a b.opt", "vpconnect ov");
  SelectedEngine e;
  EXPECT_EQ(QvtOption_Parser::ReadQvtOptFile("ovrin_0", e.imp), 0);
  EXPECT_EQ(e.processor.connectionType, 1U);
  EXPECT_EQ(QvtOption_Parser::ReadQvtOptFile("", e.imp), 0);
  EXPECT_EQ(e.processor.connectionType, 4U);
  EXPECT_EQ(QvtOption_Parser::ReadQvtOptFile("a b", e.imp), 0);
  EXPECT_EQ(e.processor.connectionType, 8U);
  EXPECT_EQ(QvtOption_Parser::ReadQvtOptFile("Ovrin_0", e.imp), 4);
}

TEST_F(OptionFile, FollowsTheWorkingDirectory) {
  fs::create_directories(etc() / "other" / "etc");
  fs::current_path(etc() / "other");
  Writer e;
  EXPECT_EQ(e.engine.Generate(), 0);
  EXPECT_EQ(WorkFolder::read(etc() / "other" / "etc" / "qvt_p.opt"), kNewText);
  EXPECT_FALSE(fs::exists(file()));
}

TEST_F(OptionFile, IsWrittenUnderTheNameOfTheSelectedRecord) {
  Writer e;
  e.processor.name = "q";
  EXPECT_EQ(e.engine.Generate(), 0);
  expect_names({"qvt_q.opt"});
}

TEST_F(OptionFile, OfANameThatNoFileCanHaveIsNeitherReadNorWritten) {
  for (const std::string& name : {"a\0b"s, std::string(300, 'n'), "no/such/folder"s}) {
    Writer e;
    e.processor.name = name;
    EXPECT_EQ(QvtOption_Parser::ReadQvtOptFile(name, e.imp), 4);
    EXPECT_EQ(e.engine.Generate(), 4);
    EXPECT_EQ(e.error(), "Error Opening File");
  }
  expect_names({});
}

// --- Which line ---

TEST_F(OptionFile, IsReadFromTheFirstLineThatIsNotEmpty) {
  expect_read("connect ov odm", 0, "connect ov odm");
  expect_read("connect ov odm\n", 0, "connect ov odm");
  expect_read("\nconnect ov odm\n", 0, "connect ov odm");
  expect_read("\n\n\n\nconnect ov odm\nconnect mips\n", 0, "connect ov odm");
  expect_read("connect mips\nconnect ov odm\n", 3, "connect mips");
  expect_read(std::string(100000, '\n') + "connect ov odm", 0, "connect ov odm");
  expect_read(std::string(1020, '\n') + "connect ov odm\nconnect mips", 0, "connect ov odm");
  expect_read(std::string(1023, '\n') + "connect ov odm\nconnect mips", 0, "connect ov odm");
  expect_read(std::string(1024, '\n') + "connect ov odm\nconnect mips", 0, "connect ov odm");
}

TEST_F(OptionFile, KeepsTheCarriageReturnOfALine) {
  expect_read("connect ov odm\r\nconnect mips\r\n", 0, "connect ov odm\r");
}

TEST_F(OptionFile, TakesACarriageReturnAloneForTheCommand) {
  expect_read("\r\nconnect ov odm\r\n", 3, "\r");
  expect_read("\n\r\nconnect ov odm\n", 3, "\r");
  expect_read("\r", 3, "\r");
}

TEST_F(OptionFile, TakesALineOfWhiteSpaceForTheCommand) {
  expect_read(" \nconnect ov odm\n", 3, " ");
  expect_read("\t\v\f\n", 3, "\t\v\f");
}

TEST_F(OptionFile, WithoutALineIsAsGoodAsMissing) {
  for (const std::string& empty : {""s, "\n"s, "\n\n"s, std::string(1024, '\n'), std::string(1 << 20, '\n')}) {
    expect_read(empty, 4, "an older command");
  }
}

TEST_F(OptionFile, IsCutAfter1023Characters) {
  const std::string start = "connect ov stub -port ";
  for (const std::string& before : {""s, "\n"s, "\n\n\n"s, std::string(1000, '\n')}) {
    for (const std::string& after : {""s, "\n"s, "\nconnect mips\n"s}) {
      for (const std::size_t length : {1000U, 1022U, 1023U, 1024U, 1025U, 2047U, 2048U, 5000U}) {
        const std::string line = start + std::string(length - start.size(), 'x');
        expect_read(std::string(before).append(line).append(after), 0, line.substr(0, 1023));
      }
    }
  }
}

TEST_F(OptionFile, LosesWhatStandsBehind1023Characters) {
  const std::string blanks(1023 - 14, ' ');
  expect_read("connect ov odm" + blanks + "-foo", 0, "connect ov odm" + blanks);
  expect_read("connect ov odm" + blanks.substr(2) + "xyz", 3, "connect ov odm" + blanks.substr(2) + "xy");
  // The line is cut after the dash of an option.
  WorkFolder::write(file(), "connect ov odm" + blanks.substr(1) + "-quiet");
  SelectedEngine e;
  EXPECT_THROW(QvtOption_Parser::ReadQvtOptFile("p", e.imp), std::out_of_range);
  EXPECT_EQ(e.processor.command.back(), '-');
}

TEST_F(OptionFile, KeepsNulBytes) {
  expect_read("\0\nconnect ov odm\n"s, 3, "\0"s);
  expect_read("connect ov odm\0\n"s, 3, "connect ov odm\0"s);
  expect_read("connect ov stub -port a\0b\n"s, 0, "connect ov stub -port a\0b"s);
}

TEST_F(OptionFile, KeepsBytesThatAreNoText) {
  expect_read("\xFF\xFE\x80\n", 3, "\xFF\xFE\x80");
  expect_read("connect ov stub -port \x80\xFF\n", 0, "connect ov stub -port \x80\xFF");
}

TEST_F(OptionFile, IsCutAtALineFeedThatAWrittenTextHolds) {
  SelectedEngine e;
  e.processor.name = "ovrin_0";
  e.processor.connectionType = Engine::STUB;
  e.processor.stubType = Engine::STUB_OVER_SERIAL;
  e.processor.stubSerialPort = "a\nb";
  EXPECT_EQ(e.engine.Generate(), 0);
  EXPECT_EQ(e.processor.command, "connect ov stub -comm serial -port a\nb  -baud  0 -timeout 20000");
  SelectedEngine fresh;
  EXPECT_EQ(QvtOption_Parser::ReadQvtOptFile("ovrin_0", fresh.imp), 0);
  EXPECT_EQ(fresh.processor.command, "connect ov stub -comm serial -port a");
}

// --- Length ---

constexpr off_t kFiveGigabytes = off_t{5} << 30;

TEST_F(OptionFile, OfFiveGigabytesWithoutALineEndIsReadAtOnce) {
  WorkFolder::write(file(), "connect ov stub -port x");
  ASSERT_EQ(::truncate(file().c_str(), kFiveGigabytes), 0);
  const std::clock_t start = std::clock();
  expect_read_as_it_is(0, "connect ov stub -port x" + std::string(1023 - 23, '\0'));
  EXPECT_LT(std::clock() - start, CLOCKS_PER_SEC / 5);
}

TEST_F(OptionFile, OfFiveGigabytesIsReplacedAtOnce) {
  WorkFolder::write(file(), kOldText);
  ASSERT_EQ(::truncate(file().c_str(), kFiveGigabytes), 0);
  expect_written();
}

TEST_F(OptionFile, OfAnyDateIsReadAndReplaced) {
  constexpr time_t kYear2100 = 4102444800;
  WorkFolder::write(file(), "connect ov sim");
  const std::array<timespec, 2> times = {{{kYear2100, 0}, {kYear2100, 0}}};
  ASSERT_EQ(::utimensat(AT_FDCWD, file().c_str(), times.data(), 0), 0);
  expect_read_as_it_is(0, "connect ov sim");
  expect_written();
}

// --- Anything but a regular file ---

TEST_F(OptionFile, IsMissingWithoutItsFolderWhichIsNotCreated) {
  fs::remove(etc());
  expect_no_file();
  expect_refused();
  EXPECT_FALSE(fs::exists(etc()));
  WorkFolder::write(etc(), "a file in place of the folder");
  expect_no_file();
  expect_refused();
  EXPECT_EQ(WorkFolder::read(etc()), "a file in place of the folder");
}

TEST_F(OptionFile, IsNotAFolder) {
  fs::create_directory(file());
  expect_no_file();
  expect_refused();
  EXPECT_TRUE(fs::is_directory(file()));
  expect_names({"qvt_p.opt"});
}

TEST_F(OptionFile, IsNotASocket) {
  const int server = ::socket(AF_UNIX, SOCK_STREAM, 0);
  ASSERT_GE(server, 0);
  sockaddr_un address = {};
  address.sun_family = AF_UNIX;
  ASSERT_LT(file().string().size(), sizeof address.sun_path);
  file().string().copy(address.sun_path, sizeof address.sun_path - 1);
  ASSERT_EQ(::bind(server, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
  expect_no_file();
  expect_refused();
  EXPECT_TRUE(fs::is_socket(file()));
  ::close(server);
}

TEST_F(OptionFile, IsNotADevice) {
  // Own device nodes, so that an error in the code cannot replace those of the machine.
  for (const auto& [name, number] : {std::pair{"null", 3U}, {"zero", 5U}, {"full", 7U}}) {
    const fs::path device = folder().path() / name;
    if (::mknod(device.c_str(), S_IFCHR | 0666, makedev(1, number)) != 0) GTEST_SKIP() << "may not make devices";
    SCOPED_TRACE(name);
    fs::create_symlink(device, file());
    expect_no_file();
    expect_refused();
    EXPECT_EQ(fs::read_symlink(file()), device);
    EXPECT_TRUE(fs::is_character_file(device));
    fs::remove(file());
  }
}

// Whether a process is blocked.
bool sleeps(pid_t process) {
  const std::string status = WorkFolder::read("/proc/" + std::to_string(process) + "/stat");
  const std::size_t state = status.rfind(") ");
  return state != std::string::npos && status[state + 2] == 'S';
}

TEST_F(OptionFile, IsNotAPipeAndAPipeIsNotOpened) {
  for (const bool linked : {false, true}) {
    const fs::path pipe = linked ? folder().path() / "pipe" : file();
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    if (linked) fs::create_symlink(pipe, file());
    // Blocks in open() until another process opens the other end.
    const pid_t waiting = ::fork();
    if (waiting == 0) ::_exit(::open(pipe.c_str(), O_WRONLY) >= 0 ? 0 : 1);
    ASSERT_GT(waiting, 0);
    for (int i = 0; i < 400 && !sleeps(waiting); ++i) std::this_thread::sleep_for(5ms);
    ASSERT_TRUE(sleeps(waiting));

    expect_no_file();
    expect_refused();
    std::this_thread::sleep_for(20ms);
    EXPECT_EQ(::waitpid(waiting, nullptr, WNOHANG), 0) << "the pipe was opened";
    EXPECT_TRUE(fs::is_fifo(pipe));

    ::kill(waiting, SIGKILL);
    ::waitpid(waiting, nullptr, 0);
    fs::remove(file());
  }
}

TEST_F(OptionFile, IsNotFoundInAWorkingDirectoryThatIsGone) {
  EXPECT_EQ(in_child([this] {
              fs::create_directory(etc() / "gone");
              fs::current_path(etc() / "gone");
              fs::remove(etc() / "gone");
              Writer e;
              if (QvtOption_Parser::ReadQvtOptFile("p", e.imp) != 4) return 1;
              if (!e.error().empty()) return 2;
              if (e.engine.Generate() != 4) return 3;
              if (e.error() != "Error Opening File") return 4;
              return e.processor.command == kNewText ? 0 : 5;
            }),
            0);
  expect_names({});
}

// --- Links ---

TEST_F(OptionFile, ThatIsALinkStaysOneAndItsTargetIsReplaced) {
  fs::create_directory(folder().path() / "elsewhere");
  const fs::path target = folder().path() / "elsewhere" / "real.opt";
  for (const fs::path& link : {target, fs::path("../elsewhere/real.opt")}) {
    SCOPED_TRACE(link);
    WorkFolder::write(target, "connect ov sim");
    fs::create_symlink(link, file());
    expect_read_as_it_is(0, "connect ov sim");
    expect_written();
    EXPECT_EQ(fs::read_symlink(file()), link);
    EXPECT_EQ(WorkFolder::read(target), kNewText);
    expect_names({"qvt_p.opt"});
    EXPECT_EQ(WorkFolder::list(folder().path() / "elsewhere"), std::vector<std::string>{"real.opt"});
    fs::remove(file());
  }
}

TEST_F(OptionFile, IsFoundThroughAChainOfLinks) {
  fs::create_symlink("second", file());
  fs::create_symlink("third", etc() / "second");
  WorkFolder::write(etc() / "third", "connect ov sim");
  expect_read_as_it_is(0, "connect ov sim");
  expect_written();
  EXPECT_TRUE(fs::is_symlink(file()));
  EXPECT_TRUE(fs::is_symlink(etc() / "second"));
  EXPECT_FALSE(fs::is_symlink(etc() / "third"));
  expect_names({"qvt_p.opt", "second", "third"});
}

TEST_F(OptionFile, IsCreatedWhereADanglingLinkPoints) {
  fs::create_symlink("target", file());
  expect_no_file();
  expect_written();
  EXPECT_EQ(fs::read_symlink(file()), "target");
  EXPECT_EQ(WorkFolder::read(etc() / "target"), kNewText);
}

TEST_F(OptionFile, IsNotCreatedInAMissingFolderThatALinkNames) {
  fs::create_symlink("missing/target", file());
  expect_no_file();
  expect_refused();
  EXPECT_TRUE(fs::is_symlink(file()));
  expect_names({"qvt_p.opt"});
}

TEST_F(OptionFile, IsRefusedWhereLinksGoInCircles) {
  fs::create_symlink("other", file());
  fs::create_symlink("qvt_p.opt", etc() / "other");
  expect_no_file();
  expect_refused();
  EXPECT_TRUE(fs::is_symlink(file()));
  expect_names({"other", "qvt_p.opt"});
}

TEST_F(OptionFile, IsRefusedWhereALinkLeadsToAFolder) {
  fs::create_symlink(etc(), file());
  expect_no_file();
  expect_refused();
  EXPECT_TRUE(fs::is_symlink(file()));
  expect_names({"qvt_p.opt"});
}

// --- Mode and owner ---

TEST_F(OptionFile, IsReplacedWholeAndLeavesNothingBesides) {
  WorkFolder::write(file(), std::string(100000, 'o'));
  expect_written();
  expect_written();
  expect_names({"qvt_p.opt"});
}

TEST_F(OptionFile, KeepsItsMode) {
  for (const mode_t mode : {0600U, 0640U, 0644U, 0666U, 0604U, 0755U}) {
    SCOPED_TRACE(mode);
    WorkFolder::write(file(), kOldText);
    ASSERT_EQ(::chmod(file().c_str(), mode), 0);
    const mode_t mask = ::umask(077);
    expect_written();
    ::umask(mask);
    EXPECT_EQ(mode_of(file()), mode);
  }
}

TEST_F(OptionFile, GetsTheModeThatTheProcessGivesNewFiles) {
  for (const mode_t mask : {022U, 077U, 0U}) {
    const mode_t before = ::umask(mask);
    expect_written();
    ::umask(before);
    EXPECT_EQ(mode_of(file()), 0666U & ~mask);
    fs::remove(file());
  }
}

TEST_F(OptionFile, KeepsItsOwner) {
  WorkFolder::write(file(), kOldText);
  if (::chown(file().c_str(), 65534, 65534) != 0) GTEST_SKIP() << "may not give files away";
  ASSERT_EQ(::chmod(file().c_str(), 0640), 0);
  expect_written();
  struct stat status = {};
  ASSERT_EQ(::stat(file().c_str(), &status), 0);
  EXPECT_EQ(status.st_uid, 65534U);
  EXPECT_EQ(status.st_gid, 65534U);
  EXPECT_EQ(status.st_mode & 07777, 0640U);
}

// Reads or writes as an unprivileged user, in a folder that every user may write to.
class OptionFileOfOthers : public OptionFile {
 protected:
  void SetUp() override {
    if (::geteuid() != 0) GTEST_SKIP() << "needs root to switch to another user";
    fs::permissions(folder().path(), fs::perms::all);
    fs::permissions(etc(), fs::perms::all);
  }
  // The result of Generate; 100 when switching the user fails, 101 when error text or command are wrong.
  static int generate_as_nobody() {
    return in_child([] {
      if (!become_nobody()) return 100;
      Writer e;
      const int status = e.engine.Generate();
      return e.error() == (status == 4 ? "Error Opening File" : "") && e.processor.command == kNewText ? status : 101;
    });
  }
  static int read_as_nobody() {
    return in_child([] {
      if (!become_nobody()) return 100;
      SelectedEngine e;
      return QvtOption_Parser::ReadQvtOptFile("p", e.imp);
    });
  }
};

TEST_F(OptionFileOfOthers, IsRefusedWhereTheUserMayNotWriteItAndIsNotReplaced) {
  WorkFolder::write(file(), kOldText);
  struct stat before = {};
  ASSERT_EQ(::stat(file().c_str(), &before), 0);
  for (const mode_t mode : {0644U, 0444U, 0600U, 0U}) {
    ASSERT_EQ(::chmod(file().c_str(), mode), 0);
    EXPECT_EQ(generate_as_nobody(), 4);
    EXPECT_EQ(content(), kOldText);
    expect_names({"qvt_p.opt"});
  }
  // A read-only file that belongs to the user.
  ASSERT_EQ(::chown(file().c_str(), 65534, 65534), 0);
  ASSERT_EQ(::chmod(file().c_str(), 0444), 0);
  EXPECT_EQ(generate_as_nobody(), 4);
  EXPECT_EQ(content(), kOldText);
  struct stat after = {};
  ASSERT_EQ(::stat(file().c_str(), &after), 0);
  EXPECT_EQ(after.st_ino, before.st_ino);
  expect_names({"qvt_p.opt"});
}

TEST_F(OptionFileOfOthers, IsWrittenWhereTheUserMayWriteIt) {
  EXPECT_EQ(generate_as_nobody(), 0);
  EXPECT_EQ(content(), kNewText);
  WorkFolder::write(file(), kOldText);
  EXPECT_EQ(generate_as_nobody(), 0);
  EXPECT_EQ(content(), kNewText);
  // A file of root that every user may write to: the owner changes, the mode stays.
  fs::remove(file());
  WorkFolder::write(file(), kOldText);
  ASSERT_EQ(::chmod(file().c_str(), 0666), 0);
  EXPECT_EQ(generate_as_nobody(), 0);
  EXPECT_EQ(content(), kNewText);
  EXPECT_EQ(mode_of(file()), 0666U);
  expect_names({"qvt_p.opt"});
}

TEST_F(OptionFileOfOthers, KeepsItsGroupWhereTheUserIsInIt) {
  WorkFolder::write(file(), kOldText);
  ASSERT_EQ(::chown(file().c_str(), 0, 100), 0);
  ASSERT_EQ(::chmod(file().c_str(), 0660), 0);
  EXPECT_EQ(in_child([] {
              constexpr gid_t kGroup = 100;
              if (::setgroups(1, &kGroup) != 0 || ::setgid(65534) != 0 || ::setuid(65534) != 0) return 100;
              Writer e;
              return e.engine.Generate();
            }),
            0);
  EXPECT_EQ(content(), kNewText);
  struct stat status = {};
  ASSERT_EQ(::stat(file().c_str(), &status), 0);
  EXPECT_EQ(status.st_uid, 65534U);
  EXPECT_EQ(status.st_gid, 100U);
  EXPECT_EQ(status.st_mode & 07777, 0660U);
}

TEST_F(OptionFileOfOthers, LosesItsSetUidAndSetGidBitsWhereOwnerAndGroupCannotBeKept) {
  WorkFolder::write(file(), kOldText);
  ASSERT_EQ(::chmod(file().c_str(), 06666), 0);
  EXPECT_EQ(generate_as_nobody(), 0);
  EXPECT_EQ(content(), kNewText);
  EXPECT_EQ(mode_of(file()), 0666U);
}

TEST_F(OptionFileOfOthers, IsNotCreatedInAFolderThatTheUserMayNotWrite) {
  fs::permissions(etc(),
                  fs::perms::owner_all | fs::perms::group_exec | fs::perms::others_exec | fs::perms::others_read);
  EXPECT_EQ(generate_as_nobody(), 4);
  expect_names({});
}

TEST_F(OptionFileOfOthers, CountsAsMissingWhereTheUserMayNotReadIt) {
  WorkFolder::write(file(), "connect ov odm");
  EXPECT_EQ(read_as_nobody(), 0);
  ASSERT_EQ(::chmod(file().c_str(), 0600), 0);
  EXPECT_EQ(read_as_nobody(), 4);
}

// --- A file-size limit ---

// Limits the size of files to ten bytes.
void limit_files() {
  const rlimit none = {0, 0};
  ::setrlimit(RLIMIT_CORE, &none);
  const rlimit ten = {10, 10};
  ::setrlimit(RLIMIT_FSIZE, &ten);
}

// The result of Generate under that limit, with this handler of SIGXFSZ; 100 when error text or command are wrong.
int generate_limited(void (*handler)(int)) {
  static_cast<void>(std::signal(SIGXFSZ, handler));
  limit_files();
  Writer e;
  const int status = e.engine.Generate();
  return e.error() == (status == 4 ? "Error Opening File" : "") && e.processor.command == kNewText ? status : 100;
}

TEST_F(OptionFile, KeepsTheOldTextUnderAFileSizeLimitThatDoesNotEndTheProgram) {
  for (const bool ignored : {true, false}) {
    for (const bool existed : {true, false}) {
      if (existed) WorkFolder::write(file(), kOldText);
      EXPECT_EQ(in_child([&] { return generate_limited(ignored ? SIG_IGN : SIG_DFL); }), 4);
      EXPECT_EQ(content(), existed ? kOldText : "");
      expect_names(existed ? std::vector<std::string>{"qvt_p.opt"} : std::vector<std::string>{});
      fs::remove(file());
    }
  }
}

// Signals that were delivered to this process.
volatile std::sig_atomic_t signals = 0;
void count_signal(int /*signal*/) { signals = signals + 1; }

TEST_F(OptionFile, UnderAFileSizeLimitLeavesSignalsAsTheyWere) {
  EXPECT_EQ(in_child([] {
              sigset_t limit;
              sigset_t now;
              sigemptyset(&limit);
              sigaddset(&limit, SIGXFSZ);
              if (generate_limited(count_signal) != 4) return 1;
              if (signals != 0) return 2;
              ::pthread_sigmask(SIG_SETMASK, nullptr, &now);
              if (sigismember(&now, SIGXFSZ) != 0) return 3;
              // A signal that the program has blocked stays pending.
              ::pthread_sigmask(SIG_BLOCK, &limit, nullptr);
              static_cast<void>(std::raise(SIGXFSZ));
              if (generate_limited(count_signal) != 4) return 4;
              if (sigpending(&now) != 0 || sigismember(&now, SIGXFSZ) != 1) return 5;
              ::pthread_sigmask(SIG_SETMASK, nullptr, &now);
              if (sigismember(&now, SIGXFSZ) != 1) return 6;
              ::pthread_sigmask(SIG_UNBLOCK, &limit, nullptr);
              return signals == 1 ? 0 : 7;
            }),
            0);
}

// --- Several writers at the same time ---

TEST_F(OptionFile, HoldsOneWholeTextWhileTwoProcessesWriteIt) {
  constexpr int kTimes = 100;
  const std::string longName(3000, 'x');
  const std::string shortText = StubWriter::text("a");
  const std::string longText = StubWriter::text(longName);
  WorkFolder::write(file(), shortText);

  // Each writer continues until this pipe is closed, so that the file is read at least once meanwhile.
  int looked[2];
  ASSERT_EQ(::pipe2(looked, O_NONBLOCK | O_CLOEXEC), 0);

  const auto start_writer = [&](const std::string& port) {
    const pid_t child = ::fork();
    if (child != 0) return child;
    ::close(looked[1]);
    StubWriter e(port);
    int failed = 0;
    char none = 0;
    for (int i = 0; i < kTimes || ::read(looked[0], &none, 1) < 0; ++i) failed += e.engine.Generate() == 0 ? 0 : 1;
    ::_exit(failed == 0 ? 0 : 1);
  };
  std::array<pid_t, 2> writers = {start_writer("a"), start_writer(longName)};

  for (pid_t& writer : writers) {
    int status = 0;
    while (::waitpid(writer, &status, WNOHANG) == 0) {
      const std::string now = content();
      EXPECT_TRUE(now == shortText || now == longText) << now.size() << " characters";
      if (looked[1] >= 0) ::close(std::exchange(looked[1], -1));
    }
    EXPECT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 0);
  }
  ::close(looked[0]);
  EXPECT_TRUE(content() == shortText || content() == longText);
  expect_names({"qvt_p.opt"});
}

// --- Temporary files of killed writers ---

// The temporary file of a writer that no longer exists.
constexpr char kLeft[] = ".qvt_new.4711.123456789";

TEST_F(OptionFile, IsWrittenAtOnceDuringAnotherWriteWhoseTemporaryFileStays) {
  WorkFolder::write(etc() / kLeft, "half a te");
  const int held = ::open((etc() / kLeft).c_str(), O_WRONLY | O_CLOEXEC);
  ASSERT_GE(held, 0);
  ASSERT_EQ(::flock(held, LOCK_EX), 0);
  expect_written();
  expect_names({kLeft, "qvt_p.opt"});
  ::close(held);
  expect_written();
  expect_names({"qvt_p.opt"});
}

TEST_F(OptionFile, IsWrittenAtOnceThoughTheFolderIsLocked) {
  const int held = ::open(etc().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  ASSERT_GE(held, 0);
  ASSERT_EQ(::flock(held, LOCK_EX), 0);
  expect_written();
  ::close(held);
}

TEST_F(OptionFile, IsWrittenAndOnlyOurOwnTemporaryFilesAreRemoved) {
  const std::vector<std::string> others = {".qvt_new",    ".qvt_new.1.2.tmp", ".qvt_newer.1.2",
                                           "qvt_new.1.2", "qvt_q.opt",        "x.qvt_new.1.2"};
  for (const std::string& name : others) WorkFolder::write(etc() / name, "connect ov sim");
  fs::create_directory(etc() / ".qvt_new.1.1");
  fs::create_symlink("qvt_q.opt", etc() / ".qvt_new.1.2");
  ASSERT_EQ(::mkfifo((etc() / ".qvt_new.1.3").c_str(), 0600), 0);
  std::vector<std::string> expected = WorkFolder::list(etc());
  expected.push_back("qvt_p.opt");
  std::ranges::sort(expected);
  for (const std::string name : {".qvt_new.1.4", ".qvt_new.99999.123456789123456789"}) {
    WorkFolder::write(etc() / name, "connect ov sim");
  }
  expect_written();
  expect_names(expected);
  EXPECT_EQ(WorkFolder::read(etc() / "qvt_q.opt"), "connect ov sim");
}

TEST_F(OptionFile, IsWrittenAndFilesWithALetterInTheirNumbersAreKept) {
  std::vector<std::string> others;
  for (char c = 'a'; c <= 'z'; ++c) others.push_back(std::string(".qvt_new.1") + c + ".2");
  for (const std::string& name : others) WorkFolder::write(etc() / name, "connect ov sim");
  expect_written();
  others.emplace_back("qvt_p.opt");
  expect_names(others);
}

TEST_F(OptionFile, ThatIsALinkToANameLikeThatOfATemporaryFileIsKept) {
  WorkFolder::write(etc() / kLeft, kOldText);
  fs::create_symlink(kLeft, file());
  WorkFolder::write(file(), kOldText);
  EXPECT_EQ(in_child([] { return generate_limited(SIG_DFL); }), 4);
  EXPECT_EQ(content(), kOldText);
  expect_written();
  expect_names({kLeft, "qvt_p.opt"});
}

// Sets the modification time of a file.
void set_age(const fs::path& path, std::chrono::seconds age) {
  const std::time_t then = std::time(nullptr) - age.count();
  const std::array<timespec, 2> times = {{{then, 0}, {then, 0}}};
  ASSERT_EQ(::utimensat(AT_FDCWD, path.c_str(), times.data(), 0), 0);
}

TEST_F(OptionFileOfOthers, IsWrittenAndTemporaryFilesThatMayNotBeOpenedAreRemovedAfterAnHour) {
  WorkFolder::write(etc() / kLeft, "half a te");
  ASSERT_EQ(::chmod((etc() / kLeft).c_str(), 0600), 0);
  set_age(etc() / kLeft, 59min);
  EXPECT_EQ(generate_as_nobody(), 0);
  expect_names({kLeft, "qvt_p.opt"});
  set_age(etc() / kLeft, 61min);
  EXPECT_EQ(generate_as_nobody(), 0);
  expect_names({"qvt_p.opt"});
}

// --- As a text of its own ---

using Content = std::optional<std::string>;

// What is read; "CODE MESSAGE" of an error.
template <class Value>
std::string error_of(const Expected<Value>& result) {
  if (result) return "";
  constexpr std::pair<ErrorCode, const char*> kCodes[] = {{ErrorCode::changedMeanwhile, "changedMeanwhile "},
                                                          {ErrorCode::file, "file "}};
  for (const auto& [code, name] : kCodes) {
    if (result.error().code == code) return name + result.error().message;
  }
  return "another code: " + result.error().message;
}

TEST_F(OptionFile, HasAPathThatTheNameOfTheProcessorTells) {
  EXPECT_EQ(option_file_path("ovrin_0"), "etc/qvt_ovrin_0.opt");
  EXPECT_EQ(option_file_path(""), "etc/qvt_.opt");
  EXPECT_EQ(option_file_path("a b/c"), "etc/qvt_a b/c.opt");
}

TEST_F(OptionFile, IsReadAsAWhole) {
  for (const std::string& text : {""s, "connect ov odm"s, "\n\nconnect ov odm\r\nmore\n"s, "a\0b\xff"s}) {
    WorkFolder::write(file(), text);
    EXPECT_EQ(read_option_file(option_file_path("p")).value(), Content(text));
  }
  fs::create_symlink("qvt_p.opt", etc() / "link");
  EXPECT_EQ(read_option_file("etc/link").value(), Content("a\0b\xff"s));
}

TEST_F(OptionFile, ThatIsMissingIsReadAsNothing) {
  fs::create_symlink("missing", etc() / "link");
  for (const char* const path : {"etc/qvt_p.opt", "etc/link", "no/such/folder"}) {
    EXPECT_EQ(read_option_file(path).value(), std::nullopt) << path;
  }
}

TEST_F(OptionFile, ThatCannotBeReadIsAnError) {
  const GlobalLocale classic;
  ASSERT_EQ(::mkfifo((etc() / "pipe").c_str(), 0600), 0);
  EXPECT_EQ(error_of(read_option_file("etc")), "file etc: is a directory");
  EXPECT_EQ(error_of(read_option_file("etc/pipe")), "file etc/pipe: is a pipe");
  EXPECT_EQ(error_of(read_option_file("etc/pipe/x")), "file etc/pipe/x: Not a directory");
  EXPECT_EQ(error_of(read_option_file("etc\0x"s)), "file etc\0x: its name contains a NUL byte"s);
}

TEST_F(OptionFile, ThatIsLargerThan16MBIsAnError) {
  WorkFolder::write(file(), "connect ov odm\n");
  fs::resize_file(file(), 16 << 20);
  EXPECT_EQ(read_option_file("etc/qvt_p.opt").value()->size(), 16U << 20);
  fs::resize_file(file(), (16 << 20) + 1);
  EXPECT_EQ(error_of(read_option_file("etc/qvt_p.opt")), "file etc/qvt_p.opt: is larger than 16777216 bytes");
}

TEST_F(OptionFile, IsReplacedIfItHoldsWhatIsExpected) {
  const std::string path = option_file_path("p");
  EXPECT_EQ(error_of(replace_option_file(path, std::nullopt, "")), "");
  EXPECT_EQ(read_option_file(path).value(), Content(""));
  EXPECT_EQ(error_of(replace_option_file(path, "", "one\n")), "");
  EXPECT_EQ(error_of(replace_option_file(path, "one\n", "two"s + '\0')), "");
  EXPECT_EQ(error_of(replace_option_file(path, read_option_file(path).value(), "three")), "");
  EXPECT_EQ(content(), "three");
  expect_names({"qvt_p.opt"});
}

TEST_F(OptionFile, IsNotReplacedIfItHoldsSomethingElse) {
  constexpr char kChanged[] = "changedMeanwhile etc/qvt_p.opt: the file has changed since it was read; read it again";
  constexpr char kThere[] = "changedMeanwhile etc/qvt_p.opt: there is such a file already";
  const std::string path = option_file_path("p");
  EXPECT_EQ(error_of(replace_option_file(path, "", "new")), kChanged) << "an empty file is expected, and there is none";
  EXPECT_FALSE(fs::exists(file()));
  for (const std::string& present : {""s, "old"s}) {
    WorkFolder::write(file(), present);
    EXPECT_EQ(error_of(replace_option_file(path, std::nullopt, "new")), kThere);
    EXPECT_EQ(error_of(replace_option_file(path, "older", "new")), kChanged);
    EXPECT_EQ(content(), present);
  }
  EXPECT_EQ(error_of(replace_option_file(path, "", "new")), kChanged);
  expect_names({"qvt_p.opt"});
}

TEST_F(OptionFile, ThatCannotBeReplacedIsAnErrorWithAdvice) {
  EXPECT_EQ(error_of(replace_option_file("no/folder", std::nullopt, "new")),
            "file no/folder: there is no folder no: make it first");
  EXPECT_EQ(error_of(replace_option_file("etc", std::nullopt, "new")), "file etc: it is not a regular file");
}

}  // namespace
}  // namespace SdkDebugDialog
