// Numbers as people type them, for any number and any text.

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cstddef>
#include <cstdint>
#include <string>

#include "settings/number_text.h"

namespace SdkDebugDialog {
namespace {

Scale any_scale() { return *rc::gen::element(Scale::none, Scale::decimal, Scale::binary); }

// Also one that no setting has.
std::string any_unit() { return *rc::gen::element<std::string>("", "Hz", "baud", "bytes", "volts"); }

// Of any size, often with zeros at the end, in decimal or in binary.
std::int64_t any_number() {
  const auto number = *rc::gen::arbitrary<std::int64_t>();
  const auto scaled = *rc::gen::inRange<std::int64_t>(-100000, 100000);
  const auto factor =
      *rc::gen::element<std::int64_t>(0, 1, 100, 1000, 100000, 1000000, 1000000000, 1024, 1 << 20, 1 << 30);
  return factor == 0 ? number : scaled * factor;
}

RC_GTEST_PROP(NumberTextProperty, EveryNumberIsReadBack, ()) {
  for (int i = 0; i < 20; ++i) {
    const std::int64_t number = any_number();
    const Scale scale = any_scale();
    const std::string unit = any_unit();
    RC_ASSERT(parse_number(number_text(number, scale, unit), scale, unit) == number);
  }
}

RC_GTEST_PROP(NumberTextProperty, AFractionIsExact, (std::uint32_t whole, std::uint32_t parts)) {
  const std::string fraction = std::to_string(1000000000 + parts % 1000000000).substr(1);
  const std::int64_t expected = std::int64_t{whole} * 1000000000 + parts % 1000000000;
  RC_ASSERT(parse_number(std::to_string(whole) + "." + fraction + " GHz", Scale::decimal, "Hz") == expected);
  RC_ASSERT(parse_number(std::to_string(whole) + "." + fraction + "e9", Scale::none, "") == expected);
}

RC_GTEST_PROP(NumberTextProperty, HexadecimalIsReadBack, (std::uint32_t address)) {
  RC_ASSERT(parse_number(address_text(address), any_scale(), any_unit()) == address);
}

// What is read is a number: its text is read back.
void check_any(const std::string& text) {
  const Scale scale = any_scale();
  const std::string unit = any_unit();
  const auto number = parse_number(text, scale, unit);
  if (number) RC_ASSERT(parse_number(number_text(*number, scale, unit), scale, unit) == number);
}

RC_GTEST_PROP(NumberTextProperty, AnyBytesAreReadOrRefused, (const std::string& text)) { check_any(text); }

RC_GTEST_PROP(NumberTextProperty, AnyTextLikeANumberIsReadOrRefused, ()) {
  const std::string characters = "00112589__..eExX+-  kKmMgGhHzZbBiIdDauytes";
  for (int i = 0; i < 20; ++i) {
    const auto length = *rc::gen::inRange<std::size_t>(0, 12);
    check_any(*rc::gen::container<std::string>(length, rc::gen::elementOf(characters)));
  }
}

}  // namespace
}  // namespace SdkDebugDialog
