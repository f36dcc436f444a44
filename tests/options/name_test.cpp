#include "options/Name.h"

#include <gtest/gtest.h>

#include <boost/algorithm/string/predicate.hpp>
#include <iterator>
#include <locale>
#include <string>

#include "tests/support/GlobalLocale.h"

namespace SdkDebugDialog {
namespace {

struct Row {
  Name name;
};

// Names of every length, with letters in both cases and the characters next to the letters in ASCII.
constexpr Row kRows[] = {
    {"a"},
    {"aB"},
    {"aB-"},
    {"aB-d"},
    {"aB-dE"},
    {"aB-dE_"},
    {"aB-dE_g"},
    {"aB-dE_gH"},
    {"aB-dE_gHi"},
    {"aB-dE_gHiJ"},
    {"aB-dE_gHiJ1"},
    {"aB-dE_gHiJ1m"},
    {"aB-dE_gHiJ1mN"},
    {"aB-dE_gHiJ1mNo"},
    {"aB-dE_gHiJ1mNo@"},
    {"aB-dE_gHiJ1mNo@P"},
    {"aB-dE_gHiJ1mNo@Pq"},
    {"aB-dE_gHiJ1mNo@PqR"},
    {"aB-dE_gHiJ1mNo@PqR{"},
    {"aB-dE_gHiJ1mNo@PqR{S"},
    {"aB-dE_gHiJ1mNo@PqR{St"},
    {"aB-dE_gHiJ1mNo@PqR{StU"},
    {"aB-dE_gHiJ1mNo@PqR{StU`"},
    {"aB-dE_gHiJ1mNo@PqR{StU`v"},
};

const Row* find(std::string_view word) { return find_name<Row>(kRows, word, LetterCase()); }

TEST(Name, IsWrittenWithTheBlanksAroundIt) {
  constexpr Name kName = "  deviceNr ";
  EXPECT_EQ(kName.text(), "deviceNr");
  EXPECT_EQ(kName.written(), "  deviceNr ");
  EXPECT_EQ(std::string(kName.padded().data()), "  deviceNr ");
  constexpr Name kLongest = "  aB-dE_gHiJ1mNo@PqR{St ";
  EXPECT_EQ(kLongest.text(), "aB-dE_gHiJ1mNo@PqR{St");
  EXPECT_EQ(kLongest.written(), "  aB-dE_gHiJ1mNo@PqR{St ");
  constexpr Name kNothing = "";
  EXPECT_EQ(kNothing.text(), "");
  EXPECT_EQ(kNothing.written(), "");
}

// Every word that differs from a name in at most one byte.
TEST(Name, IsFoundInAnyCaseOfTheLettersOfAscii) {
  const GlobalLocale classic;
  for (const Row& row : kRows) {
    const std::string name(row.name.text());
    EXPECT_EQ(find(name), &row);
    for (std::size_t i = 0; i < name.size(); ++i) {
      for (int c = 0; c < 256; ++c) {
        std::string word = name;
        word[i] = static_cast<char>(c);
        const Row* const expected = boost::iequals(word, name, std::locale::classic()) ? &row : nullptr;
        ASSERT_EQ(find(word), expected) << word << ' ' << c;
      }
    }
  }
}

TEST(Name, IsNotFoundByAWordOfAnotherLength) {
  EXPECT_EQ(find(""), nullptr);
  EXPECT_EQ(find("aB-dE_gHiJ1mNo@PqR{StU`vW"), nullptr);
  EXPECT_EQ(find("b"), nullptr);
  EXPECT_EQ(find(std::string(100000, 'a')), nullptr);
}

// In this locale a character outside ASCII folds to an ASCII letter.
TEST(Name, IsFoundInAnyCaseAsTheGlobalLocaleSeesIt) {
  class Shouting : public std::ctype<char> {
    char do_toupper(char c) const override {
      if (c == '\xE4') return 'A';
      return c >= 'a' && c <= 'z' ? static_cast<char>(c - ('a' - 'A')) : c;
    }
  };
  const GlobalLocale global(std::locale(std::locale::classic(), new Shouting));
  EXPECT_EQ(find("\xE4"), &kRows[0]);
  EXPECT_EQ(find("\xE4"
                 "b-DE_gHiJ1mNo@Pq"),
            &kRows[16]);
  EXPECT_EQ(find("\xC4"), nullptr);
}

}  // namespace
}  // namespace SdkDebugDialog
