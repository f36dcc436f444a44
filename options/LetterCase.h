#pragma once

#include <locale>
#include <string_view>

namespace SdkDebugDialog {

// Case folding by the program's global locale, which is asked once, in the constructor. A reader keeps one of these for
// a whole text.
class LetterCase {
 public:
  LetterCase() : m_isClassic(m_locale == std::locale::classic()) {}

  // Whether the locale is the classic one, which folds ASCII letters only.
  bool is_classic() const { return m_isClassic; }

  // Whether two words are equal but for case. The locale decides byte by byte, as boost::iequals does.
  bool same(std::string_view a, std::string_view b) const;

 private:
  std::locale m_locale;
  bool m_isClassic;
};

}  // namespace SdkDebugDialog
