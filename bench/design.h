#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <vector>

#include "platform/HHSMHwManager.h"

namespace bench {

// A design of any size whose answers cost little and the same whatever the size: an instance's name tells its type, as
// in "ovrin_12". Of every eight processors four are soft ones behind a debug module, two soft ones on their own, one a
// PowerPC behind a bridge and one a Cortex-A9; all of them can be debugged.
class Design : public HHSMHwManager {
 public:
  explicit Design(std::size_t processors);

  void getProcessorInstances(std::vector<std::string>& out, bool flag) override;
  void getIpInstances(std::vector<std::string>& out, const HwIpType& ipClass) override;
  void getIpInstances(std::vector<std::string>& out, const std::string& ipType, bool flag) override;
  std::string getIpName(const std::string& instance) override;
  void getOdmConnectedProcessorList(std::vector<std::string>& out, const std::string& debugInstance) override;
  void getPeripherals(const std::string& processor, std::vector<std::string>& out) override;
  std::string getParameterValue(const std::string& instance, const std::string& parameter) override;

 private:
  std::vector<std::string> m_processors;
  std::vector<std::string> m_debugIps;
  std::map<std::string, std::vector<std::string>> m_byType;
};

}  // namespace bench
