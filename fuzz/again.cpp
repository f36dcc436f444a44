#include "fuzz/again.h"

#include <algorithm>
#include <initializer_list>
#include <string_view>

#include "SdkDebugDialog/CableCatalogue.h"
#include "SdkDebugDialog/ProcessorInfo.h"
#include "fuzz/check.h"
#include "fuzz/error_text.h"
#include "fuzz/input.h"
#include "fuzz/lone_dash.h"
#include "model/processor_kind.h"
#include "model/processor_list.h"
#include "options/QvtOption_Parser.h"
#include "tests/support/DesignedEngine.h"

using namespace SdkDebugDialog;

namespace {

struct Written {
  const EngineImp& imp;  // the engine that wrote the text
  Way way;
  const std::string& text;
  const ProcessorInfoImp* listed;  // the processor's record from the design; null without a design

  const ProcessorInfoImp& processor() const { return *imp.currentProcessor; }
  const CableOption& cable() const { return *imp.cable; }
  bool virtual_platform() const { return processor().connectionType == Engine::VIRTUAL_PLATFORM; }
  bool hardware() const { return processor().connectionType == Engine::HARDWARE; }
  bool stub() const { return processor().connectionType == Engine::STUB; }
  bool through_cable() const { return hardware() || (stub() && processor().stubType == Engine::STUB_OVER_JTAG); }
  bool soft() const { return processor().procFamily == kFamilySoft; }
};

bool is_zarvek(const CableOption& cable) {
  return cable.type == Engine::ZARVEK_PARALLEL3 || cable.type == Engine::ZARVEK_PARALLEL4 ||
         cable.type == Engine::ZARVEK_PLATFORMUSB;
}

// --- Settings that cannot be written as values ---

constexpr std::string_view kSpace = " \t\n\v\f\r";

bool is_token(std::string_view text) {
  return !text.empty() && text.find_first_of(" \t") == text.npos && kSpace.find(text.front()) == kSpace.npos &&
         kSpace.find(text.back()) == kSpace.npos;
}

bool is_value(std::string_view text) {
  return is_token(text) && (text[0] != '-' || (text.size() > 1 && text[1] >= '0' && text[1] <= '9'));
}

bool are_values(std::string_view arguments) {
  for (std::size_t end = 0; end != arguments.npos;) {
    end = arguments.find(';');
    if (!is_value(arguments.substr(0, end))) return false;
    if (end != arguments.npos) arguments.remove_prefix(end + 1);
  }
  return true;
}

bool cable_has_odd_text(const CableOption& cable) {
  if (is_zarvek(cable)) return !is_value(cable.esn.empty() ? cable.port : cable.esn);
  if (cable.type != Engine::ZARVEK_PLUGIN) return false;
  return !is_value(cable.modulename) || (!cable.modulearg.empty() && !are_values(cable.modulearg));
}

bool has_odd_text(const Written& w) {
  const ProcessorInfoImp& p = w.processor();
  const std::string host = p.simHost + ":";
  if (w.virtual_platform()) return p.vpConfigured == 0 && !p.simHost.empty() && !is_token("-" + host);
  if (w.through_cable()) {
    return cable_has_odd_text(w.cable()) ||
           std::ranges::any_of(w.imp.jtagChain, [](const JtagOption* device) { return !is_value(device->partname); });
  }
  if (w.stub()) return !is_value(p.stubSerialPort);
  if (w.soft()) return false;
  if (!p.simConfigFile.empty()) return !is_token(p.simConfigFile) || p.simConfigFile == "-";
  return !p.simHost.empty() && (!is_token(host) || host.find(':') != host.size() - 1);
}

// --- The other exceptions ---

bool has_own_pins(const Written& w) { return w.through_cable() && w.imp.cpuJtag == 1; }

bool has_joined_port(const Written& w) {
  return w.virtual_platform() && w.processor().vpConfigured == 0 && !w.processor().simHost.empty();
}

bool has_bare_config(const Written& w) {
  return w.virtual_platform() && w.processor().vpConfigured != 0 && w.processor().vpCycleApproximate == 0;
}

bool ends_in_unchecked_frequency(const Written& w) {
  if (!w.through_cable() || !is_zarvek(w.cable()) || !w.cable().esn.empty()) return false;
  for (const std::string_view after : {" -bscan ", " -configdevice ", " -debugdevice "}) {
    if (w.text.find(after) != w.text.npos) return false;
  }
  const std::string frequency = std::to_string(w.cable().frequency);
  return (" " + getcable_supported_frequency(w.cable().type) + " ").find(" " + frequency + " ") == std::string::npos;
}

bool is_off_boundary(const Written& w) {
  const ProcessorInfoImp& p = w.processor();
  if (w.way == Way::cable || !w.hardware() || p.procFamily != kFamilyPowerPC) return false;
  return std::ranges::any_of(std::initializer_list<std::uint32_t>{p.icacheStartAddr, p.itagStartAddr, p.dcacheStartAddr,
                                                                  p.dtagStartAddr, p.tlbStartAddr, p.dcrStartAddr},
                             [](std::uint32_t base) { return base != kAddressNotSet && base % 0x10000 != 0; });
}

bool is_not_admitted(const Written& w) {
  return w.listed != nullptr && (w.listed->allowedConnections & w.processor().connectionType) == 0;
}

bool is_another_kind(const Written& w) {
  return w.listed != nullptr && w.listed->procFamily != w.processor().procFamily;
}

bool is_undescribed_arm(const Written& w) { return w.way == Way::described && w.processor().procFamily == kFamilyArm; }

bool has_lost_onchip_memory(const Written& w) {
  const ProcessorInfoImp& p = w.processor();
  return w.way != Way::cable && w.through_cable() && p.procVariant == kVariantPpc405 &&
         p.isocmStartAddr != kAddressNotSet && (w.listed == nullptr || w.listed->procVariant != kVariantPpc405);
}

bool has_another_fpu(const Written& w) {
  const ProcessorInfoImp& p = w.processor();
  return w.listed != nullptr && w.hardware() && p.procFamily == kFamilyPowerPC && p.fpuType != w.listed->fpuType;
}

bool is_cut(const Written& w) { return w.way == Way::file && w.text.size() > 1023; }

// --- The table ---

// The result of reading a written text and writing it again.
enum class Fate {
  refused,   // the text cannot be read
  changed,   // the second text differs
  whatever,  // any result
};

// docs/connect-command.md documents each of these.
constexpr struct {
  bool (*applies)(const Written&);
  Fate fate;
  const char* reason;
} kExceptions[] = {
    {has_odd_text, Fate::whatever, "no quoting: an empty text, or one with blanks or a leading dash, is no value"},
    {is_cut, Fate::whatever, "only 1,023 characters of an option file's line are read"},
    {is_another_kind, Fate::whatever, "dap and dcc change the processor to an ARM core, which is not written"},
    {is_undescribed_arm, Fate::whatever, "an ARM core is written as a PowerPC, and may match one in the design"},
    {is_not_admitted, Fate::refused, "the processor in the design does not admit the selected connection"},
    {has_own_pins, Fate::refused, "'jtagport cpu' is written as 'jtagpin cpujtag'"},
    {has_joined_port, Fate::refused,
     "the virtual platform's host and port are written without a blank after '-ipcport'"},
    {has_bare_config, Fate::refused, "'-config' is written without its value"},
    {ends_in_unchecked_frequency, Fate::refused, "the frequency is checked only if the cable is the last option"},
    {is_off_boundary, Fate::refused, "AssignAddressMap does not check the alignment of the base"},
    {has_another_fpu, Fate::changed, "the FPU is taken from the design after every successful read"},
    {has_lost_onchip_memory, Fate::changed, "only a ppc405 has on-chip memory, and the processor type is not written"},
};

struct Expected {
  bool refused = false;
  bool changed = false;
  bool whatever = false;
};

Expected expected_of(const Written& w) {
  Expected expected;
  for (const auto& exception : kExceptions) {
    if (!exception.applies(w)) continue;
    if (exception.fate == Fate::refused) expected.refused = true;
    if (exception.fate == Fate::changed) expected.changed = true;
    if (exception.fate == Fate::whatever) expected.whatever = true;
  }
  return expected;
}

void check_second(const Written& w, int result, const std::string& second) {
  const bool fileEmpty = w.way == Way::file && result == 4;
  expect(result == 0 || result == 3 || result == kThrown || fileEmpty, "a result of a reader", w.text);
  const Expected expected = expected_of(w);
  if (expected.whatever) return;
  expect((result != 0) == expected.refused, expected.refused ? "what cannot be read to be refused" : "to be read",
         w.text);
  if (expected.refused) return;
  if (expected.changed) {
    expect(second != w.text, "another text the second time", second);
  } else {
    expect_same(second, w.text, "the same text the second time");
  }
}

// Reads the text with an engine, writes the command again and checks both.
template <class Read>
void read_again(const Written& w, EngineImp& imp, Read read) {
  // A line of a file may be cut after the dash of an option.
  const int result = result_of(w.way == Way::file ? first_line(w.text) : w.text, read);
  std::string second;
  // The settings that were read may be impossible to write, such as another cable type.
  if (result == 0) imp.engine->GenerateCmdString(second);
  check_second(w, result, second);
}

}  // namespace

FakeHardware& known_design() {
  static FakeHardware design = one_of_each();
  design.questions.clear();
  return design;
}

bool check_writing(EngineImp& imp, Way way) {
  const std::string before = imp.currentProcessor->command;
  const std::string name = imp.currentProcessor->name;
  imp.engine->SetErrorStr("an older text");
  std::string text = "untouched";
  const int result = way == Way::file ? imp.engine->Generate() : imp.engine->GenerateCmdString(text);
  expect(result == 0 || result == 1, "a result of a writer");
  if (result == 1) {
    expect_same(text, "untouched", "the answer untouched on failure");
    expect_same(imp.currentProcessor->command, before, "the command untouched on failure");
    const bool isSilent =
        imp.currentProcessor->connectionType == Engine::VIRTUAL_PLATFORM && imp.errorStr == "an older text";
    expect(isSilent || is_writing_error(imp.errorStr), "a known error text", imp.errorStr);
    return false;
  }
  expect_same(imp.errorStr, "an older text", "no error text on success");
  if (way == Way::file) text = imp.currentProcessor->command;
  expect_same(imp.currentProcessor->command, text, "the record to keep the command");

  if (way == Way::command) {
    SelectedEngine fresh;
    read_again({imp, way, text, nullptr}, fresh.imp, [&] { return QvtOption_Parser::ReadQvtCommand(text, fresh.imp); });
    return true;
  }
  DiscoveredEngine fresh(known_design());
  if (way == Way::described) {
    const ProcessorInfoImp* record = nullptr;
    const int status = result_of(text, [&] { return (record = fresh.imp.GetProcessorInfo(text)) != nullptr ? 0 : 3; });
    std::string second;
    if (status == 0) fresh.engine.GenerateCmdString(second);
    delete record;
    check_second({imp, way, text, nullptr}, status, second);
    return true;
  }
  fresh.imp.currentProcessor = find_listed(fresh.imp, name);
  fresh.imp.GetFPUType();
  const ProcessorInfoImp listed = *fresh.imp.currentProcessor;
  ProcessorInfo info;
  read_again({imp, way, text, &listed}, fresh.imp, [&] {
    return way == Way::file ? fresh.engine.SetProcessor(name, info) : fresh.engine.ParseProcessorInfo(name, info, text);
  });
  return true;
}

void check_second_text(const EngineImp& imp, Way way, const std::string& text, int result, const std::string& second) {
  check_second({imp, way, text, nullptr}, result, second);
}
