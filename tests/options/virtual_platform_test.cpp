#include <gtest/gtest.h>

#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

#include "options/QvtOption_Parser.h"
#include "tests/options/reading.h"
#include "tests/support/FakeHardware.h"
#include "tests/support/GlobalLocale.h"

namespace SdkDebugDialog {
namespace {

constexpr Reader kRead = QvtOption_Parser::parse_vpoptions;
const std::string kSelected = "allowedConnections=9 connectionType=8";

TEST(VirtualPlatform, TakesTheSoftProcessorInAnyCaseAndNothingElse) {
  expect_readings(kRead, {{"ov", 0, kSelected},
                          {" OV \r\n", 0, kSelected},
                          {"", 2},
                          {" \t", 2},
                          {"ppc", 2},
                          {"ovr", 2},
                          {"o", 2},
                          {"-ov", 2},
                          {"arm -config cycle_approximate", 2, "", {}, " -config cycle_approximate"}});
}

TEST(VirtualPlatform, IsSelectedBeforeItsOptionsAreRead) {
  expect_readings(kRead, {{"ov stray", 2, kSelected},
                          {"ov -5", 2, kSelected},
                          {"ov -foo", 2, kSelected, "UNKNOWN virtual platform Option '-foo'"}});
  SelectedEngine e;
  std::string text = "ov - x";
  EXPECT_THROW(kRead(text, e.imp), std::out_of_range);
  EXPECT_EQ(text, " x");
  EXPECT_EQ(changes(e), kSelected);
}

TEST(VirtualPlatform, WithoutHardwareIsAddedToWhatIsAdmittedAndSetsTheVariantAlone) {
  expect_reading(kRead, {"ov", 0, "procFamily=1 allowedConnections=10 connectionType=8"}, [](SelectedEngine& e) {
    e.processor.procFamily = 1;
    e.processor.procVariant = 2;
    e.processor.allowedConnections = 2;
  });
}

TEST(VirtualPlatform, WithHardwareIsTakenOnlyWhereItIsAdmitted) {
  FakeHardware hardware;
  const auto admitting = [&hardware](std::uint32_t connections) {
    return [&hardware, connections](SelectedEngine& e) {
      e.imp.hwManager = &hardware;
      e.processor.procVariant = 2;
      e.processor.allowedConnections = connections;
    };
  };
  expect_reading(kRead, {"ov -foo", 2, "procVariant=2 allowedConnections=247", {}, " -foo"}, admitting(247));
  expect_reading(kRead, {"ov", 2, "procVariant=2 allowedConnections=0"}, admitting(0));
  expect_reading(kRead, {"ov", 0, "procVariant=2 allowedConnections=8 connectionType=8"}, admitting(8));
  expect_reading(kRead, {"ov", 0, "procVariant=2 allowedConnections=15 connectionType=8"}, admitting(15));
}

TEST(VirtualPlatform, ReadsEveryOptionInAnyCase) {
  const GlobalLocale classic;
  expect_readings(kRead, {{"ov -config cycle_approximate", 0, kSelected + " vpConfigured=1 vpCycleApproximate=1"},
                          {"OV -CONFIG Cycle_Approximate", 0, kSelected + " vpConfigured=1 vpCycleApproximate=1"},
                          {"ov -ipcport host1:7000", 0, kSelected + " simHost=host1 simPort=7000"},
                          {"ov -IpcPort Host1:7000\r\n", 0, kSelected + " simHost=Host1 simPort=7000"},
                          {"ov -ipcport :1 -config cycle_approximate -ipcport :2", 0,
                           kSelected + " simHost=localhost simPort=2 vpConfigured=1 vpCycleApproximate=1"}});
}

TEST(VirtualPlatform, RefusesAnyOtherConfigurationWithoutAText) {
  expect_readings(kRead, {{"ov -config cycle_accurate -ipcport :1", 2, kSelected, {}, " -ipcport :1"},
                          {"ov -config cycle", 2, kSelected},
                          {"ov -config cycle_approximate1", 2, kSelected},
                          {"ov -config", 2, kSelected},
                          {"ov -config -ipcport :1", 2, kSelected, {}, " :1"},
                          {"ov -config -5", 2, kSelected}});
}

TEST(VirtualPlatform, SplitsAnAddressAtItsFirstColon) {
  expect_readings(kRead, {{"ov -ipcport :7000", 0, kSelected + " simHost=localhost simPort=7000"},
                          {"ov -ipcport host1:", 0, kSelected + " simHost=host1"},
                          {"ov -ipcport host1:70x", 0, kSelected + " simHost=host1 simPort=70"},
                          {"ov -ipcport host1:x70", 0, kSelected + " simHost=host1"},
                          {"ov -ipcport host1:0x10", 0, kSelected + " simHost=host1"},
                          {"ov -ipcport -1:2", 0, kSelected + " simHost=-1 simPort=2"},
                          {"ov -ipcport a:-1:c", 0, kSelected + " simHost=a simPort=4294967295"}});
}

TEST(VirtualPlatform, TakesTheStandardPortAndKeepsTheHostWithoutAColon) {
  expect_reading(kRead, {"ov -ipcport host1", 0, kSelected + " simPort=2340"});
  expect_reading(kRead, {"ov -ipcport 7000", 0, kSelected + " simHost=older simPort=2340"}, [](SelectedEngine& e) {
    e.processor.simHost = "older";
    e.processor.simPort = 99;
  });
}

TEST(VirtualPlatform, NeedsAPlainWordAsTheAddress) {
  expect_readings(kRead, {{"ov -ipcport", 2, kSelected},
                          {"ov -ipcport \r\n", 2, kSelected},
                          {"ov -ipcport -h:1 -config", 2, kSelected, {}, " -config"}});
}

TEST(VirtualPlatform, RefusesAValueInPlaceOfAnOptionWithoutAText) {
  expect_readings(kRead, {{"ov -ipcport :1 stray", 2, kSelected + " simHost=localhost simPort=1"},
                          {"ov -config cycle_approximate x", 2, kSelected + " vpConfigured=1 vpCycleApproximate=1"}});
}

TEST(VirtualPlatform, NamesAnUnknownOption) {
  expect_readings(kRead, {{"ov -Foo x", 2, kSelected, "UNKNOWN virtual platform Option '-Foo'", " x"},
                          {"ov -ipcport :1 -icf a", 2, kSelected + " simHost=localhost simPort=1",
                           "UNKNOWN virtual platform Option '-icf'", " a"},
                          {"ov -quiet", 2, kSelected, "UNKNOWN virtual platform Option '-quiet'"}});
}

TEST(VirtualPlatform, DoesNotKnowTheOptionsOfAnyOtherConnection) {
  for (const std::string option :
       {"-debugdevice", "-pfsl", "-quiet", "-noattach", "-writeonly", "-cable", "-comm", "-port", "-baud", "-timeout",
        "-configdevice", "-sim", "-bscan", "-uart", "-icf", "-memsize"}) {
    expect_reading(kRead,
                   {"ov " + option + " 1", 2, kSelected, "UNKNOWN virtual platform Option '" + option + "'", " 1"});
  }
}

// --- Writing ---

TEST(VirtualPlatform, ReplacesTheTextByItsOwn) {
  struct Row {
    std::uint32_t configured;
    std::uint32_t cycleApproximate;
    std::string host;
    std::uint32_t port;
    std::string text;
  };
  const std::vector<Row> rows = {
      {0, 0, "", 0, "vpconnect ov"},
      {0, 1, "", 2340, "vpconnect ov"},
      {1, 1, "", 0, "vpconnect ov -config cycle_approximate"},
      {1, 1, "host1", 2340, "vpconnect ov -config cycle_approximate"},
      {1, 0, "host1", 2340, "vpconnect ov -config"},
      {5, 7, "", 0, "vpconnect ov -config cycle_approximate"},
      {0, 0, "host1", 2340, "vpconnect ov -ipcporthost12340"},
      {0, 1, "host1", 0, "vpconnect ov -ipcporthost10"},
      {0, 0, "h", 0xFFFFFFFF, "vpconnect ov -ipcporth-1"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.text);
    SelectedEngine e;
    e.processor.vpConfigured = row.configured;
    e.processor.vpCycleApproximate = row.cycleApproximate;
    e.processor.simHost = row.host;
    e.processor.simPort = row.port;
    std::string out = "connect and whatever was there";
    EXPECT_EQ(QvtOption_Parser::write_vpoptions(out, e.imp), 0);
    EXPECT_EQ(out, row.text);
    EXPECT_EQ(e.error(), "");
  }
}

TEST(VirtualPlatform, IsNotWrittenForAnotherProcessorFamilyAndLeavesItsHead) {
  for (const std::uint32_t family : {1U, 2U, 3U, 0xFFFFFFFFU}) {
    SCOPED_TRACE(family);
    SelectedEngine e;
    e.processor.procFamily = family;
    e.processor.vpConfigured = 1;
    std::string out = "connect";
    EXPECT_EQ(QvtOption_Parser::write_vpoptions(out, e.imp), 2);
    EXPECT_EQ(out, "vpconnect");
    EXPECT_EQ(e.error(), "");
  }
}

TEST(VirtualPlatform, DoesNotReadBackTheJoinedAddressThatItWrites) {
  SelectedEngine e;
  EXPECT_EQ(QvtOption_Parser::ReadQvtCommand("vpconnect ov -ipcport host1:2340", e.imp), 0);
  std::string command;
  EXPECT_EQ(e.engine.GenerateCmdString(command), 0);
  EXPECT_EQ(command, "vpconnect ov -ipcporthost12340");
  EXPECT_EQ(QvtOption_Parser::ReadQvtCommand(command, e.imp), 3);
  EXPECT_EQ(e.error(), "UNKNOWN virtual platform Option '-ipcporthost12340'");
}

}  // namespace
}  // namespace SdkDebugDialog
