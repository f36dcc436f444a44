#pragma once

// Numbers as people type and read them.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace SdkDebugDialog {

// What K, M and G behind a number stand for.
enum class Scale {
  none,     // nothing: they are refused
  decimal,  // powers of 1,000: frequencies, baud rates
  binary,   // powers of 1,024: sizes, addresses
};

// A whole number within 64 bits, with its sign; nullopt for any other text. The units are "Hz", "baud", "bytes" and
// none (empty).
//
//   16, -1, 1_000_000, 0x1000, 0x8000_0000
//   12e6, 1.2e7, 1.5M                 a fraction or an exponent if the number is whole; the arithmetic is exact
//   12M, 12 MHz, 12mhz, 200 kHz       decimal, "Hz"; prefix and unit in any case
//   115.2k, 115.2 kBd, 115200 baud    decimal, "baud"
//   64K, 64 KB, 64KiB                 binary, any unit
//   1000 bytes, 1000B                 binary, "bytes"
//
// Refused are a '+' in front, a leading zero as in 010 (octal for some, decimal for others), and a suffix behind a
// hexadecimal number.
std::optional<std::int64_t> parse_number(std::string_view text, Scale scale, std::string_view unit);

// The text of a number, which parse_number reads back:
//
//   "Hz"     the largest prefix, with up to three decimal places: 7.5 MHz, 625 kHz; else 1234567 Hz
//   "baud"   115200 baud
//   "bytes"  the largest prefix that leaves a whole number: 32 KB, 1536 KB; else 1000 bytes
//   none     the number
std::string number_text(std::int64_t value, Scale scale, std::string_view unit);

// Eight hexadecimal digits: 0x70000000.
std::string address_text(std::uint32_t address);

}  // namespace SdkDebugDialog
