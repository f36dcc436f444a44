#pragma once

// Up to eight characters in one number, so that one step works on all of them.

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

namespace SdkDebugDialog {

// The same byte eight times.
constexpr std::uint64_t eight_of(unsigned char byte) { return byte * std::uint64_t{0x0101010101010101U}; }

// The first one lowest.
template <std::size_t count>
constexpr std::uint64_t letters(const char* text) {
  static_assert(count <= 8);
  std::uint64_t packed = 0;
  if (!std::is_constant_evaluated() && std::endian::native == std::endian::little) {
    std::memcpy(&packed, text, count);
    return packed;
  }
  for (std::size_t i = 0; i < count; ++i) {
    packed |= static_cast<std::uint64_t>(static_cast<unsigned char>(text[i])) << (8 * i);
  }
  return packed;
}

// The bit that tells a capital letter of ASCII from a small one, for each of them that is such a letter.
constexpr std::uint64_t case_bits(std::uint64_t packed) {
  const std::uint64_t small = (packed | eight_of(0x20)) & eight_of(0x7F);
  const std::uint64_t fromA = small + eight_of(0x80 - 'a');
  const std::uint64_t aboveZ = small + eight_of(0x7F - 'z');
  return ((fromA ^ aboveZ) & ~packed & eight_of(0x80)) >> 2;
}

}  // namespace SdkDebugDialog
