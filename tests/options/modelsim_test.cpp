#include <gtest/gtest.h>

#include <string>

#include "tests/options/reading.h"
#include "tests/support/GlobalLocale.h"

namespace SdkDebugDialog {
namespace {

const Reader kRead = QvtOption_Parser::parse_modelsim_options;

void at_an_older_address(SelectedEngine& e) {
  e.processor.modelSimHost = "older";
  e.processor.modelSimPort = 99;
}

TEST(ModelSim, IsEnabledBeforeAnythingIsRead) {
  expect_readings(kRead, {{"", 3, "modelSimEnabled=1"},
                          {" \r\n", 3, "modelSimEnabled=1"},
                          {"stray", 2, "modelSimEnabled=1"},
                          {"-foo", 2, "modelSimEnabled=1", Error("UNKNOWN  ModelSim Option '-foo'")},
                          {"-", kThrows, "modelSimEnabled=1"}});
}

TEST(ModelSim, AnswersTheEndOfTheTextAfterEveryOptionInAnyCase) {
  const GlobalLocale classic;
  expect_readings(kRead, {{"-ipcport host1:7000", 3, "modelSimEnabled=1 modelSimHost=host1 modelSimPort=7000"},
                          {"-IPCPORT Host1:7000\r\n", 3, "modelSimEnabled=1 modelSimHost=Host1 modelSimPort=7000"},
                          {"-configdevice devicenr 2", 3, "modelSimEnabled=1 device{devicenr=2}"},
                          {"-ConfigDevice", 3, "modelSimEnabled=1 device{}"}});
}

TEST(ModelSim, SplitsAnAddressAtItsFirstColonAndReadsADecimalPortOf32Bits) {
  expect_readings(kRead,
                  {{"-ipcport :7000", 3, "modelSimEnabled=1 modelSimHost=localhost modelSimPort=7000"},
                   {"-ipcport host1:", 3, "modelSimEnabled=1 modelSimHost=host1 modelSimPort=0"},
                   {"-ipcport host1:010", 3, "modelSimEnabled=1 modelSimHost=host1 modelSimPort=10"},
                   {"-ipcport h:-1:2", 3, "modelSimEnabled=1 modelSimHost=h modelSimPort=4294967295"}},
                  at_an_older_address);
}

TEST(ModelSim, ChangesNothingWithoutAColonOrAtTheEnd) {
  expect_readings(kRead,
                  {{"-ipcport host1", 3, "modelSimEnabled=1"},
                   {"-ipcport 7000", 3, "modelSimEnabled=1"},
                   {"-ipcport", 3, "modelSimEnabled=1"},
                   {"-ipcport -configdevice", 3, "modelSimEnabled=1"}},
                  at_an_older_address);
}

TEST(ModelSim, TakesATokenOfAnyKindAsTheAddress) {
  expect_reading(kRead, {"-ipcport -h:1 -ipcport -5", 3, "modelSimEnabled=1 modelSimHost=-h modelSimPort=1"});
}

TEST(ModelSim, GoesOnWithTheTokenAtWhichADeviceStopped) {
  expect_readings(kRead, {{"-configdevice devicenr 1 -configdevice devicenr 2 -ipcport h:1", 3,
                           "modelSimEnabled=1 modelSimHost=h modelSimPort=1 device{devicenr=1} device{devicenr=2}"},
                          {"-configdevice devicenr 1 -foo", 2, "modelSimEnabled=1 device{devicenr=1}",
                           Error("UNKNOWN  ModelSim Option '-foo'")},
                          {"-configdevice devicenr", 2, "modelSimEnabled=1 device{}"},
                          {"-configdevice speed 1", 2, "modelSimEnabled=1",
                           Error("UNKNOWN Parameter 'speed' for option '-configDevice'")}});
}

TEST(ModelSim, RefusesAValueInPlaceOfAnOptionWithoutAText) {
  expect_readings(kRead, {{"stray -ipcport h:1", 2, "modelSimEnabled=1", Rest(" -ipcport h:1")},
                          {"-ipcport h:1 2", 2, "modelSimEnabled=1 modelSimHost=h modelSimPort=1"},
                          {"-5", 2, "modelSimEnabled=1"}});
}

TEST(ModelSim, NamesAnUnknownOptionAsItWasTypedAndKnowsNoneOfThoseAroundIt) {
  for (const std::string option :
       {"-Quiet", "-debugdevice", "-icf", "-pfsl", "-quiet", "-noattach", "-writeonly", "-cable", "-comm", "-port",
        "-baud", "-timeout", "-sim", "-bscan", "-uart", "-config", "-memsize"}) {
    expect_reading(
        kRead, {option + " 1", 2, "modelSimEnabled=1", Error("UNKNOWN  ModelSim Option '" + option + "'"), Rest(" 1")});
  }
}

}  // namespace
}  // namespace SdkDebugDialog
