#pragma once

// An engine used by hand, without the layer of settings: what a configuration must agree with.

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "SdkDebugDialog/Annotation.h"
#include "SdkDebugDialog/Settings.h"
#include "tests/compare/design.h"
#include "tests/support/SelectedEngine.h"

// The design of tests/compare, under a name that does not clash with SdkDebugDialog::Design.
using Hardware = ::Design;

// Its processors, and none (an empty name).
inline constexpr const char* kProcessors[] = {"", "ovrin_0", "ovrin_1", "ovrin_2", "ppc405_0", "ppc440_0", "a9_0"};

// The values of all settings, by name.
using State = std::vector<std::pair<std::string_view, SdkDebugDialog::SettingValue>>;

const SdkDebugDialog::SettingValue& value_in(const State& state, std::string_view name);

// The names of the settings that differ.
std::vector<std::string_view> differing(const State& a, const State& b);

class ByHand {
 public:
  // An engine with a processor selected and its settings at their defaults; an empty name: no processor of a design.
  ByHand(Hardware& hardware, const std::string& processor);

  // Whether the text is read; false also for a lone dash. An option file with nothing in it leaves the defaults.
  bool read(const std::string& text, SdkDebugDialog::TextKind kind);
  // Sets one setting with the engine's setter or, where it has none, in its record.
  void set(std::string_view name, const SdkDebugDialog::SettingValue& value);

  State state() const;
  // Empty when it cannot be written.
  std::string command();

  SdkDebugDialog::Engine& engine() { return m_engine.engine; }
  SdkDebugDialog::EngineImp& imp() { return m_engine.imp; }

 private:
  int read_file(const std::string& content);

  std::string m_name;
  SdkDebugDialog::ProcessorInfoImp m_alone;
  DiscoveredEngine m_engine;
};
