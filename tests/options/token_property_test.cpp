// The tokenizer, for any text.

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <stdexcept>
#include <string>
#include <string_view>

#include "options/QvtOption_Parser.h"
#include "options/TokenCursor.h"
#include "tests/support/plain_token.h"

namespace SdkDebugDialog {
namespace {

constexpr int kThrown = -1;

template <class Cut>
int kind_of(Cut cut) {
  try {
    return cut();
  } catch (const std::out_of_range&) {
    return kThrown;
  }
}

// Cuts token after token off a text, until there is none.
void check(const std::string& text) {
  TokenCursor cursor(text);
  std::string left = text;
  for (int kind = 0; kind != 3;) {
    const std::string whole = left;
    const PlainToken expected = plain_token(whole);
    const std::string token = expected.kind == 3 ? "before" : std::string(expected.token);
    newoption_token = "-before";

    std::string found = "before";
    kind = kind_of([&] { return QvtOption_Parser::get_token(left, found); });
    RC_ASSERT(kind == (expected.thrown ? kThrown : expected.kind));
    RC_ASSERT(found == token);
    RC_ASSERT(left == whole.substr(expected.end));
    RC_ASSERT(newoption_token == (kind == 1 ? token : "-before"));

    std::string_view view = "before";
    RC_ASSERT(kind_of([&] { return cursor.next(view); }) == kind);
    RC_ASSERT(view == token);
    RC_ASSERT(cursor.rest() == left);
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
