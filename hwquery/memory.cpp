// Classifies memory controllers.

#include <algorithm>
#include <cctype>
#include <string>
#include <string_view>

#include "SdkDebugDialog/EngineImp.h"

namespace SdkDebugDialog {
namespace {

constexpr std::string_view kBlockRam[] = {
    "lmb_ocram_port", "tfb_ocram_port",   "axi_ocram_port",   "plb_ocram_port",
    "opb_ocram_port", "iside_ocram_port", "dside_ocram_port", "hc9_ocram",
};

constexpr std::string_view kDynamicRam[] = {
    "mpdc",           "ppc440_ctl_ddr2", "plb_sdr_ctl",     "plb_ctl_ddr", "plb_ctl_ddr2",
    "mc_opb_sdr_ctl", "mc_opb_ctl_ddr",  "mc_opb_ctl_ddr2", "opb_ctl_ddr", "opb_sdr_ctl",
};

constexpr std::string_view kStaticRamOrFlash[] = {
    "axi_xmem_ctl", "tfb_mc_xmem_ctl", "mc_opb_xmem_ctl", "opb_xmem_ctl", "plb_xmem_ctl",
};

template <std::size_t N>
bool contains(const std::string_view (&names)[N], std::string_view name) {
  return std::ranges::find(names, name) != std::end(names);
}

}  // namespace

std::string EngineImp::ClassifyMemory(const std::string& ipType) {
  std::string name = ipType;
  std::ranges::transform(name, name.begin(), [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  if (contains(kBlockRam, name)) return "BRAM";
  // A name with "ddr" is dynamic RAM even if it is not in the table.
  if (name.find("ddr") != std::string::npos || contains(kDynamicRam, name)) return "EXT_DRAM";
  if (contains(kStaticRamOrFlash, name)) return "EXT_SRAM_FLASH";
  return "OTHER";
}

}  // namespace SdkDebugDialog
