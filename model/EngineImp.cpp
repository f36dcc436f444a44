#include "SdkDebugDialog/EngineImp.h"

#include <algorithm>

#include "model/result.h"

namespace SdkDebugDialog {

EngineImp::EngineImp() : cable(new CableOption) { EngineImpInit(); }

EngineImp::~EngineImp() { delete cable; }

void EngineImp::EngineImpInit() {
  if (currentProcessor != nullptr) currentProcessor->ProcessorInfoImpInit();
  cable->CableOptionInit(Engine::CABLE_NONE);
  cpuJtag = 0;
  jtagChain.clear();
  errorStr.clear();
}

ProcessorInfoImp* EngineImp::FindProcessor(const std::string& name) {
  if (m_indexed > processorList.size()) {
    m_firstByName.clear();
    m_indexed = 0;
  }
  for (; m_indexed < processorList.size(); ++m_indexed) {
    m_firstByName.try_emplace(processorList[m_indexed]->name, m_indexed);
  }
  const auto hit = m_firstByName.find(name);
  if (hit != m_firstByName.end() && processorList[hit->second]->name == name) return processorList[hit->second];

  // A miss, or records that took the place of others: the list itself decides.
  const auto found = std::ranges::find(processorList, name, &ProcessorInfoImp::name);
  if (found == processorList.end()) return nullptr;
  m_firstByName.clear();
  m_indexed = 0;
  return *found;
}

}  // namespace SdkDebugDialog
