#pragma once

// A hardware design made by a test. It records the calls that it gets.

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "platform/HHSMHwManager.h"

class FakeHardware : public HHSMHwManager {
 public:
  std::vector<std::string> processors;                                    // every processor, in order
  std::vector<std::string> debugIps;                                      // every debug IP, in order
  std::vector<std::pair<std::string, std::string>> ipTypes;               // instance, IP type; in design order
  std::map<std::string, std::vector<std::string>> reached;                // debug IP: processors
  std::map<std::string, std::vector<std::string>> peripherals;            // processor: peripherals
  std::map<std::pair<std::string, std::string>, std::string> parameters;  // instance and parameter: value
  std::vector<std::string> questions;                                     // "getIpName x", in the order of the calls

  void getProcessorInstances(std::vector<std::string>& out, bool flag) override {
    questions.push_back(std::string("getProcessorInstances ") + (flag ? "true" : "false"));
    append(out, processors);
  }
  void getIpInstances(std::vector<std::string>& out, const HwIpType& ipClass) override {
    questions.push_back("getIpInstances " + std::to_string(ipClass));
    if (ipClass == 5) append(out, debugIps);
  }
  void getIpInstances(std::vector<std::string>& out, const std::string& ipType, bool flag) override {
    questions.push_back("getIpInstances " + ipType + (flag ? " true" : " false"));
    for (const auto& [instance, type] : ipTypes) {
      if (type == ipType) out.push_back(instance);
    }
  }
  std::string getIpName(const std::string& instance) override {
    questions.push_back("getIpName " + instance);
    for (const auto& [name, type] : ipTypes) {
      if (name == instance) return type;
    }
    return {};
  }
  void getOdmConnectedProcessorList(std::vector<std::string>& out, const std::string& debugInstance) override {
    questions.push_back("getOdmConnectedProcessorList " + debugInstance);
    append(out, reached[debugInstance]);
  }
  void getPeripherals(const std::string& processor, std::vector<std::string>& out) override {
    questions.push_back("getPeripherals " + processor);
    append(out, peripherals[processor]);
  }
  std::string getParameterValue(const std::string& instance, const std::string& parameter) override {
    questions.push_back("getParameterValue " + instance + " " + parameter);
    return parameters[{instance, parameter}];
  }

 private:
  static void append(std::vector<std::string>& out, const std::vector<std::string>& names) {
    out.insert(out.end(), names.begin(), names.end());
  }
};
