#include "bench/design.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace bench {
namespace {

constexpr const char* kModule = "odm";
constexpr const char* kBridge = "jtag_ppc_bridge";

struct Place {
  std::string type;
  const char* debugIp = nullptr;
};

const Place kBlock[] = {
    {"ovrin", kModule}, {"ovrin", kModule}, {"ovrin", kModule},  {"ovrin", kModule},
    {"ovrin"},          {"ovrin"},          {"ppc405", kBridge}, {"hc9_cortexa9"},
};
constexpr std::size_t kBlockSize = std::size(kBlock);

void append(std::vector<std::string>& out, const std::vector<std::string>& names) {
  out.insert(out.end(), names.begin(), names.end());
}

std::size_t dash(const std::string& instance) { return instance.rfind('_'); }

}  // namespace

Design::Design(std::size_t processors) {
  for (std::size_t i = 0; i < processors; ++i) {
    const Place& place = kBlock[i % kBlockSize];
    m_processors.push_back(place.type + "_" + std::to_string(i));
    m_byType[place.type].push_back(m_processors.back());
    if (place.debugIp == nullptr) continue;
    const std::string debugIp = std::string(place.debugIp) + "_" + std::to_string(i / kBlockSize);
    if (m_byType[place.debugIp].empty() || m_byType[place.debugIp].back() != debugIp) {
      m_byType[place.debugIp].push_back(debugIp);
      m_debugIps.push_back(debugIp);
    }
  }
}

void Design::getProcessorInstances(std::vector<std::string>& out, bool /*flag*/) { append(out, m_processors); }

void Design::getIpInstances(std::vector<std::string>& out, const HwIpType& ipClass) {
  if (ipClass == HW_IP_DEBUG) append(out, m_debugIps);
}

void Design::getIpInstances(std::vector<std::string>& out, const std::string& ipType, bool /*flag*/) {
  const auto found = m_byType.find(ipType);
  if (found != m_byType.end()) append(out, found->second);
}

std::string Design::getIpName(const std::string& instance) { return instance.substr(0, dash(instance)); }

void Design::getOdmConnectedProcessorList(std::vector<std::string>& out, const std::string& debugInstance) {
  const std::string_view type = std::string_view(debugInstance).substr(0, dash(debugInstance));
  const std::size_t first = std::stoul(debugInstance.substr(dash(debugInstance) + 1)) * kBlockSize;
  const std::size_t end = std::min(first + kBlockSize, m_processors.size());
  for (std::size_t i = first; i < end; ++i) {
    if (kBlock[i - first].debugIp != nullptr && kBlock[i - first].debugIp == type) out.push_back(m_processors[i]);
  }
}

void Design::getPeripherals(const std::string& /*processor*/, std::vector<std::string>& out) {
  out.insert(out.end(), {"bram_0", "timer_0", "tfb_serial_lite_0"});
}

std::string Design::getParameterValue(const std::string& /*instance*/, const std::string& /*parameter*/) { return {}; }

}  // namespace bench
