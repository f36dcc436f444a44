// The subcommands "cable parse" and "cable format".

#include "answers.h"
#include "tool.h"

namespace {

using testing::HasSubstr;

class WithoutDesign : public Tool {
 protected:
  WithoutDesign() { std::filesystem::remove(folder() / "design.json"); }
};

using CableParse = WithoutDesign;
using CableFormat = WithoutDesign;

TEST_F(CableParse, ShowsCableChainAndDebugDevice) {
  const Result result =
      qvtcfg({"cable", "parse",
              "-cable type zarvek_parallel3 -configdevice devicenr 1 partname p irlength 6 idcode 0x1 "
              "-configdevice devicenr 2 isfpga 1 hardppc ppc405 nppc 2"});
  EXPECT_EQ(result.code, 0) << result.err;
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(result.out,
            "cable and chain as in the text given\n"
            "-cable type zarvek_parallel3 -configdevice devicenr 1 partname p irlength 6 idcode 0x1 "
            "-configdevice devicenr 2 isfpga 1 hardppc ppc405 nppc 2\n"
            "\n"
            "debug-device\n"
            "* debug-device        2\n"
            "\n"
            "cable\n"
            "* cable               zarvek_parallel3\n"
            "* frequency           0 Hz\n"
            "  port                LPT1\n"
            "  esn                 -\n"
            "  svf-file            -\n"
            "  url                 -\n"
            "\n"
            "jtag-chain\n"
            "  cpu-jtag            off\n"
            "* devices             2\n"
            "    device 1, part p, irlength 6, idcode 0x00000001, fpga no, hard-ppc none, ppc-count 0\n"
            "    device 2, part UNKNOWN, irlength 0, idcode 0x00000000, fpga yes, hard-ppc ppc405, ppc-count 2\n"
            "\n"
            "* differs from its default\n");
}

TEST_F(CableParse, ShowsOnlyWhatDiffersOnDemand) {
  EXPECT_EQ(
      qvtcfg({"cable", "parse", "-cable type zarvek_plugin modulename m modulearg a modulearg b", "--changed"}).out,
      "cable and chain as in the text given\n"
      "-cable type zarvek_plugin modulename m modulearg a modulearg b\n"
      "\n"
      "cable\n"
      "* cable               zarvek_plugin\n"
      "* module              m\n"
      "* module-arguments    a;b\n"
      "\n"
      "* differs from its default\n");
}

TEST_F(CableParse, AnswersInJson) {
  const auto parsed = json({"cable", "parse", "--changed", "-configdevice jtagport cpu -debugdevice deviceNr 5"});
  EXPECT_EQ(parsed["text"], "-configdevice jtagport cpu -debugdevice deviceNr 5");
  EXPECT_EQ(values_in(parsed["settings"]), nlohmann::json::parse(R"({
              "debug-device": {"debug-device": 5},
              "jtag-chain": {
                "cpu-jtag": true,
                "devices": [{"device": 0, "part": "UNKNOWN", "irlength": 0, "idcode": 0, "fpga": false,
                             "hard-ppc": "none", "ppc-count": 0}]}})"));
  const auto settings = json({"cable", "parse", "-cable type zarvek_platformusb url u fname f"})["settings"];
  EXPECT_EQ(settings.size(), 3U);
  EXPECT_EQ(settings["debug-device"].size(), 1U);
  EXPECT_EQ(settings["cable"]["url"]["value"], "u");
  EXPECT_EQ(settings["cable"]["svf-file"]["value"], "f");
  EXPECT_EQ(settings["cable"].count("svf-file-named"), 0U);
}

TEST_F(CableParse, TakesStandardInputForADash) {
  const Result result = qvtcfg({"cable", "parse", "-"}, "-cable type zarvek_tcf\n");
  EXPECT_EQ(result.code, 0) << result.err;
  EXPECT_THAT(result.out, HasSubstr("cable and chain as in standard input\n-cable type zarvek_tcf\n"));
  EXPECT_THAT(result.out, HasSubstr("\n* cable               zarvek_tcf\n"));
}

TEST_F(CableParse, OfAnEmptyTextAreTheDefaults) {
  EXPECT_EQ(qvtcfg({"cable", "parse", "", "--changed"}).out,
            "cable and chain as in the text given\n\nevery setting has its default\n");
}

TEST_F(CableParse, WhatIsNotUnderstoodIsExplainedInOneLine) {
  const struct {
    const char* text;
    const char* word;
  } kTexts[] = {
      {"cable type none", "cable"},
      {"-foo bar", "-foo"},
      {"-cable speed 5", "speed"},
      {"-configdevice devicenr 1 -cable type x", "x"},
      {"-configdevice devicenr 1 -debugdevice deviceNr", "deviceNr"},
      {" -bscan USER9", "USER9"},
      {"-cable type zarvek_svffile", "zarvek_svffile"},
      {"-cable type zarvek_platformusb frequency 1", "1"},
  };
  for (const auto& [text, word] : kTexts) {
    const std::string why = std::string("the text given: the text is not understood at '") + word +
                            "'; expected the options -cable, -configdevice, -debugdevice and -bscan with their "
                            "keywords and values; 'qvtcfg cable format' prints such a text\n";
    const Result result = qvtcfg({"cable", "parse", text});
    EXPECT_EQ(result.code, 3) << text;
    EXPECT_EQ(result.out, "") << text;
    EXPECT_THAT(result.err, IsComplaint("qvtcfg: " + why)) << text;
  }
  EXPECT_THAT(qvtcfg({"cable", "parse", "-configdevice devicenr 1 -cable -"}).err,
              IsComplaint("the text given: the text is not understood at '-'; expected "));
  EXPECT_THAT(qvtcfg({"cable", "parse", "-cable speed 5"}).err,
              HasSubstr("\nqvtcfg: note: the engine says: UNKNOWN Parameter 'speed' for option '-cable'\n"));
}

TEST_F(CableParse, CountsTheColumnsOfATextAsItWasGiven) {
  EXPECT_THAT(qvtcfg({"cable", "parse", "-cable \001"}).err,
              IsComplaint("the text given: the byte \\x01 at column 8 is not valid text"));
  EXPECT_THAT(qvtcfg({"cable", "parse", " -cable \001"}).err, IsComplaint("at column 9 is not valid text"));
  EXPECT_THAT(qvtcfg({"cable", "parse", "--", "-cable\001"}).err, IsComplaint("at column 7 is not valid text"));
}

TEST_F(CableFormat, PrintsEverythingInTheOrderOfTheSyntax) {
  const Result result = qvtcfg({"cable", "format", "--debug-device", "2", "--device", "1,prom32,16,0xa5059093",
                                "--device", "2,dv5,10,0x2b97093", "--type", "zarvek_platformusb"});
  EXPECT_EQ(result.code, 0);
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(result.out,
            "-cable type zarvek_platformusb port USB21 frequency 6000000 "
            "-configdevice devicenr 1 partname prom32 irlength 16 idcode 0xa5059093 "
            "-configdevice devicenr 2 partname dv5 irlength 10 idcode 0x2b97093 -debugdevice deviceNr 2\n");
}

TEST_F(CableFormat, AnswersInJson) {
  EXPECT_EQ(json({"cable", "format", "--debug-device", "0x7F"}),
            nlohmann::json::parse(R"({"text": "-debugdevice deviceNr 127"})"));
}

TEST_F(CableFormat, EveryCableThatCanBeWritten) {
  const struct {
    std::vector<std::string> options;
    const char* text;
  } kCables[] = {
      {{"none", "--debug-device", "1"}, "-debugdevice deviceNr 1"},
      {{"zarvek_parallel4"}, "-cable type zarvek_parallel port LPT1 frequency 5000000"},
      {{"zarvek_parallel3", "--port", "LPT2"}, "-cable type zarvek_parallel3 port LPT2 frequency 200000"},
      {{"zarvek_platformusb", "--frequency", "12000000"},
       "-cable type zarvek_platformusb port USB21 frequency 12000000"},
      {{"zarvek_platformusb", "--esn", "0042"}, "-cable type zarvek_platformusb esn 0042"},
      {{"zarvek_plugin", "--module", "m"}, "-cable type zarvek_plugin modulename m"},
      {{"zarvek_plugin", "--module-arg", "a", "--module", "m", "--module-arg", "b"},
       "-cable type zarvek_plugin modulename m modulearg a modulearg b"},
      {{"digilent_plugin"}, "-cable type digilent_plugin"},
  };
  for (const auto& cable : kCables) {
    std::vector<std::string> arguments = {"cable", "format", "--type"};
    arguments.insert(arguments.end(), cable.options.begin(), cable.options.end());
    const Result result = qvtcfg(arguments);
    EXPECT_EQ(result.code, 0) << result.err;
    EXPECT_EQ(result.out, std::string(cable.text) + "\n");
  }
}

// The arguments of "cable format" for the settings that "cable parse" printed.
std::vector<std::string> arguments_for(const nlohmann::json& settings) {
  std::vector<std::string> arguments = {"cable", "format"};
  const auto add = [&](const char* option, const nlohmann::json& value) {
    const std::string text = value.is_string() ? value.get<std::string>() : value.dump();
    if (!text.empty()) arguments.insert(arguments.end(), {option, text});
  };
  const auto& cable = settings["cable"];
  add("--type", cable["cable"]["value"]);
  add("--frequency", cable["frequency"]["value"]);
  add("--port", cable["port"]["value"]);
  add("--esn", cable["esn"]["value"]);
  add("--module", cable["module"]["value"]);
  add("--module-arg", cable["module-arguments"]["value"]);
  for (const auto& device : settings["jtag-chain"]["devices"]["value"]) {
    add("--device", device["device"].dump() + "," + device["part"].get<std::string>() + "," +
                        device["irlength"].dump() + "," + device["idcode"].dump());
  }
  add("--debug-device", settings["debug-device"]["debug-device"]["value"]);
  return arguments;
}

TEST_F(CableFormat, IsTheInverseOfCableParse) {
  for (const char* text : {
           "-cable type zarvek_platformusb port USB21 frequency 12000000",
           "-cable type zarvek_parallel port LPT2 frequency 200000 -debugdevice deviceNr 3",
           "-cable type zarvek_parallel3 port LPT1 frequency 0 -debugdevice deviceNr 7",
           "-configdevice devicenr 1 partname p irlength 6 idcode 0x1 -debugdevice deviceNr 1",
           "-cable type zarvek_platformusb esn 0042 -debugdevice deviceNr 1",
           "-cable type zarvek_plugin modulename m modulearg a modulearg b",
       }) {
    const Result result = qvtcfg(arguments_for(json({"cable", "parse", text})["settings"]));
    EXPECT_EQ(result.code, 0) << result.err;
    EXPECT_EQ(result.out, std::string(text) + "\n");
  }
}

TEST_F(CableFormat, WhatCannotBeWrittenIsRefusedInOneLine) {
  const struct {
    std::vector<std::string> options;
    int code;
    std::string why;
  } kFaults[] = {
      {{}, 2, "nothing to write; give --type, --device or --debug-device"},
      {{"--type", "none"}, 2, "nothing to write; give --type, --device or --debug-device"},
      {{"--type", "zarvek_tcf"}, 1, "no connect command can be written for these settings; the cable: "},
      {{"--type", "zarvek_svffile", "--port", "p"}, 1, "--type=zarvek_svffile: this type is not read; the types are "},
      {{"--type", "zarvek_plugin"}, 1, "it is not read back: the text is not understood at "},
      {{"--type", "digilent_plugin", "--esn", "1"}, 1, "--esn=1: esn does not apply: the cable has no such setting"},
      {{"--type", "zarvek_plugin", "--module", "m", "--port", "p"}, 1, "--port=p: port does not apply: "},
      {{"--type", "zarvek_parallel3", "--module", "m"}, 1, "--module=m: module does not apply: "},
      {{"--type", "zarvek_parallel3", "--module-arg", "m"}, 1, "--module-arg=m: module-arguments does not apply: "},
      {{"--port", "LPT1", "--debug-device", "1"}, 1, "--port=LPT1: port does not apply: the cable has no such setting"},
      {{"--frequency", "5"}, 1, "--frequency=5: frequency does not apply: the cable has no such setting"},
      {{"--type", "zarvek_parallel3", "--frequency", "5"},
       1,
       "--frequency=5: cable zarvek_parallel3 does not support 5 Hz; the nearest: 200 kHz"},
      {{"--type", "zarvek_usb"}, 2, "--type=zarvek_usb: expected none, zarvek_parallel4, "},
      {{"--type", "zarvek_parallel3", "--frequency", "5x"}, 2, "--frequency=5x: expected a frequency such as 12000000"},
      {{"--type", "zarvek_parallel3", "--port", "two words"}, 2, "--port=two words: it must be one word"},
      {{"--debug-device", "128"}, 2, "--debug-device=128: it must be from 0 to 127"},
      {{"--device", "1,p,6"}, 2, "--device=1,p,6: expected devices as NR,PART,IRLENGTH,IDCODE"},
      {{"--device", "1,p,6,0x1,5"}, 2, "--device=1,p,6,0x1,5: expected devices as NR,PART,IRLENGTH,IDCODE"},
      {{"--device", "128,p,6,0x1"}, 2, "--device=128,p,6,0x1: expected devices"},
      {{"--device", "1,,6,0x1"}, 2, "--device=1,,6,0x1: expected devices"},
  };
  for (const auto& fault : kFaults) {
    std::vector<std::string> arguments = {"cable", "format"};
    arguments.insert(arguments.end(), fault.options.begin(), fault.options.end());
    const Result result = qvtcfg(arguments);
    EXPECT_EQ(result.code, fault.code) << fault.why;
    EXPECT_EQ(result.out, "") << fault.why;
    EXPECT_THAT(result.err, IsComplaint(fault.why));
  }
}

}  // namespace
