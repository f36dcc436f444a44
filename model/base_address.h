#pragma once

#include <cstdint>

#include "SdkDebugDialog/ProcessorInfo.h"

namespace SdkDebugDialog {

class EngineImp;

// One base of the PowerPC debug address map.
struct MapBase {
  std::uint32_t ProcessorInfoImp::*field;
  const char* what;                                // what the error text calls it
  std::uint32_t ProcessorInfoImp::*map = nullptr;  // follows the base once that is accepted
};

// The rows of kMapBases, in the order in which the map is laid out.
enum MapBaseIndex { kIcache, kItag, kDcache, kDtag, kDcr, kTlb };

inline constexpr MapBase kMapBases[] = {
    {&ProcessorInfoImp::icacheStartAddr, "Icache", &ProcessorInfoImp::debugAddressMap},
    {&ProcessorInfoImp::itagStartAddr, "Itag"},
    {&ProcessorInfoImp::dcacheStartAddr, "Dcache"},
    {&ProcessorInfoImp::dtagStartAddr, "Dtag"},
    {&ProcessorInfoImp::dcrStartAddr, "DCR"},
    {&ProcessorInfoImp::tlbStartAddr, "TLB"},
};

// Stores a base in the current processor. One that does not lie on a 64 KB boundary is refused with the error text
// "<what> Start Address should be aligned at 64k boundry", and false.
bool set_map_base(EngineImp& imp, const MapBase& base, std::uint32_t address);

}  // namespace SdkDebugDialog
