// Selects a processor, reads its settings, and takes the FPU from the hardware description.

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "SdkDebugDialog/Engine.h"
#include "SdkDebugDialog/EngineImp.h"
#include "SdkDebugDialog/JtagOption.h"
#include "SdkDebugDialog/ProcessorInfo.h"
#include "SdkDebugDialog/Result.h"
#include "model/error_text.h"
#include "model/processor_kind.h"
#include "model/processor_list.h"
#include "options/QvtOption_Parser.h"
#include "platform/ComMsgMgr.h"
#include "platform/HHSMHwManager.h"

namespace SdkDebugDialog {
namespace {

// Rolls back a failed read: resets the settings but keeps the error text. The read has created the chain's devices, and
// no caller has received them, so they are deleted.
void forget_failed_read(EngineImp& imp) {
  for (const JtagOption* const device : imp.jtagChain) delete device;
  std::string reason = std::move(imp.errorStr);
  imp.EngineImpInit();
  imp.errorStr = std::move(reason);
}

// Selects a listed processor and calls read to fill it. notListed is the error text, with %s for the name.
template <class Read>
int select_processor(EngineImp& imp, const std::string& name, ProcessorInfo& info, const char* notListed, Read read) {
  ProcessorInfoImp* const processor = find_listed(imp, name);
  if (processor == nullptr) {
    set_error(imp, notListed, name.c_str());
    return kNotListed;
  }
  imp.currentProcessor = processor;
  imp.EngineImpInit();
  const int status = read();
  if (was_read(status)) {
    imp.GetFPUType();
  } else {
    forget_failed_read(imp);
  }
  info = {processor->procVariant, processor->procFamily, processor->allowedConnections};
  return status;
}

// Reads a command with hwManager set to null, so that the command alone determines the processor.
int read_without_hardware(EngineImp& imp, std::string command) {
  struct Detached {
    explicit Detached(EngineImp& i) : imp(i), hw(std::exchange(i.hwManager, nullptr)) {}
    ~Detached() { imp.hwManager = hw; }
    Detached(const Detached&) = delete;
    Detached& operator=(const Detached&) = delete;
    EngineImp& imp;
    HHSMHwManager* hw;
  };
  const Detached detached(imp);
  return QvtOption_Parser::ReadQvtCommand(std::move(command), imp);
}

}  // namespace

int EngineImp::GetFPUType() {
  if (currentProcessor == nullptr) return kRefused;
  currentProcessor->fpuType = kFpuNone;
  if (currentProcessor->procFamily != kFamilyPowerPC) return kOk;
  if (hwManager == nullptr) return kNotSet;
  std::vector<std::string> peripherals;
  hwManager->getPeripherals(currentProcessor->name, peripherals);
  for (const std::string& instance : peripherals) {
    const std::string type = hwManager->getIpName(instance);
    if (type == "apu_flt") {
      currentProcessor->fpuType = kFpuSingle;
      return kOk;
    }
    if (type == "apu_flt_varnel5") {
      const std::string isDouble = hwManager->getParameterValue(instance, "C_DOUBLE_PRECISION");
      currentProcessor->fpuType = std::strtoll(isDouble.c_str(), nullptr, 0) == 1 ? kFpuDouble : kFpuSingle;
      return kOk;
    }
  }
  return kNotSet;
}

int Engine::GetProcessorNr(std::string name) {
  const ProcessorInfoImp* const processor = find_listed(*imp, name);
  if (processor != nullptr) return processor->cpuNr;
  set_error(*imp, "Processor Instance %s cannot be debugged!!\n", name.c_str());
  return -1;
}

int Engine::SetProcessor(std::string name, ProcessorInfo& info) {
  return select_processor(
      *imp, name, info,
      "Processor Instance %s cannot be Debugged !!, Please check \t\t\t\t\tProcessor Connection in your HWS file\n",
      [&] { return QvtOption_Parser::ReadQvtOptFile(name, *imp); });
}

int Engine::ParseProcessorInfo(std::string name, ProcessorInfo& info, std::string command) {
  return select_processor(
      *imp, name, info,
      "Processor Instance %s not Found !!, Please check \t\t\t\t\tProcessor Connection in your HWS file\n",
      [&] { return QvtOption_Parser::ReadQvtCommand(std::move(command), *imp); });
}

ProcessorInfoImp* EngineImp::GetProcessorInfo(std::string command) {
  auto processor = std::make_unique_for_overwrite<ProcessorInfoImp>();
  // Rollback, also for exceptions: resets the settings and unselects the record, which is deleted.
  struct Selection {
    explicit Selection(EngineImp& i) : imp(i) {}
    ~Selection() {
      if (kept) return;
      forget_failed_read(imp);
      imp.currentProcessor = nullptr;
    }
    Selection(const Selection&) = delete;
    Selection& operator=(const Selection&) = delete;
    EngineImp& imp;
    bool kept = false;
  };
  currentProcessor = processor.get();
  EngineImpInit();
  Selection selection(*this);

  if (!was_read(read_without_hardware(*this, std::move(command)))) {
    ComMsgMgr::sendMsg::eval(1, "sdk", 0x20000000U, "%s\n", errorStr.c_str());
    return nullptr;
  }
  if (!is_bare_target(processor->allowedConnections)) {
    const auto listed = std::ranges::find_if(processorList, [&](const ProcessorInfoImp* p) {
      return p->procFamily == processor->procFamily && p->cpuNr == processor->cpuNr;
    });
    if (listed != processorList.end()) {
      processor->name = (*listed)->name;
      processor->allowedConnections = (*listed)->allowedConnections;
    }
    if (hwManager != nullptr && !processor->name.empty()) GetFPUType();
  }
  selection.kept = true;
  return processor.release();
}

}  // namespace SdkDebugDialog
