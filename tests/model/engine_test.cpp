// The engine: types, construction, error text, connection, stub, debug device and simulator file.

#include "SdkDebugDialog/Engine.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <type_traits>
#include <vector>

#include "SdkDebugDialog/EngineImp.h"
#include "tests/support/DefaultSettings.h"
#include "tests/support/SelectedEngine.h"

namespace SdkDebugDialog {
namespace {

// --- Types ---

static_assert(std::is_same_v<std::underlying_type_t<Engine::ConnectionType>, unsigned int>);
static_assert(std::is_same_v<std::underlying_type_t<Engine::StubType>, unsigned int>);
static_assert(std::is_same_v<std::underlying_type_t<Engine::CableType>, unsigned int>);
static_assert(sizeof(Engine::ConnectionType) == 4 && sizeof(Engine::StubType) == 4 && sizeof(Engine::CableType) == 4);
static_assert(std::is_convertible_v<Engine::ConnectionType, unsigned int>);  // unscoped
static_assert(std::is_convertible_v<Engine::StubType, unsigned int>);
static_assert(std::is_convertible_v<Engine::CableType, unsigned int>);

static_assert(Engine::SIMULATOR == 1 && Engine::HARDWARE == 2 && Engine::STUB == 4 && Engine::VIRTUAL_PLATFORM == 8);
static_assert(Engine::ODM_TARGET == 16 && Engine::QMTC_TARGET == 32);
static_assert(Engine::STUB_JTAG_PRESENT == 64 && Engine::STUB_UART_PRESENT == 128);
static_assert(Engine::DCC_TARGET == 256 && Engine::DAP_TARGET == 512);
static_assert(Engine::STUB_OVER_JTAG == 0 && Engine::STUB_OVER_SERIAL == 1);
static_assert(Engine::CABLE_NONE == 0 && Engine::ZARVEK_SVFFILE == 1 && Engine::ZARVEK_PARALLEL4 == 2 &&
              Engine::ZARVEK_PLATFORMUSB == 3 && Engine::ZARVEK_PARALLEL3 == 4 && Engine::ZARVEK_PLUGIN == 5 &&
              Engine::DIGILENT_PLUGIN == 6 && Engine::ZARVEK_TCF == 7);

static_assert(!std::is_polymorphic_v<Engine> && !std::is_polymorphic_v<EngineImp>);
static_assert(!std::is_copy_constructible_v<Engine> && !std::is_copy_assignable_v<Engine>);
static_assert(std::is_same_v<decltype(Engine::imp), EngineImp*>);
static_assert(std::is_same_v<decltype(Engine::partName), std::string>);

constexpr unsigned int kConnections[] = {0, 1, 2, 3, 4, 6, 8, 16, 32, 64, 128, 132, 256, 512, 0x80000000};

Engine::ConnectionType connection(unsigned int value) { return static_cast<Engine::ConnectionType>(value); }

// --- Construction ---

TEST(Engine, StartsWithoutHardwareProcessorsAndCable) {
  Engine engine;
  ASSERT_NE(engine.imp, nullptr);
  const EngineImp& imp = *engine.imp;
  EXPECT_EQ(imp.hwManager, nullptr);
  EXPECT_TRUE(imp.processorList.empty());
  EXPECT_EQ(imp.currentProcessor, nullptr);
  EXPECT_EQ(imp.engine, &engine);
  ASSERT_NE(imp.cable, nullptr);
  expect_no_link(imp);
  EXPECT_EQ(imp.errorStr, "");
}

TEST(Engine, StartsWithThePartNameOfTheDesign) {
  const Engine engine;
  EXPECT_EQ(engine.partName, "zd4qa25");
}

TEST(Engine, HoldsItsStateBeforeThePartName) {
  const Engine engine;
  const void* const imp = &engine.imp;
  const void* const partName = &engine.partName;
  EXPECT_TRUE(std::less<>()(imp, partName));
}

TEST(Engine, HasAStateOfItsOwn) {
  Engine first;
  Engine second;
  EXPECT_NE(first.imp, second.imp);
  EXPECT_NE(first.imp->cable, second.imp->cable);
  first.SetErrorStr("first");
  EXPECT_EQ(second.imp->errorStr, "");
}

TEST(Engine, LeavesTheRecordsAloneWhenItIsDestroyed) {
  ProcessorInfoImp processor;
  JtagOption device;
  device.partname = "dv3";
  {
    Engine engine;
    engine.imp->processorList = {&processor};
    engine.imp->currentProcessor = &processor;
    engine.imp->jtagChain = {&device};
    processor.name = "ovrin_0";
  }
  EXPECT_EQ(processor.name, "ovrin_0");
  EXPECT_EQ(device.partname, "dv3");
}

// --- Error text ---

TEST(EngineErrorText, IsReplacedAndCopied) {
  Engine engine;
  std::string text = "one";
  engine.SetErrorStr(text);
  engine.SetErrorStr("two");
  std::string first;
  std::string second;
  engine.GetErrorStr(first);
  engine.GetErrorStr(second);
  EXPECT_EQ(first, "two");
  EXPECT_EQ(second, "two");
  EXPECT_EQ(text, "one");
}

TEST(EngineErrorText, EndsAtTheZeroOfACharacterArrayButNotOfAString) {
  SelectedEngine s;
  s.engine.SetErrorStr("ab\0cd");
  EXPECT_EQ(s.error(), "ab");
  std::string text("ab\0cd", 5);
  s.engine.SetErrorStr(text);
  EXPECT_EQ(s.error(), text);
}

TEST(EngineErrorText, IsEmptiedByANullPointer) {
  SelectedEngine s;
  s.engine.SetErrorStr("before");
  s.engine.SetErrorStr(nullptr);
  EXPECT_EQ(s.error(), "");
}

TEST(EngineErrorText, MayBeSetFromItself) {
  SelectedEngine s;
  s.engine.SetErrorStr("a text that is too long to be kept within the string itself");
  s.engine.SetErrorStr(s.imp.errorStr);
  s.engine.SetErrorStr(s.imp.errorStr.c_str() + 2);
  EXPECT_EQ(s.error(), "text that is too long to be kept within the string itself");
}

TEST(EngineErrorText, OfTheLastFailureSurvivesASuccess) {
  SelectedEngine s;
  ASSERT_EQ(s.engine.SetTlbBaseAddr(1), 1);
  ASSERT_EQ(s.engine.SetTlbBaseAddr(0), 0);
  EXPECT_EQ(s.error(), "TLB Start Address should be aligned at 64k boundry");
}

TEST(EngineErrorText, IsEmptyAfterAReset) {
  SelectedEngine s;
  s.engine.SetErrorStr("before");
  s.imp.EngineImpInit();
  EXPECT_EQ(s.error(), "");
}

// --- Connection ---

TEST(EngineConnection, ThatTheProcessorDoesNotAdmitIsRefusedSilently) {
  SelectedEngine s;
  s.processor.allowedConnections = 1;
  s.engine.SetErrorStr("before");
  s.processor.connectionType = 8;
  EXPECT_EQ(s.engine.SetConnectionType(Engine::HARDWARE), 1);
  EXPECT_EQ(s.processor.connectionType, 8U);
  EXPECT_EQ(s.error(), "before");
}

TEST(EngineConnection, NeedsOneBitInCommonWithWhatIsAdmitted) {
  SelectedEngine s;
  s.processor.allowedConnections = 1;
  EXPECT_EQ(s.engine.SetConnectionType(connection(3)), 0);
  EXPECT_EQ(s.processor.connectionType, 3U);
}

TEST(EngineConnection, IsStoredExactlyWhenABitIsShared) {
  for (const unsigned int allowed : kConnections) {
    for (const unsigned int wanted : kConnections) {
      SCOPED_TRACE(testing::Message() << wanted << " where " << allowed << " is admitted");
      SelectedEngine s;
      s.processor.allowedConnections = allowed;
      const bool shared = (allowed & wanted) != 0;
      EXPECT_EQ(s.engine.SetConnectionType(connection(wanted)), shared ? 0 : 1);
      EXPECT_EQ(s.processor.connectionType, shared ? wanted : 2);
      EXPECT_EQ(s.processor.allowedConnections, allowed);
      EXPECT_EQ(s.error(), "");
    }
  }
}

TEST(EngineConnection, IsReadBackUnlessItIsZero) {
  SelectedEngine s;
  for (const unsigned int value : kConnections) {
    SCOPED_TRACE(value);
    s.processor.connectionType = value;
    Engine::ConnectionType t = connection(77);
    EXPECT_EQ(s.engine.GetConnectionType(t), value == 0 ? 1 : 0);
    EXPECT_EQ(t, value == 0 ? 77 : value);
  }
}

// --- Stub ---

TEST(EngineStub, OverASerialLineNeedsAUartInTheSelectedConnection) {
  SelectedEngine s;
  s.processor.allowedConnections = 0xFF;  // has no effect on the stub type
  s.processor.connectionType = 4;
  s.processor.stubType = 7;
  EXPECT_EQ(s.engine.SetStubType(Engine::STUB_OVER_SERIAL), 1);
  EXPECT_EQ(s.error(), "UART device not present in system");
  EXPECT_EQ(s.processor.stubType, 7U);
}

TEST(EngineStub, OverJtagNeedsAJtagDeviceInTheSelectedConnection) {
  SelectedEngine s;
  s.processor.allowedConnections = 0xFF;
  s.processor.connectionType = 4;
  s.processor.stubType = 7;
  EXPECT_EQ(s.engine.SetStubType(Engine::STUB_OVER_JTAG), 1);
  EXPECT_EQ(s.error(), "JTAG device not present in system");
  EXPECT_EQ(s.processor.stubType, 7U);
}

TEST(EngineStub, OverASerialLineIsTakenWithAConnectionThatCarriesTheUart) {
  SelectedEngine s;
  s.processor.allowedConnections = 4;
  ASSERT_EQ(s.engine.SetConnectionType(connection(0x84)), 0);
  EXPECT_EQ(s.engine.SetStubType(Engine::STUB_OVER_SERIAL), 0);
  EXPECT_EQ(s.processor.stubType, 1U);
  EXPECT_EQ(s.error(), "");
  EXPECT_EQ(s.engine.SetStubType(Engine::STUB_OVER_JTAG), 1);
  EXPECT_EQ(s.error(), "JTAG device not present in system");
  EXPECT_EQ(s.processor.stubType, 1U);
}

TEST(EngineStub, OverJtagIsTakenWithAConnectionThatCarriesTheJtagDevice) {
  SelectedEngine s;
  s.processor.stubType = 1;
  s.processor.connectionType = 0x40;  // STUB_JTAG_PRESENT is enough, without STUB
  EXPECT_EQ(s.engine.SetStubType(Engine::STUB_OVER_JTAG), 0);
  EXPECT_EQ(s.processor.stubType, 0U);
  EXPECT_EQ(s.engine.SetStubType(Engine::STUB_OVER_SERIAL), 1);
  EXPECT_EQ(s.error(), "UART device not present in system");
}

TEST(EngineStub, OfAnyOtherTypeIsStoredWithoutACheck) {
  for (const unsigned int type : {2U, 3U, 0xFFFFFFFFU}) {
    SCOPED_TRACE(type);
    SelectedEngine s;
    s.processor.connectionType = 1;
    EXPECT_EQ(s.engine.SetStubType(static_cast<Engine::StubType>(type)), 0);
    EXPECT_EQ(s.processor.stubType, type);
    EXPECT_EQ(s.error(), "");
  }
}

TEST(EngineStub, TypeIsReadBackOnlyWithAStubConnection) {
  SelectedEngine s;
  s.processor.stubType = 1;
  for (const unsigned int value : kConnections) {
    SCOPED_TRACE(value);
    s.processor.connectionType = value;
    auto type = static_cast<Engine::StubType>(9);
    const bool stub = value == 4 || value == 6 || value == 132;
    EXPECT_EQ(s.engine.GetStubType(type), stub ? 0 : 2);
    EXPECT_EQ(type, stub ? 1 : 9);
  }
}

TEST(EngineStub, SerialPortIsStoredAndReadBackWhateverTheConnection) {
  SelectedEngine s;
  std::string port;
  EXPECT_EQ(s.engine.GetStubSerialPort(port), 0);
  EXPECT_EQ(port, "/dev/ttyS0");
  for (const unsigned int value : {1U, 2U, 4U, 8U}) {
    s.processor.connectionType = value;
    EXPECT_EQ(s.engine.SetStubSerialPort("COM " + std::to_string(value)), 0);
    EXPECT_EQ(s.processor.stubSerialPort, "COM " + std::to_string(value));
    EXPECT_EQ(s.engine.GetStubSerialPort(port), 0);
    EXPECT_EQ(port, "COM " + std::to_string(value));
  }
  EXPECT_EQ(s.engine.SetStubSerialPort(""), 0);
  EXPECT_EQ(s.engine.GetStubSerialPort(port), 0);
  EXPECT_EQ(port, "");
}

TEST(EngineStub, BaudRateIsNotSetOnAFreshProcessor) {
  SelectedEngine s;
  int baud = 7;
  EXPECT_EQ(s.engine.GetStubBaudRate(baud), 1);
  EXPECT_EQ(baud, 7);
}

TEST(EngineStub, BaudRateIsStoredUncheckedAndZeroMeansNotSet) {
  SelectedEngine s;
  for (const int rate : {115200, 1, -1, 2147483647, -2147483647 - 1}) {
    SCOPED_TRACE(rate);
    int baud = 7;
    EXPECT_EQ(s.engine.SetStubBaudrate(rate), 0);
    EXPECT_EQ(s.processor.stubBaudRate, rate);
    EXPECT_EQ(s.engine.GetStubBaudRate(baud), 0);
    EXPECT_EQ(baud, rate);
  }
  int baud = 7;
  EXPECT_EQ(s.engine.SetStubBaudrate(0), 0);
  EXPECT_EQ(s.engine.GetStubBaudRate(baud), 1);
  EXPECT_EQ(baud, 7);
}

// --- Debug device ---

TEST(EngineDebugDevice, KeepsTheLowEightBitsAndReadsThemBackSigned) {
  struct Row {
    int set;
    int got;
  };
  constexpr Row kRows[] = {{1, 1},   {127, 127},   {128, -128}, {200, -56},  {255, -1}, {300, 44},
                           {-1, -1}, {-128, -128}, {-129, 127}, {65535, -1}, {257, 1},  {0x7FFFFF7F, 127}};
  SelectedEngine s;
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.set);
    int device = 77;
    EXPECT_EQ(s.engine.SetDebugDevice(row.set), 0);
    EXPECT_EQ(s.processor.debugDevice, row.got);
    EXPECT_EQ(s.engine.GetDebugDevice(device), 0);
    EXPECT_EQ(device, row.got);
  }
}

TEST(EngineDebugDevice, IsNotSetWhereItsLowEightBitsAreZero) {
  SelectedEngine s;
  for (const int number : {0, 256, -256}) {
    SCOPED_TRACE(number);
    int device = 77;
    EXPECT_EQ(s.engine.SetDebugDevice(number), 0);
    EXPECT_EQ(s.processor.debugDevice, 0);
    EXPECT_EQ(s.engine.GetDebugDevice(device), 1);
    EXPECT_EQ(device, 77);
  }
}

TEST(EngineDebugDevice, DoesNotApplyToTheSimulatorOrASerialStubEvenWhenStored) {
  for (const int stored : {0, 5}) {
    for (const unsigned int value : kConnections) {
      for (const unsigned int stub : {0U, 1U, 2U}) {
        SCOPED_TRACE(testing::Message() << "connection " << value << " stub " << stub << " device " << stored);
        SelectedEngine s;
        s.engine.SetDebugDevice(stored);
        s.processor.connectionType = value;
        s.processor.stubType = stub;
        int device = 77;
        const bool applies = value != 1 && stub != 1;
        EXPECT_EQ(s.engine.GetDebugDevice(device), !applies ? 2 : stored == 0 ? 1 : 0);
        EXPECT_EQ(device, applies && stored != 0 ? 5 : 77);
      }
    }
  }
}

TEST(EngineCpuJtag, IsSetForGoodUntilAReset) {
  SelectedEngine s;
  EXPECT_EQ(s.engine.SetCpuJtag(), 0);
  EXPECT_EQ(s.engine.SetCpuJtag(), 0);
  EXPECT_EQ(s.imp.cpuJtag, 1);
  s.imp.EngineImpInit();
  EXPECT_EQ(s.imp.cpuJtag, 0);
}

// --- PowerPC simulator ---

TEST(EngineSimulatorFile, IsAcceptedAndNotStored) {
  SelectedEngine s;
  s.processor.procFamily = 1;
  s.processor.connectionType = 1;
  std::string file = "before";
  EXPECT_EQ(s.engine.SetPPCSimConfigFile("other.icf"), 0);
  EXPECT_EQ(s.engine.GetPPCSimConfigFile(file), 1);
  EXPECT_EQ(file, "before");
  s.processor.simConfigFile = "read.icf";
  EXPECT_EQ(s.engine.SetPPCSimConfigFile("other.icf"), 0);
  EXPECT_EQ(s.engine.GetPPCSimConfigFile(file), 0);
  EXPECT_EQ(file, "read.icf");
}

TEST(EngineSimulatorFile, AppliesOnlyToThePowerPCWithTheSimulator) {
  for (const char* const stored : {"", "read.icf"}) {
    for (const unsigned int family : {0U, 1U, 2U}) {
      for (const unsigned int value : kConnections) {
        SCOPED_TRACE(testing::Message() << "family " << family << " connection " << value << " '" << stored << "'");
        SelectedEngine s;
        s.processor.procFamily = family;
        s.processor.connectionType = value;
        s.processor.simConfigFile = stored;
        std::string file = "before";
        const bool applies = family == 1 && value == 1;
        const bool there = applies && *stored != '\0';
        EXPECT_EQ(s.engine.GetPPCSimConfigFile(file), !applies ? 2 : there ? 0 : 1);
        EXPECT_EQ(file, there ? "read.icf" : "before");
      }
    }
  }
}

// --- Without a selected processor ---

TEST(EngineWithoutAProcessor, RefusesEverySetterOfOne) {
  Engine engine;
  engine.SetErrorStr("before");
  EXPECT_EQ(engine.SetConnectionType(Engine::SIMULATOR), 1);
  EXPECT_EQ(engine.SetStubType(Engine::STUB_OVER_JTAG), 1);
  EXPECT_EQ(engine.SetStubType(Engine::STUB_OVER_SERIAL), 1);
  EXPECT_EQ(engine.SetStubType(static_cast<Engine::StubType>(2)), 1);
  EXPECT_EQ(engine.SetStubSerialPort("COM1"), 1);
  EXPECT_EQ(engine.SetStubBaudrate(9600), 1);
  EXPECT_EQ(engine.SetDebugDevice(1), 1);
  for (const unsigned int address : {0x10000U, 1U}) {
    EXPECT_EQ(engine.SetIcacheBaseAddr(address), 1);
    EXPECT_EQ(engine.SetDcacheBaseAddr(address), 1);
    EXPECT_EQ(engine.SetITagBaseAddr(address), 1);
    EXPECT_EQ(engine.SetDTagBaseAddr(address), 1);
    EXPECT_EQ(engine.SetTlbBaseAddr(address), 1);
    EXPECT_EQ(engine.SetDcrBaseAddr(address), 1);
  }
  EXPECT_EQ(engine.SetROMem(0, 1), 1);
  EXPECT_EQ(engine.UnSetDebugAddressMap(), 1);
  EXPECT_EQ(engine.imp->InitPPCDebugAddressMap(), 1);
  EXPECT_EQ(engine.imp->AssignAddressMap(0), 1);
  EXPECT_EQ(engine.imp->errorStr, "before");
  expect_no_link(*engine.imp);
}

TEST(EngineWithoutAProcessor, AnswersNoGetterOfOne) {
  Engine engine;
  engine.SetErrorStr("before");
  engine.imp->cable->CableOptionInit(Engine::ZARVEK_PLATFORMUSB);
  engine.imp->cable->esn = "0001";
  JtagOption device;
  engine.imp->jtagChain = {&device};

  auto type = connection(77);
  EXPECT_EQ(engine.GetConnectionType(type), 1);
  EXPECT_EQ(type, 77U);
  auto stub = static_cast<Engine::StubType>(77);
  EXPECT_EQ(engine.GetStubType(stub), 1);
  EXPECT_EQ(stub, 77U);
  int number = 77;
  EXPECT_EQ(engine.GetStubBaudRate(number), 1);
  EXPECT_EQ(engine.GetDebugDevice(number), 1);
  EXPECT_EQ(number, 77);
  auto cable = static_cast<Engine::CableType>(77);
  EXPECT_EQ(engine.GetCableType(cable), 1);
  EXPECT_EQ(cable, 77U);
  unsigned int address = 77;
  unsigned int size = 78;
  EXPECT_EQ(engine.GetCableSpeed(address), 1);
  EXPECT_EQ(engine.GetDebugAddressMap(address), 1);
  EXPECT_EQ(engine.GetIcacheBaseAddr(address), 1);
  EXPECT_EQ(engine.GetDcacheBaseAddr(address), 1);
  EXPECT_EQ(engine.GetITagBaseAddr(address), 1);
  EXPECT_EQ(engine.GetDTagBaseAddr(address), 1);
  EXPECT_EQ(engine.GetTlbBaseAddr(address), 1);
  EXPECT_EQ(engine.GetDcrBaseAddr(address), 1);
  EXPECT_EQ(engine.GetISOCMBaseAddr(address), 1);
  EXPECT_EQ(engine.GetROMem(address, size), 1);
  EXPECT_EQ(address, 77U);
  EXPECT_EQ(size, 78U);
  std::string text = "text";
  EXPECT_EQ(engine.GetStubSerialPort(text), 1);
  EXPECT_EQ(engine.GetPPCSimConfigFile(text), 1);
  EXPECT_EQ(engine.GetCablePort(text), 1);
  EXPECT_EQ(engine.GetCableESN(text), 1);
  EXPECT_EQ(engine.GenerateCmdString(text), 1);
  EXPECT_EQ(text, "text");
  std::vector<JtagOption*> chain = {nullptr};
  EXPECT_EQ(engine.GetJtagChainOptions(chain), 1);
  EXPECT_EQ(chain, std::vector<JtagOption*>{nullptr});
  EXPECT_EQ(engine.Generate(), 1);
  EXPECT_EQ(engine.imp->errorStr, "before");
}

TEST(EngineWithoutAProcessor, TakesWhatNeedsNone) {
  Engine engine;
  JtagOption device;
  std::vector<JtagOption*> chain = {&device};
  EXPECT_EQ(engine.SetCpuJtag(), 0);
  EXPECT_EQ(engine.SetPPCSimConfigFile("sim.icf"), 0);
  EXPECT_EQ(engine.SetCableType(Engine::ZARVEK_PARALLEL4), 0);
  EXPECT_EQ(engine.SetCableSpeed(7), 0);
  EXPECT_EQ(engine.SetCablePort("LPT2"), 0);
  EXPECT_EQ(engine.SetCableESN("0001"), 0);
  EXPECT_EQ(engine.SetJtagChainOptions(chain), 0);
  EXPECT_EQ(engine.imp->cpuJtag, 1);
  EXPECT_EQ(engine.imp->cable->type, Engine::ZARVEK_PARALLEL4);
  EXPECT_EQ(engine.imp->cable->frequency, 7U);
  EXPECT_EQ(engine.imp->cable->port, "LPT2");
  EXPECT_EQ(engine.imp->cable->esn, "0001");
  EXPECT_EQ(engine.imp->jtagChain, chain);
  engine.SetErrorStr("text");
  std::string text;
  engine.GetErrorStr(text);
  EXPECT_EQ(text, "text");
}

}  // namespace
}  // namespace SdkDebugDialog
