// Values that are not what they seem.

#include <gtest/gtest.h>

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <optional>
#include <random>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "findings/checks.h"
#include "options/field.h"
#include "options/groups.h"
#include "options/pairs.h"
#include "settings/number_text.h"

namespace {

using namespace SdkDebugDialog;

const Keyword& row_of(const Group& group, std::string_view name) {
  return *std::ranges::find(group.keywords, name, [](const Keyword& row) { return row.name.text(); });
}

constexpr std::size_t kBegin = 10;

std::vector<Finding> findings_of(const Keyword& row, std::string_view value) {
  Report report;
  check_number(row, value, {kBegin, kBegin + value.size()}, report);
  return std::move(report).findings();
}

std::vector<Finding> findings_of_text(std::string_view value) {
  Report report;
  check_text(row_of(kCable, "port"), value, {kBegin, kBegin + value.size()}, report);
  return std::move(report).findings();
}

// "code: message; remedy", then the fixes: "!" for a safe one, "?" for another, and the place if it is not the value.
std::string shown(const std::vector<Finding>& findings, std::string_view value) {
  std::string out;
  for (const Finding& finding : findings) {
    out.append(finding.kind->code).append(": ").append(finding.message).append("; ").append(finding.remedy);
    if (finding.begin != kBegin || finding.end != kBegin + value.size()) {
      out.append(" @").append(value.substr(finding.begin - kBegin, finding.end - finding.begin));
    }
    for (const Fix& fix : finding.fixes) {
      out.append(fix.safe ? " !" : " ?").append(fix.replacements.at(0).text);
      EXPECT_EQ(fix.replacements.at(0).begin, finding.begin);
      EXPECT_EQ(fix.replacements.at(0).end, finding.end);
    }
  }
  return out;
}

struct Case {
  const Group& group;
  const char* keyword;
  const char* value;
  const char* shown;
};

void expect(const std::vector<Case>& cases) {
  for (const Case& c : cases) {
    EXPECT_EQ(shown(findings_of(row_of(c.group, c.keyword), c.value), c.value), c.shown) << c.keyword << " " << c.value;
  }
}

TEST(Values, PlainNumbersAreFine) {
  expect({
      {kCable, "frequency", "12000000", ""},
      {kCable, "frequency", "0", ""},
      {kCable, "frequency", "+6", ""},
      {kCable, "frequency", "-0", ""},
      {kCable, "frequency", "0xB71B00", ""},
      {kCable, "frequency", "4294967295", ""},
      {kCable, "frequency", "007", ""},
      {kConfigdevice, "idcode", "0x4BA0A177", ""},
      {kConfigdevice, "devicenr", "127", ""},
      {kDebugdevice, "deviceNr", "2", ""},
      {kDebugdevice, "cpunr", "200", ""},
      {kDebugdevice, "cpunr", "-56", ""},
      {kDebugdevice, "nCpu", "-1", ""},
      {kDebugdevice, "romemStartAdr", "0xffffffff", ""},
      {kStub, "-baud", "115200", ""},
  });
}

TEST(Values, NoNumber) {
  expect({
      {kCable, "frequency", "abc",
       "not-a-number: 'abc' is read as 0: it is no number; write a number from 0 to 4294967295"},
      {kDebugdevice, "deviceNr", "two",
       "not-a-number: 'two' is read as 0: it is no number; write a number from 0 to 127"},
      {kConfigdevice, "idcode", "ba0a177",
       "not-a-number: 'ba0a177' is read as 0x00000000: it is no number; write 0x0ba0a177 ?0x0ba0a177"},
  });
}

TEST(Values, CharactersBehindTheNumber) {
  expect({
      {kDebugdevice, "deviceNr", "2x", "trailing-characters: '2x' is read as 2: the rest is ignored; write 2 ?2"},
      {kCable, "frequency", "12e6",
       "trailing-characters: '12e6' is read as 12: the rest is ignored; write 12000000 ?12000000"},
      {kCable, "frequency", "1_000",
       "trailing-characters: '1_000' is read as 1: the rest is ignored; write 1000 ?1000"},
      {kDebugdevice, "deviceNr", "300x",
       "trailing-characters: '300x' is read as 44: the rest is ignored; write a number from 0 to 127"},
      {kDebugdevice, "romemStartAdr", "0x1000h",
       "trailing-characters: '0x1000h' is read as 0x00001000: the rest is ignored; write 0x00001000 !0x00001000"},
      {kDebugdevice, "romemStartAdr", "1000h",
       "trailing-characters: '1000h' is read as 0x000003e8: the rest is ignored; write 0x00001000 ?0x00001000"},
      {kDebugdevice, "romemSize", "0A00H",
       "trailing-characters: '0A00H' is read as 0: the rest is ignored; write 2560 ?2560"},
      {kConfigdevice, "idcode", "0a001093",
       "trailing-characters: '0a001093' is read as 0x00000000: the rest is ignored; write 0x0a001093 ?0x0a001093"},
      {kDebugdevice, "deviceNr", "0x", "trailing-characters: '0x' is read as 0: the rest is ignored; write 0 ?0"},
      {kDebugdevice, "deviceNr", "2K", "trailing-characters: '2K' is read as 2: the rest is ignored; write 2 ?2"},
      {kStub, "-timeout", "20s", "trailing-characters: '20s' is read as 20: the rest is ignored; write 20 ?20"},
  });
}

TEST(Values, SeparatorsBehindTheNumber) {
  expect({
      {kCable, "frequency", "12000000,",
       "trailing-characters: '12000000,' is read as 12000000: the rest is ignored; write 12000000 !12000000"},
      {kDebugdevice, "deviceNr", "2;", "trailing-characters: '2;' is read as 2: the rest is ignored; write 2 !2"},
      {kConfigdevice, "idcode", "0x0a001093,",
       "trailing-characters: '0x0a001093,' is read as 0x0a001093: the rest is ignored; write 0x0a001093 !0x0a001093"},
      {kConfigdevice, "irlength", "300,",
       "trailing-characters: '300,' is read as 44: the rest is ignored; write a number from 0 to 127"},
      {kPpcSim, "-ipcport", "host:80,",
       "trailing-characters: '80,' is read as 80: the rest is ignored; write 80 @80, !80"},
  });
}

TEST(Values, SeparatorsOfThousands) {
  for (const char* const value : {"12,000,000", "12'000'000", "12.000.000"}) {
    EXPECT_EQ(shown(findings_of(row_of(kCable, "frequency"), value), value),
              std::string("trailing-characters: '") + value +
                  "' is read as 12: the rest is ignored; write 12000000 ?12000000");
  }
  expect({
      {kStub, "-baud", "115,200",
       "trailing-characters: '115,200' is read as 115: the rest is ignored; write 115200 ?115200"},
  });
}

// Where a number with a unit may stand, the digits in front are hardly what was meant.
TEST(Values, NothingCertain) {
  for (const char* const value : {"12.0", "12.5", "12x", "12,5", "1234,000", "12,000.000", "12.000", "12MHzz"}) {
    const std::vector<Finding> findings = findings_of(row_of(kCable, "frequency"), value);
    ASSERT_EQ(findings.size(), 1U) << value;
    EXPECT_EQ(findings[0].kind->code, "trailing-characters") << value;
    EXPECT_EQ(findings[0].remedy, "write the whole number, in Hz") << value;
    EXPECT_TRUE(findings[0].fixes.empty()) << value;
  }
  expect({
      {kDebugdevice, "romemStartAdr", "0x1000,0",
       "trailing-characters: '0x1000,0' is read as 0x00001000: the rest is ignored; write the whole number"},
  });
}

TEST(Values, Units) {
  expect({
      {kCable, "frequency", "12MHz",
       "unit-ignored: '12MHz' is read as 12: units are ignored; write 12000000 ?12000000"},
      {kCable, "frequency", "200kHz", "unit-ignored: '200kHz' is read as 200: units are ignored; write 200000 ?200000"},
      {kCable, "frequency", "1.5M", "unit-ignored: '1.5M' is read as 1: units are ignored; write 1500000 ?1500000"},
      // Nothing is lost with this unit.
      {kCable, "frequency", "6000000Hz",
       "unit-ignored: '6000000Hz' is read as 6000000: units are ignored; write 6000000 !6000000"},
      {kCable, "frequency", "5GHz",
       "unit-ignored: '5GHz' is read as 5: units are ignored; write a number from 0 to 4294967295"},
      {kStub, "-baud", "115.2k", "unit-ignored: '115.2k' is read as 115: units are ignored; write 115200 ?115200"},
      {kDebugdevice, "romemSize", "64K", "unit-ignored: '64K' is read as 64: units are ignored; write 65536 ?65536"},
      {kDebugdevice, "romemStartAdr", "64K",
       "unit-ignored: '64K' is read as 0x00000040: units are ignored; write 0x00010000 ?0x00010000"},
  });
}

TEST(Values, Octal) {
  expect({
      {kDebugdevice, "deviceNr", "010",
       "octal-number: '010' is read as 8: a leading zero makes it octal; write 8, or 10 if that is meant !8 ?10"},
      {kDebugdevice, "deviceNr", "08",
       "octal-number: '08' is read as 0: a leading zero makes it octal; write 0, or 8 if that is meant !0 ?8"},
      {kDebugdevice, "romemStartAdr", "0100",
       "octal-number: '0100' is read as 0x00000040: a leading zero makes it octal; write 0x00000040, or 0x00000100 if "
       "that is meant !0x00000040 ?0x00000100"},
      {kDebugdevice, "deviceNr", "0377",
       "octal-number: '0377' is read as -1: a leading zero makes it octal; write a number from 0 to 127"},
      {kDebugdevice, "nCpu", "-010",
       "octal-number: '-010' is read as -8: a leading zero makes it octal; write -8, or -10 if that is meant !-8 ?-10"},
  });
}

TEST(Values, NegativeNumbers) {
  expect({
      {kCable, "frequency", "-5",
       "negative-number: '-5' is read as 4294967291: it is negative; write a number from 0 to 4294967295"},
      {kDebugdevice, "romemStartAdr", "-1",
       "negative-number: '-1' is read as 0xffffffff: it is negative; write a number from 0 to 0xffffffff"},
      {kStub, "-baud", "-5", "negative-number: '-5' is negative; write a number from 0 to 2147483647"},
      {kDebugdevice, "deviceNr", "-5", "negative-number: '-5' is negative; write a number from 0 to 127"},
      {kConfigdevice, "devicenr", "-1", "negative-number: '-1' is negative; write a number from 0 to 127"},
      {kConfigdevice, "irlength", "-200",
       "negative-number: '-200' is read as 56: it is negative; write a number from 0 to 127"},
      {kConfigdevice, "isfpga", "-1", "negative-number: '-1' is negative; write a number from 0 to 127"},
      {kDebugdevice, "cpunr", "-129",
       "negative-number: '-129' is read as 127: it is negative; write a number from 0 to 255"},
  });
}

TEST(Values, NumbersBeyondTheirField) {
  expect({
      {kDebugdevice, "deviceNr", "300",
       "number-too-large: '300' is read as 44: it is too large; write a number from 0 to 127"},
      {kConfigdevice, "irlength", "200",
       "number-too-large: '200' is read as -56: it is too large; write a number from 0 to 127"},
      {kDebugdevice, "cpunr", "256",
       "number-too-large: '256' is read as 0: it is too large; write a number from 0 to 255"},
      {kCable, "frequency", "4294967296",
       "number-too-large: '4294967296' is read as 0: it is too large; write a number from 0 to 4294967295"},
      {kCable, "frequency", "99999999999999999999999",
       "number-too-large: '99999999999999999999999' is read as 4294967295: it is too large; write a number from 0 to "
       "4294967295"},
      {kStub, "-timeout", "3000000000",
       "number-too-large: '3000000000' is read as -1294967296: it is too large; write a number from 0 to 2147483647"},
      {kConfigdevice, "idcode", "0x10a001093",
       "number-too-large: '0x10a001093' is read as 0x0a001093: it is too large; write a number from 0 to 0xffffffff"},
      {kDebugdevice, "nCpu", "3000000000",
       "number-too-large: '3000000000' is read as -1294967296: it is too large; write a number from -2147483648 to "
       "2147483647"},
  });
}

TEST(Values, HostAndPort) {
  expect({
      {kPpcSim, "-ipcport", "localhost:7000", ""},
      {kPpcSim, "-ipcport", ":0", ""},
      {kPpcSim, "-ipcport", "host:010", ""},  // read as a decimal number
      {kPpcSim, "-ipcport", "host1",
       "address-without-port: 'host1' has no port: without a colon the port is 6470 and the host stays; write host and "
       "port with a colon between them"},
      {kHdlSim, "-ipcport", "7000",
       "address-without-port: '7000' has no port: without a colon nothing changes; write ':7000' ?:7000"},
      {kPpcSim, "-ipcport",
       "host:", "not-a-number: the port is missing and read as 0; write a number from 1 to 65535 behind the colon @:"},
      {kPpcSim, "-ipcport", "host:abc",
       "not-a-number: 'abc' is read as 0: it is no number; write a number from 0 to 65535 @abc"},
      {kPpcSim, "-ipcport", "host:0x10",
       "trailing-characters: '0x10' is read as 0: the rest is ignored; write 16 @0x10 ?16"},
      {kPpcSim, "-ipcport", "host:80/",
       "trailing-characters: '80/' is read as 80: the rest is ignored; write 80 @80/ ?80"},
      {kPpcSim, "-ipcport", "host:-5",
       "negative-number: '-5' is read as 4294967291: it is negative; write a number from 0 to 65535 @-5"},
      {kVirtualPlatform, "-ipcport", "host:70000",
       "number-too-large: '70000' is too large; write a number from 0 to 65535 @70000"},
  });
}

TEST(Values, OtherKindsAreNoNumbers) {
  expect({
      {kCable, "port", "12x", ""},
      {kCable, "type", "12x", ""},
      {kConfigdevice, "hardppc", "12x", ""},
      {kConfigdevice, "partname", "010", ""},
  });
}

// --- Compared with the reader ---

// What the reader makes of a value.
std::optional<std::int64_t> read_by_reader(const Keyword& row, std::string_view value) {
  Engine engine;
  ProcessorInfoImp processor;
  engine.imp->currentProcessor = &processor;
  JtagOption device;
  const Records records = records_of(*engine.imp, &device);
  std::optional<std::int64_t> number;
  if (!read_value(row, {row.name.text(), value, LetterCase()}, records)) return number;
  with_field(row.field, records, [&]<class Value>(const Value& stored) {
    if constexpr (std::is_integral_v<Value>) number = stored;
  });
  return number;
}

// What a person takes the value for: a decimal or hexadecimal number.
std::optional<std::int64_t> seen_by_person(std::string_view value) {
  const bool isNegative = value.starts_with('-');
  if (isNegative || value.starts_with('+')) value.remove_prefix(1);
  const bool isHexadecimal = value.starts_with("0x") || value.starts_with("0X");
  if (isHexadecimal) value.remove_prefix(2);
  std::int64_t number = 0;
  const char* const end = value.data() + value.size();
  const auto [at, error] = std::from_chars(value.data(), end, number, isHexadecimal ? 16 : 10);
  if (error != std::errc() || at != end || value.starts_with('-')) return std::nullopt;
  return isNegative ? -number : number;
}

std::vector<std::string> many_values() {
  std::vector<std::string> values;
  std::istringstream numbers(
      "0 00 1 7 007 8 08 010 10 0x10 0X1F 0x 0xg 12x 12MHz 200kHz 64K 1.5M 12e6 1_000 127 128 129 255 256 300 0377 "
      "0777 "
      "0x7f 32767 65535 65536 2147483647 2147483648 2147483649 4294967295 4294967296 037777777777 0xffffffff "
      "0x1ffffffff "
      "9223372036854775807 9223372036854775808 18446744073709551615 18446744073709551616 0xffffffffffffffffff");
  for (std::string number; numbers >> number;) {
    for (const char* const sign : {"", "-", "+"}) values.push_back(sign + number);
  }
  std::mt19937 random(1);
  constexpr std::string_view kCharacters = "00112789xXabfKMHz.+-_e";
  for (int i = 0; i < 3000; ++i) {
    std::string value;
    for (std::size_t length = 1 + random() % 9; length > 0; --length)
      value += kCharacters[random() % kCharacters.size()];
    const bool isOption = value.starts_with('-') && (value.size() == 1 || value[1] < '0' || value[1] > '9');
    if (!isOption) values.push_back(value);
  }
  return values;
}

TEST(Values, AreToldExactlyWhereTheReaderTakesThemForAnother) {
  std::vector<const Keyword*> rows;
  for (const Group* const group : {&kCable, &kConfigdevice, &kDebugdevice, &kStub, &kSoftSim}) {
    for (const Keyword& row : group->keywords) {
      const bool isPlain = row.read == nullptr || row.name.text() == "cpunr";
      if (isPlain && row.kind != Kind::text && row.kind != Kind::word) rows.push_back(&row);
    }
  }
  ASSERT_GE(rows.size(), 14U);

  for (const std::string& value : many_values()) {
    const std::optional<std::int64_t> seen = seen_by_person(value);
    for (const Keyword* const row : rows) {
      const std::optional<std::int64_t> stored = read_by_reader(*row, value);
      ASSERT_TRUE(stored);
      const bool isByte = *stored >= -128 && *stored < 256;
      // The writer writes the byte 200 as -56.
      const bool isWrittenByte = row->name.text() == "cpunr" && isByte && seen == static_cast<std::int8_t>(*stored);
      const bool mayBeNegative = row->kind == Kind::signedNumber || row->name.text() == "cpunr";
      const bool isSame = (seen == stored && (*seen >= 0 || mayBeNegative)) || isWrittenByte;

      const std::vector<Finding> findings = findings_of(*row, value);
      ASSERT_EQ(findings.size(), isSame ? 0U : 1U) << row->name.text() << " " << value;
      if (isSame) continue;

      const bool isHexadecimal = row->kind == Kind::hexadecimal || row->kind == Kind::address;
      const std::string spelled =
          isHexadecimal ? address_text(static_cast<std::uint32_t>(*stored)) : std::to_string(*stored);
      const std::string told = seen == stored ? "" : " is read as " + spelled + ":";
      EXPECT_NE(findings[0].message.find(told), std::string::npos)
          << row->name.text() << " " << findings[0].message << " " << spelled;
      for (std::size_t i = 0; i < findings[0].fixes.size(); ++i) {
        const Fix& fix = findings[0].fixes[i];
        const std::string& fixed = fix.replacements.at(0).text;
        EXPECT_TRUE(findings_of(*row, fixed).empty()) << row->name.text() << " " << value << " " << fixed;
        if (fix.safe) {
          EXPECT_EQ(read_by_reader(*row, fixed), stored) << row->name.text() << " " << value;
        }
        EXPECT_TRUE(!fix.safe || i == 0);
      }
    }
  }
}

// --- Texts ---

TEST(Values, Quotes) {
  const auto expectText = [](std::string_view value, std::string_view expected) {
    EXPECT_EQ(shown(findings_of_text(value), value), expected) << value;
  };
  expectText("/dev/ttyUSB0", "");
  expectText("it's", "");
  expectText("it\"s", "quotes: 'it\"s' keeps its quotes: they are part of the text; write the text without quotes");
  expectText("C:\\dir\\port", "");
  expectText("\"/dev/tty\"",
             "quotes: '\"/dev/tty\"' keeps its quotes: they are part of the text; write the text without quotes "
             "?/dev/tty");
  expectText("'USB21'",
             "quotes: ''USB21'' keeps its quotes: they are part of the text; write the text without quotes "
             "?USB21");
  expectText("\"my", "quotes: '\"my' ends here: quotes join no words; use a text without blanks and quotes");
  expectText("\"a'", "quotes: '\"a'' ends here: quotes join no words; use a text without blanks and quotes");
  expectText("my\\",
             "quotes: 'my\\' ends here: a backslash does not keep the blank behind it; use a text without "
             "blanks");
  // Nothing would be left, or an option.
  for (const char* const value : {"\"", "\"\"", "'-x'"}) {
    const std::vector<Finding> findings = findings_of_text(value);
    ASSERT_EQ(findings.size(), 1U) << value;
    EXPECT_TRUE(findings[0].fixes.empty()) << value;
  }
}

void expect_text(const Keyword& row, std::string_view value, std::string_view expected) {
  Report report;
  check_text(row, value, {kBegin, kBegin + value.size()}, report);
  EXPECT_EQ(shown(std::move(report).findings(), value), expected) << value;
}

TEST(Values, SeparatorsBehindTheText) {
  expect_text(row_of(kCable, "port"), "USB21,",
              "trailing-characters: 'USB21,' keeps ',' at its end; write 'USB21' ?USB21");
  expect_text(row_of(kStub, "-port"), "a,b;;", "trailing-characters: 'a,b;;' keeps ';;' at its end; write 'a,b' ?a,b");
  expect_text(row_of(kConfigdevice, "partname"), ",",
              "trailing-characters: ',' keeps ',' at its end; separate words by blanks alone");
  expect_text(row_of(kCable, "modulearg"), "a,", "");
}

TEST(Values, WhatAShellReplaces) {
  expect_text(row_of(kPpcSim, "-icf"), "~/x",
              "quotes: '~/x' keeps its '~': no shell replaces it by a folder; write the whole name");
  expect_text(row_of(kCable, "fname"), "a/${HOME}/x",
              "quotes: 'a/${HOME}/x' keeps its '$': no shell replaces a variable; write the whole name");
  for (const char* const value : {"C:\\x", "a~", "x$", "~x"}) expect_text(row_of(kStub, "-port"), value, "");
  expect_text(row_of(kCable, "modulearg"), "$x", "");
}

TEST(Values, AreFindingsOfAnyLength) {
  const std::string digits(1 << 20, '7');
  for (const std::string& value : {digits, digits + "x", "0" + digits, "0x" + digits, "-" + digits}) {
    EXPECT_EQ(findings_of(row_of(kCable, "frequency"), value).size(), 1U);
  }
  EXPECT_LT(findings_of(row_of(kCable, "frequency"), digits + "M")[0].message.size(), 200U);
}

}  // namespace
