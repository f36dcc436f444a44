#pragma once

// Engines as the tests need them. They release what an engine never does.

#include <string>
#include <utility>

#include "SdkDebugDialog/CableOption.h"
#include "SdkDebugDialog/Engine.h"
#include "SdkDebugDialog/EngineImp.h"
#include "SdkDebugDialog/JtagOption.h"
#include "SdkDebugDialog/ProcessorInfo.h"

// Releases the devices of the chain that the engine has at the end.
struct HeldEngine {
  SdkDebugDialog::Engine engine;
  SdkDebugDialog::EngineImp& imp = *engine.imp;

  HeldEngine() = default;
  ~HeldEngine() { release_chain(); }
  HeldEngine(const HeldEngine&) = delete;
  HeldEngine& operator=(const HeldEngine&) = delete;

  std::string error() {
    std::string text;
    engine.GetErrorStr(text);
    return text;
  }

  void release_chain() {
    for (const SdkDebugDialog::JtagOption* const device : imp.jtagChain) delete device;
    imp.jtagChain.clear();
  }
};

// One processor is selected, as readers and writers need it.
struct SelectedEngine : HeldEngine {
  SdkDebugDialog::ProcessorInfoImp processor;  // a soft processor without a name that admits the simulator alone

  SelectedEngine() {
    imp.currentProcessor = &processor;
    imp.EngineImpInit();
  }
};

// The processors of a design are listed. Releases their records as well.
struct DiscoveredEngine : HeldEngine {
  DiscoveredEngine() = default;
  explicit DiscoveredEngine(HHSMHwManager& hw) { engine.GetProcessorList(&hw); }
  ~DiscoveredEngine() {
    for (const SdkDebugDialog::ProcessorInfoImp* const processor : imp.processorList) delete processor;
    imp.processorList.clear();
  }
  DiscoveredEngine(const DiscoveredEngine&) = delete;
  DiscoveredEngine& operator=(const DiscoveredEngine&) = delete;

  // Lists a record that this then releases.
  SdkDebugDialog::ProcessorInfoImp& list(std::string name) {
    imp.processorList.push_back(new SdkDebugDialog::ProcessorInfoImp);
    imp.processorList.back()->name = std::move(name);
    return *imp.processorList.back();
  }
};
