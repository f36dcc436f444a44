// "read" without a processor, and with every target.

#include "answers.h"
#include "tool.h"

namespace {

using testing::HasSubstr;
using testing::StartsWith;

class Targets : public Tool {
 protected:
  // The values of the settings that a command changes.
  nlohmann::json settings(const char* command) const {
    return values_in(json({"read", command, "--changed"})["settings"]);
  }
};

class WithoutDesign : public Tool {
 protected:
  WithoutDesign() { std::filesystem::remove(folder() / "design.json"); }
};

using ReadAlone = Tool;
using ReadWithoutDesign = WithoutDesign;
using Changed = Tool;

TEST_F(ReadAlone, FindsTheProcessorByFamilyAndNumber) {
  const Result result = qvtcfg({"read", "connect ppc hw -debugdevice cpunr 2 deviceNr 3 fpuType sp", "--changed"});
  EXPECT_EQ(result.code, 0) << result.err;
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(result.out,
            "ppc440_0 as in the command given\n"
            "connect ppc hw -debugdevice cpunr 2 deviceNr 3 fpuType sp\n"
            "\n"
            "identity\n"
            "  name                ppc440_0\n"
            "  family              ppc\n"
            "  variant             ppc440\n"
            "  cpu                 2\n"
            "  connections         simulator, hardware\n"
            "  fpu                 dp\n"
            "\n"
            "debug-device\n"
            "* debug-device        3\n"
            "\n"
            "* differs from its default\n");
}

TEST_F(ReadAlone, TakesStandardInputForADash) {
  EXPECT_THAT(qvtcfg({"read", "-"}, "connect ov sim\n").out,
              StartsWith("ovrin_0 as in standard input\nconnect ov sim\n\n"));
}

TEST_F(ReadAlone, StoresTheOptionFileOfTheProcessorThatItFound) {
  const auto shown = json({"read", "connect ppc hw -debugdevice cpunr 1 isocmStartAdr 0x100 isocmSize 8", "--write"});
  EXPECT_EQ(shown["processor"], "ppc405_0");
  EXPECT_EQ(shown["file"], "etc/qvt_ppc405_0.opt");
  EXPECT_EQ(shown["settings"]["identity"]["variant"]["value"], "ppc405");
  EXPECT_THAT(read_option_file("ppc405_0"), StartsWith("connect ppc hw -debugdevice cpunr 1 isocmStartAdr 0x100 "));
}

TEST_F(ReadAlone, StoresWhatTheCommandSaysWithItsChain) {
  const Result result = qvtcfg({"read", "connect arm hw -configdevice devicenr 1 -debugdevice cpunr 2", "--write"});
  EXPECT_EQ(result.code, 0) << result.err;
  EXPECT_THAT(result.out, HasSubstr("\nwritten to etc/qvt_cortexa9_1.opt\n"));
  EXPECT_EQ(read_option_file("cortexa9_1"), "connect arm hw -configdevice devicenr 1 -debugdevice cpunr 2");
}

TEST_F(ReadAlone, StoresNothingThatTheProcessorDoesNotAdmit) {
  const char* command = "connect ov stub -debugdevice cpunr 2";
  EXPECT_EQ(qvtcfg({"read", command}).code, 0);
  const Result result = qvtcfg({"read", command, "--write"});
  EXPECT_EQ(result.code, 3);
  EXPECT_EQ(result.out, "");
  EXPECT_THAT(result.err, IsComplaint("the command given: the text is not understood at 'stub'; 'qvtcfg command "
                                      "ovrin_1' prints one that is understood"));
  EXPECT_FALSE(exists("etc/qvt_ovrin_1.opt"));
}

TEST_F(ReadAlone, StoresNothingWithoutAProcessor) {
  for (const char* command : {"connect qmtc", "connect r5 hw -debugdevice cpunr 9"}) {
    const Result result = qvtcfg({"read", command, "--write"});
    EXPECT_EQ(result.code, 1) << command;
    EXPECT_EQ(result.out, "") << command;
    EXPECT_EQ(result.err,
              "qvtcfg: --write: the command is for no processor of the design; name one: 'qvtcfg processors' lists the "
              "processors\n");
  }
  EXPECT_TRUE(std::filesystem::is_empty(folder() / "etc"));
}

TEST_F(ReadAlone, WhatIsNotUnderstoodIsExplainedInOneLine) {
  const struct {
    const char* text;
    const char* why;
  } kFaults[] = {
      {"", "the text is not understood"},
      {"hello there", "the text is not understood"},
      {"connect ppc sim -foo", "UNKNOWN PowerPC Sim Option '-foo'"},
      {"connect ov odm -sim -foo", "UNKNOWN ModelSim Option '-foo'"},
      {"vpconnect ov -foo", "UNKNOWN virtual platform Option '-foo'"},
      {"connect qmtc -uart", "UNKNOWN Option '-uart'"},
      {"connect ov odm -", "the text is not understood at '-'"},
  };
  for (const auto& fault : kFaults) {
    const Result result = qvtcfg({"read", fault.text});
    EXPECT_EQ(result.code, 3) << fault.text;
    EXPECT_EQ(result.out, "") << fault.text;
    EXPECT_THAT(result.err, IsComplaint("; 'qvtcfg command PROC' prints one that is understood\n"));
    EXPECT_THAT(result.err, HasSubstr(fault.why));
  }
}

TEST_F(ReadAlone, DoesNotTakeABrokenDesignForNone) {
  write("design.json", "{");
  EXPECT_EQ(qvtcfg({"read", "connect ov sim"}).code, 4);
}

TEST_F(ReadWithoutDesign, ShowsWhatTheCommandAloneTells) {
  const Result result = qvtcfg({"read", "vpconnect ov -config cycle_approximate", "--changed"});
  EXPECT_EQ(result.code, 0) << result.err;
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(result.out,
            "no processor of a design, as in the command given\n"
            "vpconnect ov -config cycle_approximate\n"
            "\n"
            "identity\n"
            "  name                not set\n"
            "  family              ovrin\n"
            "  variant             soft\n"
            "  cpu                 1\n"
            "  connections         simulator, hardware, stub, virtual-platform\n"
            "  fpu                 none\n"
            "\n"
            "connection\n"
            "* connection          virtual-platform\n"
            "\n"
            "virtual-platform\n"
            "* configured          on\n"
            "* cycle-approximate   on\n"
            "\n"
            "* differs from its default\n");
}

TEST_F(ReadWithoutDesign, AnswersNullForTheProcessor) {
  const auto shown = json({"read", "connect ppc hw -debugdevice fpuType dp cpunr 7"});
  EXPECT_TRUE(shown["processor"].is_null());
  EXPECT_TRUE(shown["file"].is_null());
  EXPECT_EQ(values_in(shown["settings"])["identity"],
            nlohmann::json::parse(R"({"name": null, "family": "ppc", "variant": "other",
      "cpu": 7, "connections": ["simulator", "hardware"], "fpu": "dp"})"));
}

TEST_F(ReadWithoutDesign, StoresNothing) {
  const Result result = qvtcfg({"read", "connect ov sim", "--write"});
  EXPECT_EQ(result.code, 1);
  EXPECT_EQ(result.err, "qvtcfg: --write: there is no design to find its processor in; --design FILE names one\n");
}

TEST_F(ReadWithoutDesign, OneThatIsNamedHasToBeThere) {
  EXPECT_THAT(qvtcfg({"--design", "design.json", "read", "connect ov sim"}).err, IsComplaint("design.json"));
  EXPECT_EQ(qvtcfg({"read", "ovrin_0", "connect ov sim"}).code, 4);
  std::filesystem::create_symlink("nowhere", folder() / "design.json");
  EXPECT_EQ(qvtcfg({"read", "connect ov sim"}).code, 4);
}

// --- Every target, with all of its options ---

TEST_F(Targets, PowerPcOverHardware) {
  const auto s = settings(
      "connect ppc hw -debugdevice cpunr 1 proctype ppc405 isocmStartAdr 0x100 isocmSize 8192 isocmDcrStartAdr 0x10 "
      "icacheStartAdr 0x70000000 itagStartAdr 0x70010000 dcacheStartAdr 0x70020000 dtagStartAdr 0x70030000 "
      "tlbStartAdr 0x70040000 dcrStartAdr 0x70050000 cpu_version 1.0 odm_version 2.0 nCpu 4");
  EXPECT_EQ(s["identity"]["variant"], "ppc405");
  EXPECT_EQ(s["identity"]["fpu"], "sp");
  EXPECT_EQ(s["memories"], (nlohmann::json{{"isocm", 0x100}, {"isocm-size", 8192}, {"isocm-dcr", 0x10}}));
  EXPECT_EQ(s["address-map"], (nlohmann::json{{"address-map", 0x70000000},
                                              {"icache", 0x70000000},
                                              {"itag", 0x70010000},
                                              {"dcache", 0x70020000},
                                              {"dtag", 0x70030000},
                                              {"tlb", 0x70040000},
                                              {"dcr", 0x70050000}}));
  EXPECT_EQ(s["debug-device"], (nlohmann::json{{"cpu-version", "1.0"}, {"odm-version", "2.0"}, {"cpu-count", 4}}));
  EXPECT_EQ(s.size(), 4U);
}

TEST_F(Targets, PowerPcSimulator) {
  const auto s = settings("connect ppc sim -icf my.icf -ipcport simhost:6471");
  EXPECT_EQ(s["connection"], (nlohmann::json{{"connection", "simulator"}}));
  EXPECT_EQ(s["simulator"], (nlohmann::json{{"config-file", "my.icf"}, {"sim-host", "simhost"}, {"sim-port", 6471}}));
  EXPECT_EQ(s.size(), 3U);
}

TEST_F(Targets, HardwareSimulator) {
  const auto s = settings("connect ov odm -sim -ipcport vsim:-5");
  EXPECT_EQ(s["hardware-simulator"],
            (nlohmann::json{{"enabled", true}, {"hardware-simulator-host", "vsim"}, {"hardware-simulator-port", -5}}));
  EXPECT_EQ(s.size(), 2U);
}

TEST_F(Targets, VirtualPlatform) {
  const auto s = settings("qvpconnect ov -ipcport host1:-1");
  EXPECT_EQ(s["connection"], (nlohmann::json{{"connection", "virtual-platform"}}));
  EXPECT_EQ(s["simulator"], (nlohmann::json{{"sim-host", "host1"}, {"sim-port", -1}}));
  EXPECT_EQ(s.size(), 3U);
}

TEST_F(Targets, StubOverASerialLine) {
  const auto s = settings("connect ov stub -comm serial -port COM1 -baud 9600 -timeout 5");
  EXPECT_EQ(s["stub"],
            (nlohmann::json{{"stub", "serial"}, {"stub-port", "COM1"}, {"stub-baud", 9600}, {"stub-timeout", 5}}));
}

TEST_F(Targets, CableWithAllItsSettings) {
  constexpr const char* kCommand =
      "connect ov odm -cable type zarvek_plugin modulename m modulearg a esn e url u fname f port p frequency 7 "
      "-debugdevice romemStartAdr 0 romemSize 4";
  const auto s = settings(kCommand);
  EXPECT_EQ(s["cable"], (nlohmann::json{{"cable", "zarvek_plugin"},
                                        {"frequency", 7},
                                        {"port", "p"},
                                        {"esn", "e"},
                                        {"svf-file", "f"},
                                        {"svf-file-named", true},
                                        {"module", "m"},
                                        {"module-arguments", "a"},
                                        {"url", "u"}}));
  EXPECT_EQ(s["memories"], (nlohmann::json{{"rom", 0}, {"rom-size", 4}}));
  EXPECT_EQ(json({"read", kCommand})["settings"]["cable"]["frequency"], nlohmann::json::parse(R"({
      "value": 7, "unit": "Hz", "changed": true, "applies": false, "changeable": false,
      "whyNot": "the cable has no such setting"})"));
}

TEST_F(Targets, ThatTellWhatTheProcessorIs) {
  const struct {
    const char* command;
    const char* identity;
  } kTargets[] = {
      {"connect ov sim", R"(["ovrin_0", "ovrin", "soft", ["simulator", "hardware", "stub", "stub-uart"]])"},
      {"connect arm hw", R"(["cortexa9_0", "arm", "cortex-a9", ["hardware"]])"},
      {"connect r5 hw", R"(["cortexa9_0", "arm", "cortex-a9", ["hardware"]])"},
      {"connect r5 hw -debugdevice cpunr 9", R"([null, "arm", "r5", ["hardware"]])"},
      {"connect ppc hw -debugdevice cpunr 9", R"([null, "ppc", "other", ["simulator", "hardware"]])"},
      {"connect dap hw", R"([null, "arm", "cortex-a9", ["dap-target"]])"},
      {"connect dcc", R"([null, "arm", "cortex-a9", ["dcc-target"]])"},
      {"connect qmtc", R"([null, "ovrin", "soft", ["qmtc-target"]])"},
      {"qconnect odm", R"([null, "ovrin", "soft", ["odm-target"]])"},
  };
  for (const auto& target : kTargets) {
    const auto identity = settings(target.command)["identity"];
    EXPECT_EQ((nlohmann::json{identity["name"], identity["family"], identity["variant"], identity["connections"]}),
              nlohmann::json::parse(target.identity))
        << target.command;
  }
}

TEST_F(Targets, WithTheDebugModulesOwnSettings) {
  EXPECT_EQ(settings("connect odm -uart -bscan USER4")["debug-device"],
            (nlohmann::json{{"bscan", "USER4"}, {"uart", true}}));
  EXPECT_EQ(settings("connect dcc -uart")["debug-device"], (nlohmann::json{{"uart", true}}));
}

// --- --changed ---

TEST_F(Changed, ShowsNothingButTheIdentityOfTheDefaults) {
  EXPECT_EQ(qvtcfg({"show", "ovrin_1", "--changed"}).out,
            "ovrin_1 as in the defaults (no etc/qvt_ovrin_1.opt)\n"
            "\n"
            "identity\n"
            "  name                ovrin_1\n"
            "  family              ovrin\n"
            "  variant             soft\n"
            "  cpu                 2\n"
            "  connections         simulator, hardware\n"
            "  fpu                 none\n"
            "\n"
            "every setting has its default\n");
  EXPECT_EQ(json({"show", "ovrin_1", "--changed"})["settings"].size(), 1U);
}

TEST_F(Changed, LeavesOutDefaultsAndEmptyGroups) {
  write_option_file("ovrin_0", "connect ov odm -cable type digilent_plugin -debugdevice deviceNr 2");
  const auto settings = values_in(json({"show", "ovrin_0", "--changed"})["settings"]);
  EXPECT_EQ(settings["debug-device"], (nlohmann::json{{"debug-device", 2}}));
  EXPECT_EQ(settings["cable"], (nlohmann::json{{"cable", "digilent_plugin"}}));
  EXPECT_EQ(settings.size(), 3U);
}

}  // namespace
