#include "options/number.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>

#include "options/TokenCursor.h"

namespace SdkDebugDialog {
namespace {

struct Magnitude {
  bool negative = false;
  bool overflow = false;
  std::uint64_t value = 0;
};

// What each character counts as a digit; what is none counts more than any base.
constexpr auto kDigits = [] {
  std::array<std::uint8_t, 256> digits{};
  digits.fill(0xFF);
  for (std::uint8_t i = 0; i < 10; ++i) digits[static_cast<std::size_t>('0') + i] = i;
  for (std::uint8_t i = 10; i < 16; ++i) {
    digits[static_cast<std::size_t>('a') + i - 10] = i;
    digits[static_cast<std::size_t>('A') + i - 10] = i;
  }
  return digits;
}();

unsigned digit(char c) { return kDigits[static_cast<unsigned char>(c)]; }

// std::from_chars, which is made for any base, takes three times as long.
template <unsigned base>
void convert(const char* at, const char* end, Magnitude& number) {
  // In any base this many digits fit.
  const char* const fits = at + std::min<std::ptrdiff_t>(end - at, 16);
  unsigned next = 0;
  for (; at != fits && (next = digit(*at)) < base; ++at) number.value = number.value * base + next;
  constexpr std::uint64_t kMax = std::numeric_limits<std::uint64_t>::max();
  for (; at != end && (next = digit(*at)) < base; ++at) {
    number.overflow |= number.value > kMax / base || number.value * base > kMax - next;
    number.value = number.value * base + next;
  }
}

enum class Base { decimal, byPrefix };

Magnitude scan(std::string_view text, Base base) {
  Magnitude number;
  const char* begin = text.data();
  const char* const end = begin + text.size();
  while (begin != end && is_space(*begin)) ++begin;
  if (begin != end && (*begin == '-' || *begin == '+')) {
    number.negative = *begin == '-';
    ++begin;
  }
  if (base == Base::decimal || begin == end || *begin != '0') {
    convert<10>(begin, end, number);
  } else if (end - begin > 2 && (begin[1] == 'x' || begin[1] == 'X') && digit(begin[2]) < 16) {
    convert<16>(begin + 2, end, number);
  } else {
    convert<8>(begin, end, number);
  }
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

std::uint64_t to_unsigned_any(std::string_view text) {
  const Magnitude number = scan(text, Base::byPrefix);
  if (number.overflow) return std::numeric_limits<std::uint64_t>::max();
  return number.negative ? 0 - number.value : number.value;
}

std::int64_t to_signed(std::string_view text) { return clamp(scan(text, Base::byPrefix)); }

std::int64_t to_decimal(std::string_view text) { return clamp(scan(text, Base::decimal)); }

}  // namespace SdkDebugDialog
