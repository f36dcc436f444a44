#pragma once

// Engines for tests. They release the records that an engine does not own.

#include <string>
#include <utility>

#include "SdkDebugDialog/CableOption.h"
#include "SdkDebugDialog/Engine.h"
#include "SdkDebugDialog/EngineImp.h"
#include "SdkDebugDialog/JtagOption.h"
#include "SdkDebugDialog/ProcessorInfo.h"

// An engine that releases the devices of its chain in the end.
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

// An engine with a selected processor.
struct SelectedEngine : HeldEngine {
  SdkDebugDialog::ProcessorInfoImp processor;  // a soft processor without a name that admits only the simulator

  SelectedEngine() {
    imp.currentProcessor = &processor;
    imp.EngineImpInit();
  }
};

// An engine with the processors of a design. It releases their records too.
struct DiscoveredEngine : HeldEngine {
  DiscoveredEngine() = default;
  explicit DiscoveredEngine(HHSMHwManager& hw) { engine.GetProcessorList(&hw); }
  ~DiscoveredEngine() {
    for (const SdkDebugDialog::ProcessorInfoImp* const processor : imp.processorList) delete processor;
    imp.processorList.clear();
  }
  DiscoveredEngine(const DiscoveredEngine&) = delete;
  DiscoveredEngine& operator=(const DiscoveredEngine&) = delete;

  // Adds a record to the list and releases it in the end.
  SdkDebugDialog::ProcessorInfoImp& list(std::string name) {
    imp.processorList.push_back(new SdkDebugDialog::ProcessorInfoImp);
    imp.processorList.back()->name = std::move(name);
    return *imp.processorList.back();
  }
};
