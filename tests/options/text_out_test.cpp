#include "options/text_out.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdio>
#include <string>

namespace SdkDebugDialog {
namespace {

TEST(TextOut, AppendsPiecesInTheirOrderOnceItIsFlushed) {
  std::string text = "before";
  TextOut out(text);
  out.put(joined<5>(" ", "one", " "));
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
    out.flush();
    EXPECT_EQ(text, expected);
  }
  for (const std::uint32_t value : {0U, 1U, 15U, 16U, 0x0A001093U, 0x70000000U, 0x7FFFFFFFU, 0xFFFFFFFFU}) {
    char expected[32];
    std::snprintf(expected, sizeof expected, "0x%x", value);
    std::string text;
    TextOut out(text);
    TextOut::Pen(out).put_hex(value);
    out.flush();
    EXPECT_EQ(text, expected);
  }
}

// Pieces of every length around that of the buffer, and numbers at every place in it.
TEST(TextOut, LosesNothingWhereItsBufferEnds) {
  for (std::size_t length = 1000; length < 1060; ++length) {
    for (std::size_t second : {std::size_t{0}, std::size_t{1}, std::size_t{30}, std::size_t{1024}, std::size_t{5000}}) {
      std::string text;
      TextOut out(text);
      {
        TextOut::Pen pen(out);
        pen.put(std::string(length, 'a'));
        pen.put_decimal(-2147483647 - 1);
        pen.put(std::string(second, 'b'));
        pen.put_hex(0xFFFFFFFFU);
      }
      out.put(joined<3>("x", "y", "z"));
      out.flush();
      ASSERT_EQ(text, std::string(length, 'a') + "-2147483648" + std::string(second, 'b') + "0xffffffffxyz");
    }
  }
}

TEST(TextOut, RunsAWriterOnTheEndOfAText) {
  std::string text = "before ";
  constexpr auto kWriter = [](TextOut& out, const int& value) {
    out.put_decimal(value);
    return 7;
  };
  const int value = 5;
  EXPECT_EQ((on_end<kWriter>(text, value)), 7);
  EXPECT_EQ(text, "before 5");
}

}  // namespace
}  // namespace SdkDebugDialog
