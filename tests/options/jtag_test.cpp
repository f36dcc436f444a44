#include <gtest/gtest.h>

#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

#include "options/QvtOption_Parser.h"
#include "tests/support/GlobalLocale.h"
#include "tests/support/SelectedEngine.h"

namespace {

using SdkDebugDialog::Engine;
using SdkDebugDialog::JtagOption;
using SdkDebugDialog::newoption_token;
using SdkDebugDialog::QvtOption_Parser;

// Reads what follows "-configdevice": 1 the next option began, 2 an error, 3 the end of the text.
int read(SelectedEngine& e, std::string text) { return QvtOption_Parser::parse_configdevice(text, e.imp); }

// Reads a text of cable and chain alone: 0, or 3 when it is not understood.
int read_all(SelectedEngine& e, std::string text) { return QvtOption_Parser::ReadJtagCableOptions(text, e.imp); }

// An error text from before, to see whether a reader stores one of its own.
constexpr const char* kBefore = "from before";

// --- Reading one device ---

TEST(DeviceReading, AppendsOneRecordThatIsWrittenBackInLowerCaseHexadecimal) {
  SelectedEngine e;
  EXPECT_EQ(read(e, "devicenr 2 partname p irlength 10 idcode 0x0A001093"), 3);
  ASSERT_EQ(e.imp.jtagChain.size(), 1U);
  std::string out;
  EXPECT_EQ(QvtOption_Parser::write_jtagoptions(out, e.imp), 0);
  EXPECT_EQ(out, " -configdevice devicenr 2 partname p irlength 10 idcode 0xa001093");
}

TEST(DeviceReading, KeepsANumberOf200AsASignedByteAndWritesItSo) {
  SelectedEngine e;
  EXPECT_EQ(read(e, "DeviceNr 200"), 3);
  ASSERT_EQ(e.imp.jtagChain.size(), 1U);
  EXPECT_EQ(e.imp.jtagChain[0]->devicenr, -56);
  std::string out;
  EXPECT_EQ(QvtOption_Parser::write_jtagoptions(out, e.imp), 0);
  EXPECT_EQ(out, " -configdevice devicenr -56 partname UNKNOWN irlength 0 idcode 0x0");
}

TEST(DeviceReading, TellsThePpc405FromEveryOtherHardPowerPC) {
  struct {
    const char* value;
    int kind;
  } const rows[] = {{"PPC405", 1}, {"ppc405", 1}, {"ppc440", 2}, {"ppc40", 2}, {"none", 2}, {"0", 2}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.value);
    SelectedEngine e;
    EXPECT_EQ(read(e, std::string("hardppc ") + row.value), 3);
    ASSERT_EQ(e.imp.jtagChain.size(), 1U);
    EXPECT_EQ(e.imp.jtagChain[0]->hardppc, row.kind);
  }
}

TEST(DeviceReading, RefusesTheFormInWhichTheProcessorsOwnPinsAreWritten) {
  SelectedEngine e;
  EXPECT_EQ(read(e, "jtagpin cpujtag"), 2);
  EXPECT_EQ(e.error(), "UNKNOWN Parameter 'jtagpin' for option '-configDevice'");
  EXPECT_TRUE(e.imp.jtagChain.empty());
  EXPECT_EQ(e.imp.cpuJtag, 0);
}

TEST(DeviceReading, RefusesAnyOtherPortThanTheProcessorsWithoutATextAndForgetsThePins) {
  SelectedEngine e;
  e.imp.cpuJtag = 1;
  e.imp.errorStr = kBefore;
  EXPECT_EQ(read(e, "devicenr 1 jtagport gpio"), 2);
  EXPECT_EQ(e.imp.cpuJtag, 0);
  EXPECT_TRUE(e.imp.jtagChain.empty());
  EXPECT_EQ(e.error(), kBefore);
}

TEST(DeviceReading, AddsAnUnknownDeviceForTheProcessorsOwnPins) {
  for (const char* const text : {"jtagport cpu", "JtagPort CPU"}) {
    SCOPED_TRACE(text);
    SelectedEngine e;
    EXPECT_EQ(read(e, text), 3);
    EXPECT_EQ(e.imp.cpuJtag, 1);
    ASSERT_EQ(e.imp.jtagChain.size(), 1U);
    EXPECT_EQ(e.imp.jtagChain[0]->partname, "UNKNOWN");
  }
}

TEST(DeviceReading, AddsADeviceOfDefaultsForAnOptionWithoutPairs) {
  for (const char* const text : {"", "-quiet"}) {
    SCOPED_TRACE(text);
    SelectedEngine e;
    EXPECT_EQ(read(e, text), *text == '\0' ? 3 : 1);
    ASSERT_EQ(e.imp.jtagChain.size(), 1U);
    const JtagOption& device = *e.imp.jtagChain[0];
    EXPECT_EQ(device.partname, "UNKNOWN");
    EXPECT_EQ(device.idcode, 0U);
    EXPECT_EQ(device.irlength, 0);
    EXPECT_EQ(device.devicenr, 0);
    EXPECT_EQ(device.isfpga, 0);
    EXPECT_EQ(device.hardppc, 0);
    EXPECT_EQ(device.nppc, 0);
  }
}

TEST(DeviceReading, KnowsEveryKeywordInAnyCase) {
  const GlobalLocale classic;
  SelectedEngine e;
  EXPECT_EQ(read(e, "JTAGport Cpu DEVICEnr 1 IdCode 0xFF IRLength 6 PartName Zd4Qa IsFPGA 1 HardPPC Ppc405 nPPC 2"), 3);
  ASSERT_EQ(e.imp.jtagChain.size(), 1U);
  const JtagOption& device = *e.imp.jtagChain[0];
  EXPECT_EQ(e.imp.cpuJtag, 1);
  EXPECT_EQ(device.devicenr, 1);
  EXPECT_EQ(device.idcode, 255U);
  EXPECT_EQ(device.irlength, 6);
  EXPECT_EQ(device.partname, "Zd4Qa");
  EXPECT_EQ(device.isfpga, 1);
  EXPECT_EQ(device.hardppc, 1);
  EXPECT_EQ(device.nppc, 2);
}

TEST(DeviceReading, CutsSmallNumbersToSignedBytes) {
  struct {
    const char* keyword;
    std::int8_t JtagOption::*field;
  } const fields[] = {{"devicenr", &JtagOption::devicenr},
                      {"irlength", &JtagOption::irlength},
                      {"isfpga", &JtagOption::isfpga},
                      {"nppc", &JtagOption::nppc}};
  struct {
    const char* value;
    int number;
  } const values[] = {{"5", 5},      {"127", 127}, {"128", -128}, {"200", -56}, {"256", 0},
                      {"0x1FF", -1}, {"010", 8},   {"09", 0},     {"-1", -1},   {"-129", 127},
                      {"12x", 12},   {"many", 0},  {"0x", 0},     {"+7", 7},    {"99999999999999999999", -1}};
  for (const auto& row : fields) {
    for (const auto& [value, number] : values) {
      SCOPED_TRACE(std::string(row.keyword) + " " + value);
      SelectedEngine e;
      EXPECT_EQ(read(e, std::string(row.keyword) + " " + value), 3);
      ASSERT_EQ(e.imp.jtagChain.size(), 1U);
      for (const auto& other : fields) {
        EXPECT_EQ(e.imp.jtagChain[0]->*other.field, other.field == row.field ? number : 0);
      }
    }
  }
}

TEST(DeviceReading, CutsTheIdcodeTo32Bits) {
  struct {
    const char* value;
    std::uint32_t idcode;
  } const rows[] = {{"0x0A001093", 0x0A001093},
                    {"4294967295", 0xFFFFFFFFU},
                    {"4294967296", 0},
                    {"0x123456789", 0x23456789U},
                    {"-1", 0xFFFFFFFFU},
                    {"017", 15},
                    {"idcode", 0},
                    {"0xG", 0},
                    {"99999999999999999999", 0xFFFFFFFFU}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.value);
    SelectedEngine e;
    EXPECT_EQ(read(e, std::string("idcode ") + row.value), 3);
    ASSERT_EQ(e.imp.jtagChain.size(), 1U);
    EXPECT_EQ(e.imp.jtagChain[0]->idcode, row.idcode);
  }
}

TEST(DeviceReading, TakesPartNamesAsTheyAre) {
  for (const std::string& name : {std::string("Xy%s%n%d"), std::string("-5"), std::string(5000, 'p')}) {
    SCOPED_TRACE(name);
    SelectedEngine e;
    EXPECT_EQ(read(e, "partname " + name), 3);
    ASSERT_EQ(e.imp.jtagChain.size(), 1U);
    EXPECT_EQ(e.imp.jtagChain[0]->partname, name);
  }
}

TEST(DeviceReading, LetsTheLastOfEqualKeywordsWin) {
  SelectedEngine e;
  EXPECT_EQ(read(e, "devicenr 1 partname a devicenr 2 partname b hardppc ppc405 hardppc x"), 3);
  ASSERT_EQ(e.imp.jtagChain.size(), 1U);
  EXPECT_EQ(e.imp.jtagChain[0]->devicenr, 2);
  EXPECT_EQ(e.imp.jtagChain[0]->partname, "b");
  EXPECT_EQ(e.imp.jtagChain[0]->hardppc, 2);
}

TEST(DeviceReading, NamesAnUnknownKeywordAsItWasTypedAndDropsTheDevice) {
  struct {
    const char* text;
    const char* error;
  } const rows[] = {
      {"Device 1", "UNKNOWN Parameter 'Device' for option '-configDevice'"},
      {"devicenr 1 devicenrs 2", "UNKNOWN Parameter 'devicenrs' for option '-configDevice'"},
      {"type zarvek_tcf", "UNKNOWN Parameter 'type' for option '-configDevice'"},
      {"%s%n 1", "UNKNOWN Parameter '%s%n' for option '-configDevice'"},
      {"7 1", "UNKNOWN Parameter '7' for option '-configDevice'"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.text);
    SelectedEngine e;
    EXPECT_EQ(read(e, row.text), 2);
    EXPECT_EQ(e.error(), row.error);
    EXPECT_TRUE(e.imp.jtagChain.empty());
  }
}

TEST(DeviceReading, KeepsThePinsThatARefusedDeviceNamed) {
  SelectedEngine e;
  EXPECT_EQ(read(e, "jtagport cpu foo 1"), 2);
  EXPECT_EQ(e.imp.cpuJtag, 1);
  EXPECT_TRUE(e.imp.jtagChain.empty());
}

TEST(DeviceReading, CutsTheErrorTextAfter2047Characters) {
  SelectedEngine e;
  EXPECT_EQ(read(e, std::string(5000, 'k') + " 1"), 2);
  EXPECT_EQ(e.error(), ("UNKNOWN Parameter '" + std::string(5000, 'k')).substr(0, 2047));
}

TEST(DeviceReading, AddsADeviceWhoseLastKeywordLacksItsValue) {
  for (const char* const text : {"devicenr 3 partname", "devicenr 3 partname -quiet"}) {
    SCOPED_TRACE(text);
    SelectedEngine e;
    e.imp.errorStr = kBefore;
    EXPECT_EQ(read(e, text), 2);
    EXPECT_EQ(e.error(), kBefore);
    ASSERT_EQ(e.imp.jtagChain.size(), 1U);
    EXPECT_EQ(e.imp.jtagChain[0]->devicenr, 3);
    EXPECT_EQ(e.imp.jtagChain[0]->partname, "UNKNOWN");
  }
}

TEST(DeviceReading, AppendsBehindTheDevicesThatAreThereAndKeepsThemOnAnError) {
  SelectedEngine e;
  EXPECT_EQ(read(e, "devicenr 1"), 3);
  const JtagOption* const first = e.imp.jtagChain.at(0);
  EXPECT_EQ(read(e, "devicenr 2"), 3);
  EXPECT_EQ(read(e, "devicenr 3 foo 1"), 2);
  ASSERT_EQ(e.imp.jtagChain.size(), 2U);
  EXPECT_EQ(e.imp.jtagChain[0], first);
  EXPECT_EQ(e.imp.jtagChain[0]->devicenr, 1);
  EXPECT_EQ(e.imp.jtagChain[1]->devicenr, 2);
}

TEST(DeviceReading, LeavesInTheTextWhatItDidNotConsume) {
  struct {
    const char* text;
    int status;
    const char* left;
  } const rows[] = {
      {"", 3, ""},
      {"devicenr 1 \r\n", 3, ""},
      {"devicenr\t1\t-Cable type x", 1, " type x"},
      {"devicenr 1 foo 2 irlength 3", 2, " irlength 3"},
      {"jtagport gpio irlength 3", 2, " irlength 3"},
      {"devicenr -quiet irlength 3", 2, " irlength 3"},
      {"devicenr", 2, ""},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.text);
    SelectedEngine e;
    std::string text = row.text;
    EXPECT_EQ(QvtOption_Parser::parse_configdevice(text, e.imp), row.status);
    EXPECT_EQ(text, row.left);
  }
}

TEST(DeviceReading, HandsTheNextOptionOverAsItWasTyped) {
  SelectedEngine e;
  EXPECT_EQ(read(e, "devicenr 1 -Cable"), 1);
  EXPECT_EQ(newoption_token, "-Cable");
  EXPECT_EQ(read(e, "devicenr -Quiet"), 2);
  EXPECT_EQ(newoption_token, "-Quiet");
}

TEST(DeviceReading, ThrowsOnALoneDashAndAddsNothing) {
  for (const char* const text : {"devicenr 1 - 2", "devicenr - 2"}) {
    SCOPED_TRACE(text);
    SelectedEngine e;
    std::string rest = text;
    EXPECT_THROW(QvtOption_Parser::parse_configdevice(rest, e.imp), std::out_of_range);
    EXPECT_EQ(rest, " 2");
    EXPECT_TRUE(e.imp.jtagChain.empty());
  }
}

// --- Reading cable and chain alone ---

TEST(CableAndChainReading, AcceptsAnEmptyText) {
  for (const char* const text : {"", " \t\r\n"}) {
    SelectedEngine e;
    e.imp.errorStr = kBefore;
    EXPECT_EQ(read_all(e, text), 0);
    EXPECT_EQ(e.error(), kBefore);
    EXPECT_EQ(e.imp.cable->type, Engine::CABLE_NONE);
  }
}

TEST(CableAndChainReading, RefusesATextThatDoesNotBeginWithAnOptionWithoutAText) {
  for (const char* const text : {"cable type x", "-5", "connect ov odm"}) {
    SCOPED_TRACE(text);
    SelectedEngine e;
    e.imp.errorStr = kBefore;
    EXPECT_EQ(read_all(e, text), 3);
    EXPECT_EQ(e.error(), kBefore);
  }
}

TEST(CableAndChainReading, RefusesAnUnknownFirstOptionWithAnEmptyName) {
  SelectedEngine e;
  EXPECT_EQ(read_all(e, "-foo"), 3);
  EXPECT_EQ(e.error(), "UNKNOWN Option ''");
}

TEST(CableAndChainReading, NamesInPlaceOfAnUnknownOptionTheTokenAfterTheLastRegister) {
  struct {
    const char* text;
    const char* error;
  } const rows[] = {
      {"-cable type zarvek_tcf -foo", "UNKNOWN Option ''"},
      {"-bscan USER1 -foo", "UNKNOWN Option '-foo'"},
      {"-bscan USER1 -Cable type zarvek_tcf -foo", "UNKNOWN Option '-Cable'"},
      {"-bscan USER1 -configdevice -bscan USER2 -debugdevice deviceNr 1 -foo", "UNKNOWN Option '-debugdevice'"},
      {"-bscan USER1 -%s%n", "UNKNOWN Option '-%s%n'"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.text);
    SelectedEngine e;
    EXPECT_EQ(read_all(e, row.text), 3);
    EXPECT_EQ(e.error(), row.error);
  }
}

TEST(CableAndChainReading, DoesNotKnowTheOptionsOfAConnectCommand) {
  for (const char* const option :
       {"-quiet", "-noattach", "-writeonly", "-pfsl", "-comm", "-port", "-baud", "-timeout", "-sim", "-uart"}) {
    SCOPED_TRACE(option);
    SelectedEngine e;
    EXPECT_EQ(read_all(e, option), 3);
    EXPECT_EQ(e.error(), "UNKNOWN Option ''");
  }
}

TEST(CableAndChainReading, CutsTheErrorTextAfter2047Characters) {
  SelectedEngine e;
  EXPECT_EQ(read_all(e, "-bscan USER1 -" + std::string(5000, 'k')), 3);
  EXPECT_EQ(e.error(), ("UNKNOWN Option '-" + std::string(5000, 'k')).substr(0, 2047));
}

TEST(CableAndChainReading, ReadsAllFourOptionsInAnyCaseAndOrder) {
  SelectedEngine e;
  EXPECT_EQ(read_all(e,
                     "-ConfigDevice devicenr 1 -BSCAN user4 -DebugDevice deviceNr 7 -configdevice devicenr 2 "
                     "-CABLE type zarvek_parallel3"),
            0);
  ASSERT_EQ(e.imp.jtagChain.size(), 2U);
  EXPECT_EQ(e.imp.jtagChain[0]->devicenr, 1);
  EXPECT_EQ(e.imp.jtagChain[1]->devicenr, 2);
  EXPECT_EQ(e.processor.bscanPort, 35U);
  EXPECT_EQ(e.processor.debugDevice, 7);
  EXPECT_EQ(e.imp.cable->type, Engine::ZARVEK_PARALLEL3);
  EXPECT_EQ(e.imp.cable->frequency, 200000U);
}

TEST(CableAndChainReading, EndsAfterEachOptionThatIsComplete) {
  for (const char* const text : {"-cable", "-configdevice", "-debugdevice", "-debugdevice deviceNr 3", "-bscan USER2",
                                 "-cable port p -debugdevice", "-debugdevice -cable port p"}) {
    SCOPED_TRACE(text);
    SelectedEngine e;
    EXPECT_EQ(read_all(e, text), 0);
  }
}

TEST(CableAndChainReading, ChecksACableAtTheEndOfTheTextOnly) {
  SelectedEngine e;
  EXPECT_EQ(read_all(e, "-cable type zarvek_parallel3 frequency 5 -configdevice"), 0);
  EXPECT_EQ(e.imp.cable->frequency, 5U);
  EXPECT_EQ(read_all(e, "-configdevice -cable type zarvek_parallel3 frequency 5"), 3);
  EXPECT_EQ(e.error(), "UnSupported Zarvek Parallel3 Cable Frequency - 5\n\t Supported Frequencies: 200000");
}

TEST(CableAndChainReading, KeepsTheTextOfTheOptionThatFailed) {
  struct {
    const char* text;
    const char* error;
  } const rows[] = {
      {"-cable speed 5", "UNKNOWN Parameter 'speed' for  option '-cable'"},
      {"-configdevice speed 5", "UNKNOWN Parameter 'speed' for option '-configDevice'"},
      {"-debugdevice speed 5", "UNKNOWN Parameter 'speed' for  option '-debugDevice'"},
      {"-cable type zarvek_plugin", "Plug-in Module NOT specified for Cable Type zarvek_plugin"},
      {"-cable type usb", kBefore},
      {"-configdevice jtagport gpio", kBefore},
      {"-configdevice devicenr", kBefore},
      {"-debugdevice proctype x", kBefore},
      {"-bscan USER5", kBefore},
      {"-bscan", kBefore},
      {"-bscan USER1 word", kBefore},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.text);
    SelectedEngine e;
    e.imp.errorStr = kBefore;
    EXPECT_EQ(read_all(e, row.text), 3);
    EXPECT_EQ(e.error(), row.error);
  }
}

TEST(CableAndChainReading, KeepsWhatOptionsBeforeAnErrorStored) {
  SelectedEngine e;
  EXPECT_EQ(read_all(e, "-cable type zarvek_tcf -configdevice devicenr 1 -bscan USER3 -debugdevice deviceNr 2 -foo"),
            3);
  EXPECT_EQ(e.imp.cable->type, Engine::ZARVEK_TCF);
  ASSERT_EQ(e.imp.jtagChain.size(), 1U);
  EXPECT_EQ(e.imp.jtagChain[0]->devicenr, 1);
  EXPECT_EQ(e.processor.bscanPort, 34U);
  EXPECT_EQ(e.processor.debugDevice, 2);
}

TEST(CableAndChainReading, LeavesInTheTextWhatItDidNotConsume) {
  struct {
    const char* text;
    int status;
    const char* left;
  } const rows[] = {
      {"-cable port p \n", 0, ""},
      {"-foo -cable port p", 3, " -cable port p"},
      {"cable -cable port p", 3, " -cable port p"},
      {"-bscan USER5 -cable port p", 3, " -cable port p"},
      {"-bscan USER1 word -cable port p", 3, " -cable port p"},
      {"-cable speed 5 port p", 3, " port p"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.text);
    SelectedEngine e;
    std::string text = row.text;
    EXPECT_EQ(QvtOption_Parser::ReadJtagCableOptions(text, e.imp), row.status);
    EXPECT_EQ(text, row.left);
  }
}

TEST(CableAndChainReading, ThrowsOnALoneDashAndKeepsWhatCameBeforeIt) {
  SelectedEngine e;
  std::string text = "-configdevice devicenr 1 -cable port p - esn e";
  EXPECT_THROW(QvtOption_Parser::ReadJtagCableOptions(text, e.imp), std::out_of_range);
  EXPECT_EQ(text, " esn e");
  EXPECT_EQ(e.imp.jtagChain.size(), 1U);
  EXPECT_EQ(e.imp.cable->port, "p");
}

// Quadratic work would take hours here.
TEST(CableAndChainReading, ReadsAHundredThousandDevicesInTimeLinearInTheText) {
  constexpr std::size_t kDevices = 100000;
  std::string text;
  for (std::size_t i = 0; i < kDevices; ++i) {
    text += " -configdevice devicenr 1 partname p irlength 6 idcode " + std::to_string(i);
  }
  SelectedEngine e;
  EXPECT_EQ(QvtOption_Parser::ReadJtagCableOptions(text, e.imp), 0);
  ASSERT_EQ(e.imp.jtagChain.size(), kDevices);
  EXPECT_EQ(e.imp.jtagChain.back()->idcode, kDevices - 1);
}

// --- Writing ---

// Adds a device to the chain.
JtagOption& add(SelectedEngine& e) {
  e.imp.jtagChain.push_back(new JtagOption);
  return *e.imp.jtagChain.back();
}

std::string written(SelectedEngine& e) {
  std::string out;
  EXPECT_EQ(QvtOption_Parser::write_jtagoptions(out, e.imp), 0);
  return out;
}

TEST(ChainWriting, WritesRegisterAndPinsWithoutACable) {
  SelectedEngine e;
  e.processor.bscanPort = 2;
  e.imp.cpuJtag = 1;
  EXPECT_EQ(written(e), " -bscan USER1 -configdevice jtagpin cpujtag");
}

TEST(ChainWriting, WritesNothingWhereNothingIsSet) {
  SelectedEngine e;
  e.imp.errorStr = kBefore;
  EXPECT_EQ(written(e), "");
  EXPECT_EQ(e.error(), kBefore);
}

TEST(ChainWriting, AppendsCableRegisterPinsAndDevicesInThisOrder) {
  SelectedEngine e;
  e.engine.SetCableType(Engine::DIGILENT_PLUGIN);
  e.processor.bscanPort = 2;
  e.engine.SetCpuJtag();
  add(e) = {.partname = "a", .idcode = 0xABCDEF01U, .irlength = 6, .devicenr = 1, .isfpga = 1, .hardppc = 1, .nppc = 2};
  add(e);
  std::string out = "before";
  EXPECT_EQ(QvtOption_Parser::write_jtagoptions(out, e.imp), 0);
  EXPECT_EQ(out,
            "before -cable type digilent_plugin -bscan USER1 -configdevice jtagpin cpujtag"
            " -configdevice devicenr 1 partname a irlength 6 idcode 0xabcdef01"
            " -configdevice devicenr 0 partname UNKNOWN irlength 0 idcode 0x0");
}

TEST(ChainWriting, WritesTheFirstRegisterAlone) {
  for (const std::uint32_t port : {0U, 1U, 3U, 34U, 35U, 4294967295U}) {
    SCOPED_TRACE(port);
    SelectedEngine e;
    e.processor.bscanPort = port;
    EXPECT_EQ(written(e), "");
  }
}

TEST(ChainWriting, WritesThePinsWhenTheFlagIsOneAlone) {
  for (const int flag : {0, 2, -1}) {
    SCOPED_TRACE(flag);
    SelectedEngine e;
    e.imp.cpuJtag = flag;
    EXPECT_EQ(written(e), "");
  }
}

TEST(ChainWriting, WritesSmallNumbersAsSignedAndTheIdcodeWithoutLeadingZeros) {
  struct {
    std::int8_t devicenr;
    std::int8_t irlength;
    std::uint32_t idcode;
    const char* written;
  } const rows[] = {
      {127, -128, 1, " -configdevice devicenr 127 partname UNKNOWN irlength -128 idcode 0x1"},
      {-1, -2, 0xFFFFFFFFU, " -configdevice devicenr -1 partname UNKNOWN irlength -2 idcode 0xffffffff"},
  };
  for (const auto& row : rows) {
    SelectedEngine e;
    JtagOption& device = add(e);
    device.devicenr = row.devicenr;
    device.irlength = row.irlength;
    device.idcode = row.idcode;
    EXPECT_EQ(written(e), row.written);
  }
}

TEST(ChainWriting, WritesPartNamesWholeAndAsTheyAre) {
  for (const std::string& name : {std::string(), std::string("%s%n%d"), std::string(5000, 'p')}) {
    SCOPED_TRACE(name);
    SelectedEngine e;
    add(e).partname = name;
    EXPECT_EQ(written(e), " -configdevice devicenr 0 partname " + name + " irlength 0 idcode 0x0");
  }
}

TEST(ChainWriting, StopsAtACableThatCannotBeWritten) {
  for (const Engine::CableType type : {Engine::ZARVEK_SVFFILE, Engine::ZARVEK_TCF}) {
    SCOPED_TRACE(type);
    SelectedEngine e;
    e.engine.SetCableType(type);
    e.processor.bscanPort = 2;
    e.engine.SetCpuJtag();
    add(e);
    std::string out;
    EXPECT_EQ(QvtOption_Parser::write_jtagoptions(out, e.imp), 2);
    EXPECT_EQ(out, " -cable");
    EXPECT_EQ(e.error(), "Invalid Cable Type");
  }
}

TEST(CableAndChainWriting, WritesNeitherChainNorDebugDeviceBehindATcfCable) {
  SelectedEngine e;
  e.engine.SetCableType(Engine::ZARVEK_TCF);
  add(e);
  e.processor.debugDevice = 5;
  std::string out = "before";
  EXPECT_EQ(QvtOption_Parser::WriteJtagCableOptionsString(e.imp, out), 1);
  EXPECT_EQ(out, "before -cable");
  EXPECT_EQ(e.error(), "Invalid Cable Type");
}

TEST(CableAndChainWriting, AppendsTheDebugDeviceNumberUnlessItIsZero) {
  struct {
    std::int8_t device;
    const char* written;
  } const rows[] = {{0, "x"},
                    {5, "x -debugdevice deviceNr 5"},
                    {127, "x -debugdevice deviceNr 127"},
                    {-56, "x -debugdevice deviceNr -56"}};
  for (const auto& row : rows) {
    SelectedEngine e;
    e.processor.debugDevice = row.device;
    std::string out = "x";
    EXPECT_EQ(QvtOption_Parser::WriteJtagCableOptionsString(e.imp, out), 0);
    EXPECT_EQ(out, row.written);
  }
}

TEST(CableAndChainWriting, WritesTheNumberAloneOfTheDebugDevice) {
  SelectedEngine e;
  e.engine.SetCableType(Engine::ZARVEK_PARALLEL3);
  e.processor.procFamily = 1;
  e.processor.debugDevice = 2;
  e.processor.icacheStartAddr = 0x10000;
  e.processor.bscanPort = 2;
  add(e).devicenr = 2;
  std::string out;
  EXPECT_EQ(QvtOption_Parser::WriteJtagCableOptionsString(e.imp, out), 0);
  EXPECT_EQ(out,
            " -cable type zarvek_parallel3 port LPT1 frequency 200000 -bscan USER1"
            " -configdevice devicenr 2 partname UNKNOWN irlength 0 idcode 0x0 -debugdevice deviceNr 2");
}

}  // namespace
