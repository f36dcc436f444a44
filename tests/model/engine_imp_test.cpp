// The state behind the engine: its reset, and finding a processor by name.

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdio>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <unordered_map>
#include <vector>

#include "SdkDebugDialog/EngineImp.h"
#include "model/error_text.h"
#include "model/processor_list.h"
#include "tests/support/DefaultSettings.h"
#include "tests/support/FakeHardware.h"
#include "tests/support/SelectedEngine.h"

namespace SdkDebugDialog {
namespace {

static_assert(std::is_same_v<decltype(EngineImp::hwManager), HHSMHwManager*>);
static_assert(std::is_same_v<decltype(EngineImp::processorList), std::vector<ProcessorInfoImp*>>);
static_assert(std::is_same_v<decltype(EngineImp::currentProcessor), ProcessorInfoImp*>);
static_assert(std::is_same_v<decltype(EngineImp::engine), Engine*>);
static_assert(std::is_same_v<decltype(EngineImp::cable), CableOption*>);
static_assert(std::is_same_v<decltype(EngineImp::cpuJtag), std::int32_t>);
static_assert(std::is_same_v<decltype(EngineImp::jtagChain), std::vector<JtagOption*>>);
static_assert(std::is_same_v<decltype(EngineImp::errorStr), std::string>);
static_assert(!std::is_copy_constructible_v<EngineImp> && !std::is_copy_assignable_v<EngineImp>);

// --- Reset ---

TEST(EngineImp, StartsReset) {
  const EngineImp imp;
  EXPECT_EQ(imp.hwManager, nullptr);
  EXPECT_TRUE(imp.processorList.empty());
  EXPECT_EQ(imp.currentProcessor, nullptr);
  EXPECT_EQ(imp.engine, nullptr);
  ASSERT_NE(imp.cable, nullptr);
  expect_no_link(imp);
  EXPECT_EQ(imp.errorStr, "");
}

TEST(EngineImp, ResetTakesBackTheSettings) {
  JtagOption device;
  device.partname = "dv3";
  SelectedEngine s;
  CableOption* const cable = s.imp.cable;
  s.processor.name = "ovrin_0";
  s.processor.procFamily = 1;
  s.processor.procVariant = 2;
  s.processor.allowedConnections = 135;
  s.processor.cpuNr = 9;
  s.processor.connectionType = 1;
  s.processor.command = "connect ov sim";
  s.engine.SetCableType(Engine::ZARVEK_PLATFORMUSB);
  s.engine.SetCableESN("0001");
  s.imp.cable->url = "tcp:host";
  s.engine.SetCpuJtag();
  s.imp.jtagChain = {&device};
  s.engine.SetErrorStr("before");
  s.imp.EngineImpInit();
  expect_default_settings(s.processor);
  expect_no_link(s.imp);
  EXPECT_EQ(s.error(), "");
  EXPECT_EQ(s.imp.cable, cable);
  // The identity of the processor and the device survive.
  EXPECT_EQ(s.processor.name, "ovrin_0");
  EXPECT_EQ(s.processor.procFamily, 1U);
  EXPECT_EQ(s.processor.procVariant, 2U);
  EXPECT_EQ(s.processor.allowedConnections, 135U);
  EXPECT_EQ(s.processor.cpuNr, 9);
  EXPECT_EQ(device.partname, "dv3");
}

TEST(EngineImp, ResetKeepsHardwareListAndSelection) {
  FakeHardware hw;
  SelectedEngine s;
  ProcessorInfoImp other;
  other.stubBaudRate = 9600;
  s.imp.hwManager = &hw;
  s.imp.processorList = {&other, &s.processor};
  s.imp.EngineImpInit();
  EXPECT_EQ(s.imp.hwManager, &hw);
  EXPECT_EQ(s.imp.processorList, (std::vector<ProcessorInfoImp*>{&other, &s.processor}));
  EXPECT_EQ(s.imp.currentProcessor, &s.processor);
  EXPECT_EQ(s.imp.engine, &s.engine);
  EXPECT_EQ(other.stubBaudRate, 9600);
  EXPECT_TRUE(hw.questions.empty());
}

TEST(EngineImp, ResetWorksWithoutASelectedProcessor) {
  Engine engine;
  engine.SetCableType(Engine::ZARVEK_PARALLEL4);
  engine.SetCpuJtag();
  engine.SetErrorStr("before");
  engine.imp->EngineImpInit();
  expect_no_link(*engine.imp);
  EXPECT_EQ(engine.imp->errorStr, "");
  EXPECT_EQ(engine.imp->currentProcessor, nullptr);
}

// --- Error text ---

TEST(EngineImp, FormatsErrorTextsOfUpTo2047Characters) {
  SelectedEngine s;
  for (const std::size_t length : {0U, 1U, 2044U, 2045U, 2046U, 2047U, 100000U}) {
    SCOPED_TRACE(length);
    const std::string name(length, 'x');
    set_error(s.imp, "<%s>", name.c_str());
    EXPECT_EQ(s.error(), ("<" + name + ">").substr(0, 2047));
  }
}

// --- Finding a processor by name ---

TEST(ProcessorList, FindsNothingInAnEmptyList) {
  EngineImp imp;
  EXPECT_EQ(find_listed(imp, ""), nullptr);
  EXPECT_EQ(find_listed(imp, "ovrin_0"), nullptr);
}

TEST(ProcessorList, ComparesByteForByte) {
  DiscoveredEngine d;
  const ProcessorInfoImp* const ovrin = &d.list("ovrin_0");
  const ProcessorInfoImp* const zero = &d.list(std::string("ovrin_0\0x", 9));
  const ProcessorInfoImp* const nameless = &d.list("");
  const ProcessorInfoImp* const blank = &d.list(" ovrin_0");
  EXPECT_EQ(find_listed(d.imp, "ovrin_0"), ovrin);
  EXPECT_EQ(find_listed(d.imp, std::string("ovrin_0\0x", 9)), zero);
  EXPECT_EQ(find_listed(d.imp, ""), nameless);
  EXPECT_EQ(find_listed(d.imp, " ovrin_0"), blank);
  for (const char* const name : {"OVRIN_0", "Ovrin_0", "ovrin_0 ", "ovrin_", "ovrin_00", "\tovrin_0"}) {
    EXPECT_EQ(find_listed(d.imp, name), nullptr) << name;
  }
}

TEST(ProcessorList, TakesTheFirstOfSeveralWithOneName) {
  DiscoveredEngine d;
  d.list("other");
  const ProcessorInfoImp* const first = &d.list("twice");
  d.list("twice");
  EXPECT_EQ(find_listed(d.imp, "twice"), first);
  EXPECT_EQ(find_listed(d.imp, "twice"), first);
}

TEST(ProcessorList, SeesWhatWasAppended) {
  DiscoveredEngine d;
  d.list("a");
  EXPECT_EQ(find_listed(d.imp, "b"), nullptr);
  const ProcessorInfoImp* const b = &d.list("b");
  EXPECT_EQ(find_listed(d.imp, "b"), b);
}

TEST(ProcessorList, FindsEveryoneWhileTheListGrows) {
  DiscoveredEngine d;
  std::vector<const ProcessorInfoImp*> records;
  for (int i = 0; i < 600; ++i) {
    records.push_back(&d.list("ovrin_" + std::to_string(i)));
    d.list("ovrin_" + std::to_string(i / 2));
    ASSERT_EQ(find_listed(d.imp, "ovrin_" + std::to_string(i + 1)), nullptr) << i;
    for (int k = 0; k <= i; k += 7) {
      const std::string name = "ovrin_" + std::to_string(k);
      ASSERT_EQ(find_listed(d.imp, name), records[static_cast<std::size_t>(k)]) << i << ' ' << k;
    }
  }
}

// Names with a common prefix, a common suffix or the same length.
TEST(ProcessorList, TellsNamesOfAnyLengthApart) {
  DiscoveredEngine d;
  std::vector<std::string> names;
  for (std::size_t length = 0; length <= 40; ++length) {
    names.emplace_back(length, 'a');
    for (std::size_t i = 0; i < length; ++i) {
      names.emplace_back(length, 'a');
      names.back()[i] = 'b';
    }
  }
  std::vector<const ProcessorInfoImp*> records;
  records.reserve(names.size());
  for (const std::string& name : names) records.push_back(&d.list(name));
  for (std::size_t i = 0; i < names.size(); ++i) EXPECT_EQ(find_listed(d.imp, names[i]), records[i]) << names[i];
  for (std::string name : names) {
    name += 'c';
    EXPECT_EQ(find_listed(d.imp, name), nullptr) << name;
  }
}

// A caller may change the list in any way between two look-ups.
class ProcessorListChangedByHand : public testing::Test {
 protected:
  ProcessorListChangedByHand() {
    for (const auto& [record, name] :
         {std::pair(&a, "a"), std::pair(&b, "b"), std::pair(&c, "c"), std::pair(&otherB, "b")}) {
      record->name = name;
    }
    imp.processorList = {&a, &b, &c};
    EXPECT_EQ(find_listed(imp, "a"), &a);
    EXPECT_EQ(find_listed(imp, "b"), &b);
    EXPECT_EQ(find_listed(imp, "c"), &c);
  }

  ProcessorInfoImp a;
  ProcessorInfoImp b;
  ProcessorInfoImp c;
  ProcessorInfoImp otherB;
  EngineImp imp;
};

TEST_F(ProcessorListChangedByHand, FindsNothingAfterItWasEmptied) {
  imp.processorList.clear();
  EXPECT_EQ(find_listed(imp, "a"), nullptr);
  EXPECT_EQ(find_listed(imp, "b"), nullptr);
}

TEST_F(ProcessorListChangedByHand, FindsTheRestAfterOneWasTakenOut) {
  imp.processorList.erase(imp.processorList.begin());
  EXPECT_EQ(find_listed(imp, "a"), nullptr);
  EXPECT_EQ(find_listed(imp, "b"), &b);
  EXPECT_EQ(find_listed(imp, "c"), &c);
}

TEST_F(ProcessorListChangedByHand, FindsAllAfterOneWasPutInFront) {
  imp.processorList.insert(imp.processorList.begin(), &otherB);
  EXPECT_EQ(find_listed(imp, "a"), &a);
  EXPECT_EQ(find_listed(imp, "b"), &otherB);
  EXPECT_EQ(find_listed(imp, "c"), &c);
}

TEST_F(ProcessorListChangedByHand, FindsAllAfterItWasTurnedAround) {
  imp.processorList = {&c, &b, &a};
  EXPECT_EQ(find_listed(imp, "a"), &a);
  EXPECT_EQ(find_listed(imp, "b"), &b);
  EXPECT_EQ(find_listed(imp, "c"), &c);
}

TEST_F(ProcessorListChangedByHand, TakesTheFirstAfterItWasTurnedAroundWithTwoOfOneName) {
  imp.processorList = {&a, &b, &otherB};
  EXPECT_EQ(find_listed(imp, "b"), &b);
  imp.processorList = {&otherB, &a, &b};
  EXPECT_EQ(find_listed(imp, "b"), &otherB);
}

TEST_F(ProcessorListChangedByHand, FindsTheRecordThatReplacedAnotherOfTheSameName) {
  imp.processorList[1] = &otherB;
  EXPECT_EQ(find_listed(imp, "b"), &otherB);
}

TEST_F(ProcessorListChangedByHand, FindsTheRecordThatReplacedAnotherOfAnotherName) {
  ProcessorInfoImp d;
  d.name = "d";
  imp.processorList[1] = &d;
  EXPECT_EQ(find_listed(imp, "b"), nullptr);
  EXPECT_EQ(find_listed(imp, "d"), &d);
  EXPECT_EQ(find_listed(imp, "a"), &a);
}

TEST_F(ProcessorListChangedByHand, FindsARecordByTheNameThatItWasGiven) {
  b.name = "a name of more than sixteen characters";
  EXPECT_EQ(find_listed(imp, b.name), &b);
  EXPECT_EQ(find_listed(imp, "b"), nullptr);
}

TEST(ProcessorList, IsQuickInAListOf100000) {
  constexpr int kCount = 100000;
  const auto records = std::make_unique<ProcessorInfoImp[]>(kCount);
  EngineImp imp;
  for (int i = 0; i < kCount; ++i) {
    records[static_cast<std::size_t>(i)].name = "ovrin_" + std::to_string(i);
    imp.processorList.push_back(&records[static_cast<std::size_t>(i)]);
  }
  // A linear search for each name would take minutes.
  for (int i = kCount - 1; i >= 0; --i) {
    ASSERT_EQ(find_listed(imp, "ovrin_" + std::to_string(i)), &records[static_cast<std::size_t>(i)]);
  }
}

}  // namespace
}  // namespace SdkDebugDialog
