#include "tool.h"

namespace {

using testing::HasSubstr;
using testing::StartsWith;

using Command = Tool;
using Read = Tool;

TEST_F(Command, OfAProcessorWithoutAnOptionFileIsThatOfTheDefaults) {
  const Result result = qvtcfg({"command", "ovrin_1"});
  EXPECT_EQ(result.code, 0);
  EXPECT_EQ(result.out, "connect ov odm -debugdevice cpunr 2\n");
  EXPECT_EQ(result.err, "");
  EXPECT_FALSE(exists("etc/qvt_ovrin_1.opt"));
}

TEST_F(Command, IsWhatTheLibraryWouldWriteForTheOptionFile) {
  write_option_file("ovrin_0", "\nCONNECT ov odm -quiet -cable type zarvek_parallel4 -debugdevice deviceNr 2\n");
  EXPECT_EQ(qvtcfg({"command", "ovrin_0"}).out,
            "connect ov odm -cable type zarvek_parallel port LPT1 frequency 0 -debugdevice deviceNr 2 cpunr 1\n");
  EXPECT_EQ(json({"command", "ovrin_0"}),
            nlohmann::json::parse(R"({"processor": "ovrin_0", "command": "connect ov odm -cable type zarvek_parallel )"
                                  R"(port LPT1 frequency 0 -debugdevice deviceNr 2 cpunr 1"})"));
}

TEST_F(Command, IsStoredOnDemand) {
  EXPECT_EQ(qvtcfg({"command", "ovrin_1", "--write"}).out, "connect ov odm -debugdevice cpunr 2\n");
  EXPECT_EQ(read_option_file("ovrin_1"), "connect ov odm -debugdevice cpunr 2");
}

TEST_F(Command, ThatCannotBeWrittenIsRefusedWithTheEnginesText) {
  write_option_file("ovrin_0", "connect ov odm -cable type zarvek_tcf");
  const Result result = qvtcfg({"command", "ovrin_0", "--write"});
  EXPECT_EQ(result.code, 1);
  EXPECT_EQ(result.out, "");
  EXPECT_THAT(result.err, IsComplaint("ovrin_0: Invalid Cable Type; no connect command can be written"));
  EXPECT_EQ(read_option_file("ovrin_0"), "connect ov odm -cable type zarvek_tcf");
}

TEST_F(Command, OfAnUnknownProcessorIsRefused) {
  const Result result = qvtcfg({"command", "ovrin_9"});
  EXPECT_EQ(result.code, 1);
  EXPECT_EQ(result.err,
            "qvtcfg: Processor Instance ovrin_9 cannot be Debugged !!, Please check Processor Connection in your HWS "
            "file; 'qvtcfg processors' lists the processors\n");
}

TEST_F(Command, OfAProcessorThatCannotBeDebuggedIsRefused) {
  const Result result = qvtcfg({"command", "vecdsp_0"});
  EXPECT_EQ(result.code, 1);
  EXPECT_THAT(result.err, IsComplaint("Processor Instance vecdsp_0 cannot be Debugged !!"));
}

TEST_F(Command, OfAProcessorNamedLikeACommandCanBeAskedFor) {
  write("design.json",
        R"({"instances": [{"name": "show", "type": "ovrin", "class": "processor"},
                          {"name": "odm_0", "type": "odm", "class": "debug", "processors": ["show"]}]})");
  EXPECT_EQ(qvtcfg({"command", "show"}).out, "connect ov odm -debugdevice cpunr 1\n");
}

TEST_F(Read, ShowsWhatTheCommandMeansAndStoresNothing) {
  const Result result = qvtcfg({"read", "ovrin_0", "connect ov sim -memsize 0x20"});
  EXPECT_EQ(result.code, 0) << result.err;
  EXPECT_THAT(result.out, StartsWith("ovrin_0 as in the command given\nconnect ov sim -memsize 0x20\n\nidentity\n"));
  EXPECT_THAT(result.out, HasSubstr("\n* connection          simulator\n"));
  EXPECT_THAT(result.out, HasSubstr("\n* memory-size         32\n"));
  EXPECT_FALSE(exists("etc/qvt_ovrin_0.opt"));
}

TEST_F(Read, TakesStandardInputForADash) {
  const Result result = qvtcfg({"read", "ovrin_0", "-"}, "connect ov sim\n");
  EXPECT_EQ(result.code, 0) << result.err;
  EXPECT_THAT(result.out, StartsWith("ovrin_0 as in standard input\n"));
}

TEST_F(Read, AnswersInJsonWithTheFileOnlyWhenItWasStored) {
  const auto shown = json({"read", "ovrin_0", "connect ov sim"});
  EXPECT_TRUE(shown["file"].is_null());
  EXPECT_EQ(shown["settings"]["connection"]["connection"],
            nlohmann::json::parse(R"({"value": "simulator", "default": false})"));
  EXPECT_EQ(json({"read", "ovrin_0", "connect ov sim", "--write"})["file"], "etc/qvt_ovrin_0.opt");
}

TEST_F(Read, StoresTheOptionFileOnDemandWhateverWasInIt) {
  write_option_file("ovrin_0", "no command at all");
  const Result result = qvtcfg({"read", "ovrin_0", "connect ov sim", "--write"});
  EXPECT_EQ(result.code, 0) << result.err;
  EXPECT_THAT(result.out, HasSubstr("\nwritten to etc/qvt_ovrin_0.opt\n"));
  EXPECT_EQ(read_option_file("ovrin_0"), "connect ov sim");
}

TEST_F(Read, TakesTargetsThatAnOptionFileCannotHave) {
  const auto settings = json({"read", "ovrin_0", "connect odm -uart -bscan USER1"})["settings"];
  EXPECT_EQ(settings["identity"]["connections"], nlohmann::json::parse(R"(["odm-target"])"));
  EXPECT_EQ(settings["debug-device"]["uart"]["value"], true);
  EXPECT_EQ(settings["debug-device"]["bscan"]["value"], "USER1");
}

TEST_F(Read, WhatIsNotUnderstoodIsExplainedInOneLine) {
  const struct {
    const char* text;
    const char* why;
  } kFaults[] = {
      {"", "the command given: the connect command is not understood"},
      {"hello", "the command given: the connect command is not understood"},
      {"connect ov odm -quiet -foo", "the command given: UNKNOWN Option '-foo'"},
      {"connect ov odm -cable speed 5", "the command given: UNKNOWN Parameter 'speed' for option '-cable'"},
      {"connect ov odm -cable type zarvek_platformusb frequency 1",
       "the command given: UnSupported Zarvek PlatformUSB Cable Frequency - 1 Supported Frequencies: 750000,"},
      {"connect ov odm -", "the command given: a lone '-' in place of an option or a value"},
  };
  for (const auto& fault : kFaults) {
    const Result result = qvtcfg({"read", "ovrin_0", fault.text, "--write"});
    EXPECT_EQ(result.code, 3) << fault.text;
    EXPECT_EQ(result.out, "") << fault.text;
    EXPECT_THAT(result.err, IsComplaint(fault.why));
  }
  EXPECT_FALSE(exists("etc/qvt_ovrin_0.opt"));
}

TEST_F(Read, BytesThatAreNoTextAreNamedAndNeverEchoed) {
  const Result escape = qvtcfg({"read", "ovrin_0", "connect \033[31mov odm"});
  EXPECT_EQ(escape.code, 3);
  EXPECT_THAT(escape.err, IsComplaint("the command given: the byte \\x1b at column 9 is not valid text"));
  const Result nul = qvtcfg({"read", "ovrin_0", "-"}, std::string("connect ov\0odm", 14));
  EXPECT_EQ(nul.code, 3);
  EXPECT_THAT(nul.err, IsComplaint("standard input: the byte \\x00 at column 11 is not valid text"));
  const Result broken = qvtcfg({"read", "ovrin_0", "-"}, "connect ov odm -cable port \xff");
  EXPECT_EQ(broken.code, 3);
  EXPECT_THAT(broken.err, IsComplaint("the byte \\xff at column 28 is not valid text"));
}

TEST_F(Read, TextInOtherLanguagesIsText) {
  const Result result = qvtcfg({"read", "ovrin_0", "connect ov stub -comm serial -port /dev/käbel-日本"});
  EXPECT_EQ(result.code, 0) << result.err;
  EXPECT_THAT(result.out, HasSubstr("\n* stub-port           /dev/käbel-日本\n"));
}

TEST_F(Read, LongTextInMessagesIsCut) {
  const Result result = qvtcfg({"read", "ovrin_0", "connect ov odm -cable " + std::string(100000, 'x') + " 1"});
  EXPECT_EQ(result.code, 3);
  EXPECT_LT(result.err.size(), 600U);
  EXPECT_THAT(result.err, IsComplaint("UNKNOWN Parameter 'xxx"));
}

TEST_F(Read, WarnsThatAWrittenCommandCannotBeReadBack) {
  const Result result = qvtcfg({"read", "ovrin_0", "connect ov odm -configdevice jtagport cpu", "--write"});
  EXPECT_EQ(result.code, 0);
  EXPECT_THAT(result.err, IsComplaint("qvtcfg: warning: etc/qvt_ovrin_0.opt: UNKNOWN Parameter 'jtagpin' for option "
                                      "'-configDevice'; the debugger accepts it"));
  EXPECT_THAT(read_option_file("ovrin_0"), HasSubstr(" -configdevice jtagpin cpujtag "));
}

TEST_F(Read, WarnsThatALongCommandIsReadBackInPart) {
  std::string text = "connect ov odm";
  for (int i = 1; i <= 30; ++i) text += " -configdevice devicenr " + std::to_string(i);
  const Result result = qvtcfg({"read", "ovrin_0", text, "--write"});
  EXPECT_EQ(result.code, 0);
  EXPECT_THAT(result.err, IsComplaint("warning: etc/qvt_ovrin_0.opt: the command has "));
  EXPECT_THAT(read_option_file("ovrin_0"), HasSubstr(" devicenr 30 partname UNKNOWN "));
}

}  // namespace
