// qvtcfg check: which texts are checked, in which formats it answers, and what it fixes. What it finds is in
// check_golden_test.cpp.

#include <sys/stat.h>

#include <algorithm>
#include <string>
#include <vector>

#include "answers.h"
#include "tool.h"

namespace {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

constexpr const char* kClean = "connect ov sim";
constexpr const char* kMistyped = "connect ov odm -cabel type zarvek_platformusb";
constexpr const char* kMistypedLine = "error: no option '-cabel'; did you mean '-cable'? [unknown-option]\n";
constexpr const char* kOctal = "connect ov odm -debugdevice deviceNr 010 cpunr 1";

class Check : public Tool {
 protected:
  // The names of the files, in the order of the answer.
  std::vector<std::string> files(std::vector<std::string> arguments) const {
    arguments.insert(arguments.begin(), {"check", "--format=json"});
    std::vector<std::string> names;
    const auto found = result_of(qvtcfg(arguments).out);
    for (const auto& file : found["files"]) names.push_back(file["file"].is_null() ? "-" : file["file"]);
    return names;
  }
  std::string without_design(std::vector<std::string> arguments) const {
    fs::remove(folder() / "design.json");
    return qvtcfg(std::move(arguments)).out;
  }
};

using CheckFormats = Check;
using CheckFixes = Check;
using CheckExplains = Check;

// --- What is checked ---

TEST_F(Check, TakesEveryOptionFileOfTheWorkingFolder) {
  write_option_file("ovrin_1", kClean);
  write_option_file("ovrin_0", kMistyped);
  write("etc/other.opt", "no option file of a processor");
  write("etc/qvt_.opt", "nor this");
  const Result result = qvtcfg({"check"});
  EXPECT_EQ(result.code, 3);
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(result.out,
            "etc/qvt_ovrin_0.opt:1:16: error: no option '-cabel'; did you mean '-cable'? [unknown-option]\n"
            "   1 | connect ov odm -cabel type zarvek_platformusb\n"
            "     |                ^^^^^^\n"
            "     = fix: write '-cable'\n"
            "   + | connect ov odm -cable type zarvek_platformusb\n"
            "\n"
            "2 files: 1 error in 1 file; 1 can be fixed with --fix\n");
}

TEST_F(Check, OfADesignWithoutOptionFilesTellsThatAllHaveTheDefaults) {
  const std::string defaults = "no option file: every processor has the defaults\n";
  EXPECT_EQ(qvtcfg({"check"}).out, defaults);
  fs::remove(folder() / "etc");
  const Result result = qvtcfg({"check"});
  EXPECT_EQ(result.code, 0);
  EXPECT_EQ(result.out, defaults);
}

TEST_F(Check, OfAFolderWithNothingToCheckFails) {
  fs::remove(folder() / "design.json");
  const Result result = qvtcfg({"check"});
  EXPECT_EQ(result.code, 4);
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(result.err,
            "qvtcfg: this folder has no design.json and no option file etc/qvt_NAME.opt; -C DIR names another\n");
}

TEST_F(Check, OfAFolderThatCannotBeReadFails) {
  fs::remove(folder() / "etc");
  write("etc", "no folder");
  const Result result = qvtcfg({"check"});
  EXPECT_EQ(result.code, 4);
  EXPECT_EQ(result.err, "qvtcfg: etc: Not a directory\n");
}

TEST_F(Check, TellsTheProcessorByTheNameOfTheFile) {
  write_option_file("ovrin_1", "connect ov stub");  // it has no light UART
  EXPECT_THAT(qvtcfg({"check"}).out, HasSubstr("[connection-not-admitted]"));
  EXPECT_THAT(without_design({"check"}), Not(HasSubstr("[connection-not-admitted]")));
}

TEST_F(Check, FindsFilesWhoseProcessorIsGone) {
  write_option_file("ovrin_9", kClean);
  const Result result = qvtcfg({"check"});
  EXPECT_EQ(result.code, 3);
  EXPECT_THAT(result.out, StartsWith("etc/qvt_ovrin_9.opt:1:1: error: the design has no processor 'ovrin_9' (did you "
                                     "mean 'ovrin_0'?)"));
  EXPECT_EQ(qvtcfg({"check", "ovrin_9"}).out, result.out);
  EXPECT_THAT(without_design({"check"}), Not(HasSubstr("[no-such-processor]")));
  EXPECT_EQ(qvtcfg({"check", "ovrin_9"}).out, "1 file: nothing found\n");
}

TEST_F(Check, TakesProcessorsFilesFoldersAndStandardInput) {
  write_option_file("ovrin_0", kClean);
  fs::create_directories(folder() / "board/etc");
  fs::create_directories(folder() / "flat");
  write("board/etc/qvt_x.opt", kClean);
  write("flat/qvt_y.opt", kClean);
  write("notes.txt", kClean);
  EXPECT_THAT(files({"ovrin_0"}), ElementsAre("etc/qvt_ovrin_0.opt"));
  EXPECT_THAT(files({"flat", "notes.txt", "board/"}),
              ElementsAre("board/etc/qvt_x.opt", "flat/qvt_y.opt", "notes.txt"));
  EXPECT_THAT(files({"board/etc", "board/etc/qvt_x.opt"}), ElementsAre("board/etc/qvt_x.opt"));
  EXPECT_THAT(files({"."}), ElementsAre("etc/qvt_ovrin_0.opt"));
  EXPECT_THAT(qvtcfg({"check", "-"}, kMistyped).out, StartsWith(std::string("<stdin>:1:16: ") + kMistypedLine));
}

TEST_F(Check, ChecksAFileOnceWhateverItsNames) {
  write_option_file("ovrin_0", kClean);
  const std::string path = "etc/qvt_ovrin_0.opt";
  const std::string absolute = (folder() / path).string();
  fs::create_symlink(path, folder() / "link.opt");
  EXPECT_THAT(files({path, absolute, "./" + path, "etc/../" + path}), ElementsAre(path));
  EXPECT_THAT(files({absolute, path, "ovrin_0", "etc"}), ElementsAre(absolute));
  EXPECT_THAT(files({"link.opt", "./link.opt"}), ElementsAre("link.opt"));
  // Processors may share a file; each has other connections.
  fs::create_symlink("qvt_ovrin_0.opt", folder() / "etc/qvt_ovrin_1.opt");
  EXPECT_THAT(files({}), ElementsAre(path, "etc/qvt_ovrin_1.opt"));
}

TEST_F(Check, TakesTheProcessorForAWordThatIsAFileToo) {
  write("ovrin_0", kMistyped);
  write_option_file("ovrin_0", kClean);
  EXPECT_EQ(qvtcfg({"check", "ovrin_0"}).code, 0);
  EXPECT_EQ(qvtcfg({"check", "./ovrin_0"}).code, 3);
}

TEST_F(Check, NamesProcessorsWithoutAnOptionFile) {
  write_option_file("ovrin_0", kClean);
  const Result result = qvtcfg({"check", "ovrin_1", "ovrin_0"});
  EXPECT_EQ(result.code, 0);
  EXPECT_EQ(result.out, "1 file: nothing found; no option file, so the defaults: ovrin_1\n");
  const auto answer = json({"check", "ovrin_1"});
  EXPECT_EQ(answer["withoutOptionFile"], nlohmann::json::array({"ovrin_1"}));
}

TEST_F(Check, IsToldWhatATextIs) {
  const std::string cable = "-cable type zarvek_platformusb";
  EXPECT_EQ(qvtcfg({"check", "-"}, cable).code, 3);
  EXPECT_EQ(qvtcfg({"check", "--as=cable", "-"}, cable + "\n").code, 0);
  EXPECT_EQ(qvtcfg({"check", "-"}, "qconnect ov sim").code, 0);
  EXPECT_EQ(qvtcfg({"check", "--as=file", "-"}, "qconnect ov sim").code, 3);
  write("command.txt", "qconnect ov sim");
  EXPECT_EQ(qvtcfg({"check", "command.txt"}).code, 3);
  EXPECT_EQ(qvtcfg({"check", "--as=command", "command.txt"}).code, 0);
  // The name tells it.
  write_option_file("ovrin_0", "qconnect ov sim");
  EXPECT_EQ(qvtcfg({"check", "--as=command", "etc/qvt_ovrin_0.opt"}).code, 3);
}

TEST_F(Check, NamesFilesAsSeenFromOutside) {
  write_option_file("ovrin_0", kMistyped);
  EXPECT_THAT(shell("cd .. && exec \"$QVTCFG\" -C work check").out, StartsWith("work/etc/qvt_ovrin_0.opt:1:16: "));
}

TEST_F(Check, ComparesTheFilesOfAFolder) {
  const std::string shared = "connect ov odm -cable type zarvek_platformusb port USB1 frequency ";
  write_option_file("ovrin_0", shared + "6000000 -debugdevice deviceNr 1 cpunr 1");
  write_option_file("ovrin_1", shared + "12000000 -debugdevice deviceNr 1 cpunr 2");
  const std::string out = qvtcfg({"check"}).out;
  EXPECT_THAT(out, HasSubstr("[shared-cable-frequency]"));
  EXPECT_THAT(out, HasSubstr("     = note: etc/qvt_ovrin_"));
  EXPECT_THAT(qvtcfg({"check", "ovrin_0"}).out, Not(HasSubstr("[shared-cable-frequency]")));
}

// --- What cannot be checked ---

TEST_F(Check, NamesAFileThatCannotBeReadAndChecksTheOthers) {
  write_option_file("ovrin_0", kMistyped);
  fs::create_directory(folder() / "etc/qvt_ovrin_1.opt");
  ASSERT_EQ(mkfifo((folder() / "etc/qvt_ovrin_2.opt").c_str(), 0600), 0);
  const Result result = qvtcfg({"check", "nowhere", "ovrin_7", "etc"});
  EXPECT_EQ(result.code, 4);
  EXPECT_EQ(result.err,
            "qvtcfg: etc/qvt_ovrin_1.opt: is a directory\n"
            "qvtcfg: etc/qvt_ovrin_2.opt: is no regular file\n"
            "qvtcfg: nowhere: no such file; the design has no processor 'nowhere'\n"
            "qvtcfg: ovrin_7: no such file; the design has no processor 'ovrin_7' (did you mean 'ovrin_0'?)\n");
  EXPECT_THAT(result.out, EndsWith("1 file: 1 error; 1 can be fixed with --fix; 4 files not checked\n"));
  EXPECT_EQ(qvtcfg({"check", "/dev/null"}).code, 4);
  EXPECT_EQ(qvtcfg({"check", "no/where"}).err, "qvtcfg: no/where: no such file\n");
  EXPECT_EQ(qvtcfg({"check", "connect ov sim"}).err,
            "qvtcfg: connect ov sim: no such file; a text is read from standard input, with -\n");
}

TEST_F(Check, OfAFolderWithoutOptionFilesIsAnError) {
  fs::create_directory(folder() / "empty");
  const Result result = qvtcfg({"check", "empty"});
  EXPECT_EQ(result.code, 4);
  EXPECT_THAT(result.err, IsComplaint("empty: no option file qvt_NAME.opt is in this folder or in etc below it"));
}

TEST_F(Check, ReadsSixteenMegabytesOfAFile) {
  write_option_file("ovrin_0", std::string(kClean) + "\n");
  fs::resize_file(folder() / "etc/qvt_ovrin_0.opt", (16 << 20) + 1);
  EXPECT_THAT(qvtcfg({"check"}).out, HasSubstr("etc/qvt_ovrin_0.opt: note: the file is larger than 16 MiB: "));
  EXPECT_EQ(result_of(qvtcfg({"check", "--json"}).out)["files"][0]["truncated"], true);
  fs::resize_file(folder() / "etc/qvt_ovrin_0.opt", 16 << 20);
  EXPECT_THAT(qvtcfg({"check"}).out, Not(HasSubstr("is larger")));
}

TEST_F(Check, DoesNotTakeABrokenDesignForNone) {
  write("design.json", "{");
  EXPECT_EQ(qvtcfg({"check"}).code, 4);
}

// --- Exit codes ---

TEST_F(Check, FailsForErrorsAndOnRequestForWarnings) {
  write_option_file("ovrin_0", kClean);
  EXPECT_EQ(qvtcfg({"check"}).code, 0);
  EXPECT_EQ(qvtcfg({"check", "--strict"}).code, 0);
  write_option_file("ovrin_0", kOctal);
  EXPECT_EQ(qvtcfg({"check"}).code, 0);
  EXPECT_EQ(qvtcfg({"check", "--strict"}).code, 3);
  write_option_file("ovrin_0", kMistyped);
  EXPECT_EQ(qvtcfg({"check"}).code, 3);
}

TEST_F(Check, ExplainsWhatIsWrongWithItsCommandLine) {
  const struct {
    std::vector<std::string> arguments;
    const char* why;
  } kMistakes[] = {
      {{"check", "--format=xml"}, "--format"},
      {{"check", "--as=nothing", "-"}, "--as"},
      {{"check", "--dry-run"}, "--dry-run requires --fix"},
      {{"check", "--fix", "-"}, "--fix: standard input cannot be changed; name files; see 'qvtcfg check --help'"},
  };
  for (const auto& mistake : kMistakes) {
    const Result result = qvtcfg(mistake.arguments);
    EXPECT_EQ(result.code, 2) << mistake.why;
    EXPECT_EQ(result.out, "") << mistake.why;
    EXPECT_THAT(result.err, IsComplaint(mistake.why));
  }
}

TEST_F(Check, AnswersInJsonOrInAnotherFormat) {
  for (const std::string format : {"text", "short", "sarif"}) {
    for (const std::vector<std::string>& rest : std::vector<std::vector<std::string>>{{}, {"--explain"}}) {
      std::vector<std::string> arguments = {"check", "--format", format, "--json"};
      arguments.insert(arguments.end(), rest.begin(), rest.end());
      const Result result = qvtcfg(arguments);
      EXPECT_EQ(result.code, 2);
      EXPECT_THAT(result.err, IsComplaint("--format=" + format + ": --json asks for another format; see "));
      EXPECT_EQ(error_of(result.out)["code"], "usage");
    }
  }
}

// --- Many files ---

TEST_F(Check, AnswersInTheOrderOfThePathsWhateverTheThreadsDo) {
  std::vector<std::string> expected;
  for (int i = 0; i < 500; ++i) {
    write_option_file("cpu" + std::to_string(i), kMistyped);
    expected.push_back("etc/qvt_cpu" + std::to_string(i) + ".opt");
  }
  std::ranges::sort(expected);
  EXPECT_EQ(files({}), expected);
  const Result result = qvtcfg({"check"});
  EXPECT_EQ(result.code, 3);
  EXPECT_EQ(result.err, "");  // where the thread sanitizer would report
  EXPECT_EQ(result.out, qvtcfg({"check"}).out);
}

TEST_F(Check, TellsItsProgressOnATerminalWhenItTakesLong) {
  for (int i = 0; i < 40; ++i) write_option_file("cpu" + std::to_string(i), kClean);
  write("script", "{ sleep 1.3; echo connect ov sim; } | \"$QVTCFG\" check - etc >out\n");
  const Result result = on_terminal({"/bin/sh", "script"}, {"TERM=xterm"});
  EXPECT_THAT(result.out, HasSubstr(" of 41 files checked"));
  EXPECT_THAT(result.out, EndsWith("\r\033[K"));
}

TEST_F(Check, TellsNoProgressWhenItIsQuick) {
  write_option_file("ovrin_0", kClean);
  EXPECT_EQ(qvtcfg_on_terminal({"check"}).out, "1 file: nothing found\r\n");
}

// --- Formats ---

TEST_F(CheckFormats, TextHasColoursOnATerminal) {
  write_option_file("ovrin_0", kMistyped);
  EXPECT_THAT(qvtcfg_on_terminal({"check"}).out,
              AllOf(HasSubstr("\033[1;31merror:\033[0m"), HasSubstr("\033[1;31m^^^^^^\033[0m")));
  EXPECT_THAT(qvtcfg_on_terminal({"check"}, {"TERM=xterm", "NO_COLOR=1"}).out, Not(HasSubstr("\033")));
  EXPECT_THAT(qvtcfg_on_terminal({"check", "--format=short"}).out, Not(HasSubstr("\033")));
}

TEST_F(CheckFormats, ShortHasALineForEachFinding) {
  write_option_file("ovrin_0", kMistyped);
  write_option_file("ovrin_1", kClean);
  EXPECT_EQ(qvtcfg({"check", "--format=short"}).out, std::string("etc/qvt_ovrin_0.opt:1:16: ") + kMistypedLine);
}

TEST_F(CheckFormats, JsonHasPlacesFixesAndTotals) {
  write_option_file("ovrin_0", std::string("\n") + kMistyped);
  const Result result = qvtcfg({"--json", "check"});
  EXPECT_EQ(result.code, 3);
  EXPECT_EQ(result.out, qvtcfg({"check", "--format=json"}).out);
  EXPECT_EQ(result.out, qvtcfg({"--json", "check", "--format=json"}).out);
  const auto answer = result_of(result.out);
  const auto& file = answer["files"][0];
  EXPECT_EQ(file["file"], "etc/qvt_ovrin_0.opt");
  EXPECT_EQ(file["processor"], "ovrin_0");
  EXPECT_EQ(file["kind"], "file");
  EXPECT_EQ(file["truncated"], false);
  EXPECT_TRUE(file["error"].is_null());
  const auto expected = nlohmann::json::parse(R"([{
      "code": "unknown-option", "severity": "error",
      "place": {"line": 2, "column": 16, "endLine": 2, "endColumn": 22, "offset": 16, "length": 6},
      "message": "no option '-cabel'", "remedy": "did you mean '-cable'?", "remarks": [],
      "fixes": [{"title": "write '-cable'", "safe": true, "replacements": [
          {"place": {"line": 2, "column": 16, "endLine": 2, "endColumn": 22, "offset": 16, "length": 6},
           "text": "-cable"}]}]}])");
  EXPECT_EQ(file["findings"], expected);
  const auto totals = nlohmann::json::parse(R"({"files": 1, "errors": 1, "warnings": 0, "notes": 0,
      "filesWithFindings": 1, "fixable": 1, "fixed": 0, "notChecked": 0})");
  EXPECT_EQ(answer["totals"], totals);
}

TEST_F(CheckFormats, JsonTellsWhatCannotBeRead) {
  fs::create_directory(folder() / "etc/qvt_ovrin_1.opt");
  const Result result = qvtcfg({"check", "--json"});
  EXPECT_EQ(result.code, 4);
  const auto answer = result_of(result.out);
  EXPECT_EQ(answer["files"][0]["error"], "is a directory");
  EXPECT_EQ(answer["totals"]["notChecked"], 1);
}

TEST_F(CheckFormats, JsonIsValidForAnyBytes) {
  write("x\xff.opt", "connect ov odm \xff\x01 -cabel \xc3");
  for (const char* format : {"--format=json", "--format=sarif"}) {
    EXPECT_FALSE(nlohmann::json::parse(qvtcfg({"check", format, "x\xff.opt"}).out, nullptr, false).is_discarded());
  }
}

// --- Fixing ---

TEST_F(CheckFixes, AreMadeAndShown) {
  write_option_file("ovrin_0", kMistyped);
  const Result result = qvtcfg({"check", "--fix"});
  EXPECT_EQ(result.code, 0) << result.err;
  EXPECT_EQ(result.out,
            "etc/qvt_ovrin_0.opt:1:16: fixed: write '-cable' [unknown-option]\n"
            "- connect ov odm [-cabel] type zarvek_platformusb\n"
            "+ connect ov odm [-cable] type zarvek_platformusb\n"
            "1 file: nothing found; 1 fixed\n");
  EXPECT_EQ(read_option_file("ovrin_0"), "connect ov odm -cable type zarvek_platformusb");
}

TEST_F(CheckFixes, AreShownAloneInADryRun) {
  write_option_file("ovrin_0", kMistyped);
  const Result result = qvtcfg({"check", "--fix", "--dry-run"});
  EXPECT_EQ(result.code, 0) << result.err;
  EXPECT_THAT(result.out, StartsWith("etc/qvt_ovrin_0.opt:1:16: would fix: write '-cable' [unknown-option]\n- "));
  EXPECT_THAT(result.out, EndsWith("1 file: nothing found; 1 would be fixed\n"));
  EXPECT_EQ(read_option_file("ovrin_0"), kMistyped);
}

TEST_F(CheckFixes, AreToldInEveryFormat) {
  write_option_file("ovrin_0", kMistyped);
  EXPECT_EQ(qvtcfg({"check", "--fix", "--dry-run", "--format=short"}).out,
            "etc/qvt_ovrin_0.opt:1:16: would fix: write '-cable' [unknown-option]\n");
  const auto answer = json({"check", "--fix"});
  EXPECT_EQ(answer["files"][0]["fixed"][0]["code"], "unknown-option");
  EXPECT_THAT(answer["files"][0]["findings"], IsEmpty());
  EXPECT_EQ(answer["totals"]["fixed"], 1);
}

TEST_F(CheckFixes, LeaveWhatIsAGuessToTheUser) {
  const std::string text = "connect ov odm -debugdevice deviceNr 1 romemStartAdr 0x1000 romemSize 64K";
  write_option_file("ovrin_0", text);
  const Result result = qvtcfg({"check", "--fix"});
  EXPECT_THAT(result.out, HasSubstr("[unit-ignored]"));
  EXPECT_EQ(read_option_file("ovrin_0"), text);
}

TEST_F(CheckFixes, ReportWhatRemains) {
  write_option_file("ovrin_0", std::string(kMistyped) + " -quite hello");
  const Result result = qvtcfg({"check", "--fix"});
  EXPECT_EQ(result.code, 3);
  EXPECT_THAT(result.out, Not(HasSubstr("error: no option '-cabel'")));
  EXPECT_THAT(result.out, HasSubstr(": error: "));
  EXPECT_THAT(read_option_file("ovrin_0"), StartsWith("connect ov odm -cable type zarvek_platformusb "));
}

TEST_F(CheckFixes, KeepLinksAndModes) {
  write("target.opt", kMistyped);
  fs::create_symlink("../target.opt", folder() / "etc/qvt_ovrin_0.opt");
  ASSERT_EQ(chmod((folder() / "target.opt").c_str(), 0640), 0);
  EXPECT_EQ(qvtcfg({"check", "--fix"}).code, 0);
  EXPECT_TRUE(fs::is_symlink(folder() / "etc/qvt_ovrin_0.opt"));
  EXPECT_THAT(read("target.opt"), HasSubstr("-cable"));
  EXPECT_EQ(fs::status(folder() / "target.opt").permissions(), fs::perms(0640));
}

TEST_F(CheckFixes, DoNotWriteAFileThatMayNotBeWritten) {
  write_option_file("ovrin_0", kMistyped);
  ASSERT_EQ(chmod((folder() / "etc/qvt_ovrin_0.opt").c_str(), 0444), 0);
  // Root must drop the capability that overrides file permissions.
  const Result result = shell(
      "[ $(id -u) != 0 ] || aside='setpriv --bounding-set=-dac_override --';"
      "exec $aside \"$QVTCFG\" check --fix");
  EXPECT_EQ(result.code, 4);
  EXPECT_THAT(result.err, IsComplaint("etc/qvt_ovrin_0.opt: it is not writable"));
  EXPECT_THAT(result.out, HasSubstr("[unknown-option]"));
  EXPECT_EQ(read_option_file("ovrin_0"), kMistyped);
}

TEST_F(CheckFixes, DoNotOverwriteAFileThatChangedMeanwhile) {
  // The second name leads to the file that was read for it before the first one was fixed.
  write_option_file("ovrin_0", kMistyped);
  fs::create_symlink("qvt_ovrin_0.opt", folder() / "etc/qvt_ovrin_1.opt");
  const Result result = qvtcfg({"check", "--fix"});
  EXPECT_EQ(result.code, 4);
  EXPECT_EQ(result.err, "qvtcfg: etc/qvt_ovrin_1.opt: the file has changed since it was read; read it again\n");
  EXPECT_EQ(read_option_file("ovrin_0"), "connect ov odm -cable type zarvek_platformusb");
}

TEST_F(CheckFixes, AreNotMadeInAPartOfAFile) {
  write_option_file("ovrin_0", std::string(kMistyped) + "\n");
  fs::resize_file(folder() / "etc/qvt_ovrin_0.opt", (16 << 20) + 1);
  const Result result = qvtcfg({"check", "--fix"});
  EXPECT_EQ(result.code, 3);
  EXPECT_THAT(result.out, Not(HasSubstr("can be fixed")));
  EXPECT_EQ(fs::file_size(folder() / "etc/qvt_ovrin_0.opt"), (16U << 20) + 1);
}

// --- Explaining findings ---

TEST_F(CheckExplains, AFindingWithAnExample) {
  const Result result = qvtcfg({"check", "--explain", "unknown-option"});
  EXPECT_EQ(result.code, 0) << result.err;
  EXPECT_THAT(result.out, StartsWith("unknown-option (error): "));
  EXPECT_THAT(result.out, HasSubstr("\nexample:1:"));
  EXPECT_THAT(result.out, HasSubstr(" [unknown-option]\n   1 | connect "));
  EXPECT_EQ(json({"check", "--explain=unknown-option"})["kinds"][0]["code"], "unknown-option");
}

TEST_F(CheckExplains, AFindingThatTakesMoreThanAText) {
  for (const char* code : {"no-such-processor", "wrong-cpu-number", "shared-cable-frequency", "same-processor"}) {
    const std::string out = qvtcfg({"check", "--explain", code}).out;
    EXPECT_THAT(out, HasSubstr("only where "));
    EXPECT_THAT(out, HasSubstr("\nThis text alone has no such finding: see above.\n\n"));
  }
  EXPECT_THAT(qvtcfg({"check", "--explain", "octal-number"}).out, Not(HasSubstr("This text alone")));
}

TEST_F(CheckExplains, AllFindingsInATable) {
  for (const std::vector<std::string>& arguments :
       {std::vector<std::string>{"check", "--explain"}, std::vector<std::string>{"check", "--explain=all"}}) {
    const Result result = qvtcfg(arguments);
    EXPECT_EQ(result.code, 0) << result.err;
    EXPECT_THAT(result.out, HasSubstr("\nunknown-option "));
    EXPECT_THAT(result.out, HasSubstr("\nshared-cable-chain "));
  }
  EXPECT_GT(json({"check", "--explain=all"})["kinds"].size(), 50U);
}

TEST_F(CheckExplains, TheNearestCodeOfAnUnknownOne) {
  const Result result = qvtcfg({"check", "--explain=unknown-opton"});
  EXPECT_EQ(result.code, 2);
  EXPECT_EQ(result.err,
            "qvtcfg: no finding has the code 'unknown-opton' (did you mean 'unknown-option'?); 'qvtcfg check "
            "--explain' lists all codes\n");
}

}  // namespace
