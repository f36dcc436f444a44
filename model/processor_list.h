#pragma once

#include <cstddef>
#include <string>
#include <unordered_map>

namespace SdkDebugDialog {

class EngineImp;
struct ProcessorInfoImp;

// The positions of the records in EngineImp::processorList, by name. For a duplicate name, that of the first record.
struct ProcessorIndex {
  std::unordered_map<std::string, std::size_t> places;
  std::size_t known = 0;  // number of records, from the front of the list, that are in the index
};

// The first listed processor with exactly this name; null when there is none. Takes constant time once the records are
// indexed, unless records were moved or renamed or the name is not in the list.
ProcessorInfoImp* find_listed(EngineImp& imp, const std::string& name);

}  // namespace SdkDebugDialog
