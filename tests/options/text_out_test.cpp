#include <gtest/gtest.h>

#include <cstdint>
#include <cstdio>
#include <string>

#include "options/TextOut.h"

namespace SdkDebugDialog {
namespace {

constexpr Name kOne = " one ";
constexpr Name kLongest = " a name of 24 characters";

TEST(TextOut, AppendsPiecesInTheirOrderOnceItIsFlushed) {
  std::string text = "before";
  TextOut out(text);
  out.put_name(kOne);
  out.put("two");
  out.put(std::string());
  EXPECT_EQ(text, "before");
  out.flush();
  EXPECT_EQ(text, "before one two");
  out.put("!");
  out.flush();
  out.flush();
  EXPECT_EQ(text, "before one two!");
}

TEST(TextOut, WritesNumbersLikePrintf) {
  for (const std::int32_t value : {0, 1, -1, 9, 10, -56, 20000, 2147483647, -2147483647 - 1}) {
    char expected[32];
    std::snprintf(expected, sizeof expected, "%d", value);
    std::string text;
    TextOut out(text);
    out.put_decimal(value);
    out.put_decimal(kOne, value);
    out.flush();
    EXPECT_EQ(text, std::string(expected) + " one " + expected);
  }
  for (const std::uint32_t value : {0U, 1U, 15U, 16U, 0x0A001093U, 0x70000000U, 0x7FFFFFFFU, 0xFFFFFFFFU}) {
    char expected[32];
    std::snprintf(expected, sizeof expected, "0x%x", value);
    std::string text;
    TextOut out(text);
    out.put_hex(kOne, value);
    out.flush();
    EXPECT_EQ(text, std::string(" one ") + expected);
  }
}

// Pieces of every length near the size of the buffer, and numbers at every position in it.
TEST(TextOut, LosesNothingWhereItsBufferEnds) {
  for (std::size_t length = 960; length < 1060; ++length) {
    for (std::size_t second : {std::size_t{0}, std::size_t{1}, std::size_t{30}, std::size_t{1024}, std::size_t{5000}}) {
      std::string text;
      TextOut out(text);
      out.put(std::string(length, 'a'));
      out.put_decimal(-2147483647 - 1);
      out.put(kOne, std::string(second, 'b'));
      out.put_hex(kOne, 0xFFFFFFFFU);
      out.put(std::string(length, 'c'));
      out.put_decimal(kOne, 7);
      out.put_name(kLongest);
      out.flush();
      ASSERT_EQ(text, std::string(length, 'a') + "-2147483648 one " + std::string(second, 'b') + " one 0xffffffff" +
                          std::string(length, 'c') + " one 7 a name of 24 characters");
    }
  }
}

}  // namespace
}  // namespace SdkDebugDialog
