// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The state behind an Engine.

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "SdkDebugDialog/CableOption.h"
#include "SdkDebugDialog/Engine.h"
#include "SdkDebugDialog/Export.h"
#include "SdkDebugDialog/JtagOption.h"
#include "SdkDebugDialog/ProcessorInfo.h"

class HHSMHwManager;

namespace SdkDebugDialog {

struct ProcessorIndex;

/// The whole debug configuration of one Engine. The fields are public: readers, writers and queries work on them.
/// Fields are added at its end, in a major version only.
class SDKDEBUGDIALOG_API EngineImp {
 public:
  /// The hardware description passed to Engine::GetProcessorList; not owned, may be null. While it is null the
  /// target readers accept every connection and add it to the processor's allowedConnections; while it is set they
  /// accept only the connections in allowedConnections.
  HHSMHwManager* hwManager = nullptr;

  /// The debuggable processors, in the order of discovery. The engine never deletes the records: the caller of
  /// GetProcessorList does, after the last use of the engine. Callers may append records, but must not move or rename
  /// the records in the list.
  std::vector<ProcessorInfoImp*> processorList;

  /// The processor being edited; null until one is selected. Not owned.
  ProcessorInfoImp* currentProcessor = nullptr;

  /// The Engine that owns this object; error texts are stored through it. Not owned.
  Engine* engine = nullptr;

  /// The cable settings; owned, never null.
  CableOption* cable = nullptr;

  /// 1 when the connection goes through the processor's own JTAG pins, else 0.
  std::int32_t cpuJtag = 0;

  /// The devices of the JTAG chain, in chain order. The records are not owned. Selecting a processor, a reset and
  /// Engine::SetJtagChainOptions remove the pointers without deleting the records: the caller deletes them before.
  std::vector<JtagOption*> jtagChain;

  /// Text of the last error.
  std::string errorStr;

  /// No hardware description, no processor, no cable.
  EngineImp();
  ~EngineImp();
  EngineImp(const EngineImp&) = delete;
  EngineImp& operator=(const EngineImp&) = delete;

  /// Resets the current processor's settings (not its identity), the cable (to none), cpuJtag, the chain and the error
  /// text. The hardware description, the processor list and the selection are unchanged.
  void EngineImpInit();

  /// Marks the six bases of the current processor's debug address map (instruction cache and tags, data cache and
  /// tags, DCR, TLB) as not set; debugAddressMap, on-chip and read-only memory are unchanged. kOk, or kRefused without
  /// a current processor.
  int InitPPCDebugAddressMap();

  /// Assigns the bases of the current processor's debug address map in blocks of 64 KB, starting at base, in the order
  /// instruction cache, instruction tags, data cache, data tags, DCR, TLB. A base that is already set is kept, and its
  /// block is skipped. base is not checked for alignment, sums wrap at 32 bits, and debugAddressMap is unchanged. kOk,
  /// or kRefused without a current processor.
  int AssignAddressMap(unsigned int base);

  /// Finds the current processor's FPU in the hardware description and stores it in fpuType (0 none, 1 single, 2
  /// double precision); the first FPU among the peripherals counts.
  /// - kOk (0): an FPU was found, or the processor is not a PowerPC (fpuType is 0)
  /// - kNotSet (1): a PowerPC without an FPU, or without a hardware description (fpuType is 0)
  /// - kRefused (1): no current processor
  int GetFPUType();

  /// Creates a processor record from a connect command alone and selects it. The command is read as if hwManager were
  /// null; then name and allowedConnections are taken from the first listed processor with the same family and number,
  /// and the FPU from the hardware description if there is one. The targets odm, qmtc, dcc and dap need no processor:
  /// their record keeps an empty name.
  ///
  /// The caller owns the record, which is also the engine's current processor. Null when the command is not understood:
  /// the engine's error text, even if empty, is sent to the message manager (ComMsgMgr), the settings are reset, and
  /// there is no current processor. A lone "-" in the command throws std::out_of_range, and an exception of the
  /// hardware description is passed on; both also reset the settings and leave no current processor.
  ProcessorInfoImp* GetProcessorInfo(std::string command);

  /// Classifies a memory controller by the name of its IP type, ignoring case: "BRAM", "EXT_DRAM", "EXT_SRAM_FLASH" or
  /// "OTHER".
  std::string ClassifyMemory(const std::string& ipType);

  /// Engine::STUB | Engine::STUB_UART_PRESENT (132) when the processor has a light UART among its peripherals, else 0;
  /// also 0 without a hardware description.
  unsigned int IsStubSerialConnect(std::string processor);

  /// Always 0: no stub over JTAG is ever reported.
  unsigned int IsStubJtagConnect(std::string processor);

 private:
  friend ProcessorInfoImp* find_listed(EngineImp& imp, const std::string& name);
  std::unique_ptr<ProcessorIndex> m_index;  // of processorList
};

}  // namespace SdkDebugDialog
