#include <gtest/gtest.h>

#include <string>

#include "tests/options/reading.h"
#include "tests/support/FakeHardware.h"
#include "tests/support/GlobalLocale.h"

namespace SdkDebugDialog {
namespace {

const Reader kRead = QvtOption_Parser::parse_vpoptions;
const std::string kSelected = "allowedConnections=9 connectionType=8";

// --- Reading ---

TEST(VirtualPlatform, TakesTheSoftProcessorInAnyCaseAndNothingElse) {
  expect_readings(kRead, {{"ov", 0, kSelected},
                          {" OV \r\n", 0, kSelected},
                          {"", 2},
                          {" \t", 2},
                          {"ppc", 2},
                          {"ovr", 2},
                          {"o", 2},
                          {"-ov", 2},
                          {"arm -config cycle_approximate", 2, Rest(" -config cycle_approximate")}});
}

TEST(VirtualPlatform, IsSelectedBeforeItsOptionsAreRead) {
  expect_readings(kRead, {{"ov stray", 2, kSelected},
                          {"ov -5", 2, kSelected},
                          {"ov -foo", 2, kSelected, Error("UNKNOWN virtual platform Option '-foo'")},
                          {"ov - x", kThrows, kSelected, Rest(" x")}});
}

TEST(VirtualPlatform, WithoutHardwareIsAddedToWhatIsAdmittedAndSetsTheVariantAlone) {
  expect_reading(kRead, {"ov", 0, "procVariant=0 allowedConnections=10 connectionType=8"}, [](SelectedEngine& e) {
    e.processor.procFamily = 1;
    e.processor.procVariant = 2;
    e.processor.allowedConnections = 2;
  });
}

TEST(VirtualPlatform, WithHardwareIsTakenOnlyWhereItIsAdmittedAndKeepsTheKind) {
  FakeHardware hardware;
  const auto admitting = [&hardware](unsigned int connections) {
    return [&hardware, connections](SelectedEngine& e) {
      e.imp.hwManager = &hardware;
      e.processor.procVariant = 2;
      e.processor.allowedConnections = connections;
    };
  };
  expect_reading(kRead, {"ov -foo", 2, Rest(" -foo")}, admitting(247));
  expect_reading(kRead, {"ov", 2}, admitting(0));
  expect_reading(kRead, {"ov", 0, "connectionType=8"}, admitting(8));
  expect_reading(kRead, {"ov", 0, "connectionType=8"}, admitting(15));
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
  expect_readings(kRead, {{"ov -config cycle_accurate -ipcport :1", 2, kSelected, Rest(" -ipcport :1")},
                          {"ov -config cycle", 2, kSelected},
                          {"ov -config cycle_approximate1", 2, kSelected},
                          {"ov -config", 2, kSelected},
                          {"ov -config -ipcport :1", 2, kSelected, Rest(" :1")},
                          {"ov -config -5", 2, kSelected}});
}

TEST(VirtualPlatform, SplitsAnAddressAtItsFirstColonAndReadsADecimalPortOf32Bits) {
  expect_readings(kRead, {{"ov -ipcport :7000", 0, kSelected + " simHost=localhost simPort=7000"},
                          {"ov -ipcport host1:", 0, kSelected + " simHost=host1"},
                          {"ov -ipcport host1:010", 0, kSelected + " simHost=host1 simPort=10"},
                          {"ov -ipcport -1:2", 0, kSelected + " simHost=-1 simPort=2"},
                          {"ov -ipcport a:-1:c", 0, kSelected + " simHost=a simPort=4294967295"}});
}

TEST(VirtualPlatform, TakesTheStandardPortAndKeepsTheHostWithoutAColon) {
  expect_readings(
      kRead,
      {{"ov -ipcport host1", 0, kSelected + " simPort=2340"}, {"ov -ipcport 7000", 0, kSelected + " simPort=2340"}},
      [](SelectedEngine& e) {
        e.processor.simHost = "older";
        e.processor.simPort = 99;
      });
}

TEST(VirtualPlatform, NeedsAPlainWordAsTheAddress) {
  expect_readings(kRead, {{"ov -ipcport", 2, kSelected},
                          {"ov -ipcport \r\n", 2, kSelected},
                          {"ov -ipcport -h:1 -config", 2, kSelected, Rest(" -config")}});
}

TEST(VirtualPlatform, RefusesAValueInPlaceOfAnOptionWithoutAText) {
  expect_readings(kRead, {{"ov -ipcport :1 stray", 2, kSelected + " simHost=localhost simPort=1"},
                          {"ov -config cycle_approximate x", 2, kSelected + " vpConfigured=1 vpCycleApproximate=1"}});
}

TEST(VirtualPlatform, NamesAnUnknownOptionAsItWasTypedAndKnowsThoseOfNoOtherConnection) {
  for (const std::string option :
       {"-Foo", "-debugdevice", "-pfsl", "-quiet", "-noattach", "-writeonly", "-cable", "-comm", "-port", "-baud",
        "-timeout", "-configdevice", "-sim", "-bscan", "-uart", "-icf", "-memsize"}) {
    expect_reading(kRead, {"ov " + option + " 1", 2, kSelected,
                           Error("UNKNOWN virtual platform Option '" + option + "'"), Rest(" 1")});
  }
  expect_reading(kRead, {"ov -ipcport :1 -icf a", 2, kSelected + " simHost=localhost simPort=1",
                         Error("UNKNOWN virtual platform Option '-icf'"), Rest(" a")});
}

// --- Writing ---

TEST(VirtualPlatform, ReplacesTheTextByItsOwn) {
  struct Row {
    unsigned int configured;
    unsigned int cycleApproximate;
    std::string host;
    unsigned int port;
    std::string text;
  };
  for (const Row& row : {Row{0, 0, "", 0, "vpconnect ov"},
                         {0, 1, "", 2340, "vpconnect ov"},
                         {1, 1, "", 0, "vpconnect ov -config cycle_approximate"},
                         {1, 1, "host1", 2340, "vpconnect ov -config cycle_approximate"},
                         {1, 0, "host1", 2340, "vpconnect ov -config"},
                         {5, 7, "", 0, "vpconnect ov -config cycle_approximate"},
                         {0, 0, "host1", 2340, "vpconnect ov -ipcporthost12340"},
                         {0, 1, "host1", 0, "vpconnect ov -ipcporthost10"},
                         {0, 0, "h", 0xFFFFFFFF, "vpconnect ov -ipcporth-1"}}) {
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
  for (const unsigned int family : {1U, 2U, 3U, 0xFFFFFFFFU}) {
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

}  // namespace
}  // namespace SdkDebugDialog
