// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The interface through which a hardware design is queried. A tool suite, a file reader or a test implements it.

#include <string>
#include <vector>

#if defined(__GNUC__)
/// Makes the type information of the interface visible to all libraries.
#define HHSM_API __attribute__((visibility("default")))
#else
#define HHSM_API
#endif

/// A class of IP.
enum HwIpType : int {
  HW_IP_DEBUG = 5,  ///< debug modules and bridges
};

/// Operations with a parameter out append to it. Names are names of instances in the design. For a name that is not in
/// the design, nothing is appended, or an empty string is returned.
/// Operations are added at its end, in a major version only, since users implement them.
class HHSM_API HHSMHwManager {
 public:
  virtual ~HHSMHwManager() = default;

  /// Every processor, in design order. The flag is passed as false.
  virtual void getProcessorInstances(std::vector<std::string>& out, bool flag) = 0;

  /// The instances of a class of IP, in design order.
  virtual void getIpInstances(std::vector<std::string>& out, const HwIpType& ipClass) = 0;

  /// The instances of one IP type, in design order. The flag is passed as false.
  virtual void getIpInstances(std::vector<std::string>& out, const std::string& ipType, bool flag) = 0;

  /// The IP type of an instance.
  virtual std::string getIpName(const std::string& instance) = 0;

  /// The processors connected to a debug IP, in the order of connection.
  virtual void getOdmConnectedProcessorList(std::vector<std::string>& out, const std::string& debugInstance) = 0;

  /// The peripheral instances of a processor, in design order.
  virtual void getPeripherals(const std::string& processor, std::vector<std::string>& out) = 0;

  /// The value of a parameter of an instance, as text; empty when the instance does not have the parameter.
  virtual std::string getParameterValue(const std::string& instance, const std::string& parameter) = 0;
};
