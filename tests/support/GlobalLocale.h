#pragma once

#include <locale>

// Makes a locale the global one while it lives, in C as well where the locale has a name. The tests run under other
// locales too; those that tell i from I, or quote the system's texts, say that they are about the classic one.
class GlobalLocale {
 public:
  explicit GlobalLocale(const std::locale& locale = std::locale::classic()) : m_before(std::locale::global(locale)) {}
  ~GlobalLocale() { std::locale::global(m_before); }
  GlobalLocale(const GlobalLocale&) = delete;
  GlobalLocale& operator=(const GlobalLocale&) = delete;

 private:
  std::locale m_before;
};
