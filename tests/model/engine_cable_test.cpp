// The cable and the JTAG chain of the engine.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "SdkDebugDialog/Engine.h"
#include "SdkDebugDialog/EngineImp.h"
#include "tests/support/DefaultSettings.h"
#include "tests/support/SelectedEngine.h"

namespace SdkDebugDialog {
namespace {

using Chain = std::vector<JtagOption*>;

// Every way in which a processor can be connected, and whether that way has a cable.
struct Use {
  unsigned int connection;
  unsigned int stub;
  bool cable;
};

constexpr Use kUses[] = {
    {1, 0, false},   {1, 1, false}, {8, 0, false},  {8, 1, false}, {2, 1, false}, {4, 1, false},
    {132, 1, false}, {0, 1, false}, {2, 0, true},   {2, 2, true},  {4, 0, true},  {0, 0, true},
    {3, 0, true},    {9, 0, true},  {132, 0, true}, {10, 7, true},
};

template <class Check>
void for_each_use(SelectedEngine& s, Check check) {
  for (const Use& use : kUses) {
    SCOPED_TRACE(testing::Message() << "connection " << use.connection << " stub " << use.stub);
    s.processor.connectionType = use.connection;
    s.processor.stubType = use.stub;
    check(use.cable);
  }
}

// --- Cable type ---

TEST(EngineCable, OfANewTypeStartsWithItsDefaultsAndNothingElse) {
  SelectedEngine s;
  s.imp.cable->fname = "out.svf";
  s.imp.cable->modulename = "module";
  s.imp.cable->modulearg = "a;b";
  s.imp.cable->url = "tcp:host";
  ASSERT_EQ(s.engine.SetCableESN("0001"), 0);
  EXPECT_EQ(s.engine.SetCableType(Engine::ZARVEK_PLATFORMUSB), 0);
  EXPECT_EQ(s.imp.cable->type, Engine::ZARVEK_PLATFORMUSB);
  EXPECT_EQ(s.imp.cable->frequency, 6000000U);
  EXPECT_EQ(s.imp.cable->port, "USB21");
  EXPECT_EQ(s.imp.cable->esn, "");
  EXPECT_EQ(s.imp.cable->fname, "");
  EXPECT_EQ(s.imp.cable->modulename, "");
  EXPECT_EQ(s.imp.cable->modulearg, "");
  EXPECT_EQ(s.imp.cable->url, "");
}

TEST(EngineCable, TypeMayLieOutsideTheCatalogue) {
  SelectedEngine s;
  s.imp.cable->CableOptionInit(Engine::ZARVEK_PARALLEL4);
  EXPECT_EQ(s.engine.SetCableType(static_cast<Engine::CableType>(0xFFFFFFFF)), 0);
  auto type = Engine::CABLE_NONE;
  EXPECT_EQ(s.engine.GetCableType(type), 0);
  EXPECT_EQ(type, 0xFFFFFFFFU);
  EXPECT_EQ(s.imp.cable->frequency, 0U);
  EXPECT_EQ(s.imp.cable->port, "");
}

TEST(EngineCable, TypeIsReadBackWhereACableIsInUse) {
  SelectedEngine s;
  s.engine.SetCableType(Engine::ZARVEK_PARALLEL3);
  for_each_use(s, [&](bool cable) {
    auto type = static_cast<Engine::CableType>(77);
    EXPECT_EQ(s.engine.GetCableType(type), cable ? 0 : 2);
    EXPECT_EQ(type, cable ? 4 : 77);
  });
}

TEST(EngineCable, TypeOfNoCableIsAnAnswer) {
  SelectedEngine s;
  auto type = Engine::ZARVEK_TCF;
  EXPECT_EQ(s.engine.GetCableType(type), 0);
  EXPECT_EQ(type, Engine::CABLE_NONE);
}

TEST(EngineCable, TypeByNameIsAlwaysOne) {
  SelectedEngine s;
  for (const char* const name : {"", "zarvek_platformusb", "zarvek_svffile", "no such cable"}) {
    EXPECT_EQ(s.engine.GetCableType(std::string(name)), 1U);
  }
}

TEST(EngineCable, NameIsAlwaysEmpty) {
  SelectedEngine s;
  for (unsigned int type = 0; type < 10; ++type) {
    EXPECT_EQ(s.engine.GetCableName(static_cast<Engine::CableType>(type)), "");
  }
}

// --- Speed ---

TEST(EngineCable, SpeedIsStoredUncheckedAndReadBackWhereACableIsInUse) {
  SelectedEngine s;
  s.engine.SetCableType(Engine::ZARVEK_PARALLEL3);
  EXPECT_EQ(s.engine.SetCableSpeed(4294967295), 0);
  for_each_use(s, [&](bool cable) {
    unsigned int speed = 77;
    EXPECT_EQ(s.engine.GetCableSpeed(speed), cable ? 0 : 2);
    EXPECT_EQ(speed, cable ? 4294967295 : 77);
  });
}

TEST(EngineCable, SpeedOfZeroIsNotSetButCopied) {
  SelectedEngine s;
  s.engine.SetCableSpeed(0);
  for_each_use(s, [&](bool cable) {
    unsigned int speed = 77;
    EXPECT_EQ(s.engine.GetCableSpeed(speed), cable ? 1 : 2);
    EXPECT_EQ(speed, cable ? 0 : 77);
  });
}

TEST(EngineCable, SpeedOfAPluginIsNotSetButCopied) {
  SelectedEngine s;
  s.engine.SetCableSpeed(5);
  s.engine.SetCableType(Engine::ZARVEK_PLUGIN);
  unsigned int speed = 77;
  EXPECT_EQ(s.engine.GetCableSpeed(speed), 1);
  EXPECT_EQ(speed, 0U);
}

// --- Port and serial number ---

struct Text {
  const char* name;
  int (Engine::*set)(std::string);
  int (Engine::*get)(std::string&);
  std::string CableOption::*field;
};

constexpr Text kTexts[] = {
    {"port", &Engine::SetCablePort, &Engine::GetCablePort, &CableOption::port},
    {"esn", &Engine::SetCableESN, &Engine::GetCableESN, &CableOption::esn},
};

TEST(EngineCable, PortAndSerialNumberAreStoredUncheckedAndReadBackWhereACableIsInUse) {
  for (const Text& text : kTexts) {
    SCOPED_TRACE(text.name);
    SelectedEngine s;
    EXPECT_EQ((s.engine.*text.set)("any text"), 0);
    EXPECT_EQ((*s.imp.cable).*text.field, "any text");
    for_each_use(s, [&](bool cable) {
      std::string got = "before";
      EXPECT_EQ((s.engine.*text.get)(got), cable ? 0 : 2);
      EXPECT_EQ(got, cable ? "any text" : "before");
    });
  }
}

TEST(EngineCable, AnEmptyPortOrSerialNumberIsNotSetButCopied) {
  for (const Text& text : kTexts) {
    SCOPED_TRACE(text.name);
    SelectedEngine s;
    EXPECT_EQ((s.engine.*text.set)("any text"), 0);
    EXPECT_EQ((s.engine.*text.set)(""), 0);
    for_each_use(s, [&](bool cable) {
      std::string got = "before";
      EXPECT_EQ((s.engine.*text.get)(got), cable ? 1 : 2);
      EXPECT_EQ(got, cable ? "" : "before");
    });
  }
}

TEST(EngineCable, AccessorsStoreNoErrorText) {
  SelectedEngine s;
  s.engine.SetErrorStr("before");
  for_each_use(s, [&](bool /*cable*/) {
    auto type = Engine::CABLE_NONE;
    unsigned int speed = 0;
    std::string text;
    s.engine.GetCableType(type);
    s.engine.GetCableSpeed(speed);
    s.engine.GetCablePort(text);
    s.engine.GetCableESN(text);
    EXPECT_EQ(s.error(), "before");
  });
}

// --- A caller's cable record ---

CableOption used_cable() {
  CableOption cable;
  cable.type = Engine::ZARVEK_PARALLEL3;
  cable.frequency = 1;
  cable.port = "COM1";
  cable.esn = "0001";
  cable.fname = "out.svf";
  cable.modulename = "module";
  cable.modulearg = "a;b";
  cable.url = "tcp:host";
  return cable;
}

void expect_cable(const CableOption& cable, unsigned int type, unsigned int frequency, const char* port) {
  EXPECT_EQ(cable.type, type);
  EXPECT_EQ(cable.frequency, frequency);
  EXPECT_EQ(cable.port, port);
  EXPECT_EQ(cable.esn, "0001");
  EXPECT_EQ(cable.fname, "out.svf");
  EXPECT_EQ(cable.modulename, "module");
  EXPECT_EQ(cable.modulearg, "a;b");
  EXPECT_EQ(cable.url, "tcp:host");
}

TEST(EngineCallersCable, OfAnyTypeButThePluginTakesTypeFrequencyAndPort) {
  for (const unsigned int type : {0U, 1U, 2U, 3U, 4U, 6U, 7U, 8U, 0xFFFFFFFFU}) {
    SCOPED_TRACE(type);
    CableOption cable = used_cable();
    EXPECT_EQ(Engine::SetZarvekCableOptions(cable, static_cast<Engine::CableType>(type), 1234, "any"), 0);
    expect_cable(cable, type, 1234, "any");
  }
}

TEST(EngineCallersCable, IsRefusedForThePluginAndStaysAsItWas) {
  CableOption cable = used_cable();
  EXPECT_EQ(Engine::SetZarvekCableOptions(cable, Engine::ZARVEK_PLUGIN, 1234, "any"), 1);
  expect_cable(cable, 4, 1, "COM1");
}

TEST(EngineCallersCable, OfTheDigilentPluginTakesTheTypeAlone) {
  CableOption cable = used_cable();
  EXPECT_EQ(Engine::SetDigilentCableOptions(cable, Engine::DIGILENT_PLUGIN, 1234, "any"), 0);
  expect_cable(cable, 6, 1, "COM1");
}

TEST(EngineCallersCable, IsRefusedAsADigilentPluginForEveryOtherType) {
  for (const unsigned int type : {0U, 1U, 2U, 3U, 4U, 5U, 7U, 8U, 0xFFFFFFFFU}) {
    SCOPED_TRACE(type);
    CableOption cable = used_cable();
    EXPECT_EQ(Engine::SetDigilentCableOptions(cable, static_cast<Engine::CableType>(type), 1234, "any"), 1);
    expect_cable(cable, 4, 1, "COM1");
  }
}

// --- The JTAG chain ---

// The engine does not own the devices, so they may be local variables.
class EngineChain : public testing::Test {
 protected:
  EngineChain() { engine.imp->currentProcessor = &processor; }

  JtagOption first;
  JtagOption second;
  ProcessorInfoImp processor;
  Engine engine;
};

TEST_F(EngineChain, IsSharedWithTheVectorThatIsSet) {
  Chain chain = {&first, &second};
  EXPECT_EQ(engine.SetJtagChainOptions(chain), 0);
  EXPECT_EQ(engine.imp->jtagChain, (Chain{&first, &second}));
  EXPECT_EQ(chain, (Chain{&first, &second}));
  chain.clear();
  EXPECT_EQ(engine.imp->jtagChain, (Chain{&first, &second}));
}

TEST_F(EngineChain, IsReplacedAndNotExtended) {
  Chain chain = {&first, &second};
  engine.SetJtagChainOptions(chain);
  chain = {&second};
  EXPECT_EQ(engine.SetJtagChainOptions(chain), 0);
  EXPECT_EQ(engine.imp->jtagChain, Chain{&second});
  chain.clear();
  EXPECT_EQ(engine.SetJtagChainOptions(chain), 0);
  EXPECT_TRUE(engine.imp->jtagChain.empty());
}

TEST_F(EngineChain, ComesOutEmptyWhenItIsSetFromItself) {
  engine.imp->jtagChain = {&first, &second};
  EXPECT_EQ(engine.SetJtagChainOptions(engine.imp->jtagChain), 0);
  EXPECT_TRUE(engine.imp->jtagChain.empty());
}

TEST_F(EngineChain, IsReadBackWhereItIsInUse) {
  engine.imp->jtagChain = {&first, &second};
  for (const Use& use : kUses) {
    SCOPED_TRACE(testing::Message() << "connection " << use.connection << " stub " << use.stub);
    processor.connectionType = use.connection;
    processor.stubType = use.stub;
    Chain chain = {nullptr};
    const bool used = use.connection != 1 && use.stub != 1;  // the virtual platform is not refused here
    EXPECT_EQ(engine.GetJtagChainOptions(chain), used ? 0 : 2);
    EXPECT_EQ(chain, used ? (Chain{&first, &second}) : Chain{nullptr});
  }
}

TEST_F(EngineChain, ThatIsEmptyIsNotSetAndNotCopied) {
  for (const Use& use : kUses) {
    processor.connectionType = use.connection;
    processor.stubType = use.stub;
    Chain chain = {&first};
    EXPECT_EQ(engine.GetJtagChainOptions(chain), use.connection != 1 && use.stub != 1 ? 1 : 2);
    EXPECT_EQ(chain, Chain{&first});
  }
}

TEST_F(EngineChain, ReadFromOneEngineAndSetInAnotherSharesTheRecords) {
  first.partname = "dv3";
  {
    Engine other;
    ProcessorInfoImp otherProcessor;
    other.imp->currentProcessor = &otherProcessor;
    other.imp->jtagChain = {&first, &second};
    Chain chain;
    ASSERT_EQ(other.GetJtagChainOptions(chain), 0);
    EXPECT_EQ(engine.SetJtagChainOptions(chain), 0);
    EXPECT_EQ(engine.imp->jtagChain, other.imp->jtagChain);
  }
  EXPECT_EQ(engine.imp->jtagChain, (Chain{&first, &second}));
  EXPECT_EQ(first.partname, "dv3");
}

}  // namespace
}  // namespace SdkDebugDialog
