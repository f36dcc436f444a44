#include "model/processor_list.h"

#include <algorithm>

#include "SdkDebugDialog/EngineImp.h"

namespace SdkDebugDialog {

ProcessorInfoImp* find_listed(EngineImp& imp, const std::string& name) {
  const auto& list = imp.processorList;
  ProcessorIndex& index = *imp.m_index;
  if (index.known > list.size()) index = {};
  for (; index.known < list.size(); ++index.known) index.places.emplace(list[index.known]->name, index.known);

  const auto found = index.places.find(name);
  if (found != index.places.end() && list[found->second]->name == name) return list[found->second];
  // The index can be out of date: callers may have renamed a record.
  const auto renamed = std::ranges::find(list, name, &ProcessorInfoImp::name);
  return renamed != list.end() ? *renamed : nullptr;
}

}  // namespace SdkDebugDialog
