#pragma once

// Values of the command line. Each is checked or refused with a Failure that shows the argument as it was given and
// tells what belongs there.

#include <cstdint>
#include <limits>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "SdkDebugDialog/JtagOption.h"
#include "failure.h"
#include "words.h"

namespace qvtcfg {

Failure refused(const std::string& argument, const std::string& why);
Failure wrong_value(const std::string& argument, const std::string& expected);

// Decimal, or hexadecimal with 0x.
std::uint32_t number(const std::string& argument, std::string_view text,
                     std::uint32_t max = std::numeric_limits<std::uint32_t>::max());

// The value of one of the words.
unsigned int word(const std::string& argument, const std::string& text, std::span<const Word> words);

// A text that the command's syntax, which has no quoting, can hold.
std::string one_word(const std::string& argument, const std::string& text);

// NR,PART,IRLENGTH,IDCODE
SdkDebugDialog::JtagOption chain_device(const std::string& argument, const std::string& text);

// A number that the library keeps as a signed byte: of a debug device, of a chain device, of bits.
inline constexpr std::uint32_t kMaxByte = 127;

}  // namespace qvtcfg
