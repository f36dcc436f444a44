// Files and folders that are missing, unreadable, full or of another kind.

#include <sys/stat.h>

#include "tool.h"

namespace {

using testing::HasSubstr;

using Files = Tool;

TEST_F(Files, MissingDesign) {
  std::filesystem::remove(folder() / "design.json");
  const Result result = qvtcfg({"processors"});
  EXPECT_EQ(result.code, 4);
  EXPECT_THAT(result.err, IsComplaint("design.json"));
  EXPECT_THAT(result.err, HasSubstr("; --design FILE names another design\n"));
}

TEST_F(Files, MissingDesignElsewhereIsNamedAsSeenFromOutside) {
  std::filesystem::remove(folder() / "design.json");
  EXPECT_THAT(shell("cd .. && exec \"$QVTCFG\" -C work processors").err, IsComplaint("qvtcfg: work/design.json"));
}

TEST_F(Files, BrokenDesign) {
  write("design.json", "{\"instances\": [");
  const Result result = qvtcfg({"show", "ovrin_0"});
  EXPECT_EQ(result.code, 4);
  EXPECT_THAT(result.err, IsComplaint("design.json"));
}

TEST_F(Files, MissingFolderToWorkIn) {
  const Result result = qvtcfg({"-C", "nowhere", "cables"});
  EXPECT_EQ(result.code, 4);
  EXPECT_EQ(result.err, "qvtcfg: nowhere: No such file or directory; -C needs a folder\n");
}

TEST_F(Files, MissingFolderForOptionFilesIsCreated) {
  std::filesystem::remove(folder() / "etc");
  EXPECT_EQ(qvtcfg({"command", "ovrin_0"}).code, 0);
  EXPECT_EQ(qvtcfg({"set", "ovrin_0", "debug-device=1", "--dry-run"}).code, 0);
  EXPECT_FALSE(exists("etc"));
  const Result result = qvtcfg({"set", "ovrin_0", "debug-device=1"});
  EXPECT_EQ(result.code, 0) << result.err;
  EXPECT_EQ(read_option_file("ovrin_0"), "connect ov odm -debugdevice deviceNr 1 cpunr 1");
}

TEST_F(Files, OptionFileThatIsAFolderIsNoMissingOne) {
  std::filesystem::create_directory(folder() / "etc/qvt_ovrin_0.opt");
  for (const char* command : {"show", "command"}) {
    const Result result = qvtcfg({command, "ovrin_0"});
    EXPECT_EQ(result.code, 4);
    EXPECT_THAT(result.err, IsComplaint("etc/qvt_ovrin_0.opt: is a directory; "));
  }
  const Result written = qvtcfg({"read", "ovrin_0", "connect ov sim", "--write"});
  EXPECT_EQ(written.code, 4);
  EXPECT_EQ(written.err, "qvtcfg: etc/qvt_ovrin_0.opt: is a directory\n");
}

TEST_F(Files, OptionFileThatIsAPipeIsNotWaitedFor) {
  ASSERT_EQ(mkfifo((folder() / "etc/qvt_ovrin_0.opt").c_str(), 0600), 0);
  const Result result = qvtcfg({"set", "ovrin_0", "debug-device=1"});
  EXPECT_EQ(result.code, 4);
  EXPECT_THAT(result.err, IsComplaint("etc/qvt_ovrin_0.opt: is a pipe; "));
}

TEST_F(Files, OptionFileWithoutPermissionIsNoMissingOne) {
  write_option_file("ovrin_0", "connect ov sim");
  ASSERT_EQ(chmod((folder() / "etc/qvt_ovrin_0.opt").c_str(), 0), 0);
  // Root must drop the capabilities that override file permissions.
  const Result result = shell(
      "[ $(id -u) != 0 ] || aside='setpriv --bounding-set=-dac_override,-dac_read_search --';"
      "exec $aside \"$QVTCFG\" set ovrin_0 debug-device=1");
  EXPECT_EQ(result.code, 4);
  EXPECT_THAT(result.err, IsComplaint("etc/qvt_ovrin_0.opt: Permission denied; "));
}

TEST_F(Files, EtcThatIsNoFolder) {
  std::filesystem::remove(folder() / "etc");
  write("etc", "");
  EXPECT_THAT(qvtcfg({"show", "ovrin_0"}).err, IsComplaint("etc/qvt_ovrin_0.opt: Not a directory; "));
  EXPECT_EQ(qvtcfg({"read", "ovrin_0", "connect ov sim", "--write"}).err,
            "qvtcfg: etc/qvt_ovrin_0.opt: Not a directory\n");
}

TEST_F(Files, LongOptionFileIsShownWithAWarning) {
  write_option_file("ovrin_0", "connect ov odm -debugdevice deviceNr 1 " + std::string(1100, ' ') + "cpunr 1");
  const Result result = qvtcfg({"command", "ovrin_0"});
  EXPECT_EQ(result.code, 0);
  EXPECT_EQ(result.out, "connect ov odm -debugdevice deviceNr 1 cpunr 1\n");
  EXPECT_THAT(result.err, IsComplaint("warning: etc/qvt_ovrin_0.opt: the command is longer than 1023 characters"));
  EXPECT_EQ(qvtcfg({"command", "ovrin_0", "--write"}).code, 1);
  EXPECT_EQ(qvtcfg({"set", "ovrin_0", "debug-device=2"}).code, 1);
  EXPECT_EQ(qvtcfg({"set", "ovrin_0", "debug-device=2", "--force"}).code, 0);
  EXPECT_EQ(read_option_file("ovrin_0"), "connect ov odm -debugdevice deviceNr 2 cpunr 1");
}

TEST_F(Files, OptionFileOfExactlyTheLongestLineIsRead) {
  std::string command = "connect ov sim";
  command.resize(1023, ' ');
  write_option_file("ovrin_0", command + "\nand more");
  EXPECT_EQ(qvtcfg({"command", "ovrin_0"}).err, "");
}

TEST_F(Files, FullDiskKeepsTheOldFile) {
  write_option_file("ovrin_0", "connect ov sim");
  // A file-size limit of 0. Standard output is a pipe, to which the limit does not apply.
  const Result result =
      shell("trap '' XFSZ; (ulimit -f 0; \"$QVTCFG\" set ovrin_0 connection=hardware 2>&1; echo code $?) | cat");
  EXPECT_THAT(result.out, HasSubstr("\nqvtcfg: etc/qvt_ovrin_0.opt: check that the disk has free space; "
                                    "the file is unchanged\ncode 4\n"));
  EXPECT_EQ(read_option_file("ovrin_0"), "connect ov sim");
}

TEST_F(Files, FailureOfALaterFileTellsWhichAreWritten) {
  write_option_file("ovrin_0", "connect ov sim");
  write_option_file("ovrin_1", "connect ov sim\n" + std::string(2000, '#'));
  // A limit of a block for files, which the second one does not keep.
  const Result result = shell(
      "trap '' XFSZ; (ulimit -f 1; \"$QVTCFG\" --json set ovrin_0 ovrin_1 connection=hardware; echo code $?) | "
      "cat");
  EXPECT_THAT(result.err, HasSubstr("qvtcfg: warning: already written: etc/qvt_ovrin_0.opt\n"));
  EXPECT_THAT(result.out, HasSubstr("\"already written: etc/qvt_ovrin_0.opt\""));
  EXPECT_THAT(result.out, HasSubstr("\ncode 4\n"));
  EXPECT_EQ(read_option_file("ovrin_1").size(), 2015U);
}

TEST_F(Files, StandardOutputThatIsFull) {
  for (const char* command : {"cables", "processors", "--help", "--version", "show ovrin_0"}) {
    const Result result = shell(std::string("exec \"$QVTCFG\" ") + command + " > /dev/full");
    EXPECT_EQ(result.code, 4) << command;
    EXPECT_THAT(result.err, IsComplaint("standard output: No space left on device"));
  }
}

TEST_F(Files, StreamsThatAreClosed) {
  const Result output = shell("exec \"$QVTCFG\" cables >&-");
  EXPECT_EQ(output.code, 4);
  EXPECT_THAT(output.err, IsComplaint("standard output: Bad file descriptor"));
  const Result input = shell("exec \"$QVTCFG\" read ovrin_0 - <&-");
  EXPECT_EQ(input.code, 4);
  EXPECT_THAT(input.err, IsComplaint("standard input: Bad file descriptor"));
}

TEST_F(Files, StandardInputWithoutEndIsGivenUp) {
  const Result result = shell("\"$QVTCFG\" read ovrin_0 - < /dev/zero");
  EXPECT_EQ(result.code, 3);
  EXPECT_THAT(result.err, IsComplaint("standard input: too long for a connect command"));
}

TEST_F(Files, NothingIsStoredThatCannotBeShown) {
  const Result result = shell("exec \"$QVTCFG\" set ovrin_0 debug-device=1 > /dev/full");
  EXPECT_EQ(result.code, 4);
  EXPECT_FALSE(exists("etc/qvt_ovrin_0.opt"));
}

}  // namespace
