#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "options/QvtOption_Parser.h"
#include "options/TokenCursor.h"

namespace SdkDebugDialog {
namespace {

// Reads one pair and stops.
int next_pair(TokenCursor& in, std::string& key, std::string& value) {
  bool taken = false;
  const int kind = in.next_pairs([&](std::string_view foundKey, std::string_view foundValue) {
    key = foundKey;
    value = foundValue;
    taken = true;
    return false;
  });
  return taken ? kValue : kind;
}

TEST(TokenCursor, AnswersViewsIntoTheText) {
  const std::string text = " one  two ";
  TokenCursor in(text);
  std::string_view token;
  EXPECT_EQ(in.next(token), 0);
  EXPECT_EQ(token.data(), text.data() + 1);
  EXPECT_EQ(in.next(token), 0);
  EXPECT_EQ(token.data(), text.data() + 6);
  EXPECT_EQ(in.rest().data(), text.data() + 9);
}

TEST(TokenCursor, LooksAtNothingBehindTheText) {
  for (std::size_t length = 1; length <= 200; ++length) {
    // No terminating character, so that the sanitizer sees a look too far.
    const std::vector<char> text(length, 'a');
    TokenCursor in({text.data(), text.size()});
    std::string_view token;
    EXPECT_EQ(in.next(token), 0);
    EXPECT_EQ(token, std::string(length, 'a'));
    EXPECT_EQ(in.next(token), 3);
  }
  TokenCursor nothing{std::string_view()};
  std::string_view token = "before";
  EXPECT_EQ(nothing.next(token), 3);
  EXPECT_EQ(token, "before");
}

TEST(TokenCursor, TellsTheLastOptionThatItRead) {
  const std::string text = "value -One 5 -two- x";
  TokenCursor in(text);
  std::string_view token;
  EXPECT_EQ(in.option(), "");
  EXPECT_EQ(in.next(token), 0);
  EXPECT_EQ(in.option(), "");
  EXPECT_EQ(in.next(token), 1);
  EXPECT_EQ(in.next(token), 0);
  EXPECT_EQ(in.option(), "-One");
  EXPECT_EQ(in.next(token), 1);
  EXPECT_EQ(in.option(), "-two-");
  EXPECT_EQ(in.option().data(), text.data() + 13);
}

TEST(TokenCursor, HandsOverPairAfterPairOfAnyLength) {
  for (const std::string between : {" ", "\t", "  ", " \n"}) {
    std::string text;
    std::string expected;
    for (std::size_t length = 1; length < 80; ++length) {
      const std::string key(length, 'k');
      const std::string value = "-5" + std::string(80 - length, 'v');
      text.append(between).append(key).append(between).append(value);
      expected.append(key).append("=").append(value).append(";");
    }
    for (const auto& [end, kind, rest] :
         {std::tuple("", kEnd, ""), std::tuple(" ", kEnd, ""), std::tuple(" -option x y", kOption, " x y"),
          std::tuple(" key", kError, ""), std::tuple(" key -option x", kError, " x")}) {
      const std::string whole = text + end;
      SCOPED_TRACE(testing::PrintToString(between + end));
      TokenCursor in(whole);
      std::string found;
      EXPECT_EQ(in.next_pairs([&](std::string_view key, std::string_view value) {
        found.append(key).append("=").append(value).append(";");
        return true;
      }),
                kind);
      EXPECT_EQ(found, expected);
      EXPECT_EQ(in.rest(), rest);
    }
  }
}

TEST(TokenCursor, StopsAtAPairThatIsNotTaken) {
  TokenCursor in("a 1 b 2 c 3");
  std::string found;
  EXPECT_EQ(in.next_pairs([&](std::string_view key, std::string_view /*value*/) {
    found += key;
    return key != "b";
  }),
            kError);
  EXPECT_EQ(found, "ab");
  EXPECT_EQ(in.rest(), " c 3");
}

TEST(ReadFront, LeavesInTheTextWhatTheReaderDidNotConsume) {
  std::string text = "one two three";
  EXPECT_EQ(read_front(text, [](TokenCursor& /*in*/) { return 42; }), 42);
  EXPECT_EQ(text, "one two three");
  const auto two = [](TokenCursor& in) {
    std::string key;
    std::string value;
    return next_pair(in, key, value);
  };
  EXPECT_EQ(read_front(text, two), 0);
  EXPECT_EQ(text, " three");
  EXPECT_EQ(read_front(text, two), 2);
  EXPECT_EQ(text, "");
}

TEST(ReadFront, LeavesTheRestWhenTheReaderThrows) {
  newoption_token = "-older";
  std::string text = "-one - two";
  std::string_view token;
  const auto all = [&](TokenCursor& in) {
    while (in.next(token) != kEnd) {
    }
    return 0;
  };
  EXPECT_THROW(read_front(text, all), std::out_of_range);
  EXPECT_EQ(text, " two");
  EXPECT_EQ(newoption_token, "-one");
}

TEST(ReadFront, KeepsTheLastOptionThatWasRead) {
  newoption_token = "-older";
  std::string text = "value -5";
  const auto two = [](TokenCursor& in) {
    std::string_view token;
    in.next(token);
    return in.next(token);
  };
  EXPECT_EQ(read_front(text, two), kValue);
  EXPECT_EQ(newoption_token, "-older");
  text = "-one -two";
  EXPECT_EQ(read_front(text, two), kOption);
  EXPECT_EQ(newoption_token, "-two");
}

}  // namespace
}  // namespace SdkDebugDialog
