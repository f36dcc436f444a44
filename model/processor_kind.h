#pragma once

#include <cstdint>

namespace SdkDebugDialog {

// Values of ProcessorInfoImp::procFamily.
inline constexpr std::uint32_t kFamilySoft = 0;
inline constexpr std::uint32_t kFamilyPowerPC = 1;
inline constexpr std::uint32_t kFamilyArm = 2;

// Values of ProcessorInfoImp::procVariant.
inline constexpr std::uint32_t kVariantSoft = 0;
inline constexpr std::uint32_t kVariantPpc405 = 1;
inline constexpr std::uint32_t kVariantPpc440 = 2;
inline constexpr std::uint32_t kVariantCortexA9 = 4;
inline constexpr std::uint32_t kVariantR5 = 5;
inline constexpr std::uint32_t kVariantOtherPowerPC = 6;

// Values of ProcessorInfoImp::fpuType.
inline constexpr std::uint32_t kFpuNone = 0;
inline constexpr std::uint32_t kFpuSingle = 1;
inline constexpr std::uint32_t kFpuDouble = 2;

}  // namespace SdkDebugDialog
