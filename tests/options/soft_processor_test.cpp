#include <gtest/gtest.h>

#include <cstdint>
#include <stdexcept>
#include <string>

#include "options/QvtOption_Parser.h"
#include "tests/options/reading.h"
#include "tests/support/FakeHardware.h"
#include "tests/support/GlobalLocale.h"
#include "tests/support/SelectedEngine.h"

namespace {

using SdkDebugDialog::Engine;
using SdkDebugDialog::JtagOption;
using SdkDebugDialog::newoption_token;
using SdkDebugDialog::QvtOption_Parser;

constexpr Reader kReadOv = &QvtOption_Parser::parse_ovoptions;
constexpr Reader kReadPfsl = &QvtOption_Parser::parse_ovfsloptions;

// --- Reading: which connection ---

TEST(SoftProcessorReading, TakesEachConnectionInAnyCaseWhereNoHardwareIsKnown) {
  const GlobalLocale classic;
  expect_readings(kReadOv, {
                               {.text = "sim", .changes = "connectionType=1"},
                               {.text = "SIM", .changes = "connectionType=1"},
                               {.text = "Stub", .changes = "allowedConnections=5 connectionType=4"},
                               {.text = "STUB", .changes = "allowedConnections=5 connectionType=4"},
                               {.text = "odm", .changes = "allowedConnections=3"},
                               {.text = "Odm", .changes = "allowedConnections=3"},
                           });
}

TEST(SoftProcessorReading, MakesAnyProcessorASoftOneWhereNoHardwareIsKnown) {
  for (const char* const connection : {"sim", "stub", "odm"}) {
    SCOPED_TRACE(connection);
    SelectedEngine e;
    e.processor.procFamily = 2;
    e.processor.procVariant = 5;
    std::string text = connection;
    EXPECT_EQ(QvtOption_Parser::parse_ovoptions(text, e.imp), 0);
    EXPECT_EQ(e.processor.procFamily, 0U);
    EXPECT_EQ(e.processor.procVariant, 0U);
  }
}

TEST(SoftProcessorReading, AddsTheConnectionToThoseThatWereAdmitted) {
  struct {
    const char* connection;
    std::uint32_t allowed;
  } const rows[] = {{"sim", 0x81}, {"stub", 0x84}, {"odm", 0x82}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.connection);
    SelectedEngine e;
    e.processor.allowedConnections = 0x80;
    std::string text = row.connection;
    EXPECT_EQ(QvtOption_Parser::parse_ovoptions(text, e.imp), 0);
    EXPECT_EQ(e.processor.allowedConnections, row.allowed);
  }
}

TEST(SoftProcessorReading, TakesFromTheHardwareWhichConnectionsAreAdmitted) {
  FakeHardware hw;
  struct {
    std::uint32_t allowed;
    Reading reading;
  } const rows[] = {
      {1, {.text = "sim", .changes = "connectionType=1"}},
      {1, {.text = "stub", .result = 2}},
      {1, {.text = "odm", .result = 2}},
      {2, {.text = "sim", .result = 2, .changes = "allowedConnections=2"}},
      {2, {.text = "stub", .result = 2, .changes = "allowedConnections=2"}},
      {2, {.text = "odm", .changes = "allowedConnections=2"}},
      {4, {.text = "sim", .result = 2, .changes = "allowedConnections=4"}},
      {4, {.text = "stub", .changes = "allowedConnections=4 connectionType=4"}},
      {4, {.text = "odm", .result = 2, .changes = "allowedConnections=4"}},
      {248, {.text = "stub -comm serial", .result = 2, .changes = "allowedConnections=248", .rest = " -comm serial"}},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.allowed);
    expect_reading(kReadOv, row.reading, [&](SelectedEngine& e) {
      e.imp.hwManager = &hw;
      e.processor.allowedConnections = row.allowed;
    });
  }
}

TEST(SoftProcessorReading, LeavesTheKindOfAProcessorThatTheHardwareKnows) {
  FakeHardware hw;
  for (const char* const connection : {"sim", "stub", "odm"}) {
    SCOPED_TRACE(connection);
    SelectedEngine e;
    e.imp.hwManager = &hw;
    e.processor.allowedConnections = 7;
    e.processor.procFamily = 1;
    e.processor.procVariant = 2;
    std::string text = connection;
    EXPECT_EQ(QvtOption_Parser::parse_ovoptions(text, e.imp), 0);
    EXPECT_EQ(e.processor.procFamily, 1U);
    EXPECT_EQ(e.processor.procVariant, 2U);
    EXPECT_EQ(e.processor.allowedConnections, 7U);
  }
  EXPECT_TRUE(hw.questions.empty());
}

TEST(SoftProcessorReading, RefusesAnyOtherWordAndTheEndOfTheTextWithoutAText) {
  expect_readings(kReadOv, {
                               {.text = "", .result = 2},
                               {.text = " \t\r\n", .result = 2},
                               {.text = "hw", .result = 2},
                               {.text = "simulator -quiet", .result = 2, .rest = " -quiet"},
                               {.text = "si", .result = 2},
                               {.text = "-sim", .result = 2},
                               {.text = "2", .result = 2},
                           });
}

// --- Reading: the simulator ---

TEST(SoftProcessorReading, TakesAMemorySizeThatIsNeverWritten) {
  SelectedEngine e;
  std::string text = "sim -memsize 0x100";
  EXPECT_EQ(QvtOption_Parser::parse_ovoptions(text, e.imp), 0);
  EXPECT_EQ(e.processor.memSize, 256U);
  std::string out;
  EXPECT_EQ(QvtOption_Parser::write_ovoptions(out, e.imp), 0);
  EXPECT_EQ(out, " ov sim");
}

TEST(SoftProcessorReading, ConvertsTheMemorySizeWithAutomaticBaseAndCutsItTo32Bits) {
  struct {
    const char* value;
    std::uint32_t size;
  } const rows[] = {{"64", 64},          {"010", 8},        {"big", 0},    {"12M", 12},
                    {"-1", 4294967295U}, {"4294967297", 1}, {"-cable", 0}, {"99999999999999999999", 4294967295U}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.value);
    SelectedEngine e;
    std::string text = std::string("sim -MemSize ") + row.value + " rest";
    EXPECT_EQ(QvtOption_Parser::parse_ovoptions(text, e.imp), 0);
    EXPECT_EQ(e.processor.memSize, row.size);
    EXPECT_EQ(text, " rest");
  }
}

TEST(SoftProcessorReading, SelectsTheSimulatorBeforeAMemorySizeWithoutValueFails) {
  expect_reading(kReadOv, {.text = "sim -memsize", .result = 2, .changes = "allowedConnections=0 connectionType=1"},
                 [](SelectedEngine& e) { e.processor.allowedConnections = 0; });
}

TEST(SoftProcessorReading, TakesNoOtherOptionAfterTheSimulator) {
  expect_readings(
      kReadOv,
      {
          {.text = "sim -cable type zarvek_tcf",
           .result = 2,
           .changes = "allowedConnections=0 connectionType=1",
           .rest = " type zarvek_tcf"},
          {.text = "sim -quiet", .result = 2, .changes = "allowedConnections=0 connectionType=1"},
          {.text = "sim -memsizes 5", .result = 2, .changes = "allowedConnections=0 connectionType=1", .rest = " 5"},
      },
      [](SelectedEngine& e) { e.processor.allowedConnections = 0; });
}

TEST(SoftProcessorReading, PassesOverAPlainWordAfterTheSimulatorAndLeavesTheRest) {
  expect_readings(
      kReadOv,
      {
          {.text = "sim memsize -memsize 5", .changes = "connectionType=1", .rest = " -memsize 5"},
          {.text = "sim 5 6", .changes = "connectionType=1", .rest = " 6"},
          {.text = "sim -5", .changes = "connectionType=1"},
          {.text = "sim -memsize 5 -memsize 6", .changes = "connectionType=1 memSize=5", .rest = " -memsize 6"},
      });
}

// --- Reading: stub and debug module ---

TEST(SoftProcessorReading, HandsTheRestToTheGeneralOptions) {
  expect_readings(kReadOv, {
                               {.text = "odm -quiet -cable port p -debugdevice deviceNr 2 cpunr 3 -bscan USER1",
                                .changes = "allowedConnections=3 cpuNr=3 debugDevice=2 bscanPort=2 cable.port=p"},
                               {.text = "stub -comm serial -port COM1 -baud 9600 -timeout 5",
                                .changes = "allowedConnections=5 connectionType=4 stubType=1 stubSerialPort=COM1 "
                                           "stubBaudRate=9600 stubTimeout=5"},
                           });
}

TEST(SoftProcessorReading, LeavesTheConnectionAloneWhenAGeneralOptionFails) {
  expect_readings(kReadOv,
                  {
                      {.text = "stub -foo",
                       .result = 2,
                       .changes = "procFamily=1 procVariant=6 connectionType=0",
                       .error = "UNKNOWN Option ''"},
                      {.text = "odm -quiet -foo x",
                       .result = 2,
                       .changes = "procFamily=1 procVariant=6 connectionType=0",
                       .error = "UNKNOWN Option '-foo'",
                       .rest = " x"},
                      {.text = "odm word", .result = 2, .changes = "procFamily=1 procVariant=6 connectionType=0"},
                      {.text = "stub -cable port p type usb",
                       .result = 2,
                       .changes = "procFamily=1 procVariant=6 connectionType=0 cable.port=p"},
                  },
                  [](SelectedEngine& e) {
                    e.processor.procFamily = 1;
                    e.processor.procVariant = 6;
                    e.processor.connectionType = 0;
                  });
}

TEST(SoftProcessorReading, ThrowsOnALoneDashAndKeepsWhatCameBeforeIt) {
  struct {
    const char* text;
    const char* changes;
  } const rows[] = {
      {"- x", ""},
      {"sim - x", "connectionType=1"},
      {"sim -memsize - x", "connectionType=1"},
      {"stub -comm serial - x", "stubType=1"},
      {"odm -configdevice devicenr 1 -quiet - x", "device=1/UNKNOWN/0/0"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.text);
    SelectedEngine e;
    std::string text = row.text;
    EXPECT_THROW(QvtOption_Parser::parse_ovoptions(text, e.imp), std::out_of_range);
    EXPECT_EQ(text, " x");
    EXPECT_EQ(changes(e), row.changes);
  }
}

// --- Writing ---

// A processor with something in every group.
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

TEST(SoftProcessorWriting, WritesForEachConnectionItsGroupsInTheirOrder) {
  struct {
    std::uint32_t connection;
    std::uint32_t stub;
    const char* written;
  } const rows[] = {
      {1, 0, "connect ov sim"},
      {1, 1, "connect ov sim"},
      {2, 0,
       "connect ov odm -cable type zarvek_platformusb port USB21 frequency 6000000 -bscan USER1"
       " -configdevice devicenr 1 partname p irlength 6 idcode 0xab -debugdevice deviceNr 2 cpunr 1"},
      {2, 1,
       "connect ov odm -cable type zarvek_platformusb port USB21 frequency 6000000 -bscan USER1"
       " -configdevice devicenr 1 partname p irlength 6 idcode 0xab -debugdevice deviceNr 2 cpunr 1"},
      {4, 0,
       "connect ov stub -comm jtag -cable type zarvek_platformusb port USB21 frequency 6000000 -bscan USER1"
       " -configdevice devicenr 1 partname p irlength 6 idcode 0xab -debugdevice deviceNr 2"},
      {4, 1, "connect ov stub -comm serial -port COM1  -baud  9600 -timeout 5"},
      {4, 2, "connect ov stub -comm serial -port COM1  -baud  9600 -timeout 5"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(std::to_string(row.connection) + " " + std::to_string(row.stub));
    SelectedEngine e;
    fill(e);
    e.processor.connectionType = row.connection;
    e.processor.stubType = row.stub;
    std::string out = "connect";
    EXPECT_EQ(QvtOption_Parser::write_ovoptions(out, e.imp), 0);
    EXPECT_EQ(out, row.written);
    EXPECT_EQ(e.error(), "");
  }
}

TEST(SoftProcessorWriting, WritesAFreshProcessorForEachConnection) {
  struct {
    std::uint32_t connection;
    const char* written;
  } const rows[] = {{1, " ov sim"}, {2, " ov odm -debugdevice cpunr 1"}, {4, " ov stub -comm jtag"}};
  for (const auto& row : rows) {
    SelectedEngine e;
    e.processor.connectionType = row.connection;
    std::string out;
    EXPECT_EQ(QvtOption_Parser::write_ovoptions(out, e.imp), 0);
    EXPECT_EQ(out, row.written);
  }
}

TEST(SoftProcessorWriting, RefusesEveryOtherConnection) {
  for (const std::uint32_t connection : {0U, 3U, 5U, 6U, 8U, 16U, 132U, 4294967295U}) {
    SCOPED_TRACE(connection);
    SelectedEngine e;
    fill(e);
    e.processor.connectionType = connection;
    std::string out = "connect";
    EXPECT_EQ(QvtOption_Parser::write_ovoptions(out, e.imp), 2);
    EXPECT_EQ(out, "connect ov");
    EXPECT_EQ(e.error(), "Invalid Connect Type for Ovrin Target");
  }
}

TEST(SoftProcessorWriting, StopsAtACableThatCannotBeWritten) {
  struct {
    std::uint32_t connection;
    const char* written;
  } const rows[] = {{2, " ov odm -cable"}, {4, " ov stub -comm jtag -cable"}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.connection);
    SelectedEngine e;
    fill(e);
    e.engine.SetCableType(Engine::ZARVEK_TCF);
    e.processor.connectionType = row.connection;
    std::string out;
    EXPECT_EQ(QvtOption_Parser::write_ovoptions(out, e.imp), 2);
    EXPECT_EQ(out, row.written);
    EXPECT_EQ(e.error(), "Invalid Cable Type");
  }
}

TEST(SoftProcessorWriting, NeedsNoCableThatCanBeWrittenForSimulatorAndSerialStub) {
  SelectedEngine e;
  fill(e);
  e.engine.SetCableType(Engine::ZARVEK_TCF);
  e.processor.connectionType = Engine::SIMULATOR;
  std::string out;
  EXPECT_EQ(QvtOption_Parser::write_ovoptions(out, e.imp), 0);
  EXPECT_EQ(out, " ov sim");
  e.processor.connectionType = Engine::STUB;
  e.processor.stubType = Engine::STUB_OVER_SERIAL;
  out.clear();
  EXPECT_EQ(QvtOption_Parser::write_ovoptions(out, e.imp), 0);
  EXPECT_EQ(out, " ov stub -comm serial -port COM1  -baud  9600 -timeout 5");
}

// --- "-pfsl" ---

TEST(FastLinkReading, AcceptsPortAndTypeAndLeavesNoTrace) {
  expect_readings(kReadPfsl, {
                                 {.text = "port 1 type ms", .result = 3},
                                 {.text = "PORT x Type MS", .result = 3},
                                 {.text = "TYPE m", .result = 3},
                                 {.text = "type S type M port %n port -1", .result = 3},
                                 {.text = "", .result = 3},
                                 {.text = " \r\n", .result = 3},
                             });
}

TEST(FastLinkReading, IsNeverWritten) {
  SelectedEngine e;
  std::string text = "odm -pfsl port 1 type ms";
  EXPECT_EQ(QvtOption_Parser::parse_ovoptions(text, e.imp), 0);
  std::string out = "x";
  EXPECT_EQ(QvtOption_Parser::write_ovfsloptions(out, e.imp), 0);
  EXPECT_EQ(out, "x");
  EXPECT_EQ(QvtOption_Parser::write_ovoptions(out, e.imp), 0);
  EXPECT_EQ(out, "x ov odm -debugdevice cpunr 1");
}

TEST(FastLinkReading, RefusesOtherTypesByTheirValue) {
  expect_readings(kReadPfsl, {
                                 {.text = "port 1 type x port 2",
                                  .result = 2,
                                  .error = "UNKNOWN Parameter 'x' for  option 'type'",
                                  .rest = " port 2"},
                                 {.text = "TYPE Sm", .result = 2, .error = "UNKNOWN Parameter 'Sm' for  option 'type'"},
                                 {.text = "type %s", .result = 2, .error = "UNKNOWN Parameter '%s' for  option 'type'"},
                                 {.text = "type " + std::string(5000, 'x'),
                                  .result = 2,
                                  .error = ("UNKNOWN Parameter '" + std::string(5000, 'x')).substr(0, 2047)},
                             });
}

TEST(FastLinkReading, RefusesAnUnknownKeywordByItsName) {
  expect_readings(kReadPfsl, {
                                 {.text = "Ports 1 type m",
                                  .result = 2,
                                  .error = "UNKNOWN Parameter 'Ports' for  option '-pfsl'",
                                  .rest = " type m"},
                                 {.text = "%n 1", .result = 2, .error = "UNKNOWN Parameter '%n' for  option '-pfsl'"},
                                 {.text = std::string(5000, 'k') + " 1",
                                  .result = 2,
                                  .error = ("UNKNOWN Parameter '" + std::string(5000, 'k')).substr(0, 2047)},
                             });
}

TEST(FastLinkReading, EndsWithWhatEndedItsPairs) {
  expect_readings(kReadPfsl, {
                                 {.text = "port 1 -Quiet x", .result = 1, .rest = " x"},
                                 {.text = "port", .result = 2},
                                 {.text = "type -quiet x", .result = 2, .rest = " x"},
                             });
  expect_reading(kReadPfsl, {.text = "type m -Quiet", .result = 1});
  EXPECT_EQ(newoption_token, "-Quiet");
}

TEST(FastLinkReading, ThrowsOnALoneDash) {
  SelectedEngine e;
  std::string text = "port 1 - x";
  EXPECT_THROW(QvtOption_Parser::parse_ovfsloptions(text, e.imp), std::out_of_range);
  EXPECT_EQ(text, " x");
}

}  // namespace
