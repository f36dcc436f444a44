#include "options/number.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace SdkDebugDialog {
namespace {

using namespace std::string_literals;

void expect_as_c_library(const std::string& text) {
  SCOPED_TRACE(testing::PrintToString(text));
  EXPECT_EQ(to_unsigned(text), std::strtoull(text.c_str(), nullptr, 0));
  EXPECT_EQ(to_signed(text), std::strtoll(text.c_str(), nullptr, 0));
  EXPECT_EQ(to_decimal(text), std::strtoll(text.c_str(), nullptr, 10));
}

TEST(Number, ReadsTextsAsExpected) {
  struct Row {
    std::string text;
    std::uint64_t asUnsigned;
    std::int64_t asSigned;
    std::int64_t asDecimal;
  };
  constexpr std::uint64_t kMax = std::numeric_limits<std::uint64_t>::max();
  constexpr std::int64_t kHighest = std::numeric_limits<std::int64_t>::max();
  constexpr std::int64_t kLowest = std::numeric_limits<std::int64_t>::min();
  const std::vector<Row> rows = {
      {"", 0, 0, 0},
      {"0", 0, 0, 0},
      {"16", 16, 16, 16},
      {"0x100", 256, 256, 0},
      {"0X1c200", 115200, 115200, 0},
      {"0x5B8D80", 6000000, 6000000, 0},
      {"010", 8, 8, 10},
      {"08", 0, 0, 8},
      {"019", 1, 1, 19},
      {"0x", 0, 0, 0},
      {"0xg", 0, 0, 0},
      {"-1", kMax, -1, -1},
      {"-0x10", kMax - 15, -16, 0},
      {"+7", 7, 7, 7},
      {"+", 0, 0, 0},
      {"-", 0, 0, 0},
      {"+-7", 0, 0, 0},
      {"--7", 0, 0, 0},
      {"- 7", 0, 0, 0},
      {" \t\n\v\f\r7", 7, 7, 7},
      {"12abc", 12, 12, 12},
      {"abc", 0, 0, 0},
      {"0b11", 0, 0, 0},
      {"1.9", 1, 1, 1},
      {"1e3", 1, 1, 1},
      {"9600baud", 9600, 9600, 9600},
      {"12\0"
       "34"s,
       12, 12, 12},
      {"\0"
       "12"s,
       0, 0, 0},
      {"4294967295", 4294967295, 4294967295, 4294967295},
      {"4294967296", 4294967296, 4294967296, 4294967296},
      {"9223372036854775807", 9223372036854775807U, kHighest, kHighest},
      {"9223372036854775808", 9223372036854775808U, kHighest, kHighest},
      {"-9223372036854775808", 9223372036854775808U, kLowest, kLowest},
      {"-9223372036854775809", 9223372036854775807U, kLowest, kLowest},
      {"18446744073709551615", kMax, kHighest, kHighest},
      {"-18446744073709551615", 1, kLowest, kLowest},
      {"18446744073709551616", kMax, kHighest, kHighest},
      {"-18446744073709551616", kMax, kLowest, kLowest},
      {"0xffffffffffffffff", kMax, kHighest, 0},
      {"0x1ffffffffffffffff", kMax, kHighest, 0},
      {std::string(10000, '9'), kMax, kHighest, kHighest},
      {"-" + std::string(10000, '9'), kMax, kLowest, kLowest},
      {std::string(10000, '0') + "17", 15, 15, 17},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(testing::PrintToString(row.text));
    EXPECT_EQ(to_unsigned(row.text), row.asUnsigned);
    EXPECT_EQ(to_signed(row.text), row.asSigned);
    EXPECT_EQ(to_decimal(row.text), row.asDecimal);
  }
}

TEST(Number, EndsBeforeEveryCharacterThatIsNoDigit) {
  const std::string decimal = "0123456789";
  const std::string hexadecimal = decimal + "abcdefABCDEF";
  for (int i = 0; i < 256; ++i) {
    SCOPED_TRACE(i);
    const char c = static_cast<char>(i);
    if (decimal.find(c) == std::string::npos) {
      const std::string text = "12"s + c + "3";
      EXPECT_EQ(to_unsigned(text), 12U);
      EXPECT_EQ(to_signed(text), 12);
      EXPECT_EQ(to_decimal(text), 12);
    }
    if (hexadecimal.find(c) == std::string::npos) {
      EXPECT_EQ(to_unsigned("0x1f"s + c + "3"), 31U);
      EXPECT_EQ(to_signed("0x1f"s + c + "3"), 31);
    }
  }
}

TEST(Number, ReadsSignsPrefixesAndEndsLikeTheCLibrary) {
  const std::vector<std::string> starts = {"", " ", "\t", "\n\v\f\r ", "x", "\xA0"};
  const std::vector<std::string> signs = {"", "+", "-", "+-", "-+", "--", "- "};
  const std::vector<std::string> prefixes = {"", "0", "00", "0x", "0X", "0x0", "x", "0xx"};
  const std::vector<std::string> digits = {"",
                                           "0",
                                           "1",
                                           "7",
                                           "8",
                                           "9",
                                           "f",
                                           "F",
                                           "g",
                                           "10",
                                           "79",
                                           "deadBEEF",
                                           "2147483647",
                                           "2147483648",
                                           "4294967295",
                                           "4294967296",
                                           "9223372036854775807",
                                           "9223372036854775808",
                                           "18446744073709551615",
                                           "18446744073709551616",
                                           "777777777777777777777",
                                           "1777777777777777777777",
                                           "2000000000000000000000",
                                           "7fffffffffffffff",
                                           "8000000000000000",
                                           "ffffffffffffffff",
                                           "10000000000000000"};
  const std::vector<std::string> ends = {"", " ", "x", ".5", "-1", "\r\n"};
  for (const std::string& start : starts) {
    for (const std::string& sign : signs) {
      for (const std::string& prefix : prefixes) {
        for (const std::string& digit : digits) {
          for (const std::string& end : ends) {
            expect_as_c_library(std::string(start).append(sign).append(prefix).append(digit).append(end));
          }
        }
      }
    }
  }
}

TEST(Number, ReadsAnyOtherTextLikeTheCLibrary) {
  std::mt19937 random(20090625);
  const std::string characters = "0123456789abcdefABCDEFxX+- \t\n\0.g"s;
  for (int i = 0; i < 100000; ++i) {
    std::string text(random() % 24, ' ');
    for (char& c : text) c = characters[random() % characters.size()];
    expect_as_c_library(text);
  }
}

TEST(Number, ReadsNothingBeyondTheEndOfTheText) {
  const std::string_view text = "0x1f99";
  EXPECT_EQ(to_unsigned(text.substr(0, 1)), 0U);
  EXPECT_EQ(to_unsigned(text.substr(0, 2)), 0U);
  EXPECT_EQ(to_unsigned(text.substr(0, 3)), 1U);
  EXPECT_EQ(to_signed(text.substr(0, 4)), 31);
  EXPECT_EQ(to_decimal(text.substr(4, 1)), 9);
  EXPECT_EQ(to_decimal(text.substr(6)), 0);
  EXPECT_EQ(to_decimal(std::string_view()), 0);
}

}  // namespace
}  // namespace SdkDebugDialog
