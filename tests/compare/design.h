#pragma once

// A design with a processor of each kind, some with a light UART or an FPU.

#include <stdexcept>
#include <string>
#include <vector>

#include "platform/HHSMHwManager.h"

class Design : public HHSMHwManager {
 public:
  static constexpr const char* kProcessors[] = {"ovrin_0", "ovrin_1", "ovrin_2", "ppc405_0", "ppc440_0", "a9_0"};

  // From now on a question about peripherals throws.
  void fail() { m_fails = true; }

  void getProcessorInstances(std::vector<std::string>& out, bool /*flag*/) override {
    out.insert(out.end(), std::begin(kProcessors), std::end(kProcessors));
  }
  void getIpInstances(std::vector<std::string>& out, const HwIpType& /*ipClass*/) override {
    out.insert(out.end(), {"odm_0", "bridge_0"});
  }
  void getIpInstances(std::vector<std::string>& out, const std::string& ipType, bool /*flag*/) override {
    if (ipType == "ovrin") out.insert(out.end(), {"ovrin_0", "ovrin_1", "ovrin_2"});
    if (ipType == "hc9_cortexa9") out.emplace_back("a9_0");
  }
  std::string getIpName(const std::string& instance) override {
    if (instance == "odm_0") return "odm";
    if (instance == "bridge_0") return "jtag_ppc_bridge";
    if (instance == "uart_0") return "tfb_serial_lite";
    if (instance == "fpu_0") return "apu_flt";
    if (instance == "fpu_1") return "apu_flt_varnel5";
    if (instance == "ppc405_0") return "ppc405";
    if (instance == "ppc440_0") return "ppc440";
    return "other";
  }
  void getOdmConnectedProcessorList(std::vector<std::string>& out, const std::string& debugInstance) override {
    if (debugInstance == "odm_0") out.insert(out.end(), {"ovrin_0", "ovrin_1"});
    if (debugInstance == "bridge_0") out.insert(out.end(), {"ppc405_0", "ppc440_0"});
  }
  void getPeripherals(const std::string& processor, std::vector<std::string>& out) override {
    if (m_fails) throw std::runtime_error("no answer");
    if (processor == "ovrin_0") out.emplace_back("uart_0");
    if (processor == "ppc405_0") out.emplace_back("fpu_0");
    if (processor == "ppc440_0") out.insert(out.end(), {"uart_0", "fpu_1"});
  }
  std::string getParameterValue(const std::string& /*instance*/, const std::string& parameter) override {
    return parameter == "C_DOUBLE_PRECISION" ? "1" : "";
  }

 private:
  bool m_fails = false;
};
