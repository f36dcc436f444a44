#include "findings/kinds.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string_view>

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

// A text alone does not show them: they need a design, another text, or more than a line.
bool needs_more_than_a_text(const FindingKind& kind) {
  constexpr Code kCodes[] = {
      Code::connectionNotAdmitted, Code::wrongCpuNumber, Code::fpuFromDesign,
      Code::noSuchProcessor,       Code::otherFamily,    Code::sharedCableChain,
      Code::sharedCableFrequency,  Code::sameProcessor,  Code::tooMany,
  };
  return std::ranges::any_of(kCodes, [&](Code code) { return &kind == &kind_of(code); });
}

TEST(FindingKinds, HaveExamplesThatTheReaderRefusesIfTheyAreErrors) {
  for (const FindingKind& kind : finding_kinds()) {
    const bool refused = kind.severity == Severity::error && !needs_more_than_a_text(kind);
    EXPECT_EQ(read_state({}, kind.example, kind.exampleKind).understood, !refused) << kind.code << ": " << kind.example;
  }
}

}  // namespace
