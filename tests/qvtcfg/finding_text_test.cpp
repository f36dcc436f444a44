// How a finding is shown: the line, the marks below it, the remarks and the fixes.

#include "tools/qvtcfg/finding_text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "SdkDebugDialog/Diagnosis.h"

namespace {

using qvtcfg::finding_text;
using qvtcfg::Lines;
using qvtcfg::Look;
using SdkDebugDialog::find_finding_kind;
using SdkDebugDialog::Finding;
using SdkDebugDialog::Severity;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

constexpr Look kPlain{.colour = false, .columns = 60};

Finding finding(std::size_t begin, std::size_t end) {
  Finding made;
  made.kind = find_finding_kind("unknown-option");
  made.begin = begin;
  made.end = end;
  made.message = "no option";
  return made;
}

// The lines below the first one.
std::string lines_of(const std::string& text, const Finding& finding, const Look& look = kPlain) {
  const Lines lines(text);
  const std::string shown = finding_text(finding, {"f", &lines}, {"f", &lines}, look);
  return shown.substr(shown.find('\n') + 1);
}

TEST(FindingText, HasThePlaceTheSeverityAndTheRemedyInItsFirstLine) {
  Finding found = finding(5, 6);
  found.severity = Severity::warning;
  found.remedy = "remove it";
  const Lines lines("ab\ncd x\n");
  EXPECT_EQ(finding_text(found, {"a/b.opt", &lines}, {"a/b.opt", &lines}, kPlain),
            "a/b.opt:2:3: warning: no option; remove it [unknown-option]\n"
            "   2 | cd x\n"
            "     |   ^\n");
}

TEST(FindingText, MarksWholeWordsAndEmptyPlaces) {
  EXPECT_EQ(lines_of("ab cd ef", finding(3, 5)),
            "   1 | ab cd ef\n"
            "     |    ^^\n");
  EXPECT_EQ(lines_of("ab cd ef", finding(3, 3)),
            "   1 | ab cd ef\n"
            "     |    ^\n");
  EXPECT_EQ(lines_of("ab cd ef", finding(8, 8)),
            "   1 | ab cd ef\n"
            "     |         ^\n");
}

TEST(FindingText, OfAPlaceOverSeveralLinesShowsTheFirst) {
  EXPECT_EQ(lines_of("ab\ncd ef\ngh\n", finding(6, 12)),
            "   2 | cd ef\n"
            "     |    ^^\n");
}

TEST(FindingText, AboutTheWholeTextShowsNoLine) { EXPECT_EQ(lines_of("ab", finding(0, 0)), ""); }

TEST(FindingText, AlignsMarksBelowCharactersOfEveryWidth) {
  // Two bytes in one column, three in two columns, and a mark that takes none.
  EXPECT_EQ(lines_of("\u00e9 x", finding(3, 4)),
            "   1 | \u00e9 x\n"
            "     |   ^\n");
  EXPECT_EQ(lines_of("\u4e2d x", finding(4, 5)),
            "   1 | \u4e2d x\n"
            "     |    ^\n");
  EXPECT_EQ(lines_of("e\u0301 x", finding(4, 5)),
            "   1 | e\u0301 x\n"
            "     |   ^\n");
  EXPECT_EQ(lines_of("\u4e2d\u6587", finding(0, 6)),
            "   1 | \u4e2d\u6587\n"
            "     | ^^^^\n");
}

TEST(FindingText, SpellsWhatATerminalDoesNotShow) {
  EXPECT_EQ(lines_of("a\tx", finding(2, 3)),
            "   1 | a\\tx\n"
            "     |    ^\n");
  EXPECT_EQ(lines_of("\xff\x1b[31mx\r", finding(6, 8)),
            "   1 | \\xff\\x1b[31mx\\r\n"
            "     |             ^^^\n");
  EXPECT_EQ(lines_of("\u202e\ufeffx", finding(0, 3)),
            "   1 | \\u202e\\ufeffx\n"
            "     | ^^^^^^\n");
  // The beginning of a character alone is no text.
  EXPECT_EQ(lines_of("\xc3x", finding(1, 2)),
            "   1 | \\xc3x\n"
            "     |     ^\n");
}

TEST(FindingText, CutsALongLineAroundThePlace) {
  const std::string before(200, 'a');
  const std::string after(200, 'b');
  EXPECT_EQ(lines_of(before + " WORD " + after, finding(201, 205)),
            "   1 | ...aaaaaaaaaaaaaaaa WORD bbbbbbbbbbbbbbbbbbbbbbbbb...\n"
            "     |                     ^^^^\n");
  EXPECT_EQ(lines_of("WORD " + after, finding(0, 4)),
            "   1 | WORD bbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbbb...\n"
            "     | ^^^^\n");
  EXPECT_EQ(lines_of(before + " WORD", finding(201, 205)),
            "   1 | ...aaaaaaaaaaaaaaaa WORD\n"
            "     |                     ^^^^\n");
}

TEST(FindingText, FitsInTheColumnsWhateverTheLine) {
  for (const std::string& part : {std::string("a"), std::string("\u4e2d"), std::string("\xff"), std::string("a\tb ")}) {
    std::string text;
    while (text.size() < 1000) text += part;
    for (std::size_t at = part.size(); at <= text.size(); at += part.size()) {
      const std::string shown = lines_of(text, finding(at, std::min(at + 1, text.size())));
      const std::size_t wide = part == "\u4e2d" ? 3 : 1;  // at most so many bytes in a column
      ASSERT_LE(shown.find('\n') / wide, 60U) << shown;
      ASSERT_THAT(shown, HasSubstr("^"));
    }
  }
}

TEST(FindingText, UnderlinesARemarkOfTheSameLine) {
  Finding found = finding(0, 2);
  found.remarks = {{6, 8, "it counts"}};
  EXPECT_EQ(lines_of("ab cd ef", found),
            "   1 | ab cd ef\n"
            "     | ^^    --\n"
            "     = note: f:1:7: it counts\n");
}

TEST(FindingText, ShowsTheLineOfARemarkThatIsElsewhere) {
  Finding found = finding(3, 5);
  found.remarks = {{0, 2, "here"}, {0, 0, "without a place"}};
  EXPECT_EQ(lines_of("ab\ncd\n", found),
            "   2 | cd\n"
            "     | ^^\n"
            "     = note: f:1:1: here\n"
            "   1 | ab\n"
            "     | --\n"
            "     = note: without a place\n");
  const Lines lines("ab");
  const Lines other("xy z");
  found = finding(0, 2);
  found.remarks = {{3, 4, "the other file"}};
  EXPECT_THAT(finding_text(found, {"f", &lines}, {"g", &other}, kPlain), EndsWith("     = note: g:1:4: the other file\n"
                                                                                  "   1 | xy z\n"
                                                                                  "     |    -\n"));
}

TEST(FindingText, ShowsTheTextAfterAFix) {
  Finding found = finding(3, 5);
  found.fixes = {{"write 'XYZ'", true, {{3, 5, "XYZ"}}}, {"remove it", false, {{2, 5, ""}}}};
  EXPECT_EQ(lines_of("ab cd ef", found),
            "   1 | ab cd ef\n"
            "     |    ^^\n"
            "     = fix: write 'XYZ'\n"
            "   + | ab XYZ ef\n"
            "     = fix: remove it (a guess)\n"
            "   + | ab ef\n");
}

TEST(FindingText, ShowsEveryLineThatAFixChanges) {
  Finding found = finding(3, 5);
  found.fixes = {{"join the lines", true, {{2, 3, " "}, {5, 6, " "}}}, {"divide", true, {{4, 4, "\nx\n"}}}};
  EXPECT_EQ(lines_of("ab\ncd\nef\ngh", found),
            "   2 | cd\n"
            "     | ^^\n"
            "     = fix: join the lines\n"
            "   + | ab cd ef\n"
            "     = fix: divide\n"
            "   + | c\n"
            "   + | x\n"
            "   + | d\n");
}

TEST(FindingText, CutsTheTextAfterAFixToo) {
  Finding found = finding(201, 205);
  found.fixes = {{"write 'NEW'", true, {{201, 205, "NEW"}}}};
  EXPECT_EQ(lines_of(std::string(200, 'a') + " WORD " + std::string(9000, 'b'), found),
            "   1 | ...aaaaaaaaaaaaaaaa WORD bbbbbbbbbbbbbbbbbbbbbbbbb...\n"
            "     |                     ^^^^\n"
            "     = fix: write 'NEW'\n"
            "   + | ...aaaaaaaaaaaaaaaa NEW bbbbbbbbbbbbbbbbbbbbbbbbbb...\n");
}

TEST(FindingText, UsesColoursOnRequest) {
  Finding found = finding(3, 5);
  found.remarks = {{0, 2, "here"}};
  found.fixes = {{"write 'x'", true, {{3, 5, "x"}}}};
  const std::string shown = lines_of("ab cd", found, {.colour = true, .columns = 60});
  EXPECT_THAT(shown, HasSubstr("\033[1;31mcd\033[0m"));
  EXPECT_THAT(shown, HasSubstr("\033[1;31m^^\033[0m"));
  EXPECT_THAT(shown, HasSubstr("\033[1;36m--\033[0m"));
  EXPECT_THAT(shown, HasSubstr("\033[32mx\033[0m"));
  EXPECT_THAT(lines_of("ab cd", found), Not(HasSubstr("\033")));
}

TEST(FindingText, OfALineOfAnyLengthIsQuick) {
  const std::string text(std::size_t{16} << 20, 'a');
  const Lines lines(text);
  for (std::size_t i = 0; i < 1000; ++i) {
    Finding found = finding(i * 16000, i * 16000 + 3);
    found.fixes = {{"write 'x'", true, {{found.begin, found.end, "x"}}}};
    ASSERT_LT(finding_text(found, {"f", &lines}, {"f", &lines}, kPlain).size(), 1000U);
  }
}

TEST(Positions, AreLinesAndBytesOrCharacters) {
  const Lines lines("a\u00e9b\n\xff\u4e2dx");
  EXPECT_EQ(lines.position(3).column, 4U);
  EXPECT_EQ(lines.position_in_characters(3).column, 3U);
  EXPECT_EQ(lines.position(9).line, 2U);
  EXPECT_EQ(lines.position(9).column, 5U);
  EXPECT_EQ(lines.position_in_characters(9).column, 3U);
  std::string longer;
  for (int i = 0; i < 10000; ++i) longer += "\u00e9";
  EXPECT_EQ(Lines(longer).position_in_characters(16000).column, 8001U);
}

}  // namespace
