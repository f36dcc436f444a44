#pragma once

// The settings of a connect command in a plain struct. The result of every reader is compared in this form.

#include <cstdint>
#include <string>
#include <vector>

namespace bench {

inline constexpr std::uint32_t kNotSet = 0xFFFFFFFFU;

// The values are those of the library's enumerations.
enum class Connection : std::uint32_t { simulator = 1, hardware = 2, stub = 4 };
enum class CableType : std::uint32_t { none, svf, parallel4, platformusb, parallel3, plugin, digilent, tcf };
enum class Family : std::uint32_t { soft, powerpc, arm };

struct Cable {
  CableType type = CableType::none;
  std::uint32_t frequency = 0;
  std::string port;
  std::string esn;
  std::string fname;
  std::string modulename;
  std::string modulearg;
  std::string url;

  bool operator==(const Cable&) const = default;
};

struct Device {
  std::string partname = "UNKNOWN";
  std::uint32_t idcode = 0;
  std::int8_t irlength = 0;
  std::int8_t devicenr = 0;
  std::int8_t isfpga = 0;
  std::int8_t hardppc = 0;
  std::int8_t nppc = 0;

  bool operator==(const Device&) const = default;
};

struct Settings {
  Family family = Family::soft;
  Connection connection = Connection::hardware;
  std::uint32_t memSize = 16;
  Cable cable;
  bool cpuJtag = false;
  std::vector<Device> chain;
  std::int8_t debugDevice = 0;
  std::uint8_t cpuNr = 1;
  std::uint32_t romemStart = kNotSet;
  std::uint32_t romemSize = 0;
  std::uint32_t isocmStart = kNotSet;
  std::uint32_t isocmSize = 0;
  std::uint32_t isocmDcrStart = kNotSet;
  std::uint32_t icacheStart = kNotSet;
  std::uint32_t itagStart = kNotSet;
  std::uint32_t dcacheStart = kNotSet;
  std::uint32_t dtagStart = kNotSet;
  std::uint32_t tlbStart = kNotSet;
  std::uint32_t dcrStart = kNotSet;
  std::uint32_t fpuType = 0;
  std::string cpuVersion;
  std::string odmVersion;
  std::int32_t nCpu = 8;
  std::uint32_t bscanPort = 3;

  bool operator==(const Settings&) const = default;
};

}  // namespace bench
