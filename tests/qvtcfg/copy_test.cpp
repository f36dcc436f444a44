// The subcommands "copy" and "diff".

#include "answers.h"
#include "tool.h"

namespace {

using testing::HasSubstr;

using Copy = Tool;
using Diff = Tool;

constexpr const char* kSource =
    "connect ov odm -cable type zarvek_platformusb port USB22 frequency 12000000 -debugdevice deviceNr 2 cpunr 1";

TEST_F(Copy, GivesTheSettingsOfAProcessorToOthers) {
  write_option_file("ovrin_0", kSource);
  write_option_file("ovrin_2", "connect ov odm -quiet -debugdevice deviceNr 5 cpunr 3");
  const Result result = qvtcfg({"copy", "ovrin_0", "ovrin_1", "ovrin_2"});
  EXPECT_EQ(result.code, 0) << result.err;
  EXPECT_THAT(result.out, HasSubstr("\nfrequency  0 Hz -> 12 MHz\n"));
  EXPECT_EQ(read_option_file("ovrin_1"),
            "connect ov odm -cable type zarvek_platformusb port USB22 frequency 12000000 -debugdevice deviceNr 2 cpunr "
            "2");
  EXPECT_EQ(
      read_option_file("ovrin_2"),
      "connect ov odm -cable type zarvek_platformusb port USB22 frequency 12000000 -quiet -debugdevice deviceNr 2 "
      "cpunr 3");
  EXPECT_EQ(qvtcfg({"diff", "ovrin_1", "ovrin_2"}).out, "ovrin_1 -> ovrin_2\nname  ovrin_1 -> ovrin_2\ncpu  2 -> 3\n");
}

TEST_F(Copy, ListsWhatAProcessorDoesNotTake) {
  write_option_file("ovrin_0", "connect ov stub -comm serial -port COM2 -baud 9600");
  const Result result = qvtcfg({"copy", "ovrin_0", "ovrin_1", "--dry-run", "--exit-code"});
  EXPECT_EQ(result.code, 0) << result.err;
  EXPECT_THAT(result.out, HasSubstr("nothing changes\nnot taken: connection stub: "));
  EXPECT_THAT(result.out, HasSubstr("\nnot taken: stub-port COM2: "));
  EXPECT_EQ(json({"copy", "ovrin_0", "ovrin_1"})["processors"][0]["notTaken"][0]["setting"], "connection");
  EXPECT_FALSE(exists("etc/qvt_ovrin_1.opt"));
}

TEST_F(Copy, RefusesToLoseWhatTheOtherFileHas) {
  write_option_file("ovrin_0", "connect ov sim");
  write_option_file("ovrin_1", "connect ov odm -quiet -bscan USER4");
  const Result result = qvtcfg({"copy", "ovrin_0", "ovrin_2", "ovrin_1"});
  EXPECT_EQ(result.code, 1);
  EXPECT_THAT(result.err, IsComplaint("etc/qvt_ovrin_1.opt: would lose bscan USER4, -quiet"));
  EXPECT_FALSE(exists("etc/qvt_ovrin_2.opt"));
  EXPECT_EQ(qvtcfg({"copy", "ovrin_0", "ovrin_2", "ovrin_1", "--force"}).code, 0);
  EXPECT_EQ(read_option_file("ovrin_1"), "connect ov sim");
}

TEST_F(Diff, ComparesAnOptionFileWithTheDefaults) {
  EXPECT_EQ(qvtcfg({"diff", "ovrin_0"}).out, "the defaults -> ovrin_0\nevery setting is the same\n");
  EXPECT_EQ(qvtcfg({"diff", "ovrin_0"}).code, 0);
  write_option_file("ovrin_0", kSource);
  const Result result = qvtcfg({"diff", "ovrin_0"});
  EXPECT_EQ(result.code, 5);
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(result.out,
            "the defaults -> ovrin_0\n"
            "debug-device  0 -> 2\n"
            "cable  none -> zarvek_platformusb\n"
            "frequency  0 Hz -> 12 MHz\n"
            "port  - -> USB22\n");
}

TEST_F(Diff, TakesProcessorsFilesTextsAndStandardInput) {
  write_option_file("ovrin_0", kSource);
  write("backup.opt", std::string(kSource) + "\n");
  EXPECT_EQ(qvtcfg({"diff", "ovrin_0", "backup.opt"}).code, 0);
  EXPECT_EQ(qvtcfg({"diff", kSource, "ovrin_0"}).code, 0);
  EXPECT_EQ(qvtcfg({"diff", "backup.opt", kSource}).code, 0);
  const Result result = qvtcfg({"diff", "ovrin_0", "-"}, "connect ov odm -debugdevice deviceNr 2\n");
  EXPECT_EQ(result.code, 5);
  EXPECT_EQ(result.out,
            "ovrin_0 -> standard input\n"
            "cable  zarvek_platformusb -> none\n"
            "frequency  12 MHz -> 0 Hz\n"
            "port  USB22 -> -\n");
}

TEST_F(Diff, NeedsNoDesignForTexts) {
  std::filesystem::remove(folder() / "design.json");
  EXPECT_EQ(qvtcfg({"diff", "connect ov sim", "connect  ov sim -memsize 16"}).code, 0);
  EXPECT_EQ(qvtcfg({"diff", "connect ov sim", "connect ov sim -memsize 17"}).code, 5);
  const Result result = qvtcfg({"diff", "ovrin_0"});
  EXPECT_EQ(result.code, 1);
  EXPECT_THAT(result.err, IsComplaint("ovrin_0: no such file, and there is no design to find a processor in"));
}

TEST_F(Diff, AnswersInJson) {
  write_option_file("ovrin_0", "connect ov odm -debugdevice deviceNr 2");
  const Result result = qvtcfg({"--json", "diff", "ovrin_0", "connect ov odm"});
  EXPECT_EQ(result.code, 5);
  EXPECT_EQ(result_of(result.out), nlohmann::json::parse(R"({
      "from": {"processor": "ovrin_0", "file": "etc/qvt_ovrin_0.opt",
               "command": "connect ov odm -debugdevice deviceNr 2"},
      "to": {"processor": "ovrin_0", "file": null, "command": "connect ov odm"},
      "differences": [{"setting": "debug-device", "unit": null, "before": 2, "after": 0}]})"));
}

TEST_F(Diff, NamesNoFileForTheDefaultsInJson) {
  EXPECT_EQ(json({"diff", "ovrin_0"}), nlohmann::json::parse(R"({
      "from": {"processor": "ovrin_0", "file": null, "command": null},
      "to": {"processor": "ovrin_0", "file": null, "command": null}, "differences": []})"));
}

TEST_F(Diff, NamesTheNearestProcessor) {
  const Result result = qvtcfg({"diff", "ovrin_00"});
  EXPECT_EQ(result.code, 1);
  EXPECT_THAT(result.err, IsComplaint("the design has no processor 'ovrin_00' (did you mean 'ovrin_0'?)"));
}

}  // namespace
