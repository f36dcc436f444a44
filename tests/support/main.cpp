// Runs the tests under the global locale that the environment variable TEST_LOCALE names.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>
#include <locale>
#include <stdexcept>

int main(int argc, char** argv) {
  testing::InitGoogleMock(&argc, argv);
  if (const char* const name = std::getenv("TEST_LOCALE"); name != nullptr) {
    try {
      std::locale::global(std::locale(name));
    } catch (const std::runtime_error&) {
      std::cerr << "TEST_LOCALE: there is no locale " << name << "; LOCPATH names the folder of one's own\n";
      return 2;
    }
  }
  return RUN_ALL_TESTS();
}
