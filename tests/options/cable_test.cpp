#include <gtest/gtest.h>

#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

#include "options/QvtOption_Parser.h"
#include "tests/support/GlobalLocale.h"
#include "tests/support/SelectedEngine.h"

namespace {

using SdkDebugDialog::CableOption;
using SdkDebugDialog::Engine;
using SdkDebugDialog::newoption_token;
using SdkDebugDialog::QvtOption_Parser;

// Reads what follows "-cable": 1 the next option began, 2 an error, 3 the end of the text.
int read(SelectedEngine& e, std::string text) { return QvtOption_Parser::parse_cable(text, e.imp); }

// An error text from before, to see whether a reader stores one of its own.
constexpr const char* kBefore = "from before";

// --- Reading: types ---

TEST(CableReading, TakesPortAndFrequencyOfTheTypeAtTheEndOfTheText) {
  SelectedEngine e;
  EXPECT_EQ(read(e, "TYPE Zarvek_PlatformUSB"), 3);
  EXPECT_EQ(e.imp.cable->type, Engine::ZARVEK_PLATFORMUSB);
  EXPECT_EQ(e.imp.cable->port, "USB21");
  EXPECT_EQ(e.imp.cable->frequency, 6000000U);
}

TEST(CableReading, KnowsEveryTypeInAnyCaseAndOverwritesThePortWhereTheTypeHasOne) {
  const GlobalLocale classic;
  struct {
    const char* text;
    const char* port;
    std::uint32_t type;
    std::uint32_t frequency;
  } const rows[] = {
      {"type ZARVEK_PARALLEL", "LPT1", 2, 5000000},
      {"type Zarvek_Parallel4", "LPT1", 2, 5000000},
      {"type zarvek_PARALLEL3", "LPT1", 4, 200000},
      {"type ZARVEK_platformusb", "USB21", 3, 6000000},
      {"type Zarvek_Plugin", "COM7", 5, 0},
      {"type DIGILENT_plugin", "COM7", 6, 0},
      {"type zarvek_TCF", "COM7", 7, 0},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.text);
    SelectedEngine e;
    CableOption& cable = *e.imp.cable;
    cable.port = "COM7";
    cable.esn = "e";
    cable.fname = "f";
    cable.modulename = "m";
    cable.modulearg = "a";
    cable.url = "u";
    e.imp.errorStr = kBefore;
    EXPECT_EQ(read(e, row.text), 3);
    EXPECT_EQ(cable.type, row.type);
    EXPECT_EQ(cable.port, row.port);
    EXPECT_EQ(cable.frequency, row.frequency);
    EXPECT_EQ(cable.esn, "e");
    EXPECT_EQ(cable.fname, "f");
    EXPECT_EQ(cable.modulename, "m");
    EXPECT_EQ(cable.modulearg, "a");
    EXPECT_EQ(cable.url, "u");
    EXPECT_EQ(e.error(), kBefore);
  }
}

TEST(CableReading, LetsTheTypeOverwriteAPortThatStandsBeforeIt) {
  SelectedEngine e;
  EXPECT_EQ(read(e, "port LPT2 type zarvek_parallel4"), 3);
  EXPECT_EQ(e.imp.cable->port, "LPT1");
}

TEST(CableReading, KeepsAPortThatStandsAfterTheType) {
  SelectedEngine e;
  EXPECT_EQ(read(e, "type zarvek_parallel4 port LPT2"), 3);
  EXPECT_EQ(e.imp.cable->port, "LPT2");
}

TEST(CableReading, RefusesTheSvfFileTypeInAnyCaseWithATextThatEndsInALineFeed) {
  for (const char* const text : {"type zarvek_svffile", "Type ZARVEK_SvfFile fname f port p"}) {
    SCOPED_TRACE(text);
    SelectedEngine e;
    EXPECT_EQ(read(e, text), 2);
    EXPECT_EQ(e.error(), "Cable Type zarvek_svffile is not supported in this release\n");
    EXPECT_EQ(e.imp.cable->type, Engine::CABLE_NONE);
    EXPECT_EQ(e.imp.cable->fname, "");
  }
}

TEST(CableReading, RefusesUnknownTypesWithoutAText) {
  for (const char* const name : {"usb", "zarvek_parallel5", "zarvek_paralle", "zarvek", "cable_none", "3", "-1"}) {
    SCOPED_TRACE(name);
    SelectedEngine e;
    e.imp.errorStr = kBefore;
    EXPECT_EQ(read(e, std::string("port p type ") + name + " esn e"), 2);
    EXPECT_EQ(e.error(), kBefore);
    EXPECT_EQ(e.imp.cable->type, Engine::CABLE_NONE);
    EXPECT_EQ(e.imp.cable->port, "p");
    EXPECT_EQ(e.imp.cable->esn, "");
  }
}

// --- Reading: other keywords ---

TEST(CableReading, KnowsEveryKeywordInAnyCaseAndKeepsTheCaseOfValues) {
  SelectedEngine e;
  EXPECT_EQ(read(e,
                 "PORT uSb22 Esn 12aB URL Tcp:Host FREQUENCY 1500000 FName Out.SVF ModuleName Mod MODULEARG A=b "
                 "tYPE zarvek_tcf"),
            3);
  const CableOption& cable = *e.imp.cable;
  EXPECT_EQ(cable.type, Engine::ZARVEK_TCF);
  EXPECT_EQ(cable.port, "uSb22");
  EXPECT_EQ(cable.esn, "12aB");
  EXPECT_EQ(cable.url, "Tcp:Host");
  EXPECT_EQ(cable.frequency, 1500000U);
  EXPECT_EQ(cable.fname, "Out.SVF");
  EXPECT_EQ(cable.modulename, "Mod");
  EXPECT_EQ(cable.modulearg, "A=b");
}

TEST(CableReading, StoresEachKeywordInItsOwnFieldAlone) {
  struct {
    const char* text;
    std::string CableOption::*field;
  } const rows[] = {
      {"port %s%n", &CableOption::port},
      {"esn %s%n", &CableOption::esn},
      {"url %s%n", &CableOption::url},
      {"fname %s%n", &CableOption::fname},
      {"modulename %s%n", &CableOption::modulename},
      {"modulearg %s%n", &CableOption::modulearg},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.text);
    SelectedEngine e;
    EXPECT_EQ(read(e, row.text), 3);
    for (const auto& other : rows) EXPECT_EQ(e.imp.cable->*other.field, other.field == row.field ? "%s%n" : "");
    EXPECT_EQ(e.imp.cable->type, Engine::CABLE_NONE);
    EXPECT_EQ(e.imp.cable->frequency, 0U);
    EXPECT_EQ(e.processor.svfFileSet, row.field == &CableOption::fname ? 1 : 0);
  }
}

TEST(CableReading, LetsTheLastOfEqualKeywordsWin) {
  SelectedEngine e;
  EXPECT_EQ(read(e, "port a esn b port c type zarvek_tcf esn d type digilent_plugin"), 3);
  EXPECT_EQ(e.imp.cable->port, "c");
  EXPECT_EQ(e.imp.cable->esn, "d");
  EXPECT_EQ(e.imp.cable->type, Engine::DIGILENT_PLUGIN);
}

TEST(CableReading, JoinsModuleArgumentsWithSemicolonsToWhatWasThere) {
  SelectedEngine e;
  EXPECT_EQ(read(e, "modulearg x modulearg ;y MODULEARG z;"), 3);
  EXPECT_EQ(e.imp.cable->modulearg, "x;;y;z;");
  EXPECT_EQ(read(e, "modulearg w"), 3);
  EXPECT_EQ(e.imp.cable->modulearg, "x;;y;z;;w");
}

TEST(CableReading, ConvertsTheFrequencyWithAutomaticBaseAndCutsItTo32Bits) {
  struct {
    const char* value;
    std::uint32_t frequency;
  } const rows[] = {
      {"12000000", 12000000},
      {"0x5B8D80", 6000000},
      {"0X10", 16},
      {"010", 8},
      {"08", 0},
      {"0x", 0},
      {"12abc", 12},
      {"fast", 0},
      {"+5", 5},
      {"-1", 4294967295U},
      {"-2", 4294967294U},
      {"4294967297", 1},
      {"0x123456789", 0x23456789U},
      {"99999999999999999999", 4294967295U},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.value);
    SelectedEngine e;
    e.imp.cable->frequency = 77;
    EXPECT_EQ(read(e, std::string("frequency ") + row.value + " -quiet"), 1);
    EXPECT_EQ(e.imp.cable->frequency, row.frequency);
  }
}

TEST(CableReading, RefusesAnUnknownKeywordByItsName) {
  SelectedEngine e;
  EXPECT_EQ(read(e, "speed 5"), 2);
  EXPECT_EQ(e.error(), "UNKNOWN Parameter 'speed' for  option '-cable'");
}

TEST(CableReading, NamesAnUnknownKeywordAsItWasTyped) {
  struct {
    const char* text;
    const char* error;
  } const rows[] = {
      {"SpeeD 5", "UNKNOWN Parameter 'SpeeD' for  option '-cable'"},
      {"typ zarvek_tcf", "UNKNOWN Parameter 'typ' for  option '-cable'"},
      {"types zarvek_tcf", "UNKNOWN Parameter 'types' for  option '-cable'"},
      {"5 5", "UNKNOWN Parameter '5' for  option '-cable'"},
      {"%s%d%n 5", "UNKNOWN Parameter '%s%d%n' for  option '-cable'"},
      {"port p deviceNr 1", "UNKNOWN Parameter 'deviceNr' for  option '-cable'"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.text);
    SelectedEngine e;
    EXPECT_EQ(read(e, row.text), 2);
    EXPECT_EQ(e.error(), row.error);
  }
}

TEST(CableReading, CutsTheErrorTextAfter2047Characters) {
  SelectedEngine e;
  EXPECT_EQ(read(e, std::string(5000, 'k') + " 1"), 2);
  EXPECT_EQ(e.error(), ("UNKNOWN Parameter '" + std::string(5000, 'k')).substr(0, 2047));
}

TEST(CableReading, RefusesAKeywordWithoutValueWithoutAText) {
  for (const char* const text : {"port", "esn e type", "esn e frequency -quiet", "nonsense"}) {
    SCOPED_TRACE(text);
    SelectedEngine e;
    e.imp.errorStr = kBefore;
    EXPECT_EQ(read(e, text), 2);
    EXPECT_EQ(e.error(), kBefore);
    EXPECT_EQ(e.imp.cable->port, "");
  }
}

// --- Reading: the end ---

TEST(CableReading, AcceptsAHexadecimalFrequencyOfTheAcceptedSet) {
  SelectedEngine e;
  EXPECT_EQ(read(e, "type zarvek_platformusb frequency 0x5B8D80"), 3);
  EXPECT_EQ(e.imp.cable->frequency, 6000000U);
}

TEST(CableReading, ReadsMinusOneAsTheLargestFrequencyWhichIsWrittenAsMinusOne) {
  SelectedEngine e;
  EXPECT_EQ(read(e, "type zarvek_platformusb frequency -1 -quiet"), 1);
  EXPECT_EQ(e.imp.cable->frequency, 4294967295U);
  std::string out;
  EXPECT_EQ(QvtOption_Parser::write_jtagoptions(out, e.imp), 0);
  EXPECT_EQ(out, " -cable type zarvek_platformusb port USB21 frequency -1");
}

TEST(CableReading, KeepsAnyFrequencyWhenAnotherOptionFollows) {
  SelectedEngine e;
  e.imp.errorStr = kBefore;
  std::string text = "type zarvek_platformusb frequency 1234 -debugdevice deviceNr 1";
  EXPECT_EQ(QvtOption_Parser::parse_cable(text, e.imp), 1);
  EXPECT_EQ(e.imp.cable->frequency, 1234U);
  EXPECT_EQ(e.error(), kBefore);
  EXPECT_EQ(newoption_token, "-debugdevice");
  EXPECT_EQ(text, " deviceNr 1");
}

TEST(CableReading, RefusesAPluginCableWithoutModuleAndKeepsItsArguments) {
  SelectedEngine e;
  EXPECT_EQ(read(e, "type zarvek_plugin modulearg x modulearg y"), 2);
  EXPECT_EQ(e.error(), "Plug-in Module NOT specified for Cable Type zarvek_plugin");
  EXPECT_EQ(e.imp.cable->modulearg, "x;y");
}

TEST(CableReading, RefusesAPluginCableWithAFrequencyWithoutAText) {
  SelectedEngine e;
  e.imp.errorStr = kBefore;
  EXPECT_EQ(read(e, "type zarvek_plugin modulename m frequency 1000"), 2);
  EXPECT_EQ(e.error(), kBefore);
  EXPECT_EQ(e.imp.cable->frequency, 1000U);
}

TEST(CableReading, AcceptsATcfCableThatCannotBeWrittenThen) {
  SelectedEngine e;
  e.imp.cable->frequency = 55;
  EXPECT_EQ(read(e, "type zarvek_tcf"), 3);
  EXPECT_EQ(e.imp.cable->frequency, 0U);
  std::string out;
  EXPECT_EQ(QvtOption_Parser::write_jtagoptions(out, e.imp), 2);
  EXPECT_EQ(out, " -cable");
  EXPECT_EQ(e.error(), "Invalid Cable Type");
}

TEST(CableReading, RefusesAnSvfCableWithoutFileAtTheEndOfTheText) {
  SelectedEngine e;
  e.engine.SetCableType(Engine::ZARVEK_SVFFILE);
  EXPECT_EQ(read(e, "port p frequency 5"), 2);
  EXPECT_EQ(e.error(), "SVF File NOT specified for Cable Type zarvek_svffile");
  EXPECT_EQ(e.imp.cable->port, "p");
  EXPECT_EQ(e.imp.cable->frequency, 5U);
}

TEST(CableReading, AcceptsAnSvfCableWithAFile) {
  SelectedEngine e;
  e.engine.SetCableType(Engine::ZARVEK_SVFFILE);
  EXPECT_EQ(read(e, "fname out.svf"), 3);
  EXPECT_EQ(e.imp.cable->type, Engine::ZARVEK_SVFFILE);
  EXPECT_EQ(e.imp.cable->frequency, 0U);
  EXPECT_EQ(e.processor.svfFileSet, 1);
}

TEST(CableReading, ChecksTheCableAtTheEndOfTheTextOnly) {
  struct {
    const char* text;
    int status;
    const char* error;
  } const rows[] = {
      {"type zarvek_plugin", 2, "Plug-in Module NOT specified for Cable Type zarvek_plugin"},
      {"type zarvek_plugin modulename m frequency 5", 2, kBefore},
      {"type digilent_plugin frequency 6000000", 2, kBefore},
      {"frequency 0", 2, kBefore},
      {"type zarvek_parallel3 frequency 1", 2,
       "UnSupported Zarvek Parallel3 Cable Frequency - 1\n\t Supported Frequencies: 200000"},
      {"", 3, kBefore},
      {"port p", 3, kBefore},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.text);
    SelectedEngine atEnd;
    atEnd.imp.errorStr = kBefore;
    EXPECT_EQ(read(atEnd, row.text), row.status);
    EXPECT_EQ(atEnd.error(), row.error);
    SelectedEngine before;
    before.imp.errorStr = kBefore;
    EXPECT_EQ(read(before, std::string(row.text) + " -quiet"), 1);
    EXPECT_EQ(before.error(), kBefore);
  }
}

TEST(CableReading, DoesNotCheckAnSvfCableThatAnotherOptionFollows) {
  SelectedEngine e;
  e.engine.SetCableType(Engine::ZARVEK_SVFFILE);
  EXPECT_EQ(read(e, "-quiet"), 1);
  EXPECT_EQ(e.error(), "");
}

TEST(CableReading, PutsTheDefaultFrequencyInPlaceOfAnOlderOneAtTheEndOfTheTextOnly) {
  SelectedEngine e;
  e.engine.SetCableType(Engine::ZARVEK_PLATFORMUSB);
  e.engine.SetCableSpeed(24000000);
  EXPECT_EQ(read(e, "port USB22 -quiet"), 1);
  EXPECT_EQ(e.imp.cable->frequency, 24000000U);
  EXPECT_EQ(read(e, "port USB22"), 3);
  EXPECT_EQ(e.imp.cable->frequency, 6000000U);
}

TEST(CableReading, LeavesTheFrequencyAloneWhenAKeywordLacksItsValue) {
  SelectedEngine e;
  EXPECT_EQ(read(e, "type zarvek_platformusb port"), 2);
  EXPECT_EQ(e.imp.cable->type, Engine::ZARVEK_PLATFORMUSB);
  EXPECT_EQ(e.imp.cable->port, "USB21");
  EXPECT_EQ(e.imp.cable->frequency, 0U);
}

TEST(CableReading, KeepsWhatPairsBeforeAnErrorStored) {
  SelectedEngine e;
  EXPECT_EQ(read(e, "type zarvek_parallel3 esn 1 fname f frequency 5 speed 5 esn 2"), 2);
  EXPECT_EQ(e.imp.cable->type, Engine::ZARVEK_PARALLEL3);
  EXPECT_EQ(e.imp.cable->esn, "1");
  EXPECT_EQ(e.imp.cable->fname, "f");
  EXPECT_EQ(e.imp.cable->frequency, 5U);
  EXPECT_EQ(e.processor.svfFileSet, 1);
}

TEST(CableReading, LeavesInTheTextWhatItDidNotConsume) {
  struct {
    const char* text;
    int status;
    const char* left;
  } const rows[] = {
      {"", 3, ""},
      {" \t\r\n", 3, ""},
      {"type zarvek_tcf \r\n", 3, ""},
      {"\tport\tp -quiet x", 1, " x"},
      {"-quiet", 1, ""},
      {"type zarvek_svffile port p", 2, " port p"},
      {"type usb port p", 2, " port p"},
      {"speed 5 port p", 2, " port p"},
      {"port -quiet x", 2, " x"},
      {"port", 2, ""},
      {"type zarvek_plugin", 2, ""},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.text);
    SelectedEngine e;
    std::string text = row.text;
    EXPECT_EQ(QvtOption_Parser::parse_cable(text, e.imp), row.status);
    EXPECT_EQ(text, row.left);
  }
}

TEST(CableReading, HandsTheNextOptionOverAsItWasTyped) {
  SelectedEngine e;
  EXPECT_EQ(read(e, "port p -DebugDevice"), 1);
  EXPECT_EQ(newoption_token, "-DebugDevice");
  EXPECT_EQ(read(e, "port -Quiet"), 2);
  EXPECT_EQ(newoption_token, "-Quiet");
}

TEST(CableReading, ThrowsOnALoneDashAndKeepsWhatCameBeforeIt) {
  for (const char* const text : {"port p - esn e", "port p esn - esn e"}) {
    SCOPED_TRACE(text);
    SelectedEngine e;
    std::string rest = text;
    EXPECT_THROW(QvtOption_Parser::parse_cable(rest, e.imp), std::out_of_range);
    EXPECT_EQ(rest, " esn e");
    EXPECT_EQ(e.imp.cable->port, "p");
    EXPECT_EQ(e.imp.cable->esn, "");
  }
}

// --- The frequency check ---

TEST(CableFrequency, AcceptsWhatTheTypeAccepts) {
  struct {
    Engine::CableType type;
    std::vector<std::uint32_t> accepted;
  } const rows[] = {
      {Engine::ZARVEK_PARALLEL3, {200000}},
      {Engine::ZARVEK_PARALLEL4, {200000, 625000, 2500000, 5000000}},
      {Engine::ZARVEK_PLATFORMUSB, {750000, 1500000, 3000000, 6000000, 12000000, 24000000}},
      {Engine::ZARVEK_TCF,
       {125000, 250000, 500000, 750000, 1000000, 1500000, 2000000, 3000000, 4000000, 5000000, 6000000, 7500000,
        10000000, 12000000, 15000000, 24000000, 30000000}},
  };
  for (const auto& row : rows) {
    for (const std::uint32_t frequency : row.accepted) {
      SCOPED_TRACE(std::to_string(row.type) + " at " + std::to_string(frequency));
      SelectedEngine e;
      e.imp.errorStr = kBefore;
      e.engine.SetCableType(row.type);
      e.engine.SetCableSpeed(frequency);
      EXPECT_EQ(QvtOption_Parser::setcable_frequency(e.imp, 0), 0);
      EXPECT_EQ(e.imp.cable->frequency, frequency);
      EXPECT_EQ(e.error(), kBefore);
    }
  }
}

TEST(CableFrequency, RefusesOthersWithTheTextOfTheTypeAndKeepsThem) {
  struct {
    Engine::CableType type;
    std::uint32_t frequency;
    const char* error;
  } const rows[] = {
      {Engine::ZARVEK_PARALLEL3, 625000,
       "UnSupported Zarvek Parallel3 Cable Frequency - 625000\n\t Supported Frequencies: 200000"},
      {Engine::ZARVEK_PARALLEL4, 750000,
       "UnSupported Zarvek Parallel4 Cable Frequency - 750000\n Supported Frequencies: 200000, 625000, 2500000, "
       "5000000"},
      {Engine::ZARVEK_PLATFORMUSB, 0,
       "UnSupported Zarvek PlatformUSB Cable Frequency - 0\nSupported Frequencies: 750000, 1500000, 3000000, 6000000, "
       "12000000, 24000000"},
      {Engine::ZARVEK_PLATFORMUSB, 4294967295U,
       "UnSupported Zarvek PlatformUSB Cable Frequency - -1\nSupported Frequencies: 750000, 1500000, 3000000, "
       "6000000, 12000000, 24000000"},
      {Engine::ZARVEK_TCF, 20000000,
       "UnSupported Zarvek TCF Cable Frequency - 20000000\nSupported Frequencies: 750000, 1500000, 3000000, 6000000, "
       "10000000, 12000000, 15000000, 20000000, 24000000, 30000000"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.error);
    SelectedEngine e;
    e.engine.SetCableType(row.type);
    e.engine.SetCableSpeed(row.frequency);
    EXPECT_EQ(QvtOption_Parser::setcable_frequency(e.imp, 0), 2);
    EXPECT_EQ(e.error(), row.error);
    EXPECT_EQ(e.imp.cable->frequency, row.frequency);
  }
}

TEST(CableFrequency, RefusesEveryFrequencyOfOtherTypesWithoutAText) {
  for (const unsigned int type : {0U, 1U, 5U, 6U, 8U, 4294967295U}) {
    for (const unsigned int frequency : {0U, 200000U, 6000000U}) {
      SCOPED_TRACE(std::to_string(type) + " at " + std::to_string(frequency));
      SelectedEngine e;
      e.imp.errorStr = kBefore;
      e.engine.SetCableType(static_cast<Engine::CableType>(type));
      e.engine.SetCableSpeed(frequency);
      EXPECT_EQ(QvtOption_Parser::setcable_frequency(e.imp, 0), 2);
      EXPECT_EQ(e.error(), kBefore);
      EXPECT_EQ(e.imp.cable->frequency, frequency);
    }
  }
}

TEST(CableFrequency, GivesTheDefaultOfTheTypeWhenAskedTo) {
  struct {
    unsigned int type;
    std::uint32_t frequency;
  } const rows[] = {{0, 0}, {1, 0}, {2, 5000000}, {3, 6000000}, {4, 200000}, {5, 0}, {6, 0}, {7, 0}, {99, 0}};
  for (const auto& row : rows) {
    for (const int useDefault : {1, -1}) {
      SCOPED_TRACE(std::to_string(row.type) + " by " + std::to_string(useDefault));
      SelectedEngine e;
      e.imp.errorStr = kBefore;
      e.engine.SetCableType(static_cast<Engine::CableType>(row.type));
      e.engine.SetCableSpeed(1234);
      EXPECT_EQ(QvtOption_Parser::setcable_frequency(e.imp, useDefault), 0);
      EXPECT_EQ(e.imp.cable->frequency, row.frequency);
      EXPECT_EQ(e.error(), kBefore);
    }
  }
}

// --- Writing ---

// A cable with every field set.
void fill(CableOption& cable, unsigned int type) {
  cable.type = static_cast<Engine::CableType>(type);
  cable.frequency = 1234;
  cable.port = "P7";
  cable.fname = "f";
  cable.modulename = "m";
  cable.modulearg = "a=1;b";
  cable.url = "u";
}

TEST(CableWriting, WritesEachTypeWithItsOwnFields) {
  struct {
    unsigned int type;
    const char* written;
  } const rows[] = {
      {0, ""},
      {2, " -cable type zarvek_parallel port P7 frequency 1234"},
      {3, " -cable type zarvek_platformusb port P7 frequency 1234"},
      {4, " -cable type zarvek_parallel3 port P7 frequency 1234"},
      {5, " -cable type zarvek_plugin modulename m modulearg a=1 modulearg b"},
      {6, " -cable type digilent_plugin"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.type);
    SelectedEngine e;
    e.imp.errorStr = kBefore;
    fill(*e.imp.cable, row.type);
    std::string out = "before";
    EXPECT_EQ(QvtOption_Parser::write_jtagoptions(out, e.imp), 0);
    EXPECT_EQ(out, std::string("before") + row.written);
    EXPECT_EQ(e.error(), kBefore);
  }
}

TEST(CableWriting, LeavesTheOptionInTheTextWhenTheTypeCannotBeWritten) {
  for (const unsigned int type : {1U, 7U, 8U, 4294967295U}) {
    SCOPED_TRACE(type);
    SelectedEngine e;
    fill(*e.imp.cable, type);
    std::string out = "before";
    EXPECT_EQ(QvtOption_Parser::write_jtagoptions(out, e.imp), 2);
    EXPECT_EQ(out, "before -cable");
    EXPECT_EQ(e.error(), "Invalid Cable Type");
  }
}

TEST(CableWriting, WritesTheSerialNumberInPlaceOfPortAndFrequency) {
  SelectedEngine e;
  e.engine.SetCableType(Engine::ZARVEK_PLATFORMUSB);
  e.engine.SetCableESN("1234");
  std::string out;
  EXPECT_EQ(QvtOption_Parser::write_jtagoptions(out, e.imp), 0);
  EXPECT_EQ(out, " -cable type zarvek_platformusb esn 1234");
}

TEST(CableWriting, WritesAnEmptyPortAsNothingBetweenTwoBlanks) {
  SelectedEngine e;
  e.imp.cable->type = Engine::ZARVEK_PARALLEL3;
  std::string out;
  EXPECT_EQ(QvtOption_Parser::write_jtagoptions(out, e.imp), 0);
  EXPECT_EQ(out, " -cable type zarvek_parallel3 port  frequency 0");
}

TEST(CableWriting, WritesFrequenciesAsSignedNumbers) {
  struct {
    std::uint32_t frequency;
    const char* written;
  } const rows[] = {{2147483647, "x port  frequency 2147483647"},
                    {2147483648U, "x port  frequency -2147483648"},
                    {4294967295U, "x port  frequency -1"}};
  for (const auto& row : rows) {
    CableOption cable;
    cable.frequency = row.frequency;
    std::string out = "x";
    EXPECT_EQ(QvtOption_Parser::write_zarvek_cableoptions(out, cable), 0);
    EXPECT_EQ(out, row.written);
  }
}

TEST(CableWriting, WritesThePartsOfEachKindOfCableWhateverTheType) {
  CableOption cable;
  fill(cable, 7);
  std::string out = "x";
  EXPECT_EQ(QvtOption_Parser::write_zarvek_cableoptions(out, cable), 0);
  EXPECT_EQ(out, "x port P7 frequency 1234");
  cable.esn = "E";
  out = "x";
  EXPECT_EQ(QvtOption_Parser::write_zarvek_cableoptions(out, cable), 0);
  EXPECT_EQ(out, "x esn E");
  out = "x";
  EXPECT_EQ(QvtOption_Parser::write_digilent_cableoptions(out, cable), 0);
  EXPECT_EQ(out, "x");
  EXPECT_EQ(QvtOption_Parser::write_plugin_cableoptions(out, cable), 0);
  EXPECT_EQ(out, "x modulename m modulearg a=1 modulearg b");
}

TEST(CableWriting, WritesAnEmptyPieceBeforeAndAfterASemicolonAsAKeywordAlone) {
  CableOption cable;
  cable.modulename = "m";
  cable.modulearg = ";x;";
  std::string out;
  EXPECT_EQ(QvtOption_Parser::write_plugin_cableoptions(out, cable), 0);
  EXPECT_EQ(out, " modulename m modulearg  modulearg x modulearg ");
}

TEST(CableWriting, WritesEveryPieceOfTheModuleArguments) {
  struct {
    const char* modulearg;
    const char* written;
  } const rows[] = {
      {"", " modulename "},
      {"a", " modulename  modulearg a"},
      {"a;b", " modulename  modulearg a modulearg b"},
      {"a;;b", " modulename  modulearg a modulearg  modulearg b"},
      {";", " modulename  modulearg  modulearg "},
      {"a b,c", " modulename  modulearg a b,c"},
      {"%s;%n", " modulename  modulearg %s modulearg %n"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.modulearg);
    CableOption cable;
    cable.modulearg = row.modulearg;
    std::string out;
    EXPECT_EQ(QvtOption_Parser::write_plugin_cableoptions(out, cable), 0);
    EXPECT_EQ(out, row.written);
  }
}

TEST(CableWriting, WritesLongTextsWhole) {
  const std::string name(5000, 'n');
  SelectedEngine e;
  e.engine.SetCableType(Engine::ZARVEK_PLATFORMUSB);
  e.engine.SetCablePort(name);
  std::string out;
  EXPECT_EQ(QvtOption_Parser::write_jtagoptions(out, e.imp), 0);
  EXPECT_EQ(out, " -cable type zarvek_platformusb port " + name + " frequency 6000000");

  e.engine.SetCableESN(name);
  out.clear();
  EXPECT_EQ(QvtOption_Parser::write_jtagoptions(out, e.imp), 0);
  EXPECT_EQ(out, " -cable type zarvek_platformusb esn " + name);

  e.engine.SetCableType(Engine::ZARVEK_PLUGIN);
  e.imp.cable->modulename = name;
  e.imp.cable->modulearg = name + ";" + name;
  out.clear();
  EXPECT_EQ(QvtOption_Parser::write_jtagoptions(out, e.imp), 0);
  EXPECT_EQ(out, " -cable type zarvek_plugin modulename " + name + " modulearg " + name + " modulearg " + name);
}

TEST(CableWriting, WritesPercentSignsAsTheyAre) {
  SelectedEngine e;
  e.engine.SetCableType(Engine::ZARVEK_PARALLEL4);
  e.engine.SetCablePort("%s%n%d");
  std::string out;
  EXPECT_EQ(QvtOption_Parser::write_jtagoptions(out, e.imp), 0);
  EXPECT_EQ(out, " -cable type zarvek_parallel port %s%n%d frequency 5000000");
}

}  // namespace
