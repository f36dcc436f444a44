// Every keyword of the syntax that sets something has a setting. Without one, a command written anew would lose it
// without a word.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "options/groups.h"
#include "options/syntax.h"
#include "settings/catalogue.h"

namespace SdkDebugDialog {
namespace {

TEST(Keywords, HaveASettingIfTheySetSomething) {
  std::vector<std::string> without;
  for (const Option& option : options()) {
    for (const Keyword& row : option.group.keywords) {
      const bool isOfOption = option.takes == Option::Takes::pairs || &row == value_row(option);
      if (isOfOption && setting_of(row) == nullptr) {
        without.push_back(std::string(option.name.text()) + " " + std::string(row.name.text()));
      }
    }
  }
  EXPECT_THAT(without, testing::UnorderedElementsAre("-pfsl port", "-pfsl type", "-quiet -quiet", "-noattach -noattach",
                                                     "-writeonly -writeonly"));
}

}  // namespace
}  // namespace SdkDebugDialog
