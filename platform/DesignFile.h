#pragma once

// A hardware design kept in a JSON file (docs/design-file.md).

#include <cstddef>
#include <stdexcept>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/HHSMHwManager.h"

// Why a design cannot be used. what() is one line that names the file, the place in it (line and column, or a JSON
// pointer), what was found and what was expected.
class DesignFileError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Answers every question in the order of the file.
class DesignFile : public HHSMHwManager {
 public:
  // Reads a design whole; throws DesignFileError for anything that is not a complete and consistent one. Nothing
  // but a regular file is read.
  static DesignFile load(const std::string& path);

  // The same for text in memory; name stands for the file in error texts.
  static DesignFile parse(const std::string& text, const std::string& name);

  void getProcessorInstances(std::vector<std::string>& out, bool flag) override;
  void getIpInstances(std::vector<std::string>& out, const HwIpType& ipClass) override;
  void getIpInstances(std::vector<std::string>& out, const std::string& ipType, bool flag) override;
  std::string getIpName(const std::string& instance) override;
  void getOdmConnectedProcessorList(std::vector<std::string>& out, const std::string& debugInstance) override;
  void getPeripherals(const std::string& processor, std::vector<std::string>& out) override;
  std::string getParameterValue(const std::string& instance, const std::string& parameter) override;

 private:
  class Reader;
  enum class Class { processor, debug, peripheral, memory, other };

  struct Instance {
    std::string name;
    std::string ipType;
    Class ipClass = Class::other;
    std::unordered_map<std::string, std::string> parameters;
    std::vector<std::string> processors;   // that a debug IP reaches
    std::vector<std::string> peripherals;  // of a processor
  };

  DesignFile() = default;
  const Instance* find(const std::string& name) const;
  template <typename Key>
  void append(std::vector<std::string>& out, const std::unordered_map<Key, std::vector<std::size_t>>& index,
              const Key& key) const;

  std::vector<Instance> m_instances;
  // Positions in m_instances, in order.
  std::unordered_map<std::string, std::size_t> m_byName;
  std::unordered_map<std::string, std::vector<std::size_t>> m_byIpType;
  std::unordered_map<Class, std::vector<std::size_t>> m_byClass;
};
