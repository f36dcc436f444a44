#include "bench/design_file.h"

#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

namespace bench {
namespace {

struct Place {
  std::string_view type;
  std::string_view debugIp;
};

constexpr Place kBlock[] = {
    {"ovrin", "odm"},
    {"ovrin", "odm"},
    {"ovrin", "odm"},
    {"ovrin", "odm"},
    {"ovrin", ""},
    {"ovrin", ""},
    {"ppc405", "jtag_ppc_bridge"},
    {"hc9_cortexa9", ""},
};
constexpr std::size_t kBlockSize = std::size(kBlock);

// The first members of an instance, without parameters and closing brace.
std::string instance(std::string_view name, std::size_t number, std::string_view type, std::string_view ipClass) {
  return R"(    {"name": ")" + std::string(name) + "_" + std::to_string(number) + R"(", "type": ")" +
         std::string(type) + R"(", "class": ")" + std::string(ipClass) + '"';
}

std::string processor(const Place& place, std::size_t number) {
  const std::string n = std::to_string(number);
  return instance(place.type, number, place.type, "processor") +
         R"(, "parameters": {"FPU": "0", "DEBUG": "1"}, "peripherals": ["bram_)" + std::to_string(number / kBlockSize) +
         R"(", "uart_)" + n + "\"]},\n" + instance("uart", number, "tfb_serial_lite", "peripheral") +
         R"(, "parameters": {"BASE": "0x84000000", "BAUD": "115200"}},)" + "\n";
}

std::string debug_ip(std::string_view type, std::size_t block) {
  std::string names;
  for (std::size_t i = 0; i < kBlockSize; ++i) {
    if (kBlock[i].debugIp != type) continue;
    if (!names.empty()) names += ", ";
    names += '"' + std::string(kBlock[i].type) + '_' + std::to_string(block * kBlockSize + i) + '"';
  }
  return instance(type, block, type, "debug") + R"(, "processors": [)" + names + "]},\n";
}

}  // namespace

void write_design_file(const std::filesystem::path& path, std::size_t processors) {
  std::ofstream out(path);
  out << "{\n  \"name\": \"many\",\n  \"instances\": [\n";
  for (std::size_t block = 0; block < processors / kBlockSize; ++block) {
    for (std::size_t i = 0; i < kBlockSize; ++i) out << processor(kBlock[i], block * kBlockSize + i);
    out << instance("bram", block, "lmb_ocram_port", "memory")
        << R"(, "parameters": {"BASE": "0x00000000", "HIGH": "0x0000FFFF"}},)" << '\n';
    out << debug_ip("odm", block) << debug_ip("jtag_ppc_bridge", block);
  }
  out << instance("clock", 0, "clock", "other") << "}\n  ]\n}\n";
}

}  // namespace bench
