// The sessions that the documents show print what they show, and the programs that they show do what they show.

#include <algorithm>
#include <filesystem>
#include <regex>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "answers.h"
#include "tests/support/Blocks.h"
#include "tool.h"

namespace {

std::vector<std::string> lines_of(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
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
    if (!block.is_session()) continue;
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

class DocumentedSessions : public Tool, public testing::WithParamInterface<std::string> {
 protected:
  // Sessions begin in the folder of the project, with a build in build/release.
  void link_project() const {
    for (const auto& entry : std::filesystem::directory_iterator(PROJECT_SOURCE_DIR)) {
      const std::filesystem::path name = entry.path().filename();
      if (name != "build" && name != ".git") std::filesystem::create_symlink(entry.path(), folder() / name);
    }
    std::filesystem::create_directory(folder() / "build");
    if (!std::string_view(COMPILER).empty()) std::filesystem::create_symlink(BUILD_FOLDER, folder() / "build/release");
  }

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

  static bool has_programs(const std::vector<Block>& blocks) {
    return std::ranges::any_of(blocks, [](const Block& block) { return block.kind == "cpp"; });
  }

  // A program below "<!-- program: PATH -->" is compiled, and can be started at that path. Behind the path, the file of
  // the project may be named that has the same text. "c++" is the compiler of this build, with its sanitizers.
  void compile_programs(const std::vector<Block>& blocks) const {
    const std::regex mark("<!-- program: ([^ ]*)( from (.*))? -->");
    std::filesystem::create_directory(folder() / ".bin");
    write(".bin/c++", "#!/bin/sh\nexec " COMPILER " -Wall -Wextra -Wpedantic -Werror \"$@\"\n");
    std::filesystem::permissions(folder() / ".bin/c++", std::filesystem::perms::owner_all);
    for (const Block& block : blocks) {
      std::smatch found;
      if (!std::regex_match(block.before, found, mark)) continue;
      const std::string path = found.str(1);
      if (found[3].matched) {
        EXPECT_EQ(block.text(), read(PROJECT_SOURCE_DIR "/" + found.str(3)));
      }
      std::filesystem::create_directories((folder() / path).parent_path());
      write(path + ".cpp", block.text());
      const Result compiled = shell("program=" + path +
                                    "; .bin/c++ -std=c++17 -I" PROJECT_SOURCE_DIR "/include -I" BUILD_FOLDER
                                    "/include $program.cpp -o $program -L" BUILD_FOLDER
                                    " -lSdkDebugDialogDesignFile -lSdkDebugDialog -Wl,-rpath," BUILD_FOLDER);
      EXPECT_EQ(compiled.code, 0) << path << ": " << compiled.err;
    }
  }
};

TEST_P(DocumentedSessions, PrintWhatIsShown) {
  constexpr char kEnd = '\1';
  const std::vector<Block> blocks = blocks_of(GetParam());
  if (std::string_view(COMPILER).empty() && has_programs(blocks)) GTEST_SKIP() << "built for another machine";
  link_project();
  write_files(blocks);
  compile_programs(blocks);
  const std::vector<Step> steps = session_in(blocks);
  ASSERT_FALSE(steps.empty());
  // The user's settings of git, and a repository that the tests are run from, must not matter.
  std::string script =
      "exec 2>&1; PATH=$PWD/.bin:${QVTCFG%/*}:$PATH\n"
      "unset $(git rev-parse --local-env-vars); export GIT_CONFIG_GLOBAL=/dev/null\n"
      "export GIT_AUTHOR_NAME=tester GIT_AUTHOR_EMAIL=tester@localhost\n";
  for (const Step& step : steps) script += step.command + "\nprintf '\\001'\n";
  std::istringstream output(shell(script).out);
  for (const Step& step : steps) {
    std::string printed;
    std::getline(output, printed, kEnd);
    trim(printed);
    EXPECT_EQ(printed, step.output) << step.command;
    const bool answers = step.command.find("--json") != std::string::npos && printed.starts_with("{\n");
    EXPECT_EQ(answers ? why_invalid(printed) : "", "") << step.command;
  }
}

INSTANTIATE_TEST_SUITE_P(All, DocumentedSessions,
                         testing::ValuesIn(std::vector<std::string>(std::begin(kSessions), std::end(kSessions))));
INSTANTIATE_TEST_SUITE_P(ManPages, DocumentedSessions, testing::ValuesIn(man_pages()));

// --- Man pages ---

class ManPages : public Tool, public testing::WithParamInterface<std::string> {
 protected:
  // What the command prints about the page, but for the page itself.
  std::string complaints(const std::string& command) const {
    return shell(command + " '" PROJECT_SOURCE_DIR "/" + GetParam() + "'").err;
  }
};

TEST_P(ManPages, AreCleanForMandoc) {
  if (shell("command -v mandoc").code != 0) GTEST_SKIP() << "there is no mandoc";
  EXPECT_EQ(complaints(">&2 mandoc -T lint -W warning"), "");
}

TEST_P(ManPages, AreCleanForGroff) {
  if (shell("man --version && groff --version").code != 0) GTEST_SKIP() << "there is no man, or no groff";
  EXPECT_EQ(complaints("LC_ALL=C.UTF-8 MANROFFSEQ= MANWIDTH=80 man --warnings -E UTF-8 -l -Tutf8 -Z"), "");
}

INSTANTIATE_TEST_SUITE_P(All, ManPages, testing::ValuesIn(man_pages()));

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
