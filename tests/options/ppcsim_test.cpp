#include <gtest/gtest.h>

#include <string>

#include "tests/options/reading.h"
#include "tests/options/writing.h"
#include "tests/support/GlobalLocale.h"

namespace SdkDebugDialog {
namespace {

const Reader kRead = QvtOption_Parser::parse_ppcsim_options;

void at_an_older_address(SelectedEngine& e) {
  e.processor.simHost = "older";
  e.processor.simPort = 99;
}

// --- Reading ---

TEST(PpcSimulator, NeedsNoOption) { expect_readings(kRead, {{"", 0}, {" \t\r\n", 0}}); }

TEST(PpcSimulator, ReadsEveryOptionInAnyCase) {
  const GlobalLocale classic;
  expect_readings(kRead, {{"-icf a.cfg", 0, "simConfigFile=a.cfg"},
                          {"-ICF A.cfg", 0, "simConfigFile=A.cfg"},
                          {"-ipcport host1:7000", 0, "simHost=host1 simPort=7000"},
                          {"-IpcPort Host1:7000", 0, "simHost=Host1 simPort=7000"},
                          {"-debugdevice deviceNr 2", 0, "debugDevice=2"},
                          {"-DEBUGDEVICE", 0}});
}

// All options with "host:port" follow the same rules.
TEST(PpcSimulator, SplitsAnAddressAtItsFirstColonAndReadsADecimalPortOf32Bits) {
  expect_readings(kRead,
                  {{"-ipcport :7000", 0, "simHost=localhost simPort=7000"},
                   {"-ipcport host1:", 0, "simHost=host1 simPort=0"},
                   {"-ipcport :", 0, "simHost=localhost simPort=0"},
                   {"-ipcport host1:70x", 0, "simHost=host1 simPort=70"},
                   {"-ipcport host1:x70", 0, "simHost=host1 simPort=0"},
                   {"-ipcport host1:0x10", 0, "simHost=host1 simPort=0"},
                   {"-ipcport host1:010", 0, "simHost=host1 simPort=10"},
                   {"-ipcport host1:-1", 0, "simHost=host1 simPort=4294967295"},
                   {"-ipcport host1:4294967297", 0, "simHost=host1 simPort=1"},
                   {"-ipcport host1:-99999999999999999999", 0, "simHost=host1 simPort=0"},
                   {"-ipcport fe80::1:7000", 0, "simHost=fe80 simPort=0"}},
                  at_an_older_address);
}

TEST(PpcSimulator, TakesTheStandardPortAndKeepsTheHostWithoutAColon) {
  expect_readings(
      kRead,
      {{"-ipcport host1", 0, "simPort=6470"}, {"-ipcport 7000", 0, "simPort=6470"}, {"-ipcport -5", 0, "simPort=6470"}},
      at_an_older_address);
}

TEST(PpcSimulator, TakesATokenOfAnyKindAsTheArgument) {
  expect_readings(kRead, {{"-icf -5", 0, "simConfigFile=-5"},
                          {"-icf -icf", 0, "simConfigFile=-icf"},
                          {"-icf -ipcport -debugdevice deviceNr 2", 0, "simConfigFile=-ipcport debugDevice=2"},
                          {"-ipcport -icf", 0, "simPort=6470"},
                          {"-ipcport -host:1", 0, "simHost=-host simPort=1"},
                          {"-icf -ipcport host1:1", 2, "simConfigFile=-ipcport"}});
}

TEST(PpcSimulator, StoresNothingForAnArgumentThatIsMissingAtTheEnd) {
  expect_readings(kRead, {{"-icf", 0}, {"-ipcport", 0}, {"-icf a.cfg -ipcport \r\n", 0, "simConfigFile=a.cfg"}},
                  at_an_older_address);
}

TEST(PpcSimulator, GoesOnWithTheTokenAtWhichTheDebugDeviceStopped) {
  expect_readings(kRead,
                  {{"-debugdevice deviceNr 2 -icf a.cfg", 0, "simConfigFile=a.cfg debugDevice=2"},
                   {"-debugdevice -ipcport :1 -debugdevice deviceNr 2", 0, "simHost=localhost simPort=1 debugDevice=2"},
                   {"-debugdevice deviceNr 2 -foo", 2, "debugDevice=2", Error("UNKNOWN  PowerPC Sim Option '-foo'")},
                   {"-debugdevice deviceNr", 2},
                   {"-debugdevice speed 1 -icf a", 2, Error("UNKNOWN Parameter 'speed' for  option '-debugDevice'"),
                    Rest(" -icf a")}});
}

TEST(PpcSimulator, RefusesAValueInPlaceOfAnOptionWithoutAText) {
  expect_readings(
      kRead,
      {{"stray -icf a", 2, Rest(" -icf a")}, {"-5", 2}, {"-icf a b", 2, "simConfigFile=a"}, {"cycle_approximate", 2}});
}

TEST(PpcSimulator, NamesAnUnknownOption) {
  expect_readings(kRead, {{"-foo x", 2, Error("UNKNOWN  PowerPC Sim Option '-foo'"), Rest(" x")},
                          {"-icf a -Config cycle_approximate", 2, "simConfigFile=a",
                           Error("UNKNOWN  PowerPC Sim Option '-Config'"), Rest(" cycle_approximate")}});
}

TEST(PpcSimulator, DoesNotKnowTheOptionsOfAnotherConnection) {
  for (const std::string option : {"-pfsl", "-quiet", "-noattach", "-writeonly", "-cable", "-comm", "-port", "-baud",
                                   "-timeout", "-configdevice", "-sim", "-bscan", "-uart", "-config", "-memsize"}) {
    expect_reading(kRead, {option + " 1", 2, Error("UNKNOWN  PowerPC Sim Option '" + option + "'"), Rest(" 1")});
  }
}

TEST(PpcSimulator, LetsALoneDashThrow) { expect_reading(kRead, {"-icf - -ipcport :1", kThrows, Rest(" -ipcport :1")}); }

// --- Writing ---

TEST(PpcSimulator, IsWrittenWithTheFileOrElseTheAddressOrElseNothing) {
  const std::string name(1 << 20, 'n');
  struct Row {
    std::string file;
    std::string host;
    unsigned int port;
    std::string text;
  };
  for (const Row& row : {Row{"", "", 0, ""},
                         {"", "", 7000, ""},
                         {"a.cfg", "", 0, " -icf a.cfg"},
                         {"a.cfg", "host1", 7000, " -icf a.cfg"},
                         {"", "host1", 7000, " -ipcport host1:7000"},
                         {"", "host1", 0, " -ipcport host1:0"},
                         {"", "host1", 0xFFFFFFFF, " -ipcport host1:-1"},
                         {name, "", 0, " -icf " + name},
                         {"", name, 0, " -ipcport " + name + ":0"}}) {
    expect_writing(QvtOption_Parser::write_ppcsim_options, {row.text, [&row](SelectedEngine& e) {
                                                              e.processor.simConfigFile = row.file;
                                                              e.processor.simHost = row.host;
                                                              e.processor.simPort = row.port;
                                                              e.processor.debugDevice = 2;
                                                            }});
  }
}

}  // namespace
}  // namespace SdkDebugDialog
