// The recipes of docs/checking.md for version control and continuous integration, in a repository of git.

#include <gmock/gmock.h>

#include <algorithm>

#include "tests/support/Blocks.h"
#include "tool.h"

namespace {

using testing::HasSubstr;
using testing::StartsWith;

constexpr const char* kGood = "connect ov odm -debugdevice deviceNr 2 cpunr 1\n";
constexpr const char* kBad = "connect ov odm -debugdevise deviceNr 2 cpunr 1\n";
constexpr const char* kOption = "repository/etc/qvt_ovrin_0.opt";

// The file that the document shows below its path.
std::string recipe(const std::string& path) {
  const std::vector<Block> blocks = blocks_of("docs/checking.md");
  const auto block = std::ranges::find(blocks, "<!-- file: " + path + " -->", &Block::before);
  EXPECT_NE(block, blocks.end()) << path;
  return block != blocks.end() ? block->text() : "";
}

class Recipes : public Tool {
 protected:
  Recipes() {
    std::filesystem::create_directories(folder() / "repository/etc");
    std::filesystem::create_directories(folder() / "for temporary files");
    std::filesystem::copy_file(folder() / "design.json", folder() / "repository/design.json");
    write("pre-commit", recipe("build/try/pre-commit"));
    write("check-option-files", recipe("build/try/check-option-files"));
    write(kOption, kGood);
    EXPECT_EQ(git("git init -q . && install -D ../pre-commit \"$(git rev-parse --git-path hooks)/pre-commit\"").code,
              0);
    EXPECT_EQ(commit("git add .").code, 0);
  }

  // Runs commands in the repository, without settings of the user and without those of a repository around the tests.
  Result git(const std::string& commands) const {
    return shell(
        "unset $(git rev-parse --local-env-vars); export GIT_CONFIG_GLOBAL=/dev/null GIT_CONFIG_NOSYSTEM=1\n"
        "export GIT_AUTHOR_NAME=tester GIT_AUTHOR_EMAIL=tester@localhost\n"
        "export GIT_COMMITTER_NAME=tester GIT_COMMITTER_EMAIL=tester@localhost\n"
        "export TMPDIR=\"$PWD/for temporary files\" PATH=\"${QVTCFG%/*}:$PATH\"; cd repository || exit\n" +
        commands);
  }
  Result commit(const std::string& before) const { return git(before + "\ngit commit -qm change"); }
  std::string head() const { return git("git rev-parse HEAD").out; }

  // No trace is left, whether or not the commit was made.
  void TearDown() override { EXPECT_TRUE(std::filesystem::is_empty(folder() / "for temporary files")); }
};

TEST_F(Recipes, RefuseACommitWithErrorsAndLoseNothing) {
  const std::string before = head();
  write(kOption, kBad);
  const Result refused = commit("git add etc");
  EXPECT_EQ(refused.code, 1);
  EXPECT_THAT(refused.out + refused.err, StartsWith("etc/qvt_ovrin_0.opt:1:16: error: no option '-debugdevise'"));
  EXPECT_EQ(head(), before);
  EXPECT_EQ(read(kOption), kBad);
  EXPECT_EQ(git("git show :etc/qvt_ovrin_0.opt").out, kBad);
  write(kOption, "connect ov odm -debugdevice deviceNr 3 cpunr 1\n");
  EXPECT_EQ(commit("git add etc").code, 0);
}

TEST_F(Recipes, CheckWhatIsStagedAndNotTheFolder) {
  write(kOption, kBad);
  EXPECT_EQ(git("git add etc").code, 0);
  write(kOption, kGood);
  EXPECT_EQ(commit("").code, 1);

  write(kOption, "connect ov odm -debugdevice deviceNr 4 cpunr 1\n");
  EXPECT_EQ(git("git add etc").code, 0);
  write(kOption, kBad);
  write("repository/etc/qvt_ovrin_1.opt", kBad);
  const Result made = commit("");
  EXPECT_EQ(made.code, 0) << made.err;
  EXPECT_EQ(read(kOption), kBad);
  EXPECT_EQ(git("git show HEAD:etc/qvt_ovrin_0.opt").out, "connect ov odm -debugdevice deviceNr 4 cpunr 1\n");
}

TEST_F(Recipes, LetOtherFilesPass) {
  write(kOption, kBad);
  EXPECT_EQ(git("git add etc && git commit -qnm 'not checked'").code, 0);
  write("repository/notes", "");
  EXPECT_EQ(commit("git add notes").code, 0);
  write("repository/notes", "of a commit of one file, with others staged");
  write("repository/etc/qvt_ovrin_1.opt", kBad);
  EXPECT_EQ(git("git add etc && git commit -qm notes notes").code, 0);
}

TEST_F(Recipes, TakeNamesWithBlanksAndDeletedFiles) {
  write("repository/etc/qvt_a b.opt", kBad);
  const Result refused = commit("git add etc");
  EXPECT_EQ(refused.code, 1);
  EXPECT_THAT(refused.out + refused.err, HasSubstr("etc/qvt_a b.opt:1:16: error: "));
  EXPECT_EQ(commit("git rm -qf 'etc/qvt_a b.opt' && git rm -q etc/qvt_ovrin_0.opt").code, 0);
  EXPECT_EQ(commit("git rm -q design.json && mkdir -p etc && touch etc/other && git add etc").code, 0);
  EXPECT_EQ(commit("git rm -q etc/other").code, 0);
}

// Another design can make an option file wrong.
TEST_F(Recipes, CheckTheDesignAsWell) {
  write("repository/design.json", R"({"instances": []})");
  EXPECT_EQ(commit("git add design.json").code, 1);
}

TEST_F(Recipes, WorkInAFolderForHooks) {
  EXPECT_EQ(git("rm .git/hooks/pre-commit; git config core.hooksPath hooks\n"
                "install -D ../pre-commit \"$(git rev-parse --git-path hooks)/pre-commit\"")
                .code,
            0);
  write(kOption, kBad);
  EXPECT_EQ(commit("git add hooks etc").code, 1);
}

// --- Continuous integration ---

TEST_F(Recipes, EndAStepWithTheResultOfTheCheck) {
  const auto step = [&] { return git("sh -e ../check-option-files"); };
  const auto results = [&] {
    return nlohmann::json::parse(read("repository/findings.sarif"))["runs"][0]["results"].size();
  };
  const Result good = step();
  EXPECT_EQ(good.code, 0) << good.err;
  EXPECT_EQ(good.out, "");
  EXPECT_EQ(results(), 0U);

  write(kOption, "connect ov odm -debugdevice deviceNr 010 cpunr 1\n");
  EXPECT_EQ(step().code, 3);
  EXPECT_EQ(results(), 1U);
  write(kOption, kBad);
  const Result bad = step();
  EXPECT_EQ(bad.code, 3);
  EXPECT_THAT(bad.out, StartsWith("etc/qvt_ovrin_0.opt:1:16: error: "));
  EXPECT_EQ(results(), 1U);
}

TEST_F(Recipes, EndAStepInAWrongFolderWithAnError) {
  const Result wrong = git("git rm -rqf . && sh ../check-option-files");
  EXPECT_EQ(wrong.code, 4);
  EXPECT_THAT(wrong.err, HasSubstr("qvtcfg: this folder has no design.json and no option file"));
}

}  // namespace
