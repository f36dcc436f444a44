#pragma once

// Checks of the fuzz targets.

#include <cstdio>
#include <cstdlib>
#include <string_view>

// Ends the program if the condition is false; the fuzzer then reports the input as failing.
inline void expect(bool condition, const char* what, std::string_view detail = {}) {
  if (condition) return;
  std::fprintf(stderr, "expected: %s\n%.*s\n", what, static_cast<int>(detail.size()), detail.data());
  std::abort();
}

inline void expect_same(std::string_view found, std::string_view expected, const char* what) {
  if (found == expected) return;
  std::fprintf(stderr, "expected: %s\nfound    [%.*s]\nexpected [%.*s]\n", what, static_cast<int>(found.size()),
               found.data(), static_cast<int>(expected.size()), expected.data());
  std::abort();
}
