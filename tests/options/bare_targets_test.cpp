// The targets "qmtc" and "dcc", which take their options at once.

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "options/QvtOption_Parser.h"
#include "tests/options/reading.h"
#include "tests/support/FakeHardware.h"
#include "tests/support/GlobalLocale.h"

namespace SdkDebugDialog {
namespace {

// A target, and what a fresh record differs in before anything is read.
struct Target {
  std::string name;
  Reader read;
  std::string changes;
};

const Target kQmtc = {"qmtc", QvtOption_Parser::parse_qmtcoptions, "allowedConnections=32"};
const Target kDcc = {"dcc", QvtOption_Parser::parse_dccoptions, "procFamily=2 procVariant=4 allowedConnections=256"};
const std::vector<Target> kTargets = {kQmtc, kDcc};

TEST(BareTargets, NeedNoOption) {
  for (const Target& target : kTargets) {
    expect_readings(target.read, {{"", 0, target.changes}, {" \t\r\n", 0, target.changes}});
  }
}

TEST(BareTargets, MarkTheProcessorBeforeAnythingIsRead) {
  for (const Target& target : kTargets) {
    SCOPED_TRACE(target.name);
    expect_readings(target.read, {{"stray", 2, target.changes},
                                  {"hw", 2, target.changes},
                                  {"-5", 2, target.changes},
                                  {"stray -cable", 2, target.changes, {}, " -cable"},
                                  {"-foo x", 2, target.changes, "UNKNOWN Option '-foo'", " x"}});
    SelectedEngine e;
    std::string text = "- x";
    EXPECT_THROW(target.read(text, e.imp), std::out_of_range);
    EXPECT_EQ(text, " x");
    EXPECT_EQ(changes(e), target.changes);
  }
}

TEST(BareTargets, ReplaceWhatIsAdmittedWhateverTheHardwareAndKeepTheConnection) {
  FakeHardware hardware;
  const auto powerPc = [&hardware](SelectedEngine& e) {
    e.imp.hwManager = &hardware;
    e.processor.procFamily = 1;
    e.processor.procVariant = 2;
    e.processor.allowedConnections = 7;
    e.processor.connectionType = 4;
  };
  expect_reading(kQmtc.read, {"", 0, "procFamily=1 procVariant=2 allowedConnections=32 connectionType=4"}, powerPc);
  expect_reading(kDcc.read, {"", 0, "procFamily=2 procVariant=4 allowedConnections=256 connectionType=4"}, powerPc);
}

TEST(BareTargets, ReadTheOptionsThatBothHaveInAnyCase) {
  for (const Target& target : kTargets) {
    SCOPED_TRACE(target.name);
    expect_readings(target.read, {{"-debugdevice deviceNr 2", 0, target.changes + " debugDevice=2"},
                                  {"-DebugDevice", 0, target.changes},
                                  {"-cable type zarvek_platformusb", 0,
                                   target.changes + " cable.type=3 cable.frequency=6000000 cable.port=USB21"},
                                  {"-CABLE type zarvek_platformusb -debugdevice deviceNr 2 \r\n", 0,
                                   target.changes + " debugDevice=2 cable.type=3 cable.port=USB21"},
                                  {"-debugdevice deviceNr 2 -cable type zarvek_platformusb -debugdevice deviceNr 3", 0,
                                   target.changes + " debugDevice=3 cable.type=3 cable.port=USB21"}});
  }
}

TEST(BareTargets, FailWhereAGroupFails) {
  for (const Target& target : kTargets) {
    SCOPED_TRACE(target.name);
    expect_readings(target.read,
                    {{"-debugdevice speed 1 -cable", 2, target.changes,
                      "UNKNOWN Parameter 'speed' for  option '-debugDevice'", " -cable"},
                     {"-debugdevice deviceNr", 2, target.changes},
                     {"-cable speed 1", 2, target.changes, "UNKNOWN Parameter 'speed' for  option '-cable'"},
                     {"-cable type zarvek_plugin", 2, target.changes + " cable.type=5",
                      "Plug-in Module NOT specified for Cable Type zarvek_plugin"}});
  }
}

TEST(BareTargets, NameAnUnknownOptionWhereverItStands) {
  for (const Target& target : kTargets) {
    SCOPED_TRACE(target.name);
    expect_readings(target.read,
                    {{"-debugdevice deviceNr 2 -Foo", 2, target.changes + " debugDevice=2", "UNKNOWN Option '-Foo'"},
                     {"-quiet", 2, target.changes, "UNKNOWN Option '-quiet'"},
                     {"-bscan USER1", 2, target.changes, "UNKNOWN Option '-bscan'", " USER1"},
                     {"-pfsl port 1", 2, target.changes, "UNKNOWN Option '-pfsl'", " port 1"},
                     {"-comm serial", 2, target.changes, "UNKNOWN Option '-comm'", " serial"},
                     {"-sim", 2, target.changes, "UNKNOWN Option '-sim'"}});
  }
}

TEST(BareTargets, DoNotKnowTheOptionsOfAConnection) {
  for (const Target& target : kTargets) {
    for (const std::string option : {"-pfsl", "-quiet", "-noattach", "-writeonly", "-comm", "-port", "-baud",
                                     "-timeout", "-sim", "-bscan", "-icf", "-ipcport", "-config", "-memsize"}) {
      expect_reading(target.read, {option + " 1", 2, target.changes, "UNKNOWN Option '" + option + "'", " 1"});
    }
  }
}

TEST(QmtcTarget, ReadsTheChain) {
  const GlobalLocale classic;
  expect_readings(kQmtc.read, {{"-configdevice devicenr 1 -CONFIGDEVICE devicenr 2", 0,
                                "allowedConnections=32 device=1/UNKNOWN/0/0 device=2/UNKNOWN/0/0"},
                               {"-configdevice devicenr 1 -debugdevice deviceNr 2", 0,
                                "allowedConnections=32 debugDevice=2 device=1/UNKNOWN/0/0"},
                               {"-configdevice jtagport gpio", 2, "allowedConnections=32"},
                               {"-configdevice speed 1", 2, "allowedConnections=32",
                                "UNKNOWN Parameter 'speed' for option '-configDevice'"}});
}

TEST(QmtcTarget, RefusesTheUartByName) {
  expect_readings(kQmtc.read, {{"-uart", 2, "allowedConnections=32", "UNKNOWN Option '-uart'"},
                               {"-debugdevice -UART", 2, "allowedConnections=32", "UNKNOWN Option '-UART'"}});
}

TEST(DccTarget, TakesTheUartAnyNumberOfTimes) {
  expect_readings(kDcc.read,
                  {{"-uart", 0, kDcc.changes + " uartEnabled=1"},
                   {"-uart -UART -debugdevice deviceNr 2 -Uart", 0, kDcc.changes + " debugDevice=2 uartEnabled=1"},
                   {"-uart 5", 2, kDcc.changes + " uartEnabled=1"},
                   {"-uart -foo", 2, kDcc.changes + " uartEnabled=1", "UNKNOWN Option '-foo'"}});
}

TEST(DccTarget, RefusesTheUserRegisterAndTheChainByName) {
  expect_readings(kDcc.read,
                  {{"-bscan", 2, kDcc.changes, "UNKNOWN Option '-bscan'"},
                   {"-Bscan USER1", 2, kDcc.changes, "UNKNOWN Option '-Bscan'", " USER1"},
                   {"-configdevice devicenr 1", 2, kDcc.changes, "UNKNOWN Option '-configdevice'", " devicenr 1"}});
}

TEST(BareTargets, AreWrittenAsTheirFamilyAndConnectionSay) {
  struct Row {
    std::string command;
    std::string written;
  };
  const std::vector<Row> rows = {
      {"connect qmtc -debugdevice deviceNr 2", "connect ov odm -debugdevice deviceNr 2 cpunr 1"},
      {"connect dcc -uart -debugdevice deviceNr 2", "connect ppc hw -debugdevice deviceNr 2 cpunr 1"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.command);
    SelectedEngine e;
    EXPECT_EQ(QvtOption_Parser::ReadQvtCommand(row.command, e.imp), 0);
    std::string command;
    EXPECT_EQ(e.engine.GenerateCmdString(command), 0);
    EXPECT_EQ(command, row.written);
  }
}

}  // namespace
}  // namespace SdkDebugDialog
