// The PowerPC debug address map and the memories.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "SdkDebugDialog/Engine.h"
#include "SdkDebugDialog/EngineImp.h"
#include "tests/support/DefaultSettings.h"
#include "tests/support/SelectedEngine.h"

namespace SdkDebugDialog {
namespace {

using Field = std::uint32_t ProcessorInfoImp::*;

struct Base {
  const char* name;
  Field field;
  int (Engine::*set)(unsigned int);
  int (Engine::*get)(unsigned int&);
  const char* misaligned;
};

constexpr Base kBases[] = {
    {"icache", &ProcessorInfoImp::icacheStartAddr, &Engine::SetIcacheBaseAddr, &Engine::GetIcacheBaseAddr,
     "Icache Start Address should be aligned at 64k boundry"},
    {"dcache", &ProcessorInfoImp::dcacheStartAddr, &Engine::SetDcacheBaseAddr, &Engine::GetDcacheBaseAddr,
     "Dcache Start Address should be aligned at 64k boundry"},
    {"itag", &ProcessorInfoImp::itagStartAddr, &Engine::SetITagBaseAddr, &Engine::GetITagBaseAddr,
     "Itag Start Address should be aligned at 64k boundry"},
    {"dtag", &ProcessorInfoImp::dtagStartAddr, &Engine::SetDTagBaseAddr, &Engine::GetDTagBaseAddr,
     "Dtag Start Address should be aligned at 64k boundry"},
    {"tlb", &ProcessorInfoImp::tlbStartAddr, &Engine::SetTlbBaseAddr, &Engine::GetTlbBaseAddr,
     "TLB Start Address should be aligned at 64k boundry"},
    {"dcr", &ProcessorInfoImp::dcrStartAddr, &Engine::SetDcrBaseAddr, &Engine::GetDcrBaseAddr,
     "DCR Start Address should be aligned at 64k boundry"},
};

// The six bases and the map itself.
struct MapGetter {
  const char* name;
  Field field;
  int (Engine::*get)(unsigned int&);
};

constexpr MapGetter kMapGetters[] = {
    {"map", &ProcessorInfoImp::debugAddressMap, &Engine::GetDebugAddressMap},
    {"icache", &ProcessorInfoImp::icacheStartAddr, &Engine::GetIcacheBaseAddr},
    {"dcache", &ProcessorInfoImp::dcacheStartAddr, &Engine::GetDcacheBaseAddr},
    {"itag", &ProcessorInfoImp::itagStartAddr, &Engine::GetITagBaseAddr},
    {"dtag", &ProcessorInfoImp::dtagStartAddr, &Engine::GetDTagBaseAddr},
    {"tlb", &ProcessorInfoImp::tlbStartAddr, &Engine::GetTlbBaseAddr},
    {"dcr", &ProcessorInfoImp::dcrStartAddr, &Engine::GetDcrBaseAddr},
};

constexpr unsigned int kConnections[] = {0, 1, 2, 3, 4, 6, 8, 132};

// A PowerPC with the hardware connection, to which all operations apply.
struct PowerPC : SelectedEngine {
  PowerPC() {
    processor.procFamily = 1;
    processor.procVariant = 1;
    processor.connectionType = 2;
  }
};

// Expects every address of the record to be unchanged, except the given ones.
std::vector<std::uint32_t> addresses(const ProcessorInfoImp& p) {
  return {p.debugAddressMap, p.isocmStartAddr,  p.isocmSize,      p.isocmDcrStartAddr,
          p.icacheStartAddr, p.dcacheStartAddr, p.itagStartAddr,  p.dtagStartAddr,
          p.tlbStartAddr,    p.dcrStartAddr,    p.romemStartAddr, p.romemSize};
}

// --- Setting the bases ---

TEST(EngineBases, TakeEveryMultipleOf64KOnAnyProcessorAndConnection) {
  for (const Base& base : kBases) {
    for (const unsigned int family : {0U, 1U, 2U}) {
      for (const unsigned int connection : kConnections) {
        for (const unsigned int address : {0U, 0x10000U, 0x70000000U, 0xFFFF0000U}) {
          SCOPED_TRACE(testing::Message() << base.name << " " << family << " " << connection << " " << address);
          SelectedEngine s;
          s.processor.procFamily = family;
          s.processor.connectionType = connection;
          ProcessorInfoImp expected = s.processor;
          expected.*base.field = address;
          if (base.field == &ProcessorInfoImp::icacheStartAddr) expected.debugAddressMap = address;
          EXPECT_EQ((s.engine.*base.set)(address), 0);
          EXPECT_EQ(addresses(s.processor), addresses(expected));
          EXPECT_EQ(s.error(), "");
        }
      }
    }
  }
}

TEST(EngineBases, RefuseAnAddressOffThe64KBoundaryAndKeepTheOldOne) {
  for (const Base& base : kBases) {
    for (const unsigned int address : {1U, 0x8000U, 0xFFFFU, 0x18000U, 0x10001U, 0xFFFFFFFFU}) {
      SCOPED_TRACE(testing::Message() << base.name << " " << address);
      SelectedEngine s;
      ASSERT_EQ((s.engine.*base.set)(0x20000), 0);
      const std::vector<std::uint32_t> before = addresses(s.processor);
      EXPECT_EQ((s.engine.*base.set)(address), 1);
      EXPECT_EQ(addresses(s.processor), before);
      EXPECT_EQ(s.error(), base.misaligned);
    }
  }
}

TEST(EngineBases, OfTheInstructionCacheIsTheDebugAddressMap) {
  PowerPC s;
  unsigned int map = 0;
  EXPECT_EQ(s.engine.SetIcacheBaseAddr(0x10000), 0);
  EXPECT_EQ(s.engine.GetDebugAddressMap(map), 0);
  EXPECT_EQ(map, 0x10000U);
}

TEST(EngineBases, OfTheInstructionCacheKeepsBothFieldsWhenRefused) {
  PowerPC s;
  ASSERT_EQ(s.engine.SetIcacheBaseAddr(0x10000), 0);
  EXPECT_EQ(s.engine.SetIcacheBaseAddr(0x18000), 1);
  EXPECT_EQ(s.error(), "Icache Start Address should be aligned at 64k boundry");
  EXPECT_EQ(s.processor.icacheStartAddr, 0x10000U);
  EXPECT_EQ(s.processor.debugAddressMap, 0x10000U);
}

TEST(EngineBases, OfTheDataCacheMayBeZero) {
  PowerPC s;
  EXPECT_EQ(s.engine.SetDcacheBaseAddr(0), 0);
  unsigned int address = 7;
  EXPECT_EQ(s.engine.GetDcacheBaseAddr(address), 0);
  EXPECT_EQ(address, 0U);
}

// --- Reading the map ---

TEST(EngineMapGetters, AnswerForAPowerPCWithTheHardwareConnectionAlone) {
  for (const MapGetter& getter : kMapGetters) {
    for (const unsigned int family : {0U, 1U, 2U}) {
      for (const unsigned int connection : kConnections) {
        for (const std::uint32_t stored : {0xFFFFFFFFU, 0U, 0x12345U}) {
          SCOPED_TRACE(testing::Message() << getter.name << " " << family << " " << connection << " " << stored);
          SelectedEngine s;
          s.processor.procFamily = family;
          s.processor.connectionType = connection;
          s.processor.*getter.field = stored;
          unsigned int address = 77;
          const bool applies = family == 1 && connection == 2;
          const bool there = applies && stored != 0xFFFFFFFF;
          EXPECT_EQ((s.engine.*getter.get)(address), !applies ? 2 : there ? 0 : 1);
          EXPECT_EQ(address, there ? stored : 77);
        }
      }
    }
  }
}

TEST(EngineMapGetters, DoNotApplyToASoftProcessor) {
  PowerPC s;
  ASSERT_EQ(s.engine.SetIcacheBaseAddr(0x10000), 0);
  s.processor.procFamily = 0;
  unsigned int address = 7;
  EXPECT_EQ(s.engine.GetIcacheBaseAddr(address), 2);
  EXPECT_EQ(address, 7U);
}

TEST(EngineMapGetters, DoNotApplyToAPowerPCWithTheSimulator) {
  PowerPC s;
  ASSERT_EQ(s.engine.SetIcacheBaseAddr(0x10000), 0);
  s.processor.connectionType = 1;
  unsigned int address = 7;
  EXPECT_EQ(s.engine.GetIcacheBaseAddr(address), 2);
  EXPECT_EQ(address, 7U);
}

TEST(EngineMapGetters, ReadBackWhatTheSettersStored) {
  PowerPC s;
  unsigned int next = 0x10000;
  for (const Base& base : kBases) ASSERT_EQ((s.engine.*base.set)(next += 0x10000), 0);
  unsigned int expected = 0x10000;
  for (const Base& base : kBases) {
    SCOPED_TRACE(base.name);
    unsigned int address = 0;
    EXPECT_EQ((s.engine.*base.get)(address), 0);
    EXPECT_EQ(address, expected += 0x10000);
  }
}

// --- On-chip instruction memory ---

TEST(EngineOnChipMemory, AnswersForAPpc405WithTheHardwareConnectionAlone) {
  for (const unsigned int variant : {0U, 1U, 2U, 4U, 5U, 6U}) {
    for (const unsigned int connection : kConnections) {
      for (const std::uint32_t stored : {0xFFFFFFFFU, 0U, 0x1234U}) {
        SCOPED_TRACE(testing::Message() << variant << " " << connection << " " << stored);
        SelectedEngine s;
        s.processor.procVariant = variant;  // the family does not matter
        s.processor.connectionType = connection;
        s.processor.isocmStartAddr = stored;
        unsigned int address = 77;
        const bool applies = variant == 1 && connection == 2;
        const bool there = applies && stored != 0xFFFFFFFF;
        EXPECT_EQ(s.engine.GetISOCMBaseAddr(address), !applies ? 2 : there ? 0 : 1);
        EXPECT_EQ(address, there ? stored : 77);
      }
    }
  }
}

TEST(EngineOnChipMemory, DoesNotApplyToAPpc440EvenWithTheHardwareConnection) {
  PowerPC s;
  s.processor.procVariant = 2;
  s.processor.isocmStartAddr = 0x10000;
  unsigned int address = 7;
  EXPECT_EQ(s.engine.GetISOCMBaseAddr(address), 2);
  EXPECT_EQ(address, 7U);
}

// --- Read-only memory ---

TEST(EngineReadOnlyMemory, IsNotSetOnAFreshRecordAndAppliesToTheHardwareConnectionAlone) {
  for (const unsigned int connection : kConnections) {
    SCOPED_TRACE(connection);
    SelectedEngine s;
    s.processor.connectionType = connection;
    unsigned int start = 7;
    unsigned int size = 8;
    EXPECT_EQ(s.engine.GetROMem(start, size), connection == 2 ? 1 : 2);
    EXPECT_EQ(start, 7U);
    EXPECT_EQ(size, 8U);
  }
}

TEST(EngineReadOnlyMemory, AtAllOnesIsStillNotSet) {
  SelectedEngine s;
  EXPECT_EQ(s.engine.SetROMem(0xFFFFFFFF, 100), 0);
  EXPECT_EQ(s.processor.romemStartAddr, 0xFFFFFFFFU);
  EXPECT_EQ(s.processor.romemSize, 100U);
  unsigned int start = 7;
  unsigned int size = 8;
  EXPECT_EQ(s.engine.GetROMem(start, size), 1);
  EXPECT_EQ(start, 7U);
  EXPECT_EQ(size, 8U);
}

TEST(EngineReadOnlyMemory, IsStoredUncheckedAndReadBackForAnyProcessor) {
  for (const unsigned int family : {0U, 1U, 2U}) {
    SCOPED_TRACE(family);
    SelectedEngine s;
    s.processor.procFamily = family;
    unsigned int start = 7;
    unsigned int size = 8;
    EXPECT_EQ(s.engine.SetROMem(0x1235, 0), 0);
    EXPECT_EQ(s.engine.GetROMem(start, size), 0);
    EXPECT_EQ(start, 0x1235U);
    EXPECT_EQ(size, 0U);
    s.processor.connectionType = 1;
    EXPECT_EQ(s.engine.GetROMem(start = 7, size = 8), 2);
    EXPECT_EQ(start, 7U);
    EXPECT_EQ(size, 8U);
    EXPECT_EQ(s.error(), "");
  }
}

// --- The map as a whole ---

TEST(EngineAddressMap, UnsetMakesEveryBaseOfTheMapNotSetAndLeavesTheMemories) {
  PowerPC s;
  for (const Base& base : kBases) ASSERT_EQ((s.engine.*base.set)(0x20000), 0);
  s.processor.isocmStartAddr = 0x30000;
  s.processor.isocmSize = 0x31000;
  s.processor.isocmDcrStartAddr = 0x32000;
  ASSERT_EQ(s.engine.SetROMem(0x40000, 0x1000), 0);
  EXPECT_EQ(s.engine.UnSetDebugAddressMap(), 0);
  for (const MapGetter& getter : kMapGetters) {
    SCOPED_TRACE(getter.name);
    unsigned int address = 7;
    EXPECT_EQ((s.engine.*getter.get)(address), 1);
    EXPECT_EQ(address, 7U);
  }
  unsigned int start = 0;
  unsigned int size = 0;
  EXPECT_EQ(s.engine.GetISOCMBaseAddr(start), 0);
  EXPECT_EQ(start, 0x30000U);
  EXPECT_EQ(s.processor.isocmSize, 0x31000U);
  EXPECT_EQ(s.processor.isocmDcrStartAddr, 0x32000U);
  EXPECT_EQ(s.engine.GetROMem(start, size), 0);
  EXPECT_EQ(start, 0x40000U);
  EXPECT_EQ(size, 0x1000U);
}

TEST(EngineAddressMap, InitUnsetsTheSixBasesAndNothingElse) {
  PowerPC s;
  for (const Base& base : kBases) ASSERT_EQ((s.engine.*base.set)(0x20000), 0);
  s.processor.isocmStartAddr = 0x30000;
  s.processor.romemStartAddr = 0x40000;
  s.processor.stubBaudRate = 9600;
  EXPECT_EQ(s.imp.InitPPCDebugAddressMap(), 0);
  for (const Base& base : kBases) {
    SCOPED_TRACE(base.name);
    EXPECT_EQ(s.processor.*base.field, 0xFFFFFFFFU);
  }
  EXPECT_EQ(s.processor.debugAddressMap, 0x20000U);
  EXPECT_EQ(s.processor.isocmStartAddr, 0x30000U);
  EXPECT_EQ(s.processor.romemStartAddr, 0x40000U);
  EXPECT_EQ(s.processor.stubBaudRate, 9600);
}

TEST(EngineAddressMap, AssignLaysOutBlocksOf64KThatWrapAt32Bits) {
  SelectedEngine s;
  EXPECT_EQ(s.imp.AssignAddressMap(0xFFFF0000), 0);
  EXPECT_EQ(s.processor.icacheStartAddr, 0xFFFF0000U);
  EXPECT_EQ(s.processor.itagStartAddr, 0U);
  EXPECT_EQ(s.processor.dcacheStartAddr, 0x10000U);
  EXPECT_EQ(s.processor.dtagStartAddr, 0x20000U);
  EXPECT_EQ(s.processor.dcrStartAddr, 0x30000U);
  EXPECT_EQ(s.processor.tlbStartAddr, 0x40000U);
  EXPECT_EQ(s.processor.debugAddressMap, 0xFFFFFFFFU);
}

TEST(EngineAddressMap, AssignASecondTimeChangesNothing) {
  SelectedEngine s;
  ASSERT_EQ(s.imp.AssignAddressMap(0xFFFF0000), 0);
  const std::vector<std::uint32_t> before = addresses(s.processor);
  EXPECT_EQ(s.imp.AssignAddressMap(0x70000000), 0);
  EXPECT_EQ(addresses(s.processor), before);
}

TEST(EngineAddressMap, AssignKeepsABaseThatIsSetAndTheDistancesOfTheOthers) {
  constexpr Field kInOrder[] = {&ProcessorInfoImp::icacheStartAddr, &ProcessorInfoImp::itagStartAddr,
                                &ProcessorInfoImp::dcacheStartAddr, &ProcessorInfoImp::dtagStartAddr,
                                &ProcessorInfoImp::dcrStartAddr,    &ProcessorInfoImp::tlbStartAddr};
  for (const Field kept : kInOrder) {
    SelectedEngine s;
    s.processor.*kept = 0x1234;
    EXPECT_EQ(s.imp.AssignAddressMap(0x10001), 0);  // the base is not checked
    unsigned int expected = 0x10001;
    for (const Field field : kInOrder) {
      EXPECT_EQ(s.processor.*field, field == kept ? 0x1234 : expected);
      expected += 0x10000;
    }
    EXPECT_EQ(s.error(), "");
  }
}

}  // namespace
}  // namespace SdkDebugDialog
