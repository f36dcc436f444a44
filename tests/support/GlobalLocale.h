#pragma once

#include <locale>

// While it lives, a locale is the global one, for C as well if the locale has a name. The tests also run under other
// locales; a test that depends on the case of i, or on texts of the system, sets the classic locale with this.
class GlobalLocale {
 public:
  explicit GlobalLocale(const std::locale& locale = std::locale::classic()) : m_before(std::locale::global(locale)) {}
  ~GlobalLocale() { std::locale::global(m_before); }
  GlobalLocale(const GlobalLocale&) = delete;
  GlobalLocale& operator=(const GlobalLocale&) = delete;

 private:
  std::locale m_before;
};
