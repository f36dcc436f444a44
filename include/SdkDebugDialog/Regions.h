// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Where the debug address map and the memories of a processor lie, for a picture of them.

#include <cstdint>
#include <vector>

#include "SdkDebugDialog/Configuration.h"
#include "SdkDebugDialog/Export.h"
#include "SdkDebugDialog/Settings.h"

namespace SdkDebugDialog {

/// A range of addresses that settings tell.
/// Fields are added at its end, in a major version only.
struct Region {
  const Setting* setting = nullptr;  ///< that of its base, such as "icache"; never null
  std::uint64_t begin = 0;           ///< its first address
  std::uint64_t end = 0;  ///< behind its last address; equal to begin for a memory of no size, and can be beyond 4 GB
  bool overlaps = false;  ///< an address of it is in another region too
};

/// The blocks of the debug address map, of 64 KB each, and the memories "isocm" and "rom", in the order of their first
/// addresses. Only those whose base is set and applies. The setting "isocm-dcr" is not among them: it is an address of
/// the device control registers, which have an address space of their own.
SDKDEBUGDIALOG_API std::vector<Region> regions(const Configuration& configuration);

}  // namespace SdkDebugDialog
