#pragma once

// The state behind an Engine.

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

// The whole debug configuration of one Engine. The fields are open: readers, writers and queries work on them.
class SDKDEBUGDIALOG_API EngineImp {
 public:
  // The hardware description handed to Engine::GetProcessorList; not owned, may be null. While it is null the
  // target readers accept any connection kind and add it to the processor's allowedConnections; while it is set
  // they accept only the kinds that are there.
  HHSMHwManager* hwManager = nullptr;

  // The debuggable processors, in the order of discovery. The engine never destroys the records: whoever had it
  // discover them does, after the last use of the engine. Records may be appended; those in the list keep their place
  // and their name.
  std::vector<ProcessorInfoImp*> processorList;

  // The processor being edited; null until one is selected. Not owned.
  ProcessorInfoImp* currentProcessor = nullptr;

  // The facade that owns this object; error texts are stored through it. Not owned.
  Engine* engine = nullptr;

  // The cable settings; owned, never null.
  CableOption* cable = nullptr;

  // 1 when the processor is reached through its own JTAG pins.
  std::int32_t cpuJtag = 0;

  // The devices of the JTAG chain, in chain order. The records are not owned: selecting a processor, a reset and
  // Engine::SetJtagChainOptions drop the pointers, so that whoever wants to release the records does so before.
  std::vector<JtagOption*> jtagChain;

  // Text of the last error.
  std::string errorStr;

  EngineImp();
  ~EngineImp();
  EngineImp(const EngineImp&) = delete;
  EngineImp& operator=(const EngineImp&) = delete;

  // Resets the current processor's settings (its identity survives), the cable (to none), cpuJtag, the chain and
  // the error text. The hardware description, the processor list and the selection stay.
  void EngineImpInit();

  // Marks the six bases of the current processor's debug address map (instruction cache and tags, data cache and
  // tags, DCR, TLB) as not set; debugAddressMap, on-chip and read-only memory stay. 0; 1 without a current
  // processor.
  int InitPPCDebugAddressMap();

  // Lays out the debug address map of the current processor in blocks of 64 KB from base on, in the order
  // instruction cache, instruction tags, data cache, data tags, DCR, TLB. A base that is set already is kept.
  // base is not checked for alignment, sums wrap at 32 bits, and debugAddressMap stays. 0; 1 without a current
  // processor.
  int AssignAddressMap(unsigned int base);

  // Finds the current processor's FPU in the hardware description and stores it in fpuType (0 none, 1 single, 2
  // double precision); the first FPU among the peripherals decides. 0: not a PowerPC, or an FPU was found; 1: a
  // PowerPC without one, or no hardware known (fpuType is 0 then), or no current processor.
  int GetFPUType();

  // Builds a processor record from a connect command alone and selects it. The command is read as if no hardware
  // were known; then name and allowedConnections are taken from the first listed processor of the same family and
  // number, and the FPU from the hardware description if there is one. Commands for the debug module, qmtc, dcc
  // and dap targets need no processor: their record keeps an empty name.
  //
  // The caller owns the record, which is the engine's current processor as well. Null when the command cannot be
  // read: then the engine's error text, whether or not the reader stored one, was sent to the message manager, the
  // settings are reset, and there is no current processor. A lone "-" in the command throws std::out_of_range, and
  // an exception of the hardware description passes through; both leave settings and selection likewise.
  ProcessorInfoImp* GetProcessorInfo(std::string command);

  // The class of a memory controller by the name of its IP type, in any case: "BRAM", "EXT_DRAM",
  // "EXT_SRAM_FLASH" or "OTHER".
  std::string ClassifyMemory(const std::string& ipType);

  // Engine::STUB | Engine::STUB_UART_PRESENT (132) when the processor has a light UART among its peripherals,
  // else 0; 0 as well when no hardware is known.
  unsigned int IsStubSerialConnect(std::string processor);

  // Always 0: no processor is reported to reach a stub over JTAG.
  unsigned int IsStubJtagConnect(std::string processor);

 private:
  friend ProcessorInfoImp* find_listed(EngineImp& imp, const std::string& name);
  std::unique_ptr<ProcessorIndex> m_index;  // of processorList
};

}  // namespace SdkDebugDialog
