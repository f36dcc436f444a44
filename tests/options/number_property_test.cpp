// Numbers in option values, for any text.

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <optional>
#include <string>

#include "options/QvtOption_Parser.h"
#include "options/number.h"
#include "tests/support/SelectedEngine.h"

namespace SdkDebugDialog {
namespace {

// --- Texts ---

// White space, sign, prefix, digits and trailing characters; each part may be empty.
std::string number_text() {
  const auto spaces = *rc::gen::container<std::string>(rc::gen::elementOf(std::string(" \t\n\v\f\r")));
  const auto sign = *rc::gen::element<std::string>("", "-", "+", "-", "--", "+-");
  const auto prefix = *rc::gen::element<std::string>("", "0", "0x", "0X", "00", "x");
  const auto base = *rc::gen::element<std::string>("01234567", "0123456789", "0123456789abcdefABCDEF");
  const auto length = *rc::gen::inRange<std::size_t>(0, 30);
  const auto digits = *rc::gen::container<std::string>(length, rc::gen::elementOf(base));
  const auto end = *rc::gen::element<std::string>("", "", " ", "g", ".5", "-1", std::string(1, '\0') + "7");
  return spaces + sign + prefix + digits + end;
}

std::string any_text() { return *rc::gen::arbitrary<std::string>(); }

// --- Reference implementation ---

struct Plain {
  bool negative = false;
  std::optional<std::uint64_t> size = 0;  // nullopt: does not fit into 64 bits
};

int digit_of(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return 99;
}

Plain plain_number(std::string text, bool anyBase) {
  constexpr std::uint64_t kMax = std::numeric_limits<std::uint64_t>::max();
  text += '\0';  // ends every number
  Plain number;
  std::size_t i = text.find_first_not_of(" \t\n\v\f\r");
  if (text[i] == '-' || text[i] == '+') number.negative = text[i++] == '-';
  int base = 10;
  if (anyBase && text[i] == '0') {
    const bool isHex = (text[i + 1] == 'x' || text[i + 1] == 'X') && digit_of(text[i + 2]) < 16;
    base = isHex ? 16 : 8;
    if (isHex) i += 2;
  }
  for (; digit_of(text[i]) < base; ++i) {
    const auto digit = static_cast<std::uint64_t>(digit_of(text[i]));
    const auto factor = static_cast<std::uint64_t>(base);
    if (number.size && *number.size > (kMax - digit) / factor) number.size.reset();
    if (number.size) *number.size = *number.size * factor + digit;
  }
  return number;
}

std::uint64_t plain_unsigned(const std::string& text) {
  const Plain number = plain_number(text, true);
  if (!number.size) return std::numeric_limits<std::uint64_t>::max();
  return number.negative ? 0 - *number.size : *number.size;
}

std::int64_t plain_signed(const std::string& text, bool anyBase) {
  constexpr std::int64_t kHighest = std::numeric_limits<std::int64_t>::max();
  const Plain number = plain_number(text, anyBase);
  const bool fits = number.size && *number.size <= static_cast<std::uint64_t>(kHighest);
  if (number.negative) return fits ? -static_cast<std::int64_t>(*number.size) : -kHighest - 1;
  return fits ? static_cast<std::int64_t>(*number.size) : kHighest;
}

void check(const std::string& text) {
  static_assert(sizeof(unsigned long long) == 8);
  RC_ASSERT(to_unsigned(text) == std::strtoull(text.c_str(), nullptr, 0));
  RC_ASSERT(to_signed(text) == std::strtoll(text.c_str(), nullptr, 0));
  RC_ASSERT(to_decimal(text) == std::strtoll(text.c_str(), nullptr, 10));
  RC_ASSERT(to_unsigned(text) == plain_unsigned(text));
  RC_ASSERT(to_signed(text) == plain_signed(text, true));
  RC_ASSERT(to_decimal(text) == plain_signed(text, false));
}

RC_GTEST_PROP(NumberProperty, TextsLikeNumbersAreReadByTheCLibrarysRule, ()) {
  for (int i = 0; i < 20; ++i) check(number_text());
}

RC_GTEST_PROP(NumberProperty, AnyTextIsReadByTheCLibrarysRule, ()) {
  for (int i = 0; i < 20; ++i) check(any_text());
}

RC_GTEST_PROP(NumberProperty, EveryNumberIsReadBackInEachBase, (std::uint64_t number)) {
  char text[32];
  std::snprintf(text, sizeof text, "%llu", static_cast<unsigned long long>(number));
  RC_ASSERT(to_unsigned(text) == number);
  std::snprintf(text, sizeof text, "0x%llX", static_cast<unsigned long long>(number));
  RC_ASSERT(to_unsigned(text) == number);
  std::snprintf(text, sizeof text, "0%llo", static_cast<unsigned long long>(number));
  RC_ASSERT(to_unsigned(text) == number);
  std::snprintf(text, sizeof text, "%lld", static_cast<long long>(number));
  RC_ASSERT(to_unsigned(text) == number);
  RC_ASSERT(to_signed(text) == static_cast<std::int64_t>(number));
  RC_ASSERT(to_decimal(text) == static_cast<std::int64_t>(number));
}

// --- Signed fields of 8 bits ---

// The low 8 bits as a two's complement number.
int low_byte(std::uint32_t number) {
  const int rest = static_cast<int>(number % 256);
  return rest < 128 ? rest : rest - 256;
}

RC_GTEST_PROP(SignedByteProperty, FieldsKeepTheLowBitsOfAnyNumberAndWriteThemSigned, (std::uint32_t number)) {
  const std::string text = std::to_string(number);
  SelectedEngine s;
  RC_ASSERT(QvtOption_Parser::ReadQvtCommand("connect ov odm -configdevice devicenr " + text + " irlength " + text +
                                                 " -debugdevice deviceNr " + text + " cpunr " + text,
                                             s.imp) == 0);
  const int expected = low_byte(number);
  RC_ASSERT(s.imp.jtagChain.size() == 1U);
  RC_ASSERT(s.imp.jtagChain[0]->devicenr == expected);
  RC_ASSERT(s.imp.jtagChain[0]->irlength == expected);
  RC_ASSERT(s.processor.debugDevice == expected);
  RC_ASSERT(s.processor.cpuNr == number % 256);

  const std::string byte = std::to_string(expected);
  std::string written;
  RC_ASSERT(QvtOption_Parser::WriteQvtCmdString(s.imp, written) == 0);
  RC_ASSERT(written == "connect ov odm -configdevice devicenr " + byte + " partname UNKNOWN irlength " + byte +
                           " idcode 0x0 -debugdevice" + (expected != 0 ? " deviceNr " + byte : "") + " cpunr " + byte);
  SelectedEngine again;
  std::string second;
  RC_ASSERT(QvtOption_Parser::ReadQvtCommand(written, again.imp) == 0);
  RC_ASSERT(QvtOption_Parser::WriteQvtCmdString(again.imp, second) == 0);
  RC_ASSERT(second == written);
}

RC_GTEST_PROP(SignedByteProperty, TheDebugDeviceSetByAProgramIsCutLikewise, (std::int32_t number)) {
  SelectedEngine s;
  RC_ASSERT(s.engine.SetDebugDevice(number) == 0);
  const int expected = low_byte(static_cast<std::uint32_t>(number));
  RC_ASSERT(s.processor.debugDevice == expected);
  int device = 1000;
  RC_ASSERT(s.engine.GetDebugDevice(device) == (expected != 0 ? 0 : 1));
  RC_ASSERT(device == (expected != 0 ? expected : 1000));
}

}  // namespace
}  // namespace SdkDebugDialog
