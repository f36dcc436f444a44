#include "options/pairs.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/SelectedEngine.h"

namespace SdkDebugDialog {
namespace {

using P = ProcessorInfoImp;

bool read_noted(const Keyword& row, const KeywordAndValue& pair, const Records& to) {
  to.processor->odmVersion.append(row.name.text()).append("/").append(pair.key).append("=").append(pair.value);
  return pair.value != "no";
}

void write_noted(const Keyword& row, TextOut& out, const Records& from) {
  out.put_name(row.name);
  out.put("<");
  out.put(from.processor->odmVersion);
  out.put(">");
}

constexpr When kAddressSet = {
    [](const Keyword& row, const Records& r) { return r.processor->*std::get<std::uint32_t P::*>(row.field) != 0; }};
constexpr Word kWords[] = {{"one", 1}, {"Two", 2}, {"more", 7}};

// A row for every type of field.
constexpr Keyword kRows[] = {
    {.name = " Narrow ", .kind = Kind::number, .field = &P::debugDevice, .written = kAlways},
    {.name = " byte ", .kind = Kind::number, .field = &P::cpuNr, .written = kAlways},
    {.name = " number ", .kind = Kind::signedNumber, .field = &P::nCpu, .written = kAlways},
    {.name = " unsigned ", .kind = Kind::number, .field = &P::stubTimeout, .written = kAlways},
    {.name = "  address ", .kind = Kind::address, .field = &P::romemSize, .written = kAddressSet},
    {.name = " text ", .field = &P::cpuVersion, .written = kAlways},
    {.name = " port ", .field = &CableOption::port, .written = kAlways},
    {.name = " speed ", .kind = Kind::number, .field = &CableOption::frequency, .written = kAlways},
    {.name = " length ", .kind = Kind::number, .field = &JtagOption::irlength, .written = kAlways},
    {.name = " code ", .kind = Kind::hexadecimal, .field = &JtagOption::idcode, .written = kAlways},
    {.name = " part ", .field = &JtagOption::partname, .written = kAlways},
    {.name = " word ", .kind = Kind::word, .field = &P::stubType, .words = kWords, .written = kAlways},
    {.name = " noted ", .written = kAlways, .read = read_noted, .write = write_noted},
    {.name = " nothing ", .written = never("it is nothing")},
};
constexpr Group kGroup = {kRows, "UNKNOWN '%s' here"};

struct Subject {
  SelectedEngine selected;
  JtagOption device;
  Records records = records_of(selected.imp, &device);
};

// The result of reading pairs.
struct Reading : Subject {
  PairsRead read;
  std::string rest;

  explicit Reading(const std::string& text) {
    TokenCursor in(text);
    read = read_pairs(in, kGroup, records);
    rest = in.rest();
  }
};

TEST(ReadPairs, StoresEveryKindOfValueCutToItsField) {
  Reading r(
      "narrow 200 BYTE 0x1ff Number -0x80000000 unsigned 0xFFFFFFFE address 0x1ffffffff text -5abc Port LPT2 "
      "speed 0x100000001 LENGTH 255 code 0xA5059093 part p");
  EXPECT_EQ(r.read.outcome, Outcome::end);
  EXPECT_FALSE(r.read.refused);
  EXPECT_EQ(r.selected.processor.debugDevice, -56);
  EXPECT_EQ(r.selected.processor.cpuNr, 255);
  EXPECT_EQ(r.selected.processor.nCpu, -2147483647 - 1);
  EXPECT_EQ(r.selected.processor.stubTimeout, -2);
  EXPECT_EQ(r.selected.processor.romemSize, 0xFFFFFFFFU);
  EXPECT_EQ(r.selected.processor.cpuVersion, "-5abc");
  EXPECT_EQ(r.selected.imp.cable->port, "LPT2");
  EXPECT_EQ(r.selected.imp.cable->frequency, 1U);
  EXPECT_EQ(r.device.irlength, -1);
  EXPECT_EQ(r.device.idcode, 0xA5059093U);
  EXPECT_EQ(r.device.partname, "p");
  EXPECT_EQ(r.selected.error(), "");
}

TEST(ReadPairs, ConvertsASignedNumberTheSignedWay) {
  // Beyond 64 bits signed and unsigned conversion differ.
  EXPECT_EQ(Reading("number 99999999999999999999").selected.processor.nCpu, -1);
  EXPECT_EQ(Reading("number -99999999999999999999").selected.processor.nCpu, 0);
  EXPECT_EQ(Reading("address -99999999999999999999").selected.processor.romemSize, 0xFFFFFFFFU);
}

TEST(ReadPairs, StoresTheValueOfAWordAndRefusesAnyOther) {
  EXPECT_EQ(Reading("word ONE").selected.processor.stubType, 1U);
  EXPECT_EQ(Reading("word two").selected.processor.stubType, 2U);
  Reading r("word three");
  EXPECT_EQ(r.read.outcome, Outcome::error);
  EXPECT_TRUE(r.read.refused);
  EXPECT_EQ(r.selected.processor.stubType, 0U);
}

TEST(ReadPairs, TellsWhatEndedThem) {
  struct Case {
    std::string text;
    Outcome outcome;
    bool refused;
    std::string rest;
    std::string error;
  };
  const std::vector<Case> cases = {
      {"", Outcome::end, false, "", ""},
      {" \r\n", Outcome::end, false, "", ""},
      {"byte 1", Outcome::end, false, "", ""},
      {"byte 1 -next 2", Outcome::option, false, " 2", ""},
      {"-next", Outcome::option, false, "", ""},
      {"byte", Outcome::error, false, "", ""},
      {"byte 1 narrow", Outcome::error, false, "", ""},
      {"byte -next 2", Outcome::error, false, " 2", ""},
      {"unknown", Outcome::error, false, "", ""},
      {"unknown 5 byte 1", Outcome::error, true, " byte 1", "UNKNOWN 'unknown' here"},
      {"Byte1 5", Outcome::error, true, "", "UNKNOWN 'Byte1' here"},
      {"noted no byte 1", Outcome::error, true, " byte 1", ""},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.text);
    Reading r(c.text);
    EXPECT_EQ(r.read.outcome, c.outcome);
    EXPECT_EQ(r.read.refused, c.refused);
    EXPECT_EQ(r.rest, c.rest);
    EXPECT_EQ(r.selected.error(), c.error);
  }
}

TEST(ReadPairs, NotesWhetherAPairOfARowWasRead) {
  const auto noted = [](const std::string& text) {
    Subject s;
    TokenCursor in(text);
    return read_pairs(in, kGroup, s.records, &kRows[1]).noted;
  };
  EXPECT_FALSE(noted(""));
  EXPECT_FALSE(noted("nothing x narrow 2"));
  EXPECT_TRUE(noted("narrow 1 BYTE 2 narrow 3"));
  EXPECT_TRUE(noted("byte 1 noted no"));
  EXPECT_FALSE(noted("byte"));
  EXPECT_FALSE(Reading("byte 1").read.noted);
}

TEST(ReadPairs, HandsThePairAsItWasTypedToTheRowsOwnReader) {
  EXPECT_EQ(Reading("NoTeD Yes").selected.processor.odmVersion, "noted/NoTeD=Yes");
}

TEST(ReadPairs, CutsTheErrorTextOfAHugeKey) {
  Reading r(std::string(1 << 20, 'k') + " 1");
  EXPECT_EQ(r.selected.error(), "UNKNOWN '" + std::string(2047 - 9, 'k'));
}

std::string written(const Subject& subject) {
  std::string text = "before";
  TextOut out(text);
  write_pairs(out, kRows, subject.records);
  out.flush();
  return text;
}

TEST(WritePairs, WritesTheRowsThatAreToBeWrittenInTheirOrder) {
  Subject s;
  s.selected.processor.debugDevice = -56;
  s.selected.processor.cpuNr = 200;
  s.selected.processor.nCpu = -1;
  s.selected.processor.stubTimeout = 5;
  s.selected.processor.cpuVersion = "t";
  s.selected.processor.odmVersion = "o";
  s.selected.processor.stubType = 2;
  s.selected.imp.cable->frequency = 0xFFFFFFFFU;
  s.device = {.partname = "", .idcode = 0xA001093, .irlength = -1};
  EXPECT_EQ(written(s),
            "before Narrow -56 byte 200 number -1 unsigned 5 text t port  speed -1 length -1 code 0xa001093 part "
            " word Two noted <o>");
  s.selected.processor.romemSize = 0xFFFF8000U;
  s.selected.processor.stubType = 5;  // none of the words
  EXPECT_EQ(written(s),
            "before Narrow -56 byte 200 number -1 unsigned 5  address 0xffff8000 text t port  speed -1 length -1 code "
            "0xa001093 part  word more noted <o>");
}

}  // namespace
}  // namespace SdkDebugDialog
