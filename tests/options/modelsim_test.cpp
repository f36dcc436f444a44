#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "options/QvtOption_Parser.h"
#include "tests/options/reading.h"
#include "tests/support/GlobalLocale.h"

namespace SdkDebugDialog {
namespace {

constexpr Reader kRead = QvtOption_Parser::parse_modelsim_options;

// What a fresh record has is not listed: "localhost" and 9998.

TEST(ModelSim, IsEnabledBeforeAnythingIsRead) {
  expect_readings(kRead, {{"", 3, "modelSimEnabled=1"},
                          {" \r\n", 3, "modelSimEnabled=1"},
                          {"stray", 2, "modelSimEnabled=1"},
                          {"-foo", 2, "modelSimEnabled=1", "UNKNOWN  ModelSim Option '-foo'"}});
  SelectedEngine e;
  std::string text = "-";
  EXPECT_THROW(kRead(text, e.imp), std::out_of_range);
  EXPECT_EQ(changes(e), "modelSimEnabled=1");
}

TEST(ModelSim, AnswersTheEndOfTheTextAfterEveryOptionInAnyCase) {
  const GlobalLocale classic;
  expect_readings(kRead, {{"-ipcport host1:7000", 3, "modelSimEnabled=1 modelSimHost=host1 modelSimPort=7000"},
                          {"-IPCPORT Host1:7000\r\n", 3, "modelSimEnabled=1 modelSimHost=Host1 modelSimPort=7000"},
                          {"-configdevice devicenr 2", 3, "modelSimEnabled=1 device=2/UNKNOWN/0/0"},
                          {"-ConfigDevice", 3, "modelSimEnabled=1 device=0/UNKNOWN/0/0"}});
}

TEST(ModelSim, SplitsAnAddressAtItsFirstColon) {
  expect_readings(kRead,
                  {{"-ipcport :7000", 3, "modelSimEnabled=1 modelSimPort=7000"},
                   {"-ipcport host1:", 3, "modelSimEnabled=1 modelSimHost=host1 modelSimPort=0"},
                   {"-ipcport host1:70x", 3, "modelSimEnabled=1 modelSimHost=host1 modelSimPort=70"},
                   {"-ipcport host1:0x10", 3, "modelSimEnabled=1 modelSimHost=host1 modelSimPort=0"},
                   {"-ipcport h:-1:2", 3, "modelSimEnabled=1 modelSimHost=h modelSimPort=4294967295"}},
                  [](SelectedEngine& e) { e.processor.modelSimHost = "older"; });
}

TEST(ModelSim, ChangesNothingWithoutAColonOrAtTheEnd) {
  expect_readings(kRead,
                  {{"-ipcport host1", 3, "modelSimEnabled=1 modelSimHost=older modelSimPort=99"},
                   {"-ipcport 7000", 3, "modelSimEnabled=1 modelSimHost=older modelSimPort=99"},
                   {"-ipcport", 3, "modelSimEnabled=1 modelSimHost=older modelSimPort=99"},
                   {"-ipcport -configdevice", 3, "modelSimEnabled=1 modelSimHost=older modelSimPort=99"}},
                  [](SelectedEngine& e) {
                    e.processor.modelSimHost = "older";
                    e.processor.modelSimPort = 99;
                  });
}

TEST(ModelSim, TakesATokenOfAnyKindAsTheAddress) {
  expect_reading(kRead, {"-ipcport -h:1 -ipcport -5", 3, "modelSimEnabled=1 modelSimHost=-h modelSimPort=1"});
}

TEST(ModelSim, GoesOnWithTheTokenAtWhichADeviceStopped) {
  expect_readings(kRead, {{"-configdevice devicenr 1 -configdevice devicenr 2 -ipcport h:1", 3,
                           "modelSimEnabled=1 modelSimHost=h modelSimPort=1 device=1/UNKNOWN/0/0 device=2/UNKNOWN/0/0"},
                          {"-configdevice devicenr 1 -foo", 2, "modelSimEnabled=1 device=1/UNKNOWN/0/0",
                           "UNKNOWN  ModelSim Option '-foo'"},
                          {"-configdevice devicenr", 2, "modelSimEnabled=1 device=0/UNKNOWN/0/0"},
                          {"-configdevice speed 1", 2, "modelSimEnabled=1",
                           "UNKNOWN Parameter 'speed' for option '-configDevice'"}});
}

TEST(ModelSim, RefusesAValueInPlaceOfAnOptionWithoutAText) {
  expect_readings(kRead, {{"stray -ipcport h:1", 2, "modelSimEnabled=1", {}, " -ipcport h:1"},
                          {"-ipcport h:1 2", 2, "modelSimEnabled=1 modelSimHost=h modelSimPort=1"},
                          {"-5", 2, "modelSimEnabled=1"}});
}

TEST(ModelSim, NamesAnUnknownOption) {
  expect_readings(kRead, {{"-Quiet x", 2, "modelSimEnabled=1", "UNKNOWN  ModelSim Option '-Quiet'", " x"},
                          {"-debugdevice", 2, "modelSimEnabled=1", "UNKNOWN  ModelSim Option '-debugdevice'"},
                          {"-icf a", 2, "modelSimEnabled=1", "UNKNOWN  ModelSim Option '-icf'", " a"}});
}

TEST(ModelSim, DoesNotKnowTheOptionsAroundIt) {
  for (const std::string option : {"-debugdevice", "-pfsl", "-quiet", "-noattach", "-writeonly", "-cable", "-comm",
                                   "-port", "-baud", "-timeout", "-sim", "-bscan", "-uart", "-config", "-memsize"}) {
    expect_reading(kRead, {option + " 1", 2, "modelSimEnabled=1", "UNKNOWN  ModelSim Option '" + option + "'", " 1"});
  }
}

TEST(ModelSim, IsReadByTheGeneralOptionsAndNeverWritten) {
  SelectedEngine e;
  EXPECT_EQ(QvtOption_Parser::ReadQvtCommand("connect ov odm -sim -ipcport h:1", e.imp), 0);
  EXPECT_EQ(changes(e), "allowedConnections=3 modelSimEnabled=1 modelSimHost=h modelSimPort=1");
  std::string command;
  EXPECT_EQ(e.engine.GenerateCmdString(command), 0);
  EXPECT_EQ(command, "connect ov odm -debugdevice cpunr 1");
}

}  // namespace
}  // namespace SdkDebugDialog
