#include <gtest/gtest.h>

#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

#include "options/QvtOption_Parser.h"
#include "tests/options/reading.h"
#include "tests/support/GlobalLocale.h"

namespace SdkDebugDialog {
namespace {

constexpr Reader kRead = QvtOption_Parser::parse_ppcsim_options;

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

TEST(PpcSimulator, SplitsAnAddressAtItsFirstColon) {
  expect_readings(kRead, {{"-ipcport :7000", 0, "simHost=localhost simPort=7000"},
                          {"-ipcport host1:", 0, "simHost=host1"},
                          {"-ipcport :", 0, "simHost=localhost"},
                          {"-ipcport host1:70x", 0, "simHost=host1 simPort=70"},
                          {"-ipcport host1:x70", 0, "simHost=host1"},
                          {"-ipcport host1:0x10", 0, "simHost=host1"},
                          {"-ipcport host1:010", 0, "simHost=host1 simPort=10"},
                          {"-ipcport host1:-1", 0, "simHost=host1 simPort=4294967295"},
                          {"-ipcport host1:4294967297", 0, "simHost=host1 simPort=1"},
                          {"-ipcport fe80::1:7000", 0, "simHost=fe80"}});
}

TEST(PpcSimulator, ReplacesThePortBeforeByOneThatIsNoNumber) {
  const auto known = [](SelectedEngine& e) {
    e.processor.simHost = "older";
    e.processor.simPort = 99;
  };
  expect_readings(kRead, {{"-ipcport host1:x", 0, "simHost=host1"}, {"-ipcport :", 0, "simHost=localhost"}}, known);
}

TEST(PpcSimulator, TakesTheStandardPortAndKeepsTheHostWithoutAColon) {
  expect_reading(kRead, {"-ipcport host1", 0, "simPort=6470"});
  expect_readings(kRead,
                  {{"-ipcport host1", 0, "simHost=older simPort=6470"},
                   {"-ipcport 7000", 0, "simHost=older simPort=6470"},
                   {"-ipcport -5", 0, "simHost=older simPort=6470"}},
                  [](SelectedEngine& e) {
                    e.processor.simHost = "older";
                    e.processor.simPort = 99;
                  });
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
  expect_readings(kRead, {{"-icf", 0}, {"-ipcport", 0}, {"-icf a.cfg -ipcport \r\n", 0, "simConfigFile=a.cfg"}});
}

TEST(PpcSimulator, GoesOnWithTheTokenAtWhichTheDebugDeviceStopped) {
  expect_readings(
      kRead,
      {{"-debugdevice deviceNr 2 -icf a.cfg", 0, "simConfigFile=a.cfg debugDevice=2"},
       {"-debugdevice -ipcport :1 -debugdevice deviceNr 2", 0, "simHost=localhost simPort=1 debugDevice=2"},
       {"-debugdevice deviceNr 2 -foo", 2, "debugDevice=2", "UNKNOWN  PowerPC Sim Option '-foo'"},
       {"-debugdevice deviceNr", 2},
       {"-debugdevice speed 1 -icf a", 2, "", "UNKNOWN Parameter 'speed' for  option '-debugDevice'", " -icf a"}});
}

TEST(PpcSimulator, RefusesAValueInPlaceOfAnOptionWithoutAText) {
  expect_readings(kRead, {{"stray -icf a", 2, "", {}, " -icf a"},
                          {"-5", 2},
                          {"-icf a b", 2, "simConfigFile=a"},
                          {"cycle_approximate", 2}});
}

TEST(PpcSimulator, NamesAnUnknownOption) {
  expect_readings(kRead, {{"-foo x", 2, "", "UNKNOWN  PowerPC Sim Option '-foo'", " x"},
                          {"-icf a -Config cycle_approximate", 2, "simConfigFile=a",
                           "UNKNOWN  PowerPC Sim Option '-Config'", " cycle_approximate"},
                          {"-cable", 2, "", "UNKNOWN  PowerPC Sim Option '-cable'"}});
}

TEST(PpcSimulator, DoesNotKnowTheOptionsOfAnotherConnection) {
  for (const std::string option : {"-pfsl", "-quiet", "-noattach", "-writeonly", "-cable", "-comm", "-port", "-baud",
                                   "-timeout", "-configdevice", "-sim", "-bscan", "-uart", "-config", "-memsize"}) {
    expect_reading(kRead, {option + " 1", 2, "", "UNKNOWN  PowerPC Sim Option '" + option + "'", " 1"});
  }
}

TEST(PpcSimulator, LetsALoneDashThrow) {
  SelectedEngine e;
  std::string text = "-icf - -ipcport :1";
  EXPECT_THROW(kRead(text, e.imp), std::out_of_range);
  EXPECT_EQ(text, " -ipcport :1");
  EXPECT_EQ(changes(e), "");
}

TEST(PpcSimulator, IsWrittenWithTheFileOrElseTheAddressOrElseNothing) {
  struct Row {
    std::string file;
    std::string host;
    std::uint32_t port;
    std::string text;
  };
  const std::vector<Row> rows = {
      {"", "", 0, ""},
      {"", "", 7000, ""},
      {"a.cfg", "", 0, " -icf a.cfg"},
      {"a.cfg", "host1", 7000, " -icf a.cfg"},
      {"", "host1", 7000, " -ipcport host1:7000"},
      {"", "host1", 0, " -ipcport host1:0"},
      {"", "host1", 0xFFFFFFFF, " -ipcport host1:-1"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.text);
    SelectedEngine e;
    e.processor.simConfigFile = row.file;
    e.processor.simHost = row.host;
    e.processor.simPort = row.port;
    e.processor.debugDevice = 2;
    std::string out = "before";
    EXPECT_EQ(QvtOption_Parser::write_ppcsim_options(out, e.imp), 0);
    EXPECT_EQ(out, "before" + row.text);
  }
}

TEST(PpcSimulator, IsWrittenWholeWhateverTheLengthOfItsNames) {
  SelectedEngine e;
  const std::string name(1 << 20, 'n');
  e.processor.simConfigFile = name;
  std::string out;
  QvtOption_Parser::write_ppcsim_options(out, e.imp);
  EXPECT_EQ(out, " -icf " + name);
  e.processor.simConfigFile.clear();
  e.processor.simHost = name;
  out.clear();
  QvtOption_Parser::write_ppcsim_options(out, e.imp);
  EXPECT_EQ(out, " -ipcport " + name + ":0");
}

}  // namespace
}  // namespace SdkDebugDialog
