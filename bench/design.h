#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <vector>

#include "platform/HHSMHwManager.h"

namespace bench {

// A design of any size with cheap queries, whose cost does not depend on the size: the type of an instance is part of
// its name, as in "ovrin_12". Of every eight processors, four are soft processors behind a debug module, two are soft
// processors without one, one is a PowerPC behind a bridge and one is a Cortex-A9. All of them can be debugged.
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
