#include "tool.h"

namespace {

using testing::HasSubstr;
using testing::Not;

using Show = Tool;

TEST_F(Show, GroupsTheSettingsThatApplyAndMarksWhatDiffersFromItsDefault) {
  write_option_file("ovrin_0",
                    "connect ov odm -cable type zarvek_platformusb frequency 12000000 "
                    "-configdevice devicenr 1 partname dv3 irlength 6 idcode 0x1d23093 isfpga 1 "
                    "-debugdevice deviceNr 2 cpunr 1 romemStartAdr 0x1000 romemSize 512");
  const Result result = qvtcfg({"show", "ovrin_0"});
  EXPECT_EQ(result.code, 0) << result.err;
  EXPECT_EQ(result.out,
            "ovrin_0 as in etc/qvt_ovrin_0.opt\n"
            "connect ov odm -cable type zarvek_platformusb frequency 12000000 "
            "-configdevice devicenr 1 partname dv3 irlength 6 idcode 0x1d23093 isfpga 1 "
            "-debugdevice deviceNr 2 cpunr 1 romemStartAdr 0x1000 romemSize 512\n"
            "\n"
            "identity\n"
            "  name                ovrin_0\n"
            "  family              ovrin\n"
            "  variant             soft\n"
            "  cpu                 1\n"
            "  connections         simulator, hardware, stub, stub-uart\n"
            "  fpu                 none\n"
            "\n"
            "connection\n"
            "  connection          hardware\n"
            "\n"
            "stub\n"
            "  stub                jtag\n"
            "\n"
            "hardware-simulator\n"
            "  enabled             off\n"
            "\n"
            "debug-device\n"
            "* debug-device        2\n"
            "  bscan               USER2\n"
            "  cpu-version         -\n"
            "  odm-version         -\n"
            "  cpu-count           8\n"
            "\n"
            "memories\n"
            "* rom                 0x00001000\n"
            "* rom-size            512 bytes\n"
            "\n"
            "cable\n"
            "* cable               zarvek_platformusb\n"
            "* frequency           12 MHz\n"
            "  port                USB21\n"
            "  esn                 -\n"
            "  svf-file            -\n"
            "  svf-file-named      off\n"
            "  url                 -\n"
            "\n"
            "jtag-chain\n"
            "  cpu-jtag            off\n"
            "* devices             1\n"
            "    device 1, part dv3, irlength 6, idcode 0x01d23093, fpga yes, hard-ppc none, ppc-count 0\n"
            "\n"
            "* differs from its default\n");
}

TEST_F(Show, TellsOnDemandWhyTheOtherSettingsDoNotApply) {
  const Result result = qvtcfg({"show", "ovrin_0", "--all"});
  EXPECT_EQ(result.code, 0) << result.err;
  EXPECT_THAT(result.out, HasSubstr("\n  memory-size         16  (it is for the simulator of a soft processor)\n"));
  EXPECT_THAT(result.out,
              HasSubstr("\n  hardware-simulator-host  localhost  (the hardware simulator is not enabled)\n"));
  EXPECT_THAT(result.out, HasSubstr("\n  icache              not set  (it is for a PowerPC with the connection "));
  EXPECT_THAT(result.out, HasSubstr("\n  cable               none\n"));
}

TEST_F(Show, NeverHidesWhatDiffersFromItsDefault) {
  write_option_file("ovrin_0", "connect ov odm -cable type zarvek_plugin modulename m esn 0042 frequency 7 -quiet");
  for (const char* option : {"--changed", "--json", "--all"}) {
    EXPECT_THAT(qvtcfg({"show", "ovrin_0", option}).out, HasSubstr("0042")) << option;
  }
  for (const std::string& shown : {qvtcfg({"show", "ovrin_0"}).out, qvtcfg({"show", "ovrin_0", "--changed"}).out}) {
    EXPECT_THAT(shown, HasSubstr("\n* esn                 0042  (the cable has no such setting)\n"));
  }
}

TEST_F(Show, SaysThatTheSettingsAreTheDefaultsWithoutAnOptionFile) {
  const Result result = qvtcfg({"show", "ovrin_0"});
  EXPECT_EQ(result.code, 0);
  EXPECT_THAT(result.out, HasSubstr("ovrin_0 as in the defaults (no etc/qvt_ovrin_0.opt)\n\nidentity\n"));
  EXPECT_THAT(result.out, Not(HasSubstr("\n* debug-device")));
}

TEST_F(Show, AnswersInJsonWithNullForWhatIsNotSet) {
  write_option_file("ovrin_0", "connect ov odm -debugdevice deviceNr 2");
  const auto shown = json({"show", "ovrin_0"});
  EXPECT_EQ(shown["processor"], "ovrin_0");
  EXPECT_EQ(shown["file"], "etc/qvt_ovrin_0.opt");
  EXPECT_EQ(shown["command"], "connect ov odm -debugdevice deviceNr 2");
  const auto& settings = shown["settings"];
  EXPECT_EQ(settings["identity"]["family"]["value"], "ovrin");
  EXPECT_EQ(settings["debug-device"]["debug-device"], nlohmann::json::parse(R"({"value": 2, "unit": null,
      "changed": true, "applies": true, "changeable": true, "whyNot": null})"));
  EXPECT_TRUE(settings["memories"]["rom"]["value"].is_null());
  EXPECT_EQ(settings["memories"]["rom-size"]["unit"], "bytes");
  EXPECT_EQ(settings["stub"]["stub-port"], nlohmann::json::parse(R"({"value": "/dev/ttyS0", "unit": null,
      "changed": false, "applies": false, "changeable": false,
      "whyNot": "it is for the connection 'stub' over a serial line"})"));
  EXPECT_EQ(settings["hardware-simulator"]["hardware-simulator-port"]["value"], 9998);
  EXPECT_EQ(settings["jtag-chain"]["devices"]["value"], nlohmann::json::array());
}

TEST_F(Show, AnswersNullForAMissingFile) {
  const auto shown = json({"show", "ovrin_0"});
  EXPECT_TRUE(shown["file"].is_null());
  EXPECT_TRUE(shown["command"].is_null());
}

TEST_F(Show, SettingsOfEveryOtherTestedKindHaveTheirWords) {
  write_option_file("ovrin_0", "connect ov stub -comm serial -port COM1 -baud 9600 -timeout 5 -bscan USER4");
  const auto settings = json({"show", "ovrin_0"})["settings"];
  EXPECT_EQ(settings["connection"]["connection"]["value"], "stub");
  EXPECT_EQ(settings["stub"]["stub"]["value"], "serial");
  EXPECT_EQ(settings["stub"]["stub-port"]["value"], "COM1");
  EXPECT_EQ(settings["stub"]["stub-baud"]["value"], 9600);
  EXPECT_EQ(settings["stub"]["stub-timeout"]["value"], 5);
  EXPECT_EQ(settings["debug-device"]["bscan"]["value"], "USER4");
}

TEST_F(Show, ReadsTheOptionFileOfTheFolderGivenWithC) {
  write_option_file("ovrin_0", "connect ov sim");
  const Result result = shell("cd / && exec \"$QVTCFG\" -C " + folder().string() + " show ovrin_0");
  EXPECT_EQ(result.code, 0) << result.err;
  EXPECT_THAT(result.out, HasSubstr("as in " + folder().string() + "/etc/qvt_ovrin_0.opt\nconnect ov sim\n"));
}

TEST_F(Show, UsesColourOnATerminalOnly) {
  EXPECT_THAT(qvtcfg_on_terminal({"show", "ovrin_0"}).out, HasSubstr("\033[1midentity\033[0m"));
  EXPECT_THAT(qvtcfg({"show", "ovrin_0"}).out, Not(HasSubstr("\033")));
}

TEST_F(Show, AnEmptyNoColorHasNoEffect) {
  EXPECT_THAT(qvtcfg_on_terminal({"show", "ovrin_0"}, {"TERM=xterm", "NO_COLOR="}).out, HasSubstr("\033[1m"));
}

TEST_F(Show, UsesNoColourOnADumbTerminal) {
  const Result result = qvtcfg_on_terminal({"show", "ovrin_0"}, {"TERM=dumb"});
  EXPECT_THAT(result.out, HasSubstr("identity"));
  EXPECT_THAT(result.out, Not(HasSubstr("\033")));
}

}  // namespace
