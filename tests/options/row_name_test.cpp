#include "options/row_name.h"

#include <gtest/gtest.h>

#include <boost/algorithm/string/predicate.hpp>
#include <iterator>
#include <locale>
#include <string>

#include "options/packed_letters.h"
#include "tests/support/GlobalLocale.h"

namespace SdkDebugDialog {
namespace {

TEST(CaseBits, AreThoseOfTheLettersOfAsciiAndOfNothingElse) {
  for (std::uint64_t c = 0; c < 256; ++c) {
    const bool isLetter = (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
    for (unsigned at = 0; at < 64; at += 8) {
      const std::uint64_t others = ~(std::uint64_t{0xFF} << at);
      EXPECT_EQ(case_bits(c << at), isLetter ? std::uint64_t{0x20} << at : 0) << c << ' ' << at;
      // The neighbours do not matter.
      EXPECT_EQ(case_bits(c << at | others) & ~others, isLetter ? std::uint64_t{0x20} << at : 0) << c << ' ' << at;
    }
  }
}

TEST(Letters, StandInTheirOrderFromTheLowestByteOn) {
  EXPECT_EQ(letters<8>("abcdefg\xFF"), 0xFF67666564636261U);
  EXPECT_EQ(letters<4>("abcdefgh"), 0x64636261U);
  EXPECT_EQ(letters<1>("\x80"), 0x80U);
  static_assert(letters<8>("abcdefg\xFF") == 0xFF67666564636261U);
}

struct Named {
  std::string_view name;
};

constexpr Named kNames[] = {
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
    {"aB-dE_gHiJ1mNo@PqR{StU`vW"},
};

// Which rows take a word for their name; none at all is the size.
std::string rows_of(std::string_view word) {
  LetterCase letterCase;
  std::string rows;
  any_row<kNames>([&]<std::size_t i> {
    if (is_name<kNames, i>(word, letterCase)) rows.append(std::to_string(i)).append(" ");
    return false;
  });
  return rows;
}

TEST(RowName, IsFoundInAnyCaseOfTheLettersOfAscii) {
  const GlobalLocale classic;
  for (std::size_t row = 0; row < std::size(kNames); ++row) {
    const std::string name(kNames[row].name);
    EXPECT_EQ(rows_of(name), std::to_string(row) + " ");
    for (std::size_t i = 0; i < name.size(); ++i) {
      for (int c = 0; c < 256; ++c) {
        std::string word = name;
        word[i] = static_cast<char>(c);
        const bool same = boost::iequals(word, name, std::locale::classic());
        ASSERT_EQ(rows_of(word), same ? std::to_string(row) + " " : "") << word << ' ' << c;
      }
    }
  }
  EXPECT_EQ(rows_of(""), "");
  EXPECT_EQ(rows_of(std::string(kNames[24].name) + "x"), "");
}

TEST(AnyRow, AsksRowAfterRowUntilOneAnswersTrue) {
  std::string asked;
  EXPECT_TRUE(any_row<kNames>([&]<std::size_t i> {
    asked += std::to_string(i);
    return i == 3;
  }));
  EXPECT_EQ(asked, "0123");
  EXPECT_FALSE(any_row<kNames>([]<std::size_t> { return false; }));
}

}  // namespace
}  // namespace SdkDebugDialog
