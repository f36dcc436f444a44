#pragma once

#include <cstdint>

#include "SdkDebugDialog/Engine.h"

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

// Whether ProcessorInfoImp::allowedConnections is that of a target that needs no processor of the design.
constexpr bool is_bare_target(std::uint32_t connections) {
  return connections == Engine::ODM_TARGET || connections == Engine::QMTC_TARGET || connections == Engine::DCC_TARGET ||
         connections == Engine::DAP_TARGET;
}

}  // namespace SdkDebugDialog
