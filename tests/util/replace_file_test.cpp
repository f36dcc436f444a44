#include "util/replace_file.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/options/work_folder.h"

namespace SdkDebugDialog {
namespace {

TEST(ReplaceFile, WritesTextsOfAnyLengthAndBytes) {
  const WorkFolder folder;
  const std::string path = (folder.path() / "file").string();
  for (const std::string& text : {std::string("x"), std::string(), std::string(1, '\0'), std::string(100000, '\n')}) {
    EXPECT_TRUE(replace_file(path, text));
    EXPECT_EQ(WorkFolder::read(path), text);
  }
}

}  // namespace
}  // namespace SdkDebugDialog
