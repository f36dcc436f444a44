#include "options/LetterCase.h"

#include <algorithm>
#include <cstddef>
#include <locale>

namespace SdkDebugDialog {
namespace {

char upper_ascii(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - ('a' - 'A')) : c; }

}  // namespace

bool LetterCase::same(std::string_view a, std::string_view b) {
  // The locale decides on single characters, so words of different lengths are never the same.
  return a.size() == b.size() && (a == b || same_upper(a, b));
}

bool LetterCase::ask() {
  m_isAscii = std::locale() == std::locale::classic();
  return *m_isAscii;
}

bool LetterCase::same_upper(std::string_view a, std::string_view b) {
  if (is_ascii()) return std::ranges::equal(a, b, {}, upper_ascii, upper_ascii);
  if (!m_upper) {
    const std::locale global;
    const auto& letters = std::use_facet<std::ctype<char>>(global);
    m_upper.emplace();
    for (int c = 0; c < 256; ++c) (*m_upper)[static_cast<std::size_t>(c)] = letters.toupper(static_cast<char>(c));
  }
  const auto upper = [&](char c) { return (*m_upper)[static_cast<unsigned char>(c)]; };
  return std::ranges::equal(a, b, {}, upper, upper);
}

}  // namespace SdkDebugDialog
