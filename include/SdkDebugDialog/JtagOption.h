#pragma once

// One device of the JTAG chain.

#include <cstdint>
#include <string>

namespace SdkDebugDialog {

// Records are created by the option reader, one per device, and belong to whoever takes the chain
// (EngineImp::jtagChain, Engine::GetJtagChainOptions, Engine::ParseJtagCableInfo). Chains are vectors of plain pointers
// and may share records. The engine destroys none that a caller may hold; those of a read that failed as a whole, which
// nobody was given, it does.
struct JtagOption {
  std::string partname = "UNKNOWN";
  std::uint32_t idcode = 0;  // JTAG IDCODE
  std::int8_t irlength = 0;  // length of the instruction register, in bits
  std::int8_t devicenr = 0;  // position in the chain
  std::int8_t isfpga = 0;    // non-zero: the device is an FPGA; read, never written
  std::int8_t hardppc = 0;   // hard PowerPC core: 0 none, 1 ppc405, 2 any other; read, never written
  std::int8_t nppc = 0;      // number of hard PowerPC cores; read, never written
};

}  // namespace SdkDebugDialog
