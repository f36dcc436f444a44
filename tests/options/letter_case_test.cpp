#include <gtest/gtest.h>

#include <boost/algorithm/string/predicate.hpp>
#include <locale>
#include <string>

#include "options/LetterCase.h"
#include "tests/support/GlobalLocale.h"

namespace SdkDebugDialog {
namespace {

using namespace std::string_literals;

TEST(LetterCase, ComparesWholeWordsInAnyCase) {
  const GlobalLocale classic;
  const LetterCase letterCase;
  EXPECT_TRUE(letterCase.same("", ""));
  EXPECT_TRUE(letterCase.same("connect", "connect"));
  EXPECT_TRUE(letterCase.same("connect", "CONNECT"));
  EXPECT_TRUE(letterCase.same("cOnNeCt_1", "CoNnEcT_1"));
  EXPECT_FALSE(letterCase.same("zarvek_parallel", "zarvek_parallel4"));
  EXPECT_FALSE(letterCase.same("zarvek_parallel4", "zarvek_parallel"));
  EXPECT_FALSE(letterCase.same("connect", "connecT "));
  EXPECT_FALSE(letterCase.same("connect", ""));
  EXPECT_FALSE(letterCase.same("-cable", "_cable"));
  EXPECT_FALSE(letterCase.same("@", "`"));
  EXPECT_FALSE(letterCase.same("sim\0"s, "sim"));
  EXPECT_TRUE(letterCase.same("s\0m"s, "S\0M"s));
  EXPECT_FALSE(letterCase.same("\xE4", "\xC4"));
}

TEST(LetterCase, KnowsTheClassicLocale) {
  {
    const GlobalLocale classic;
    EXPECT_TRUE(LetterCase().is_classic());
  }
  const GlobalLocale global(std::locale(std::locale::classic(), new std::ctype<char>));
  EXPECT_FALSE(LetterCase().is_classic());
}

// Every pair of characters, in the locale of the test run and in others.
TEST(LetterCase, AgreesWithTheLocaleOnEveryPairOfCharacters) {
  class Shouting : public std::ctype<char> {
    char do_toupper(char c) const override { return c == 'a' || c == '\xE4' ? '!' : c; }
  };
  const std::locale ofTheRun;
  for (const std::locale& locale : {ofTheRun, std::locale::classic(), std::locale(ofTheRun, new Shouting)}) {
    const GlobalLocale global(locale);
    const LetterCase letterCase;
    for (int a = 0; a < 256; ++a) {
      for (int b = 0; b < 256; ++b) {
        const std::string one(1, static_cast<char>(a));
        const std::string other(1, static_cast<char>(b));
        ASSERT_EQ(letterCase.same(one, other), boost::iequals(one, other, locale)) << a << ' ' << b;
      }
    }
  }
}

}  // namespace
}  // namespace SdkDebugDialog
