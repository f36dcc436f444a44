// The JTAG chain, and texts of cable and chain alone.

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <utility>

#include "tests/options/reading.h"
#include "tests/options/writing.h"
#include "tests/support/GlobalLocale.h"

namespace SdkDebugDialog {
namespace {

using namespace std::string_literals;

JtagOption& add_device(SelectedEngine& e) {
  e.imp.jtagChain.push_back(new JtagOption);
  return *e.imp.jtagChain.back();
}

// --- Reading one device ---

const Reader kReadDevice = QvtOption_Parser::parse_configdevice;

TEST(DeviceReading, KnowsEveryKeywordInAnyCase) {
  const GlobalLocale classic;
  expect_readings(kReadDevice,
                  {{"DEVICEnr 1", 3, "device{devicenr=1}"},
                   {"PartName Zd4Qa", 3, "device{partname=Zd4Qa}"},
                   {"IRLength 6", 3, "device{irlength=6}"},
                   {"IdCode 0xFF", 3, "device{idcode=255}"},
                   {"JTAGport Cpu", 3, "cpuJtag=1 device{}"},
                   {"IsFPGA 1", 3, "device{isfpga=1}"},
                   {"HardPPC Ppc405", 3, "device{hardppc=1}"},
                   {"nPPC 2", 3, "device{nppc=2}"},
                   {"jtagport cpu devicenr 1 idcode 0xFF irlength 6 partname p isfpga 1 hardppc x nppc 2", 3,
                    "cpuJtag=1 device{devicenr=1 partname=p irlength=6 idcode=255 isfpga=1 hardppc=2 "
                    "nppc=2}"}});
}

// Hexadecimal numbers, numbers longer than the field, and numbers beyond 64 bits, where signed and unsigned conversion
// differ.
TEST(DeviceReading, CutsNumbersToTheirFields) {
  expect_readings(kReadDevice, {{"devicenr 0x1C8", 3, "device{devicenr=-56}"},
                                {"devicenr -99999999999999999999", 3, "device{devicenr=-1}"},
                                {"irlength 0x1C8", 3, "device{irlength=-56}"},
                                {"irlength -99999999999999999999", 3, "device{irlength=-1}"},
                                {"isfpga 0x1C8", 3, "device{isfpga=-56}"},
                                {"isfpga -99999999999999999999", 3, "device{isfpga=-1}"},
                                {"nppc 0x1C8", 3, "device{nppc=-56}"},
                                {"nppc -99999999999999999999", 3, "device{nppc=-1}"},
                                {"idcode 0x123456789", 3, "device{idcode=591751049}"},
                                {"idcode -99999999999999999999", 3, "device{idcode=4294967295}"}});
}

TEST(DeviceReading, TellsThePpc405FromEveryOtherHardPowerPC) {
  expect_readings(kReadDevice, {{"hardppc PPC405", 3, "device{hardppc=1}"},
                                {"hardppc ppc405", 3, "device{hardppc=1}"},
                                {"hardppc ppc440", 3, "device{hardppc=2}"},
                                {"hardppc ppc40", 3, "device{hardppc=2}"},
                                {"hardppc none", 3, "device{hardppc=2}"},
                                {"hardppc 0", 3, "device{hardppc=2}"}});
}

TEST(DeviceReading, RefusesTheFormInWhichTheProcessorsOwnPinsAreWritten) {
  expect_reading(kReadDevice, {"jtagpin cpujtag", 2, Error("UNKNOWN Parameter 'jtagpin' for option '-configDevice'")});
}

TEST(DeviceReading, RefusesAnyOtherPortThanTheProcessorsWithoutATextAndForgetsThePins) {
  expect_reading(kReadDevice, {"devicenr 1 jtagport gpio irlength 3", 2, "cpuJtag=0", Rest(" irlength 3")},
                 [](SelectedEngine& e) { e.imp.cpuJtag = 1; });
}

TEST(DeviceReading, AddsADeviceOfDefaultsForAnOptionWithoutPairs) {
  expect_readings(kReadDevice, {{"", 3, "device{}"}, {"-quiet", 1, "device{}", LastOption("-quiet")}});
}

TEST(DeviceReading, TakesPartNamesAsTheyAre) {
  for (const std::string& name : {"Xy%s%n%d"s, "-5"s, std::string(5000, 'p')}) {
    expect_reading(kReadDevice, {"partname " + name, 3, "device{partname=" + name + "}"});
  }
}

TEST(DeviceReading, LetsTheLastOfEqualKeywordsWin) {
  expect_reading(kReadDevice, {"devicenr 1 partname a devicenr 2 partname b hardppc ppc405 hardppc x", 3,
                               "device{devicenr=2 partname=b hardppc=2}"});
}

TEST(DeviceReading, NamesAnUnknownKeywordAsItWasTypedAndDropsTheDevice) {
  expect_readings(kReadDevice,
                  {{"Device 1", 2, Error("UNKNOWN Parameter 'Device' for option '-configDevice'")},
                   {"devicenr 1 devicenrs 2 irlength 3", 2,
                    Error("UNKNOWN Parameter 'devicenrs' for option '-configDevice'"), Rest(" irlength 3")},
                   {"type zarvek_tcf", 2, Error("UNKNOWN Parameter 'type' for option '-configDevice'")},
                   {"%s%n 1", 2, Error("UNKNOWN Parameter '%s%n' for option '-configDevice'")},
                   {"7 1", 2, Error("UNKNOWN Parameter '7' for option '-configDevice'")},
                   {std::string(5000, 'k') + " 1", 2, cut_error("UNKNOWN Parameter '" + std::string(5000, 'k'))}});
}

TEST(DeviceReading, KeepsThePinsThatARefusedDeviceNamed) {
  expect_reading(kReadDevice,
                 {"jtagport cpu foo 1", 2, "cpuJtag=1", Error("UNKNOWN Parameter 'foo' for option '-configDevice'")});
}

TEST(DeviceReading, AddsADeviceWhoseLastKeywordLacksItsValue) {
  expect_readings(kReadDevice, {{"devicenr", 2, "device{}"},
                                {"devicenr 3 partname", 2, "device{devicenr=3}"},
                                {"devicenr 3 partname -Quiet irlength 3", 2, "device{devicenr=3}", Rest(" irlength 3"),
                                 LastOption("-Quiet")}});
}

TEST(DeviceReading, AppendsBehindTheDevicesThatAreThereAndKeepsThemOnAnError) {
  SelectedEngine e;
  const JtagOption* const first = &add_device(e);
  std::string text = "devicenr 2";
  EXPECT_EQ(QvtOption_Parser::parse_configdevice(text, e.imp), 3);
  text = "devicenr 3 foo 1";
  EXPECT_EQ(QvtOption_Parser::parse_configdevice(text, e.imp), 2);
  EXPECT_EQ(changes(e), "device{} device{devicenr=2}");
  EXPECT_EQ(e.imp.jtagChain[0], first);
}

TEST(DeviceReading, EndsWithWhatEndedItsPairs) {
  expect_readings(kReadDevice,
                  {{"devicenr 1 \r\n", 3, "device{devicenr=1}"},
                   {"devicenr\t1\t-Cable type x", 1, "device{devicenr=1}", Rest(" type x"), LastOption("-Cable")}});
}

TEST(DeviceReading, ThrowsOnALoneDashAndAddsNothing) {
  expect_readings(kReadDevice, {{"devicenr 1 - 2", kThrows, Rest(" 2")}, {"devicenr - 2", kThrows, Rest(" 2")}});
}

// --- Reading cable and chain alone ---

const Reader kReadAll = QvtOption_Parser::ReadJtagCableOptions;

TEST(CableAndChainReading, AcceptsAnEmptyText) { expect_readings(kReadAll, {{"", 0}, {" \t\r\n", 0}}); }

TEST(CableAndChainReading, RefusesATextThatDoesNotBeginWithAnOptionWithoutAText) {
  expect_readings(
      kReadAll,
      {{"cable -cable port p", 3, Rest(" -cable port p")}, {"-5", 3}, {"connect ov odm", 3, Rest(" ov odm")}});
}

TEST(CableAndChainReading, NamesInPlaceOfAnUnknownOptionTheTokenAfterTheLastRegister) {
  expect_readings(kReadAll, {{"-foo -cable port p", 3, Error("UNKNOWN Option ''"), Rest(" -cable port p")},
                             {"-cable type zarvek_tcf -foo", 3, "cable.type=7", Error("UNKNOWN Option ''")},
                             {"-bscan USER1 -foo", 3, "bscanPort=2", Error("UNKNOWN Option '-foo'")},
                             {"-bscan USER1 -Cable type zarvek_tcf -foo", 3, "bscanPort=2 cable.type=7",
                              Error("UNKNOWN Option '-Cable'")},
                             {"-bscan USER1 -configdevice -bscan USER2 -debugdevice deviceNr 1 -foo", 3,
                              "debugDevice=1 device{}", Error("UNKNOWN Option '-debugdevice'")},
                             {"-bscan USER1 -%s%n", 3, "bscanPort=2", Error("UNKNOWN Option '-%s%n'")},
                             {"-bscan USER1 -" + std::string(5000, 'k'), 3, "bscanPort=2",
                              cut_error("UNKNOWN Option '-" + std::string(5000, 'k'))}});
}

TEST(CableAndChainReading, DoesNotKnowTheOptionsOfAConnectCommand) {
  for (const std::string option :
       {"-quiet", "-noattach", "-writeonly", "-pfsl", "-comm", "-port", "-baud", "-timeout", "-sim", "-uart"}) {
    expect_reading(kReadAll, {option, 3, Error("UNKNOWN Option ''")});
  }
}

TEST(CableAndChainReading, ReadsAllFourOptionsInAnyCaseAndOrder) {
  const GlobalLocale classic;
  expect_reading(kReadAll, {"-ConfigDevice devicenr 1 -BSCAN user4 -DebugDevice deviceNr 7 -configdevice devicenr 2 "
                            "-CABLE type zarvek_parallel3",
                            0,
                            "debugDevice=7 bscanPort=35 cable.type=4 cable.frequency=200000 cable.port=LPT1 "
                            "device{devicenr=1} device{devicenr=2}"});
}

TEST(CableAndChainReading, EndsAfterEachOptionThatIsComplete) {
  expect_readings(kReadAll, {{"-cable", 0},
                             {"-cable port p \n", 0, "cable.port=p"},
                             {"-configdevice", 0, "device{}"},
                             {"-debugdevice", 0},
                             {"-debugdevice deviceNr 3", 0, "debugDevice=3"},
                             {"-bscan USER1", 0, "bscanPort=2"},
                             {"-cable port p -debugdevice", 0, "cable.port=p"},
                             {"-debugdevice -cable port p", 0, "cable.port=p"}});
}

TEST(CableAndChainReading, ChecksACableAtTheEndOfTheTextOnly) {
  expect_readings(kReadAll,
                  {{"-cable type zarvek_parallel3 frequency 5 -configdevice", 0,
                    "cable.type=4 cable.frequency=5 cable.port=LPT1 device{}"},
                   {"-configdevice -cable type zarvek_parallel3 frequency 5", 3,
                    "cable.type=4 cable.frequency=5 cable.port=LPT1 device{}",
                    Error("UnSupported Zarvek Parallel3 Cable Frequency - 5\n\t Supported Frequencies: 200000")}});
}

TEST(CableAndChainReading, FailsWhereAnOptionFailsWithTheTextOfThatOption) {
  expect_readings(
      kReadAll, {{"-cable speed 5 port p", 3, Error("UNKNOWN Parameter 'speed' for  option '-cable'"), Rest(" port p")},
                 {"-configdevice speed 5", 3, Error("UNKNOWN Parameter 'speed' for option '-configDevice'")},
                 {"-debugdevice speed 5", 3, Error("UNKNOWN Parameter 'speed' for  option '-debugDevice'")},
                 {"-cable type zarvek_plugin", 3, "cable.type=5",
                  Error("Plug-in Module NOT specified for Cable Type zarvek_plugin")},
                 {"-cable type usb", 3},
                 {"-configdevice jtagport gpio", 3},
                 {"-configdevice devicenr", 3, "device{}"},
                 {"-debugdevice proctype x", 3, "procVariant=6"},
                 {"-bscan USER5 -cable port p", 3, Rest(" -cable port p")},
                 {"-bscan", 3},
                 {"-bscan USER1 word -cable port p", 3, "bscanPort=2", Rest(" -cable port p")}});
}

TEST(CableAndChainReading, KeepsWhatOptionsBeforeAnErrorStored) {
  expect_readings(
      kReadAll,
      {{"-cable type zarvek_tcf -configdevice devicenr 1 -bscan USER3 -debugdevice deviceNr 2 -foo", 3,
        "debugDevice=2 bscanPort=34 cable.type=7 device{devicenr=1}", Error("UNKNOWN Option '-debugdevice'")},
       {"-configdevice devicenr 1 -cable port p - esn e", kThrows, "cable.port=p device{devicenr=1}", Rest(" esn e")}});
}

// A quadratic algorithm would take hours here.
TEST(CableAndChainReading, ReadsAHundredThousandDevicesInTimeLinearInTheText) {
  constexpr std::size_t kDevices = 100000;
  std::string text;
  for (std::size_t i = 0; i < kDevices; ++i) {
    text += " -configdevice devicenr 1 partname p irlength 6 idcode " + std::to_string(i);
  }
  SelectedEngine e;
  EXPECT_EQ(QvtOption_Parser::ReadJtagCableOptions(text, e.imp), 0);
  ASSERT_EQ(e.imp.jtagChain.size(), kDevices);
  EXPECT_EQ(e.imp.jtagChain.back()->idcode, kDevices - 1);
}

// --- Writing ---

constexpr Writer kWrite = QvtOption_Parser::write_jtagoptions;

void first_register(SelectedEngine& e) { e.processor.bscanPort = 2; }

TEST(ChainWriting, AppendsCableRegisterPinsAndDevicesInThisOrder) {
  expect_writings(kWrite, {{""},
                           {" -bscan USER1 -configdevice jtagpin cpujtag",
                            [](SelectedEngine& e) {
                              first_register(e);
                              e.imp.cpuJtag = 1;
                            }},
                           {" -cable type digilent_plugin -bscan USER1 -configdevice jtagpin cpujtag"
                            " -configdevice devicenr 1 partname a irlength 6 idcode 0xabcdef01"
                            " -configdevice devicenr 0 partname UNKNOWN irlength 0 idcode 0x0",
                            [](SelectedEngine& e) {
                              e.engine.SetCableType(Engine::DIGILENT_PLUGIN);
                              first_register(e);
                              e.imp.cpuJtag = 1;
                              add_device(e) = {.partname = "a",
                                               .idcode = 0xABCDEF01U,
                                               .irlength = 6,
                                               .devicenr = 1,
                                               .isfpga = 1,
                                               .hardppc = 1,
                                               .nppc = 2};
                              add_device(e);
                            }}});
}

TEST(ChainWriting, WritesTheFirstRegisterAlone) {
  for (const std::uint32_t port : {0U, 1U, 3U, 34U, 35U, 4294967295U}) {
    SCOPED_TRACE(port);
    expect_writing(kWrite, {"", [port](SelectedEngine& e) { e.processor.bscanPort = port; }});
  }
}

TEST(ChainWriting, WritesThePinsWhenTheFlagIsOneAlone) {
  for (const int flag : {0, 2, -1}) {
    SCOPED_TRACE(flag);
    expect_writing(kWrite, {"", [flag](SelectedEngine& e) { e.imp.cpuJtag = flag; }});
  }
}

TEST(ChainWriting, WritesSmallNumbersAsSignedAndTheIdcodeWithoutLeadingZeros) {
  expect_writings(
      kWrite, {{" -configdevice devicenr 127 partname UNKNOWN irlength -128 idcode 0x1",
                [](SelectedEngine& e) { add_device(e) = {.idcode = 1, .irlength = -128, .devicenr = 127}; }},
               {" -configdevice devicenr -56 partname UNKNOWN irlength -2 idcode 0xffffffff",
                [](SelectedEngine& e) { add_device(e) = {.idcode = 0xFFFFFFFFU, .irlength = -2, .devicenr = -56}; }}});
}

TEST(ChainWriting, WritesPartNamesWholeAndAsTheyAre) {
  for (const std::string& name : {""s, "%s%n%d"s, std::string(5000, 'p')}) {
    expect_writing(kWrite, {" -configdevice devicenr 0 partname " + name + " irlength 0 idcode 0x0",
                            [&name](SelectedEngine& e) { add_device(e).partname = name; }});
  }
}

// --- Writing cable and chain alone ---

int write_all(std::string& out, EngineImp& imp) { return QvtOption_Parser::WriteJtagCableOptionsString(imp, out); }

TEST(CableAndChainWriting, AppendsTheDebugDeviceNumberUnlessItIsZero) {
  for (const auto& [device, written] : {std::pair<int, std::string>{0, ""},
                                        {5, " -debugdevice deviceNr 5"},
                                        {127, " -debugdevice deviceNr 127"},
                                        {-56, " -debugdevice deviceNr -56"}}) {
    expect_writing(write_all, {written, [number = device](SelectedEngine& e) {
                                 e.processor.debugDevice = static_cast<std::int8_t>(number);
                               }});
  }
}

TEST(CableAndChainWriting, WritesTheNumberAloneOfTheDebugDevice) {
  expect_writing(write_all, {" -cable type zarvek_parallel3 port LPT1 frequency 200000 -bscan USER1"
                             " -configdevice devicenr 2 partname UNKNOWN irlength 0 idcode 0x0 -debugdevice deviceNr 2",
                             [](SelectedEngine& e) {
                               e.engine.SetCableType(Engine::ZARVEK_PARALLEL3);
                               e.processor.procFamily = 1;
                               e.processor.debugDevice = 2;
                               e.processor.icacheStartAddr = 0x10000;
                               first_register(e);
                               add_device(e).devicenr = 2;
                             }});
}

TEST(CableAndChainWriting, WritesTheOptionAloneOfACableThatCannotBeWritten) {
  for (const Engine::CableType type : {Engine::ZARVEK_SVFFILE, Engine::ZARVEK_TCF}) {
    const auto prepare = [type](SelectedEngine& e) {
      e.engine.SetCableType(type);
      first_register(e);
      e.engine.SetCpuJtag();
      add_device(e);
      e.processor.debugDevice = 5;
    };
    expect_writing(kWrite, {" -cable", prepare, 2, "Invalid Cable Type"});
    expect_writing(write_all, {" -cable", prepare, 1, "Invalid Cable Type"});
  }
}

}  // namespace
}  // namespace SdkDebugDialog
