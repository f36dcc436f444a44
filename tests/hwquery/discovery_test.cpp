// Which processors of a design are listed, and how.

#include <gmock/gmock.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "SdkDebugDialog/Engine.h"
#include "SdkDebugDialog/EngineImp.h"
#include "tests/support/DefaultSettings.h"
#include "tests/support/FakeHardware.h"
#include "tests/support/SelectedEngine.h"

namespace SdkDebugDialog {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Names = std::vector<std::string>;

// The fields of a record that discovery sets.
struct Found {
  std::string name;
  unsigned int family;
  unsigned int variant;
  unsigned int connections;
  unsigned int number;
  bool operator==(const Found&) const = default;
};

void PrintTo(const Found& found, std::ostream* out) {
  *out << found.name << " family " << found.family << " variant " << found.variant << " connections "
       << found.connections << " number " << found.number;
}

std::vector<Found> listed(const EngineImp& imp) {
  std::vector<Found> all;
  for (const ProcessorInfoImp* const p : imp.processorList) {
    all.push_back({p->name, p->procFamily, p->procVariant, p->allowedConnections, p->cpuNr});
  }
  return all;
}

void discover(DiscoveredEngine& d, HHSMHwManager& hw) {
  Names names;
  EXPECT_EQ(d.engine.GetProcessorList(&hw, names), 0);
}

// One processor of every kind, and some that cannot be debugged.
FakeHardware mixed_design() {
  FakeHardware hw;
  hw.processors = {"ovrin_1", "ovrin_0", "ppc_0", "a9_0", "dsp_0"};
  hw.debugIps = {"odm_0", "bridge_0", "trace_0"};
  hw.ipTypes = {{"ovrin_1", "ovrin"},
                {"ovrin_0", "ovrin"},
                {"ppc_0", "ppc405_varnel4"},
                {"a9_0", "hc9_cortexa9"},
                {"dsp_0", "dsp"},
                {"odm_0", "odm"},
                {"bridge_0", "jtag_ppc_bridge"},
                {"trace_0", "trace"},
                {"uart_0", "opb_serial_lite"},
                {"gpio_0", "opb_gpio"}};
  hw.reached = {{"odm_0", {"ovrin_0"}}, {"bridge_0", {"ppc_0"}}, {"trace_0", {"dsp_0"}}};
  hw.peripherals = {
      {"ovrin_1", {"gpio_0"}}, {"ovrin_0", {"gpio_0", "uart_0"}}, {"a9_0", {"uart_0"}}, {"ppc_0", {"uart_0"}}};
  return hw;
}

// --- What is listed ---

TEST(Discovery, ListsDebugModulesAndBridgesThenSoftProcessorsThenCortexA9) {
  FakeHardware hw = mixed_design();
  DiscoveredEngine d;
  discover(d, hw);
  EXPECT_THAT(listed(d.imp), ElementsAre(Found{"ovrin_0", 0, 0, 135, 1}, Found{"ppc_0", 1, 1, 3, 1},
                                         Found{"ovrin_1", 0, 0, 1, 2}, Found{"a9_0", 2, 4, 2, 1}));
}

TEST(Discovery, NamesEveryProcessorInDesignOrder) {
  FakeHardware hw = mixed_design();
  DiscoveredEngine d;
  Names names;
  EXPECT_EQ(d.engine.GetProcessorList(&hw, names), 0);
  EXPECT_THAT(names, ElementsAre("ovrin_1", "ovrin_0", "ppc_0", "a9_0", "dsp_0"));
}

TEST(Discovery, AppendsToTheNamesOfTheCaller) {
  FakeHardware hw;
  hw.processors = {"ovrin_0"};
  DiscoveredEngine d;
  Names names = {"before"};
  EXPECT_EQ(d.engine.GetProcessorList(&hw, names), 0);
  EXPECT_THAT(names, ElementsAre("before", "ovrin_0"));
}

// A hardware manager may assign to the vector instead of appending to it.
class ReplacingHardware : public FakeHardware {
 public:
  using FakeHardware::getIpInstances;
  void getProcessorInstances(std::vector<std::string>& out, bool flag) override {
    out.clear();
    FakeHardware::getProcessorInstances(out, flag);
  }
};

TEST(Discovery, KeepsTheNamesOfTheCallerWhateverTheManagerDoesWithItsList) {
  ReplacingHardware hw;
  hw.processors = {"ovrin_0"};
  DiscoveredEngine d;
  Names names = {"before"};
  EXPECT_EQ(d.engine.GetProcessorList(&hw, names), 0);
  EXPECT_THAT(names, ElementsAre("before", "ovrin_0"));
}

TEST(Discovery, GivesEveryRecordTheDefaultSettings) {
  FakeHardware hw = mixed_design();
  DiscoveredEngine d(hw);
  ASSERT_EQ(d.imp.processorList.size(), 4U);
  for (const ProcessorInfoImp* const processor : d.imp.processorList) {
    SCOPED_TRACE(processor->name);
    expect_default_settings(*processor);
  }
}

TEST(Discovery, AsksTheHardwareOneFixedSequenceOfQuestions) {
  FakeHardware hw = mixed_design();
  DiscoveredEngine d;
  discover(d, hw);
  EXPECT_THAT(hw.questions,
              ElementsAre("getProcessorInstances false",                                               //
                          "getIpInstances 5",                                                          //
                          "getIpName odm_0", "getOdmConnectedProcessorList odm_0",                     //
                          "getPeripherals ovrin_0", "getIpName gpio_0", "getIpName uart_0",            //
                          "getIpName bridge_0", "getOdmConnectedProcessorList bridge_0",               //
                          "getIpName ppc_0",                                                           //
                          "getIpName trace_0", "getOdmConnectedProcessorList trace_0",                 //
                          "getIpInstances ovrin false", "getPeripherals ovrin_1", "getIpName gpio_0",  //
                          "getIpInstances hc9_cortexa9 false"));
}

TEST(Discovery, KeepsTheHardwareForLaterQuestions) {
  FakeHardware hw;
  DiscoveredEngine d;
  discover(d, hw);
  EXPECT_EQ(d.imp.hwManager, &hw);
}

TEST(Discovery, LeavesSelectionSettingsAndErrorTextAlone) {
  FakeHardware hw = mixed_design();
  ProcessorInfoImp selected;
  DiscoveredEngine d;
  d.imp.currentProcessor = &selected;
  selected.stubBaudRate = 9600;
  d.engine.SetCableType(Engine::ZARVEK_PARALLEL3);
  d.engine.SetErrorStr("before");
  discover(d, hw);
  EXPECT_EQ(d.imp.currentProcessor, &selected);
  EXPECT_EQ(selected.stubBaudRate, 9600);
  EXPECT_EQ(d.imp.cable->type, Engine::ZARVEK_PARALLEL3);
  EXPECT_EQ(d.error(), "before");
}

TEST(Discovery, OfAnEmptyDesignListsNothing) {
  FakeHardware hw;
  DiscoveredEngine d;
  Names names;
  EXPECT_EQ(d.engine.GetProcessorList(&hw, names), 0);
  EXPECT_THAT(names, IsEmpty());
  EXPECT_THAT(d.imp.processorList, IsEmpty());
}

TEST(Discovery, WithoutHardwareListsNothingAndDetachesIt) {
  FakeHardware hw = mixed_design();
  DiscoveredEngine d;
  discover(d, hw);
  Names names = {"before"};
  EXPECT_EQ(d.engine.GetProcessorList(nullptr, names), 0);
  EXPECT_EQ(d.imp.hwManager, nullptr);
  EXPECT_THAT(names, ElementsAre("before"));
  EXPECT_EQ(d.imp.processorList.size(), 4U);
}

TEST(Discovery, WithoutNamesAnswersTheStateOfTheEngine) {
  FakeHardware hw = mixed_design();
  DiscoveredEngine d;
  EXPECT_EQ(d.engine.GetProcessorList(&hw), d.engine.imp);
  EXPECT_EQ(d.imp.hwManager, &hw);
  EXPECT_EQ(d.imp.processorList.size(), 4U);
  EXPECT_EQ(d.engine.GetProcessorList(nullptr), d.engine.imp);
  EXPECT_EQ(d.imp.hwManager, nullptr);
}

// --- Soft processors ---

TEST(DiscoveryOfSoftProcessors, NumbersThemOnAcrossDebugModulesAndThoseWithout) {
  FakeHardware hw;
  hw.debugIps = {"odm_0", "odm_1"};
  hw.ipTypes = {{"odm_0", "odm"}, {"odm_1", "opb_odm"}, {"free", "ovrin"},
                {"a", "ovrin"},   {"b", "ovrin"},       {"c", "ovrin"}};
  hw.reached = {{"odm_0", {"a", "b"}}, {"odm_1", {"c"}}};
  DiscoveredEngine d;
  discover(d, hw);
  EXPECT_THAT(listed(d.imp), ElementsAre(Found{"a", 0, 0, 3, 1}, Found{"b", 0, 0, 3, 2}, Found{"c", 0, 0, 3, 3},
                                         Found{"free", 0, 0, 1, 4}));
}

TEST(DiscoveryOfSoftProcessors, ListsOneBehindADebugModuleOnceAndWithoutASecondNumber) {
  FakeHardware hw;
  hw.debugIps = {"odm_0"};
  hw.ipTypes = {{"a", "ovrin"}, {"b", "ovrin"}, {"c", "ovrin"}, {"odm_0", "odm"}};
  hw.reached = {{"odm_0", {"b"}}};
  DiscoveredEngine d;
  discover(d, hw);
  EXPECT_THAT(listed(d.imp), ElementsAre(Found{"b", 0, 0, 3, 1}, Found{"a", 0, 0, 1, 2}, Found{"c", 0, 0, 1, 3}));
}

TEST(DiscoveryOfSoftProcessors, ListsOneBehindADebugModuleOnceHoweverManyWithoutOneComeBeforeIt) {
  for (int count = 0; count < 100; ++count) {
    SCOPED_TRACE(count);
    FakeHardware hw;
    hw.debugIps = {"odm_0"};
    hw.ipTypes = {{"odm_0", "odm"}};
    for (int i = 0; i < count; ++i) hw.ipTypes.emplace_back("cpu_" + std::to_string(i), "ovrin");
    hw.ipTypes.emplace_back("b", "ovrin");
    hw.reached = {{"odm_0", {"b"}}};
    DiscoveredEngine d;
    discover(d, hw);
    EXPECT_EQ(d.imp.processorList.size(), static_cast<std::size_t>(count) + 1);
    EXPECT_EQ(d.imp.processorList.front()->name, "b");
  }
}

TEST(DiscoveryOfSoftProcessors, AdmitsTheStubWhereThereIsALightUart) {
  FakeHardware hw;
  hw.debugIps = {"odm_0"};
  hw.ipTypes = {{"odm_0", "odm"}, {"a", "ovrin"}, {"b", "ovrin"}, {"uart", "tfb_serial_lite"}};
  hw.reached = {{"odm_0", {"a"}}};
  hw.peripherals = {{"a", {"uart"}}, {"b", {"uart"}}};
  DiscoveredEngine d;
  discover(d, hw);
  EXPECT_THAT(listed(d.imp), ElementsAre(Found{"a", 0, 0, 135, 1}, Found{"b", 0, 0, 133, 2}));
}

TEST(DiscoveryOfSoftProcessors, ListsEveryProcessorBehindADebugModule) {
  FakeHardware hw;
  hw.debugIps = {"odm_0", "odm_1"};
  hw.ipTypes = {{"odm_0", "odm"}, {"odm_1", "odm"}, {"ppc_0", "ppc405"}};
  hw.reached = {{"odm_0", {"ppc_0"}}, {"odm_1", {"ppc_0"}}};  // listed twice: duplicates are not checked
  DiscoveredEngine d;
  discover(d, hw);
  EXPECT_THAT(listed(d.imp), ElementsAre(Found{"ppc_0", 0, 0, 3, 1}, Found{"ppc_0", 0, 0, 3, 2}));
}

TEST(DiscoveryOfSoftProcessors, ComparesNamesByteForByte) {
  FakeHardware hw;
  hw.debugIps = {"odm_0"};
  hw.ipTypes = {{"OVRIN_0", "ovrin"}, {"odm_0", "odm"}, {"twice", "ovrin"}, {"twice", "ovrin"}};
  hw.reached = {{"odm_0", {"ovrin_0"}}};
  DiscoveredEngine d;
  discover(d, hw);
  EXPECT_THAT(listed(d.imp),
              ElementsAre(Found{"ovrin_0", 0, 0, 3, 1}, Found{"OVRIN_0", 0, 0, 1, 2}, Found{"twice", 0, 0, 1, 3}));
}

TEST(DiscoveryOfSoftProcessors, SkipsOneWhoseNameAnyListedRecordHas) {
  FakeHardware hw;
  hw.ipTypes = {{"listed", "ovrin"}, {"new", "ovrin"}};
  DiscoveredEngine d;
  d.list("listed").procFamily = 2;
  discover(d, hw);
  ASSERT_EQ(d.imp.processorList.size(), 2U);
  EXPECT_EQ(listed(d.imp).back(), (Found{"new", 0, 0, 1, 1}));
}

// --- PowerPC ---

TEST(DiscoveryOfPowerPCs, NumbersThemOnAcrossBridges) {
  FakeHardware hw;
  hw.debugIps = {"bridge_0", "odm_0", "bridge_1"};
  hw.ipTypes = {{"bridge_0", "jtag_ppc_bridge"},
                {"bridge_1", "jtag_ppc_bridge"},
                {"odm_0", "odm"},
                {"ppc_0", "ppc405"},
                {"ppc_1", "ppc440"}};
  hw.reached = {{"bridge_0", {"ppc_0"}}, {"odm_0", {"ovrin_0"}}, {"bridge_1", {"ppc_1"}}};
  DiscoveredEngine d;
  discover(d, hw);
  EXPECT_THAT(listed(d.imp),
              ElementsAre(Found{"ppc_0", 1, 1, 3, 1}, Found{"ovrin_0", 0, 0, 3, 1}, Found{"ppc_1", 1, 2, 3, 2}));
}

TEST(DiscoveryOfPowerPCs, TellsTheVariantBy405AnywhereInTheType) {
  FakeHardware hw;
  hw.debugIps = {"bridge_0"};
  hw.ipTypes = {{"bridge_0", "jtag_ppc_bridge"},
                {"a", "405"},
                {"b", "ppc405_varnel4"},
                {"c", "xx405"},
                {"d", "ppc440"},
                {"e", "ppc4x05"},
                {"f", "ovrin"}};
  hw.reached = {{"bridge_0", {"a", "b", "c", "d", "e", "f", "unknown"}}};
  hw.peripherals = {{"a", {"uart"}}};
  DiscoveredEngine d;
  discover(d, hw);
  // An "ovrin" behind a bridge is listed as a PowerPC, and not again as a soft processor.
  EXPECT_THAT(listed(d.imp), ElementsAre(Found{"a", 1, 1, 3, 1}, Found{"b", 1, 1, 3, 2}, Found{"c", 1, 1, 3, 3},
                                         Found{"d", 1, 2, 3, 4}, Found{"e", 1, 2, 3, 5}, Found{"f", 1, 2, 3, 6},
                                         Found{"unknown", 1, 2, 3, 7}));
}

// --- Cortex-A9 ---

TEST(DiscoveryOfCortexA9s, NumbersThemFrom1AndAsksForNoStub) {
  FakeHardware hw;
  hw.processors = {"a9_0", "a9_1"};
  hw.ipTypes = {{"a9_0", "hc9_cortexa9"}, {"a9_1", "hc9_cortexa9"}};
  hw.peripherals = {{"a9_0", {"uart"}}};
  DiscoveredEngine d;
  discover(d, hw);
  EXPECT_THAT(listed(d.imp), ElementsAre(Found{"a9_0", 2, 4, 2, 1}, Found{"a9_1", 2, 4, 2, 2}));
  EXPECT_THAT(hw.questions, ElementsAre("getProcessorInstances false", "getIpInstances 5", "getIpInstances ovrin false",
                                        "getIpInstances hc9_cortexa9 false"));
}

TEST(DiscoveryOfCortexA9s, ListsThemEvenWhenTheyAreListedAlready) {
  FakeHardware hw;
  hw.debugIps = {"odm_0"};
  hw.ipTypes = {{"odm_0", "odm"}, {"a9_0", "hc9_cortexa9"}};
  hw.reached = {{"odm_0", {"a9_0"}}};
  DiscoveredEngine d;
  discover(d, hw);
  EXPECT_THAT(listed(d.imp), ElementsAre(Found{"a9_0", 0, 0, 3, 1}, Found{"a9_0", 2, 4, 2, 1}));
}

// --- Other debug IP ---

TEST(Discovery, ListsNoProcessorThatOnlyADebugIpOfAnotherTypeReaches) {
  for (const char* const type : {"", "trace", "ODM", "opb_odm2", "odm ", "axi_odm", "jtag_ppc_bridge_2"}) {
    SCOPED_TRACE(type);
    FakeHardware hw;
    hw.processors = {"dsp_0"};
    hw.debugIps = {"debug_0"};
    hw.ipTypes = {{"debug_0", type}, {"dsp_0", "dsp"}};
    hw.reached = {{"debug_0", {"dsp_0"}}};
    DiscoveredEngine d;
    Names names;
    EXPECT_EQ(d.engine.GetProcessorList(&hw, names), 0);
    EXPECT_THAT(names, ElementsAre("dsp_0"));
    EXPECT_THAT(d.imp.processorList, IsEmpty());
  }
}

// --- Numbers ---

TEST(Discovery, WrapsEachNumberAt256) {
  constexpr unsigned int kCount = 258;
  FakeHardware hw;
  hw.debugIps = {"odm_0", "bridge_0"};
  hw.ipTypes = {{"odm_0", "odm"}, {"bridge_0", "jtag_ppc_bridge"}};
  for (unsigned int i = 1; i <= kCount; ++i) {
    hw.reached["odm_0"].push_back("soft_" + std::to_string(i));
    hw.reached["bridge_0"].push_back("ppc_" + std::to_string(i));
  }
  for (unsigned int i = 1; i <= kCount; ++i) hw.ipTypes.emplace_back("free_" + std::to_string(i), "ovrin");
  for (unsigned int i = 1; i <= kCount; ++i) hw.ipTypes.emplace_back("a9_" + std::to_string(i), "hc9_cortexa9");
  DiscoveredEngine d(hw);
  ASSERT_EQ(d.imp.processorList.size(), 4 * kCount);
  for (unsigned int i = 0; i < kCount; ++i) {
    ASSERT_EQ(d.imp.processorList[i]->cpuNr, (i + 1) % 256);                        // behind the debug module
    ASSERT_EQ(d.imp.processorList[kCount + i]->cpuNr, (i + 1) % 256);               // PowerPC
    ASSERT_EQ(d.imp.processorList[2 * kCount + i]->cpuNr, (kCount + i + 1) % 256);  // without a debug module
    ASSERT_EQ(d.imp.processorList[3 * kCount + i]->cpuNr, (i + 1) % 256);           // Cortex-A9
  }
}

// --- A second discovery ---

TEST(Discovery, ASecondTimeAppendsAllButTheSoftProcessorsWithoutADebugModule) {
  FakeHardware hw = mixed_design();
  DiscoveredEngine d;
  Names names;
  EXPECT_EQ(d.engine.GetProcessorList(&hw, names), 0);
  EXPECT_EQ(d.engine.GetProcessorList(&hw, names), 0);
  EXPECT_THAT(names, ElementsAre("ovrin_1", "ovrin_0", "ppc_0", "a9_0", "dsp_0",  //
                                 "ovrin_1", "ovrin_0", "ppc_0", "a9_0", "dsp_0"));
  EXPECT_THAT(listed(d.imp),
              ElementsAre(Found{"ovrin_0", 0, 0, 135, 1}, Found{"ppc_0", 1, 1, 3, 1}, Found{"ovrin_1", 0, 0, 1, 2},
                          Found{"a9_0", 2, 4, 2, 1}, Found{"ovrin_0", 0, 0, 135, 1}, Found{"ppc_0", 1, 1, 3, 1},
                          Found{"a9_0", 2, 4, 2, 1}));
}

TEST(Discovery, ASecondTimeKeepsTheFirstRecordsAsTheyAre) {
  FakeHardware hw = mixed_design();
  DiscoveredEngine d(hw);
  const std::vector<ProcessorInfoImp*> first = d.imp.processorList;
  first[0]->stubBaudRate = 9600;
  discover(d, hw);
  ASSERT_GE(d.imp.processorList.size(), first.size());
  EXPECT_TRUE(std::equal(first.begin(), first.end(), d.imp.processorList.begin()));
  EXPECT_EQ(first[0]->stubBaudRate, 9600);
}

// --- Failures of the hardware, size ---

class FailingHardware : public FakeHardware {
 public:
  std::string getIpName(const std::string& instance) override {
    if (instance == "ppc_0") throw std::runtime_error("the design is gone");
    return FakeHardware::getIpName(instance);
  }
};

TEST(Discovery, PassesAFailureOfTheHardwareOnAndListsNothingOfIt) {
  FailingHardware failing;
  static_cast<FakeHardware&>(failing) = mixed_design();
  DiscoveredEngine d;
  d.list("before");
  Names names = {"before"};
  EXPECT_THROW(d.engine.GetProcessorList(&failing, names), std::runtime_error);
  EXPECT_THAT(listed(d.imp), ElementsAre(Found{"before", 0, 0, 1, 1}));
  EXPECT_THAT(names, ElementsAre("before"));

  // The next one lists everything, once.
  FakeHardware hw = mixed_design();
  EXPECT_EQ(d.engine.GetProcessorList(&hw, names), 0);
  EXPECT_EQ(d.imp.processorList.size(), 5U);
  EXPECT_EQ(names.size(), 6U);
}

TEST(Discovery, IsQuickForADesignWith100000SoftProcessors) {
  constexpr std::size_t kCount = 100000;
  FakeHardware hw;
  hw.debugIps = {"odm_0"};
  hw.ipTypes = {{"odm_0", "odm"}};
  for (std::size_t i = 0; i < kCount; ++i) {
    const std::string name = "ovrin_" + std::to_string(i);
    hw.ipTypes.emplace_back(name, "ovrin");
    if (i % 2 == 0) hw.reached["odm_0"].push_back(name);
  }
  DiscoveredEngine d(hw);
  ASSERT_EQ(d.imp.processorList.size(), kCount);
  EXPECT_EQ(d.imp.processorList[1]->name, "ovrin_2");
  EXPECT_EQ(d.imp.processorList[kCount / 2]->name, "ovrin_1");
  EXPECT_EQ(d.imp.processorList[kCount - 1]->name, "ovrin_99999");
  EXPECT_EQ(d.imp.processorList[kCount - 1]->cpuNr, kCount % 256);
}

}  // namespace
}  // namespace SdkDebugDialog
