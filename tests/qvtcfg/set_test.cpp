#include <chrono>

#include "answers.h"
#include "tool.h"

namespace {

using testing::HasSubstr;

// The command that the only processor of the result has after the change.
nlohmann::json after(const nlohmann::json& result) {
  EXPECT_EQ(result["processors"].size(), 1U);
  return result["processors"][0]["after"];
}

using Set = Tool;

TEST_F(Set, CreatesTheOptionFile) {
  const Result result = qvtcfg({"set", "ovrin_0", "cable=zarvek_platformusb", "frequency=12000000", "debug-device=2"});
  EXPECT_EQ(result.code, 0);
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(result.out,
            "+ connect ov odm -cable type zarvek_platformusb port USB21 frequency 12000000 -debugdevice deviceNr 2 "
            "cpunr 1\n"
            "debug-device  0 -> 2\n"
            "cable  none -> zarvek_platformusb\n"
            "frequency  0 Hz -> 12 MHz\n"
            "follows: port  - -> USB21\n"
            "written to etc/qvt_ovrin_0.opt\n");
  EXPECT_EQ(read_option_file("ovrin_0"),
            "connect ov odm -cable type zarvek_platformusb port USB21 frequency 12000000 -debugdevice deviceNr 2 "
            "cpunr 1");
}

TEST_F(Set, ShowsOldAndNewWithTheDifferencesMarked) {
  write_option_file("ovrin_0",
                    "connect ov odm -quiet -cable type zarvek_platformusb port USB21 frequency 6000000 -debugdevice "
                    "deviceNr 2 cpunr 1");
  const Result result = qvtcfg({"set", "ovrin_0", "frequency=24000000", "debug-device=3"});
  EXPECT_EQ(result.out,
            "- connect ov odm -quiet -cable type zarvek_platformusb port USB21 frequency [6000000] -debugdevice "
            "deviceNr [2] cpunr 1\n"
            "+ connect ov odm -quiet -cable type zarvek_platformusb port USB21 frequency [24000000] -debugdevice "
            "deviceNr [3] cpunr 1\n"
            "debug-device  2 -> 3\n"
            "frequency  6 MHz -> 24 MHz\n"
            "written to etc/qvt_ovrin_0.opt\n");
}

TEST_F(Set, ColoursTheDifferencesOnATerminalUnlessNoColorIsSet) {
  write_option_file("ovrin_0", "connect ov odm -debugdevice cpunr 1");
  EXPECT_THAT(qvtcfg_on_terminal({"set", "ovrin_0", "debug-device=3", "--dry-run"}).out,
              HasSubstr("+ connect ov odm -debugdevice \033[32m[deviceNr 3]\033[0m cpunr 1"));
  const Result plain =
      qvtcfg_on_terminal({"set", "ovrin_0", "debug-device=3", "--dry-run"}, {"TERM=xterm", "NO_COLOR=1"});
  EXPECT_THAT(plain.out, HasSubstr("+ connect ov odm -debugdevice [deviceNr 3] cpunr 1"));
}

TEST_F(Set, StoresNothingInADryRun) {
  const Result result = qvtcfg({"set", "ovrin_0", "--dry-run", "debug-device=3"});
  EXPECT_EQ(result.code, 0);
  EXPECT_EQ(result.out, "+ connect ov odm -debugdevice deviceNr 3 cpunr 1\ndebug-device  0 -> 3\n");
  EXPECT_FALSE(exists("etc/qvt_ovrin_0.opt"));
}

TEST_F(Set, SaysWhenNothingChanges) {
  write_option_file("ovrin_0", "connect ov odm -debugdevice cpunr 1");
  EXPECT_EQ(qvtcfg({"set", "ovrin_0", "debug-device=0", "--dry-run"}).out,
            "  connect ov odm -debugdevice cpunr 1\nnothing changes\n");
}

TEST_F(Set, AnswersInJson) {
  EXPECT_EQ(json({"set", "ovrin_0", "debug-device=3"}), nlohmann::json::parse(R"({
      "dryRun": false,
      "processors": [{"processor": "ovrin_0", "file": "etc/qvt_ovrin_0.opt", "before": null,
                      "after": "connect ov odm -debugdevice deviceNr 3 cpunr 1", "changes": true,
                      "differences": [{"setting": "debug-device", "unit": null, "before": 0, "after": 3,
                                       "follows": false}],
                      "losses": [], "notReadBack": null, "notTaken": []}],
      "skipped": []})"));
  const auto second = json({"set", "ovrin_0", "debug-device=4", "--dry-run"});
  EXPECT_EQ(second["processors"][0]["before"], "connect ov odm -debugdevice deviceNr 3 cpunr 1");
  EXPECT_EQ(second["dryRun"], true);
}

TEST_F(Set, AppliesTheCableBeforeItsOtherSettings) {
  EXPECT_EQ(after(json({"set", "ovrin_0", "port=USB22", "frequency=750000", "cable=zarvek_platformusb"})),
            "connect ov odm -cable type zarvek_platformusb port USB22 frequency 750000 -debugdevice cpunr 1");
}

TEST_F(Set, AppliesTheConnectionBeforeTheStub) {
  EXPECT_EQ(after(json({"set", "ovrin_0", "stub-baud=0x1C200", "stub-port=COM2", "stub=serial", "connection=stub"})),
            "connect ov stub -comm serial -port COM2  -baud  115200 -timeout 20000");
}

TEST_F(Set, EveryConnectionOfASoftProcessor) {
  EXPECT_EQ(after(json({"set", "ovrin_0", "connection=simulator", "--dry-run"})), "connect ov sim");
  const Result stub = qvtcfg({"set", "ovrin_0", "connection=stub", "--dry-run"});
  EXPECT_THAT(stub.out, testing::HasSubstr("+ connect ov stub -comm jtag\n"));
  EXPECT_THAT(stub.err, IsComplaint("warning: the design has a stub over a serial line only; set stub to serial"));
  EXPECT_EQ(after(json({"set", "ovrin_0", "connection=hardware", "--dry-run"})), "connect ov odm -debugdevice cpunr 1");
}

TEST_F(Set, EveryCableThatCanBeWritten) {
  const struct {
    const char* name;
    const char* command;
  } kCables[] = {
      {"none", "connect ov odm -debugdevice cpunr 1"},
      {"zarvek_parallel4",
       "connect ov odm -cable type zarvek_parallel port LPT1 frequency 5000000 -debugdevice cpunr 1"},
      {"zarvek_platformusb",
       "connect ov odm -cable type zarvek_platformusb port USB21 frequency 6000000 -debugdevice cpunr 1"},
      {"zarvek_parallel3",
       "connect ov odm -cable type zarvek_parallel3 port LPT1 frequency 200000 -debugdevice cpunr 1"},
      {"digilent_plugin", "connect ov odm -cable type digilent_plugin -debugdevice cpunr 1"},
  };
  for (const auto& cable : kCables) {
    EXPECT_EQ(after(json({"set", "ovrin_0", std::string("cable=") + cable.name, "--dry-run"})), cable.command);
  }
}

TEST_F(Set, TheSerialNumberStandsForPortAndFrequencyUntilItIsEmptied) {
  EXPECT_EQ(after(json({"set", "ovrin_0", "cable=zarvek_platformusb", "esn=0042"})),
            "connect ov odm -cable type zarvek_platformusb frequency 6000000 esn 0042 -debugdevice cpunr 1");
  EXPECT_EQ(after(json({"set", "ovrin_0", "esn=", "frequency=12000000"})),
            "connect ov odm -cable type zarvek_platformusb frequency 12000000 -debugdevice cpunr 1");
}

TEST_F(Set, TheModuleOfAPluginCableReplacesTheOneBefore) {
  EXPECT_EQ(after(json({"set", "ovrin_0", "module=m,a,b", "cable=zarvek_plugin"})),
            "connect ov odm -cable type zarvek_plugin modulename m modulearg a modulearg b -debugdevice cpunr 1");
  EXPECT_EQ(after(json({"set", "ovrin_0", "module=n"})),
            "connect ov odm -cable type zarvek_plugin modulename n -debugdevice cpunr 1");
}

TEST_F(Set, TheJtagChainAndItsRemoval) {
  EXPECT_EQ(after(json({"set", "ovrin_0", "devices=1,prom32,16,0xa5059093:2,dv5,10,45708435"})),
            "connect ov odm -configdevice devicenr 1 partname prom32 irlength 16 idcode 0xa5059093 "
            "-configdevice devicenr 2 partname dv5 irlength 10 idcode 0x2b97493 -debugdevice cpunr 1");
  EXPECT_EQ(after(json({"set", "ovrin_0", "devices=3,p,6,1"})),
            "connect ov odm -configdevice devicenr 3 partname p irlength 6 idcode 0x1 -debugdevice cpunr 1");
  EXPECT_EQ(after(json({"set", "ovrin_0", "devices=none"})), "connect ov odm -debugdevice cpunr 1");
}

TEST_F(Set, ReadOnlyMemoryAndItsRemoval) {
  EXPECT_EQ(after(json({"set", "ovrin_0", "rom=0xFFFF0000,65536"})),
            "connect ov odm -debugdevice cpunr 1 romemStartAdr 0xffff0000 romemSize 65536");
  EXPECT_EQ(after(json({"set", "ovrin_0", "rom=unset"})), "connect ov odm -debugdevice cpunr 1");
}

TEST_F(Set, TheProcessorsOwnJtagPinsOnlyByForce) {
  const Result refused = qvtcfg({"set", "ovrin_0", "cpu-jtag=on"});
  EXPECT_EQ(refused.code, 1);
  EXPECT_EQ(refused.out, "");
  EXPECT_THAT(refused.err,
              IsComplaint("etc/qvt_ovrin_0.opt: it is not read back: UNKNOWN "
                          "Parameter 'jtagpin' for option '-configDevice'; --force stores it nevertheless"));
  EXPECT_FALSE(exists("etc/qvt_ovrin_0.opt"));

  const Result forced = qvtcfg({"set", "ovrin_0", "cpu-jtag=on", "--force"});
  EXPECT_EQ(forced.code, 0);
  EXPECT_THAT(forced.err, IsComplaint("warning: etc/qvt_ovrin_0.opt: it is not read back"));
  EXPECT_EQ(read_option_file("ovrin_0"), "connect ov odm -configdevice jtagpin cpujtag -debugdevice cpunr 1");
}

TEST_F(Set, TakesTheOwnJtagPinsOutOfAFileThatIsRefusedForThemAlone) {
  write_option_file("ovrin_0", "connect  ov odm -configdevice jtagpin cpujtag -debugdevice cpunr 1\n");
  EXPECT_EQ(qvtcfg({"show", "ovrin_0"}).code, 3);
  EXPECT_EQ(qvtcfg({"set", "ovrin_0", "debug-device=1"}).code, 3);
  const Result result = qvtcfg({"set", "ovrin_0", "cpu-jtag=off"});
  EXPECT_EQ(result.code, 0) << result.err;
  EXPECT_THAT(result.out, HasSubstr("\ncpu-jtag  on -> off\nwritten to"));
  EXPECT_EQ(read_option_file("ovrin_0"), "connect  ov odm -debugdevice cpunr 1\n");
}

TEST_F(Set, UnderstandsNumbersAsPeopleTypeThem) {
  EXPECT_EQ(after(json({"set", "ovrin_0", "cable=zarvek_platformusb", "frequency=12 MHz", "rom=0x1000,64K"})),
            "connect ov odm -cable type zarvek_platformusb port USB21 frequency 12000000 -debugdevice cpunr 1 "
            "romemStartAdr 0x1000 romemSize 65536");
  EXPECT_THAT(qvtcfg({"set", "ovrin_0", "frequency=12e6"}).out, HasSubstr("\nnothing changes\n"));
}

TEST_F(Set, AnEmptyValuePutsBackTheDefault) {
  write_option_file("ovrin_0", "connect ov odm -bscan USER4 -debugdevice deviceNr 2 cpunr 1");
  EXPECT_EQ(after(json({"set", "ovrin_0", "bscan=", "debug-device="})), "connect ov odm -debugdevice cpunr 1");
}

TEST_F(Set, AppendsDevicesToTheChain) {
  write_option_file("ovrin_0", "connect ov odm -quiet -configdevice devicenr 1 partname a irlength 6 idcode 0x1");
  const Result result = qvtcfg({"set", "ovrin_0", "devices+=2,b,8,0x2:3,c,4,3"});
  EXPECT_EQ(result.code, 0) << result.err;
  EXPECT_EQ(read_option_file("ovrin_0"),
            "connect ov odm -quiet -configdevice devicenr 1 partname a irlength 6 idcode 0x1 -configdevice devicenr 2 "
            "partname b irlength 8 idcode 0x2 -configdevice devicenr 3 partname c irlength 4 idcode 0x3");
}

TEST_F(Set, AppendingNothingLeavesTheChain) {
  write_option_file("ovrin_0", "connect ov odm -configdevice devicenr 1");
  EXPECT_THAT(qvtcfg({"set", "ovrin_0", "devices+="}).out, HasSubstr("nothing changes"));
}

TEST_F(Set, NothingToChangeWritesNothing) {
  write_option_file("ovrin_0", "connect ov odm -debugdevice deviceNr 0x3");
  const auto path = folder() / "etc/qvt_ovrin_0.opt";
  const auto old = std::filesystem::last_write_time(path) - std::chrono::hours(1);
  std::filesystem::last_write_time(path, old);
  const Result result = qvtcfg({"set", "ovrin_0", "debug-device=3"});
  EXPECT_EQ(result.code, 0);
  EXPECT_EQ(result.out, "  connect ov odm -debugdevice deviceNr 0x3\nnothing changes\n");
  EXPECT_EQ(std::filesystem::last_write_time(path), old);
  EXPECT_EQ(qvtcfg({"set", "ovrin_1", "debug-device=0"}).code, 0);
  EXPECT_FALSE(exists("etc/qvt_ovrin_1.opt"));
}

TEST_F(Set, TellsByItsExitCodeWhetherSomethingWouldChange) {
  EXPECT_EQ(qvtcfg({"set", "ovrin_0", "debug-device=3", "--dry-run", "--exit-code"}).code, 5);
  EXPECT_FALSE(exists("etc/qvt_ovrin_0.opt"));
  EXPECT_EQ(qvtcfg({"set", "ovrin_0", "debug-device=0", "--dry-run", "--exit-code"}).code, 0);
  EXPECT_EQ(qvtcfg({"set", "ovrin_0", "debug-device=3", "--exit-code"}).code, 2);
}

TEST_F(Set, WarnsOfADebugDeviceThatTheChainDoesNotHave) {
  const Result result = qvtcfg({"set", "ovrin_0", "devices=1,a,6,1", "debug-device=4"});
  EXPECT_EQ(result.code, 0);
  EXPECT_EQ(result.err, "qvtcfg: warning: no device of the JTAG chain has the number 4 of the debug device\n");
}

TEST_F(Set, DoesNotWarnOfWhatALaterKeyPutsRight) {
  EXPECT_EQ(qvtcfg({"set", "ovrin_0", "cable=zarvek_plugin", "module=m"}).err, "");
}

// --- What an option file has, and nobody may lose ---

using Kept = Tool;

TEST_F(Kept, OptionsThatAreNeverWrittenStayWhenAnotherSettingChanges) {
  write_option_file("ovrin_0",
                    "Connect ov odm -quiet -cable type zarvek_platformusb esn 0042 port USB21 frequency 12000000  "
                    "-bscan USER3 -configdevice devicenr 1 isfpga 1 -debugdevice cpu_version 7.1 nCpu 4 cpunr 1\n\n");
  const Result result = qvtcfg({"set", "ovrin_0", "debug-device=2"});
  EXPECT_EQ(result.code, 0) << result.err;
  EXPECT_EQ(
      read_option_file("ovrin_0"),
      "Connect ov odm -quiet -cable type zarvek_platformusb esn 0042 port USB21 frequency 12000000  "
      "-bscan USER3 -configdevice devicenr 1 isfpga 1 -debugdevice deviceNr 2 cpu_version 7.1 nCpu 4 cpunr 1\n\n");
}

TEST_F(Kept, CableAndChainAreNotLostToAnotherConnectionAndBack) {
  const std::string file =
      "connect ov odm -quiet -cable type zarvek_platformusb port USB21 frequency 12000000 -configdevice devicenr 1 "
      "partname a irlength 6 idcode 0x1 -debugdevice deviceNr 1 cpunr 1";
  write_option_file("ovrin_0", file);
  const Result result = qvtcfg({"set", "ovrin_0", "connection=simulator"});
  EXPECT_EQ(result.code, 1);
  EXPECT_EQ(result.out, "");
  EXPECT_THAT(result.err, IsComplaint("qvtcfg: etc/qvt_ovrin_0.opt: would lose debug-device 1, cable "));
  EXPECT_THAT(result.err, HasSubstr("; --force stores it nevertheless\n"));
  EXPECT_THAT(result.err, HasSubstr("\n  devices 1,a,6,0x00000001: the connection uses no cable\n"));
  EXPECT_THAT(result.err, HasSubstr("\n  -quiet: "));
  EXPECT_EQ(read_option_file("ovrin_0"), file);

  EXPECT_EQ(qvtcfg({"set", "ovrin_0", "connection=simulator", "--force"}).code, 0);
  EXPECT_EQ(read_option_file("ovrin_0"), "connect ov sim");
}

TEST_F(Kept, AChainThatIsTooLongToBeReadBackIsRefused) {
  std::string file = "connect ov odm";
  for (int i = 1; i <= 13; ++i) {
    file += " -configdevice devicenr " + std::to_string(i) + " partname part_no irlength 10 idcode 0x12345678";
  }
  write_option_file("ovrin_0", file);
  const Result result = qvtcfg({"set", "ovrin_0", "devices+=14,part_no,10,0x12345678"});
  EXPECT_EQ(result.code, 1);
  EXPECT_THAT(result.err, IsComplaint("characters, and 1023 are read back"));
  EXPECT_EQ(read_option_file("ovrin_0"), file);
  EXPECT_EQ(qvtcfg({"show", "ovrin_0"}).code, 0);
}

// --- Several processors ---

using Several = Tool;

TEST_F(Several, AreChangedTogether) {
  const Result result = qvtcfg({"set", "ovrin_0", "ovrin_1", "debug-device=3"});
  EXPECT_EQ(result.code, 0) << result.err;
  EXPECT_EQ(result.out,
            "ovrin_0\n"
            "+ connect ov odm -debugdevice deviceNr 3 cpunr 1\n"
            "debug-device  0 -> 3\n"
            "written to etc/qvt_ovrin_0.opt\n"
            "ovrin_1\n"
            "+ connect ov odm -debugdevice deviceNr 3 cpunr 2\n"
            "debug-device  0 -> 3\n"
            "written to etc/qvt_ovrin_1.opt\n");
}

TEST_F(Several, AreNamedOnce) {
  const Result result = qvtcfg({"set", "ovrin_0", "ovrin_0", "debug-device=3"});
  EXPECT_EQ(result.code, 2);
  EXPECT_THAT(result.err, IsComplaint("ovrin_0: the processor is given twice"));
}

TEST_F(Several, AreAllCheckedBeforeTheFirstIsWritten) {
  const Result result = qvtcfg({"set", "ovrin_0", "ovrin_1", "connection=stub"});
  EXPECT_EQ(result.code, 1);
  EXPECT_THAT(result.err,
              IsComplaint("qvtcfg: ovrin_1: connection=stub: the processor does not admit this connection"));
  EXPECT_FALSE(exists("etc/qvt_ovrin_0.opt"));
}

TEST_F(Several, AreThoseToWhichEverySettingApplies) {
  write_option_file("ovrin_0", "connect ov sim");
  const Result result = qvtcfg({"set", "--all", "debug-device=3", "icache=0x70000000"});
  EXPECT_EQ(result.code, 0) << result.err;
  EXPECT_THAT(result.out, HasSubstr("skipped ovrin_0: debug-device: the connection uses no cable\n"));
  EXPECT_THAT(result.out, HasSubstr("skipped ovrin_1: icache: it is for a PowerPC with the connection 'hardware'\n"));
  EXPECT_EQ(read_option_file("ppc405_0"),
            "connect ppc hw -debugdevice deviceNr 3 cpunr 1 icacheStartAdr 0x70000000 fpuType sp");
  EXPECT_TRUE(exists("etc/qvt_ppc440_0.opt"));
  EXPECT_FALSE(exists("etc/qvt_ovrin_1.opt"));
}

TEST_F(Several, NoneTakesTheSetting) {
  const Result result = qvtcfg({"set", "--all", "module=m"});
  EXPECT_EQ(result.code, 1);
  EXPECT_THAT(result.err, IsComplaint("no processor of the design has these settings; ovrin_0: module: it is for "));
}

TEST_F(Several, AnswerInJson) {
  const auto answer = json({"set", "--all", "icache=0x70000000", "--dry-run"});
  ASSERT_EQ(answer["processors"].size(), 2U);
  EXPECT_EQ(answer["processors"][0]["processor"], "ppc405_0");
  EXPECT_EQ(answer["processors"][0]["differences"],
            nlohmann::json::parse(
                R"([{"setting": "address-map", "unit": null, "before": null, "after": 1879048192, "follows": true},
                    {"setting": "icache", "unit": null, "before": null, "after": 1879048192, "follows": false}])"));
  EXPECT_EQ(answer["skipped"].size(), 6U);
}

// --- unset ---

using Unset = Tool;

TEST_F(Unset, PutsSettingsBackToTheirDefaults) {
  write_option_file("ovrin_0", "connect ov odm -quiet -bscan USER4 -debugdevice deviceNr 2 cpunr 1");
  const Result result = qvtcfg({"unset", "ovrin_0", "bscan", "debug-device"});
  EXPECT_EQ(result.code, 0) << result.err;
  EXPECT_EQ(read_option_file("ovrin_0"), "connect ov odm -quiet -debugdevice cpunr 1");
}

TEST_F(Unset, NamesTheNearestSetting) {
  const Result result = qvtcfg({"unset", "ovrin_0", "bscna"});
  EXPECT_EQ(result.code, 2);
  EXPECT_THAT(result.err, IsComplaint("bscna: no setting is called 'bscna' (did you mean 'bscan'?)"));
  EXPECT_THAT(qvtcfg({"unset", "ovrin_00", "bscan"}).err, IsComplaint("(did you mean 'ovrin_0'?)"));
}

// --- Errors in JSON ---

using Errors = Tool;

TEST_F(Errors, AreAnswersInJson) {
  write_option_file("ovrin_0", "connect ov odm -quiet -bscan USER4");
  const Result losses = qvtcfg({"--json", "set", "ovrin_0", "connection=simulator"});
  EXPECT_EQ(losses.code, 1);
  EXPECT_THAT(losses.err, IsComplaint("would lose bscan USER4, -quiet"));
  const auto error = error_of(losses.out);
  EXPECT_EQ(error["code"], "wouldLose");
  EXPECT_EQ(error["message"], losses.err.substr(8, losses.err.find('\n') - 8));
  EXPECT_EQ(
      error["losses"][0],
      nlohmann::json::parse(R"({"setting": "bscan", "what": "bscan USER4", "why": "the connection uses no cable"})"));
  EXPECT_TRUE(error["losses"][1]["setting"].is_null());

  const Result unread = qvtcfg({"read", "ovrin_0", "connect ov odm -quiet -foo", "--json"});
  EXPECT_EQ(unread.code, 3);
  EXPECT_EQ(error_of(unread.out)["note"], "UNKNOWN Option '-foo'");
  EXPECT_EQ(error_of(qvtcfg({"--json", "cabels"}).out)["code"], "usage");
  EXPECT_EQ(qvtcfg({"read", "ovrin_0", "--", "--json"}).out, "");
}

// --- Refusals: nothing is stored ---

struct Fault {
  std::vector<std::string> changes;
  int code;
  const char* why;
};

class Refused : public Tool {
 protected:
  void expect(const std::string& processor, const std::vector<Fault>& faults) const {
    for (const Fault& fault : faults) {
      std::vector<std::string> arguments = {"set", processor};
      arguments.insert(arguments.end(), fault.changes.begin(), fault.changes.end());
      const Result result = qvtcfg(arguments);
      EXPECT_EQ(result.code, fault.code) << fault.changes.back();
      EXPECT_EQ(result.out, "") << fault.changes.back();
      EXPECT_THAT(result.err, IsComplaint(fault.why));
    }
    EXPECT_FALSE(exists("etc/qvt_" + processor + ".opt"));
  }
};

TEST_F(Refused, KeysThatAreWrong) {
  expect("ovrin_0", {
                        {{"cabel=none"},
                         2,
                         "cabel=none: no setting is called 'cabel' (did you mean 'cable'?); 'qvtcfg set --help' lists"},
                        {{"=1"}, 2, "=1: no setting is called ''; "},
                        {{"cable"}, 2, "KEY=VALUE is required; see 'qvtcfg set --help'"},
                        {{"esn=1", "port=a", "esn=2"}, 2, "esn=2: the key is given twice"},
                        {{"rom=1,2", "rom-size=3"}, 2, "rom=1,2: the key is given twice"},
                        {{"port+=a"}, 2, "port+=a: only to devices can be appended; use port=VALUE"},
                        {{"\033[2J=1"}, 2, "\\x1b[2J=1: no setting is called '\\x1b[2J'"},
                    });
}

TEST_F(Refused, ValuesThatAreWrong) {
  expect(
      "ovrin_0",
      {
          {{"connection=usb"}, 2, "connection=usb: expected simulator, hardware, stub, virtual-platform"},
          {{"connection=stub", "stub=uart"}, 2, "stub=uart: expected jtag, serial"},
          {{"cable=zarvek_usb"}, 2, "cable=zarvek_usb: expected none, zarvek_parallel4, zarvek_platformusb, "},
          {{"debug-device=128"}, 2, "debug-device=128: it must be from 0 to 127"},
          {{"debug-device=-1"}, 2, "debug-device=-1: it must be from 0 to 127"},
          {{"debug-device=2x"}, 2, "debug-device=2x: expected a number"},
          {{"debug-device= 2"}, 2, "debug-device= 2: expected a number"},
          {{"debug-device=010"}, 2, "debug-device=010: expected a number, decimal or with 0x; a leading 0 is refused"},
          {{"debug-device=0x"}, 2, "debug-device=0x: expected a number"},
          {{"cable=zarvek_platformusb", "frequency=99999999999"}, 2, "it must be from 0 to 4294967295"},
          {{"rom=0x1000,"}, 2, "rom=0x1000,: expected a number of bytes"},
          {{"cable=zarvek_platformusb", "port=two words"}, 2, "port=two words: it must be one word, without blanks"},
          {{"cable=zarvek_platformusb", "port=-x"}, 2, "port=-x: it must be one word"},
          {{"cable=zarvek_platformusb", "esn=a\tb"}, 2, "esn=a b: it must be one word"},
          {{"cable=zarvek_platformusb", "esn=\001"}, 2, "esn=\\x01: it must be one word"},
          {{"devices=1,p,6,1:"}, 2, "devices=1,p,6,1:: expected devices as NR,PART,IRLENGTH,IDCODE (or with "},
          {{"devices=1,p,128,1"}, 2, "devices=1,p,128,1: expected devices"},
          {{"devices+=1,p"}, 2, "devices+=1,p: expected devices"},
      });
}

TEST_F(Refused, WhatTheDesignOrTheConnectionDoesNotAllow) {
  expect(
      "ovrin_1",
      {
          {{"connection=stub"},
           1,
           "connection=stub: the processor does not admit this connection; it admits simulator, hardware"},
          {{"stub=serial"}, 1, "stub=serial: stub does not apply: the processor has no stub connection"},
          {{"stub-baud=9600"}, 1, "stub-baud=9600: stub-baud does not apply: it is for the connection 'stub' over"},
          {{"module=m"}, 1, "module=m: module does not apply: it is for a cable of the type 'zarvek_plugin'"},
          {{"cable=zarvek_plugin"},
           1,
           "is not read back: the text is not understood at '-debugdevice'; a zarvek_plugin cable needs a module; "
           "--force "},
          {{"cable=zarvek_svffile"}, 1, "cable=zarvek_svffile: this type is not read; the types are none, "},
          {{"cable=zarvek_tcf"}, 1, "ovrin_1: no connect command can be written for these settings; the cable: "},
          {{"connection=simulator", "devices=1,a,6,1"}, 1, "devices=1,a,6,1: devices does not apply: "},
          {{"icache=0x10000"}, 1, "icache=0x10000: icache does not apply: it is for a PowerPC with the connection"},
          {{"connection=simulator", "debug-device=1"}, 1, "debug-device=1: debug-device does not apply: "},
          {{"connection=simulator", "rom=0,1"}, 1, "rom=0,1: rom does not apply: it is for the connection 'hardware'"},
          {{"name=x"}, 1, "name=x: it cannot be set"},
      });
}

TEST_F(Refused, FrequenciesThatTheCableDoesNotSupport) {
  expect("ovrin_0",
         {
             {{"cable=zarvek_platformusb", "frequency=5000000"},
              1,
              "frequency=5000000: cable zarvek_platformusb does not support 5 MHz; the nearest: 3 MHz and 6 MHz; all: "
              "750 kHz, 1.5 MHz, 3 MHz, 6 MHz, 12 MHz, 24 MHz"},
             {{"frequency=200000"}, 1, "frequency=200000: frequency does not apply: the cable has no such setting"},
         });
}

TEST_F(Refused, AddressesOffTheGrid) {
  for (const char* key : {"icache", "dcache", "itag", "dtag", "tlb", "dcr"}) {
    const Result result = qvtcfg({"set", "ppc405_0", std::string(key) + "=0x18000"});
    EXPECT_EQ(result.code, 1) << key;
    EXPECT_THAT(result.err, IsComplaint(std::string(key) + "=0x18000: it must be a multiple of 64 KB (0x10000); the "
                                                           "nearest are 0x00010000 and 0x00020000"));
  }
  EXPECT_FALSE(exists("etc/qvt_ppc405_0.opt"));
}

TEST_F(Refused, OneWrongChangeAmongGoodOnesStoresNone) {
  write_option_file("ovrin_0", "connect ov sim");
  EXPECT_EQ(qvtcfg({"set", "ovrin_0", "connection=hardware", "debug-device=1", "frequency=1"}).code, 1);
  EXPECT_EQ(read_option_file("ovrin_0"), "connect ov sim");
}

TEST_F(Refused, AnOptionFileThatIsNotUnderstoodIsKept) {
  const struct {
    std::string command;
    const char* why;
  } kFaults[] = {
      {"connect ov odm -quiet -foo",
       "etc/qvt_ovrin_0.opt: the text is not understood at '-foo'; correct the file, or replace it with "
       "'qvtcfg read ovrin_0 TEXT --write'"},
      {"hello", "etc/qvt_ovrin_0.opt: the text is not understood at 'hello'; correct the file"},
      {"connect odm", "etc/qvt_ovrin_0.opt: the text is not understood at 'odm'; correct the file"},
      {"connect ov odm - x", "etc/qvt_ovrin_0.opt: the text is not understood at '-'"},
      {std::string("connect ov\0odm", 14), "etc/qvt_ovrin_0.opt: the byte \\x00 at column 11 is not valid text"},
      {"connect ov odm \033[31m", "etc/qvt_ovrin_0.opt: the byte \\x1b at column 16 is not valid text"},
  };
  for (const auto& fault : kFaults) {
    write_option_file("ovrin_0", fault.command);
    const Result result = qvtcfg({"set", "ovrin_0", "debug-device=1"});
    EXPECT_EQ(result.code, 3) << fault.why;
    EXPECT_EQ(result.out, "") << fault.why;
    EXPECT_THAT(result.err, IsComplaint(fault.why));
    EXPECT_EQ(read_option_file("ovrin_0"), fault.command);
  }
}

}  // namespace
