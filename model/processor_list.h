#pragma once

#include <cstddef>
#include <string>
#include <unordered_map>

namespace SdkDebugDialog {

class EngineImp;
struct ProcessorInfoImp;

// Where the records of EngineImp::processorList stand, by name. The first of several of one name counts.
struct ProcessorIndex {
  std::unordered_map<std::string, std::size_t> places;
  std::size_t known = 0;  // records at the front of the list that are in the index
};

// The first listed processor with exactly this name; null when there is none. Quick however long the list is, as long
// as records keep their place and their name.
ProcessorInfoImp* find_listed(EngineImp& imp, const std::string& name);

}  // namespace SdkDebugDialog
