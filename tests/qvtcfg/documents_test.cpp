// The sessions that the documents show print what they show.

#include <fstream>
#include <regex>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "tool.h"

namespace {

std::vector<std::string> lines_of(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

// --- Code blocks ---

struct Block {
  std::string before;  // the line above it
  std::string kind;    // "sh" of "```sh"
  std::vector<std::string> lines;

  std::string text() const {
    std::string all;
    for (const std::string& line : lines) all += line + '\n';
    return all;
  }
};

std::vector<Block> blocks_of(const std::string& document) {
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
    }
  }
  return blocks;
}

// The block of this kind, which the document has once.
Block block_of(const std::string& document, std::string_view kind) {
  std::vector<Block> blocks = blocks_of(document);
  std::erase_if(blocks, [&](const Block& block) { return block.kind != kind; });
  EXPECT_EQ(blocks.size(), 1U) << kind;
  return blocks.empty() ? Block() : blocks.front();
}

// --- Sessions ---

struct Step {
  std::string command;
  std::string output;  // without empty lines at the end
};

void trim(std::string& text) { text.erase(text.find_last_not_of('\n') + 1); }

// A code block whose first line begins with "$ " is a part of the session.
std::vector<Step> session_in(const std::vector<Block>& blocks) {
  std::vector<Step> steps;
  for (const Block& block : blocks) {
    if (block.lines.empty() || !block.lines.front().starts_with("$ ")) continue;
    for (const std::string& line : block.lines) {
      if (line.starts_with("$ ")) {
        steps.push_back({line.substr(2), ""});
      } else {
        steps.back().output += line + '\n';
      }
    }
  }
  for (Step& step : steps) trim(step.output);
  return steps;
}

class DocumentedSessions : public Tool, public testing::WithParamInterface<const char*> {
 protected:
  // A block below "<!-- file: PATH -->" is the content of a file.
  void write_files(const std::vector<Block>& blocks) const {
    const std::regex mark("<!-- file: (.*) -->");
    for (const Block& block : blocks) {
      std::smatch path;
      if (!std::regex_match(block.before, path, mark)) continue;
      std::filesystem::create_directories((folder() / path.str(1)).parent_path());
      write(path.str(1), block.text());
    }
  }
};

TEST_P(DocumentedSessions, PrintWhatIsShown) {
  constexpr char kEnd = '\1';
  std::filesystem::create_directory_symlink(PROJECT_SOURCE_DIR "/examples", folder() / "examples");
  const std::vector<Block> blocks = blocks_of(GetParam());
  write_files(blocks);
  const std::vector<Step> steps = session_in(blocks);
  ASSERT_FALSE(steps.empty());
  // The user's settings of git, and a repository that the tests are run from, must not matter.
  std::string script =
      "exec 2>&1; PATH=${QVTCFG%/*}:$PATH\n"
      "unset $(git rev-parse --local-env-vars); export GIT_CONFIG_GLOBAL=/dev/null\n"
      "export GIT_AUTHOR_NAME=tester GIT_AUTHOR_EMAIL=tester@localhost\n";
  for (const Step& step : steps) script += step.command + "\nprintf '\\001'\n";
  std::istringstream output(shell(script).out);
  for (const Step& step : steps) {
    std::string printed;
    std::getline(output, printed, kEnd);
    trim(printed);
    EXPECT_EQ(printed, step.output) << step.command;
  }
}

INSTANTIATE_TEST_SUITE_P(All, DocumentedSessions, testing::Values("README.md", "docs/qvtcfg.md", "docs/checking.md"));

// --- Editors ---

class DocumentedEditors : public Tool {
 protected:
  // Two files with an error and a warning each, checked.
  std::vector<std::string> findings() const {
    write_option_file("ovrin_0", "connect ov odm -bscan USER5 -debugdevice deviceNr 010 cpunr 1");
    write_option_file("ovrin_1", "connect ov odm -cabel type zarvek_platformusb -debugdevice deviceNr 020 cpunr 2");
    const Result checked = qvtcfg({"check", "--format=short"});
    EXPECT_EQ(checked.code, 3) << checked.err;
    return lines_of(checked.out);
  }
};

TEST_F(DocumentedEditors, MatchEveryLineInVisualStudioCode) {
  const nlohmann::json tasks = nlohmann::json::parse(block_of("docs/checking.md", "json").text());
  const nlohmann::json& task = tasks.at("tasks").at(0);
  EXPECT_EQ(task.at("command"), "qvtcfg check --format=short");
  const nlohmann::json& pattern = task.at("problemMatcher").at("pattern");
  const std::regex regexp(pattern.at("regexp").get<std::string>());

  std::vector<std::string> places;
  for (const std::string& line : findings()) {
    std::smatch found;
    ASSERT_TRUE(std::regex_match(line, found, regexp)) << line;
    const auto part = [&](const char* name) { return found.str(pattern.at(name).get<std::size_t>()); };
    places.push_back(part("file") + ' ' + part("line") + ' ' + part("column") + ' ' + part("severity") + ' ' +
                     part("code"));
    EXPECT_FALSE(part("message").empty());
  }
  EXPECT_THAT(places, testing::IsSupersetOf({"etc/qvt_ovrin_0.opt 1 23 error invalid-value",
                                             "etc/qvt_ovrin_0.opt 1 51 warning octal-number",
                                             "etc/qvt_ovrin_1.opt 1 16 error unknown-option"}));
}

TEST_F(DocumentedEditors, FindThePlacesInVim) {
  if (shell("vim --version | grep -q +quickfix").code != 0) GTEST_SKIP() << "there is no vim with a quickfix list";
  const std::vector<std::string> lines = findings();
  write("settings.vim", block_of("docs/checking.md", "vim").text());
  write("list.vim",
        "for f in getqflist()\n"
        "  call writefile([bufname(f.bufnr) . ' ' . f.lnum . ' ' . f.col . ' ' . f.type], 'list', 'a')\n"
        "endfor\n");
  shell(
      "PATH=${QVTCFG%/*}:$PATH; vim -u NONE -N -es -S settings.vim -c 'silent make!' -c 'source list.vim' -c 'qall!'");
  const std::vector<std::string> places = lines_of(read("list"));
  EXPECT_EQ(places.size(), lines.size());
  EXPECT_THAT(places, testing::IsSupersetOf(
                          {"etc/qvt_ovrin_0.opt 1 23 e", "etc/qvt_ovrin_0.opt 1 51 w", "etc/qvt_ovrin_1.opt 1 16 e"}));
}

}  // namespace
