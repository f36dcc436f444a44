// The targets "odm", "qmtc" and "dcc", whose options follow without a connection keyword.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/options/reading.h"
#include "tests/support/FakeHardware.h"
#include "tests/support/GlobalLocale.h"

namespace SdkDebugDialog {
namespace {

// A target, and the changes that it makes before it reads its options.
struct Target {
  std::string name;
  Reader read;
  std::string changes;
};

const Target kOdm = {"Odm", QvtOption_Parser::parse_odmoptions, "allowedConnections=16"};
const Target kQmtc = {"Qmtc", QvtOption_Parser::parse_qmtcoptions, "allowedConnections=32"};
const Target kDcc = {"Dcc", QvtOption_Parser::parse_dccoptions, "procFamily=2 procVariant=4 allowedConnections=256"};

// The rows list only the changes by options; the target's own changes are added.
void expect_readings(const Target& target, const std::vector<Reading>& expected) {
  for (Reading reading : expected) {
    reading.changes = target.changes + (reading.changes.empty() ? "" : " " + reading.changes);
    ::expect_reading(target.read, reading);
  }
}

class BareTargets : public testing::TestWithParam<Target> {};

INSTANTIATE_TEST_SUITE_P(Of, BareTargets, testing::Values(kOdm, kQmtc, kDcc),
                         [](const auto& target) { return target.param.name; });

TEST_P(BareTargets, NeedNoOption) { expect_readings(GetParam(), {{"", 0}, {" \t\r\n", 0}}); }

TEST_P(BareTargets, MarkTheProcessorBeforeAnythingIsRead) {
  expect_readings(GetParam(), {{"stray", 2},
                               {"hw", 2},
                               {"-5", 2},
                               {"stray -cable", 2, Rest(" -cable")},
                               {"-foo x", 2, Error("UNKNOWN Option '-foo'"), Rest(" x")},
                               {"- x", kThrows, Rest(" x")}});
}

TEST_P(BareTargets, ReadTheOptionsThatAllHaveInAnyCaseAndOrder) {
  expect_readings(GetParam(),
                  {{"-debugdevice deviceNr 2", 0, "debugDevice=2"},
                   {"-DebugDevice", 0},
                   {"-cable type zarvek_platformusb", 0, "cable.type=3 cable.frequency=6000000 cable.port=USB21"},
                   {"-CABLE type zarvek_platformusb -debugdevice deviceNr 2 \r\n", 0,
                    "debugDevice=2 cable.type=3 cable.port=USB21"},
                   {"-debugdevice deviceNr 2 -cable type digilent_plugin -debugdevice deviceNr 3", 0,
                    "debugDevice=3 cable.type=6"}});
}

TEST_P(BareTargets, CheckACableAtTheEndOfTheTextOnly) {
  expect_readings(
      GetParam(),
      {{"-cable type zarvek_parallel3 frequency 5 -debugdevice", 0, "cable.type=4 cable.frequency=5 cable.port=LPT1"},
       {"-cable type zarvek_parallel3 frequency 5", 2, "cable.type=4 cable.frequency=5 cable.port=LPT1",
        Error("UnSupported Zarvek Parallel3 Cable Frequency - 5\n\t Supported Frequencies: 200000")}});
}

TEST_P(BareTargets, FailWhereAGroupFailsAndKeepWhatWasRead) {
  expect_readings(GetParam(), {{"-debugdevice deviceNr 1 speed 1 -cable", 2, "debugDevice=1",
                                Error("UNKNOWN Parameter 'speed' for  option '-debugDevice'"), Rest(" -cable")},
                               {"-debugdevice deviceNr", 2},
                               {"-cable speed 1", 2, Error("UNKNOWN Parameter 'speed' for  option '-cable'")},
                               {"-cable type usb", 2},
                               {"-cable type zarvek_plugin", 2, "cable.type=5",
                                Error("Plug-in Module NOT specified for Cable Type zarvek_plugin")},
                               {"-debugdevice deviceNr 2 -cable port p - -cable", kThrows, "debugDevice=2 cable.port=p",
                                Rest(" -cable")}});
}

TEST_P(BareTargets, NameAnUnknownOptionAsItWasTyped) {
  expect_readings(GetParam(),
                  {{"-Foo", 2, Error("UNKNOWN Option '-Foo'")},
                   {"-debugdevice deviceNr 2 -Foo x", 2, "debugDevice=2", Error("UNKNOWN Option '-Foo'"), Rest(" x")},
                   {"-cable port p -foo", 2, "cable.port=p", Error("UNKNOWN Option '-foo'")},
                   {"-%s%n", 2, Error("UNKNOWN Option '-%s%n'")},
                   {"-" + std::string(5000, 'o'), 2, cut_error("UNKNOWN Option '-" + std::string(5000, 'o'))}});
}

TEST_P(BareTargets, DoNotKnowTheOptionsOfAConnection) {
  for (const std::string option : {"-pfsl", "-quiet", "-noattach", "-writeonly", "-comm", "-port", "-baud", "-timeout",
                                   "-sim", "-icf", "-ipcport", "-config", "-memsize"}) {
    expect_readings(GetParam(), {{option + " 1", 2, Error("UNKNOWN Option '" + option + "'"), Rest(" 1")}});
  }
}

TEST_P(BareTargets, ReplaceWhatIsAdmittedWhateverTheHardwareAndKeepTheConnection) {
  FakeHardware hardware;
  expect_reading(GetParam().read, {"", 0, GetParam().changes}, [&hardware](SelectedEngine& e) {
    e.imp.hwManager = &hardware;
    e.processor.procFamily = 1;
    e.processor.procVariant = 2;
    e.processor.allowedConnections = 7;
    e.processor.connectionType = 4;
  });
}

// --- Options of only some of the targets ---

TEST(OdmTarget, ReadsUartRegisterAndChainInAnyCaseAndOrder) {
  const GlobalLocale classic;
  expect_readings(kOdm, {{"-ConfigDevice devicenr 1 -UART -DebugDevice devicenr 3 -Bscan User4 -CABLE port p -uart "
                          "-configdevice devicenr 2 partname q",
                          0,
                          "debugDevice=3 uartEnabled=1 bscanPort=35 cable.port=p device{devicenr=1} "
                          "device{devicenr=2 partname=q}"}});
}

TEST(OdmTarget, FailsWhereTheyFailAndKeepsWhatWasRead) {
  expect_readings(kOdm, {{"-bscan USER5", 2},
                         {"-bscan", 2},
                         {"-bscan USER1 USER2", 2, "bscanPort=2"},
                         {"-uart on", 2, "uartEnabled=1"},
                         {"-uart -foo", 2, "uartEnabled=1", Error("UNKNOWN Option '-foo'")},
                         {"-uart -configdevice foo 2", 2, "uartEnabled=1",
                          Error("UNKNOWN Parameter 'foo' for option '-configDevice'")},
                         {"-configdevice devicenr 4 irlength", 2, "device{devicenr=4}"},
                         {"-uart -configdevice devicenr 1 -bscan USER1 - -cable", kThrows,
                          "uartEnabled=1 bscanPort=2 device{devicenr=1}", Rest(" -cable")}});
}

TEST(QmtcTarget, ReadsTheChain) {
  const GlobalLocale classic;
  expect_readings(kQmtc,
                  {{"-configdevice devicenr 1 -CONFIGDEVICE devicenr 2", 0, "device{devicenr=1} device{devicenr=2}"},
                   {"-configdevice devicenr 1 -debugdevice deviceNr 2", 0, "debugDevice=2 device{devicenr=1}"},
                   {"-configdevice jtagport gpio", 2},
                   {"-configdevice speed 1", 2, Error("UNKNOWN Parameter 'speed' for option '-configDevice'")}});
}

TEST(QmtcTarget, RefusesUartAndRegisterByName) {
  expect_readings(kQmtc, {{"-uart", 2, Error("UNKNOWN Option '-uart'")},
                          {"-debugdevice -UART", 2, Error("UNKNOWN Option '-UART'")},
                          {"-bscan USER1", 2, Error("UNKNOWN Option '-bscan'"), Rest(" USER1")}});
}

TEST(DccTarget, TakesTheUartAnyNumberOfTimes) {
  expect_readings(kDcc, {{"-uart", 0, "uartEnabled=1"},
                         {"-uart -UART -debugdevice deviceNr 2 -Uart", 0, "debugDevice=2 uartEnabled=1"},
                         {"-uart 5", 2, "uartEnabled=1"},
                         {"-uart -foo", 2, "uartEnabled=1", Error("UNKNOWN Option '-foo'")},
                         {"-uart - -cable", kThrows, "uartEnabled=1", Rest(" -cable")}});
}

TEST(DccTarget, RefusesRegisterAndChainByName) {
  expect_readings(kDcc,
                  {{"-Bscan USER1", 2, Error("UNKNOWN Option '-Bscan'"), Rest(" USER1")},
                   {"-configdevice devicenr 1", 2, Error("UNKNOWN Option '-configdevice'"), Rest(" devicenr 1")}});
}

TEST(DccTarget, LosesItsKindToTheProcessorTypeOfTheDebugDevice) {
  expect_reading(kDcc.read, {"-debugdevice proctype x", 2, "procFamily=2 procVariant=6 allowedConnections=256"});
}

}  // namespace
}  // namespace SdkDebugDialog
