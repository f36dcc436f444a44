// A program with a hardware description of its own: it sets, writes, reads and checks the command of a processor.

#include <SdkDebugDialog/Configuration.h>
#include <SdkDebugDialog/Diagnosis.h>
#include <SdkDebugDialog/Engine.h>
#include <SdkDebugDialog/EngineImp.h>
#include <SdkDebugDialog/ProcessorInfo.h>
#include <SdkDebugDialog/Result.h>
#include <SdkDebugDialog/platform/HHSMHwManager.h>

#include <iostream>
#include <memory>
#include <string>
#include <vector>

using namespace SdkDebugDialog;

namespace {

// One soft processor behind a debug module.
class OneProcessor : public HHSMHwManager {
 public:
  void getProcessorInstances(std::vector<std::string>& out, bool /*flag*/) override { out.push_back("cpu0"); }
  void getIpInstances(std::vector<std::string>& out, const HwIpType& ipClass) override {
    if (ipClass == HW_IP_DEBUG) out.push_back("debug0");
  }
  void getIpInstances(std::vector<std::string>& out, const std::string& ipType, bool /*flag*/) override {
    for (const char* instance : {"cpu0", "debug0"}) {
      if (getIpName(instance) == ipType) out.push_back(instance);
    }
  }
  std::string getIpName(const std::string& instance) override {
    if (instance == "cpu0") return "ovrin";
    return instance == "debug0" ? "odm" : "";
  }
  void getOdmConnectedProcessorList(std::vector<std::string>& out, const std::string& debugInstance) override {
    if (debugInstance == "debug0") out.push_back("cpu0");
  }
  void getPeripherals(const std::string& /*processor*/, std::vector<std::string>& /*out*/) override {}
  std::string getParameterValue(const std::string& /*instance*/, const std::string& /*parameter*/) override {
    return "";
  }
};

bool expect(const std::string& what, const std::string& seen, const std::string& expected) {
  if (seen != expected) std::cerr << what << " is '" << seen << "', not '" << expected << "'\n";
  return seen == expected;
}

bool by_engine() {
  OneProcessor hardware;
  Engine engine;
  engine.GetProcessorList(&hardware);
  ProcessorInfo info;
  std::string command;
  const int selected = engine.SetProcessor("cpu0", info);
  const int written = engine.GenerateCmdString(command);
  for (const ProcessorInfoImp* processor : engine.imp->processorList) delete processor;
  return expect("result of SetProcessor", std::to_string(selected), std::to_string(kNoOptionFile)) &&
         expect("result of GenerateCmdString", std::to_string(written), std::to_string(kOk)) &&
         expect("command of the engine", command, "connect ov odm -debugdevice cpunr 1");
}

bool by_settings() {
  const Design design(std::make_shared<OneProcessor>());
  const Processor processor = design.find("cpu0").value();
  Configuration configuration(processor);
  configuration.set("cable", "zarvek_platformusb").value();
  configuration.set("frequency", "12M").value();
  const std::string command =
      "connect ov odm -cable type zarvek_platformusb port USB21 frequency 12000000 -debugdevice cpunr 1";
  const auto refused = configuration.set("frequency", "5 MHz");
  const std::vector<Finding> findings = diagnose("connect ov odm -cabel type none", TextKind::command, processor);
  return expect("command", configuration.command().value(), command) &&
         expect("refused", refused ? "no" : "yes", "yes") &&
         expect("finding", findings.empty() ? "none" : std::string(findings[0].kind->code), "unknown-option");
}

}  // namespace

int main() { return by_engine() && by_settings() ? 0 : 1; }
