#include "options/word_index.h"

#include <gtest/gtest.h>

#include <string>

namespace SdkDebugDialog {
namespace {

bool same(const std::string& a, const std::string& b) { return PackedWord(a) == PackedWord(b); }

// Words of one letter differ in their length alone.
TEST(PackedWord, IsThatOfNoOtherWordOfUpTo24Characters) {
  for (std::size_t i = 0; i <= PackedWord::kLongest; ++i) {
    for (std::size_t k = 0; k <= PackedWord::kLongest; ++k) {
      EXPECT_EQ(same(std::string(i, 'a'), std::string(k, 'a')), i == k) << i << ' ' << k;
    }
    for (std::size_t k = 0; k < i; ++k) {
      std::string other(i, 'a');
      other[k] = 'b';
      EXPECT_FALSE(same(std::string(i, 'a'), other)) << i << ' ' << k;
    }
  }
}

TEST(PackedWord, RaisesTheLettersOfAsciiAndNothingElse) {
  for (int c = 0; c < 256; ++c) {
    const bool isLower = c >= 'a' && c <= 'z';
    for (const std::size_t length : {1U, 3U, 4U, 7U, 8U, 16U, 17U, 24U}) {
      const std::string word(length, static_cast<char>(c));
      const std::string upper(length, static_cast<char>(isLower ? c - 'a' + 'A' : c));
      EXPECT_TRUE(PackedWord(word).upper() == PackedWord(upper)) << c << ' ' << length;
    }
  }
}

}  // namespace
}  // namespace SdkDebugDialog
