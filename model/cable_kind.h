#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "SdkDebugDialog/Engine.h"

namespace SdkDebugDialog {

// One row of the cable catalogue. Frequencies are in Hz.
struct CableKind {
  Engine::CableType type = Engine::CABLE_NONE;
  std::uint32_t defaultFrequency = 0;
  std::string_view defaultPort = {};
  const char* supported = "0";                   // frequencies offered to the user
  std::span<const std::uint32_t> accepted = {};  // frequencies that pass the check; none: the check never passes
  const char* refusal = nullptr;                 // error text for any other frequency, which is its %d
};

// The row of a type; values outside the catalogue are answered with that of no cable.
const CableKind& cable_kind(Engine::CableType type);

}  // namespace SdkDebugDialog
