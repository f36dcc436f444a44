#pragma once

// The option file of processor "p" in a folder of its own.

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "tests/options/work_folder.h"
#include "tests/support/OptionFileWriter.h"

class FileFolder : public testing::Test {
 protected:
  const std::filesystem::path& path() const { return m_folder.path(); }
  std::filesystem::path etc() const { return m_folder.path() / "etc"; }
  std::filesystem::path file() const { return m_folder.option_file("p"); }
  std::string content() const { return WorkFolder::read(file()); }

  void write_old() const { WorkFolder::write(file(), kOldText); }
  void expect_file_alone() const { EXPECT_EQ(WorkFolder::list(etc()), std::vector<std::string>{"qvt_p.opt"}); }
  // Writes once more, which must succeed and leave no other file.
  void expect_written() const {
    Writer e;
    EXPECT_EQ(e.engine.Generate(), 0);
    EXPECT_EQ(e.error(), "");
    EXPECT_EQ(content(), kNewText);
    expect_file_alone();
  }
  std::vector<std::string> new_files() const {
    std::vector<std::string> names = WorkFolder::list(etc());
    std::erase_if(names, [](const std::string& name) { return !name.starts_with(".qvt_new."); });
    return names;
  }

 private:
  WorkFolder m_folder;
};
