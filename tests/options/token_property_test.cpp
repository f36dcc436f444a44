// The tokenizer, with random texts.

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <stdexcept>
#include <string>

#include "options/QvtOption_Parser.h"
#include "tests/support/plain_token.h"

namespace SdkDebugDialog {
namespace {

constexpr int kThrown = -1;

int get_token(std::string& text, std::string& token) {
  try {
    return QvtOption_Parser::get_token(text, token);
  } catch (const std::out_of_range&) {
    return kThrown;
  }
}

// Reads tokens until the end of the text, and compares each with the reference tokenizer.
void check(const std::string& text) {
  std::string left = text;
  for (int kind = 0; kind != 3;) {
    const std::string whole = left;
    const PlainToken expected = plain_token(whole);
    const std::string token = expected.kind == 3 ? "before" : std::string(expected.token);
    newoption_token = "-before";

    std::string found = "before";
    kind = get_token(left, found);
    RC_ASSERT(kind == (expected.thrown ? kThrown : expected.kind));
    RC_ASSERT(found == token);
    RC_ASSERT(left == whole.substr(expected.end));
    RC_ASSERT(newoption_token == (kind == 1 ? token : "-before"));
  }
}

RC_GTEST_PROP(TokenProperty, WordsBetweenAnyWhiteSpaceAreCutByThePlainRule, ()) {
  const std::string mostlySpace = " \t\n\v\f\r \t -0a";
  for (int i = 0; i < 20; ++i) check(*rc::gen::container<std::string>(rc::gen::elementOf(mostlySpace)));
}

RC_GTEST_PROP(TokenProperty, AnyBytesAreCutByThePlainRule, ()) {
  for (int i = 0; i < 20; ++i) check(*rc::gen::container<std::string>(rc::gen::arbitrary<char>()));
}

}  // namespace
}  // namespace SdkDebugDialog
