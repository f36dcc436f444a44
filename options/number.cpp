#include "options/number.h"

#include <algorithm>
#include <charconv>
#include <limits>

#include "options/TokenCursor.h"

namespace SdkDebugDialog {
namespace {

struct Magnitude {
  bool negative = false;
  bool overflow = false;
  std::uint64_t value = 0;
};

bool is_hex_digit(char c) { return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F'); }

Magnitude scan(std::string_view text, int base) {
  Magnitude number;
  while (!text.empty() && is_space(text.front())) text.remove_prefix(1);
  if (!text.empty() && (text.front() == '-' || text.front() == '+')) {
    number.negative = text.front() == '-';
    text.remove_prefix(1);
  }
  if (base == 0) {
    base = 10;
    if (!text.empty() && text.front() == '0') {
      base = 8;
      if (text.size() > 2 && (text[1] == 'x' || text[1] == 'X') && is_hex_digit(text[2])) {
        base = 16;
        text.remove_prefix(2);
      }
    }
  }
  const auto result = std::from_chars(text.data(), text.data() + text.size(), number.value, base);
  number.overflow = result.ec == std::errc::result_out_of_range;
  return number;
}

std::int64_t clamp(const Magnitude& number) {
  constexpr std::uint64_t kMax = std::numeric_limits<std::int64_t>::max();
  if (number.negative) {
    if (number.overflow || number.value > kMax) return std::numeric_limits<std::int64_t>::min();
    return -static_cast<std::int64_t>(number.value);
  }
  return static_cast<std::int64_t>(number.overflow ? kMax : std::min(number.value, kMax));
}

}  // namespace

std::uint64_t to_unsigned(std::string_view text) {
  const Magnitude number = scan(text, 0);
  if (number.overflow) return std::numeric_limits<std::uint64_t>::max();
  return number.negative ? 0 - number.value : number.value;
}

std::int64_t to_signed(std::string_view text) { return clamp(scan(text, 0)); }

std::int64_t to_decimal(std::string_view text) { return clamp(scan(text, 10)); }

}  // namespace SdkDebugDialog
