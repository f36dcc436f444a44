// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The records that describe one processor.

#include <cstdint>
#include <string>

#include "SdkDebugDialog/Export.h"

namespace SdkDebugDialog {

/// Value of an address field that is not set. Such a field is never written.
inline constexpr std::uint32_t kAddressNotSet = 0xFFFFFFFFU;

/// The kind of the selected processor; filled by Engine::SetProcessor and Engine::ParseProcessorInfo.
/// Fields are added at its end, in a major version only.
struct ProcessorInfo {
  std::uint32_t procVariant = 0;         ///< see ProcessorInfoImp::procVariant
  std::uint32_t procFamily = 0;          ///< see ProcessorInfoImp::procFamily
  std::uint32_t allowedConnections = 0;  ///< set of Engine::ConnectionType bits
};

/// Everything that the connect command can contain about one processor. A new record, which EngineImp::GetProcessorInfo
/// starts from, describes a soft processor without a name that allows only the simulator connection.
///
/// Records are plain data. The engine points to them and never deletes them: the caller deletes both the records found
/// by discovery (EngineImp::processorList) and those returned by EngineImp::GetProcessorInfo.
/// Fields are added at its end, in a major version only.
struct SDKDEBUGDIALOG_API ProcessorInfoImp {
  /// @name Identity
  /// Set when the record is created, and kept by ProcessorInfoImpInit.
  /// @{

  std::string name;                      ///< instance name in the design; also names the option file
  std::uint32_t procFamily = 0;          ///< 0 soft processor, 1 PowerPC, 2 ARM
  std::uint32_t procVariant = 0;         ///< 0 soft processor, 1 ppc405, 2 ppc440, 4 Cortex-A9, 5 R5, 6 other PowerPC
  std::uint32_t allowedConnections = 1;  ///< set of Engine::ConnectionType bits that can be selected
  std::uint8_t cpuNr = 1;                ///< number on the debug link; written to the command as a signed number

  /// @}

  /// @name Settings
  /// A reset restores the values given here.
  /// @{

  std::uint32_t connectionType = 2;  ///< selected Engine::ConnectionType; 0 counts as not set
  std::uint32_t memSize = 16;        ///< memory of the soft-processor simulator; read, never written

  std::string simConfigFile;             ///< configuration file of the PowerPC simulator
  std::string simHost;                   ///< host of the simulator's or virtual platform's port; empty: not set
  std::uint32_t simPort = 0;             ///< port of the simulator or virtual platform
  std::uint32_t vpConfigured = 0;        ///< flag: the virtual platform was configured
  std::uint32_t vpCycleApproximate = 0;  ///< flag: it was configured as cycle approximate

  std::uint32_t stubType = 0;                 ///< Engine::StubType: 0 over JTAG, 1 over a serial line
  std::string stubSerialPort = "/dev/ttyS0";  ///< serial device of the stub
  std::int32_t stubBaudRate = 0;              ///< baud; 0 counts as not set
  std::int32_t stubTimeout = 20000;           ///< passed to the debugger unchanged

  std::int8_t debugDevice = 0;  ///< number of the debug device in the JTAG chain; 0 counts as not set

  std::uint32_t debugAddressMap = kAddressNotSet;    ///< follows the instruction-cache base
  std::uint32_t isocmStartAddr = kAddressNotSet;     ///< on-chip instruction memory (ppc405)
  std::uint32_t isocmSize = 0;                       ///< bytes
  std::uint32_t isocmDcrStartAddr = kAddressNotSet;  ///< DCR base of the on-chip instruction memory
  std::uint32_t icacheStartAddr = kAddressNotSet;    ///< instruction cache
  std::uint32_t dcacheStartAddr = kAddressNotSet;    ///< data cache
  std::uint32_t itagStartAddr = kAddressNotSet;      ///< instruction tags
  std::uint32_t dtagStartAddr = kAddressNotSet;      ///< data tags
  std::uint32_t tlbStartAddr = kAddressNotSet;       ///< TLB
  std::uint32_t dcrStartAddr = kAddressNotSet;       ///< device control registers

  std::uint32_t fpuType = 0;  ///< 0 none, 1 single precision, 2 double precision
  std::string cpuVersion;     ///< read, never written
  std::string odmVersion;     ///< read, never written
  std::int32_t nCpu = 8;      ///< read, never written

  std::uint32_t romemStartAddr = kAddressNotSet;  ///< read-only memory
  std::uint32_t romemSize = 0;                    ///< bytes

  std::uint8_t svfFileSet = 0;             ///< flag: a file name was given for the cable (CableOption::fname)
  std::uint8_t modelSimEnabled = 0;        ///< flag: the hardware simulator is used
  std::string modelSimHost = "localhost";  ///< host of the hardware simulator
  std::uint32_t modelSimPort = 9998;       ///< port of the hardware simulator
  std::uint8_t uartEnabled = 0;            ///< flag: the UART of the debug module is used
  std::uint32_t bscanPort = 3;             ///< BSCAN user register: 2, 3, 34, 35 for USER1 to USER4

  std::string command;  ///< the connect command last read or written for this processor

  /// @}

  /// Resets every setting to its default and keeps the identity.
  void ProcessorInfoImpInit();
};

}  // namespace SdkDebugDialog
