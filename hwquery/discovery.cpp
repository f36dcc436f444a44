// Finds the processors of a design that can be debugged, and their connections.

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <memory>
#include <memory_resource>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "SdkDebugDialog/Engine.h"
#include "SdkDebugDialog/EngineImp.h"
#include "SdkDebugDialog/ProcessorInfo.h"
#include "SdkDebugDialog/Result.h"
#include "hwquery/serial_stub.h"
#include "model/processor_kind.h"
#include "platform/HHSMHwManager.h"

namespace SdkDebugDialog {
namespace {

// Rollback: removes the records that were added to a list since construction, unless keep() is called. The caller of a
// discovery that throws does not know of them and would not delete them.
class Listed {
 public:
  explicit Listed(std::vector<ProcessorInfoImp*>& list) : m_list(list), m_before(list.size()) {}
  ~Listed() {
    for (; m_list.size() > m_before; m_list.pop_back()) delete m_list.back();
  }
  Listed(const Listed&) = delete;
  Listed& operator=(const Listed&) = delete;

  void keep() { m_before = m_list.size(); }

 private:
  std::vector<ProcessorInfoImp*>& m_list;
  std::size_t m_before;
};

// One discovery. The processors of each family are numbered from 1; numbers wrap at 256.
class Discovery {
 public:
  Discovery(EngineImp& imp, HHSMHwManager& hw) : m_imp(imp), m_hw(hw) {}

  void run() {
    find_behind_debug_ip();
    find_soft_without_debug_module();
    find_cortex_a9();
  }

 private:
  void find_behind_debug_ip() {
    std::vector<std::string> debugIps;
    m_hw.getIpInstances(debugIps, HW_IP_DEBUG);
    for (const std::string& debugIp : debugIps) {
      const std::string type = m_hw.getIpName(debugIp);
      std::vector<std::string> processors;
      m_hw.getOdmConnectedProcessorList(processors, debugIp);
      if (type == "opb_odm" || type == "odm") {
        for (const std::string& name : processors) add_soft(name, Engine::SIMULATOR | Engine::HARDWARE);
      } else if (type == "jtag_ppc_bridge") {
        for (const std::string& name : processors) add_powerpc(name);
      }
    }
  }

  void find_soft_without_debug_module() {
    std::vector<std::string> names;
    m_hw.getIpInstances(names, "ovrin", false);
    // The nodes are allocated in a few blocks.
    std::pmr::monotonic_buffer_resource nodes;
    std::pmr::unordered_set<std::string_view> listed(&nodes);
    listed.reserve(m_imp.processorList.size() + names.size());
    for (const ProcessorInfoImp* const processor : m_imp.processorList) listed.insert(processor->name);
    for (const std::string& name : names) {
      if (listed.insert(name).second) add_soft(name, Engine::SIMULATOR);
    }
  }

  void find_cortex_a9() {
    std::vector<std::string> names;
    m_hw.getIpInstances(names, "hc9_cortexa9", false);
    for (const std::string& name : names) add(name, kFamilyArm, kVariantCortexA9, Engine::HARDWARE, ++m_lastArm);
  }

  void add_soft(const std::string& name, std::uint32_t connections) {
    add(name, kFamilySoft, kVariantSoft, connections | serial_stub(m_hw, name), ++m_lastSoft);
  }

  void add_powerpc(const std::string& name) {
    const bool is405 = m_hw.getIpName(name).find("405") != std::string::npos;
    add(name, kFamilyPowerPC, is405 ? kVariantPpc405 : kVariantPpc440, Engine::SIMULATOR | Engine::HARDWARE,
        ++m_lastPowerPC);
  }

  void add(const std::string& name, std::uint32_t family, std::uint32_t variant, std::uint32_t connections,
           std::uint8_t number) {
    auto processor = std::make_unique_for_overwrite<ProcessorInfoImp>();
    processor->name = name;
    processor->procFamily = family;
    processor->procVariant = variant;
    processor->allowedConnections = connections;
    processor->cpuNr = number;
    m_imp.processorList.push_back(processor.get());
    processor.release();  // NOLINT(bugprone-unused-return-value): the list's caller deletes it
  }

  EngineImp& m_imp;
  HHSMHwManager& m_hw;
  std::uint8_t m_lastSoft = 0;
  std::uint8_t m_lastPowerPC = 0;
  std::uint8_t m_lastArm = 0;
};

}  // namespace

int Engine::GetProcessorList(HHSMHwManager* hw, std::vector<std::string>& names) {
  imp->hwManager = hw;
  if (hw == nullptr) return kOk;
  // A vector of its own: the manager may replace the content instead of appending, and names must be kept.
  std::vector<std::string> instances;
  hw->getProcessorInstances(instances, false);
  if (!names.empty()) names.reserve(names.size() + instances.size());
  Listed listed(imp->processorList);
  Discovery(*imp, *hw).run();
  listed.keep();
  if (names.empty()) {
    names.swap(instances);
  } else {
    std::ranges::move(instances, std::back_inserter(names));
  }
  return kOk;
}

EngineImp* Engine::GetProcessorList(HHSMHwManager* hw) {
  std::vector<std::string> names;
  GetProcessorList(hw, names);
  return imp;
}

}  // namespace SdkDebugDialog
