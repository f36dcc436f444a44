#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "options/pairs.h"
#include "tests/options/reading.h"
#include "tests/options/writing.h"
#include "tests/support/GlobalLocale.h"

namespace SdkDebugDialog {
namespace {

using namespace std::string_literals;

// Removes the option from the text; the parser reads only its value.
int read(std::string& text, EngineImp& imp) {
  const std::string option = text.substr(0, text.find(' '));
  text.erase(0, option.size());
  return QvtOption_Parser::parse_commoptions(text, option, imp);
}

// --- Reading ---

TEST(StubReading, KnowsEveryOptionInAnyCase) {
  const GlobalLocale classic;
  expect_readings(read,
                  {{"-comm serial", 0, "stubType=1"},
                   {"-COMM Jtag", 0, "stubType=0"},
                   {"-Comm SERIAL", 0, "stubType=1"},
                   {"-PORT COM1", 0, "stubSerialPort=COM1"},
                   {"-Baud 9600", 0, "stubBaudRate=9600"},
                   {"-TIMEOUT 5", 0, "stubTimeout=5"}},
                  [](SelectedEngine& e) { e.processor.stubType = 7; });
}

TEST(StubReading, RefusesAnyOtherLinkWithoutAText) {
  expect_readings(read,
                  {{"-comm usb", 2}, {"-comm seria -port x", 2, Rest(" -port x")}, {"-comm -1", 2}, {"-comm 1", 2}});
}

TEST(StubReading, ChangesNothingAtTheEndOfTheText) {
  for (const std::string option : {"-comm", "-port", "-baud", "-timeout", "-foo"}) {
    expect_readings(read, {{option, 3}, {option + " \t\r\n", 3}});
  }
}

TEST(StubReading, ChangesNothingWhereAnOptionStandsInPlaceOfTheValueAndConsumesIt) {
  for (const std::string option : {"-comm", "-port", "-baud", "-timeout", "-foo"}) {
    expect_reading(read, {option + " -Quiet serial", 1, Rest(" serial"), LastOption("-Quiet")});
  }
}

TEST(StubReading, TakesPortsAsTheyAre) {
  expect_readings(read, {{"-port /dev/ttyUSB0", 0, "stubSerialPort=/dev/ttyUSB0"},
                         {"-port -3", 0, "stubSerialPort=-3"},
                         {"-port %s%n x", 0, "stubSerialPort=%s%n", Rest(" x")},
                         {"-port " + std::string(5000, 'p'), 0, "stubSerialPort=" + std::string(5000, 'p')}});
}

TEST(StubReading, CutsNumbersToSigned32Bits) {
  expect_readings(read, {{"-baud 0x1C200", 0, "stubBaudRate=115200"},
                         {"-baud 0x123456789", 0, "stubBaudRate=591751049"},
                         {"-baud -99999999999999999999", 0, "stubBaudRate=-1"},
                         {"-timeout 0x123456789", 0, "stubTimeout=591751049"},
                         {"-timeout -99999999999999999999", 0, "stubTimeout=-1"}});
}

TEST(StubReading, NamesAnOptionOfAnotherGroupWhereTheTextSaysParameterAndItsValueWhereItSaysOption) {
  expect_readings(read, {{"-Foo Bar x", 2, Error("UNKNOWN Parameter '-Foo' for  option 'Bar'"), Rest(" x")},
                         {"comm serial", 2, Error("UNKNOWN Parameter 'comm' for  option 'serial'")},
                         {" serial", 2, Error("UNKNOWN Parameter '' for  option 'serial'")},
                         {"-%s %n", 2, Error("UNKNOWN Parameter '-%s' for  option '%n'")},
                         {"-foo " + std::string(5000, 'v'), 2,
                          cut_error("UNKNOWN Parameter '-foo' for  option '" + std::string(5000, 'v'))}});
}

TEST(StubReading, ThrowsOnALoneDashAndChangesNothing) {
  expect_reading(read, {"-port - serial", kThrows, Rest(" serial")});
}

// --- Writing ---

TEST(StubWriting, WritesTwoBlanksOnBothSidesOfTheRatesOptionAndNumbersAsSigned) {
  expect_writings(QvtOption_Parser::write_commoptions,
                  {{" -port /dev/ttyS0  -baud  0 -timeout 20000"},
                   {" -port /dev/ttyS0  -baud  0 -timeout 20000", [](SelectedEngine& e) { e.processor.stubType = 1; }},
                   {" -port COM1  -baud  9600 -timeout 5",
                    [](SelectedEngine& e) {
                      e.processor.stubSerialPort = "COM1";
                      e.processor.stubBaudRate = 9600;
                      e.processor.stubTimeout = 5;
                    }},
                   {" -port /dev/ttyS0  -baud  -1 -timeout -2147483648", [](SelectedEngine& e) {
                      e.processor.stubBaudRate = -1;
                      e.processor.stubTimeout = INT32_MIN;
                    }}});
}

// The writer goes by the connection; the rows tell others the same.
TEST(StubWriting, HasRowsForTheSerialStubAlone) {
  for (const std::uint32_t type : {0U, 1U, 2U, 0xFFFFFFFFU}) {
    SelectedEngine e;
    e.processor.stubType = type;
    for (const Keyword& row : kStub.keywords) {
      EXPECT_EQ(is_written(row, records_of(e.imp)), row.name.text() == "-comm" || type != Engine::STUB_OVER_JTAG)
          << row.name.text() << " of " << type;
    }
  }
}

TEST(StubWriting, WritesPortsWholeAndAsTheyAre) {
  for (const std::string& port : {""s, "%s%n%d"s, std::string(5000, 'p')}) {
    expect_writing(QvtOption_Parser::write_commoptions,
                   {" -port " + port + "  -baud  0 -timeout 20000",
                    [&port](SelectedEngine& e) { e.processor.stubSerialPort = port; }});
  }
}

}  // namespace
}  // namespace SdkDebugDialog
