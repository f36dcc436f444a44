#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "options/QvtOption_Parser.h"
#include "tests/options/reading.h"
#include "tests/support/FakeHardware.h"
#include "tests/support/SelectedEngine.h"

namespace {

using SdkDebugDialog::QvtOption_Parser;

constexpr Reader kReadOdm = &QvtOption_Parser::parse_odmoptions;

TEST(OdmTarget, IsMarkedBeforeAnythingIsRead) {
  expect_readings(kReadOdm, {
                                {.text = "", .changes = "allowedConnections=16"},
                                {.text = " \t\r\n", .changes = "allowedConnections=16"},
                                {.text = "word", .result = 2, .changes = "allowedConnections=16"},
                            });
}

TEST(OdmTarget, ReplacesWhatTheHardwareAdmits) {
  FakeHardware hw;
  expect_reading(kReadOdm, {.text = "-uart", .changes = "allowedConnections=16 uartEnabled=1"}, [&](SelectedEngine& e) {
    e.imp.hwManager = &hw;
    e.processor.allowedConnections = 7;
  });
}

TEST(OdmTarget, TakesTheFourthRegister) {
  expect_reading(kReadOdm, {.text = "-bscan user4", .changes = "allowedConnections=16 bscanPort=35"});
}

TEST(OdmTarget, RefusesAnUnknownRegisterWithoutAText) {
  expect_readings(kReadOdm, {
                                {.text = "-bscan USER5", .result = 2, .changes = "allowedConnections=16"},
                                {.text = "-bscan", .result = 2, .changes = "allowedConnections=16"},
                            });
}

TEST(OdmTarget, AcceptsTheUartTwice) {
  expect_reading(kReadOdm, {.text = "-uart -uart", .changes = "allowedConnections=16 uartEnabled=1"});
}

TEST(OdmTarget, RefusesAPlainWordWithoutAText) {
  expect_readings(kReadOdm,
                  {
                      {.text = "odm -uart", .result = 2, .changes = "allowedConnections=16", .rest = " -uart"},
                      {.text = "-5 -uart", .result = 2, .changes = "allowedConnections=16", .rest = " -uart"},
                      {.text = "-uart on", .result = 2, .changes = "allowedConnections=16 uartEnabled=1"},
                      {.text = "-bscan USER1 USER2", .result = 2, .changes = "allowedConnections=16 bscanPort=2"},
                  });
}

TEST(OdmTarget, NamesAnUnknownOptionAsItWasTyped) {
  expect_readings(
      kReadOdm,
      {
          {.text = "-Foo x",
           .result = 2,
           .changes = "allowedConnections=16",
           .error = "UNKNOWN Option '-Foo'",
           .rest = " x"},
          {.text = "-uart -foo",
           .result = 2,
           .changes = "allowedConnections=16 uartEnabled=1",
           .error = "UNKNOWN Option '-foo'"},
          {.text = "-cable port p -foo",
           .result = 2,
           .changes = "allowedConnections=16 cable.port=p",
           .error = "UNKNOWN Option '-foo'"},
          {.text = "-%s%n", .result = 2, .changes = "allowedConnections=16", .error = "UNKNOWN Option '-%s%n'"},
          {.text = "-" + std::string(5000, 'o'),
           .result = 2,
           .changes = "allowedConnections=16",
           .error = ("UNKNOWN Option '-" + std::string(5000, 'o')).substr(0, 2047)},
      });
}

TEST(OdmTarget, DoesNotKnowTheOptionsOfAConnection) {
  for (const std::string option :
       {"-quiet", "-noattach", "-writeonly", "-pfsl", "-comm", "-port", "-baud", "-timeout", "-sim", "-memsize"}) {
    expect_reading(
        kReadOdm,
        {.text = option, .result = 2, .changes = "allowedConnections=16", .error = "UNKNOWN Option '" + option + "'"});
  }
}

TEST(OdmTarget, ReadsAllItsOptionsInAnyCaseAndOrder) {
  expect_reading(kReadOdm, {.text = "-ConfigDevice devicenr 1 -UART -DebugDevice devicenr 3 -Bscan User3 -CABLE port p "
                                    "-configdevice devicenr 2 partname q",
                            .changes = "allowedConnections=16 debugDevice=3 uartEnabled=1 bscanPort=34 cable.port=p "
                                       "device=1/UNKNOWN/0/0 device=2/q/0/0"});
}

TEST(OdmTarget, ChecksACableAtTheEndOfTheTextOnly) {
  expect_readings(kReadOdm,
                  {
                      {.text = "-cable type zarvek_parallel3 frequency 5 -uart",
                       .changes = "allowedConnections=16 uartEnabled=1 cable.type=4 cable.frequency=5 cable.port=LPT1"},
                      {.text = "-cable type zarvek_parallel3",
                       .changes = "allowedConnections=16 cable.type=4 cable.frequency=200000 cable.port=LPT1"},
                      {.text = "-cable type zarvek_parallel3 frequency 5",
                       .result = 2,
                       .changes = "allowedConnections=16 cable.type=4 cable.frequency=5 cable.port=LPT1",
                       .error = "UnSupported Zarvek Parallel3 Cable Frequency - 5\n\t Supported Frequencies: 200000"},
                  });
}

TEST(OdmTarget, FailsWithTheTextOfTheOptionThatFailedAndKeepsWhatWasRead) {
  expect_readings(kReadOdm,
                  {
                      {.text = "-uart -debugdevice devicenr 1 foo 2 -cable",
                       .result = 2,
                       .changes = "allowedConnections=16 debugDevice=1 uartEnabled=1",
                       .error = "UNKNOWN Parameter 'foo' for  option '-debugDevice'",
                       .rest = " -cable"},
                      {.text = "-uart -configdevice foo 2",
                       .result = 2,
                       .changes = "allowedConnections=16 uartEnabled=1",
                       .error = "UNKNOWN Parameter 'foo' for option '-configDevice'"},
                      {.text = "-uart -cable type usb", .result = 2, .changes = "allowedConnections=16 uartEnabled=1"},
                      {.text = "-debugdevice devicenr", .result = 2, .changes = "allowedConnections=16"},
                      {.text = "-configdevice devicenr 4 irlength",
                       .result = 2,
                       .changes = "allowedConnections=16 device=4/UNKNOWN/0/0"},
                  });
}

TEST(OdmTarget, ThrowsOnALoneDashAndKeepsWhatCameBeforeIt) {
  SelectedEngine e;
  std::string text = "-uart -configdevice devicenr 1 -bscan USER1 - -cable";
  EXPECT_THROW(QvtOption_Parser::parse_odmoptions(text, e.imp), std::out_of_range);
  EXPECT_EQ(text, " -cable");
  EXPECT_EQ(changes(e), "allowedConnections=16 uartEnabled=1 bscanPort=2 device=1/UNKNOWN/0/0");
}

}  // namespace
