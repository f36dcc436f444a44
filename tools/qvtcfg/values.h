#pragma once

// Conversion of values of the command line. An invalid value throws Failure with the argument as given and what was
// expected.

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

// The text, if it can be a value in the connect command, which has no quoting.
std::string one_word(const std::string& argument, const std::string& text);

// NR,PART,IRLENGTH,IDCODE
SdkDebugDialog::JtagOption chain_device(const std::string& argument, const std::string& text);

// Maximum of numbers that the library stores as a signed byte: debug device, chain device, instruction register length.
inline constexpr std::uint32_t kMaxByte = 127;

}  // namespace qvtcfg
