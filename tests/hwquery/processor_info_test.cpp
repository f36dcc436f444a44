// A processor's record from a command alone.

#include <gmock/gmock.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "SdkDebugDialog/Engine.h"
#include "SdkDebugDialog/EngineImp.h"
#include "platform/ComMsgMgr.h"
#include "tests/support/DefaultSettings.h"
#include "tests/support/FakeHardware.h"
#include "tests/support/SelectedEngine.h"

namespace SdkDebugDialog {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Record = std::unique_ptr<ProcessorInfoImp>;

struct Message {
  int type;
  std::string id;
  unsigned int mask;
  std::string text;
  bool operator==(const Message&) const = default;
};

// The messages that were sent, and the state of the engine at that time. Global, because a sink is a plain function.
std::vector<Message> messages;
const EngineImp* watched = nullptr;
std::vector<const HHSMHwManager*> hardwareDuringMessages;

void receive(int type, const char* id, unsigned int mask, const char* text) {
  messages.push_back({type, id, mask, text});
  if (watched != nullptr) hardwareDuringMessages.push_back(watched->hwManager);
}

// Two processors of each kind; the second PowerPC has a double-precision FPU.
class ProcessorFromCommand : public testing::Test {
 protected:
  ProcessorFromCommand() {
    hw.debugIps = {"odm_0", "bridge_0"};
    hw.ipTypes = {{"odm_0", "odm"},
                  {"bridge_0", "jtag_ppc_bridge"},
                  {"ppc_1", "ppc405"},
                  {"ppc_2", "ppc440"},
                  {"a9_1", "hc9_cortexa9"},
                  {"a9_2", "hc9_cortexa9"},
                  {"uart", "opb_serial_lite"},
                  {"fpu", "apu_flt_varnel5"}};
    hw.reached = {{"odm_0", {"ovrin_1", "ovrin_2"}}, {"bridge_0", {"ppc_1", "ppc_2"}}};
    hw.peripherals = {{"ovrin_2", {"uart"}}, {"ppc_2", {"fpu"}}};
    hw.parameters = {{{"fpu", "C_DOUBLE_PRECISION"}, "1"}};
    d.engine.GetProcessorList(&hw);
    hw.questions.clear();
    messages.clear();
    hardwareDuringMessages.clear();
    watched = &d.imp;
    m_sink = ComMsgMgr::setSink(receive);
  }
  ~ProcessorFromCommand() override {
    ComMsgMgr::setSink(m_sink);
    watched = nullptr;
  }

  Record read(const std::string& command) { return Record(d.imp.GetProcessorInfo(command)); }

  FakeHardware hw;
  DiscoveredEngine d;

 private:
  ComMsgMgr::Sink m_sink = nullptr;
};

// --- Which processor a command is for ---

struct Row {
  const char* command;
  const char* name;
  unsigned int family;
  unsigned int variant;
  unsigned int connections;
  unsigned int number;
  unsigned int connection;
};

void expect_record(const Record& r, const Row& row) {
  ASSERT_NE(r, nullptr);
  EXPECT_EQ(r->name, row.name);
  EXPECT_EQ(r->procFamily, row.family);
  EXPECT_EQ(r->procVariant, row.variant);
  EXPECT_EQ(r->allowedConnections, row.connections);
  EXPECT_EQ(r->cpuNr, row.number);
  EXPECT_EQ(r->connectionType, row.connection);
  EXPECT_EQ(r->command, row.command);
}

TEST_F(ProcessorFromCommand, IsTheListedOneOfTheSameFamilyAndNumber) {
  constexpr Row kRows[] = {
      {"connect ov sim", "ovrin_1", 0, 0, 3, 1, 1},
      {"connect ov odm", "ovrin_1", 0, 0, 3, 1, 2},
      {"connect ov odm -debugdevice cpunr 2", "ovrin_2", 0, 0, 135, 2, 2},
      {"connect ov stub -debugdevice cpunr 2", "ovrin_2", 0, 0, 135, 2, 4},
      {"connect ov stub", "ovrin_1", 0, 0, 3, 1, 4},  // connection from the command, mask from the design
      {"connect ppc hw", "ppc_1", 1, 6, 3, 1, 2},     // variant from the command
      {"connect ppc sim", "ppc_1", 1, 6, 3, 1, 1},
      {"connect ppc hw -debugdevice cpunr 2 proctype ppc440", "ppc_2", 1, 2, 3, 2, 2},
      {"connect arm hw", "a9_1", 2, 4, 2, 1, 2},
      {"connect arm hw -debugdevice cpunr 2", "a9_2", 2, 4, 2, 2, 2},
      {"connect r5 hw -debugdevice cpunr 258", "a9_2", 2, 5, 2, 2, 2},  // the low 8 bits count
      {"vpconnect ov", "ovrin_1", 0, 0, 3, 1, 8},
      {"QConnect OV Sim", "ovrin_1", 0, 0, 3, 1, 1},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.command);
    const Record r = read(row.command);
    expect_record(r, row);
    EXPECT_EQ(d.imp.currentProcessor, r.get());
    EXPECT_EQ(d.imp.hwManager, &hw);
    EXPECT_EQ(d.error(), "");
  }
  EXPECT_THAT(messages, IsEmpty());
}

TEST_F(ProcessorFromCommand, WithoutAListedOneKeepsAnEmptyNameAndTheMaskOfTheCommand) {
  constexpr Row kRows[] = {
      {"connect ov sim", "", 0, 0, 1, 1, 1},
      {"connect ov odm", "", 0, 0, 3, 1, 2},
      {"connect ov stub", "", 0, 0, 5, 1, 4},
      {"connect ppc hw", "", 1, 6, 3, 1, 2},
      {"connect ppc sim", "", 1, 6, 1, 1, 1},
      {"connect arm hw", "", 2, 4, 3, 1, 2},
      {"connect r5 hw", "", 2, 5, 3, 1, 2},
      {"vpconnect ov", "", 0, 0, 9, 1, 8},
      {"connect ov odm -debugdevice cpunr 0", "", 0, 0, 3, 0, 2},
  };
  for (const bool listed : {false, true}) {
    for (const Row& row : kRows) {
      SCOPED_TRACE(testing::Message() << row.command << (listed ? " with a list" : " without one"));
      DiscoveredEngine other;
      if (listed) {
        other.list("near").procFamily = row.family;  // another number
        other.imp.processorList.back()->cpuNr = 7;
        other.list("far").procFamily = 3;  // another family
        other.imp.processorList.back()->cpuNr = static_cast<std::uint8_t>(row.number);
      }
      hw.questions.clear();
      other.imp.hwManager = &hw;
      const Record r(other.imp.GetProcessorInfo(row.command));
      expect_record(r, row);
      EXPECT_THAT(hw.questions, IsEmpty());
    }
  }
}

TEST_F(ProcessorFromCommand, IsTheFirstOfSeveralThatFit) {
  ProcessorInfoImp& later = d.list("later");
  later.procFamily = 1;
  later.cpuNr = 2;
  const Record r = read("connect ppc hw -debugdevice cpunr 2");
  ASSERT_NE(r, nullptr);
  EXPECT_EQ(r->name, "ppc_2");
}

TEST_F(ProcessorFromCommand, IsComparedByTheWholeUnsignedNumber) {
  ProcessorInfoImp& high = d.list("high");
  high.procFamily = 0;
  high.cpuNr = 200;
  const Record r = read("connect ov odm -debugdevice cpunr 200");
  ASSERT_NE(r, nullptr);
  EXPECT_EQ(r->name, "high");
}

TEST_F(ProcessorFromCommand, OfATargetThatNeedsNoneKeepsAnEmptyNameAndAsksNothing) {
  constexpr Row kRows[] = {
      {"connect odm", "", 0, 0, 16, 1, 2},     {"connect odm -uart -debugdevice cpunr 2", "", 0, 0, 16, 2, 2},
      {"connect qmtc", "", 0, 0, 32, 1, 2},    {"connect dcc", "", 2, 4, 256, 1, 2},
      {"connect dap hw", "", 2, 4, 512, 1, 2},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.command);
    expect_record(read(row.command), row);
    EXPECT_EQ(d.imp.hwManager, &hw);
  }
  EXPECT_THAT(hw.questions, IsEmpty());
  EXPECT_THAT(messages, IsEmpty());
}

TEST_F(ProcessorFromCommand, OfATargetThatNeedsNoneKeepsTheFpuOfTheCommand) {
  for (const char* const target : {"odm", "qmtc", "dcc", "dap hw"}) {
    const Record r = read(std::string("connect ") + target + " -debugdevice fpuType dp");
    ASSERT_NE(r, nullptr) << target;
    EXPECT_EQ(r->fpuType, 2U) << target;
  }
  EXPECT_THAT(hw.questions, IsEmpty());
}

TEST_F(ProcessorFromCommand, IsARecordOfItsOwnThatIsNotListed) {
  const std::vector<ProcessorInfoImp*> before = d.imp.processorList;
  const Record r = read("connect ov odm -bscan USER1");
  ASSERT_NE(r, nullptr);
  EXPECT_EQ(d.imp.processorList, before);
  EXPECT_EQ(r->bscanPort, 2U);
  for (const ProcessorInfoImp* const processor : before) {
    EXPECT_NE(processor, r.get());
    expect_default_settings(*processor);
  }
}

TEST_F(ProcessorFromCommand, StartsFromTheDefaults) {
  d.engine.SetCableType(Engine::ZARVEK_PARALLEL3);
  d.engine.SetCpuJtag();
  d.engine.SetErrorStr("before");
  JtagOption device;
  d.imp.jtagChain = {&device};
  const Record r = read("connect ov odm");
  ASSERT_NE(r, nullptr);
  EXPECT_EQ(r->command, "connect ov odm");
  r->command.clear();
  expect_default_settings(*r);
  expect_no_link(d.imp);
  EXPECT_EQ(d.error(), "");
}

TEST_F(ProcessorFromCommand, ReplacesTheSelectionAndLeavesTheOldRecordAlone) {
  ProcessorInfo info;
  ASSERT_EQ(d.engine.ParseProcessorInfo("ovrin_1", info, "connect ov sim -memsize 5"), 0);
  const Record r = read("connect ov odm");
  EXPECT_EQ(d.imp.currentProcessor, r.get());
  EXPECT_EQ(d.imp.processorList[0]->memSize, 5U);
  EXPECT_EQ(d.imp.processorList[0]->command, "connect ov sim -memsize 5");
}

TEST_F(ProcessorFromCommand, IsReadAsIfNoHardwareWereKnown) {
  d.imp.processorList[0]->allowedConnections = 2;
  const Record r = read("connect ov sim");  // the listed processor does not admit the simulator
  ASSERT_NE(r, nullptr);
  EXPECT_EQ(r->name, "ovrin_1");
  EXPECT_EQ(r->allowedConnections, 2U);
  EXPECT_EQ(r->connectionType, 1U);
}

TEST_F(ProcessorFromCommand, StoresCableAndChain) {
  const Record r =
      read("connect ov odm -cable type zarvek_platformusb port USB22 -configdevice devicenr 1 partname dv3");
  ASSERT_NE(r, nullptr);
  EXPECT_EQ(d.imp.cable->type, Engine::ZARVEK_PLATFORMUSB);
  EXPECT_EQ(d.imp.cable->port, "USB22");
  ASSERT_EQ(d.imp.jtagChain.size(), 1U);
  EXPECT_EQ(d.imp.jtagChain[0]->partname, "dv3");
}

// --- FPU ---

TEST_F(ProcessorFromCommand, TakesTheFpuFromTheHardware) {
  Record r = read("connect ppc hw -debugdevice cpunr 2 fpuType sp");
  ASSERT_NE(r, nullptr);
  EXPECT_EQ(r->fpuType, 2U);
  EXPECT_THAT(hw.questions,
              ElementsAre("getPeripherals ppc_2", "getIpName fpu", "getParameterValue fpu C_DOUBLE_PRECISION"));
  r = read("connect ppc hw -debugdevice cpunr 1 fpuType sp");
  ASSERT_NE(r, nullptr);
  EXPECT_EQ(r->fpuType, 0U);
}

TEST_F(ProcessorFromCommand, KeepsTheFpuOfTheCommandWithoutHardware) {
  d.imp.hwManager = nullptr;
  const Record r = read("connect ppc hw -debugdevice cpunr 2 fpuType dp");
  ASSERT_NE(r, nullptr);
  EXPECT_EQ(r->name, "ppc_2");
  EXPECT_EQ(r->fpuType, 2U);
  EXPECT_EQ(d.imp.hwManager, nullptr);
  EXPECT_THAT(hw.questions, IsEmpty());
}

TEST_F(ProcessorFromCommand, KeepsTheFpuOfTheCommandWithoutAName) {
  const Record r = read("connect ppc hw -debugdevice cpunr 9 fpuType dp");
  ASSERT_NE(r, nullptr);
  EXPECT_EQ(r->name, "");
  EXPECT_EQ(r->fpuType, 2U);
  EXPECT_THAT(hw.questions, IsEmpty());
}

// --- Commands that cannot be read ---

TEST_F(ProcessorFromCommand, ThatCannotBeReadIsNullAndIsReportedOnce) {
  d.engine.SetErrorStr("before");
  EXPECT_EQ(d.imp.GetProcessorInfo("connect ov odm -cable type zarvek_parallel3 -configdevice devicenr 1 "
                                   "-configdevice jtagport cpu -quiet -foo"),
            nullptr);
  EXPECT_THAT(messages, ElementsAre(Message{1, "sdk", 0x20000000, "UNKNOWN Option '-foo'\n"}));
  EXPECT_EQ(d.error(), "UNKNOWN Option '-foo'");
  EXPECT_EQ(d.imp.currentProcessor, nullptr);
  EXPECT_EQ(d.imp.hwManager, &hw);
  expect_no_link(d.imp);
  EXPECT_EQ(d.imp.processorList.size(), 6U);
}

TEST_F(ProcessorFromCommand, ThatCannotBeReadForNoStoredReasonIsReportedWithAnEmptyLine) {
  for (const char* const command : {"", "disconnect", "connect", "connect z80", "connect ov", "connect arm sim"}) {
    SCOPED_TRACE(command);
    messages.clear();
    d.engine.SetErrorStr("before");
    EXPECT_EQ(d.imp.GetProcessorInfo(command), nullptr);
    EXPECT_THAT(messages, ElementsAre(Message{1, "sdk", 0x20000000, "\n"}));
    EXPECT_EQ(d.error(), "");
    EXPECT_EQ(d.imp.currentProcessor, nullptr);
  }
}

TEST_F(ProcessorFromCommand, ThatCannotBeReadIsReportedAsItStandsAndNotAsAFormat) {
  EXPECT_EQ(d.imp.GetProcessorInfo("connect ov odm -cable %s%n 5"), nullptr);
  EXPECT_THAT(messages, ElementsAre(Message{1, "sdk", 0x20000000, "UNKNOWN Parameter '%s%n' for  option '-cable'\n"}));
}

TEST_F(ProcessorFromCommand, ThatCannotBeReadIsReportedWithTheTextCutAfter2047Characters) {
  const std::string key(3000, 'k');
  EXPECT_EQ(d.imp.GetProcessorInfo("connect ov odm -cable " + key + " 5"), nullptr);
  const std::string text = ("UNKNOWN Parameter '" + key).substr(0, 2047);
  EXPECT_THAT(messages, ElementsAre(Message{1, "sdk", 0x20000000, text + "\n"}));
  EXPECT_EQ(d.error(), text);
}

TEST_F(ProcessorFromCommand, ThatCannotBeReadIsReportedWithTheHardwareBackInPlace) {
  EXPECT_EQ(d.imp.GetProcessorInfo("connect"), nullptr);
  EXPECT_THAT(hardwareDuringMessages, ElementsAre(&hw));
}

TEST_F(ProcessorFromCommand, CanBeReadAfterOneThatCouldNot) {
  ASSERT_EQ(d.imp.GetProcessorInfo("connect ov odm -foo"), nullptr);
  const Record r = read("connect ov odm");
  ASSERT_NE(r, nullptr);
  EXPECT_EQ(r->name, "ovrin_1");
  EXPECT_EQ(d.error(), "");
  EXPECT_EQ(messages.size(), 1U);
}

TEST_F(ProcessorFromCommand, ThatCannotBeReadLeavesTheSelectedRecordBeforeAlone) {
  ProcessorInfo info;
  ASSERT_EQ(d.engine.ParseProcessorInfo("ovrin_1", info, "connect ov sim -memsize 5"), 0);
  EXPECT_EQ(d.imp.GetProcessorInfo("connect"), nullptr);
  EXPECT_EQ(d.imp.currentProcessor, nullptr);
  EXPECT_EQ(d.imp.processorList[0]->memSize, 5U);
  auto type = Engine::STUB;
  EXPECT_EQ(d.engine.GetConnectionType(type), 1);
}

// --- Exceptions ---

TEST_F(ProcessorFromCommand, ThrowsForALoneDashAndLeavesNoProcessorSelected) {
  for (const char* const command : {"-", "connect -", "connect ov odm -quiet - -foo",
                                    "connect ov odm -configdevice devicenr 1 -cable type zarvek_parallel3 -"}) {
    SCOPED_TRACE(command);
    try {
      d.imp.GetProcessorInfo(command);
      FAIL() << "nothing was thrown";
    } catch (const std::out_of_range& e) {
      EXPECT_STREQ(e.what(), "basic_string::at: __n (which is 1) >= this->size() (which is 1)");
    }
    EXPECT_EQ(d.imp.hwManager, &hw);
    EXPECT_EQ(d.imp.currentProcessor, nullptr);
    expect_no_link(d.imp);
  }
  EXPECT_THAT(messages, IsEmpty());
  EXPECT_NE(read("connect ov odm"), nullptr);
}

class FailingHardware : public FakeHardware {
 public:
  void getPeripherals(const std::string& /*processor*/, std::vector<std::string>& /*out*/) override {
    throw std::runtime_error("the design is gone");
  }
};

TEST_F(ProcessorFromCommand, PassesAFailureOfTheHardwareOnAndLeavesNoProcessorSelected) {
  FailingHardware failing;
  d.imp.hwManager = &failing;
  EXPECT_THROW(d.imp.GetProcessorInfo("connect ppc hw -cable type zarvek_parallel3"), std::runtime_error);
  EXPECT_EQ(d.imp.hwManager, &failing);
  EXPECT_EQ(d.imp.currentProcessor, nullptr);
  expect_no_link(d.imp);
}

}  // namespace
}  // namespace SdkDebugDialog
