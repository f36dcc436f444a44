// The options that may follow a connection keyword.

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <string>
#include <vector>

#include "tests/options/reading.h"
#include "tests/support/GlobalLocale.h"

namespace SdkDebugDialog {
namespace {

const Reader kRead = QvtOption_Parser::parse_options;

// Each option with its values, and the settings that it changes.
struct GeneralOption {
  std::string text;
  std::string changes;
};

const std::vector<GeneralOption> kGeneralOptions = {
    {"-debugdevice deviceNr 3", "debugDevice=3"},
    {"-pfsl port 1 type ms", ""},
    {"-quiet", ""},
    {"-noattach", ""},
    {"-writeonly", ""},
    {"-cable type zarvek_platformusb", "cable.type=3 cable.frequency=6000000 cable.port=USB21"},
    {"-comm serial", "stubType=1"},
    {"-port COM1", "stubSerialPort=COM1"},
    {"-baud 0x1C200", "stubBaudRate=115200"},
    {"-timeout 5", "stubTimeout=5"},
    {"-configdevice devicenr 2 partname p", "device{devicenr=2 partname=p}"},
    {"-sim -ipcport host1:7000", "modelSimEnabled=1 modelSimHost=host1 modelSimPort=7000"},
    {"-bscan USER1", "bscanPort=2"},
};

std::string in_capitals(std::string text) {
  const std::size_t end = std::min(text.find(' '), text.size());
  for (std::size_t i = 0; i < end; ++i) text[i] = static_cast<char>(std::toupper(static_cast<unsigned char>(text[i])));
  return text;
}

TEST(GeneralOptions, EndWellWhenThereAreNone) {
  newoption_token = "-older";
  expect_readings(kRead, {{"", 0, LastOption("-older")}, {"  ", 0}, {"\r\n", 0, LastOption("-older")}});
}

TEST(GeneralOptions, AreReadInAnyCaseAloneOrBehindOneThatIsIgnored) {
  const GlobalLocale classic;
  for (const GeneralOption& option : kGeneralOptions) {
    expect_readings(kRead, {{option.text, 0, option.changes},
                            {in_capitals(option.text), 0, option.changes},
                            {" -quiet  " + option.text + " \r\n", 0, option.changes}});
  }
}

// A cable that is not the last option keeps its old frequency.
TEST(GeneralOptions, AllFitIntoOneText) {
  expect_reading(kRead,
                 {"-cable type zarvek_platformusb -bscan USER3 -configdevice devicenr 1 partname a -configdevice "
                  "devicenr 2 partname b -debugdevice deviceNr 2 -comm serial -port COM1 -baud 9600 -timeout 5 -pfsl "
                  "port 1 type m -quiet -noattach -writeonly -sim -ipcport h:1 -configdevice devicenr 3 partname c",
                  0,
                  "stubType=1 stubSerialPort=COM1 stubBaudRate=9600 stubTimeout=5 debugDevice=2 modelSimEnabled=1 "
                  "modelSimHost=h modelSimPort=1 bscanPort=34 cable.type=3 cable.port=USB21 "
                  "device{devicenr=1 partname=a} device{devicenr=2 partname=b} device{devicenr=3 partname=c}"});
}

TEST(GeneralOptions, FailAtAValueWhereAnOptionIsExpected) {
  expect_readings(kRead, {{"stray -quiet", 2, Rest(" -quiet")},
                          {"-5", 2},
                          {"-quiet 5 -quiet", 2, Rest(" -quiet")},
                          {"-noattach stray", 2},
                          {"-writeonly stray", 2},
                          {"-comm serial stray", 2, "stubType=1"},
                          {"-bscan USER1 stray", 2, "bscanPort=2"}});
}

TEST(GeneralOptions, DoNotKnowTheOptionsThatOnlyOtherTargetsHave) {
  for (const std::string option : {"-uart", "-memsize", "-icf", "-ipcport", "-config"}) {
    expect_reading(kRead, {option + " 1", 2, Error("UNKNOWN Option ''"), Rest(" 1")});
  }
}

TEST(GeneralOptions, FailWhereAGroupFails) {
  expect_readings(
      kRead, {{"-debugdevice speed 1 -quiet", 2, Error("UNKNOWN Parameter 'speed' for  option '-debugDevice'"),
               Rest(" -quiet")},
              {"-pfsl speed 1 -quiet", 2, Error("UNKNOWN Parameter 'speed' for  option '-pfsl'"), Rest(" -quiet")},
              {"-pfsl type x", 2, Error("UNKNOWN Parameter 'x' for  option 'type'")},
              {"-cable speed 1 -quiet", 2, Error("UNKNOWN Parameter 'speed' for  option '-cable'"), Rest(" -quiet")},
              {"-configdevice speed 1 -quiet", 2, Error("UNKNOWN Parameter 'speed' for option '-configDevice'"),
               Rest(" -quiet")},
              {"-sim -quiet x", 2, "modelSimEnabled=1", Error("UNKNOWN  ModelSim Option '-quiet'"), Rest(" x")},
              {"-debugdevice deviceNr", 2},
              {"-cable type -quiet", 2},
              {"-comm usb -quiet", 2, Rest(" -quiet")},
              {"-bscan USER5 -quiet", 2, Rest(" -quiet")},
              {"-bscan", 2},
              {"-bscan -quiet", 2}});
}

TEST(GeneralOptions, ReadNothingAfterASimulatorThatRanToTheEnd) {
  expect_readings(kRead, {{"-sim", 0, "modelSimEnabled=1"}, {"-quiet -sim \t", 0, "modelSimEnabled=1"}});
}

TEST(GeneralOptions, LoseAnOptionThatStandsWhereAStubValueIsMissing) {
  expect_readings(kRead, {{"-comm", 0},
                          {"-port", 0},
                          {"-baud \r\n", 0},
                          {"-timeout", 0},
                          {"-comm -quiet", 0},
                          {"-comm -no-such-option", 0, LastOption("-no-such-option")},
                          {"-port -comm -baud 9600", 0, "stubBaudRate=9600"},
                          {"-timeout -bscan -comm serial", 0, "stubType=1"},
                          {"-port -baud 9600", 2},
                          {"-comm -comm serial", 2},
                          {"-baud -cable type zarvek_platformusb", 2, Rest(" zarvek_platformusb")}});
}

// The error text names the last token that the loop over the options read itself. At the start and after a group there
// is none.
TEST(GeneralOptions, NameNothingForAnUnknownOptionThatIsTheFirstOrFollowsAGroup) {
  expect_readings(kRead, {{"-foo", 2, Error("UNKNOWN Option ''")},
                          {"-foo bar", 2, Error("UNKNOWN Option ''"), Rest(" bar")},
                          {"-debugdevice deviceNr 3 -foo", 2, "debugDevice=3", Error("UNKNOWN Option ''")},
                          {"-pfsl port 1 -foo", 2, Error("UNKNOWN Option ''")},
                          {"-cable type zarvek_tcf -foo", 2, "cable.type=7", Error("UNKNOWN Option ''")},
                          {"-configdevice devicenr 1 -foo", 2, "device{devicenr=1}", Error("UNKNOWN Option ''")}});
}

TEST(GeneralOptions, NameAnUnknownOptionThatFollowsOneWithoutAGroup) {
  const std::string longOption = "-" + std::string(1 << 20, 'o');
  expect_readings(kRead, {{"-quiet -foo", 2, Error("UNKNOWN Option '-foo'")},
                          {"-noattach -foo", 2, Error("UNKNOWN Option '-foo'")},
                          {"-writeonly -Foo", 2, Error("UNKNOWN Option '-Foo'")},
                          {"-comm serial -foo", 2, "stubType=1", Error("UNKNOWN Option '-foo'")},
                          {"-port COM1 -foo", 2, "stubSerialPort=COM1", Error("UNKNOWN Option '-foo'")},
                          {"-baud 1 -foo", 2, "stubBaudRate=1", Error("UNKNOWN Option '-foo'")},
                          {"-timeout 1 -foo", 2, "stubTimeout=1", Error("UNKNOWN Option '-foo'")},
                          {"-bscan USER1 -foo", 2, "bscanPort=2", Error("UNKNOWN Option '-foo'")},
                          {"-comm -lost -foo", 2, Error("UNKNOWN Option '-foo'")},
                          {"-quiet " + longOption, 2, cut_error("UNKNOWN Option '" + longOption)}});
}

TEST(GeneralOptions, NameTheGroupInPlaceOfAnUnknownOptionBehindIt) {
  expect_readings(
      kRead,
      {{"-quiet -debugdevice deviceNr 3 -foo", 2, "debugDevice=3", Error("UNKNOWN Option '-debugdevice'")},
       {"-noattach -PFSL port 1 -foo", 2, Error("UNKNOWN Option '-PFSL'")},
       {"-bscan USER1 -cable -foo", 2, "bscanPort=2", Error("UNKNOWN Option '-cable'")},
       {"-quiet -debugdevice deviceNr 3 -pfsl port 1 -foo", 2, "debugDevice=3", Error("UNKNOWN Option '-debugdevice'")},
       {"-quiet -cable -quiet -configdevice -foo", 2, "device{}", Error("UNKNOWN Option '-configdevice'")}});
}

TEST(GeneralOptions, LeaveTheLastOptionInThePushbackToken) {
  expect_readings(kRead, {{"-quiet -comm serial -Timeout 5", 0, "stubType=1 stubTimeout=5", LastOption("-Timeout")},
                          {"-quiet -Foo -bar", 2, Error("UNKNOWN Option '-Foo'"), Rest(" -bar"), LastOption("-Foo")},
                          {"-comm -lost", 0, LastOption("-lost")}});
}

TEST(GeneralOptions, LetALoneDashThrowAndKeepWhatWasRead) {
  expect_reading(kRead, {"-timeout 5 - -quiet", kThrows, "stubTimeout=5", Rest(" -quiet")});
}

}  // namespace
}  // namespace SdkDebugDialog
