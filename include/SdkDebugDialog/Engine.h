// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The debug configuration of one processor, as the dialog sees it.

#include <string>
#include <vector>

#include "SdkDebugDialog/Export.h"

class HHSMHwManager;

namespace SdkDebugDialog {

class EngineImp;
struct CableOption;
struct JtagOption;
struct ProcessorInfo;

/// Holds everything that the debugger needs to connect to one processor of a hardware design, and converts it to the
/// connect command and back.
///
/// Typical use: GetProcessorList, SetProcessor (or ParseProcessorInfo), getters and setters, Generate (or
/// GenerateCmdString).
///
/// Result codes (Result.h): kOk (0) for success, kRefused (1) when a setter refuses a value, kNotSet (1) when a getter
/// has no value, kNotApplicable (2) when the operation does not apply to this processor or connection. An operation
/// that returns other codes lists them. A getter that does not return kOk leaves its argument unchanged, unless stated
/// otherwise. Without a selected processor, every operation that works on one returns 1 (kRefused or kNotSet) and
/// changes nothing.
///
/// Error text: GetErrorStr returns the text of the last failure. Each operation lists the texts that it stores; it
/// stores no others.
///
/// "No cable in use" below means: the connection is the simulator or the virtual platform, or the stub type is
/// STUB_OVER_SERIAL, whatever the connection.
///
/// Threads: one engine, with its records and its hardware description, is used from one thread at a time. Engines in
/// different threads are independent, unless they share records or a hardware description. The static operations are
/// independent too. The message sink (ComMsgMgr::setSink) is one for the process: set it before threads start.
class SDKDEBUGDIALOG_API Engine {
 public:
  /// Connections. Each is a single bit: ProcessorInfo::allowedConnections is a set of them.
  enum ConnectionType : unsigned int {
    SIMULATOR = 1,            ///< a simulator
    HARDWARE = 2,             ///< through the debug module or JTAG
    STUB = 4,                 ///< software stub on the target
    VIRTUAL_PLATFORM = 8,     ///< a platform that runs on a host
    ODM_TARGET = 16,          ///< the debug module itself
    QMTC_TARGET = 32,         ///< multi-threaded C
    STUB_JTAG_PRESENT = 64,   ///< flag: a stub can be reached over JTAG
    STUB_UART_PRESENT = 128,  ///< flag: a stub can be reached over a UART
    DCC_TARGET = 256,         ///< debug communications channel
    DAP_TARGET = 512,         ///< debug access port
  };

  /// How the stub is reached.
  enum StubType : unsigned int {
    STUB_OVER_JTAG = 0,    ///< over JTAG
    STUB_OVER_SERIAL = 1,  ///< over a serial line
  };

  /// The download cables. CableCatalogue.h has what each of them defaults to.
  enum CableType : unsigned int {
    CABLE_NONE = 0,          ///< no cable
    ZARVEK_SVFFILE = 1,      ///< a cable that writes an SVF file; not supported
    ZARVEK_PARALLEL4 = 2,    ///< `zarvek_parallel4`
    ZARVEK_PLATFORMUSB = 3,  ///< `zarvek_platformusb`
    ZARVEK_PARALLEL3 = 4,    ///< `zarvek_parallel3`
    ZARVEK_PLUGIN = 5,       ///< `zarvek_plugin`: a plug-in with a module and its arguments
    DIGILENT_PLUGIN = 6,     ///< `digilent_plugin`
    ZARVEK_TCF = 7,          ///< `zarvek_tcf`
  };

  /// The configuration itself; owned, never null.
  EngineImp* imp;

  /// Part name of the design's device, for the caller; the engine itself does not use it.
  std::string partName;

  /// No hardware description, no processor selected, no cable.
  Engine();
  ~Engine();
  Engine(const Engine&) = delete;
  Engine& operator=(const Engine&) = delete;

  /// @name Error text
  /// Needs no processor.
  /// @{

  /// Replaces the text of the last error.
  void SetErrorStr(std::string& text);
  /// The same. A null pointer clears it.
  void SetErrorStr(const char* text);

  /// Copies the text of the last error. A successful operation does not clear it; selecting a processor does.
  void GetErrorStr(std::string& text);

  /// @}

  /// @name Processors of the design
  /// @{

  /// Discovers the processors of the design. Appends the name of every processor to names, debuggable or not, and a
  /// record to EngineImp::processorList for each one that can be debugged: those behind debug modules ("opb_odm",
  /// "odm") and PowerPC bridges ("jtag_ppc_bridge"), in the order of the debug IP, then soft processors ("ovrin")
  /// without a debug module, then Cortex-A9 cores ("hc9_cortexa9"). Later operations query hw again, so it must outlive
  /// them; null removes the hardware description and appends nothing. Call it once per engine: neither names nor the
  /// list is cleared first, so a second call appends the same processors again. Always kOk. If hw or an allocation
  /// throws, names and the list are unchanged.
  int GetProcessorList(HHSMHwManager* hw, std::vector<std::string>& names);

  /// The same without the names. Returns imp, never null.
  EngineImp* GetProcessorList(HHSMHwManager* hw);

  /// Returns the number (0 to 255) of the processor on its debug link, or -1 with the text
  /// `"Processor Instance %s cannot be debugged!!\n"` when it is not listed.
  int GetProcessorNr(std::string name);

  /// Selects a listed processor, resets the settings, reads its option file (`etc/qvt_NAME.opt` below the working
  /// directory) and takes the FPU from the hardware description, overriding the file; then fills info. Names are
  /// compared byte for byte.
  /// - kOk (0): the option file was read
  /// - kNotListed (2): the selection and info are unchanged; the text is
  ///   `"Processor Instance %s cannot be Debugged !!, Please check \t\t\t\t\tProcessor Connection in your HWS file\n"`
  /// - kNotUnderstood (3): the command in the file is not understood, and the settings are the defaults; the error
  ///   text is the reader's, or empty if it stored none; info is filled
  /// - kNoOptionFile (4): no option file, or nothing in it; the settings are the defaults
  ///
  /// A lone "-" in the text throws std::out_of_range; the settings read before it are kept.
  int SetProcessor(std::string name, ProcessorInfo& info);

  /// The same with the settings taken from a connect command. Returns kOk, kNotListed or kNotUnderstood as above; the
  /// text for kNotListed is
  /// `"Processor Instance %s not Found !!, Please check \t\t\t\t\tProcessor Connection in your HWS file\n"`. The
  /// targets odm, dcc, qmtc and dap replace the processor's allowedConnections, and dcc and dap also its family and
  /// variant. A reset does not undo this; neither does a failed read, except for dap.
  int ParseProcessorInfo(std::string name, ProcessorInfo& info, std::string command);

  /// @}

  /// @name Connection
  /// @{

  /// Selects the connection. kRefused when t has no bit in common with the processor's allowedConnections.
  int SetConnectionType(ConnectionType t);
  /// The selected connection. kNotSet when it is 0.
  int GetConnectionType(ConnectionType& t);

  /// @}

  /// @name Software stub
  /// @{

  /// Selects how the stub is reached. STUB_OVER_SERIAL needs STUB_UART_PRESENT in the selected connection (not in
  /// allowedConnections), else kRefused with "UART device not present in system". STUB_OVER_JTAG needs
  /// STUB_JTAG_PRESENT there, else kRefused with "JTAG device not present in system". Other values are stored
  /// unchecked. A connection with one of these flags cannot be written: select STUB | STUB_UART_PRESENT, set the stub
  /// type, then select STUB.
  int SetStubType(StubType s);
  /// How the stub is reached. kNotApplicable unless the selected connection has the STUB bit.
  int GetStubType(StubType& s);

  /// The serial device, such as "/dev/ttyS0"; not checked.
  int SetStubSerialPort(std::string port);
  /// The serial device.
  int GetStubSerialPort(std::string& port);

  /// The speed of the serial line in baud; not checked.
  int SetStubBaudrate(int baud);
  /// In baud. kNotSet when it is 0.
  int GetStubBaudRate(int& baud);

  /// @}

  /// @name Debug device
  /// @{

  /// Number of the debug device in the JTAG chain; only the low 8 bits are stored.
  int SetDebugDevice(int device);
  /// -128 to 127. kNotApplicable for the simulator connection and for STUB_OVER_SERIAL; kNotSet when the number is 0.
  int GetDebugDevice(int& device);

  /// Connects through the processor's own JTAG pins from now on. Only a reset of the settings undoes this. Needs no
  /// processor. Always kOk.
  int SetCpuJtag();

  /// @}

  /// @name PowerPC simulator
  /// @{

  /// Ignores the name and stores nothing: the file can be set only through the option text. Needs no processor.
  /// Always kOk.
  int SetPPCSimConfigFile(std::string file);
  /// Its configuration file. kNotApplicable unless the processor is a PowerPC with the simulator connection; kNotSet
  /// when no file is set.
  int GetPPCSimConfigFile(std::string& file);

  /// @}

  /// @name Base addresses
  /// The addresses of the PowerPC debug address map must be multiples of 64 KB; otherwise the setter returns kRefused,
  /// keeps the old address and stores the text that is given with it. The setters accept any kind of processor and any
  /// connection. The getters return kNotApplicable unless the processor is a PowerPC with the hardware connection, and
  /// kNotSet when the address is not set (0xFFFFFFFF).
  /// @{

  /// Base of the instruction cache; sets the debug address map as well.
  /// "Icache Start Address should be aligned at 64k boundry"
  int SetIcacheBaseAddr(unsigned int a);
  /// Base of the data cache. "Dcache Start Address should be aligned at 64k boundry"
  int SetDcacheBaseAddr(unsigned int a);
  /// Base of the instruction tags. "Itag Start Address should be aligned at 64k boundry"
  int SetITagBaseAddr(unsigned int a);
  /// Base of the data tags. "Dtag Start Address should be aligned at 64k boundry"
  int SetDTagBaseAddr(unsigned int a);
  /// Base of the TLB. "TLB Start Address should be aligned at 64k boundry"
  int SetTlbBaseAddr(unsigned int a);
  /// Base of the device control registers. "DCR Start Address should be aligned at 64k boundry"
  int SetDcrBaseAddr(unsigned int a);

  /// Base of the debug address map.
  int GetDebugAddressMap(unsigned int& a);
  /// Base of the instruction cache.
  int GetIcacheBaseAddr(unsigned int& a);
  /// Base of the data cache.
  int GetDcacheBaseAddr(unsigned int& a);
  /// Base of the instruction tags.
  int GetITagBaseAddr(unsigned int& a);
  /// Base of the data tags.
  int GetDTagBaseAddr(unsigned int& a);
  /// Base of the TLB.
  int GetTlbBaseAddr(unsigned int& a);
  /// Base of the device control registers.
  int GetDcrBaseAddr(unsigned int& a);

  /// Base of the on-chip instruction memory. kNotApplicable unless the processor is a ppc405 with the hardware
  /// connection; kNotSet when not set. It can be set only through the option text.
  int GetISOCMBaseAddr(unsigned int& a);

  /// Read-only memory: base and size in bytes, not checked; any processor.
  int SetROMem(unsigned int start, unsigned int size);
  /// Base and size of the read-only memory. kNotApplicable unless the connection is hardware; kNotSet when start is not
  /// set. Any processor.
  int GetROMem(unsigned int& start, unsigned int& size);

  /// Marks the debug address map and its six bases as not set; any processor.
  int UnSetDebugAddressMap();

  /// @}

  /// @name Cable
  /// The setters need no processor and check nothing; always kOk. The getters return kNotApplicable with no cable in
  /// use.
  /// @{

  /// Sets the type, and the frequency and port to the defaults of the type; clears all other fields of the cable.
  int SetCableType(CableType t);
  /// The type of the cable.
  int GetCableType(CableType& t);

  /// The clock frequency, in Hz.
  int SetCableSpeed(unsigned int f);
  /// In Hz. When the frequency is 0, returns kNotSet and sets f to 0.
  int GetCableSpeed(unsigned int& f);

  /// The port, such as "USB21".
  int SetCablePort(std::string p);
  /// When the port is empty, returns kNotSet and clears p.
  int GetCablePort(std::string& p);

  /// The electronic serial number. An empty one is none.
  int SetCableESN(std::string e);
  /// When there is none, returns kNotSet and clears e.
  int GetCableESN(std::string& e);

  /// Always returns ZARVEK_SVFFILE (1), whatever the name.
  CableType GetCableType(std::string name);
  /// Always returns an empty string, whatever the type.
  std::string GetCableName(CableType t);

  /// See getcable_supported_frequency.
  std::string GetSupportedCableSpeed(CableType t);
  /// See setcable_default_frequency.
  unsigned int GetDefaultCableSpeed(CableType t);
  /// See setcable_default_port.
  std::string GetDefaultCablePort(CableType t);

  /// Sets type, frequency (in Hz) and port in a caller's cable record. For ZARVEK_PLUGIN it returns kRefused and leaves
  /// the record unchanged. Nothing else is checked.
  static int SetZarvekCableOptions(CableOption& c, CableType t, unsigned int frequency, std::string port);
  /// Sets only the type in a caller's cable record. Unless t is DIGILENT_PLUGIN it returns kRefused and leaves the
  /// record unchanged.
  static int SetDigilentCableOptions(CableOption& c, CableType t, unsigned int frequency, std::string port);

  /// @}

  /// @name JTAG chain
  /// @{

  /// Replaces the chain by a copy of the pointers in v: the records are shared, and none is deleted. If v is the
  /// engine's own chain, the chain is cleared. Needs no processor. Always kOk.
  int SetJtagChainOptions(std::vector<JtagOption*>& v);
  /// Copies the pointers of the chain. kNotApplicable for the simulator connection and for STUB_OVER_SERIAL, even when
  /// there are devices; kNotSet when the chain is empty.
  int GetJtagChainOptions(std::vector<JtagOption*>& v);

  /// @}

  /// @name Cable and chain as text
  /// The text is the cable and chain part of a connect command: the options -cable, -configdevice, -debugdevice and
  /// -bscan. A lone "-" in a text that is read throws std::out_of_range.
  /// @{

  /// Reads a text into the engine's settings: every option in it is applied, even another cable type. Options applied
  /// before an error are kept. kRefused when the text is not understood, with the reader's error text if it stored one.
  /// kRefused if the cable is not a ZARVEK_PLUGIN, with "Internal Error: Other Cable Options applies only for
  /// ZARVEK_PLUGIN cable type".
  int SetPluginCableOptions(std::string text);
  /// Sets out to "-cable type zarvek_plugin" with the module and arguments of the engine's cable. kNotApplicable if the
  /// cable is not a ZARVEK_PLUGIN; kNotSet, with out cleared, when it has no module name. Needs no processor.
  int GetPluginCableOptions(std::string& out);

  /// The same for a caller's record. kRefused if the cable is not a ZARVEK_PLUGIN; an empty module name is not an error
  /// and is written as such.
  static int Get3rdPartyCableOptions(std::string& out, CableOption c);
  /// Sets c to the cable that the text describes, of any type; chain devices in the text are ignored. kRefused, with c
  /// unchanged, when the text is not understood.
  static int Set3rdPartyCableOptions(CableOption& c, std::string text);

  /// Reads a text into a caller's records. The caller owns the new devices in chain; the pointers it held before are
  /// removed, their records not deleted. cpuJtag becomes 1 when the text uses the processor's own JTAG pins, else 0.
  /// debugDevice is the number in the text; without one, that of the first FPGA in the chain; without an FPGA, 0.
  /// Returns kOk, or kNotUnderstood (3) with all outputs unchanged.
  static int ParseJtagCableInfo(std::string text, CableOption& c, std::vector<JtagOption*>& chain, int& cpuJtag,
                                char& debugDevice);

  /// Appends the text of a cable, a chain and a debug device (none when 0) to out. kCannotBeWritten (1) for a cable
  /// type that has no text; out then ends in " -cable". The caller keeps ownership of the chain.
  static int GenerateJtagCableCmdString(std::string& out, CableType type, unsigned int frequency, std::string port,
                                        std::vector<JtagOption*>& chain, char debugDevice);
  /// The same for a whole cable record.
  static int GenerateJtagCableCmdString(std::string& out, CableOption c, std::vector<JtagOption*>& chain,
                                        char debugDevice);

  /// @}

  /// @name The connect command
  /// @{

  /// Writes the command to the processor's option file, atomically: the file then holds either the new command or its
  /// old content. The folder etc must exist and allow files to be created in it.
  /// - kOk (0): written
  /// - kCannotBeWritten (1): the selected connection or cable cannot be written; the text is
  ///   "Invalid Connect Type for Ovrin Target", "Invalid Connect Type for PowerPC Target" or "Invalid Cable Type"; none
  ///   for a virtual platform connection whose processor is not a soft processor
  /// - kFileNotWritten (4): the file cannot be written and is unchanged; ProcessorInfoImp::command holds the new
  ///   command nevertheless; the text is "Error Opening File"
  int Generate();

  /// Sets command to the connect command. kCannotBeWritten as above, with command unchanged.
  int GenerateCmdString(std::string& command);

  /// @}
};

}  // namespace SdkDebugDialog
