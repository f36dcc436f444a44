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

using SdkDebugDialog::newoption_token;
using SdkDebugDialog::QvtOption_Parser;

// Reads the value of an option: 0, 2, or the kind of token found in place of a value.
struct StubReading {
  const char* option;
  std::string text;
  int result = 0;
  std::string changes = {};
  std::string error = "an older text";
  std::string rest = {};
};

void expect_stub_readings(const std::vector<StubReading>& expected) {
  for (const StubReading& reading : expected) {
    SCOPED_TRACE(std::string(reading.option) + " " + reading.text);
    SelectedEngine e;
    e.engine.SetErrorStr("an older text");
    std::string text = reading.text;
    EXPECT_EQ(QvtOption_Parser::parse_commoptions(text, reading.option, e.imp), reading.result);
    EXPECT_EQ(changes(e), reading.changes);
    EXPECT_EQ(e.error(), reading.error);
    EXPECT_EQ(text, reading.rest);
  }
}

std::string written(SelectedEngine& e) {
  std::string out;
  EXPECT_EQ(QvtOption_Parser::write_commoptions(out, e.imp), 0);
  return out;
}

// --- Reading ---

TEST(StubReading, TakesTheLinkInAnyCase) {
  const GlobalLocale classic;
  expect_stub_readings({
      {.option = "-comm", .text = "SERIAL", .changes = "stubType=1"},
      {.option = "-COMM", .text = "serial", .changes = "stubType=1"},
      {.option = "-Comm", .text = "Jtag"},  // the default
  });
  SelectedEngine e;
  e.processor.stubType = 1;
  std::string text = "JTAG";
  EXPECT_EQ(QvtOption_Parser::parse_commoptions(text, "-comm", e.imp), 0);
  EXPECT_EQ(e.processor.stubType, 0U);
}

TEST(StubReading, RefusesAnyOtherLinkWithoutAText) {
  expect_stub_readings({
      {.option = "-comm", .text = "usb", .result = 2},
      {.option = "-comm", .text = "seria -port x", .result = 2, .rest = " -port x"},
      {.option = "-comm", .text = "-1", .result = 2},
      {.option = "-comm", .text = "1", .result = 2},
  });
}

TEST(StubReading, ChangesNothingAtTheEndOfTheText) {
  for (const char* const option : {"-comm", "-port", "-baud", "-timeout", "-foo"}) {
    expect_stub_readings({
        {.option = option, .text = "", .result = 3},
        {.option = option, .text = " \t\r\n", .result = 3},
    });
  }
}

TEST(StubReading, ChangesNothingWhereAnOptionStandsInPlaceOfTheValueAndConsumesIt) {
  for (const char* const option : {"-comm", "-port", "-baud", "-timeout", "-foo"}) {
    expect_stub_readings({{.option = option, .text = " -Quiet serial", .result = 1, .rest = " serial"}});
    EXPECT_EQ(newoption_token, "-Quiet");
  }
}

TEST(StubReading, TakesAHexadecimalRate) {
  expect_stub_readings({{.option = "-baud", .text = "0x1C200", .changes = "stubBaudRate=115200"}});
}

TEST(StubReading, TakesPortsAsTheyAre) {
  expect_stub_readings({
      {.option = "-port", .text = "COM1", .changes = "stubSerialPort=COM1"},
      {.option = "-PORT", .text = "/dev/ttyUSB0", .changes = "stubSerialPort=/dev/ttyUSB0"},
      {.option = "-port", .text = "-3", .changes = "stubSerialPort=-3"},
      {.option = "-port", .text = "%s%n x", .changes = "stubSerialPort=%s%n", .rest = " x"},
      {.option = "-port", .text = std::string(5000, 'p'), .changes = "stubSerialPort=" + std::string(5000, 'p')},
  });
}

TEST(StubReading, ConvertsNumbersWithAutomaticBaseAndCutsThemTo32Bits) {
  struct {
    const char* value;
    std::int32_t number;
  } const rows[] = {{"9600", 9600},
                    {"0xFF", 255},
                    {"010", 8},
                    {"-1", -1},
                    {"4294967295", -1},
                    {"4294967296", 0},
                    {"5s", 5},
                    {"fast", 0},
                    {"0x123456789", 0x23456789},
                    {"99999999999999999999", -1},
                    {"+3", 3}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.value);
    SelectedEngine e;
    std::string text = row.value;
    EXPECT_EQ(QvtOption_Parser::parse_commoptions(text, "-Baud", e.imp), 0);
    EXPECT_EQ(e.processor.stubBaudRate, row.number);
    EXPECT_EQ(e.processor.stubTimeout, 20000);
    text = row.value;
    EXPECT_EQ(QvtOption_Parser::parse_commoptions(text, "-TimeOut", e.imp), 0);
    EXPECT_EQ(e.processor.stubTimeout, row.number);
  }
}

TEST(StubReading, NamesAnOptionOfAnotherGroupWhereTheTextSaysParameterAndItsValueWhereItSaysOption) {
  expect_stub_readings({
      {.option = "-Foo",
       .text = "Bar x",
       .result = 2,
       .error = "UNKNOWN Parameter '-Foo' for  option 'Bar'",
       .rest = " x"},
      {.option = "comm", .text = "serial", .result = 2, .error = "UNKNOWN Parameter 'comm' for  option 'serial'"},
      {.option = "", .text = "serial", .result = 2, .error = "UNKNOWN Parameter '' for  option 'serial'"},
      {.option = "-%s", .text = "%n", .result = 2, .error = "UNKNOWN Parameter '-%s' for  option '%n'"},
      {.option = "-foo",
       .text = std::string(5000, 'v'),
       .result = 2,
       .error = ("UNKNOWN Parameter '-foo' for  option '" + std::string(5000, 'v')).substr(0, 2047)},
  });
}

TEST(StubReading, ThrowsOnALoneDashAndChangesNothing) {
  SelectedEngine e;
  std::string text = "- serial";
  EXPECT_THROW(QvtOption_Parser::parse_commoptions(text, "-port", e.imp), std::out_of_range);
  EXPECT_EQ(text, " serial");
  EXPECT_EQ(changes(e), "");
}

// --- Writing ---

TEST(StubWriting, WritesWhatWasReadWithTwoBlanksOnBothSidesOfTheRatesOption) {
  SelectedEngine e;
  for (const auto& [option, value] : {std::pair{"-port", "COM1"}, {"-baud", "9600"}, {"-timeout", "5"}}) {
    std::string text = value;
    EXPECT_EQ(QvtOption_Parser::parse_commoptions(text, option, e.imp), 0);
  }
  EXPECT_EQ(written(e), " -port COM1  -baud  9600 -timeout 5");
}

TEST(StubWriting, WritesTheDefaultsOfAFreshProcessor) {
  SelectedEngine e;
  EXPECT_EQ(written(e), " -port /dev/ttyS0  -baud  0 -timeout 20000");
}

TEST(StubWriting, AppendsTheSameWhateverTheLink) {
  SelectedEngine e;
  e.processor.stubType = 1;
  std::string out = "before";
  EXPECT_EQ(QvtOption_Parser::write_commoptions(out, e.imp), 0);
  EXPECT_EQ(out, "before -port /dev/ttyS0  -baud  0 -timeout 20000");
}

TEST(StubWriting, WritesNumbersAsSigned) {
  SelectedEngine e;
  e.processor.stubBaudRate = -1;
  e.processor.stubTimeout = INT32_MIN;
  EXPECT_EQ(written(e), " -port /dev/ttyS0  -baud  -1 -timeout -2147483648");
}

TEST(StubWriting, WritesPortsWholeAndAsTheyAre) {
  for (const std::string& port : {std::string(), std::string("%s%n%d"), std::string(5000, 'p')}) {
    SelectedEngine e;
    e.processor.stubSerialPort = port;
    EXPECT_EQ(written(e), " -port " + port + "  -baud  0 -timeout 20000");
  }
}

// --- The debug communications channel ---

constexpr Reader kReadDcc = &QvtOption_Parser::parse_dccoptions;
const std::string kMarked = "procFamily=2 procVariant=4 allowedConnections=256";

TEST(DccTarget, DoesNotTakeARegister) {
  expect_reading(
      kReadDcc,
      {.text = "-bscan USER1", .result = 2, .changes = kMarked, .error = "UNKNOWN Option '-bscan'", .rest = " USER1"});
}

TEST(DccTarget, IsMarkedBeforeAnythingIsRead) {
  expect_readings(kReadDcc, {
                                {.text = "", .changes = kMarked},
                                {.text = " \t\r\n", .changes = kMarked},
                                {.text = "word", .result = 2, .changes = kMarked},
                            });
}

TEST(DccTarget, ReplacesWhatTheHardwareSays) {
  FakeHardware hw;
  expect_reading(kReadDcc, {.text = "", .changes = kMarked}, [&](SelectedEngine& e) {
    e.imp.hwManager = &hw;
    e.processor.procFamily = 1;
    e.processor.procVariant = 2;
    e.processor.allowedConnections = 3;
  });
}

TEST(DccTarget, ReadsItsOptionsInAnyCaseAndOrder) {
  expect_reading(kReadDcc, {.text = "-DebugDevice devicenr 3 -UART -CABLE port p -uart -cable type digilent_plugin",
                            .changes = kMarked + " debugDevice=3 uartEnabled=1 cable.type=6 cable.port=p"});
}

TEST(DccTarget, RefusesAPlainWordWithoutAText) {
  expect_readings(kReadDcc, {
                                {.text = "dcc -uart", .result = 2, .changes = kMarked, .rest = " -uart"},
                                {.text = "-uart on", .result = 2, .changes = kMarked + " uartEnabled=1"},
                            });
}

TEST(DccTarget, NamesAnUnknownOptionAsItWasTyped) {
  for (const std::string option : {"-Foo", "-ConfigDevice", "-bscan", "-quiet", "-comm", "-sim", "-pfsl", "-%s"}) {
    expect_readings(kReadDcc,
                    {
                        {.text = option, .result = 2, .changes = kMarked, .error = "UNKNOWN Option '" + option + "'"},
                        {.text = "-debugdevice devicenr 1 " + option + " x",
                         .result = 2,
                         .changes = kMarked + " debugDevice=1",
                         .error = "UNKNOWN Option '" + option + "'",
                         .rest = " x"},
                    });
  }
}

TEST(DccTarget, FailsWithTheTextOfTheOptionThatFailedAndKeepsWhatWasRead) {
  expect_readings(kReadDcc, {
                                {.text = "-uart -cable speed 1 -uart",
                                 .result = 2,
                                 .changes = kMarked + " uartEnabled=1",
                                 .error = "UNKNOWN Parameter 'speed' for  option '-cable'",
                                 .rest = " -uart"},
                                {.text = "-debugdevice proctype x",
                                 .result = 2,
                                 .changes = "procFamily=2 procVariant=6 allowedConnections=256"},
                            });
}

TEST(DccTarget, ThrowsOnALoneDashAndKeepsWhatCameBeforeIt) {
  SelectedEngine e;
  std::string text = "-uart - -cable";
  EXPECT_THROW(QvtOption_Parser::parse_dccoptions(text, e.imp), std::out_of_range);
  EXPECT_EQ(text, " -cable");
  EXPECT_EQ(changes(e), kMarked + " uartEnabled=1");
}

}  // namespace
