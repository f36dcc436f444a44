#pragma once

// The debug configuration of one processor, as the dialog sees it.

#include <string>
#include <vector>

#include "SdkDebugDialog/Export.h"

class HHSMHwManager;

namespace SdkDebugDialog {

class EngineImp;
struct CableOption;
struct JtagOption;
struct ProcessorInfo;

// Holds everything that the debugger needs to connect to one processor of a hardware design, and turns it into the
// connect command and back.
//
// The way of a caller: GetProcessorList, SetProcessor (or ParseProcessorInfo), getters and setters, Generate (or
// GenerateCmdString).
//
// Results. Operations return 0 for success, 1 for "refused" or "not set", 2 for "does not apply to this processor
// or connection"; where more is returned, the operation says so. A getter that does not return 0 leaves its
// argument as it was, unless it says otherwise. Text of the last failure: GetErrorStr; an operation names the texts
// that it stores, and stores none otherwise. Without a selected processor every operation that works on one
// returns 1 and touches nothing.
//
// "No cable in use" below means: the connection is the simulator, the stub type is STUB_OVER_SERIAL (whatever the
// connection), or the connection is the virtual platform.
//
// One engine is used from one thread at a time, and no two threads may read option text at the same time, be it with
// two engines or with the static operations.
class SDKDEBUGDIALOG_API Engine {
 public:
  // Ways to connect; single bits, so that ProcessorInfo::allowedConnections holds a set of them.
  enum ConnectionType : unsigned int {
    SIMULATOR = 1,
    HARDWARE = 2,  // through the debug module or JTAG
    STUB = 4,      // software stub on the target
    VIRTUAL_PLATFORM = 8,
    ODM_TARGET = 16,          // the debug module itself
    QMTC_TARGET = 32,         // multi-threaded C
    STUB_JTAG_PRESENT = 64,   // mark: a stub can be reached over JTAG
    STUB_UART_PRESENT = 128,  // mark: a stub can be reached over a UART
    DCC_TARGET = 256,         // debug communications channel
    DAP_TARGET = 512,         // debug access port
  };

  enum StubType : unsigned int {
    STUB_OVER_JTAG = 0,
    STUB_OVER_SERIAL = 1,
  };

  enum CableType : unsigned int {
    CABLE_NONE = 0,
    ZARVEK_SVFFILE = 1,
    ZARVEK_PARALLEL4 = 2,
    ZARVEK_PLATFORMUSB = 3,
    ZARVEK_PARALLEL3 = 4,
    ZARVEK_PLUGIN = 5,
    DIGILENT_PLUGIN = 6,
    ZARVEK_TCF = 7,
  };

  // The configuration itself; owned, never null.
  EngineImp* imp;

  // Device part name that goes with the design; for the caller's use.
  std::string partName;

  // No hardware known, no processor selected, no cable.
  Engine();
  ~Engine();
  Engine(const Engine&) = delete;
  Engine& operator=(const Engine&) = delete;

  // --- Error text (needs no processor) ---

  // Replaces the text of the last error. The pointer may be null, which empties it.
  void SetErrorStr(std::string& text);
  void SetErrorStr(const char* text);

  // Copies the text of the last error. A success does not clear it; selecting a processor does.
  void GetErrorStr(std::string& text);

  // --- Processors of the design ---

  // Discovers the processors of the design. Appends the name of every processor to names, debuggable or not, and a
  // record to EngineImp::processorList for each one that can be debugged: those behind debug modules ("opb_odm",
  // "odm") and PowerPC bridges ("jtag_ppc_bridge"), in the order of the debug IP, then soft processors ("ovrin")
  // without a debug module, then Cortex-A9 cores ("hc9_cortexa9"). hw is kept for later questions and must outlive
  // them; null detaches the hardware. Neither names nor the list is emptied first, so that a second discovery
  // appends: one discovery per engine is what is meant. Always 0. An exception, of hw or for want of memory, leaves
  // names and list as they were.
  int GetProcessorList(HHSMHwManager* hw, std::vector<std::string>& names);

  // The same without the names. Returns imp; null would mean that discovery failed, which it does not.
  EngineImp* GetProcessorList(HHSMHwManager* hw);

  // The number (0 to 255) of the processor on its debug link, or -1 with "Processor Instance %s cannot be
  // debugged!!\n" when it is not listed.
  int GetProcessorNr(std::string name);

  // Selects a listed processor, resets the settings, reads its option file (<working directory>/etc/qvt_<name>.opt)
  // and takes the FPU from the hardware description, whatever the file says; then fills info. Names are compared byte
  // for byte.
  //   0  read
  //   4  no option file, or nothing in it: the settings are the defaults
  //   3  the file's command is not understood: the settings are the defaults, the error text tells why if
  //      anything was stored; info is filled
  //   2  not listed: "Processor Instance %s cannot be Debugged !!, Please check \t\t\t\t\tProcessor Connection in
  //      your HWS file\n"; selection and info stay
  // A lone "-" in the text throws std::out_of_range; what was read before it stays.
  int SetProcessor(std::string name, ProcessorInfo& info);

  // The same with the settings taken from a connect command. Results 0, 3 and 2 as above; the text for an unlisted
  // processor is "Processor Instance %s not Found !!, Please check \t\t\t\t\tProcessor Connection in your HWS
  // file\n". The targets odm, dcc, qmtc and dap replace the processor's allowedConnections, and dcc and dap its family
  // and variant; this outlasts a reset and, but for dap, a failed read.
  int ParseProcessorInfo(std::string name, ProcessorInfo& info, std::string command);

  // --- Connection ---

  // Selects the connection. 1 when t has no bit in common with the processor's allowedConnections.
  int SetConnectionType(ConnectionType t);
  // 1 when the connection is 0.
  int GetConnectionType(ConnectionType& t);

  // --- Software stub ---

  // Selects how the stub is reached. A serial stub needs STUB_UART_PRESENT in the selected connection (not in what the
  // processor admits), else 1 with "UART device not present in system"; a JTAG stub needs STUB_JTAG_PRESENT, else 1
  // with "JTAG device not present in system". Other values are stored as they are. A connection with such a mark cannot
  // be written: select STUB | STUB_UART_PRESENT, set the stub type, then select STUB.
  int SetStubType(StubType s);
  // 2 unless the selected connection has the STUB bit.
  int GetStubType(StubType& s);

  // The serial device, such as "/dev/ttyS0"; not checked.
  int SetStubSerialPort(std::string port);
  int GetStubSerialPort(std::string& port);

  // Baud; not checked.
  int SetStubBaudrate(int baud);
  // 1 when the rate is 0.
  int GetStubBaudRate(int& baud);

  // --- Debug device ---

  // Number of the debug device in the JTAG chain; the low 8 bits are kept.
  int SetDebugDevice(int device);
  // -128 to 127. 2 for the simulator connection and for a serial stub; 1 when the number is 0.
  int GetDebugDevice(int& device);

  // Reaches the processor through its own JTAG pins from now on. There is no operation that takes this back; a
  // reset does. Needs no processor. Always 0.
  int SetCpuJtag();

  // --- PowerPC simulator ---

  // Accepts a name and stores nothing: the file can be set only through the option text. Needs no processor.
  // Always 0.
  int SetPPCSimConfigFile(std::string file);
  // 2 unless the processor is a PowerPC with the simulator connection; 1 when there is no file.
  int GetPPCSimConfigFile(std::string& file);

  // --- Base addresses ---
  //
  // Addresses are those of the PowerPC debug address map and must be multiples of 64 KB; otherwise the setter
  // returns 1, keeps the old address and stores its text. Setters look at neither processor nor connection. The
  // getters return 2 unless the processor is a PowerPC with the hardware connection, and 1 when the address is not
  // set (0xFFFFFFFF).

  // Sets the debug address map as well. "Icache Start Address should be aligned at 64k boundry"
  int SetIcacheBaseAddr(unsigned int a);
  // "Dcache Start Address should be aligned at 64k boundry"
  int SetDcacheBaseAddr(unsigned int a);
  // "Itag Start Address should be aligned at 64k boundry"
  int SetITagBaseAddr(unsigned int a);
  // "Dtag Start Address should be aligned at 64k boundry"
  int SetDTagBaseAddr(unsigned int a);
  // "TLB Start Address should be aligned at 64k boundry"
  int SetTlbBaseAddr(unsigned int a);
  // "DCR Start Address should be aligned at 64k boundry"
  int SetDcrBaseAddr(unsigned int a);

  int GetDebugAddressMap(unsigned int& a);
  int GetIcacheBaseAddr(unsigned int& a);
  int GetDcacheBaseAddr(unsigned int& a);
  int GetITagBaseAddr(unsigned int& a);
  int GetDTagBaseAddr(unsigned int& a);
  int GetTlbBaseAddr(unsigned int& a);
  int GetDcrBaseAddr(unsigned int& a);

  // Base of the on-chip instruction memory. 2 unless the processor is a ppc405 with the hardware connection; 1 when
  // not set. It is set through the option text alone.
  int GetISOCMBaseAddr(unsigned int& a);

  // Read-only memory: base and size in bytes, not checked; any processor.
  int SetROMem(unsigned int start, unsigned int size);
  // 2 unless the connection is hardware; 1 when start is not set.
  int GetROMem(unsigned int& start, unsigned int& size);

  // Marks the debug address map and its six bases as not set; any processor.
  int UnSetDebugAddressMap();

  // --- Cable ---
  //
  // The setters need no processor and check nothing; always 0. The getters return 2 with no cable in use.

  // Makes the cable one of type t with that type's default frequency and port; everything else in it is emptied.
  int SetCableType(CableType t);
  int GetCableType(CableType& t);

  // Hz. The getter returns 1 when the frequency is 0, and stores the 0.
  int SetCableSpeed(unsigned int f);
  int GetCableSpeed(unsigned int& f);

  // The getter returns 1 when the port is empty, and stores the empty text.
  int SetCablePort(std::string p);
  int GetCablePort(std::string& p);

  // The electronic serial number. The getter returns 1 when it is empty, and stores the empty text.
  int SetCableESN(std::string e);
  int GetCableESN(std::string& e);

  // A fixed answer whatever the name: the value 1.
  CableType GetCableType(std::string name);
  // A fixed answer whatever the type: an empty text.
  std::string GetCableName(CableType t);

  // The catalogue (CableCatalogue.h) as members.
  std::string GetSupportedCableSpeed(CableType t);
  unsigned int GetDefaultCableSpeed(CableType t);
  std::string GetDefaultCablePort(CableType t);

  // Fill a caller's cable record. SetZarvekCableOptions sets type, frequency (Hz) and port, and returns 1 with the
  // record untouched for ZARVEK_PLUGIN. SetDigilentCableOptions sets the type alone, and returns 1 with the record
  // untouched unless t is DIGILENT_PLUGIN. Nothing is checked.
  static int SetZarvekCableOptions(CableOption& c, CableType t, unsigned int frequency, std::string port);
  static int SetDigilentCableOptions(CableOption& c, CableType t, unsigned int frequency, std::string port);

  // --- JTAG chain ---

  // Makes the chain a copy of v; the records are shared, and none is destroyed. With the engine's own chain as v the
  // chain comes out empty. Needs no processor. Always 0.
  int SetJtagChainOptions(std::vector<JtagOption*>& v);
  // Copies the chain. 2 for the simulator connection and for STUB_OVER_SERIAL, even when there are devices; 1 when
  // the chain is empty.
  int GetJtagChainOptions(std::vector<JtagOption*>& v);

  // --- Cable and chain as text ---
  //
  // The text is the cable and chain part of a connect command: the options -cable, -configdevice, -debugdevice and
  // -bscan. A lone "-" in a text that is read throws std::out_of_range.

  // Reads a text into the live configuration: whatever it sets is applied, even another cable type, and what was
  // applied before a failure stays. 1 when the text is not understood, with the reader's text if it stored one, and for
  // any but a ZARVEK_PLUGIN cable, with "Internal Error: Other Cable Options applies only for ZARVEK_PLUGIN cable
  // type".
  int SetPluginCableOptions(std::string text);
  // Answers "-cable type zarvek_plugin" with module and arguments of the live cable. 2 for any but a ZARVEK_PLUGIN
  // cable; 1, with out emptied, when no module is named. Needs no processor.
  int GetPluginCableOptions(std::string& out);

  // The same for a caller's record. 1 for any but a ZARVEK_PLUGIN cable; a module without a name is written as it is.
  static int Get3rdPartyCableOptions(std::string& out, CableOption c);
  // Makes c the cable that the text describes, of any type; devices of a chain in the text are passed over. 1, with c
  // untouched, when the text is not understood.
  static int Set3rdPartyCableOptions(CableOption& c, std::string text);

  // Reads a text into a caller's records. The devices in chain belong to the caller from then on; pointers that were
  // in it are dropped, not destroyed. cpuJtag becomes 1 when the text uses the processor's own JTAG pins, else 0.
  // debugDevice is the text's, or the number of the first FPGA in the chain when the text has none, or 0. Returns 0,
  // or 3 with all outputs untouched when the text is not understood.
  static int ParseJtagCableInfo(std::string text, CableOption& c, std::vector<JtagOption*>& chain, int& cpuJtag,
                                char& debugDevice);

  // Append the text of a cable, a chain and a debug device (none when 0) to out. 1 for a cable that cannot be written;
  // out then ends in " -cable". The chain stays the caller's.
  static int GenerateJtagCableCmdString(std::string& out, CableType type, unsigned int frequency, std::string port,
                                        std::vector<JtagOption*>& chain, char debugDevice);
  static int GenerateJtagCableCmdString(std::string& out, CableOption c, std::vector<JtagOption*>& chain,
                                        char debugDevice);

  // --- The connect command ---

  // Writes the command to the processor's option file, whole or not at all. The folder etc must exist, and files must
  // be allowed to be created in it.
  //   0  written
  //   1  the selected connection or cable cannot be written; "Invalid Connect Type for Ovrin Target", "Invalid Connect
  //      Type for PowerPC Target", "Invalid Cable Type", or no text for a virtual platform that is no soft processor
  //   4  "Error Opening File": the file cannot be written; the record's command is the new one all the same
  int Generate();

  // Answers the command. 1 as above; command is untouched then.
  int GenerateCmdString(std::string& command);
};

}  // namespace SdkDebugDialog
