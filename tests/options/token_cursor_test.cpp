#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "options/TokenCursor.h"

namespace SdkDebugDialog {
namespace {

TEST(TokenCursor, AnswersViewsIntoTheText) {
  const std::string text = " one  two ";
  TokenCursor in(text);
  std::string_view token;
  EXPECT_EQ(in.next(token), Token::value);
  EXPECT_EQ(token.data(), text.data() + 1);
  EXPECT_EQ(in.next(token), Token::value);
  EXPECT_EQ(token.data(), text.data() + 6);
  EXPECT_EQ(in.rest().data(), text.data() + 9);
}

TEST(TokenCursor, ReadsNothingBeyondTheEndOfTheText) {
  for (std::size_t length = 1; length <= 200; ++length) {
    // Without a terminating character, so that the sanitizer detects a read beyond the end.
    const std::vector<char> text(length, 'a');
    TokenCursor in({text.data(), text.size()});
    std::string_view token;
    EXPECT_EQ(in.next(token), Token::value);
    EXPECT_EQ(token, std::string(length, 'a'));
    EXPECT_EQ(in.next(token), Token::end);
  }
  TokenCursor nothing{std::string_view()};
  std::string_view token = "before";
  EXPECT_EQ(nothing.next(token), Token::end);
  EXPECT_EQ(token, "before");
}

TEST(TokenCursor, CutsLongTokensOfAnyCharacter) {
  for (int c = 0; c < 256; ++c) {
    if (is_space(static_cast<char>(c))) continue;
    SCOPED_TRACE(c);
    std::string word(150, '~');
    for (std::size_t i = 1; i < word.size(); i += 2) word[i] = static_cast<char>(c);
    std::string text = "a ";
    text.append(word).append(" ").append(word);
    TokenCursor in(text);
    std::string_view token;
    EXPECT_TRUE(in.cut(token));
    for (int i = 0; i < 2; ++i) {
      EXPECT_TRUE(in.cut(token));
      EXPECT_EQ(token, word);
    }
    EXPECT_FALSE(in.cut(token));
  }
}

TEST(TokenCursor, StaysAtTheEnd) {
  const std::string sixty(60, 'a');
  for (const std::string text : {"", " ", "  ", "a ", "a  ", "a   ", "a b", "a b \t ", "a b \n"}) {
    std::string twice = sixty;
    twice.append(text).append(sixty).append(text);
    for (const std::string& whole : {text, sixty + text, twice}) {
      SCOPED_TRACE(testing::PrintToString(whole));
      TokenCursor in(whole);
      std::string_view token;
      while (in.next(token) != Token::end) {
      }
      const std::string_view last = token;
      for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(in.next(token), Token::end);
        EXPECT_EQ(token.data(), last.data());
        EXPECT_EQ(token, last);
        EXPECT_EQ(in.rest(), "");
      }
    }
  }
}

TEST(TokenCursor, TellsTheLastOptionThatItRead) {
  const std::string text = "value -One 5 -two- x";
  TokenCursor in(text);
  std::string_view token;
  EXPECT_EQ(in.option(), "");
  EXPECT_EQ(in.next(token), Token::value);
  EXPECT_EQ(in.option(), "");
  EXPECT_EQ(in.next(token), Token::option);
  EXPECT_EQ(in.next(token), Token::value);
  EXPECT_EQ(in.option(), "-One");
  EXPECT_EQ(in.next(token), Token::option);
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
    for (const auto& [end, last, rest] :
         {std::tuple("", Pair::end, ""), std::tuple(" ", Pair::end, ""),
          std::tuple(" -option x y", Pair::option, " x y"), std::tuple(" key", Pair::incomplete, ""),
          std::tuple(" key -option x", Pair::incomplete, " x")}) {
      const std::string whole = text + end;
      SCOPED_TRACE(testing::PrintToString(between + end));
      TokenCursor in(whole);
      std::string found;
      std::string_view key;
      std::string_view value;
      Pair pair = in.next_pair(key, value);
      for (; pair == Pair::complete; pair = in.next_pair(key, value)) {
        found.append(key).append("=").append(value).append(";");
      }
      EXPECT_EQ(pair, last);
      EXPECT_EQ(found, expected);
      EXPECT_EQ(in.rest(), rest);
    }
  }
}

}  // namespace
}  // namespace SdkDebugDialog
