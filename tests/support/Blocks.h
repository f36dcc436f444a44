#pragma once

// The documents in Markdown, the man pages, and their code blocks.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <utility>
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

// Every man page.
inline std::vector<std::string> man_pages() {
  std::vector<std::string> pages;
  for (const auto& page : std::filesystem::directory_iterator(PROJECT_SOURCE_DIR "/docs/man")) {
    pages.push_back("docs/man/" + page.path().filename().string());
  }
  std::ranges::sort(pages);
  return pages;
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

// A line of a man page as it is printed.
inline std::string without_roff(std::string line) {
  constexpr std::pair<const char*, const char*> kEscapes[] = {
      {"\\-", "-"}, {"\\(aq", "'"}, {"\\(ga", "`"}, {"\\(ha", "^"}, {"\\(ti", "~"}, {"\\&", ""}, {"\\e", "\\"}};
  for (std::size_t at = 0; (at = line.find('\\', at)) != std::string::npos;) {
    const auto* const escape = std::ranges::find_if(
        kEscapes, [&](const auto& e) { return line.compare(at, std::strlen(e.first), e.first) == 0; });
    if (escape == std::end(kEscapes)) throw std::runtime_error("this escape is not known here: " + line);
    line.replace(at, std::strlen(escape->first), escape->second);
    at += std::strlen(escape->second);
  }
  return line;
}

// Those of a man page stand between ".Bd -literal" and ".Ed".
inline std::vector<Block> blocks_of_man_page(const std::string& document) {
  std::ifstream in(PROJECT_SOURCE_DIR "/" + document);
  std::vector<Block> blocks;
  bool inBlock = false;
  for (std::string line; std::getline(in, line);) {
    if (line == ".Bd -literal") {
      inBlock = true;
      blocks.emplace_back();
    } else if (line == ".Ed") {
      inBlock = false;
    } else if (inBlock) {
      blocks.back().lines.push_back(without_roff(line));
    }
  }
  return blocks;
}

inline std::vector<Block> blocks_of(const std::string& document) {
  if (document.starts_with("docs/man/")) return blocks_of_man_page(document);
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
