#include <gtest/gtest.h>

#include <string>

#include "tests/options/reading.h"
#include "tests/options/writing.h"
#include "tests/support/FakeHardware.h"
#include "tests/support/GlobalLocale.h"

namespace SdkDebugDialog {
namespace {

const Reader kRead = QvtOption_Parser::parse_ppcoptions;

// --- Reading ---

TEST(PowerPcTarget, ReadsItsConnectionsInAnyCase) {
  const GlobalLocale classic;
  expect_readings(kRead,
                  {{"hw", 0, "procFamily=1 procVariant=6 allowedConnections=10 connectionType=2"},
                   {" HW\r\n", 0, "procFamily=1 procVariant=6 allowedConnections=10 connectionType=2"},
                   {"sim", 0, "procFamily=1 procVariant=6 allowedConnections=9 connectionType=1"},
                   {"SiM", 0, "procFamily=1 procVariant=6 allowedConnections=9 connectionType=1"}},
                  [](SelectedEngine& e) {
                    e.processor.allowedConnections = 8;
                    e.processor.connectionType = 8;
                  });
}

TEST(PowerPcTarget, HandsTheRestToTheReaderOfTheConnection) {
  expect_readings(kRead,
                  {{"hw -debugdevice deviceNr 2", 0, "procFamily=1 procVariant=6 allowedConnections=3 debugDevice=2"},
                   {"hw -quiet -bscan USER1", 0, "procFamily=1 procVariant=6 allowedConnections=3 bscanPort=2"},
                   {"hw -debugdevice proctype ppc405", 0, "procFamily=1 procVariant=1 allowedConnections=3"},
                   {"sim -icf a.cfg", 0, "procFamily=1 procVariant=6 connectionType=1 simConfigFile=a.cfg"},
                   {"sim -quiet", 2, "procFamily=1 procVariant=6", Error("UNKNOWN  PowerPC Sim Option '-quiet'")}});
}

TEST(PowerPcTarget, RefusesAnyOtherWordWithoutAText) {
  expect_readings(kRead, {{"", 2},
                          {" \r\n", 2},
                          {"stub", 2},
                          {"odm -quiet", 2, Rest(" -quiet")},
                          {"-sim", 2},
                          {"-hw", 2},
                          {"hws", 2},
                          {"h", 2},
                          {"-5", 2}});
}

TEST(PowerPcTarget, WithHardwareTakesOnlyWhatTheProcessorAdmitsAndKeepsItsKind) {
  FakeHardware hardware;
  const auto admitting = [&hardware](unsigned int connections) {
    return [&hardware, connections](SelectedEngine& e) {
      e.imp.hwManager = &hardware;
      e.processor.procFamily = 1;
      e.processor.procVariant = 2;
      e.processor.allowedConnections = connections;
      e.processor.connectionType = 8;
    };
  };
  expect_readings(kRead,
                  {{"sim", 2},
                   {"sim -icf a.cfg", 2, Rest(" -icf a.cfg")},
                   {"hw", 0, "connectionType=2"},
                   {"hw -foo", 2, Error("UNKNOWN Option ''")}},
                  admitting(2));
  expect_readings(kRead, {{"hw", 2}, {"hw -quiet", 2, Rest(" -quiet")}, {"sim", 0, "connectionType=1"}}, admitting(1));
  expect_readings(kRead, {{"hw", 2}, {"sim", 2}}, admitting(252));
}

TEST(PowerPcTarget, WithoutHardwareAFailedReadLeavesTheProcessorKindAndNotTheConnection) {
  expect_readings(kRead,
                  {{"hw -foo", 2, "procFamily=1 procVariant=6", Error("UNKNOWN Option ''")},
                   {"hw stray", 2, "procFamily=1 procVariant=6"},
                   {"sim -foo", 2, "procFamily=1 procVariant=6", Error("UNKNOWN  PowerPC Sim Option '-foo'")},
                   {"sim stray", 2, "procFamily=1 procVariant=6"}},
                  [](SelectedEngine& e) { e.processor.connectionType = 4; });
}

// --- Writing ---

TEST(PowerPcTarget, WritesTheSimulatorWithItsOptionsAndTheHardwareWithChainAndDebugDevice) {
  expect_writings(QvtOption_Parser::write_ppcoptions,
                  {{" ppc sim -ipcport host1:6470",
                    [](SelectedEngine& e) {
                      e.processor.connectionType = 1;
                      e.processor.simHost = "host1";
                      e.processor.simPort = 6470;
                      e.processor.debugDevice = 2;
                    }},
                   {" ppc hw -cable type zarvek_platformusb port USB21 frequency 6000000 -debugdevice deviceNr 2 "
                    "cpunr 1 fpuType dp",
                    [](SelectedEngine& e) {
                      e.processor.procFamily = 1;
                      e.processor.fpuType = 2;
                      e.processor.debugDevice = 2;
                      e.engine.SetCableType(Engine::ZARVEK_PLATFORMUSB);
                    }}});
}

TEST(PowerPcTarget, StopsWritingAtACableThatCannotBeWritten) {
  expect_writing(QvtOption_Parser::write_ppcoptions, {" ppc hw -cable",
                                                      [](SelectedEngine& e) {
                                                        e.engine.SetCableType(Engine::ZARVEK_TCF);
                                                        e.processor.debugDevice = 2;
                                                      },
                                                      2, "Invalid Cable Type"});
}

TEST(PowerPcTarget, RefusesToWriteAStubAndEveryOtherConnection) {
  for (const unsigned int connection : {4U, 0U, 3U, 8U, 16U, 132U, 512U, 0xFFFFFFFFU}) {
    SCOPED_TRACE(connection);
    expect_writing(QvtOption_Parser::write_ppcoptions,
                   {" ppc", [connection](SelectedEngine& e) { e.processor.connectionType = connection; }, 2,
                    "Invalid Connect Type for PowerPC Target"});
  }
}

}  // namespace
}  // namespace SdkDebugDialog
