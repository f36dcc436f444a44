#include "tool.h"

namespace {

using testing::HasSubstr;
using testing::Not;

using Show = Tool;

TEST_F(Show, GroupsEverySettingAndMarksWhatDiffersFromItsDefault) {
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
            "  stub-port           /dev/ttyS0\n"
            "  stub-baud           0\n"
            "  stub-timeout        20000\n"
            "\n"
            "simulator\n"
            "  memory-size         16\n"
            "  config-file         -\n"
            "  sim-host            -\n"
            "  sim-port            0\n"
            "\n"
            "virtual-platform\n"
            "  configured          no\n"
            "  cycle-approximate   no\n"
            "\n"
            "hardware-simulator\n"
            "  enabled             no\n"
            "  host                localhost\n"
            "  port                9998\n"
            "\n"
            "debug-device\n"
            "* debug-device        2\n"
            "  bscan               USER2\n"
            "  uart                no\n"
            "  cpu-version         -\n"
            "  odm-version         -\n"
            "  cpu-count           8\n"
            "\n"
            "address-map\n"
            "  address-map         not set\n"
            "  icache              not set\n"
            "  itag                not set\n"
            "  dcache              not set\n"
            "  dtag                not set\n"
            "  tlb                 not set\n"
            "  dcr                 not set\n"
            "\n"
            "memories\n"
            "  isocm               not set\n"
            "  isocm-size          0\n"
            "  isocm-dcr           not set\n"
            "* rom                 0x00001000\n"
            "* rom-size            512\n"
            "\n"
            "cable\n"
            "* cable               zarvek_platformusb\n"
            "* frequency           12000000\n"
            "* port                USB21\n"
            "  esn                 -\n"
            "  svf-file            -\n"
            "  svf-file-named      no\n"
            "  module              -\n"
            "  module-arguments    -\n"
            "  url                 -\n"
            "\n"
            "jtag-chain\n"
            "  cpu-jtag            no\n"
            "* devices             1\n"
            "    device 1, part dv3, irlength 6, idcode 0x01d23093, fpga yes, hard-ppc none, ppc-count 0\n"
            "\n"
            "* differs from its default\n");
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
  EXPECT_EQ(settings["identity"]["family"], "ovrin");
  EXPECT_EQ(settings["debug-device"]["debug-device"], nlohmann::json::parse(R"({"value": 2, "default": false})"));
  EXPECT_EQ(settings["memories"]["rom"], nlohmann::json::parse(R"({"value": null, "default": true})"));
  EXPECT_EQ(settings["jtag-chain"]["devices"], nlohmann::json::parse(R"({"value": [], "default": true})"));
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
