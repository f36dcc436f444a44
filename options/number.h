#pragma once

// Numbers in option values.

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace SdkDebugDialog {

// As strtoul with base 0, on 64 bits whatever the width of long: white space and a sign may come first, "0x" is
// hexadecimal, a leading "0" octal, everything else decimal. Reading stops at the first character that is no digit. A
// text without a digit is 0, a number beyond 64 bits the largest value. Callers truncate the result to their field.
inline std::uint64_t to_unsigned(std::string_view text);

// As strtol with base 0, on 64 bits.
std::int64_t to_signed(std::string_view text);

// As strtol with base 10, on 64 bits.
std::int64_t to_decimal(std::string_view text);

// The same for any text; to_unsigned is faster for plain decimal numbers.
std::uint64_t to_unsigned_any(std::string_view text);

inline std::uint64_t to_unsigned(std::string_view text) {
  // Nearly every number is a few decimal digits and nothing else.
  if (text.size() < 16 && !text.empty() && text.front() != '0') {
    std::uint64_t value = 0;
    for (std::size_t i = 0;; ++i) {
      if (i == text.size()) return value;
      const unsigned next = static_cast<unsigned char>(text[i]) - static_cast<unsigned>('0');
      if (next > 9) break;
      value = value * 10 + next;
    }
  }
  return to_unsigned_any(text);
}

}  // namespace SdkDebugDialog
