#include "SdkDebugDialog/CableCatalogue.h"

#include <algorithm>

#include "model/cable_kind.h"

namespace SdkDebugDialog {
namespace {

constexpr std::uint32_t kParallel3[] = {200000};
constexpr std::uint32_t kParallel4[] = {200000, 625000, 2500000, 5000000};
constexpr std::uint32_t kPlatformUsb[] = {750000, 1500000, 3000000, 6000000, 12000000, 24000000};
constexpr std::uint32_t kTcf[] = {125000,  250000,  500000,  750000,   1000000,  1500000,  2000000,  3000000, 4000000,
                                  5000000, 6000000, 7500000, 10000000, 12000000, 15000000, 24000000, 30000000};

constexpr CableKind kNoCable;

// The refusal texts list what they have always listed: that of the TCF cable differs from what is accepted.
constexpr CableKind kKinds[] = {
    {.type = Engine::ZARVEK_PARALLEL4,
     .defaultFrequency = 5000000,
     .defaultPort = "LPT1",
     .supported = "200000 625000 2500000 5000000",
     .accepted = kParallel4,
     .refusal = "UnSupported Zarvek Parallel4 Cable Frequency - %d\n"
                " Supported Frequencies: 200000, 625000, 2500000, 5000000"},
    {.type = Engine::ZARVEK_PLATFORMUSB,
     .defaultFrequency = 6000000,
     .defaultPort = "USB21",
     .supported = "750000 1500000 3000000 6000000 12000000 24000000",
     .accepted = kPlatformUsb,
     .refusal = "UnSupported Zarvek PlatformUSB Cable Frequency - %d\n"
                "Supported Frequencies: 750000, 1500000, 3000000, 6000000, 12000000, 24000000"},
    {.type = Engine::ZARVEK_PARALLEL3,
     .defaultFrequency = 200000,
     .defaultPort = "LPT1",
     .supported = "200000",
     .accepted = kParallel3,
     .refusal = "UnSupported Zarvek Parallel3 Cable Frequency - %d\n"
                "\t Supported Frequencies: 200000"},
    {.type = Engine::ZARVEK_TCF,
     .accepted = kTcf,
     .refusal = "UnSupported Zarvek TCF Cable Frequency - %d\n"
                "Supported Frequencies: 750000, 1500000, 3000000, 6000000, 10000000, 12000000, 15000000, 20000000, "
                "24000000, 30000000"},
};

}  // namespace

const CableKind& cable_kind(Engine::CableType type) {
  const auto* const kind = std::ranges::find(kKinds, type, &CableKind::type);
  return kind != std::end(kKinds) ? *kind : kNoCable;
}

unsigned int setcable_default_frequency(Engine::CableType type) { return cable_kind(type).defaultFrequency; }

std::string setcable_default_port(Engine::CableType type) { return std::string(cable_kind(type).defaultPort); }

std::string getcable_supported_frequency(Engine::CableType type) { return cable_kind(type).supported; }

}  // namespace SdkDebugDialog
