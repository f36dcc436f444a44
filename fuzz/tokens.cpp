// Fuzz target: the tokenizer, compared with a simple reference tokenizer.

#include <algorithm>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

#include "fuzz/check.h"
#include "fuzz/lone_dash.h"
#include "options/QvtOption_Parser.h"
#include "options/TokenCursor.h"
#include "tests/support/plain_token.h"

using namespace SdkDebugDialog;

namespace {

// The result code of the entry points for a kind of token or pair.
int number_of(Token token) { return token == Token::value ? 0 : token == Token::option ? 1 : 3; }
int number_of(Pair pair) {
  return pair == Pair::complete ? 0 : pair == Pair::option ? 1 : pair == Pair::incomplete ? 2 : 3;
}

void check_cut(std::string& text, TokenCursor& cursor) {
  const std::string whole = text;
  const PlainToken expected = plain_token(whole);
  const std::string rest = whole.substr(expected.end);
  const std::string before = newoption_token;
  std::string token = "older";
  std::string_view view = "older";
  const int kind = result_of(whole, [&] { return QvtOption_Parser::get_token(text, token); });
  const int cursorKind = result_of(whole, [&] { return number_of(cursor.next(view)); });

  expect(kind == (expected.thrown ? kThrown : expected.kind), "the kind of token", whole);
  expect(cursorKind == kind, "the cursor to see the same kind", whole);
  expect_same(text, rest, "what is left");
  expect_same(cursor.rest(), rest, "what the cursor leaves");
  const std::string_view word = expected.kind == 3 ? std::string_view("older") : expected.token;
  expect_same(token, std::string(word), "the token");
  expect_same(view, std::string(word), "the cursor's token");
  expect_same(newoption_token, kind == 1 ? token : before, "the option that waits");
  if (kind == 1) expect_same(cursor.option(), token, "the cursor's option");
}

// Compares pairs with two tokens read one after the other.
void check_pairs(std::string text) {
  TokenCursor cursor(text);
  std::string left = text;
  for (int kind = 0; kind != 3 && kind != kThrown;) {
    std::string key = "older";
    std::string value = "older";
    std::string plainKey = key;
    std::string plainValue = value;
    std::string plainLeft = left;
    const int expected = result_of(left, [&] {
      const int first = QvtOption_Parser::get_token(plainLeft, plainKey);
      if (first != 0) return first;
      return QvtOption_Parser::get_token(plainLeft, plainValue) == 0 ? 0 : 2;
    });
    kind = result_of(left, [&] { return QvtOption_Parser::get_tokenpair(left, key, value); });
    expect(kind == expected, "the kind of pair", text);
    expect_same(left, plainLeft, "what is left");
    expect_same(key, plainKey, "the key");
    expect_same(value, plainValue, "the value");

    std::string_view cursorKey = "older";
    std::string_view cursorValue = "older";
    const int cursorKind = result_of(text, [&] { return number_of(cursor.next_pair(cursorKey, cursorValue)); });
    expect(cursorKind == kind, "the cursor to see the same kind", text);
    if (kind == 0) {
      expect_same(cursorKey, key, "the cursor's key");
      expect_same(cursorValue, value, "the cursor's value");
    }
    expect_same(cursor.rest(), left, "what the cursor leaves");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(data, data + size);
  TokenCursor cursor(text);
  for (std::string left = text; !left.empty();) check_cut(left, cursor);
  check_pairs(text);
  return 0;
}
