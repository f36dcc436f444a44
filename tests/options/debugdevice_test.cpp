#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "tests/options/reading.h"
#include "tests/options/writing.h"
#include "tests/support/FakeHardware.h"
#include "tests/support/GlobalLocale.h"

namespace SdkDebugDialog {
namespace {

const Reader kRead = QvtOption_Parser::parse_debugdevice;

// --- Reading ---

TEST(DebugDeviceReading, KnowsEveryKeywordInAnyCase) {
  const GlobalLocale classic;
  expect_readings(kRead, {{"DEVICENR 3", 3, "debugDevice=3"},
                          {"CpuNr 3", 3, "cpuNr=3"},
                          {"ROMEMstartadr 1", 3, "romemStartAddr=1"},
                          {"ROMEMsize 1", 3, "romemSize=1"},
                          {"ISOCMstartadr 1", 3, "isocmStartAddr=1"},
                          {"ISOCMsize 1", 3, "isocmSize=1"},
                          {"ISOCMdcrstartadr 1", 3, "isocmDcrStartAddr=1"},
                          {"IcacheSTARTadr 0", 3, "debugAddressMap=0 icacheStartAddr=0"},
                          {"ItagSTARTadr 0", 3, "itagStartAddr=0"},
                          {"DcacheSTARTadr 0", 3, "dcacheStartAddr=0"},
                          {"DtagSTARTadr 0", 3, "dtagStartAddr=0"},
                          {"TlbSTARTadr 0", 3, "tlbStartAddr=0"},
                          {"DcrSTARTadr 0", 3, "dcrStartAddr=0"},
                          {"FPUTYPE dp", 3, "fpuType=2"},
                          {"ProcType ppc440", 3, "procVariant=2"},
                          {"CPU_Version 1.00.A%s ODM_version -2.b", 3, "cpuVersion=1.00.A%s odmVersion=-2.b"},
                          {"NCPU 4", 3, "nCpu=4"}});
}

// Hexadecimal numbers, numbers longer than the field, and numbers beyond 64 bits, where signed and unsigned conversion
// differ.
TEST(DebugDeviceReading, CutsNumbersToTheirFields) {
  expect_readings(kRead, {{"deviceNr 0x1C8", 3, "debugDevice=-56"},
                          {"deviceNr -99999999999999999999", 3, "debugDevice=-1"},
                          {"cpunr 0x1C8", 3, "cpuNr=200"},
                          {"cpunr -99999999999999999999", 3, "cpuNr=255"},
                          {"romemStartAdr 0x123456789", 3, "romemStartAddr=591751049"},
                          {"romemStartAdr 0 romemStartAdr -99999999999999999999", 3},  // the default
                          {"romemSize 0x123456789", 3, "romemSize=591751049"},
                          {"romemSize -99999999999999999999", 3, "romemSize=4294967295"},
                          {"isocmStartAdr 0x123456789", 3, "isocmStartAddr=591751049"},
                          {"isocmStartAdr 0 isocmStartAdr -99999999999999999999", 3},
                          {"isocmSize 0x123456789", 3, "isocmSize=591751049"},
                          {"isocmSize -99999999999999999999", 3, "isocmSize=4294967295"},
                          {"isocmDcrStartAdr 0x123456789", 3, "isocmDcrStartAddr=591751049"},
                          {"isocmDcrStartAdr 0 isocmDcrStartAdr -99999999999999999999", 3},
                          {"nCpu 0x123456789", 3, "nCpu=591751049"},
                          {"nCpu -3", 3, "nCpu=-3"},
                          {"nCpu -99999999999999999999", 3, "nCpu=0"}});
}

// Rules common to the six bases of the debug address map. debugAddressMap is set with the base of the instruction
// cache.
TEST(DebugDeviceReading, StoresEveryBaseAndRefusesThoseOffThe64KBoundary) {
  struct Row {
    std::string keyword;
    std::string field;
    std::string error;
  };
  for (const Row& row :
       {Row{"icacheStartAdr", "icacheStartAddr", "Icache Start Address should be aligned at 64k boundry"},
        {"dcacheStartAdr", "dcacheStartAddr", "Dcache Start Address should be aligned at 64k boundry"},
        {"itagStartAdr", "itagStartAddr", "Itag Start Address should be aligned at 64k boundry"},
        {"dtagStartAdr", "dtagStartAddr", "Dtag Start Address should be aligned at 64k boundry"},
        {"tlbStartAdr", "tlbStartAddr", "TLB Start Address should be aligned at 64k boundry"},
        {"dcrStartAdr", "dcrStartAddr", "DCR Start Address should be aligned at 64k boundry"}}) {
    const auto stored = [&row](const std::string& address, bool aligned) {
      const bool mapped = aligned && row.keyword == "icacheStartAdr";
      std::string changes = mapped ? "debugAddressMap=" + address + " " : "";
      return changes.append(row.field).append("=").append(address);
    };
    expect_readings(kRead,
                    {{row.keyword + " 0", 3, stored("0", true)},
                     {row.keyword + " 0x70000000", 3, stored("1879048192", true)},
                     {row.keyword + " 0x1FFFF0000", 3, stored("4294901760", true)},
                     {row.keyword + " 0x10001", 2, stored("65537", false), Error(row.error)},
                     {row.keyword + " 0x8000", 2, stored("32768", false), Error(row.error)},
                     {row.keyword + " 1 devicenr 3", 2, stored("1", false), Error(row.error), Rest(" devicenr 3")},
                     {row.keyword + " 0xffffffff", 2, Error(row.error)},  // the default
                     {row.keyword + " -99999999999999999999", 2, Error(row.error)}});
  }
}

TEST(DebugDeviceReading, KeepsTheDebugAddressMapWhereTheInstructionCacheBaseIsRefused) {
  expect_reading(kRead,
                 {"icacheStartAdr 0x70008000", 2, "icacheStartAddr=1879080960",
                  Error("Icache Start Address should be aligned at 64k boundry")},
                 [](SelectedEngine& e) { e.processor.debugAddressMap = 0x50000; });
}

TEST(DebugDeviceReading, AcceptsAMisalignedOnChipMemory) {
  expect_reading(kRead, {"isocmStartAdr 0x1234", 3, "isocmStartAddr=4660"});
}

TEST(DebugDeviceReading, TakesTheFpuKindInAnyCase) {
  expect_readings(kRead,
                  {{"fpuType DP", 3, "fpuType=2"}, {"fpuType sp", 3, "fpuType=1"}, {"fpuType Sp", 3, "fpuType=1"}});
}

TEST(DebugDeviceReading, RefusesOtherFpuKindsByValueAndKeywordAsTyped) {
  expect_readings(
      kRead,
      {{"fpuType double devicenr 3", 2, Error("UNKNOWN Parameter 'double' for  option 'fpuType'"), Rest(" devicenr 3")},
       {"FPUtype Single", 2, Error("UNKNOWN Parameter 'Single' for  option 'FPUtype'")},
       {"fputype 1", 2, Error("UNKNOWN Parameter '1' for  option 'fputype'")},
       {"fpuType %s%n", 2, Error("UNKNOWN Parameter '%s%n' for  option 'fpuType'")},
       {"fpuType " + std::string(5000, 'v'), 2, cut_error("UNKNOWN Parameter '" + std::string(5000, 'v'))}});
}

TEST(DebugDeviceReading, TakesTheProcessorKindInAnyCaseAndKeepsTheFamily) {
  expect_readings(kRead, {{"proctype PPC440", 3, "procVariant=2"},
                          {"proctype ppc440", 3, "procVariant=2"},
                          {"proctype Ppc405", 3, "procVariant=1"}});
}

TEST(DebugDeviceReading, MakesAnyOtherKindAnUnknownPowerPCAndRefusesItWithoutAText) {
  expect_readings(kRead, {{"proctype ppc750 devicenr 1", 2, "procVariant=6", Rest(" devicenr 1")},
                          {"proctype ppc40", 2, "procVariant=6"},
                          {"proctype ppc4050", 2, "procVariant=6"},
                          {"proctype 1", 2, "procVariant=6"}});
}

// The discovered number, as a signed byte (as it is written), is compared with all 32 bits of the number in the text.
TEST(DebugDeviceReading, TakesTheDiscoveredProcessorNumberAloneAndRefusesAnyOtherWithoutAText) {
  FakeHardware hw;
  const auto discovered = [&hw](std::uint8_t number) {
    return [&hw, number](SelectedEngine& e) {
      e.imp.hwManager = &hw;
      e.processor.cpuNr = number;
    };
  };
  expect_readings(kRead,
                  {{"cpunr 1", 3},
                   {"cpunr 0x1", 3},
                   {"cpunr 4294967297", 3},
                   {"cpunr 257", 2},
                   {"CpuNr 2 devicenr 1", 2, Rest(" devicenr 1")}},
                  discovered(1));
  expect_readings(kRead, {{"cpunr 200", 2}, {"cpunr -56", 3}, {"cpunr 0xFFFFFFC8", 3}}, discovered(200));
  expect_readings(kRead, {{"cpunr -1", 3}, {"cpunr 255", 2}}, discovered(255));
  expect_readings(kRead, {{"cpunr none", 3}}, discovered(0));
  expect_readings(kRead, {{"cpunr 127", 3}}, discovered(127));
  expect_readings(kRead, {{"cpunr 128", 2}}, discovered(128));
}

TEST(DebugDeviceReading, NamesAnUnknownKeywordAsItWasTyped) {
  expect_readings(
      kRead,
      {{"Device 1 devicenr 3", 2, Error("UNKNOWN Parameter 'Device' for  option '-debugDevice'"), Rest(" devicenr 3")},
       {"deviceNrs 2", 2, Error("UNKNOWN Parameter 'deviceNrs' for  option '-debugDevice'")},
       {"irlength 6", 2, Error("UNKNOWN Parameter 'irlength' for  option '-debugDevice'")},
       {"%n%s 6", 2, Error("UNKNOWN Parameter '%n%s' for  option '-debugDevice'")},
       {std::string(5000, 'k') + " 1", 2, cut_error("UNKNOWN Parameter '" + std::string(5000, 'k'))}});
}

TEST(DebugDeviceReading, EndsWithWhatEndedItsPairs) {
  expect_readings(kRead, {{"", 3},
                          {" \t\r\n", 3},
                          {"devicenr 1 \r\n", 3, "debugDevice=1"},
                          {"-quiet", 1, LastOption("-quiet")},
                          {"devicenr\t1\t-Cable type x", 1, "debugDevice=1", Rest(" type x"), LastOption("-Cable")}});
}

TEST(DebugDeviceReading, RefusesAKeywordWithoutValueWithoutAText) {
  expect_readings(kRead, {{"devicenr", 2},
                          {"nonsense", 2},
                          {"cpunr 3 devicenr -Quiet x", 2, "cpuNr=3", Rest(" x"), LastOption("-Quiet")}});
}

TEST(DebugDeviceReading, KeepsWhatPairsBeforeAnErrorStored) {
  expect_reading(kRead, {"devicenr 2 cpunr 3 icacheStartAdr 0x10000 fpuType sp nCpu 2 foo 1 devicenr 9", 2,
                         "cpuNr=3 debugDevice=2 debugAddressMap=65536 icacheStartAddr=65536 fpuType=1 nCpu=2",
                         Error("UNKNOWN Parameter 'foo' for  option '-debugDevice'"), Rest(" devicenr 9")});
}

TEST(DebugDeviceReading, ThrowsOnALoneDashAndKeepsWhatCameBeforeIt) {
  expect_readings(kRead, {{"devicenr 1 - 2", kThrows, "debugDevice=1", Rest(" 2")},
                          {"devicenr 1 cpunr - 2", kThrows, "debugDevice=1", Rest(" 2")}});
}

// --- Writing ---

constexpr Writer kWrite = QvtOption_Parser::write_debugdeviceoptions;

TEST(DebugDeviceWriting, WritesTheProcessorNumberForEveryConnectionButSimulatorAndStub) {
  for (const std::uint32_t connection : {0U, 1U, 2U, 3U, 4U, 5U, 8U, 16U, 132U}) {
    SCOPED_TRACE(connection);
    expect_writing(kWrite, {connection == 1 || connection == 4 ? "" : " -debugdevice cpunr 1",
                            [connection](SelectedEngine& e) { e.processor.connectionType = connection; }});
  }
}

TEST(DebugDeviceWriting, WritesDeviceAndProcessorNumberAsSignedBytes) {
  expect_writings(kWrite, {{" -debugdevice deviceNr 3 cpunr 1", [](SelectedEngine& e) { e.processor.debugDevice = 3; }},
                           {" -debugdevice deviceNr -56 cpunr -1", [](SelectedEngine& e) {
                              e.processor.debugDevice = -56;
                              e.processor.cpuNr = 255;
                            }}});
}

// A processor with every setting that can be written, and some that are never written.
void fill(SelectedEngine& e) {
  ProcessorInfoImp& p = e.processor;
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

TEST(DebugDeviceWriting, WritesSettingsInTheirOrderAndNeitherVersionsNorKindNorProcessorCount) {
  expect_writings(kWrite,
                  {{" -debugdevice deviceNr 1 cpunr 2 romemStartAdr 0xa0000 romemSize 10 isocmStartAdr 0xb0"
                    " isocmSize 11  isocmDcrStartAdr 0xc0 icacheStartAdr 0x10000 itagStartAdr 0x30000"
                    " dcacheStartAdr 0x20000 dtagStartAdr 0x40000 tlbStartAdr 0x50000 dcrStartAdr 0x60000 fpuType dp",
                    fill},
                   {" -debugdevice deviceNr 1 isocmStartAdr 0xb0"
                    " isocmSize 11  isocmDcrStartAdr 0xc0 icacheStartAdr 0x10000 itagStartAdr 0x30000"
                    " dcacheStartAdr 0x20000 dtagStartAdr 0x40000 tlbStartAdr 0x50000 dcrStartAdr 0x60000 fpuType dp",
                    [](SelectedEngine& e) {
                      fill(e);
                      e.processor.connectionType = Engine::STUB;
                    }}});
}

TEST(DebugDeviceWriting, WritesNothingOfThePowerPCForOtherFamilies) {
  for (const std::uint32_t family : {0U, 2U, 3U}) {
    SCOPED_TRACE(family);
    expect_writing(kWrite,
                   {" -debugdevice deviceNr 1 cpunr 2 romemStartAdr 0xa0000 romemSize 10", [family](SelectedEngine& e) {
                      fill(e);
                      e.processor.procFamily = family;
                      e.processor.procVariant = 0;
                    }});
  }
}

TEST(DebugDeviceWriting, WritesTheFpuOfAPowerPCAlone) {
  struct Row {
    std::uint32_t family;
    std::uint32_t fpu;
    std::string written;
  };
  for (const Row& row : {Row{0, 1, ""},
                         {0, 2, ""},
                         {2, 2, ""},
                         {1, 0, ""},
                         {1, 1, " fpuType sp"},
                         {1, 2, " fpuType dp"},
                         {1, 3, " fpuType dp"},
                         {1, 4294967295U, " fpuType dp"}}) {
    SCOPED_TRACE(row.family);
    expect_writing(kWrite, {" -debugdevice cpunr 1" + row.written, [&row](SelectedEngine& e) {
                              e.processor.procFamily = row.family;
                              e.processor.fpuType = row.fpu;
                            }});
  }
}

TEST(DebugDeviceWriting, WritesReadOnlyMemoryForHardwareAndASizeAlone) {
  struct Row {
    std::uint32_t connection;
    std::uint32_t start;
    std::uint32_t size;
    std::string written;
  };
  for (const Row& row :
       {Row{2, 0xFFF00000U, 1048576, " -debugdevice cpunr 1 romemStartAdr 0xfff00000 romemSize 1048576"},
        {2, 0, 4294967295U, " -debugdevice cpunr 1 romemStartAdr 0x0 romemSize -1"},
        {2, 0x1000, 0, " -debugdevice cpunr 1"},
        {2, 0xFFFFFFFFU, 4096, " -debugdevice cpunr 1"},
        {1, 0x1000, 4096, ""},
        {4, 0x1000, 4096, ""},
        {8, 0x1000, 4096, " -debugdevice cpunr 1"}}) {
    SCOPED_TRACE(row.connection);
    expect_writing(kWrite, {row.written, [&row](SelectedEngine& e) {
                              e.processor.connectionType = row.connection;
                              e.processor.romemStartAddr = row.start;
                              e.processor.romemSize = row.size;
                            }});
  }
}

TEST(DebugDeviceWriting, WritesOnChipMemoryOfAPpc405Alone) {
  struct Row {
    std::uint32_t family;
    std::uint32_t variant;
    std::uint32_t start;
    std::string written;
  };
  for (const Row& row : {Row{1, 1, 0, " -debugdevice isocmStartAdr 0x0 isocmSize -1  isocmDcrStartAdr 0xffffffff"},
                         {0, 1, 0x1234, " -debugdevice isocmStartAdr 0x1234 isocmSize -1  isocmDcrStartAdr 0xffffffff"},
                         {1, 2, 0x1234, ""},
                         {1, 6, 0x1234, ""},
                         {1, 1, 0xFFFFFFFFU, ""}}) {
    SCOPED_TRACE(row.variant);
    expect_writing(kWrite, {row.written, [&row](SelectedEngine& e) {
                              e.processor.connectionType = Engine::SIMULATOR;
                              e.processor.procFamily = row.family;
                              e.processor.procVariant = row.variant;
                              e.processor.isocmStartAddr = row.start;
                              e.processor.isocmSize = 4294967295U;
                            }});
  }
}

TEST(DebugDeviceWriting, WritesEachBaseThatIsSetOfAPowerPCAlone) {
  struct Row {
    std::uint32_t ProcessorInfoImp::*field;
    std::string written;
  };
  for (const Row& row : {Row{&ProcessorInfoImp::icacheStartAddr, " -debugdevice icacheStartAdr 0x0"},
                         {&ProcessorInfoImp::itagStartAddr, " -debugdevice itagStartAdr 0x0"},
                         {&ProcessorInfoImp::dcacheStartAddr, " -debugdevice dcacheStartAdr 0x0"},
                         {&ProcessorInfoImp::dtagStartAddr, " -debugdevice dtagStartAdr 0x0"},
                         {&ProcessorInfoImp::tlbStartAddr, " -debugdevice tlbStartAdr 0x0"},
                         {&ProcessorInfoImp::dcrStartAddr, " -debugdevice dcrStartAdr 0x0"},
                         {&ProcessorInfoImp::debugAddressMap, ""}}) {
    for (const std::uint32_t family : {0U, 1U, 2U}) {
      SCOPED_TRACE(row.written + " of family " + std::to_string(family));
      expect_writing(kWrite, {family == 1 ? row.written : "", [&row, family](SelectedEngine& e) {
                                e.processor.connectionType = Engine::STUB;
                                e.processor.procFamily = family;
                                e.processor.*row.field = 0;
                              }});
    }
  }
}

}  // namespace
}  // namespace SdkDebugDialog
