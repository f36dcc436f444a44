// SPDX-License-Identifier: MIT
#pragma once

#include <SdkDebugDialog/Configuration.h>

#include <map>
#include <optional>
#include <string>

namespace qvtdialog {

// A state of one processor's settings: what a step of the history begins with and leads to.
struct Draft {
  // The settings, as far as they were understood, and the text that they were read from.
  SdkDebugDialog::Configuration configuration;
  std::string read;
  // The whole text as it was typed or read, if the reader refuses it; the configuration is then that before it.
  std::optional<std::string> text;
  // What was typed into fields and is not accepted.
  std::map<const SdkDebugDialog::Setting*, std::string> refused;

  friend bool operator==(const Draft& a, const Draft& b) {
    return a.text == b.text && a.refused == b.refused && a.configuration == b.configuration;
  }
};

}  // namespace qvtdialog
