#include <gtest/gtest.h>

#include <cstdint>
#include <stdexcept>
#include <string>

#include "options/QvtOption_Parser.h"
#include "tests/support/FakeHardware.h"
#include "tests/support/GlobalLocale.h"
#include "tests/support/SelectedEngine.h"

namespace {

using SdkDebugDialog::Engine;
using SdkDebugDialog::newoption_token;
using SdkDebugDialog::ProcessorInfoImp;
using SdkDebugDialog::QvtOption_Parser;

constexpr std::uint32_t kNotSet = 0xFFFFFFFFU;

// An error text from before, to see whether a reader stores one of its own.
constexpr const char* kBefore = "from before";

// Reads what follows "-debugdevice": 1 the next option began, 2 an error, 3 the end of the text.
int read(SelectedEngine& e, std::string text) { return QvtOption_Parser::parse_debugdevice(text, e.imp); }

std::string written(SelectedEngine& e) {
  std::string out;
  EXPECT_EQ(QvtOption_Parser::write_debugdeviceoptions(out, e.imp), 0);
  return out;
}

// --- Reading ---

TEST(DebugDeviceReading, TakesTheDeviceNumberInAnyCaseAndWritesItsKeywordInOurs) {
  const GlobalLocale classic;
  for (const char* const text : {"DeviceNR 3", "devicenr 3", "DEVICENR 3"}) {
    SCOPED_TRACE(text);
    SelectedEngine e;
    e.processor.connectionType = Engine::STUB;
    EXPECT_EQ(read(e, text), 3);
    EXPECT_EQ(e.processor.debugDevice, 3);
    EXPECT_EQ(written(e), " -debugdevice deviceNr 3");
  }
}

TEST(DebugDeviceReading, LetsTheDebugAddressMapFollowAnAlignedInstructionCacheBase) {
  SelectedEngine e;
  EXPECT_EQ(read(e, "icacheStartAdr 0x70000000"), 3);
  EXPECT_EQ(e.processor.icacheStartAddr, 0x70000000U);
  EXPECT_EQ(e.processor.debugAddressMap, 0x70000000U);
}

TEST(DebugDeviceReading, StoresAMisalignedInstructionCacheBaseAndRefusesIt) {
  struct {
    const char* text;
    std::uint32_t stored;
  } const rows[] = {{"icacheStartAdr 0x70008000", 0x70008000U},
                    {"icacheStartAdr 0xffffffff", 0xFFFFFFFFU},
                    {"icacheStartAdr -1", 0xFFFFFFFFU},
                    {"icacheStartAdr 1", 1}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.text);
    SelectedEngine e;
    e.processor.debugAddressMap = 0x50000;
    EXPECT_EQ(read(e, row.text), 2);
    EXPECT_EQ(e.error(), "Icache Start Address should be aligned at 64k boundry");
    EXPECT_EQ(e.processor.icacheStartAddr, row.stored);
    EXPECT_EQ(e.processor.debugAddressMap, 0x50000U);
  }
}

TEST(DebugDeviceReading, ChecksTheAlignmentOfEachBaseOfTheDebugAddressMap) {
  const GlobalLocale classic;
  struct {
    const char* keyword;
    std::uint32_t ProcessorInfoImp::*field;
    const char* error;
  } const rows[] = {
      {"IcacheSTARTadr", &ProcessorInfoImp::icacheStartAddr, "Icache Start Address should be aligned at 64k boundry"},
      {"DcacheSTARTadr", &ProcessorInfoImp::dcacheStartAddr, "Dcache Start Address should be aligned at 64k boundry"},
      {"ItagSTARTadr", &ProcessorInfoImp::itagStartAddr, "Itag Start Address should be aligned at 64k boundry"},
      {"DtagSTARTadr", &ProcessorInfoImp::dtagStartAddr, "Dtag Start Address should be aligned at 64k boundry"},
      {"TlbSTARTadr", &ProcessorInfoImp::tlbStartAddr, "TLB Start Address should be aligned at 64k boundry"},
      {"DcrSTARTadr", &ProcessorInfoImp::dcrStartAddr, "DCR Start Address should be aligned at 64k boundry"},
  };
  struct {
    const char* value;
    std::uint32_t address;
    bool aligned;
  } const values[] = {{"0", 0, true},
                      {"0x10000", 0x10000, true},
                      {"65536", 0x10000, true},
                      {"0200000", 0x10000, true},
                      {"0xFFFF0000", 0xFFFF0000U, true},
                      {"0x1FFFF0000", 0xFFFF0000U, true},
                      {"none", 0, true},
                      {"-65536", 0xFFFF0000U, true},
                      {"0x10001", 0x10001, false},
                      {"0x8000", 0x8000, false},
                      {"0xffffffff", 0xFFFFFFFFU, false}};
  for (const auto& row : rows) {
    for (const auto& [value, address, aligned] : values) {
      SCOPED_TRACE(std::string(row.keyword) + " " + value);
      SelectedEngine e;
      e.imp.errorStr = kBefore;
      EXPECT_EQ(read(e, std::string(row.keyword) + " " + value + " devicenr 9"), aligned ? 3 : 2);
      EXPECT_EQ(e.error(), aligned ? kBefore : row.error);
      EXPECT_EQ(e.processor.debugDevice, aligned ? 9 : 0);
      const bool mapped = aligned && row.field == &ProcessorInfoImp::icacheStartAddr;
      EXPECT_EQ(e.processor.debugAddressMap, mapped ? address : kNotSet);
      for (const auto& other : rows) {
        EXPECT_EQ(e.processor.*other.field, other.field == row.field ? address : kNotSet);
      }
    }
  }
}

TEST(DebugDeviceReading, AcceptsAMisalignedOnChipMemory) {
  SelectedEngine e;
  EXPECT_EQ(read(e, "isocmStartAdr 0x1234"), 3);
  EXPECT_EQ(e.processor.isocmStartAddr, 0x1234U);
}

TEST(DebugDeviceReading, KnowsEveryMemoryKeywordInAnyCaseAndCutsItsValueTo32Bits) {
  const GlobalLocale classic;
  struct {
    const char* keyword;
    std::uint32_t ProcessorInfoImp::*field;
  } const rows[] = {
      {"ROMEMstartadr", &ProcessorInfoImp::romemStartAddr},       {"ROMEMsize", &ProcessorInfoImp::romemSize},
      {"ISOCMstartadr", &ProcessorInfoImp::isocmStartAddr},       {"ISOCMsize", &ProcessorInfoImp::isocmSize},
      {"ISOCMdcrstartadr", &ProcessorInfoImp::isocmDcrStartAddr},
  };
  struct {
    const char* value;
    std::uint32_t number;
  } const values[] = {{"4096", 4096},      {"0XfF", 255},     {"0777", 511},
                      {"-1", 0xFFFFFFFFU}, {"4294967296", 0}, {"0x123456789", 0x23456789U},
                      {"12K", 12},         {"much", 0},       {"99999999999999999999", 0xFFFFFFFFU}};
  for (const auto& row : rows) {
    for (const auto& [value, number] : values) {
      SCOPED_TRACE(std::string(row.keyword) + " " + value);
      SelectedEngine e;
      EXPECT_EQ(read(e, std::string(row.keyword) + " " + value), 3);
      EXPECT_EQ(e.processor.*row.field, number);
      EXPECT_EQ(e.error(), "");
    }
  }
}

TEST(DebugDeviceReading, CutsTheDeviceNumberToASignedByte) {
  struct {
    const char* value;
    int number;
  } const rows[] = {{"127", 127}, {"200", -56}, {"256", 0},   {"300", 44},
                    {"-1", -1},   {"010", 8},   {"0xff", -1}, {"first", 0}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.value);
    SelectedEngine e;
    e.processor.debugDevice = 99;
    EXPECT_EQ(read(e, std::string("deviceNr ") + row.value), 3);
    EXPECT_EQ(e.processor.debugDevice, row.number);
  }
}

TEST(DebugDeviceReading, TakesTheFpuKindInAnyCase) {
  struct {
    const char* text;
    std::uint32_t kind;
  } const rows[] = {{"fpuType DP", 2}, {"FPUTYPE dp", 2}, {"FpuType Sp", 1}, {"fputype sp", 1}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.text);
    SelectedEngine e;
    EXPECT_EQ(read(e, row.text), 3);
    EXPECT_EQ(e.processor.fpuType, row.kind);
  }
}

TEST(DebugDeviceReading, RefusesOtherFpuKindsByValueAndKeywordAsTyped) {
  struct {
    const char* text;
    const char* error;
  } const rows[] = {
      {"fpuType double", "UNKNOWN Parameter 'double' for  option 'fpuType'"},
      {"FPUtype Single", "UNKNOWN Parameter 'Single' for  option 'FPUtype'"},
      {"fputype 1", "UNKNOWN Parameter '1' for  option 'fputype'"},
      {"fpuType %s%n", "UNKNOWN Parameter '%s%n' for  option 'fpuType'"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.text);
    SelectedEngine e;
    EXPECT_EQ(read(e, row.text), 2);
    EXPECT_EQ(e.error(), row.error);
    EXPECT_EQ(e.processor.fpuType, 0U);
  }
}

TEST(DebugDeviceReading, TakesTheProcessorKindInAnyCase) {
  struct {
    const char* text;
    std::uint32_t variant;
  } const rows[] = {{"proctype PPC440", 2}, {"ProcType ppc440", 2}, {"PROCTYPE Ppc405", 1}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.text);
    SelectedEngine e;
    EXPECT_EQ(read(e, row.text), 3);
    EXPECT_EQ(e.processor.procVariant, row.variant);
    EXPECT_EQ(e.processor.procFamily, 0U);
  }
}

TEST(DebugDeviceReading, MakesAnyOtherKindAnUnknownPowerPCAndRefusesItWithoutAText) {
  for (const char* const kind : {"ppc750", "ppc40", "ppc4050", "1"}) {
    SCOPED_TRACE(kind);
    SelectedEngine e;
    e.imp.errorStr = kBefore;
    EXPECT_EQ(read(e, std::string("proctype ") + kind + " devicenr 1"), 2);
    EXPECT_EQ(e.processor.procVariant, 6U);
    EXPECT_EQ(e.processor.debugDevice, 0);
    EXPECT_EQ(e.error(), kBefore);
  }
}

TEST(DebugDeviceReading, RefusesAnotherProcessorNumberThanTheDiscoveredOneWithoutAText) {
  SelectedEngine e;
  FakeHardware hw;
  e.imp.hwManager = &hw;
  e.imp.errorStr = kBefore;
  EXPECT_EQ(read(e, "CpuNr 2 devicenr 1"), 2);
  EXPECT_EQ(e.error(), kBefore);
  EXPECT_EQ(e.processor.cpuNr, 1);
  EXPECT_EQ(e.processor.debugDevice, 0);
}

TEST(DebugDeviceReading, TakesTheProcessorNumberWhereNothingWasDiscovered) {
  struct {
    const char* text;
    int number;
  } const rows[] = {{"cpunr 2", 2},     {"CPUNR 200", 200}, {"CpuNr 257", 1},
                    {"cpunr 0x10", 16}, {"cpunr -1", 255},  {"cpunr x", 0}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.text);
    SelectedEngine e;
    EXPECT_EQ(read(e, row.text), 3);
    EXPECT_EQ(e.processor.cpuNr, row.number);
  }
}

TEST(DebugDeviceReading, ComparesTheDiscoveredProcessorNumberAsASignedByteWithAll32Bits) {
  struct {
    const char* value;
    int status;
    std::uint8_t discovered;
  } const rows[] = {{"1", 3, 1},     {"0x1", 3, 1},   {"4294967297", 3, 1},   {"257", 2, 1},
                    {"200", 2, 200}, {"-56", 3, 200}, {"0xFFFFFFC8", 3, 200}, {"-1", 3, 255},
                    {"255", 2, 255}, {"none", 3, 0},  {"127", 3, 127},        {"128", 2, 128}};
  for (const auto& row : rows) {
    SCOPED_TRACE(std::to_string(row.discovered) + " against " + row.value);
    SelectedEngine e;
    FakeHardware hw;
    e.imp.hwManager = &hw;
    e.processor.cpuNr = row.discovered;
    EXPECT_EQ(read(e, std::string("cpunr ") + row.value), row.status);
    EXPECT_EQ(e.processor.cpuNr, row.discovered);
    EXPECT_EQ(e.error(), "");
  }
}

TEST(DebugDeviceReading, TakesVersionsAsTheyAre) {
  SelectedEngine e;
  EXPECT_EQ(read(e, "CPU_Version 1.00.A%s ODM_version -2.b"), 3);
  EXPECT_EQ(e.processor.cpuVersion, "1.00.A%s");
  EXPECT_EQ(e.processor.odmVersion, "-2.b");
}

TEST(DebugDeviceReading, ReadsTheNumberOfProcessorsTheSignedWay) {
  struct {
    const char* text;
    std::int32_t number;
  } const rows[] = {{"nCpu 4", 4},
                    {"NCPU 0x20", 32},
                    {"ncpu 010", 8},
                    {"nCpu -3", -3},
                    {"nCpu many", 0},
                    {"nCpu 4294967298", 2},
                    {"nCpu 99999999999999999999", -1},
                    {"nCpu -99999999999999999999", 0}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.text);
    SelectedEngine e;
    EXPECT_EQ(read(e, row.text), 3);
    EXPECT_EQ(e.processor.nCpu, row.number);
  }
}

TEST(DebugDeviceReading, NamesAnUnknownKeywordAsItWasTyped) {
  struct {
    const char* text;
    const char* error;
  } const rows[] = {
      {"Device 1", "UNKNOWN Parameter 'Device' for  option '-debugDevice'"},
      {"devicenr 1 deviceNrs 2", "UNKNOWN Parameter 'deviceNrs' for  option '-debugDevice'"},
      {"irlength 6", "UNKNOWN Parameter 'irlength' for  option '-debugDevice'"},
      {"%n%s 6", "UNKNOWN Parameter '%n%s' for  option '-debugDevice'"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.text);
    SelectedEngine e;
    EXPECT_EQ(read(e, row.text), 2);
    EXPECT_EQ(e.error(), row.error);
  }
}

TEST(DebugDeviceReading, CutsErrorTextsAfter2047Characters) {
  SelectedEngine e;
  EXPECT_EQ(read(e, std::string(5000, 'k') + " 1"), 2);
  EXPECT_EQ(e.error(), ("UNKNOWN Parameter '" + std::string(5000, 'k')).substr(0, 2047));
  EXPECT_EQ(read(e, "fpuType " + std::string(5000, 'v')), 2);
  EXPECT_EQ(e.error(), ("UNKNOWN Parameter '" + std::string(5000, 'v')).substr(0, 2047));
}

TEST(DebugDeviceReading, RefusesAKeywordWithoutValueWithoutAText) {
  for (const char* const text : {"devicenr", "cpunr 3 devicenr -quiet", "nonsense"}) {
    SCOPED_TRACE(text);
    SelectedEngine e;
    e.imp.errorStr = kBefore;
    EXPECT_EQ(read(e, text), 2);
    EXPECT_EQ(e.error(), kBefore);
    EXPECT_EQ(e.processor.debugDevice, 0);
  }
}

TEST(DebugDeviceReading, ChangesNothingWithoutPairs) {
  for (const char* const text : {"", " \t\r\n", "-quiet"}) {
    SCOPED_TRACE(text);
    SelectedEngine e;
    e.processor.debugDevice = 7;
    EXPECT_EQ(read(e, text), text[0] == '-' ? 1 : 3);
    EXPECT_EQ(e.processor.debugDevice, 7);
  }
}

TEST(DebugDeviceReading, KeepsWhatPairsBeforeAnErrorStored) {
  SelectedEngine e;
  EXPECT_EQ(read(e, "devicenr 2 cpunr 3 icacheStartAdr 0x10000 fpuType sp nCpu 2 foo 1 devicenr 9"), 2);
  EXPECT_EQ(e.processor.debugDevice, 2);
  EXPECT_EQ(e.processor.cpuNr, 3);
  EXPECT_EQ(e.processor.icacheStartAddr, 0x10000U);
  EXPECT_EQ(e.processor.debugAddressMap, 0x10000U);
  EXPECT_EQ(e.processor.fpuType, 1U);
  EXPECT_EQ(e.processor.nCpu, 2);
}

TEST(DebugDeviceReading, LeavesInTheTextWhatItDidNotConsume) {
  struct {
    const char* text;
    int status;
    const char* left;
  } const rows[] = {
      {"devicenr 1 \r\n", 3, ""},
      {"devicenr\t1\t-Cable type x", 1, " type x"},
      {"foo 2 devicenr 3", 2, " devicenr 3"},
      {"icacheStartAdr 1 devicenr 3", 2, " devicenr 3"},
      {"fpuType x devicenr 3", 2, " devicenr 3"},
      {"devicenr -quiet x", 2, " x"},
      {"devicenr", 2, ""},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.text);
    SelectedEngine e;
    std::string text = row.text;
    EXPECT_EQ(QvtOption_Parser::parse_debugdevice(text, e.imp), row.status);
    EXPECT_EQ(text, row.left);
  }
}

TEST(DebugDeviceReading, HandsTheNextOptionOverAsItWasTyped) {
  SelectedEngine e;
  EXPECT_EQ(read(e, "devicenr 1 -Cable"), 1);
  EXPECT_EQ(newoption_token, "-Cable");
  EXPECT_EQ(read(e, "devicenr -Quiet"), 2);
  EXPECT_EQ(newoption_token, "-Quiet");
}

TEST(DebugDeviceReading, ThrowsOnALoneDashAndKeepsWhatCameBeforeIt) {
  for (const char* const text : {"devicenr 1 - 2", "devicenr 1 cpunr - 2"}) {
    SCOPED_TRACE(text);
    SelectedEngine e;
    std::string rest = text;
    EXPECT_THROW(QvtOption_Parser::parse_debugdevice(rest, e.imp), std::out_of_range);
    EXPECT_EQ(rest, " 2");
    EXPECT_EQ(e.processor.debugDevice, 1);
    EXPECT_EQ(e.processor.cpuNr, 1);
  }
}

// --- Writing ---

TEST(DebugDeviceWriting, WritesNothingForSimulatorAndStubWithoutASetting) {
  for (const std::uint32_t connection : {1U, 4U}) {
    SCOPED_TRACE(connection);
    SelectedEngine e;
    e.processor.connectionType = connection;
    EXPECT_EQ(written(e), "");
  }
}

TEST(DebugDeviceWriting, WritesTheProcessorNumberAloneForHardwareWithoutASetting) {
  SelectedEngine e;
  EXPECT_EQ(written(e), " -debugdevice cpunr 1");
}

TEST(DebugDeviceWriting, WritesTheProcessorNumberForEveryConnectionButSimulatorAndStub) {
  for (const std::uint32_t connection : {0U, 2U, 3U, 5U, 8U, 16U, 132U}) {
    SCOPED_TRACE(connection);
    SelectedEngine e;
    e.processor.connectionType = connection;
    EXPECT_EQ(written(e), " -debugdevice cpunr 1");
  }
}

TEST(DebugDeviceWriting, WritesWhatAPpc405HasForHardwareAndDropsTheProcessorNumberForTheStub) {
  SelectedEngine e;
  ProcessorInfoImp& p = e.processor;
  p.procFamily = 1;
  p.procVariant = 1;
  p.debugDevice = 2;
  p.isocmStartAddr = 0xFFFF8000U;
  p.isocmSize = 32768;
  p.isocmDcrStartAddr = 0x40;
  p.icacheStartAddr = 0x70000000;
  EXPECT_EQ(written(e),
            " -debugdevice deviceNr 2 cpunr 1 isocmStartAdr 0xffff8000 isocmSize 32768  isocmDcrStartAdr 0x40"
            " icacheStartAdr 0x70000000");
  p.connectionType = Engine::STUB;
  EXPECT_EQ(written(e),
            " -debugdevice deviceNr 2 isocmStartAdr 0xffff8000 isocmSize 32768  isocmDcrStartAdr 0x40"
            " icacheStartAdr 0x70000000");
}

TEST(DebugDeviceWriting, WritesTheFpuOfAPowerPCAlone) {
  struct {
    std::uint32_t family;
    std::uint32_t fpu;
    const char* written;
  } const rows[] = {
      {0, 1, " -debugdevice cpunr 1"},
      {0, 2, " -debugdevice cpunr 1"},
      {2, 2, " -debugdevice cpunr 1"},
      {1, 0, " -debugdevice cpunr 1"},
      {1, 1, " -debugdevice cpunr 1 fpuType sp"},
      {1, 2, " -debugdevice cpunr 1 fpuType dp"},
      {1, 3, " -debugdevice cpunr 1 fpuType dp"},
      {1, 4294967295U, " -debugdevice cpunr 1 fpuType dp"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(std::to_string(row.family) + " with " + std::to_string(row.fpu));
    SelectedEngine e;
    e.processor.procFamily = row.family;
    e.processor.fpuType = row.fpu;
    EXPECT_EQ(written(e), row.written);
  }
}

TEST(DebugDeviceWriting, WritesDeviceAndProcessorNumberAsSignedBytes) {
  SelectedEngine e;
  EXPECT_EQ(read(e, "deviceNr 200 cpunr 255"), 3);
  EXPECT_EQ(written(e), " -debugdevice deviceNr -56 cpunr -1");
}

TEST(DebugDeviceWriting, WritesReadOnlyMemoryForHardwareAndASizeAlone) {
  struct {
    std::uint32_t connection;
    std::uint32_t start;
    std::uint32_t size;
    const char* written;
  } const rows[] = {
      {2, 0xFFF00000U, 1048576, " -debugdevice cpunr 1 romemStartAdr 0xfff00000 romemSize 1048576"},
      {2, 0, 4294967295U, " -debugdevice cpunr 1 romemStartAdr 0x0 romemSize -1"},
      {2, 0x1000, 0, " -debugdevice cpunr 1"},
      {2, 0xFFFFFFFFU, 4096, " -debugdevice cpunr 1"},
      {1, 0x1000, 4096, ""},
      {4, 0x1000, 4096, ""},
      {8, 0x1000, 4096, " -debugdevice cpunr 1"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(std::to_string(row.connection) + ": " + std::to_string(row.start) + " " + std::to_string(row.size));
    SelectedEngine e;
    e.processor.connectionType = row.connection;
    e.processor.romemStartAddr = row.start;
    e.processor.romemSize = row.size;
    EXPECT_EQ(written(e), row.written);
  }
}

TEST(DebugDeviceWriting, WritesOnChipMemoryOfAPpc405Alone) {
  struct {
    std::uint32_t family;
    std::uint32_t variant;
    std::uint32_t start;
    const char* written;
  } const rows[] = {
      {1, 1, 0, " -debugdevice isocmStartAdr 0x0 isocmSize -1  isocmDcrStartAdr 0xffffffff"},
      {0, 1, 0x1234, " -debugdevice isocmStartAdr 0x1234 isocmSize -1  isocmDcrStartAdr 0xffffffff"},
      {1, 2, 0x1234, ""},
      {1, 6, 0x1234, ""},
      {1, 1, 0xFFFFFFFFU, ""},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(std::to_string(row.family) + " " + std::to_string(row.variant) + " " + std::to_string(row.start));
    SelectedEngine e;
    e.processor.connectionType = Engine::SIMULATOR;
    e.processor.procFamily = row.family;
    e.processor.procVariant = row.variant;
    e.processor.isocmStartAddr = row.start;
    e.processor.isocmSize = 4294967295U;
    EXPECT_EQ(written(e), row.written);
  }
}

// A processor with every setting that can be written.
void fill(ProcessorInfoImp& p) {
  p.procFamily = 1;
  p.procVariant = 1;
  p.debugDevice = 1;
  p.cpuNr = 2;
  p.romemStartAddr = 0xA0000;
  p.romemSize = 10;
  p.isocmStartAddr = 0xB0;
  p.isocmSize = 11;
  p.isocmDcrStartAddr = 0xC0;
  p.debugAddressMap = 0xD0000;
  p.icacheStartAddr = 0x10000;
  p.dcacheStartAddr = 0x20000;
  p.itagStartAddr = 0x30000;
  p.dtagStartAddr = 0x40000;
  p.tlbStartAddr = 0x50000;
  p.dcrStartAddr = 0x60000;
  p.fpuType = 2;
  p.cpuVersion = "v";
  p.odmVersion = "w";
  p.nCpu = 3;
}

TEST(DebugDeviceWriting, WritesTheBasesInTheirOrderAndNeitherVersionsNorKindNorProcessorCount) {
  SelectedEngine e;
  fill(e.processor);
  std::string out = "before";
  EXPECT_EQ(QvtOption_Parser::write_debugdeviceoptions(out, e.imp), 0);
  EXPECT_EQ(out,
            "before -debugdevice deviceNr 1 cpunr 2 romemStartAdr 0xa0000 romemSize 10 isocmStartAdr 0xb0"
            " isocmSize 11  isocmDcrStartAdr 0xc0 icacheStartAdr 0x10000 itagStartAdr 0x30000 dcacheStartAdr 0x20000"
            " dtagStartAdr 0x40000 tlbStartAdr 0x50000 dcrStartAdr 0x60000 fpuType dp");
}

TEST(DebugDeviceWriting, WritesEachBaseThatIsSetOfAPowerPCAlone) {
  struct {
    std::uint32_t ProcessorInfoImp::*field;
    const char* written;
  } const rows[] = {
      {&ProcessorInfoImp::icacheStartAddr, " -debugdevice icacheStartAdr 0x0"},
      {&ProcessorInfoImp::itagStartAddr, " -debugdevice itagStartAdr 0x0"},
      {&ProcessorInfoImp::dcacheStartAddr, " -debugdevice dcacheStartAdr 0x0"},
      {&ProcessorInfoImp::dtagStartAddr, " -debugdevice dtagStartAdr 0x0"},
      {&ProcessorInfoImp::tlbStartAddr, " -debugdevice tlbStartAdr 0x0"},
      {&ProcessorInfoImp::dcrStartAddr, " -debugdevice dcrStartAdr 0x0"},
      {&ProcessorInfoImp::debugAddressMap, ""},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.written);
    for (const std::uint32_t family : {0U, 1U, 2U}) {
      SelectedEngine e;
      e.processor.connectionType = Engine::STUB;
      e.processor.procFamily = family;
      e.processor.*row.field = 0;
      EXPECT_EQ(written(e), family == 1 ? row.written : "");
    }
  }
}

TEST(DebugDeviceWriting, WritesNothingOfThePowerPCForOtherFamilies) {
  for (const std::uint32_t family : {0U, 2U, 3U}) {
    SCOPED_TRACE(family);
    SelectedEngine e;
    fill(e.processor);
    e.processor.procFamily = family;
    e.processor.procVariant = 0;
    EXPECT_EQ(written(e), " -debugdevice deviceNr 1 cpunr 2 romemStartAdr 0xa0000 romemSize 10");
  }
}

TEST(DebugDeviceWriting, ChangesNothingInTheEngine) {
  SelectedEngine e;
  fill(e.processor);
  e.imp.errorStr = kBefore;
  const std::string first = written(e);
  EXPECT_EQ(written(e), first);
  EXPECT_EQ(e.error(), kBefore);
  EXPECT_EQ(e.processor.command, "");
}

}  // namespace
