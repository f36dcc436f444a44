// What is wrong with an option file, beside the command in it.

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "SdkDebugDialog/Configuration.h"
#include "SdkDebugDialog/OptionFile.h"
#include "findings/checks.h"

namespace {

using namespace SdkDebugDialog;
using namespace std::string_literals;

constexpr std::string_view kCommand = "connect ov odm -cable type zarvek_platformusb frequency 6000000";

std::vector<Finding> findings_of(std::string_view content) {
  const Processor none;
  const Subject subject(content, TextKind::optionFile, none);
  Report report;
  check_file(subject, report);
  EXPECT_EQ(report.errors(), 0U);
  return std::move(report).findings();
}

// "BEGIN-END code: message", a line each.
std::string shown(std::string_view content) {
  std::string out;
  for (const Finding& finding : findings_of(content)) {
    EXPECT_EQ(finding.severity, Severity::warning);
    EXPECT_FALSE(finding.remedy.empty());
    out.append(std::to_string(finding.begin)).append("-").append(std::to_string(finding.end)).append(" ");
    out.append(finding.kind->code).append(": ").append(finding.message).append("\n");
  }
  return out;
}

TEST(File, WithoutMistakes) {
  const std::string command(kCommand);
  for (const std::string& content : {""s, "\n"s, "\n\n"s, command, command + "\n", "\n\n" + command + "\n\n",
                                     command + "\n\r\n \t\n", "connect ov stub -port /dev/t\xC3\xBC\xE2\x82\xAC\n"s}) {
    EXPECT_EQ(shown(content), "") << content;
  }
}

TEST(File, LineTooLong) {
  const std::string line(kLongestLine, 'x');
  EXPECT_EQ(shown(line), "");
  EXPECT_EQ(shown(line + "\n"), "");
  EXPECT_EQ(shown(line + "y"),
            "1023-1024 line-too-long: the last 1 byte of the line is not read: it is longer than 1023 bytes\n");
  EXPECT_EQ(shown("\n" + line + "yy z \r\n"),
            "1024-1028 line-too-long: the last 4 bytes of the line are not read: it is longer than 1023 bytes\n");
  EXPECT_EQ(shown(line + " \r\n"), "");
}

TEST(File, CarriageReturnAtTheEnd) {
  for (const std::string_view lines : {"connect ov odm\r", "connect ov odm\r\n", "connect ov odm\r\r\n\n"}) {
    const std::vector<Finding> findings = findings_of(lines);
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings[0].kind->code, "carriage-return");
    EXPECT_EQ(findings[0].begin, 14U);
    ASSERT_EQ(findings[0].fixes.size(), 1U);
    EXPECT_TRUE(findings[0].fixes[0].safe);
    const std::string fixed = with_fixes(lines, findings);
    EXPECT_EQ(option_line(fixed), "connect ov odm");
    EXPECT_TRUE(findings_of(fixed).empty());
  }
}

TEST(File, CarriageReturnElsewhere) {
  EXPECT_EQ(shown("connect ov odm\rconnect ov sim\r-quiet\r\n"),
            "14-15 carriage-return: a carriage return inside the line ends no line: it may be part of a word\n"
            "36-37 carriage-return: the line ends with a carriage return\n");
  EXPECT_EQ(shown("connect ov odm \r\r -quiet\n"),
            "15-17 carriage-return: a carriage return inside the line ends no line: it may be part of a word\n");
  // What follows is not read, so that this is not the end of the line.
  const std::string cut = std::string(kLongestLine - 1, 'x') + "\r";
  EXPECT_EQ(shown(cut + "y"),
            "1023-1024 line-too-long: the last 1 byte of the line is not read: it is longer than 1023 bytes\n");
  EXPECT_EQ(shown(cut + "\n"), "1022-1023 carriage-return: the line ends with a carriage return\n");
}

// The reader refuses such a line.
TEST(File, OfBlanks) {
  for (const std::string_view lines : {"\r", "\r\n", "\r\nconnect ov odm\r\n", " \t\r\n# comment\n"}) {
    EXPECT_EQ(shown(lines), "") << lines;
  }
}

TEST(File, FurtherLines) {
  EXPECT_EQ(shown("connect ov odm\nconnect ov sim\n"),
            "15-29 further-lines: 1 further line is not read: only the first one is\n");
  EXPECT_EQ(shown("\nconnect ov odm\n\n  a b \r\n \r\n# c\nd"),
            "19-33 further-lines: 2 further lines are not read: only the first one is\n"
            "28-31 comment: a comment is a line that is not read, and lost when the file is written\n");
}

TEST(File, Comments) {
  for (const std::string_view comment : {"# the cable", "//", "; x", "-- x", "#"}) {
    const std::string content = "connect ov odm\n \t" + std::string(comment) + "\r\n\n";
    EXPECT_EQ(shown(content),
              "17-" + std::to_string(17 + comment.size()) +
                  " comment: a comment is a line that is not read, and lost when the file is written\n");
  }
  std::string many = "connect ov odm\n";
  for (int i = 0; i < 10'000; ++i) many += "# comment\n";
  EXPECT_EQ(findings_of(many).size(), Report::kMostOfOneKind + 1);
}

TEST(File, BytesThatAreNoText) {
  EXPECT_EQ(shown("connect ov stub -port a\0b"s), "23-24 not-text: the byte 0x00 is no text\n");
  EXPECT_EQ(shown("connect ov odm\n\n\x01\x7F\n"),
            "16-17 not-text: the byte 0x01 is no text; there are 2 such bytes\n"
            "16-18 further-lines: 1 further line is not read: only the first one "
            "is\n");
  EXPECT_EQ(shown("connect ov stub -port \xE9t\xE9"),
            "22-23 not-text: the byte 0xe9 is no text; there are 2 such bytes\n");
  // Overlong, a surrogate, beyond Unicode, cut, a control character of two bytes.
  for (const std::string_view bytes : {"\xC0\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xE2\x82", "\xC2\x85"}) {
    const std::vector<Finding> findings = findings_of("connect ov stub -port x" + std::string(bytes) + " -quiet");
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings[0].begin, 23U);
    EXPECT_NE(findings[0].message.find(std::to_string(bytes.size()) + " such bytes"), std::string::npos);
  }
}

TEST(File, ByteOrderMarks) {
  const std::string mark = "\xEF\xBB\xBF";
  // At the beginning of the line it is an error of the line.
  EXPECT_EQ(shown(mark + "connect ov odm"), "");
  EXPECT_EQ(shown("\n" + mark + "connect ov odm"), "");
  EXPECT_EQ(shown("connect ov stub -port " + mark + "a"),
            "22-25 byte-order-mark: a byte-order mark stands inside the file\n");
  EXPECT_EQ(shown("connect ov odm\n" + mark + "\n" + mark),
            "15-18 byte-order-mark: a byte-order mark stands inside the file; there are 2\n"
            "15-22 further-lines: 2 further lines are not read: only the first one is\n");
}

TEST(File, Utf16) {
  std::string little, big;
  for (const char c : kCommand) {
    little.append(1, c).append(1, '\0');
    big.append(1, '\0').append(1, c);
  }
  for (const std::string& content : {"\xFF\xFE" + little, "\xFE\xFF" + big, little, big}) {
    EXPECT_EQ(shown(content), "0-2 not-text: the file is UTF-16: two bytes a character\n");
  }
  EXPECT_EQ(shown("\xFF\xFE"), "0-2 not-text: the file is UTF-16: two bytes a character\n");
  EXPECT_EQ(shown(std::string(8, '\0')), "0-1 not-text: the byte 0x00 is no text; there are 8 such bytes\n");
}

}  // namespace
