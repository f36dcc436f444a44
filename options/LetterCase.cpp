#include "options/LetterCase.h"

#include <algorithm>

namespace SdkDebugDialog {

bool LetterCase::same(std::string_view a, std::string_view b) const {
  if (a.size() != b.size()) return false;
  if (a == b) return true;
  const auto& letters = std::use_facet<std::ctype<char>>(m_locale);
  return std::ranges::equal(a, b, [&](char x, char y) { return letters.toupper(x) == letters.toupper(y); });
}

}  // namespace SdkDebugDialog
