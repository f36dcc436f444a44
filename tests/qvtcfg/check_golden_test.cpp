// What "qvtcfg check" prints, as a person sees it. tests/qvtcfg/check/ has for each kind of finding
//
//   CODE.opt    an option file that has such a finding
//   CODE.txt    or a command
//   CODE/       or a folder with option files; its file "design" names one of examples/designs
//   CODE.out    the output for it
//   CODE.fixed  the text after --fix, if there are safe fixes
//
// bad/ has files as they are found in the field, with their outputs, and clean/ files in which nothing is wrong. With
// the environment variable RENEW_GOLDEN set, the outputs are written anew.

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <ostream>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "SdkDebugDialog/Diagnosis.h"
#include "tool.h"

namespace {

namespace fs = std::filesystem;

fs::path golden(const std::string& name) { return fs::path(PROJECT_SOURCE_DIR "/tests/qvtcfg/check") / name; }

std::string content(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

// Of a long output, what stands at its ends.
std::string shortened(const std::string& output) {
  constexpr std::size_t kMost = 100;
  constexpr std::size_t kKept = 8;
  std::vector<std::string> lines;
  std::istringstream in(output);
  for (std::string line; std::getline(in, line);) lines.push_back(line + '\n');
  if (lines.size() <= kMost) return output;
  std::string text;
  for (std::size_t i = 0; i < kKept; ++i) text += lines[i];
  text += "... " + std::to_string(lines.size() - 2 * kKept) + " lines\n";
  for (std::size_t i = lines.size() - kKept; i < lines.size(); ++i) text += lines[i];
  return text;
}

// Compares with the file, or renews it. No file stands for an empty output.
void expect_golden(const fs::path& path, const std::string& found) {
  if (std::getenv("RENEW_GOLDEN") != nullptr) {
    if (found.empty()) {
      fs::remove(path);
    } else {
      std::ofstream(path, std::ios::binary) << found;
    }
  }
  EXPECT_EQ(found, content(path)) << path;
}

// Whether the path, without its ending, is an input.
bool is_input(const fs::path& path) {
  return path.extension() == ".opt" || path.extension() == ".txt" || fs::is_directory(path);
}

std::vector<fs::path> inputs_in(const fs::path& folder) {
  std::vector<fs::path> found;
  for (const auto& entry : fs::directory_iterator(folder)) {
    if (is_input(entry.path()) && entry.path() != golden("bad") && entry.path() != golden("clean")) {
      found.push_back(entry.path());
    }
  }
  std::ranges::sort(found);
  return found;
}

struct Golden {
  fs::path input;
};

void PrintTo(const Golden& golden, std::ostream* out) { *out << golden.input.filename().string(); }

std::vector<Golden> goldens(const char* folder) {
  std::vector<Golden> all;
  for (const fs::path& path : inputs_in(golden(folder))) all.push_back({path});
  return all;
}

std::string name_of(const testing::TestParamInfo<Golden>& info) {
  std::string name = info.param.input.stem().string();
  std::ranges::replace(name, '-', '_');
  return name;
}

class Check : public Tool, public testing::WithParamInterface<Golden> {
 protected:
  // The output for the input, with the result.
  std::string output() const {
    const Result result = check({"check"});
    EXPECT_EQ(result.err, "");
    return shortened(result.out) + (result.code == 0 ? "" : "exit code " + std::to_string(result.code) + "\n");
  }

  // The text after the safe fixes.
  std::string fixed() const {
    check({"check", "--fix"});
    return read("checked.opt");
  }

  const fs::path& input() const { return GetParam().input; }
  // Another file for the same input.
  fs::path beside(const char* ending) const { return fs::path(input()).replace_extension(ending); }

 private:
  Result check(std::vector<std::string> arguments) const {
    if (fs::is_directory(input())) {
      fs::copy(input(), folder(), fs::copy_options::recursive | fs::copy_options::overwrite_existing);
      fs::remove(folder() / "design.json");
      if (exists("design")) use_design(read("design"));
      return qvtcfg(arguments);
    }
    if (input().extension() == ".txt") {
      arguments.emplace_back("-");
      return qvtcfg(arguments, content(input()));
    }
    fs::copy_file(input(), folder() / "checked.opt", fs::copy_options::overwrite_existing);
    arguments.emplace_back("checked.opt");
    return qvtcfg(arguments);
  }
};

using CheckOfAKind = Check;

TEST_P(CheckOfAKind, PrintsIt) {
  const std::string found = output();
  EXPECT_NE(found.find("[" + input().stem().string() + "]"), std::string::npos) << found;
  expect_golden(beside(".out"), found);
  if (input().extension() != ".opt") return;
  const std::string text = fixed();
  expect_golden(beside(".fixed"), text == content(input()) ? "" : text);
}

INSTANTIATE_TEST_SUITE_P(All, CheckOfAKind, testing::ValuesIn(goldens("")), name_of);

using CheckOfABadFile = Check;

TEST_P(CheckOfABadFile, PrintsWhereAndWhatToDo) { expect_golden(beside(".out"), output()); }

INSTANTIATE_TEST_SUITE_P(All, CheckOfABadFile, testing::ValuesIn(goldens("bad")), name_of);

using CheckOfACleanFile = Check;

TEST_P(CheckOfACleanFile, FindsNothing) { EXPECT_EQ(output(), "1 file: nothing found\n"); }

INSTANTIATE_TEST_SUITE_P(All, CheckOfACleanFile, testing::ValuesIn(goldens("clean")), name_of);

TEST(CheckGolden, HasAnInputForEveryKind) {
  std::set<std::string> names;
  for (const Golden& golden : goldens("")) names.insert(golden.input.stem().string());
  std::set<std::string> codes;
  for (const SdkDebugDialog::FindingKind& kind : SdkDebugDialog::finding_kinds()) codes.emplace(kind.code);
  EXPECT_EQ(names, codes);
}

}  // namespace
