#include "SdkDebugDialog/EngineImp.h"

#include "model/processor_list.h"

namespace SdkDebugDialog {

EngineImp::EngineImp() : m_index(std::make_unique<ProcessorIndex>()) {
  cable = new CableOption;
  EngineImpInit();
}

EngineImp::~EngineImp() { delete cable; }

void EngineImp::EngineImpInit() {
  if (currentProcessor != nullptr) currentProcessor->ProcessorInfoImpInit();
  cable->CableOptionInit(Engine::CABLE_NONE);
  cpuJtag = 0;
  jtagChain.clear();
  errorStr.clear();
}

}  // namespace SdkDebugDialog
