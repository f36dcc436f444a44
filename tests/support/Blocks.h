#pragma once

// The documents in Markdown, and their code blocks.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

// The documents with sessions and programs, which are run; see tests/qvtcfg/documents_test.cpp.
inline constexpr const char* kSessions[] = {
    "README.md",
    "docs/checking.md",
    "docs/design-file.md",
    "docs/guides/building.md",
    "docs/guides/command.md",
    "docs/guides/compatibility.md",
    "docs/guides/diagnosis.md",
    "docs/guides/dialog.md",
    "docs/guides/engine.md",
    "docs/guides/hardware.md",
    "docs/guides/option-file.md",
    "docs/guides/threads.md",
    "docs/qvtcfg.md",
};

// Every document, by its path in the project.
inline std::vector<std::string> all_documents() {
  std::vector<std::string> found;
  const std::filesystem::path root = PROJECT_SOURCE_DIR;
  for (const auto& entry : std::filesystem::directory_iterator(root)) {
    if (entry.path().extension() == ".md") found.push_back(entry.path().filename().string());
  }
  for (const auto& entry : std::filesystem::recursive_directory_iterator(root / "docs")) {
    if (entry.path().extension() == ".md") found.push_back(entry.path().lexically_relative(root).string());
  }
  return found;
}

struct Block {
  std::string before;  // the line above it
  std::string kind;    // "sh" of "```sh"
  std::vector<std::string> lines;

  std::string text() const {
    std::string all;
    for (const std::string& line : lines) all += line + '\n';
    return all;
  }

  // Whether it shows commands and what they print.
  bool is_session() const { return !lines.empty() && lines.front().starts_with("$ "); }
};

inline std::vector<Block> blocks_of(const std::string& document) {
  std::ifstream in(PROJECT_SOURCE_DIR "/" + document);
  EXPECT_TRUE(in) << document;
  std::vector<Block> blocks;
  bool inBlock = false;
  std::string before;
  for (std::string line; std::getline(in, line); before = line) {
    if (line.starts_with("```")) {
      inBlock = !inBlock;
      if (inBlock) blocks.push_back({before, line.substr(3), {}});
    } else if (inBlock) {
      blocks.back().lines.push_back(line);
    } else {
      EXPECT_EQ(line.find("```"), line.npos) << document << ": an indented block is not found: " << line;
    }
  }
  EXPECT_FALSE(inBlock) << document;
  return blocks;
}
