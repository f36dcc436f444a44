#pragma once

// A hardware design kept in a JSON file (docs/design-file.md).

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/HHSMHwManager.h"

// Why a design cannot be used. what() is one line that names the file, the place in it (line and column, or a JSON
// pointer), what was found and what was expected.
class DesignFileError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Answers every question in the order of the file. Copies share what was read.
class DesignFile : public HHSMHwManager {
 public:
  // Reads a design whole; throws DesignFileError for anything that is not a complete and consistent one. Nothing
  // but a regular file is read.
  static DesignFile load(const std::string& path);

  // The same for text in memory; name stands for the file in error texts.
  static DesignFile parse(const std::string& text, const std::string& name);

  // There is no move, which would leave an object without answers.
  DesignFile(const DesignFile&) = default;
  DesignFile& operator=(const DesignFile&) = default;
  ~DesignFile() override = default;

  void getProcessorInstances(std::vector<std::string>& out, bool flag) override;
  void getIpInstances(std::vector<std::string>& out, const HwIpType& ipClass) override;
  void getIpInstances(std::vector<std::string>& out, const std::string& ipType, bool flag) override;
  std::string getIpName(const std::string& instance) override;
  void getOdmConnectedProcessorList(std::vector<std::string>& out, const std::string& debugInstance) override;
  void getPeripherals(const std::string& processor, std::vector<std::string>& out) override;
  std::string getParameterValue(const std::string& instance, const std::string& parameter) override;

 private:
  class Content;
  class Reader;

  DesignFile(std::string text, const std::string& file);

  std::shared_ptr<const Content> m_content;
};
