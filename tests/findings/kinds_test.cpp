#include "findings/kinds.h"

#include <gtest/gtest.h>

#include <set>

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

}  // namespace
