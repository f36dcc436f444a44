// Which word of a text counts as the one that the reader rejects: what the random tests compare the errors with.

#include <gtest/gtest.h>

#include <string>

#include "diagnosis_check.h"

namespace {

using SdkDebugDialog::TextKind;

// The text with the rejected word in brackets.
std::string rejected(const std::string& text, TextKind kind = TextKind::command, const std::string& processor = "") {
  static DiagnosisBench bench;
  const auto place = bench.rejected({processor, kind, text});
  if (!place) return "read";
  return text.substr(0, place->begin) + '[' + text.substr(place->begin, place->end - place->begin) + ']' +
         text.substr(place->end);
}
std::string rejected_file(const std::string& text) { return rejected(text, TextKind::optionFile); }
std::string rejected_cable(const std::string& text) { return rejected(text, TextKind::cableText); }

TEST(Rejected, IsTheWordThatMayNotStandThere) {
  EXPECT_EQ(rejected("conect ov odm"), "[conect] ov odm");
  EXPECT_EQ(rejected("connect -cable odm"), "connect [-cable] odm");
  EXPECT_EQ(rejected("connect ov -cable -quiet"), "connect ov [-cable] -quiet");
  EXPECT_EQ(rejected("connect ov odm -cabel type x"), "connect ov odm [-cabel] type x");
  EXPECT_EQ(rejected("connect ov odm -quiet x -foo"), "connect ov odm -quiet [x] -foo");
  EXPECT_EQ(rejected("connect ov odm x"), "connect ov odm [x]");
  EXPECT_EQ(rejected("connect ov odm -cable frequency 1 -uart"), "connect ov odm -cable frequency 1 [-uart]");
  EXPECT_EQ(rejected("connect ov odm -comm -foo -bar"), "connect ov odm -comm -foo [-bar]");
  EXPECT_EQ(rejected("connect ov sim -foo 1 2"), "connect ov sim [-foo] 1 2");
  EXPECT_EQ(rejected("connect odm -quiet"), "connect odm [-quiet]");
  EXPECT_EQ(rejected("vpconnect ov x"), "vpconnect ov [x]");
  EXPECT_EQ(rejected("connect ppc sim -icf -a -b"), "connect ppc sim -icf -a [-b]");
  EXPECT_EQ(rejected("connect ppc sim -icf -a b"), "connect ppc sim -icf -a [b]");
  EXPECT_EQ(rejected_cable("-bscan USER1 x"), "-bscan USER1 [x]");
  EXPECT_EQ(rejected_cable("x"), "[x]");
  EXPECT_EQ(rejected_file("\n\nqconnect ov odm\n"), "\n\n[qconnect] ov odm\n");
  EXPECT_EQ(rejected_file("connect odm"), "connect [odm]");
}

TEST(Rejected, IsTheConnectionThatIsNotAdmitted) {
  EXPECT_EQ(rejected("connect ov stub", TextKind::command, "ovrin_1"), "connect ov [stub]");
  EXPECT_EQ(rejected("vpconnect ov -foo", TextKind::command, "ovrin_1"), "vpconnect [ov] -foo");
}

TEST(Rejected, IsTheUnknownKeywordOrItsWrongValue) {
  EXPECT_EQ(rejected("connect ov odm -cable freq 1"), "connect ov odm -cable [freq] 1");
  EXPECT_EQ(rejected("connect ov odm -cable type x port y"), "connect ov odm -cable type [x] port y");
  EXPECT_EQ(rejected("connect ov odm -debugdevice cpunr 1 icacheStartAdr 1"),
            "connect ov odm -debugdevice cpunr 1 icacheStartAdr [1]");
  EXPECT_EQ(rejected("connect ov odm -debugdevice cpunr 1 type 1"), "connect ov odm -debugdevice cpunr 1 [type] 1");
  EXPECT_EQ(rejected("connect ov odm -debugdevice cpunr 9", TextKind::command, "ovrin_1"),
            "connect ov odm -debugdevice cpunr [9]");
  EXPECT_EQ(rejected("connect ov odm -pfsl type type"), "connect ov odm -pfsl type [type]");
  EXPECT_EQ(rejected_cable("-bscan USER5"), "-bscan [USER5]");
  EXPECT_EQ(rejected_cable("-configdevice jtagpin cpujtag"), "-configdevice [jtagpin] cpujtag");
}

TEST(Rejected, IsTheKeywordOrOptionWithoutValue) {
  EXPECT_EQ(rejected("connect ov odm -cable type"), "connect ov odm -cable [type]");
  EXPECT_EQ(rejected("connect ov odm -cable port x type -quiet"), "connect ov odm -cable port x [type] -quiet");
  EXPECT_EQ(rejected("connect ov odm -cable foo -quiet"), "connect ov odm -cable [foo] -quiet");
  EXPECT_EQ(rejected("connect ov odm -bscan -quiet"), "connect ov odm [-bscan] -quiet");
  EXPECT_EQ(rejected("connect ov odm -bscan"), "connect ov odm [-bscan]");
  EXPECT_EQ(rejected("connect ov sim -memsize"), "connect ov sim [-memsize]");
  EXPECT_EQ(rejected("vpconnect ov -config -ipcport"), "vpconnect ov [-config] -ipcport");
}

TEST(Rejected, IsALoneDash) {
  EXPECT_EQ(rejected("-"), "[-]");
  EXPECT_EQ(rejected("connect ov odm -cable type - -quiet"), "connect ov odm -cable type [-] -quiet");
  EXPECT_EQ(rejected("connect ov odm -quiet x -"), "connect ov odm -quiet [x] -");
  EXPECT_EQ(rejected("connect ov odm -bscan -"), "connect ov odm -bscan [-]");
  EXPECT_EQ(rejected("connect ov odm -cable x - -quiet"), "connect ov odm -cable x [-] -quiet");
}

TEST(Rejected, IsWhatFailsAtTheEnd) {
  EXPECT_EQ(rejected("connect ov odm -cable frequency 6 type zarvek_platformusb frequency 7"),
            "connect ov odm -cable frequency 6 type zarvek_platformusb frequency [7]");
  EXPECT_EQ(rejected("connect ov odm -cable FREQUENCY 7"), "connect ov odm -cable FREQUENCY [7]");
  EXPECT_EQ(rejected("connect ov odm -cable type zarvek_plugin -quiet -cable frequency 1"),
            "connect ov odm -cable type zarvek_plugin -quiet [-cable] frequency 1");
  EXPECT_EQ(rejected("connect ov odm -cable type zarvek_plugin modulename x frequency 1"),
            "connect ov odm -cable type zarvek_plugin modulename x frequency [1]");
}

TEST(Rejected, IsTheLastWordOfATextThatEndsTooEarly) {
  EXPECT_EQ(rejected(""), "[]");
  EXPECT_EQ(rejected(" \t "), "[ \t ]");
  EXPECT_EQ(rejected("connect "), "[connect] ");
  EXPECT_EQ(rejected("connect ov"), "connect [ov]");
  EXPECT_EQ(rejected_file("\n\r\nconnect ov odm"), "\n[\r]\nconnect ov odm");
  EXPECT_EQ(rejected_file("\n\n"), "read");
}

TEST(Rejected, IsTheWordThatIsLeftOfALongLine) {
  const std::string line = "connect ov odm -cable port " + std::string(988, 'x') + " type";
  ASSERT_EQ(line.size(), 1020U);
  EXPECT_EQ(rejected_file(line + " zarvek_parallel3"), line + " [za]rvek_parallel3");
}

}  // namespace
