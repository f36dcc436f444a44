// Every code block of the documents is run or compared by a test, or listed here with the reason.

#include "tests/support/Blocks.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace {

struct NotRun {
  std::string_view document;
  std::string_view beginning;  // of the block
  std::string_view reason;
};

constexpr NotRun kNotRun[] = {
    {"README.md", " design file ──▶", "a picture"},
    {"README.md", "apt-get update", "installs packages and builds everything"},
    {"README.md", "cmake --preset release", "this build was made so; DocumentedSessions installs it"},
    {"docs/checking.md", "FILE:LINE:COLUMN:", "a form; DocumentedEditors match what is printed against it"},
    {"docs/checking.md", "set makeprg", "DocumentedEditors run it"},
    {"docs/checking.md", "{\n  \"version\": \"2.0.0\"", "DocumentedEditors use it"},
    {"docs/connect-command.md", "connect ", "read and written by documents_test.cpp; the first one alone shows a form"},
    {"docs/findings.md", "", "printed from the kinds of findings; tests/findings/kinds_test.cpp checks the examples"},
    {"docs/guides/building.md", "cmake -S dialog", "needs Qt; scripts/dialog does it"},
    {"docs/licences.md", "", "texts of licences"},
    {"docs/performance.md", "scripts/bench", "takes minutes"},
    {"docs/qvtcfg.md", "qvtcfg [-C DIR]", "the form of a command line"},
    {"docs/testing.md", "EDIT_COUNT=", "takes hours"},
    {"docs/testing.md", "DIAGNOSE_COUNT=", "takes hours"},
    {"docs/testing.md", "TEST_LOCALE=", "a step of scripts/test all"},
};

// The blocks of a document that no session and no other test uses, by their beginnings.
std::vector<std::string> unused_in(const std::string& document) {
  const bool isRun = std::ranges::find(kSessions, document) != std::end(kSessions);
  std::vector<std::string> unused;
  for (const Block& block : blocks_of(document)) {
    const std::string text = block.text();
    const bool marked = block.before.starts_with("<!-- file: ") || block.before.starts_with("<!-- program: ");
    if (isRun && (marked || block.is_session())) continue;
    const bool listed = std::ranges::any_of(
        kNotRun, [&](const NotRun& known) { return document == known.document && text.starts_with(known.beginning); });
    if (!listed) unused.push_back(text);
  }
  return unused;
}

TEST(Blocks, AreAllRunOrListed) {
  for (const std::string& document : all_documents()) {
    EXPECT_THAT(unused_in(document), testing::IsEmpty()) << document;
  }
}

TEST(Blocks, AreListedOnlyIfTheyAreThere) {
  for (const NotRun& known : kNotRun) {
    EXPECT_TRUE(std::ranges::any_of(blocks_of(std::string(known.document)),
                                    [&](const Block& block) { return block.text().starts_with(known.beginning); }))
        << known.document << ": " << known.beginning;
  }
}

}  // namespace
