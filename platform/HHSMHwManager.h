#pragma once

// The tool suite's view of a hardware design: an interface, so that a tool suite, a file or a test can stand behind
// it.

#include <string>
#include <vector>

#if defined(__GNUC__)
#define HHSM_API __attribute__((visibility("default")))
#else
#define HHSM_API
#endif

// A class of IP.
enum HwIpType : int {
  HW_IP_DEBUG = 5,  // debug modules and bridges
};

// Operations that list append to out. Names are those of instances in the design; a name that the design does not
// have yields nothing, or an empty text.
class HHSM_API HHSMHwManager {
 public:
  virtual ~HHSMHwManager() = default;

  // Every processor, in design order. The flag is passed as false.
  virtual void getProcessorInstances(std::vector<std::string>& out, bool flag) = 0;

  // The instances of a class of IP, in design order.
  virtual void getIpInstances(std::vector<std::string>& out, const HwIpType& ipClass) = 0;

  // The instances of one IP type, in design order. The flag is passed as false.
  virtual void getIpInstances(std::vector<std::string>& out, const std::string& ipType, bool flag) = 0;

  // The IP type of an instance.
  virtual std::string getIpName(const std::string& instance) = 0;

  // The processors that a debug IP reaches, in the order of attachment.
  virtual void getOdmConnectedProcessorList(std::vector<std::string>& out, const std::string& debugInstance) = 0;

  // The peripheral instances of a processor, in design order.
  virtual void getPeripherals(const std::string& processor, std::vector<std::string>& out) = 0;

  // A parameter of an instance, as text; empty when the instance does not have it.
  virtual std::string getParameterValue(const std::string& instance, const std::string& parameter) = 0;
};
