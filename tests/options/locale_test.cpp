// Reading and writing under a global locale other than the classic one.

#include <gtest/gtest.h>

#include <algorithm>
#include <clocale>
#include <cstdlib>
#include <locale>
#include <string>
#include <vector>

#include "options/QvtOption_Parser.h"
#include "tests/options/reading.h"
#include "tests/support/GlobalLocale.h"

namespace SdkDebugDialog {
namespace {

template <class Facet>
std::locale classic_with(Facet* facet) {
  return {std::locale::classic(), facet};
}

// A ctype facet with a case folding of its own.
class Letters : public std::ctype<char> {
 protected:
  virtual char capital(char c) const = 0;
  char do_toupper(char c) const override { return capital(c); }
  const char* do_toupper(char* low, const char* high) const override {
    std::transform(static_cast<const char*>(low), high, low, [this](char c) { return capital(c); });
    return high;
  }
};

// Without case folding.
class Caseless : public Letters {
  char capital(char c) const override { return c; }
};

// Turkish in ISO-8859-9: "i" folds to 0xDD (I with a dot), and 0xFD (i without a dot) folds to "I".
class Turkish : public Letters {
  char capital(char c) const override {
    if (c == 'i') return '\xDD';
    if (c == '\xFD') return 'I';
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
  }
};

// "x" is white space; blank and tab are letters.
class OddSpaces : public std::ctype<char> {
 public:
  OddSpaces() : std::ctype<char>(table()) {}

 private:
  static const mask* table() {
    static std::vector<mask> masks(classic_table(), classic_table() + table_size);
    masks['x'] = space;
    masks[' '] = alpha;
    masks['\t'] = alpha;
    return masks.data();
  }
};

class Grouping : public std::numpunct<char> {
  char do_thousands_sep() const override { return ','; }
  std::string do_grouping() const override { return "\3"; }
};

// Commands with every keyword, in the spelling that is written.
const std::vector<std::string> kCommands = {
    ("qconnect ov odm -debugdevice deviceNr 2 cpunr 1 romemStartAdr 0x10000 romemSize 16 isocmStartAdr 0x10 isocmSize "
     "16 "
     "isocmDcrStartAdr 0x40 icacheStartAdr 0x10000 itagStartAdr 0x20000 dcacheStartAdr 0x30000 dtagStartAdr 0x40000 "
     "tlbStartAdr 0x50000 dcrStartAdr 0x60000 fpuType dp proctype ppc405 cpu_version 1 odm_version 2 nCpu 3"),
    ("connect ov odm -cable type zarvek_platformusb port USB21 frequency 6000000 esn 1 modulename m modulearg a fname "
     "f "
     "url u"),
    "connect ov odm -cable type zarvek_parallel",
    "connect ov odm -cable type zarvek_parallel3",
    "connect ov odm -cable type zarvek_parallel4",
    "connect ov odm -cable type zarvek_plugin modulename m",
    "connect ov odm -cable type zarvek_tcf",
    ("connect ov odm -configdevice devicenr 1 partname p irlength 10 idcode 0x1 jtagport cpu isfpga 1 hardppc ppc405 "
     "nppc 1"),
    "connect ov odm -pfsl port 1 type ms -quiet -noattach -writeonly -bscan USER1 -bscan USER4",
    "connect ov stub -comm serial -port COM1 -baud 1 -timeout 5",
    "connect ov stub -comm jtag",
    "connect ov sim -memsize 16",
    "connect ov odm -sim -ipcport h:1 -configdevice devicenr 1",
    "connect ppc sim -icf a -ipcport h:1 -debugdevice deviceNr 1",
    "connect ppc hw",
    "connect arm hw",
    "connect r5 hw",
    "connect dap hw",
    "connect odm -uart -bscan USER2",
    "connect dcc -uart",
    "connect qmtc -configdevice devicenr 1",
    "vpconnect ov -config cycle_approximate -ipcport h:1",
    "qvpconnect ov",
};

std::string read(const std::string& command) {
  SelectedEngine e;
  const int status = QvtOption_Parser::ReadQvtCommand(command, e.imp);
  return std::to_string(status) + " " + changes(e) + " " + e.error();
}

int status_of(const std::string& command) {
  SelectedEngine e;
  return QvtOption_Parser::ReadQvtCommand(command, e.imp);
}

TEST(Locale, IsTheOneThatTheTestsAreRunUnder) {
  const char* const wanted = std::getenv("TEST_LOCALE");
  EXPECT_EQ(std::locale().name(), wanted != nullptr ? wanted : "C");
  EXPECT_STREQ(std::setlocale(LC_ALL, nullptr), wanted != nullptr ? wanted : "C");
}

TEST(Locale, KeywordsInOurOwnSpellingMatchWhateverTheLocale) {
  std::vector<std::string> expected;
  for (const std::string& command : kCommands) {
    expected.push_back(read(command));
    EXPECT_EQ(expected.back().front(), '0') << command;
  }
  for (const bool turkish : {false, true}) {
    const GlobalLocale global(classic_with(turkish ? static_cast<Letters*>(new Turkish) : new Caseless));
    for (std::size_t i = 0; i < kCommands.size(); ++i) EXPECT_EQ(read(kCommands[i]), expected[i]) << kCommands[i];
  }
}

TEST(Locale, CaseIsFoldedAsTheGlobalLocaleSays) {
  const GlobalLocale classic;
  EXPECT_EQ(status_of("CONNECT OV SIM"), 0);
  {
    const GlobalLocale global(classic_with(new Turkish));
    EXPECT_EQ(status_of("CONNECT OV STUB -COMM JTAG"), 0);
    EXPECT_EQ(status_of("CONNECT OV SIM"), 3);
    EXPECT_EQ(status_of("CONNECT OV S\xDDM"), 0);
    EXPECT_EQ(status_of("connect ov odm -configdevice IDCODE 5"), 3);
    EXPECT_EQ(read("connect ov odm -configdevice \xDD"
                   "DCODE 5"),
              "0 allowedConnections=3 device{idcode=5} ");
    EXPECT_EQ(read("connect ov s\xDDm"), "0 connectionType=1 ");
    EXPECT_EQ(status_of("connect ov s\xFDm"), 3);
  }
  {
    const GlobalLocale global(classic_with(new Caseless));
    EXPECT_EQ(status_of("connect ov sim"), 0);
    EXPECT_EQ(status_of("Connect ov sim"), 3);
    EXPECT_EQ(status_of("connect OV sim"), 3);
    EXPECT_EQ(status_of("connect ov odm -Quiet"), 3);
    EXPECT_EQ(status_of("connect ov odm -debugdevice DeviceNr 1"), 3);
    EXPECT_EQ(status_of("connect ov odm -bscan user1"), 3);
  }
  EXPECT_EQ(status_of("CONNECT OV SIM"), 0);
}

TEST(Locale, WhiteSpaceStaysThatOfTheClassicLocale) {
  const GlobalLocale global(classic_with(new OddSpaces));
  std::string text = "xax \t\nxb\x0bx";
  std::string token;
  EXPECT_EQ(QvtOption_Parser::get_token(text, token), 0);
  EXPECT_EQ(token, "xax");
  EXPECT_EQ(QvtOption_Parser::get_token(text, token), 0);
  EXPECT_EQ(token, "xb\x0bx");
  EXPECT_EQ(QvtOption_Parser::get_token(text, token), 3);
  EXPECT_EQ(read("connect ppc sim -ipcport h:x16"), "0 procFamily=1 procVariant=6 connectionType=1 simHost=h ");
  EXPECT_EQ(read("connect ppc sim -ipcport h:\v16"),
            "0 procFamily=1 procVariant=6 connectionType=1 simHost=h simPort=16 ");
}

TEST(Locale, NumbersAreReadAndWrittenWithoutGrouping) {
  const GlobalLocale global(classic_with(new Grouping));
  SelectedEngine e;
  EXPECT_EQ(QvtOption_Parser::ReadQvtCommand(
                "connect ov odm -cable type zarvek_platformusb frequency 12000000 -debugdevice romemStartAdr "
                "0x12345678 romemSize 1000000",
                e.imp),
            0);
  std::string command;
  EXPECT_EQ(e.engine.GenerateCmdString(command), 0);
  EXPECT_EQ(command,
            "connect ov odm -cable type zarvek_platformusb port USB21 frequency 12000000 -debugdevice cpunr 1 "
            "romemStartAdr 0x12345678 romemSize 1000000");
  EXPECT_EQ(QvtOption_Parser::ReadQvtCommand("connect ov stub -comm serial -baud 115,200", e.imp), 0);
  EXPECT_EQ(e.processor.stubBaudRate, 115);
}

}  // namespace
}  // namespace SdkDebugDialog
