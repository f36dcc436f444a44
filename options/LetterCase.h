#pragma once

// Words without regard to case.

#include <array>
#include <optional>
#include <string_view>

namespace SdkDebugDialog {

// Which letters are the same but for their case, as the program's global locale sees it. The locale is asked once, when
// the first word in another spelling is met; whoever reads a text keeps one of these for as long.
class LetterCase {
 public:
  // Whether two words are the same in any case.
  bool same(std::string_view a, std::string_view b);

  // Whether the global locale is the classic one, which folds the case of ASCII letters and of nothing else.
  bool is_ascii() { return m_isAscii ? *m_isAscii : ask(); }

 private:
  bool ask();
  bool same_upper(std::string_view a, std::string_view b);

  std::optional<bool> m_isAscii;
  std::optional<std::array<char, 256>> m_upper;  // filled unless the locale is the classic one
};

}  // namespace SdkDebugDialog
