#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "options/QvtOption_Parser.h"
#include "tests/options/reading.h"
#include "tests/support/FakeHardware.h"

namespace SdkDebugDialog {
namespace {

constexpr Reader kRead = QvtOption_Parser::parse_ppcoptions;

// Attaches a hardware description in which the processor is a ppc440 that admits some connections.
class PowerPcTarget : public testing::Test {
 protected:
  auto admitting(std::uint32_t connections) {
    return [this, connections](SelectedEngine& e) {
      e.imp.hwManager = &m_hardware;
      e.processor.procFamily = 1;
      e.processor.procVariant = 2;
      e.processor.allowedConnections = connections;
    };
  }

 private:
  FakeHardware m_hardware;
};

TEST_F(PowerPcTarget, ReadsItsConnectionsInAnyCase) {
  expect_readings(kRead, {{"hw", 0, "procFamily=1 procVariant=6 allowedConnections=3"},
                          {" HW\r\n", 0, "procFamily=1 procVariant=6 allowedConnections=3"},
                          {"sim", 0, "procFamily=1 procVariant=6 connectionType=1"},
                          {"SiM", 0, "procFamily=1 procVariant=6 connectionType=1"}});
}

TEST_F(PowerPcTarget, IsReadInCapitalsFromACommand) {
  SelectedEngine e;
  EXPECT_EQ(QvtOption_Parser::ReadQvtCommand("CONNECT PPC HW", e.imp), 0);
  EXPECT_EQ(changes(e), "procFamily=1 procVariant=6 allowedConnections=3");
}

TEST_F(PowerPcTarget, HandsTheRestToTheReaderOfTheConnection) {
  expect_readings(kRead,
                  {{"hw -debugdevice deviceNr 2", 0, "procFamily=1 procVariant=6 allowedConnections=3 debugDevice=2"},
                   {"hw -quiet -bscan USER1", 0, "procFamily=1 procVariant=6 allowedConnections=3 bscanPort=2"},
                   {"hw -debugdevice proctype ppc405", 0, "procFamily=1 procVariant=1 allowedConnections=3"},
                   {"sim -icf a.cfg", 0, "procFamily=1 procVariant=6 connectionType=1 simConfigFile=a.cfg"},
                   {"sim -quiet", 2, "procFamily=1 procVariant=6", "UNKNOWN  PowerPC Sim Option '-quiet'"}});
}

TEST_F(PowerPcTarget, RefusesAnyOtherWordWithoutAText) {
  expect_readings(kRead, {{"", 2},
                          {" \r\n", 2},
                          {"stub", 2},
                          {"odm -quiet", 2, "", {}, " -quiet"},
                          {"-sim", 2},
                          {"-hw", 2},
                          {"hws", 2},
                          {"h", 2},
                          {"-5", 2}});
}

TEST_F(PowerPcTarget, WithHardwareTakesOnlyWhatTheProcessorAdmits) {
  const std::string hardwareOnly = "procFamily=1 procVariant=2 allowedConnections=2";
  expect_readings(kRead,
                  {{"sim", 2, hardwareOnly},
                   {"sim -icf a.cfg", 2, hardwareOnly, {}, " -icf a.cfg"},
                   {"hw", 0, hardwareOnly},
                   {"hw -foo", 2, hardwareOnly, "UNKNOWN Option ''"}},
                  admitting(2));
  const std::string simulatorOnly = "procFamily=1 procVariant=2";  // which is what a fresh record admits
  expect_readings(kRead,
                  {{"hw", 2, simulatorOnly},
                   {"hw -quiet", 2, simulatorOnly, {}, " -quiet"},
                   {"sim", 0, simulatorOnly + " connectionType=1"}},
                  admitting(1));
  const std::string neither = "procFamily=1 procVariant=2 allowedConnections=252";
  expect_readings(kRead, {{"hw", 2, neither}, {"sim", 2, neither}}, admitting(252));
}

TEST_F(PowerPcTarget, WithoutHardwareAFailedReadLeavesTheProcessorKindAndNotTheConnection) {
  const auto simulated = [](SelectedEngine& e) { e.processor.connectionType = 4; };
  expect_readings(kRead,
                  {{"hw -foo", 2, "procFamily=1 procVariant=6 connectionType=4", "UNKNOWN Option ''"},
                   {"hw stray", 2, "procFamily=1 procVariant=6 connectionType=4"},
                   {"sim -foo", 2, "procFamily=1 procVariant=6 connectionType=4", "UNKNOWN  PowerPC Sim Option '-foo'"},
                   {"sim stray", 2, "procFamily=1 procVariant=6 connectionType=4"}},
                  simulated);
}

TEST_F(PowerPcTarget, WithoutHardwareAddsTheConnectionToWhatIsAdmitted) {
  const auto admitsVirtualPlatform = [](SelectedEngine& e) { e.processor.allowedConnections = 8; };
  expect_readings(kRead,
                  {{"hw", 0, "procFamily=1 procVariant=6 allowedConnections=10"},
                   {"sim", 0, "procFamily=1 procVariant=6 allowedConnections=9 connectionType=1"}},
                  admitsVirtualPlatform);
}

// --- Writing ---

struct Written {
  int result;
  std::string text;
  std::string error;
};

Written write(SelectedEngine& e) {
  std::string out = "connect";
  const int result = QvtOption_Parser::write_ppcoptions(out, e.imp);
  return {result, out, e.error()};
}

TEST_F(PowerPcTarget, WritesTheSimulatorWithItsOptions) {
  SelectedEngine e;
  e.processor.connectionType = 1;
  e.processor.simHost = "host1";
  e.processor.simPort = 6470;
  e.processor.debugDevice = 2;
  const Written written = write(e);
  EXPECT_EQ(written.result, 0);
  EXPECT_EQ(written.text, "connect ppc sim -ipcport host1:6470");
}

TEST_F(PowerPcTarget, WritesTheHardwareWithChainAndDebugDevice) {
  SelectedEngine e;
  e.processor.procFamily = 1;
  e.processor.fpuType = 2;
  e.processor.debugDevice = 2;
  e.imp.cable->CableOptionInit(Engine::ZARVEK_PLATFORMUSB);
  const Written written = write(e);
  EXPECT_EQ(written.result, 0);
  EXPECT_EQ(written.text,
            "connect ppc hw -cable type zarvek_platformusb port USB21 frequency 6000000 -debugdevice deviceNr 2 cpunr "
            "1 fpuType dp");
}

TEST_F(PowerPcTarget, StopsWritingAtACableThatCannotBeWritten) {
  SelectedEngine e;
  e.imp.cable->CableOptionInit(Engine::ZARVEK_TCF);
  e.processor.debugDevice = 2;
  const Written written = write(e);
  EXPECT_EQ(written.result, 2);
  EXPECT_EQ(written.text, "connect ppc hw -cable");
  EXPECT_EQ(written.error, "Invalid Cable Type");
}

TEST_F(PowerPcTarget, RefusesToWriteAStubAndEveryOtherConnection) {
  for (const std::uint32_t connection : {4U, 0U, 3U, 8U, 16U, 132U, 512U, 0xFFFFFFFFU}) {
    SCOPED_TRACE(connection);
    SelectedEngine e;
    e.processor.connectionType = connection;
    const Written written = write(e);
    EXPECT_EQ(written.result, 2);
    EXPECT_EQ(written.text, "connect ppc");
    EXPECT_EQ(written.error, "Invalid Connect Type for PowerPC Target");
  }
}

}  // namespace
}  // namespace SdkDebugDialog
