// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// One device of the JTAG chain.

#include <cstdint>
#include <string>

namespace SdkDebugDialog {

/// The option reader creates one record per device. The caller that takes the chain (EngineImp::jtagChain,
/// Engine::GetJtagChainOptions, Engine::ParseJtagCableInfo) owns the records. Chains are vectors of plain pointers and
/// may share records. The engine deletes no record that a caller may hold; it deletes only those of a failed read that
/// were never handed out.
/// Fields are added at its end, in a major version only.
struct JtagOption {
  std::string partname = "UNKNOWN";  ///< the name of the part
  std::uint32_t idcode = 0;          ///< JTAG IDCODE
  std::int8_t irlength = 0;          ///< length of the instruction register, in bits
  std::int8_t devicenr = 0;          ///< position in the chain
  std::int8_t isfpga = 0;            ///< non-zero: the device is an FPGA; read, never written
  std::int8_t hardppc = 0;           ///< hard PowerPC core: 0 none, 1 ppc405, 2 any other; read, never written
  std::int8_t nppc = 0;              ///< number of hard PowerPC cores; read, never written
};

}  // namespace SdkDebugDialog
