#include "findings/kinds.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/DesignFile.h"
#include "settings/engine_text.h"

namespace {

using namespace SdkDebugDialog;

TEST(FindingKinds, AreFoundByTheirCodes) {
  std::set<std::string_view> codes;
  for (const FindingKind& kind : finding_kinds()) {
    EXPECT_EQ(find_finding_kind(kind.code), &kind);
    EXPECT_EQ(kind.code.find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789-"), kind.code.npos) << kind.code;
    codes.insert(kind.code);
  }
  EXPECT_EQ(codes.size(), finding_kinds().size());
  EXPECT_EQ(find_finding_kind("no-such-code"), nullptr);
}

TEST(FindingKinds, StandInTheOrderOfTheirEnumerators) {
  ASSERT_EQ(finding_kinds().size(), static_cast<std::size_t>(Code::tooMany) + 1);
  EXPECT_EQ(kind_of(Code::incompleteCommand).code, "incomplete-command");
  EXPECT_EQ(kind_of(Code::byteOrderMark).code, "byte-order-mark");
  EXPECT_EQ(kind_of(Code::givenTwice).code, "given-twice");
  EXPECT_EQ(kind_of(Code::sameProcessor).code, "same-processor");
  EXPECT_EQ(kind_of(Code::tooMany).code, "too-many");
}

// Whole sentences of ASCII; words of the command stand in single quotes, so that no quote is an apostrophe.
bool is_prose(std::string_view text) {
  return !text.empty() && text.front() >= 'A' && text.front() <= 'Z' && text.ends_with('.') &&
         text.find("  ") == text.npos && std::ranges::count(text, '\'') % 2 == 0 &&
         std::ranges::all_of(text, [](char c) { return c >= ' ' && c <= '~'; });
}

TEST(FindingKinds, AreDescribed) {
  std::set<std::string_view> titles;
  for (const FindingKind& kind : finding_kinds()) {
    SCOPED_TRACE(kind.code);
    EXPECT_EQ(kind.title.find_first_not_of("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789 ,-"),
              kind.title.npos);
    EXPECT_FALSE(kind.title.empty() || kind.title.starts_with(' ') || kind.title.ends_with(' '));
    EXPECT_LE(kind.title.size(), 50U);
    titles.insert(kind.title);
    EXPECT_PRED1(is_prose, kind.meaning);
    EXPECT_PRED1(is_prose, kind.advice);
    EXPECT_FALSE(kind.example.empty() || kind.example.starts_with(' ') || kind.example.ends_with(' '));
  }
  EXPECT_EQ(titles.size(), finding_kinds().size());
}

// --- Examples ---

// The processor of the bundled design that an example is for; empty if it needs none.
std::string_view processor_of(const FindingKind& kind) {
  constexpr std::pair<Code, const char*> kProcessors[] = {
      {Code::connectionNotAdmitted, "ovrin_1"},
      {Code::wrongCpuNumber, "ovrin_1"},
      {Code::fpuFromDesign, "ppc405_0"},
      {Code::otherFamily, "ovrin_1"},
  };
  for (const auto& [code, processor] : kProcessors) {
    if (&kind == &kind_of(code)) return processor;
  }
  return "";
}

// A text alone does not show them.
bool is_of_one_text(const FindingKind& kind) {
  constexpr Code kOthers[] = {Code::noSuchProcessor, Code::sharedCableChain, Code::sharedCableFrequency,
                              Code::sameProcessor, Code::tooMany};
  return std::ranges::none_of(kOthers, [&](Code code) { return &kind == &kind_of(code); });
}

class FindingExamples : public testing::TestWithParam<FindingKind> {
 protected:
  const FindingKind& kind = *find_finding_kind(GetParam().code);
  DesignFile hardware = DesignFile::load(PROJECT_SOURCE_DIR "/examples/designs/large.json");
  Design design{hardware};
  Processor processor = processor_of(kind).empty() ? Processor() : design.find(processor_of(kind)).value();
};

TEST_P(FindingExamples, AreRefusedIfTheyAreErrors) {
  const bool refused = kind.severity == Severity::error && is_of_one_text(kind);
  EXPECT_EQ(read_state(processor, kind.example, kind.exampleKind).understood, !refused) << kind.example;
}

TEST_P(FindingExamples, HaveTheFindingAndTellWhatToDo) {
  const std::vector<Finding> findings = diagnose(kind.example, kind.exampleKind, processor);
  const auto found = std::ranges::find(findings, &kind, &Finding::kind);
  ASSERT_EQ(found != findings.end(), is_of_one_text(kind)) << kind.example;
  if (found == findings.end()) return;
  EXPECT_EQ(found->severity, kind.severity);
  EXPECT_FALSE(found->message.empty());
  EXPECT_TRUE(found->severity != Severity::error || !found->remedy.empty() || !found->fixes.empty());
}

INSTANTIATE_TEST_SUITE_P(All, FindingExamples, testing::ValuesIn(finding_kinds()),
                         [](const testing::TestParamInfo<FindingKind>& example) {
                           std::string name(example.param.code);
                           std::ranges::replace(name, '-', '_');
                           return name;
                         });

}  // namespace
