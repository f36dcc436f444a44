// The "-cable" option. model/cable_frequency_test.cpp tests the frequencies that each type supports.

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "tests/options/reading.h"
#include "tests/options/writing.h"
#include "tests/support/GlobalLocale.h"

namespace SdkDebugDialog {
namespace {

const Reader kRead = QvtOption_Parser::parse_cable;

Prepare of_type(unsigned int type) {
  return [type](SelectedEngine& e) { e.imp.cable->type = static_cast<Engine::CableType>(type); };
}

// --- Reading: types ---

TEST(CableReading, KnowsEveryTypeInAnyCaseAndOverwritesThePortWhereTheTypeHasOne) {
  const GlobalLocale classic;
  expect_readings(kRead,
                  {{"type ZARVEK_PARALLEL", 3, "cable.type=2 cable.frequency=5000000 cable.port=LPT1"},
                   {"type Zarvek_Parallel4", 3, "cable.type=2 cable.frequency=5000000 cable.port=LPT1"},
                   {"type zarvek_PARALLEL3", 3, "cable.type=4 cable.frequency=200000 cable.port=LPT1"},
                   {"type ZARVEK_platformusb", 3, "cable.type=3 cable.frequency=6000000 cable.port=USB21"},
                   {"type Zarvek_Plugin", 3, "cable.type=5 cable.frequency=0"},
                   {"type DIGILENT_plugin", 3, "cable.type=6 cable.frequency=0"},
                   {"type zarvek_TCF", 3, "cable.type=7 cable.frequency=0"}},
                  [](SelectedEngine& e) {
                    CableOption& cable = *e.imp.cable;
                    cable.frequency = 55;
                    cable.port = "COM7";
                    cable.esn = "e";
                    cable.fname = "f";
                    cable.modulename = "m";
                    cable.modulearg = "a";
                    cable.url = "u";
                  });
}

TEST(CableReading, LetsTheTypeOverwriteAPortThatStandsBeforeItAlone) {
  expect_readings(kRead,
                  {{"port LPT2 type zarvek_parallel4", 3, "cable.type=2 cable.frequency=5000000 cable.port=LPT1"},
                   {"type zarvek_parallel4 port LPT2", 3, "cable.type=2 cable.frequency=5000000 cable.port=LPT2"}});
}

TEST(CableReading, RefusesTheSvfFileTypeInAnyCaseWithATextThatEndsInALineFeed) {
  const GlobalLocale classic;
  const Error error("Cable Type zarvek_svffile is not supported in this release\n");
  expect_readings(kRead, {{"type zarvek_svffile", 2, error},
                          {"Type ZARVEK_SvfFile fname f port p", 2, error, Rest(" fname f port p")}});
}

TEST(CableReading, RefusesUnknownTypesWithoutAText) {
  for (const std::string name : {"usb", "zarvek_parallel5", "zarvek_paralle", "zarvek", "cable_none", "3", "-1"}) {
    expect_reading(kRead, {"port p type " + name + " esn e", 2, "cable.port=p", Rest(" esn e")});
  }
}

// --- Reading: other keywords ---

TEST(CableReading, KnowsEveryKeywordInAnyCaseAndKeepsTheCaseOfValues) {
  const GlobalLocale classic;
  expect_readings(kRead, {{"tYPE zarvek_tcf", 3, "cable.type=7"},
                          {"PORT uSb22", 3, "cable.port=uSb22"},
                          {"FREQUENCY 5 -quiet", 1, "cable.frequency=5"},
                          {"Esn 12aB", 3, "cable.esn=12aB"},
                          {"FName Out.SVF", 3, "svfFileSet=1 cable.fname=Out.SVF"},
                          {"ModuleName Mod", 3, "cable.modulename=Mod"},
                          {"MODULEARG A=b", 3, "cable.modulearg=A=b"},
                          {"URL Tcp:Host", 3, "cable.url=Tcp:Host"}});
}

TEST(CableReading, TakesTextsAsTheyAre) {
  expect_readings(kRead, {{"port %s%n", 3, "cable.port=%s%n"},
                          {"esn -5", 3, "cable.esn=-5"},
                          {"fname %s%n", 3, "svfFileSet=1 cable.fname=%s%n"},
                          {"modulename %s%n", 3, "cable.modulename=%s%n"},
                          {"modulearg %s%n", 3, "cable.modulearg=%s%n"},
                          {"url %s%n", 3, "cable.url=%s%n"}});
}

TEST(CableReading, LetsTheLastOfEqualKeywordsWin) {
  expect_reading(kRead, {"port a esn b port c type zarvek_tcf esn d type digilent_plugin", 3,
                         "cable.type=6 cable.port=c cable.esn=d"});
}

TEST(CableReading, JoinsModuleArgumentsWithSemicolonsToWhatWasThere) {
  expect_reading(kRead, {"modulearg x modulearg ;y MODULEARG z;", 3, "cable.modulearg=x;;y;z;"});
  expect_reading(kRead, {"modulearg w", 3, "cable.modulearg=z;;w"},
                 [](SelectedEngine& e) { e.imp.cable->modulearg = "z;"; });
}

// Hexadecimal numbers, numbers longer than the field, and numbers beyond 64 bits, where signed and unsigned conversion
// differ.
TEST(CableReading, CutsTheFrequencyTo32Bits) {
  expect_readings(
      kRead,
      {{"frequency 0x123456789 -quiet", 1, "cable.frequency=591751049"},
       {"frequency -1 -quiet", 1, "cable.frequency=4294967295"},
       {"frequency -99999999999999999999 -quiet", 1, "cable.frequency=4294967295"},
       {"frequency fast -quiet", 1, "cable.frequency=0"},
       {"type zarvek_platformusb frequency 0x5B8D80", 3, "cable.type=3 cable.frequency=6000000 cable.port=USB21"}},
      [](SelectedEngine& e) { e.imp.cable->frequency = 77; });
}

TEST(CableReading, NamesAnUnknownKeywordAsItWasTyped) {
  expect_readings(kRead,
                  {{"speed 5 port p", 2, Error("UNKNOWN Parameter 'speed' for  option '-cable'"), Rest(" port p")},
                   {"SpeeD 5", 2, Error("UNKNOWN Parameter 'SpeeD' for  option '-cable'")},
                   {"typ zarvek_tcf", 2, Error("UNKNOWN Parameter 'typ' for  option '-cable'")},
                   {"types zarvek_tcf", 2, Error("UNKNOWN Parameter 'types' for  option '-cable'")},
                   {"5 5", 2, Error("UNKNOWN Parameter '5' for  option '-cable'")},
                   {"%s%d%n 5", 2, Error("UNKNOWN Parameter '%s%d%n' for  option '-cable'")},
                   {"port p deviceNr 1", 2, "cable.port=p", Error("UNKNOWN Parameter 'deviceNr' for  option '-cable'")},
                   {std::string(5000, 'k') + " 1", 2, cut_error("UNKNOWN Parameter '" + std::string(5000, 'k'))}});
}

TEST(CableReading, RefusesAKeywordWithoutValueWithoutATextAndWithoutADefaultFrequency) {
  expect_readings(kRead, {{"port", 2},
                          {"nonsense", 2},
                          {"esn e type", 2, "cable.esn=e"},
                          {"esn e frequency -Quiet x", 2, "cable.esn=e", Rest(" x"), LastOption("-Quiet")},
                          {"type zarvek_platformusb port", 2, "cable.type=3 cable.port=USB21"}});
}

TEST(CableReading, KeepsWhatPairsBeforeAnErrorStored) {
  expect_readings(kRead, {{"type zarvek_parallel3 esn 1 fname f frequency 5 speed 5 esn 2", 2,
                           "svfFileSet=1 cable.type=4 cable.frequency=5 cable.port=LPT1 cable.esn=1 cable.fname=f",
                           Error("UNKNOWN Parameter 'speed' for  option '-cable'"), Rest(" esn 2")},
                          {"port p - esn e", kThrows, "cable.port=p", Rest(" esn e")},
                          {"port p esn - esn e", kThrows, "cable.port=p", Rest(" esn e")}});
}

// --- Reading: the end ---

TEST(CableReading, ChecksTheCableAtTheEndOfTheTextAlone) {
  expect_readings(
      kRead, {{"type zarvek_plugin modulearg x modulearg y", 2, "cable.type=5 cable.modulearg=x;y",
               Error("Plug-in Module NOT specified for Cable Type zarvek_plugin")},
              {"type zarvek_plugin modulename m", 3, "cable.type=5 cable.modulename=m"},
              {"type zarvek_plugin modulename m frequency 5", 2, "cable.type=5 cable.frequency=5 cable.modulename=m"},
              {"type digilent_plugin frequency 6000000", 2, "cable.type=6 cable.frequency=6000000"},
              {"frequency 0", 2},
              {"type zarvek_parallel3 frequency 1", 2, "cable.type=4 cable.frequency=1 cable.port=LPT1",
               Error("UnSupported Zarvek Parallel3 Cable Frequency - 1\n\t Supported Frequencies: 200000")},
              {"", 3},
              {" \t\r\n", 3},
              {"port p \r\n", 3, "cable.port=p"}});
  expect_readings(
      kRead,
      {{"type zarvek_plugin -quiet", 1, "cable.type=5"},
       {"type digilent_plugin frequency 6000000 -quiet", 1, "cable.type=6 cable.frequency=6000000"},
       {"frequency 0 -quiet", 1},
       {"type zarvek_parallel3 frequency 1 -quiet", 1, "cable.type=4 cable.frequency=1 cable.port=LPT1"},
       {"-quiet", 1, LastOption("-quiet")},
       {"\tport\tp -DebugDevice deviceNr 1", 1, "cable.port=p", Rest(" deviceNr 1"), LastOption("-DebugDevice")}});
}

TEST(CableReading, NeedsAFileForAnSvfCableAtTheEndOfTheTextAlone) {
  expect_readings(kRead,
                  {{"port p frequency 5", 2, "cable.frequency=5 cable.port=p",
                    Error("SVF File NOT specified for Cable Type zarvek_svffile")},
                   {"fname out.svf", 3, "svfFileSet=1 cable.fname=out.svf"},
                   {"-quiet", 1}},
                  of_type(1));
}

TEST(CableReading, PutsTheDefaultFrequencyInPlaceOfAnOlderOneAtTheEndOfTheTextOnly) {
  expect_readings(
      kRead,
      {{"port USB22 -quiet", 1, "cable.port=USB22"}, {"port USB22", 3, "cable.frequency=6000000 cable.port=USB22"}},
      [](SelectedEngine& e) {
        e.engine.SetCableType(Engine::ZARVEK_PLATFORMUSB);
        e.engine.SetCableSpeed(24000000);
      });
}

// --- Writing ---

// A cable with every field set except the serial number.
void fill(CableOption& cable) {
  cable.frequency = 1234;
  cable.port = "P7";
  cable.fname = "f";
  cable.modulename = "m";
  cable.modulearg = "a=1;b";
  cable.url = "u";
}

Writing filled(unsigned int type, const std::string& written) {
  return {written, [type](SelectedEngine& e) {
            of_type(type)(e);
            fill(*e.imp.cable);
          }};
}

TEST(CableWriting, WritesEachTypeWithItsOwnFields) {
  expect_writings(QvtOption_Parser::write_jtagoptions,
                  {filled(0, ""), filled(2, " -cable type zarvek_parallel port P7 frequency 1234"),
                   filled(3, " -cable type zarvek_platformusb port P7 frequency 1234"),
                   filled(4, " -cable type zarvek_parallel3 port P7 frequency 1234"),
                   filled(5, " -cable type zarvek_plugin modulename m modulearg a=1 modulearg b"),
                   filled(6, " -cable type digilent_plugin")});
}

TEST(CableWriting, LeavesTheOptionInTheTextWhenTheTypeCannotBeWritten) {
  for (const unsigned int type : {1U, 7U, 8U, 4294967295U}) {
    SCOPED_TRACE(type);
    Writing writing = filled(type, " -cable");
    writing.status = 2;
    writing.error = "Invalid Cable Type";
    expect_writing(QvtOption_Parser::write_jtagoptions, writing);
  }
}

TEST(CableWriting, WritesTheSerialNumberInPlaceOfPortAndFrequency) {
  Writing writing = filled(3, " -cable type zarvek_platformusb esn 1234");
  writing.prepare = [fill = writing.prepare](SelectedEngine& e) {
    fill(e);
    e.imp.cable->esn = "1234";
  };
  expect_writing(QvtOption_Parser::write_jtagoptions, writing);
}

// What a writer for one kind of cable appends; it does not look at the type.
std::string written(int (*write)(std::string&, const CableOption&), const CableOption& cable) {
  std::string out = "before";
  EXPECT_EQ(write(out, cable), 0);
  EXPECT_EQ(out.substr(0, 6), "before");
  return out.substr(6);
}

TEST(CableWriting, WritesThePartsOfEachKindOfCableWhateverTheType) {
  CableOption cable;
  cable.type = Engine::ZARVEK_TCF;
  fill(cable);
  EXPECT_EQ(written(QvtOption_Parser::write_zarvek_cableoptions, cable), " port P7 frequency 1234");
  EXPECT_EQ(written(QvtOption_Parser::write_digilent_cableoptions, cable), "");
  EXPECT_EQ(written(QvtOption_Parser::write_plugin_cableoptions, cable), " modulename m modulearg a=1 modulearg b");
  cable.esn = "E";
  EXPECT_EQ(written(QvtOption_Parser::write_zarvek_cableoptions, cable), " esn E");
}

TEST(CableWriting, WritesAnEmptyPortAsNothingBetweenTwoBlanksAndFrequenciesAsSignedNumbers) {
  struct Row {
    std::uint32_t frequency;
    std::string written;
  };
  for (const Row& row : {Row{0, " port  frequency 0"},
                         {2147483647, " port  frequency 2147483647"},
                         {2147483648U, " port  frequency -2147483648"},
                         {4294967295U, " port  frequency -1"}}) {
    CableOption cable;
    cable.frequency = row.frequency;
    EXPECT_EQ(written(QvtOption_Parser::write_zarvek_cableoptions, cable), row.written);
  }
}

// An empty argument is written as the keyword alone.
TEST(CableWriting, WritesEveryPieceOfTheModuleArguments) {
  struct Row {
    std::string modulearg;
    std::string written;
  };
  for (const Row& row : {Row{"", " modulename "},
                         {"a", " modulename  modulearg a"},
                         {"a;b", " modulename  modulearg a modulearg b"},
                         {"a;;b", " modulename  modulearg a modulearg  modulearg b"},
                         {";", " modulename  modulearg  modulearg "},
                         {";x;", " modulename  modulearg  modulearg x modulearg "},
                         {"a b,c", " modulename  modulearg a b,c"},
                         {"%s;%n", " modulename  modulearg %s modulearg %n"}}) {
    CableOption cable;
    cable.modulearg = row.modulearg;
    EXPECT_EQ(written(QvtOption_Parser::write_plugin_cableoptions, cable), row.written);
  }
}

TEST(CableWriting, WritesTextsWholeAndAsTheyAre) {
  for (const std::string& name : {std::string("%s%n%d"), std::string(5000, 'n')}) {
    CableOption cable;
    cable.port = name;
    cable.modulename = name;
    cable.modulearg = "a;" + name;
    EXPECT_EQ(written(QvtOption_Parser::write_zarvek_cableoptions, cable), " port " + name + " frequency 0");
    EXPECT_EQ(written(QvtOption_Parser::write_plugin_cableoptions, cable),
              std::string(" modulename ").append(name).append(" modulearg a modulearg ").append(name));
    cable.esn = name;
    EXPECT_EQ(written(QvtOption_Parser::write_zarvek_cableoptions, cable), " esn " + name);
  }
}

}  // namespace
}  // namespace SdkDebugDialog
