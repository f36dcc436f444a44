// Out of memory: every operation is repeated with each of its allocations failing in turn.

#include <gtest/gtest.h>

#include <filesystem>
#include <new>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "SdkDebugDialog/CableCatalogue.h"
#include "SdkDebugDialog/Configuration.h"
#include "SdkDebugDialog/OptionFile.h"
#include "SdkDebugDialog/Regions.h"
#include "model/processor_list.h"
#include "options/QvtOption_Parser.h"
#include "platform/ComMsgMgr.h"
#include "platform/DesignFile.h"
#include "tests/faults/heap.h"
#include "tests/options/work_folder.h"
#include "tests/support/FakeHardware.h"
#include "tests/support/SelectedEngine.h"

namespace SdkDebugDialog {
namespace {

// Too long for the small-string buffer, so that every copy allocates.
constexpr char kSoft[] = "soft_processor_behind_the_debug_module";
constexpr char kAlone[] = "soft_processor_without_a_debug_module";
constexpr char kPowerPC[] = "powerpc_processor_behind_the_bridge";
constexpr char kArm[] = "cortexa9_processor_of_the_design";

constexpr char kDesign[] = R"({"instances": [
  {"name": "a_soft_processor_of_the_design", "type": "ovrin", "class": "processor"},
  {"name": "a_debug_module_of_the_design", "type": "odm", "class": "debug",
   "processors": ["a_soft_processor_of_the_design"]}]})";

void silent(int /*type*/, const char* /*id*/, unsigned int /*mask*/, const char* /*text*/) {}

// A design, an engine, and the objects that operations return. The destructor releases all of them.
struct Session {
  FakeHardware hw;
  DiscoveredEngine e;
  Engine& engine = e.engine;
  EngineImp& imp = e.imp;

  std::string text;
  std::vector<std::string> names;
  std::vector<JtagOption*> chain;
  CableOption cable;
  ProcessorInfo info;
  ProcessorInfoImp* made = nullptr;
  int cpuJtag = 0;
  char debugDevice = 0;

  Session() {
    ComMsgMgr::setSink(silent);
    hw.processors = {kSoft, kAlone, kPowerPC, kArm};
    hw.debugIps = {"the_debug_module_of_the_design", "the_powerpc_bridge_of_the_design"};
    hw.ipTypes = {{kSoft, "ovrin"},
                  {kAlone, "ovrin"},
                  {kPowerPC, "a_powerpc440_of_the_virtual_kind"},
                  {kArm, "hc9_cortexa9"},
                  {hw.debugIps[0], "odm"},
                  {hw.debugIps[1], "jtag_ppc_bridge"},
                  {"the_uart_of_the_soft_processor", "tfb_serial_lite"},
                  {"the_fpu_of_the_powerpc_processor", "apu_flt_varnel5"}};
    hw.reached = {{hw.debugIps[0], {kSoft}}, {hw.debugIps[1], {kPowerPC}}};
    hw.peripherals = {{kSoft, {"the_uart_of_the_soft_processor"}}, {kPowerPC, {"the_fpu_of_the_powerpc_processor"}}};
    hw.parameters = {{{"the_fpu_of_the_powerpc_processor", "C_DOUBLE_PRECISION"}, "1"}};
  }
  ~Session() {
    release();
    ComMsgMgr::setSink(nullptr);
    std::string().swap(newoption_token);
  }
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  // Undoes everything but discovery.
  void release() {
    e.release_chain();
    for (const JtagOption* const device : chain) delete device;
    chain.clear();
    if (imp.currentProcessor == made) imp.currentProcessor = nullptr;
    delete made;
    made = nullptr;
    text.clear();
    names.clear();
    engine.SetErrorStr("");
  }

  int parse(const char* name, const char* command) { return engine.ParseProcessorInfo(name, info, command); }
};

void describe(std::string& out, const CableOption& cable) {
  out += "\ncable " + std::to_string(cable.type) + ' ' + std::to_string(cable.frequency);
  for (const std::string* const field :
       {&cable.port, &cable.esn, &cable.fname, &cable.modulename, &cable.modulearg, &cable.url}) {
    out += '|' + *field;
  }
}

void describe(std::string& out, const std::vector<JtagOption*>& chain) {
  out += "\nchain";
  for (const JtagOption* const device : chain) out += ' ' + std::to_string(device->devicenr) + ' ' + device->partname;
}

// The whole state of a session as text.
std::string describe(Session& s) {
  std::string out = "error " + s.e.error() + "\ntext " + s.text + "\nnames";
  for (const std::string& name : s.names) out += ' ' + name;
  out += "\nlist";
  for (const ProcessorInfoImp* const processor : s.imp.processorList) {
    out += ' ' + processor->name + ' ' + std::to_string(processor->allowedConnections);
  }
  if (const ProcessorInfoImp* const processor = s.imp.currentProcessor; processor != nullptr) {
    out += "\nselected " + processor->name + '|' + processor->command + '|' + processor->stubSerialPort + '|' +
           processor->simHost + '|' + processor->simConfigFile + '|' + processor->cpuVersion + '|' +
           std::to_string(processor->connectionType) + ' ' + std::to_string(processor->fpuType);
  }
  describe(out, *s.imp.cable);
  describe(out, s.imp.jtagChain);
  describe(out, s.cable);
  describe(out, s.chain);
  std::string command;
  const int written = s.engine.GenerateCmdString(command);
  out += "\nwritten " + std::to_string(written) + ' ' + command;
  return out + "\nfile " + WorkFolder::read("etc/qvt_" + std::string(kSoft) + ".opt");
}

void nothing(Session& /*s*/) {}

struct Operation {
  const char* name;
  int (*run)(Session& s);
  int status;
  // Sets up the operation. Called again after a failure.
  void (*prepare)(Session& s) = nothing;
  bool whole = false;  // a failure must leave the state unchanged
};

std::ostream& operator<<(std::ostream& out, const Operation& operation) { return out << operation.name; }

constexpr char kOvHardware[] =
    "connect ov odm -cable type zarvek_plugin modulename a_module_with_a_long_name modulearg its_first_long_argument "
    "modulearg its_second_long_argument url a_locator_that_is_rather_long -configdevice devicenr 1 partname "
    "a_part_with_a_long_name irlength 16 idcode 0x0a001093 -configdevice devicenr 2 partname another_part_with_a_name "
    "irlength 10 idcode 0x0a001093 -debugdevice deviceNr 2 cpunr 1 cpu_version a_version_with_a_long_name";
constexpr char kOvSerial[] = "connect ov stub -comm serial -port /dev/a_serial_line_with_a_name -baud 115200";
constexpr char kPpcHardware[] =
    "connect ppc hw -cable type zarvek_platformusb port a_port_with_a_rather_long_name frequency 6000000 -configdevice "
    "devicenr 1 partname a_part_with_a_long_name irlength 10 idcode 0x0a001093 -debugdevice deviceNr 1 cpunr 1 fpuType "
    "sp icacheStartAdr 0x10000";
constexpr char kPpcSimulator[] = "connect ppc sim -ipcport a_host_with_a_rather_long_name:6471";
constexpr char kArmHardware[] =
    "connect arm hw -configdevice devicenr 1 partname a_part_with_a_long_name irlength 4 idcode 0x0a001093 "
    "-debugdevice cpunr 1";
constexpr char kVirtualPlatform[] = "vpconnect ov -ipcport a_host_with_a_rather_long_name:6471";
constexpr char kChainText[] =
    "-cable type zarvek_parallel3 esn a_serial_number_of_a_cable -configdevice devicenr 1 partname "
    "a_part_with_a_long_name irlength 16 idcode 0x0a001093 isfpga 1 -configdevice devicenr 2 partname "
    "another_part_with_a_name irlength 10 idcode 0x0a001093";
constexpr char kPluginText[] =
    "-cable type zarvek_plugin modulename a_module_with_a_long_name modulearg its_first_long_argument modulearg "
    "its_second_long_argument -debugdevice deviceNr 1";

void discover(Session& s) {
  if (s.imp.processorList.empty()) s.engine.GetProcessorList(&s.hw);
}

template <const auto& name, const auto& command>
void parsed(Session& s) {
  discover(s);
  s.e.release_chain();
  s.parse(name, command);
}

template <const auto& name, const auto& command>
int parse(Session& s) {
  return s.parse(name, command);
}

template <const auto& command>
int make(Session& s) {
  s.made = s.imp.GetProcessorInfo(command);
  return s.made != nullptr ? 0 : 1;
}

int write(Session& s) { return s.engine.GenerateCmdString(s.text); }

// Stores the command in the option file.
template <const auto& command>
void stored(Session& s) {
  discover(s);
  WorkFolder::write("etc/qvt_" + std::string(kSoft) + ".opt", command);
}

// A device and a cable that the caller owns.
void own_cable(Session& s) {
  s.cable.CableOptionInit(Engine::ZARVEK_PLUGIN);
  s.cable.modulename = "a_module_with_a_long_name";
  s.cable.modulearg = "its_first_long_argument;its_second_long_argument";
}
void own_chain(Session& s) {
  s.chain.push_back(new JtagOption);
  s.chain.back()->partname = "a_part_with_a_long_name";
}

constexpr char kUnknownOption[] = "connect ov odm -an_option_that_nobody_knows";
constexpr char kUnknownKeyword[] =
    "connect ov odm -configdevice devicenr 1 partname a_part_with_a_long_name a_keyword_that_nobody_knows 1";
constexpr char kOvSimulator[] = "connect ov sim -memsize 64";
constexpr char kOdm[] = "connect odm -cable type zarvek_platformusb port a_port_with_a_rather_long_name";
constexpr char kDap[] = "connect dap hw -cable type zarvek_platformusb port a_port_with_a_rather_long_name";
constexpr char kDcc[] = "connect dcc -cable type zarvek_platformusb port a_port_with_a_rather_long_name";
constexpr char kQmtc[] = "connect qmtc -configdevice devicenr 1 partname a_part_with_a_long_name irlength 4";
constexpr char kR5[] = "connect r5 hw -configdevice devicenr 1 partname a_part_with_a_long_name irlength 4";
constexpr char kEmpty[] = "";

constexpr Operation kOperations[] = {
    {"MakeAnEngine", [](Session&) { return HeldEngine().error().empty() ? 0 : 1; }, 0},

    {"GetProcessorList", [](Session& s) { return s.engine.GetProcessorList(&s.hw, s.names); }, 0, nothing, true},
    {"GetProcessorListWithoutNames", [](Session& s) { return s.engine.GetProcessorList(&s.hw) == &s.imp ? 0 : 1; }, 0,
     nothing, true},
    {"GetProcessorNr", [](Session& s) { return s.engine.GetProcessorNr(kPowerPC); }, 1, discover},
    {"GetProcessorNrOfAnother", [](Session& s) { return s.engine.GetProcessorNr("a_processor_of_another_design"); }, -1,
     discover},
    {"find_listed",
     [](Session& s) { return SdkDebugDialog::find_listed(s.imp, kArm) == s.imp.processorList.back() ? 0 : 1; }, 0,
     discover},

    {"ParseOvHardware", parse<kSoft, kOvHardware>, 0, discover},
    {"ParseOvSerialStub", parse<kSoft, kOvSerial>, 0, discover},
    {"ParseOvSimulator", parse<kSoft, kOvSimulator>, 0, discover},
    {"ParsePpcHardware", parse<kPowerPC, kPpcHardware>, 0, discover},
    {"ParsePpcSimulator", parse<kPowerPC, kPpcSimulator>, 0, discover},
    {"ParseArmHardware", parse<kArm, kArmHardware>, 0, discover},
    {"ParseUnknownOption", parse<kSoft, kUnknownOption>, 3, discover},
    {"ParseUnknownKeyword", parse<kSoft, kUnknownKeyword>, 3, discover},
    {"ParseForAnother", [](Session& s) { return s.parse("a_processor_of_another_design", kOvHardware); }, 2, discover},
    {"SetProcessor", [](Session& s) { return s.engine.SetProcessor(kSoft, s.info); }, 0, stored<kOvHardware>},
    {"SetProcessorWithoutAFile", [](Session& s) { return s.engine.SetProcessor(kSoft, s.info); }, 4, stored<kEmpty>},
    {"SetProcessorNotUnderstood", [](Session& s) { return s.engine.SetProcessor(kSoft, s.info); }, 3,
     stored<kUnknownOption>},
    {"SetAnotherProcessor", [](Session& s) { return s.engine.SetProcessor("a_processor_of_another_design", s.info); },
     2, discover},

    {"GetProcessorInfoOv", make<kOvHardware>, 0, discover},
    {"GetProcessorInfoPpc", make<kPpcHardware>, 0, discover},
    {"GetProcessorInfoArm", make<kArmHardware>, 0, discover},
    {"GetProcessorInfoR5", make<kR5>, 0, discover},
    {"GetProcessorInfoVirtualPlatform", make<kVirtualPlatform>, 0, discover},
    {"GetProcessorInfoOdm", make<kOdm>, 0, discover},
    {"GetProcessorInfoDap", make<kDap>, 0, discover},
    {"GetProcessorInfoDcc", make<kDcc>, 0, discover},
    {"GetProcessorInfoQmtc", make<kQmtc>, 0, discover},
    {"GetProcessorInfoNotUnderstood", make<kUnknownKeyword>, 1, discover},

    {"GenerateCmdStringOvHardware", write, 0, parsed<kSoft, kOvHardware>},
    {"GenerateCmdStringOvSerialStub", write, 0, parsed<kSoft, kOvSerial>},
    {"GenerateCmdStringPpcHardware", write, 0, parsed<kPowerPC, kPpcHardware>},
    {"GenerateCmdStringPpcSimulator", write, 0, parsed<kPowerPC, kPpcSimulator>},
    {"GenerateCmdStringArmHardware", write, 0, parsed<kArm, kArmHardware>},
    {"GenerateCmdStringVirtualPlatform", write, 0,
     [](Session& s) {
       s.release();
       s.made = s.imp.GetProcessorInfo(kVirtualPlatform);
     }},
    {"GenerateCmdStringRefused", write, 1,
     [](Session& s) {
       parsed<kSoft, kOvHardware>(s);
       s.imp.currentProcessor->connectionType = 3;
     }},
    {"Generate", [](Session& s) { return s.engine.Generate(); }, 0, parsed<kSoft, kOvHardware>},
    {"GenerateOverAnother", [](Session& s) { return s.engine.Generate(); }, 0,
     [](Session& s) {
       stored<kOvSimulator>(s);
       parsed<kSoft, kOvHardware>(s);
       WorkFolder::write("etc/.qvt_new.4711.123456789", "half a te");
     }},
    {"GenerateThroughALink", [](Session& s) { return s.engine.Generate(); }, 0,
     [](Session& s) {
       parsed<kSoft, kOvHardware>(s);
       const std::string file = "etc/qvt_" + std::string(kSoft) + ".opt";
       std::filesystem::remove(file);
       std::filesystem::create_symlink("a_file_that_the_link_names", file);
     }},
    {"GenerateWithoutAFolder",
     [](Session& s) {
       s.imp.currentProcessor->name = "no/such/folder";
       return s.engine.Generate();
     },
     4,
     [](Session& s) {
       s.release();
       s.made = s.imp.GetProcessorInfo(kOvHardware);
     }},

    {"ParseJtagCableInfo",
     [](Session& s) { return Engine::ParseJtagCableInfo(kChainText, s.cable, s.chain, s.cpuJtag, s.debugDevice); }, 0,
     nothing, true},
    {"ParseJtagCableInfoNotUnderstood",
     [](Session& s) { return Engine::ParseJtagCableInfo(kOvHardware, s.cable, s.chain, s.cpuJtag, s.debugDevice); }, 3},
    {"GenerateJtagCableCmdString",
     [](Session& s) { return Engine::GenerateJtagCableCmdString(s.text, s.cable, s.chain, '\1'); }, 0,
     [](Session& s) {
       own_cable(s);
       own_chain(s);
     }},
    {"GenerateJtagCableCmdStringOfAType",
     [](Session& s) {
       return Engine::GenerateJtagCableCmdString(s.text, Engine::ZARVEK_PARALLEL4, 5000000,
                                                 "a_port_with_a_rather_long_name", s.chain, '\1');
     },
     0, own_chain},
    {"SetPluginCableOptions", [](Session& s) { return s.engine.SetPluginCableOptions(kPluginText); }, 0,
     [](Session& s) {
       parsed<kSoft, kOvHardware>(s);
       s.engine.SetCableType(Engine::ZARVEK_PLUGIN);
     }},
    {"SetPluginCableOptionsOfAnotherCable", [](Session& s) { return s.engine.SetPluginCableOptions(kPluginText); }, 1},
    {"GetPluginCableOptions", [](Session& s) { return s.engine.GetPluginCableOptions(s.text); }, 0,
     parsed<kSoft, kOvHardware>},
    {"Set3rdPartyCableOptions", [](Session& s) { return Engine::Set3rdPartyCableOptions(s.cable, kPluginText); }, 0,
     nothing, true},
    {"Get3rdPartyCableOptions", [](Session& s) { return Engine::Get3rdPartyCableOptions(s.text, s.cable); }, 0,
     own_cable},
    {"SetZarvekCableOptions",
     [](Session& s) {
       return Engine::SetZarvekCableOptions(s.cable, Engine::ZARVEK_PARALLEL4, 1, "a_port_with_a_rather_long_name");
     },
     0},
    {"SetJtagChainOptions",
     [](Session& s) {
       const int status = s.engine.SetJtagChainOptions(s.chain);
       s.chain.clear();  // the engine's chain holds the devices now
       return status;
     },
     0, own_chain},
    {"GetJtagChainOptions",
     [](Session& s) {
       std::vector<JtagOption*> shared;
       const int status = s.engine.GetJtagChainOptions(shared);
       return shared == s.imp.jtagChain ? status : -1;
     },
     0, parsed<kSoft, kOvHardware>},

    {"ReadOptionFile",
     [](Session& s) { return (s.text = read_option_file(option_file_path(kSoft)).value().value()).empty() ? 1 : 0; }, 0,
     stored<kOvHardware>},
    {"ReplaceOptionFile",
     [](Session&) { return replace_option_file(option_file_path(kSoft), kOvHardware, kOvSimulator) ? 0 : 1; }, 0,
     stored<kOvHardware>},
    {"ReplaceOptionFileThatHasChanged",
     [](Session& s) {
       s.text = replace_option_file(option_file_path(kSoft), std::nullopt, kOvSimulator).error().message;
       return 0;
     },
     0, stored<kOvHardware>},
    {"Regions",
     [](Session&) { return static_cast<int>(regions(Configuration::read({}, kPpcHardware).value()).size()); }, 1},

    {"SetErrorStr", [](Session& s) { return s.engine.SetErrorStr("a text that is longer than a short one"), 0; }, 0},
    {"GetErrorStr", [](Session& s) { return s.engine.GetErrorStr(s.text), 0; }, 0,
     [](Session& s) { s.engine.SetErrorStr("a text that is longer than a short one"); }},
    {"SetIcacheBaseAddr", [](Session& s) { return s.engine.SetIcacheBaseAddr(1); }, 1, parsed<kPowerPC, kPpcHardware>},
    {"SetStubSerialPort", [](Session& s) { return s.engine.SetStubSerialPort("/dev/a_serial_line_with_a_name"); }, 0,
     parsed<kSoft, kOvSerial>},
    {"GetStubSerialPort", [](Session& s) { return s.engine.GetStubSerialPort(s.text); }, 0, parsed<kSoft, kOvSerial>},
    {"SetStubType", [](Session& s) { return s.engine.SetStubType(Engine::STUB_OVER_SERIAL); }, 1,
     parsed<kSoft, kOvHardware>},
    {"SetCablePort", [](Session& s) { return s.engine.SetCablePort("a_port_with_a_rather_long_name"); }, 0},
    {"GetCablePort", [](Session& s) { return s.engine.GetCablePort(s.text); }, 0, parsed<kPowerPC, kPpcHardware>},
    {"SetCableESN", [](Session& s) { return s.engine.SetCableESN("a_serial_number_of_a_cable"); }, 0},
    {"GetCableESN", [](Session& s) { return s.engine.GetCableESN(s.text); }, 0,
     [](Session& s) {
       parsed<kPowerPC, kPpcHardware>(s);
       s.engine.SetCableESN("a_serial_number_of_a_cable");
     }},
    {"GetSupportedCableSpeed",
     [](Session& s) { return (s.text = s.engine.GetSupportedCableSpeed(Engine::ZARVEK_PLATFORMUSB)).empty() ? 1 : 0; },
     0},
    {"ClassifyMemory",
     [](Session& s) { return (s.text = s.imp.ClassifyMemory("ppc440_ctl_ddr2_x")).size() == 8 ? 0 : 1; }, 0},
    {"GetFPUType", [](Session& s) { return s.imp.GetFPUType(); }, 0, parsed<kPowerPC, kPpcHardware>},
    {"IsStubSerialConnect", [](Session& s) { return static_cast<int>(s.imp.IsStubSerialConnect(kSoft)); }, 132,
     discover},

    {"ParseADesign",
     [](Session& s) {
       DesignFile::parse(kDesign, "a_design_with_a_rather_long_name").getProcessorInstances(s.names, false);
       return 0;
     },
     0},
    {"LoadADesign",
     [](Session& s) {
       DesignFile::load("a_design_with_a_rather_long_name.json").getProcessorInstances(s.names, false);
       return 0;
     },
     0, [](Session&) { WorkFolder::write("a_design_with_a_rather_long_name.json", kDesign); }},
};

class EveryAllocation : public testing::TestWithParam<Operation> {
 protected:
  // Stores the state after the operation without a failure.
  void SetUp() override {
    const Operation& operation = GetParam();
    for (int warm = 0; warm < 2; ++warm) {
      Session s;
      operation.prepare(s);
      ASSERT_EQ(operation.run(s), operation.status) << s.e.error();
      m_expected = describe(s);
      expect_folder();
    }
  }
  const std::string& expected() const { return m_expected; }
  // A failed write leaves no temporary file.
  static void expect_folder() {
    for (const std::string& name : WorkFolder::list("etc")) EXPECT_FALSE(name.starts_with(".qvt_new")) << name;
  }

  void clean() {
    for (const std::string& name : WorkFolder::list(m_folder.path() / "etc")) {
      std::filesystem::remove(m_folder.path() / "etc" / name);
    }
  }

 private:
  WorkFolder m_folder;
  std::string m_expected;
};

// Runs the operation with its n-th allocation failing; false when it makes fewer. After a failure the same operation
// must succeed on the same engine.
bool refuse(std::size_t n, const Operation& operation, const std::string& expected, int& thrown) {
  Session s;
  operation.prepare(s);
  // Only when needed: describe() writes the command, which changes the record.
  const std::string before = operation.whole ? describe(s) : "";
  int status = operation.status;
  bool happened = false;
  bool threw = false;
  try {
    const heap::Refusal refusal(n);
    // Must be read before the Refusal ends, also when the operation throws.
    struct Look {
      bool& happened;
      ~Look() { happened = heap::Refusal::happened(); }
    };
    const Look look{happened};
    status = operation.run(s);
  } catch (const std::bad_alloc&) {
    threw = true;
    ++thrown;
  }
  if (!threw && status == operation.status) {
    EXPECT_EQ(describe(s), expected);
    return happened;
  }
  if (!threw) {
    // A write may report the failure as an error instead of an exception.
    EXPECT_EQ(status, 4);
    EXPECT_EQ(s.e.error(), "Error Opening File");
  }
  if (operation.whole) {
    EXPECT_EQ(describe(s), before);
  }
  s.release();
  operation.prepare(s);
  EXPECT_EQ(operation.run(s), operation.status);
  EXPECT_EQ(describe(s), expected);
  return happened;
}

TEST_P(EveryAllocation, ThatFailsIsReportedAndLeavesTheEngineUsable) {
  const Operation& operation = GetParam();
  std::size_t n = 1;
  int thrown = 0;
  for (bool happened = true; happened; ++n) {
    SCOPED_TRACE("allocation " + std::to_string(n));
    clean();
    const std::size_t before = heap::blocks();
    happened = refuse(n, operation, expected(), thrown);
    EXPECT_EQ(heap::blocks(), before) << "something leaks";
    expect_folder();
    if (HasFailure() || n > 10000) break;
  }
  EXPECT_GT(n, 2U) << "nothing was refused";
  RecordProperty("allocations", static_cast<int>(n - 2));
  RecordProperty("thrown", thrown);
}

INSTANTIATE_TEST_SUITE_P(Of, EveryAllocation, testing::ValuesIn(kOperations),
                         [](const auto& instance) { return instance.param.name; });

}  // namespace
}  // namespace SdkDebugDialog
