#include "SdkDebugDialog/EngineImp.h"

#include "model/NameIndex.h"
#include "model/result.h"

namespace SdkDebugDialog {

EngineImp::EngineImp() : m_names(std::make_unique<NameIndex>()) {
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

ProcessorInfoImp* EngineImp::FindProcessor(const std::string& name) {
  if (ProcessorInfoImp* const processor = m_names->find(processorList, name)) return processor;
  // A miss, or records that took the place of others: the list itself decides.
  ProcessorInfoImp* const found = find_by_name(processorList, name);
  if (found != nullptr) m_names->clear();
  return found;
}

}  // namespace SdkDebugDialog
