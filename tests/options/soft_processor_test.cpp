// The soft processor ("ov") and its "-pfsl" option.

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "tests/options/reading.h"
#include "tests/options/writing.h"
#include "tests/support/FakeHardware.h"
#include "tests/support/GlobalLocale.h"

namespace SdkDebugDialog {
namespace {

// --- Reading: which connection ---

const Reader kRead = QvtOption_Parser::parse_ovoptions;

TEST(SoftProcessorReading, TakesEachConnectionInAnyCaseAndLearnsTheProcessorWhereNoHardwareIsKnown) {
  const GlobalLocale classic;
  expect_readings(kRead,
                  {{"sim", 0, "procFamily=0 procVariant=0 allowedConnections=129 connectionType=1"},
                   {"SIM", 0, "procFamily=0 procVariant=0 allowedConnections=129 connectionType=1"},
                   {"Stub", 0, "procFamily=0 procVariant=0 allowedConnections=132 connectionType=4"},
                   {"Odm", 0, "procFamily=0 procVariant=0 allowedConnections=130 connectionType=2"}},
                  [](SelectedEngine& e) {
                    e.processor.procFamily = 2;
                    e.processor.procVariant = 5;
                    e.processor.allowedConnections = 0x80;
                    e.processor.connectionType = 0;
                  });
}

TEST(SoftProcessorReading, TakesFromTheHardwareWhichConnectionsAreAdmittedAndKeepsTheKind) {
  FakeHardware hw;
  const auto admitting = [&hw](unsigned int connections) {
    return [&hw, connections](SelectedEngine& e) {
      e.imp.hwManager = &hw;
      e.processor.procFamily = 1;
      e.processor.procVariant = 2;
      e.processor.allowedConnections = connections;
      e.processor.connectionType = 0;
    };
  };
  expect_readings(kRead, {{"sim", 0, "connectionType=1"}, {"stub", 2}, {"odm", 2}}, admitting(1));
  expect_readings(kRead, {{"sim", 2}, {"stub", 2}, {"odm", 0, "connectionType=2"}}, admitting(2));
  expect_readings(kRead, {{"sim", 2}, {"stub", 0, "connectionType=4"}, {"odm", 2}}, admitting(4));
  expect_readings(kRead, {{"stub -comm serial", 2, Rest(" -comm serial")}}, admitting(248));
  EXPECT_TRUE(hw.questions.empty());
}

TEST(SoftProcessorReading, RefusesAnyOtherWordAndTheEndOfTheTextWithoutAText) {
  expect_readings(
      kRead,
      {{"", 2}, {" \t\r\n", 2}, {"hw", 2}, {"simulator -quiet", 2, Rest(" -quiet")}, {"si", 2}, {"-sim", 2}, {"2", 2}});
}

// --- Reading: the simulator ---

TEST(SoftProcessorReading, TakesAMemorySizeCutTo32Bits) {
  const GlobalLocale classic;
  expect_readings(kRead, {{"sim -memsize 0x100", 0, "connectionType=1 memSize=256"},
                          {"sim -MemSize 0x123456789 x", 0, "connectionType=1 memSize=591751049", Rest(" x")},
                          {"sim -MEMSIZE -99999999999999999999", 0, "connectionType=1 memSize=4294967295"},
                          {"sim -memsize -cable", 0, "connectionType=1 memSize=0"}});
}

TEST(SoftProcessorReading, SelectsTheSimulatorBeforeItRefusesAnotherOptionOrAMissingSize) {
  expect_readings(kRead,
                  {{"sim -memsize", 2, "connectionType=1"},
                   {"sim -cable type zarvek_tcf", 2, "connectionType=1", Rest(" type zarvek_tcf")},
                   {"sim -quiet", 2, "connectionType=1"},
                   {"sim -memsizes 5", 2, "connectionType=1", Rest(" 5")}},
                  [](SelectedEngine& e) { e.processor.allowedConnections = 0; });
}

TEST(SoftProcessorReading, PassesOverAPlainWordAfterTheSimulatorAndLeavesTheRest) {
  expect_readings(kRead, {{"sim memsize -memsize 5", 0, "connectionType=1", Rest(" -memsize 5")},
                          {"sim 5 6", 0, "connectionType=1", Rest(" 6")},
                          {"sim -5", 0, "connectionType=1"},
                          {"sim -memsize 5 -memsize 6", 0, "connectionType=1 memSize=5", Rest(" -memsize 6")}});
}

// --- Reading: stub and debug module ---

TEST(SoftProcessorReading, HandsTheRestToTheGeneralOptions) {
  expect_readings(kRead, {{"odm -quiet -cable port p -debugdevice deviceNr 2 cpunr 3 -bscan USER1", 0,
                           "allowedConnections=3 cpuNr=3 debugDevice=2 bscanPort=2 cable.port=p"},
                          {"stub -comm serial -port COM1 -baud 9600 -timeout 5", 0,
                           "allowedConnections=5 connectionType=4 stubType=1 stubSerialPort=COM1 stubBaudRate=9600 "
                           "stubTimeout=5"}});
}

TEST(SoftProcessorReading, LeavesProcessorAndConnectionAloneWhenAGeneralOptionFails) {
  expect_readings(kRead,
                  {{"stub -foo", 2, Error("UNKNOWN Option ''")},
                   {"odm -quiet -foo x", 2, Error("UNKNOWN Option '-foo'"), Rest(" x")},
                   {"odm word", 2},
                   {"stub -cable port p type usb", 2, "cable.port=p"}},
                  [](SelectedEngine& e) {
                    e.processor.procFamily = 1;
                    e.processor.procVariant = 6;
                    e.processor.connectionType = 0;
                  });
}

TEST(SoftProcessorReading, ThrowsOnALoneDashAndKeepsWhatCameBeforeIt) {
  expect_readings(kRead, {{"- x", kThrows, Rest(" x")},
                          {"sim - x", kThrows, "connectionType=1", Rest(" x")},
                          {"sim -memsize - x", kThrows, "connectionType=1", Rest(" x")},
                          {"stub -comm serial - x", kThrows, "stubType=1", Rest(" x")},
                          {"odm -configdevice devicenr 1 -quiet - x", kThrows, "device{devicenr=1}", Rest(" x")}});
}

// --- Writing ---

// A processor with settings in every group.
void fill(SelectedEngine& e) {
  e.engine.SetCableType(Engine::ZARVEK_PLATFORMUSB);
  e.processor.bscanPort = 2;
  e.imp.jtagChain.push_back(new JtagOption{.partname = "p", .idcode = 0xAB, .irlength = 6, .devicenr = 1});
  e.processor.debugDevice = 2;
  e.processor.memSize = 512;
  e.processor.stubSerialPort = "COM1";
  e.processor.stubBaudRate = 9600;
  e.processor.stubTimeout = 5;
  e.processor.uartEnabled = 1;
}

Prepare connected(std::uint32_t connection, std::uint32_t stub = 0, const Prepare& more = {}) {
  return [=](SelectedEngine& e) {
    fill(e);
    e.processor.connectionType = connection;
    e.processor.stubType = stub;
    if (more) more(e);
  };
}

TEST(SoftProcessorWriting, WritesForEachConnectionItsGroupsInTheirOrder) {
  const std::string chain =
      " -cable type zarvek_platformusb port USB21 frequency 6000000 -bscan USER1"
      " -configdevice devicenr 1 partname p irlength 6 idcode 0xab";
  expect_writings(QvtOption_Parser::write_ovoptions,
                  {{" ov sim", connected(1)},
                   {" ov sim", connected(1, 1)},
                   {" ov odm" + chain + " -debugdevice deviceNr 2 cpunr 1", connected(2)},
                   {" ov odm" + chain + " -debugdevice deviceNr 2 cpunr 1", connected(2, 1)},
                   {" ov stub -comm jtag" + chain + " -debugdevice deviceNr 2", connected(4)},
                   {" ov stub -comm serial -port COM1  -baud  9600 -timeout 5", connected(4, 1)},
                   {" ov stub -comm serial -port COM1  -baud  9600 -timeout 5", connected(4, 2)}});
}

TEST(SoftProcessorWriting, RefusesEveryOtherConnection) {
  for (const std::uint32_t connection : {0U, 3U, 5U, 6U, 8U, 16U, 132U, 4294967295U}) {
    SCOPED_TRACE(connection);
    expect_writing(QvtOption_Parser::write_ovoptions,
                   {" ov", connected(connection), 2, "Invalid Connect Type for Ovrin Target"});
  }
}

TEST(SoftProcessorWriting, StopsAtACableThatCannotBeWrittenWhereTheConnectionHasOne) {
  const auto tcf = [](SelectedEngine& e) { e.engine.SetCableType(Engine::ZARVEK_TCF); };
  expect_writings(QvtOption_Parser::write_ovoptions,
                  {{" ov odm -cable", connected(2, 0, tcf), 2, "Invalid Cable Type"},
                   {" ov stub -comm jtag -cable", connected(4, 0, tcf), 2, "Invalid Cable Type"},
                   {" ov sim", connected(1, 0, tcf)},
                   {" ov stub -comm serial -port COM1  -baud  9600 -timeout 5", connected(4, 1, tcf)}});
}

// --- "-pfsl" ---

const Reader kReadPfsl = QvtOption_Parser::parse_ovfsloptions;

TEST(FastLinkReading, AcceptsPortAndTypeAndLeavesNoTrace) {
  expect_readings(kReadPfsl, {{"port 1 type ms", 3},
                              {"PORT x Type MS", 3},
                              {"TYPE m", 3},
                              {"type S type M port %n port -1", 3},
                              {"", 3},
                              {" \r\n", 3}});
}

TEST(FastLinkReading, IsNeverWritten) { expect_writing(QvtOption_Parser::write_ovfsloptions, {""}); }

TEST(FastLinkReading, RefusesOtherTypesByTheirValue) {
  expect_readings(kReadPfsl,
                  {{"port 1 type x port 2", 2, Error("UNKNOWN Parameter 'x' for  option 'type'"), Rest(" port 2")},
                   {"TYPE Sm", 2, Error("UNKNOWN Parameter 'Sm' for  option 'type'")},
                   {"type %s", 2, Error("UNKNOWN Parameter '%s' for  option 'type'")},
                   {"type " + std::string(5000, 'x'), 2, cut_error("UNKNOWN Parameter '" + std::string(5000, 'x'))}});
}

TEST(FastLinkReading, RefusesAnUnknownKeywordByItsName) {
  expect_readings(kReadPfsl,
                  {{"Ports 1 type m", 2, Error("UNKNOWN Parameter 'Ports' for  option '-pfsl'"), Rest(" type m")},
                   {"%n 1", 2, Error("UNKNOWN Parameter '%n' for  option '-pfsl'")},
                   {std::string(5000, 'k') + " 1", 2, cut_error("UNKNOWN Parameter '" + std::string(5000, 'k'))}});
}

TEST(FastLinkReading, EndsWithWhatEndedItsPairs) {
  expect_readings(kReadPfsl, {{"port 1 -Quiet x", 1, Rest(" x"), LastOption("-Quiet")},
                              {"port", 2},
                              {"type -quiet x", 2, Rest(" x")},
                              {"port 1 - x", kThrows, Rest(" x")}});
}

}  // namespace
}  // namespace SdkDebugDialog
