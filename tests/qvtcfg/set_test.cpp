#include "tool.h"

namespace {

using testing::HasSubstr;

using Set = Tool;

TEST_F(Set, CreatesTheOptionFile) {
  const Result result = qvtcfg({"set", "ovrin_0", "cable=zarvek_platformusb", "frequency=12000000", "debug-device=2"});
  EXPECT_EQ(result.code, 0);
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(result.out,
            "+ connect ov odm -cable type zarvek_platformusb port USB21 frequency 12000000 -debugdevice deviceNr 2 "
            "cpunr 1\n"
            "written to etc/qvt_ovrin_0.opt\n");
  EXPECT_EQ(read_option_file("ovrin_0"),
            "connect ov odm -cable type zarvek_platformusb port USB21 frequency 12000000 -debugdevice deviceNr 2 "
            "cpunr 1");
}

TEST_F(Set, ShowsOldAndNewWithTheDifferencesMarked) {
  write_option_file("ovrin_0",
                    "connect ov odm -quiet -cable type zarvek_platformusb port USB21 frequency 6000000 -debugdevice "
                    "deviceNr 2 cpunr 1");
  const Result result = qvtcfg({"set", "ovrin_0", "frequency=24000000", "debug-device=0"});
  EXPECT_EQ(result.out,
            "- connect ov odm [-quiet] -cable type zarvek_platformusb port USB21 frequency [6000000] -debugdevice "
            "[deviceNr 2] cpunr 1\n"
            "+ connect ov odm -cable type zarvek_platformusb port USB21 frequency [24000000] -debugdevice cpunr 1\n"
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
  EXPECT_EQ(result.out, "+ connect ov odm -debugdevice deviceNr 3 cpunr 1\n");
  EXPECT_FALSE(exists("etc/qvt_ovrin_0.opt"));
}

TEST_F(Set, SaysWhenNothingChanges) {
  write_option_file("ovrin_0", "connect ov odm -debugdevice cpunr 1");
  EXPECT_EQ(qvtcfg({"set", "ovrin_0", "debug-device=0", "--dry-run"}).out,
            "  connect ov odm -debugdevice cpunr 1\nnothing changes\n");
}

TEST_F(Set, AnswersInJson) {
  EXPECT_EQ(json({"set", "ovrin_0", "debug-device=3"}),
            nlohmann::json::parse(R"({"processor": "ovrin_0", "file": "etc/qvt_ovrin_0.opt", "old": null,
                                      "new": "connect ov odm -debugdevice deviceNr 3 cpunr 1", "dryRun": false})"));
  const auto second = json({"set", "ovrin_0", "debug-device=4", "--dry-run"});
  EXPECT_EQ(second["old"], "connect ov odm -debugdevice deviceNr 3 cpunr 1");
  EXPECT_EQ(second["dryRun"], true);
}

TEST_F(Set, AppliesTheCableBeforeItsOtherSettings) {
  EXPECT_EQ(json({"set", "ovrin_0", "port=USB22", "frequency=750000", "cable=zarvek_platformusb"})["new"],
            "connect ov odm -cable type zarvek_platformusb port USB22 frequency 750000 -debugdevice cpunr 1");
}

TEST_F(Set, AppliesTheConnectionBeforeTheStub) {
  EXPECT_EQ(json({"set", "ovrin_0", "stub-baud=0x1C200", "stub-port=COM2", "stub=serial", "connection=stub"})["new"],
            "connect ov stub -comm serial -port COM2  -baud  115200 -timeout 20000");
}

TEST_F(Set, EveryConnectionOfASoftProcessor) {
  EXPECT_EQ(json({"set", "ovrin_0", "connection=simulator", "--dry-run"})["new"], "connect ov sim");
  EXPECT_EQ(json({"set", "ovrin_0", "connection=stub", "--dry-run"})["new"], "connect ov stub -comm jtag");
  EXPECT_EQ(json({"set", "ovrin_0", "connection=hardware", "--dry-run"})["new"], "connect ov odm -debugdevice cpunr 1");
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
    EXPECT_EQ(json({"set", "ovrin_0", std::string("cable=") + cable.name, "--dry-run"})["new"], cable.command);
  }
}

TEST_F(Set, TheSerialNumberStandsForPortAndFrequencyUntilItIsEmptied) {
  EXPECT_EQ(json({"set", "ovrin_0", "cable=zarvek_platformusb", "esn=0042"})["new"],
            "connect ov odm -cable type zarvek_platformusb esn 0042 -debugdevice cpunr 1");
  EXPECT_EQ(json({"set", "ovrin_0", "esn=", "frequency=6000000"})["new"],
            "connect ov odm -cable type zarvek_platformusb port USB21 frequency 6000000 -debugdevice cpunr 1");
}

TEST_F(Set, TheModuleOfAPluginCableReplacesTheOneBefore) {
  EXPECT_EQ(json({"set", "ovrin_0", "module=m,a,b", "cable=zarvek_plugin"})["new"],
            "connect ov odm -cable type zarvek_plugin modulename m modulearg a modulearg b -debugdevice cpunr 1");
  EXPECT_EQ(json({"set", "ovrin_0", "module=n"})["new"],
            "connect ov odm -cable type zarvek_plugin modulename n -debugdevice cpunr 1");
}

TEST_F(Set, TheJtagChainAndItsRemoval) {
  EXPECT_EQ(json({"set", "ovrin_0", "devices=1,prom32,16,0xa5059093:2,dv5,10,45708435"})["new"],
            "connect ov odm -configdevice devicenr 1 partname prom32 irlength 16 idcode 0xa5059093 "
            "-configdevice devicenr 2 partname dv5 irlength 10 idcode 0x2b97493 -debugdevice cpunr 1");
  EXPECT_EQ(json({"set", "ovrin_0", "devices=3,p,6,1"})["new"],
            "connect ov odm -configdevice devicenr 3 partname p irlength 6 idcode 0x1 -debugdevice cpunr 1");
  EXPECT_EQ(json({"set", "ovrin_0", "devices=none"})["new"], "connect ov odm -debugdevice cpunr 1");
}

TEST_F(Set, ReadOnlyMemoryAndItsRemoval) {
  EXPECT_EQ(json({"set", "ovrin_0", "rom=0xFFFF0000,65536"})["new"],
            "connect ov odm -debugdevice cpunr 1 romemStartAdr 0xffff0000 romemSize 65536");
  EXPECT_EQ(json({"set", "ovrin_0", "rom=unset"})["new"], "connect ov odm -debugdevice cpunr 1");
}

TEST_F(Set, TheProcessorsOwnJtagPinsAndWarnsThatThisIsNotReadBack) {
  const Result result = qvtcfg({"set", "ovrin_0", "cpu-jtag=on"});
  EXPECT_EQ(result.code, 0);
  EXPECT_THAT(result.err, IsComplaint("warning: etc/qvt_ovrin_0.opt: UNKNOWN Parameter 'jtagpin'"));
  EXPECT_EQ(read_option_file("ovrin_0"), "connect ov odm -configdevice jtagpin cpujtag -debugdevice cpunr 1");
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
  expect("ovrin_0",
         {
             {{"cabel=none"}, 2, "cabel=none: no such key (did you mean 'cable'?); the keys are connection, stub, "},
             {{"=1"}, 2, "=1: no such key; the keys are connection, "},
             {{"cable"}, 2, "cable: expected KEY=VALUE, such as cable=zarvek_platformusb"},
             {{"esn=1", "port=a", "esn=2"}, 2, "esn=2: the key is given twice"},
             {{"\033[2J=1"}, 2, "\\x1b[2J=1: no such key"},
         });
}

TEST_F(Refused, ValuesThatAreWrong) {
  expect("ovrin_0",
         {
             {{"connection=usb"}, 2, "connection=usb: expected simulator, hardware, stub, virtual-platform"},
             {{"connection=stub", "stub=uart"}, 2, "stub=uart: expected jtag, serial"},
             {{"cable=zarvek_parallel"}, 2, "expected none, zarvek_svffile, zarvek_parallel4, "},
             {{"debug-device="}, 2, "debug-device=: expected a number from 0 to 127, decimal or with 0x"},
             {{"debug-device=128"}, 2, "debug-device=128: expected a number from 0 to 127"},
             {{"debug-device=-1"}, 2, "debug-device=-1: expected a number"},
             {{"debug-device=2x"}, 2, "debug-device=2x: expected a number"},
             {{"debug-device= 2"}, 2, "debug-device= 2: expected a number"},
             {{"debug-device=010"}, 2, "debug-device=010: expected a number"},
             {{"debug-device=0x"}, 2, "debug-device=0x: expected a number"},
             {{"cable=zarvek_platformusb", "frequency=99999999999"}, 2, "expected a number from 0 to 4294967295"},
             {{"rom=0x1000"}, 2, "rom=0x1000: expected START,SIZE or unset"},
             {{"rom=0x1000,"}, 2, "rom=0x1000,: expected a number"},
             {{"port="}, 2, "port=: expected one word of text, without blanks and without a dash in front"},
             {{"port=two words"}, 2, "port=two words: expected one word"},
             {{"port=-x"}, 2, "port=-x: expected one word"},
             {{"esn=a\tb"}, 2, "esn=a b: expected one word"},
             {{"esn=\001"}, 2, "esn=\\x01: expected one word"},
             {{"cpu-jtag=off"}, 2, "cpu-jtag=off: expected on"},
             {{"devices="}, 2, "devices=: expected a chain device as NR,PART,IRLENGTH,IDCODE, such as 1,prom32,16,"},
             {{"devices=1,p,6,1:"}, 2, "devices=1,p,6,1:: expected a chain device"},
             {{"devices=1,p,128,1"}, 2, "devices=1,p,128,1: expected a number from 0 to 127"},
             {{"cable=zarvek_plugin", "module="}, 2, "module=: expected one word"},
             {{"cable=zarvek_plugin", "module=m,"}, 2, "module=m,: expected one word"},
         });
}

TEST_F(Refused, WhatTheEngineOrTheDesignDoesNotAllow) {
  expect("ovrin_1",
         {
             {{"connection=stub"},
              1,
              "connection=stub: the processor does not admit this connection; it admits simulator, hardware"},
             {{"stub=serial"}, 1, "stub=serial: the connection is not stub; add connection=stub"},
             {{"stub-baud=9600"}, 1, "stub-baud=9600: the processor is not reached through a serial stub"},
             {{"module=m"}, 1, "module=m: cable none has no module; add cable=zarvek_plugin"},
             {{"cable=zarvek_plugin"}, 1, "cable zarvek_plugin needs a module; add module=NAME"},
             {{"connection=simulator", "devices=none"}, 1, "devices=none: the setting does not apply"},
             {{"connection=simulator", "module=m"}, 1, "module=m: the setting does not apply"},
             {{"cable=zarvek_tcf"}, 1, "ovrin_1: Invalid Cable Type; "},
             {{"icache=0x10000"}, 1, "icache=0x10000: the setting does not apply to this processor and connection"},
             {{"address-map=unset"}, 1, "the setting does not apply to this processor and connection"},
             {{"connection=simulator", "debug-device=1"}, 1, "debug-device=1: the setting does not apply"},
             {{"connection=simulator", "cable=none"}, 1, "cable=none: the setting does not apply"},
             {{"connection=simulator", "rom=0,1"}, 1, "rom=0,1: the setting does not apply"},
         });
  expect("ovrin_0", {{{"connection=stub", "stub=jtag"}, 1, "stub=jtag: JTAG device not present in system"}});
}

TEST_F(Refused, FrequenciesThatTheCableDoesNotSupport) {
  expect("ovrin_0",
         {
             {{"cable=zarvek_platformusb", "frequency=5000000"},
              1,
              "frequency=5000000: cable zarvek_platformusb supports 750000, 1500000, 3000000, 6000000, "
              "12000000, 24000000"},
             {{"frequency=200000"}, 1, "frequency=200000: cable none has no frequency to choose"},
             {{"cable=digilent_plugin", "frequency=0"}, 1, "cable digilent_plugin has no frequency to choose"},
         });
}

TEST_F(Refused, AddressesOffTheGrid) {
  expect("ppc405_0",
         {
             {{"icache=0x18000"}, 1, "icache=0x18000: Icache Start Address should be aligned at 64k boundry"},
             {{"dcache=1"}, 1, "dcache=1: Dcache Start Address should be aligned at 64k boundry"},
             {{"itag=1"}, 1, "itag=1: Itag Start Address should be aligned at 64k boundry"},
             {{"dtag=1"}, 1, "dtag=1: Dtag Start Address should be aligned at 64k boundry"},
             {{"tlb=1"}, 1, "tlb=1: TLB Start Address should be aligned at 64k boundry"},
             {{"dcr=1"}, 1, "dcr=1: DCR Start Address should be aligned at 64k boundry"},
         });
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
       "etc/qvt_ovrin_0.opt: UNKNOWN Option '-foo'; correct the file, or replace it with "
       "'qvtcfg read ovrin_0 TEXT --write'"},
      {"hello", "etc/qvt_ovrin_0.opt: the connect command is not understood; correct the file"},
      {"connect odm", "etc/qvt_ovrin_0.opt: the connect command is not understood; correct the file"},
      {"connect ov odm - x", "etc/qvt_ovrin_0.opt: a lone '-' in place of an option or a value"},
      {std::string("connect ov\0odm", 14), "etc/qvt_ovrin_0.opt: the byte \\x00 at column 11 is not valid text"},
      {"connect ov odm \033[31m", "etc/qvt_ovrin_0.opt: the byte \\x1b at column 16 is not valid text"},
      {"connect ov odm -cable port " + std::string(2000, 'x'),
       "etc/qvt_ovrin_0.opt: the command is longer than 1023 characters, and the rest is not read; to keep all of "
       "it, "},
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
