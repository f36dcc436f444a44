// get_token and get_tokenpair.

#include <gtest/gtest.h>

#include <ostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "options/QvtOption_Parser.h"
#include "tests/support/SelectedEngine.h"

namespace SdkDebugDialog {
namespace {

using namespace std::string_literals;

constexpr char kOutOfRange[] = "basic_string::at: __n (which is 1) >= this->size() (which is 1)";

// The result of reading one token.
struct Cut {
  int kind;
  std::string token;
  std::string rest;
  bool operator==(const Cut&) const = default;
};
std::ostream& operator<<(std::ostream& out, const Cut& cut) {
  return out << cut.kind << ' ' << testing::PrintToString(cut.token) << " rest " << testing::PrintToString(cut.rest);
}

Cut cut(std::string text) {
  std::string token = "before";
  const int kind = QvtOption_Parser::get_token(text, token);
  return {kind, token, text};
}

void expect_cut(const std::string& text, const Cut& expected) {
  SCOPED_TRACE(testing::PrintToString(text));
  EXPECT_EQ(cut(text), expected);
}

struct PairCut {
  int kind;
  std::string key;
  std::string value;
  std::string rest;
  bool operator==(const PairCut&) const = default;
};
std::ostream& operator<<(std::ostream& out, const PairCut& cut) {
  return out << cut.kind << ' ' << testing::PrintToString(cut.key) << ' ' << testing::PrintToString(cut.value)
             << " rest " << testing::PrintToString(cut.rest);
}

void expect_pair(const std::string& text, const PairCut& expected) {
  SCOPED_TRACE(testing::PrintToString(text));
  std::string rest = text;
  std::string key = "key before";
  std::string value = "value before";
  const int kind = QvtOption_Parser::get_tokenpair(rest, key, value);
  EXPECT_EQ((PairCut{kind, key, value, rest}), expected);
}

// --- Tokens ---

TEST(GetToken, PartsTokensAtBlanksAndTabsWhereverTheyStand) {
  for (const char letter : {'a', '!', '~', '\x80', '\xA0', '\xFF'}) {
    for (std::size_t length = 1; length < 150; ++length) {
      const std::string token(length, letter);
      expect_cut(token, {0, token, ""});
      for (const std::string between : {" ", "\t", "  ", "\t ", " \n"}) {
        const std::string rest = between + "b c";
        expect_cut(token + rest, {0, token, rest});
        expect_cut(between + token, {0, token, ""});
      }
      expect_cut(token + "\n b", {0, token, "\n b"});
      const std::string twoLines = token + "\nz";
      expect_cut(twoLines + " b", {0, twoLines, " b"});
    }
  }
}

TEST(GetToken, GoesOnBehindATokenOfAnyLength) {
  std::string text;
  std::vector<std::string> expected;
  for (std::size_t length = 1; length < 150; ++length) {
    for (const std::string between : {" ", "\t", "  ", "\n ", " \r", "\v\t"}) {
      expected.push_back(std::string(length, 'x'));
      text += expected.back() + between;
    }
    expected.push_back(std::string(length, 'y') + "\n1");
    text += expected.back() + " ";
  }
  std::string token;
  for (const std::string& next : expected) {
    ASSERT_EQ(QvtOption_Parser::get_token(text, token), 0);
    ASSERT_EQ(token, next);
  }
  EXPECT_EQ(QvtOption_Parser::get_token(text, token), 3);
  EXPECT_EQ(text, "");
}

TEST(GetToken, AnswersTheEndForWhiteSpaceAloneAndLeavesTheToken) {
  for (const std::string text : {"", " ", "\t", "\n", "\r\n", "\v\f", "   \t\t  ", " \t\n\v\f\r ", "\n\n\n"}) {
    expect_cut(text, {3, "before", ""});
  }
}

TEST(GetToken, LeavesTheLineEndAfterAWordUntilItIsAskedFor) {
  std::string text = "connect\r\n";
  std::string token;
  EXPECT_EQ(QvtOption_Parser::get_token(text, token), 0);
  EXPECT_EQ(token, "connect");
  EXPECT_EQ(text, "\r\n");
  EXPECT_EQ(QvtOption_Parser::get_token(text, token), 3);
  EXPECT_EQ(token, "connect");
  EXPECT_EQ(text, "");
}

TEST(GetToken, ReadsADashWithADigitAsAValueAndKeepsTheOptionBefore) {
  newoption_token = "-older";
  for (const std::string text : {"-5", "-0x10", "-1", "-0", "-9", "-9z", "-1-"}) expect_cut(text, {0, text, ""});
  EXPECT_EQ(newoption_token, "-older");
}

TEST(GetToken, ReadsADashWithAnythingElseAsAnOption) {
  for (const std::string& text :
       {"-cable"s, "-CABLE"s, "--"s, "--5"s, "-."s, "-.5"s, "-x1"s, "-/"s, "-:"s, "-\x80"s, "-\0"s, "-a\nb"s}) {
    newoption_token = "-older";
    expect_cut(text, {1, text, ""});
    EXPECT_EQ(newoption_token, text);
  }
}

TEST(GetToken, ThrowsOutOfRangeForALoneDashWhichIsTakenOffTheText) {
  struct Row {
    std::string text;
    std::string rest;
  };
  for (const Row& row : std::vector<Row>{{"-", ""}, {"  -", ""}, {"- x", " x"}, {"-\t-", "\t-"}, {"-\r\n", "\r\n"}}) {
    SCOPED_TRACE(testing::PrintToString(row.text));
    newoption_token = "-older";
    std::string text = row.text;
    std::string token = "before";
    try {
      QvtOption_Parser::get_token(text, token);
      ADD_FAILURE() << "nothing was thrown";
    } catch (const std::out_of_range& error) {
      EXPECT_STREQ(error.what(), kOutOfRange);
    }
    EXPECT_EQ(token, "-");
    EXPECT_EQ(text, row.rest);
    EXPECT_EQ(newoption_token, "-older");
  }
}

TEST(GetToken, HasNoWayToQuoteABlank) {
  std::string text = R"("C:\my designs\a.cfg" 'b c' d\ e)";
  std::vector<std::string> tokens;
  std::string token;
  while (QvtOption_Parser::get_token(text, token) == 0) tokens.push_back(token);
  EXPECT_EQ(tokens, (std::vector<std::string>{R"("C:\my)", R"(designs\a.cfg")", "'b", "c'", "d\\", "e"}));
}

TEST(GetToken, KeepsLineEndsInsideATokenAndDropsThoseAtItsEnd) {
  expect_cut("  one  \t\r\n", {0, "one", "  \t\r\n"});
  expect_cut("one\r\ntwo three", {0, "one\r\ntwo", " three"});
  expect_cut("one\vtwo\fthree\nfour", {0, "one\vtwo\fthree\nfour", ""});
  expect_cut("one\r\n two", {0, "one", "\r\n two"});
  expect_cut("one\v\f\r\n\ttwo", {0, "one", "\v\f\r\n\ttwo"});
  expect_cut("\r\n\v\fone\ntwo\n ", {0, "one\ntwo", "\n "});
  expect_cut("-one\ntwo\n x", {1, "-one\ntwo", "\n x"});
}

TEST(GetToken, SortsEveryByteAsTheClassicLocaleDoes) {
  for (int i = 0; i < 256; ++i) {
    const char c = static_cast<char>(i);
    const bool white = " \t\n\v\f\r"s.find(c) != std::string::npos;
    const bool parts = c == ' ' || c == '\t';
    expect_cut("a"s + c + "b", parts ? Cut{0, "a", c + "b"s} : Cut{0, "a"s + c + "b", ""});
    expect_cut("a"s + c, white ? Cut{0, "a", std::string(1, c)} : Cut{0, "a"s + c, ""});
    expect_cut(c + "a"s, white ? Cut{0, "a", ""} : Cut{c == '-' ? 1 : 0, c + "a"s, ""});
    // A dash followed by a blank or a tab is a lone dash.
    if (!parts) expect_cut("-"s + c + "a", {c >= '0' && c <= '9' ? 0 : 1, "-"s + c + "a", ""});
  }
}

TEST(GetToken, EndsATokenOfAnyLengthAtABlankOrATabWhateverStandsAroundIt) {
  for (int i = 0; i < 256; ++i) {
    const char c = static_cast<char>(i);
    if (" \t\n\v\f\r-"s.find(c) != std::string::npos) continue;
    for (const char gap : {' ', '\t'}) {
      for (std::size_t length = 1; length <= 20; ++length) {
        const std::string token(length, c);
        const std::string rest = gap + std::string(10, c) + " \t" + c;
        ASSERT_EQ(cut(token + rest), (Cut{0, token, rest})) << i << ' ' << length;
      }
    }
  }
}

TEST(GetToken, TakesNulBytesForAnyOtherCharacter) {
  expect_cut("\0"s, {0, "\0"s, ""});
  expect_cut("a\0b c\0"s, {0, "a\0b"s, " c\0"s});
  expect_cut("-\0 x"s, {1, "-\0"s, " x"});
}

TEST(GetToken, ReadsTokensOfAMegabyte) {
  const std::string value(1 << 20, 'x');
  expect_cut(" " + value + " y", {0, value, " y"});
  const std::string option = "-" + value;
  expect_cut(option, {1, option, ""});
  EXPECT_EQ(newoption_token, option);
}

TEST(NewoptionToken, KeepsTheLastOptionAcrossCommandsAndEngines) {
  SelectedEngine one;
  EXPECT_EQ(QvtOption_Parser::ReadQvtCommand("connect ov odm -quiet -NoAttach", one.imp), 0);
  EXPECT_EQ(newoption_token, "-NoAttach");
  SelectedEngine two;
  EXPECT_EQ(QvtOption_Parser::ReadQvtCommand("connect ov odm", two.imp), 0);
  EXPECT_EQ(newoption_token, "-NoAttach");
  EXPECT_EQ(cut("-5"), (Cut{0, "-5", ""}));
  EXPECT_EQ(cut(""), (Cut{3, "before", ""}));
  EXPECT_EQ(newoption_token, "-NoAttach");
  EXPECT_EQ(cut("-next"), (Cut{1, "-next", ""}));
  EXPECT_EQ(newoption_token, "-next");
}

// --- Pairs ---

TEST(GetTokenpair, ReadsAKeyAndItsValue) {
  expect_pair("type zarvek_plugin", {0, "type", "zarvek_plugin", ""});
  expect_pair(" type\t-5 port", {0, "type", "-5", " port"});
}

TEST(GetTokenpair, AnswersAnErrorForAKeyAlone) {
  expect_pair("type", {2, "type", "value before", ""});
  expect_pair("type \r\n", {2, "type", "value before", ""});
}

TEST(GetTokenpair, ConsumesAnOptionInPlaceOfTheValueAndAnswersAnError) {
  newoption_token = "-older";
  expect_pair("type -cable port", {2, "type", "-cable", " port"});
  EXPECT_EQ(newoption_token, "-cable");
}

TEST(GetTokenpair, AnswersOptionForAnOptionAndLeavesTheValue) {
  newoption_token = "-older";
  expect_pair("-cable type", {1, "-cable", "value before", " type"});
  EXPECT_EQ(newoption_token, "-cable");
}

TEST(GetTokenpair, AnswersTheEndForAnEmptyText) {
  expect_pair("", {3, "key before", "value before", ""});
  expect_pair(" \r\n\t", {3, "key before", "value before", ""});
}

TEST(GetTokenpair, ThrowsForALoneDashInEitherPlace) {
  std::string key;
  std::string value;
  std::string text = "- x";
  EXPECT_THROW(QvtOption_Parser::get_tokenpair(text, key, value), std::out_of_range);
  EXPECT_EQ(text, " x");
  text = "type - x";
  EXPECT_THROW(QvtOption_Parser::get_tokenpair(text, key, value), std::out_of_range);
  EXPECT_EQ(key, "type");
  EXPECT_EQ(value, "-");
  EXPECT_EQ(text, " x");
}

TEST(GetTokenpair, ReadsPairAfterPairOfAnyLength) {
  for (const std::string between : {" ", "\t", "  ", " \n"}) {
    std::string text;
    for (std::size_t length = 1; length < 80; ++length) {
      text.append(between).append(length, 'k').append(between).append("-5").append(80 - length, 'v');
    }
    std::string key;
    std::string value;
    for (std::size_t length = 1; length < 80; ++length) {
      ASSERT_EQ(QvtOption_Parser::get_tokenpair(text, key, value), 0);
      ASSERT_EQ(key, std::string(length, 'k'));
      ASSERT_EQ(value, "-5" + std::string(80 - length, 'v'));
    }
    EXPECT_EQ(text, "");
  }
}

}  // namespace
}  // namespace SdkDebugDialog
