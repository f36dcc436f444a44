// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// A hardware design in a JSON file (docs/design-file.md).

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "HHSMHwManager.h"

/// A design file that cannot be read or is not valid. what() is one line with the file name, the place in the file
/// (line and column, or a JSON pointer), what was found and what was expected.
class DesignFileError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// All lists are in the order of the file. Copies share the content.
class DesignFile : public HHSMHwManager {
 public:
  /// Reads a whole design. Throws DesignFileError when the path is not a regular file or the design is not complete and
  /// consistent.
  static DesignFile load(const std::string& path);

  /// The same for text in memory; name is used as the file name in error texts.
  static DesignFile parse(const std::string& text, const std::string& name);

  // Not movable: a moved-from object would have no content.
  /// A copy shares the content.
  DesignFile(const DesignFile&) = default;
  /// Shares the content of the other one.
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
