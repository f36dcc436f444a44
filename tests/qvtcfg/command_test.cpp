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
            nlohmann::json::parse(R"({"processor": "ovrin_0", "file": "etc/qvt_ovrin_0.opt", )"
                                  R"("command": "connect ov odm -cable type zarvek_parallel )"
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
  EXPECT_THAT(result.err, IsComplaint("ovrin_0: no connect command can be written for these settings; the cable: the "
                                      "writer has no text for this type; change the connection or the cable"));
  EXPECT_EQ(read_option_file("ovrin_0"), "connect ov odm -cable type zarvek_tcf");
}

TEST_F(Command, OfAnUnknownProcessorIsRefused) {
  const Result result = qvtcfg({"command", "ovrin_9"});
  EXPECT_EQ(result.code, 1);
  EXPECT_EQ(result.err,
            "qvtcfg: the design has no processor 'ovrin_9' (did you mean 'ovrin_0'?); 'qvtcfg processors' lists the "
            "processors\n");
}

TEST_F(Command, OfAProcessorThatCannotBeDebuggedIsRefused) {
  const Result result = qvtcfg({"command", "vecdsp_0"});
  EXPECT_EQ(result.code, 1);
  EXPECT_THAT(result.err, IsComplaint("processor 'vecdsp_0' cannot be debugged: "));
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
  EXPECT_EQ(shown["settings"]["connection"]["connection"]["value"], "simulator");
  EXPECT_EQ(shown["settings"]["connection"]["connection"]["changed"], true);
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
  EXPECT_EQ(settings["identity"]["connections"]["value"], nlohmann::json::parse(R"(["odm-target"])"));
  EXPECT_EQ(settings["debug-device"]["uart"]["value"], true);
  EXPECT_EQ(settings["debug-device"]["bscan"]["value"], "USER1");
}

TEST_F(Read, WhatIsNotUnderstoodIsExplainedInOneLine) {
  const struct {
    const char* text;
    const char* why;
  } kFaults[] = {
      {"", "the command given: the text is not understood"},
      {"hello", "the command given: the text is not understood"},
      {"connect ov odm -quiet -foo", "note: the engine says: UNKNOWN Option '-foo'"},
      {"connect ov odm -cable speed 5", "note: the engine says: UNKNOWN Parameter 'speed' for option '-cable'"},
      {"connect ov odm -cable type zarvek_platformusb frequency 1",
       "note: the engine says: UnSupported Zarvek PlatformUSB Cable Frequency - 1 Supported Frequencies: 750000,"},
      {"connect ov odm -", "the command given: the text is not understood at '-'"},
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
  EXPECT_LT(result.err.size(), 1000U);
  EXPECT_THAT(result.err, IsComplaint("UNKNOWN Parameter 'xxx"));
}

TEST_F(Read, StoresTheTextByteForByte) {
  const std::string text = "Connect  ov odm -quiet -configdevice jtagport cpu -debugDevice devicenr 0x2 ";
  const Result result = qvtcfg({"read", "ovrin_0", text, "--write"});
  EXPECT_EQ(result.code, 0) << result.err;
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(read_option_file("ovrin_0"), text);
  const std::string shown = qvtcfg({"show", "ovrin_0"}).out;
  EXPECT_EQ(shown.substr(shown.find('\n')) + "written to etc/qvt_ovrin_0.opt\n",
            result.out.substr(result.out.find('\n')));
}

TEST_F(Read, StoresAMemorySizeThatIsNeverWritten) {
  EXPECT_EQ(qvtcfg({"read", "ovrin_0", "connect ov sim -memsize 0x100", "--write"}).code, 0);
  EXPECT_EQ(read_option_file("ovrin_0"), "connect ov sim -memsize 0x100");
  EXPECT_THAT(qvtcfg({"show", "ovrin_0"}).out, HasSubstr("\n* memory-size         256\n"));
}

TEST_F(Read, RefusesToStoreWhatAnOptionFileCannotHold) {
  std::string text = "connect ov odm -quiet";
  for (int i = 1; i <= 45; ++i) text += " -configdevice devicenr " + std::to_string(i);
  const Result result = qvtcfg({"read", "ovrin_0", text, "--write"});
  EXPECT_EQ(result.code, 1);
  EXPECT_EQ(result.out, "");
  EXPECT_THAT(result.err, IsComplaint("qvtcfg: etc/qvt_ovrin_0.opt: the command has "));
  EXPECT_THAT(result.err, HasSubstr("; --force stores it nevertheless\n"));
  EXPECT_FALSE(exists("etc/qvt_ovrin_0.opt"));

  const Result forced = qvtcfg({"read", "ovrin_0", text, "--write", "--force"});
  EXPECT_EQ(forced.code, 0);
  EXPECT_THAT(forced.err, IsComplaint("qvtcfg: warning: etc/qvt_ovrin_0.opt: the command has "));
  EXPECT_THAT(read_option_file("ovrin_0"), HasSubstr(" devicenr 45 partname UNKNOWN "));
}

TEST_F(Command, RefusesToLoseWhatIsNeverWritten) {
  const std::string file = "connect ov odm -quiet -debugdevice cpu_version 7";
  write_option_file("ovrin_0", file);
  const Result result = qvtcfg({"command", "ovrin_0", "--write"});
  EXPECT_EQ(result.code, 1);
  EXPECT_EQ(result.out, "");
  EXPECT_THAT(result.err, IsComplaint("would lose cpu-version 7, -quiet; --force stores it nevertheless\n"));
  EXPECT_EQ(read_option_file("ovrin_0"), file);
  EXPECT_EQ(qvtcfg({"command", "ovrin_0", "--write", "--force"}).code, 0);
  EXPECT_EQ(read_option_file("ovrin_0"), "connect ov odm -debugdevice cpunr 1");
}

}  // namespace
