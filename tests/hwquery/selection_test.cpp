// Looking a processor up, and selecting one with its option file or a command.

#include <gmock/gmock.h>

#include <stdexcept>
#include <string>
#include <string_view>

#include "SdkDebugDialog/Engine.h"
#include "SdkDebugDialog/EngineImp.h"
#include "tests/options/work_folder.h"
#include "tests/support/DefaultSettings.h"
#include "tests/support/FakeHardware.h"
#include "tests/support/SelectedEngine.h"

namespace SdkDebugDialog {
namespace {

using testing::Contains;
using testing::IsEmpty;
using testing::Not;

// A soft processor with a UART, a PowerPC with a single-precision FPU, and a Cortex-A9. Works in a folder of its own.
class Selection : public testing::Test {
 protected:
  Selection() {
    hw.processors = {"ovrin_0", "ppc_0", "a9_0"};
    hw.debugIps = {"odm_0", "bridge_0"};
    hw.ipTypes = {{"odm_0", "odm"},         {"bridge_0", "jtag_ppc_bridge"}, {"ppc_0", "ppc405"},
                  {"a9_0", "hc9_cortexa9"}, {"uart", "opb_serial_lite"},     {"fpu", "apu_flt"}};
    hw.reached = {{"odm_0", {"ovrin_0"}}, {"bridge_0", {"ppc_0"}}};
    hw.peripherals = {{"ovrin_0", {"uart"}}, {"ppc_0", {"fpu"}}};
    d.engine.GetProcessorList(&hw);
    hw.questions.clear();
    ovrin = d.imp.processorList.at(0);
    ppc = d.imp.processorList.at(1);
    a9 = d.imp.processorList.at(2);
  }

  void write_option_file(const std::string& processor, const std::string& text) {
    WorkFolder::write(folder.option_file(processor), text);
  }

  WorkFolder folder;
  FakeHardware hw;
  DiscoveredEngine d;
  ProcessorInfoImp* ovrin = nullptr;
  ProcessorInfoImp* ppc = nullptr;
  ProcessorInfoImp* a9 = nullptr;
  ProcessorInfo info = {77, 78, 79};
};

void expect_info(const ProcessorInfo& info, unsigned int variant, unsigned int family, unsigned int connections) {
  EXPECT_EQ(info.procVariant, variant);
  EXPECT_EQ(info.procFamily, family);
  EXPECT_EQ(info.allowedConnections, connections);
}

// --- The number of a processor ---

TEST_F(Selection, NumberIsThatOfTheFirstProcessorWithTheName) {
  ppc->cpuNr = 255;
  a9->cpuNr = 0;
  d.list("ovrin_0").cpuNr = 9;
  d.engine.SetErrorStr("before");
  EXPECT_EQ(d.engine.GetProcessorNr("ovrin_0"), 1);
  EXPECT_EQ(d.engine.GetProcessorNr("ppc_0"), 255);
  EXPECT_EQ(d.engine.GetProcessorNr("a9_0"), 0);
  EXPECT_EQ(d.error(), "before");
  EXPECT_EQ(d.imp.currentProcessor, nullptr);
}

TEST_F(Selection, NumberOfAnUnknownProcessorIsMinusOneAndThePreviousOneStaysCurrent) {
  d.imp.currentProcessor = ppc;
  ppc->stubBaudRate = 9600;
  EXPECT_EQ(d.engine.GetProcessorNr("dsp_0"), -1);
  EXPECT_EQ(d.error(), "Processor Instance dsp_0 cannot be debugged!!\n");
  EXPECT_EQ(d.imp.currentProcessor, ppc);
  EXPECT_EQ(ppc->stubBaudRate, 9600);
}

TEST_F(Selection, NumberIsLookedUpByteForByte) {
  for (const char* const name : {"", "OVRIN_0", "ovrin_0 ", " ovrin_0", "ovrin"}) {
    EXPECT_EQ(d.engine.GetProcessorNr(name), -1) << name;
    EXPECT_EQ(d.error(), std::string("Processor Instance ") + name + " cannot be debugged!!\n");
  }
}

TEST_F(Selection, GoesByTheNamesThatProcessorsHaveNow) {
  EXPECT_EQ(d.engine.GetProcessorNr("a9_0"), 1);
  ProcessorInfoImp& second = d.list("a9_0");
  second.cpuNr = 7;
  EXPECT_EQ(d.engine.GetProcessorNr("a9_0"), 1);
  a9->name = "a9_1";
  EXPECT_EQ(d.engine.GetProcessorNr("a9_0"), 7);
  second.name = "a9_2";
  EXPECT_EQ(d.engine.GetProcessorNr("a9_0"), -1);
  EXPECT_EQ(d.engine.SetProcessor("a9_0", info), 2);
  EXPECT_EQ(d.imp.currentProcessor, nullptr);
  EXPECT_EQ(d.engine.GetProcessorNr("a9_2"), 7);
}

// --- Unknown names ---

TEST_F(Selection, OfAnUnknownNameIsRefusedAndLeavesEverythingAsItWas) {
  struct Row {
    const char* name;
    const char* fileText;
    const char* commandText;
  };
  constexpr Row kRows[] = {
      {"dsp_0",
       "Processor Instance dsp_0 cannot be Debugged !!, Please check \t\t\t\t\tProcessor Connection in your HWS file\n",
       "Processor Instance dsp_0 not Found !!, Please check \t\t\t\t\tProcessor Connection in your HWS file\n"},
      {"OVRIN_0",
       "Processor Instance OVRIN_0 cannot be Debugged !!, Please check \t\t\t\t\tProcessor Connection in your HWS "
       "file\n",
       "Processor Instance OVRIN_0 not Found !!, Please check \t\t\t\t\tProcessor Connection in your HWS file\n"},
      {"", "Processor Instance  cannot be Debugged !!, Please check \t\t\t\t\tProcessor Connection in your HWS file\n",
       "Processor Instance  not Found !!, Please check \t\t\t\t\tProcessor Connection in your HWS file\n"},
  };
  write_option_file("dsp_0", "connect ov sim");
  d.imp.currentProcessor = ppc;
  ppc->stubBaudRate = 9600;
  d.engine.SetCableType(Engine::ZARVEK_PARALLEL3);
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(d.engine.SetProcessor(row.name, info), 2);
    EXPECT_EQ(d.error(), row.fileText);
    EXPECT_EQ(d.engine.ParseProcessorInfo(row.name, info, "connect ov sim"), 2);
    EXPECT_EQ(d.error(), row.commandText);
    expect_info(info, 77, 78, 79);
    EXPECT_EQ(d.imp.currentProcessor, ppc);
    EXPECT_EQ(ppc->stubBaudRate, 9600);
    EXPECT_EQ(d.imp.cable->type, Engine::ZARVEK_PARALLEL3);
    EXPECT_THAT(hw.questions, IsEmpty());
  }
}

TEST_F(Selection, OfANameThatDiffersInCaseAloneFindsNoProcessor) {
  EXPECT_EQ(d.engine.SetProcessor("Ovrin_0", info), 2);
  EXPECT_EQ(d.error(),
            "Processor Instance Ovrin_0 cannot be Debugged !!, Please check \t\t\t\t\tProcessor Connection in your "
            "HWS file\n");
}

TEST_F(Selection, TextsAreCutAfter2047Characters) {
  for (const std::size_t length : {1900U, 1940U, 1950U, 2005U, 2006U, 2007U, 2047U, 5000U}) {
    SCOPED_TRACE(length);
    const std::string name(length, 'x');
    const std::string start = "Processor Instance " + name;
    EXPECT_EQ(d.engine.GetProcessorNr(name), -1);
    EXPECT_EQ(d.error(), (start + " cannot be debugged!!\n").substr(0, 2047));
    EXPECT_EQ(d.engine.SetProcessor(name, info), 2);
    EXPECT_EQ(d.error(),
              (start + " cannot be Debugged !!, Please check \t\t\t\t\tProcessor Connection in your HWS file\n")
                  .substr(0, 2047));
    EXPECT_EQ(d.engine.ParseProcessorInfo(name, info, ""), 2);
    EXPECT_EQ(
        d.error(),
        (start + " not Found !!, Please check \t\t\t\t\tProcessor Connection in your HWS file\n").substr(0, 2047));
  }
}

// --- With the option file ---

TEST_F(Selection, ReadsTheOptionFileOfTheProcessor) {
  write_option_file("ovrin_0", "connect ov stub -cable type zarvek_parallel3 -comm serial -baud 9600");
  EXPECT_EQ(d.engine.SetProcessor("ovrin_0", info), 0);
  EXPECT_EQ(d.imp.currentProcessor, ovrin);
  expect_info(info, 0, 0, 135);
  EXPECT_EQ(ovrin->connectionType, 4U);
  EXPECT_EQ(ovrin->stubType, 1U);
  EXPECT_EQ(ovrin->stubBaudRate, 9600);
  EXPECT_EQ(ovrin->command, "connect ov stub -cable type zarvek_parallel3 -comm serial -baud 9600");
  EXPECT_EQ(d.imp.cable->type, Engine::ZARVEK_PARALLEL3);
  EXPECT_EQ(d.error(), "");
}

TEST_F(Selection, FillsTheInfoOfEachKindOfProcessor) {
  EXPECT_EQ(d.engine.SetProcessor("ppc_0", info), 4);
  expect_info(info, 1, 1, 3);
  EXPECT_EQ(d.engine.SetProcessor("a9_0", info), 4);
  expect_info(info, 4, 2, 2);
}

TEST_F(Selection, ResetsWhatTheSelectionBeforeLeft) {
  ASSERT_EQ(d.engine.ParseProcessorInfo("ovrin_0", info, "connect ov odm -cable type zarvek_parallel3 -bscan USER1"),
            0);
  d.engine.SetCpuJtag();
  d.engine.SetErrorStr("before");
  JtagOption device;
  d.imp.jtagChain = {&device};
  a9->stubBaudRate = 9600;
  EXPECT_EQ(d.engine.SetProcessor("a9_0", info), 4);
  expect_default_settings(*a9);
  expect_no_link(d.imp);
  EXPECT_EQ(d.error(), "");
  EXPECT_EQ(ovrin->bscanPort, 2U);  // another processor's record
}

TEST_F(Selection, WithoutAnOptionFileAnswers4AndIsTreatedAsRead) {
  ppc->stubBaudRate = 9600;
  d.engine.SetErrorStr("before");
  EXPECT_EQ(d.engine.SetProcessor("ppc_0", info), 4);
  EXPECT_EQ(d.imp.currentProcessor, ppc);
  expect_info(info, 1, 1, 3);
  EXPECT_EQ(ppc->fpuType, 1U);
  ppc->fpuType = 0;
  expect_default_settings(*ppc);
  expect_no_link(d.imp);
  EXPECT_EQ(d.error(), "");
}

TEST_F(Selection, WithAnOptionFileWithoutATextLineAnswers4AndIsTreatedAsRead) {
  for (const char* const text : {"", "\n", "\n\n\n"}) {
    write_option_file("ppc_0", text);
    info = {77, 78, 79};
    EXPECT_EQ(d.engine.SetProcessor("ppc_0", info), 4);
    expect_info(info, 1, 1, 3);
    EXPECT_EQ(ppc->fpuType, 1U);
    EXPECT_EQ(d.error(), "");
  }
}

TEST_F(Selection, TakesTheFpuFromTheHardwareAndNotFromTheFile) {
  write_option_file("ppc_0", "connect ppc hw -debugdevice fpuType dp");
  EXPECT_EQ(d.engine.SetProcessor("ppc_0", info), 0);
  EXPECT_EQ(ppc->fpuType, 1U);
  hw.peripherals.clear();
  EXPECT_EQ(d.engine.SetProcessor("ppc_0", info), 0);
  EXPECT_EQ(ppc->fpuType, 0U);
  write_option_file("ovrin_0", "connect ov odm -debugdevice fpuType sp");
  EXPECT_EQ(d.engine.SetProcessor("ovrin_0", info), 0);
  EXPECT_EQ(ovrin->fpuType, 0U);
}

TEST_F(Selection, ThatCannotBeReadAnswers3AndLeavesTheDefaultsWithTheReason) {
  write_option_file("ppc_0",
                    "connect ppc hw -cable type zarvek_parallel3 port LPT2 -configdevice devicenr 1 partname dv3 "
                    "-configdevice jtagport cpu -debugdevice deviceNr 2 fpuType dp icacheStartAdr 0x10000 -foo");
  EXPECT_EQ(d.engine.SetProcessor("ppc_0", info), 3);
  EXPECT_EQ(d.imp.currentProcessor, ppc);
  expect_info(info, 1, 1, 3);
  expect_default_settings(*ppc);
  expect_no_link(d.imp);
  EXPECT_EQ(d.error(), "UNKNOWN Option ''");
  EXPECT_THAT(hw.questions, Not(Contains("getPeripherals ppc_0")));
  EXPECT_EQ(ppc->name, "ppc_0");
  EXPECT_EQ(ppc->cpuNr, 1);
}

TEST_F(Selection, ThatCannotBeReadForNoStoredReasonLeavesAnEmptyText) {
  for (const char* const text : {"qconnect ov sim", "connect odm", "connect", "disconnect", "\r\n", "connect ov",
                                 "connect ppc hw", "connect ov odm 5"}) {
    SCOPED_TRACE(text);
    write_option_file("ovrin_0", text);
    d.engine.SetErrorStr("before");
    info = {77, 78, 79};
    const bool powerPC = std::string_view(text) == "connect ppc hw";  // the target is not compared with the processor
    EXPECT_EQ(d.engine.SetProcessor("ovrin_0", info), powerPC ? 0 : 3);
    EXPECT_EQ(d.error(), "");
    expect_info(info, 0, 0, 135);
    if (!powerPC) expect_default_settings(*ovrin);
  }
}

TEST_F(Selection, WithAConnectionThatTheDesignDoesNotAdmitCannotBeRead) {
  ovrin->allowedConnections = 3;
  write_option_file("ovrin_0", "connect ov stub -comm serial");
  EXPECT_EQ(d.engine.SetProcessor("ovrin_0", info), 3);
  expect_default_settings(*ovrin);
  expect_info(info, 0, 0, 3);
}

TEST_F(Selection, WithoutHardwareTakesTheListAndNoFpu) {
  d.imp.hwManager = nullptr;
  write_option_file("ppc_0", "connect ppc hw -debugdevice fpuType dp");
  EXPECT_EQ(d.engine.SetProcessor("ppc_0", info), 0);
  EXPECT_EQ(ppc->fpuType, 0U);
  expect_info(info, 6, 1, 3);  // the variant is taken from the text
}

TEST_F(Selection, SelectsTheFirstProcessorWithTheName) {
  d.list("ovrin_0").procFamily = 2;
  EXPECT_EQ(d.engine.SetProcessor("ovrin_0", info), 4);
  EXPECT_EQ(d.imp.currentProcessor, ovrin);
}

TEST_F(Selection, PassesTheErrorOfALoneDashInTheFileOn) {
  write_option_file("ovrin_0", "connect ov odm -bscan USER1 -cable type zarvek_parallel3 -");
  try {
    d.engine.SetProcessor("ovrin_0", info);
    FAIL() << "nothing was thrown";
  } catch (const std::out_of_range& e) {
    EXPECT_STREQ(e.what(), "basic_string::at: __n (which is 1) >= this->size() (which is 1)");
  }
  EXPECT_EQ(d.imp.currentProcessor, ovrin);
  EXPECT_EQ(ovrin->bscanPort, 2U);
  EXPECT_EQ(d.imp.cable->type, Engine::ZARVEK_PARALLEL3);
  expect_info(info, 77, 78, 79);
  EXPECT_EQ(d.imp.hwManager, &hw);
}

// --- With a command ---

TEST_F(Selection, ReadsTheCommandAndNotTheFile) {
  write_option_file("ovrin_0", "connect ov sim");
  EXPECT_EQ(d.engine.ParseProcessorInfo("ovrin_0", info, "qconnect OV odm -debugdevice deviceNr 2 cpunr 1"), 0);
  EXPECT_EQ(d.imp.currentProcessor, ovrin);
  expect_info(info, 0, 0, 135);
  EXPECT_EQ(ovrin->connectionType, 2U);
  EXPECT_EQ(ovrin->debugDevice, 2);
  EXPECT_EQ(ovrin->command, "qconnect OV odm -debugdevice deviceNr 2 cpunr 1");
  EXPECT_EQ(d.error(), "");
}

TEST_F(Selection, WithACommandTakesTheFpuFromTheHardware) {
  EXPECT_EQ(d.engine.ParseProcessorInfo("ppc_0", info, "connect ppc sim -debugdevice fpuType dp"), 0);
  EXPECT_EQ(ppc->fpuType, 1U);
  expect_info(info, 1, 1, 3);
}

TEST_F(Selection, WithACommandResetsWhatWasSetBefore) {
  d.engine.SetCableType(Engine::ZARVEK_PARALLEL3);
  d.engine.SetCpuJtag();
  d.engine.SetErrorStr("before");
  ovrin->memSize = 5;
  EXPECT_EQ(d.engine.ParseProcessorInfo("ovrin_0", info, "connect ov sim"), 0);
  EXPECT_EQ(ovrin->memSize, 16U);
  expect_no_link(d.imp);
  EXPECT_EQ(d.error(), "");
}

TEST_F(Selection, WithACommandThatCannotBeReadAnswers3AndLeavesTheDefaultsWithTheReason) {
  EXPECT_EQ(d.engine.ParseProcessorInfo("ppc_0", info,
                                        "connect ppc hw -configdevice devicenr 1 -debugdevice tlbStartAdr 0x1234"),
            3);
  EXPECT_EQ(d.imp.currentProcessor, ppc);
  expect_info(info, 1, 1, 3);
  expect_default_settings(*ppc);
  expect_no_link(d.imp);
  EXPECT_EQ(d.error(), "TLB Start Address should be aligned at 64k boundry");
  EXPECT_THAT(hw.questions, IsEmpty());
}

TEST_F(Selection, WithACommandThatIsNoneLeavesAnEmptyText) {
  for (const char* const command : {"", "  \t\n", "disconnect", "connect", "connect z80", "vpconnect"}) {
    SCOPED_TRACE(command);
    d.engine.SetErrorStr("before");
    EXPECT_EQ(d.engine.ParseProcessorInfo("ovrin_0", info, command), 3);
    EXPECT_EQ(d.error(), "");
    expect_info(info, 0, 0, 135);
    expect_default_settings(*ovrin);
  }
}

TEST_F(Selection, WithACommandForTheDebugModuleMarksTheProcessorEvenWhenItCannotBeRead) {
  EXPECT_EQ(d.engine.ParseProcessorInfo("ovrin_0", info, "connect odm -uart -foo"), 3);
  EXPECT_EQ(d.error(), "UNKNOWN Option '-foo'");
  expect_info(info, 0, 0, 16);  // a reset does not restore allowedConnections
  expect_default_settings(*ovrin);
}

TEST_F(Selection, PassesTheErrorOfALoneDashInTheCommandOn) {
  EXPECT_THROW(d.engine.ParseProcessorInfo("ovrin_0", info, "connect ov odm -bscan USER1 -"), std::out_of_range);
  EXPECT_EQ(d.imp.currentProcessor, ovrin);
  EXPECT_EQ(ovrin->bscanPort, 2U);
  expect_info(info, 77, 78, 79);
}

// --- Size ---

TEST_F(Selection, IsQuickInAListOf100000) {
  for (int i = 0; i < 100000; ++i) d.list("many_" + std::to_string(i)).cpuNr = static_cast<std::uint8_t>(i);
  for (int i = 0; i < 100000; ++i) ASSERT_EQ(d.engine.GetProcessorNr("many_" + std::to_string(i)), i % 256);
  EXPECT_EQ(d.engine.ParseProcessorInfo("many_99999", info, "connect ov sim"), 0);
  EXPECT_EQ(d.imp.currentProcessor, d.imp.processorList.back());
}

}  // namespace
}  // namespace SdkDebugDialog
