// The records: their fields, defaults and resets.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <functional>
#include <string>
#include <type_traits>

#include "SdkDebugDialog/CableOption.h"
#include "SdkDebugDialog/EngineImp.h"
#include "SdkDebugDialog/JtagOption.h"
#include "SdkDebugDialog/ProcessorInfo.h"
#include "tests/support/DefaultSettings.h"

namespace SdkDebugDialog {
namespace {

using R = ProcessorInfoImp;

template <class Type, class... Fields>
constexpr bool all_are = (std::is_same_v<Type, Fields> && ...);

static_assert(all_are<std::string, decltype(R::name), decltype(R::simConfigFile), decltype(R::simHost),
                      decltype(R::stubSerialPort), decltype(R::cpuVersion), decltype(R::odmVersion),
                      decltype(R::modelSimHost), decltype(R::command)>);
static_assert(
    all_are<std::uint32_t, decltype(R::procFamily), decltype(R::procVariant), decltype(R::allowedConnections),
            decltype(R::connectionType), decltype(R::memSize), decltype(R::simPort), decltype(R::vpConfigured),
            decltype(R::vpCycleApproximate), decltype(R::stubType), decltype(R::debugAddressMap),
            decltype(R::isocmStartAddr), decltype(R::isocmSize), decltype(R::isocmDcrStartAddr),
            decltype(R::icacheStartAddr), decltype(R::dcacheStartAddr), decltype(R::itagStartAddr),
            decltype(R::dtagStartAddr), decltype(R::tlbStartAddr), decltype(R::dcrStartAddr), decltype(R::fpuType),
            decltype(R::romemStartAddr), decltype(R::romemSize), decltype(R::modelSimPort), decltype(R::bscanPort)>);
static_assert(all_are<std::int32_t, decltype(R::stubBaudRate), decltype(R::stubTimeout), decltype(R::nCpu)>);
static_assert(all_are<std::uint8_t, decltype(R::cpuNr), decltype(R::svfFileSet), decltype(R::modelSimEnabled),
                      decltype(R::uartEnabled)>);
static_assert(all_are<std::int8_t, decltype(R::debugDevice)>);

static_assert(all_are<std::uint32_t, decltype(ProcessorInfo::procVariant), decltype(ProcessorInfo::procFamily),
                      decltype(ProcessorInfo::allowedConnections)>);
static_assert(sizeof(ProcessorInfo) == 12);

static_assert(all_are<Engine::CableType, decltype(CableOption::type)>);
static_assert(all_are<std::uint32_t, decltype(CableOption::frequency)>);
static_assert(
    all_are<std::string, decltype(CableOption::port), decltype(CableOption::esn), decltype(CableOption::fname),
            decltype(CableOption::modulename), decltype(CableOption::modulearg), decltype(CableOption::url)>);

static_assert(all_are<std::string, decltype(JtagOption::partname)>);
static_assert(all_are<std::uint32_t, decltype(JtagOption::idcode)>);
static_assert(all_are<std::int8_t, decltype(JtagOption::irlength), decltype(JtagOption::devicenr),
                      decltype(JtagOption::isfpga), decltype(JtagOption::hardppc), decltype(JtagOption::nppc)>);

static_assert(!std::is_polymorphic_v<ProcessorInfoImp> && !std::is_polymorphic_v<CableOption> &&
              !std::is_polymorphic_v<JtagOption>);

// Whether an object has these fields in this order.
template <class... Fields>
bool in_order(const Fields&... fields) {
  const void* const addresses[] = {&fields...};
  return std::ranges::is_sorted(addresses, std::less<>());
}

// A record in which every setting differs from its default.
ProcessorInfoImp changed_record() {
  ProcessorInfoImp r;
  r.name = "ppc_1";
  r.procFamily = 1;
  r.procVariant = 2;
  r.allowedConnections = 135;
  r.cpuNr = 200;
  r.connectionType = 4;
  r.memSize = 32;
  r.simConfigFile = "sim.icf";
  r.simHost = "host";
  r.simPort = 6470;
  r.vpConfigured = 1;
  r.vpCycleApproximate = 1;
  r.stubType = 1;
  r.stubSerialPort = "/dev/ttyUSB3";
  r.stubBaudRate = 115200;
  r.stubTimeout = 5;
  r.debugDevice = -3;
  r.debugAddressMap = 0x10000;
  r.isocmStartAddr = 0x20000;
  r.isocmSize = 0x30000;
  r.isocmDcrStartAddr = 0x40000;
  r.icacheStartAddr = 0x50000;
  r.dcacheStartAddr = 0x60000;
  r.itagStartAddr = 0x70000;
  r.dtagStartAddr = 0x80000;
  r.tlbStartAddr = 0x90000;
  r.dcrStartAddr = 0xA0000;
  r.fpuType = 2;
  r.cpuVersion = "7.10";
  r.odmVersion = "1.0";
  r.nCpu = 2;
  r.romemStartAddr = 0xB0000;
  r.romemSize = 0xC0000;
  r.svfFileSet = 1;
  r.modelSimEnabled = 1;
  r.modelSimHost = "other";
  r.modelSimPort = 1;
  r.uartEnabled = 1;
  r.bscanPort = 2;
  r.command = "connect ppc hw";
  return r;
}

// --- Processor records ---

TEST(ProcessorRecord, IsFreshlyThatOfAProcessorKnownFromACommandAlone) {
  const ProcessorInfoImp fresh;
  EXPECT_EQ(fresh.name, "");
  EXPECT_EQ(fresh.procFamily, 0U);
  EXPECT_EQ(fresh.procVariant, 0U);
  EXPECT_EQ(fresh.allowedConnections, 1U);
  EXPECT_EQ(fresh.cpuNr, 1);
  expect_default_settings(fresh);
}

TEST(ProcessorRecord, ResetKeepsTheIdentityAndRestoresEverySetting) {
  ProcessorInfoImp record = changed_record();
  record.ProcessorInfoImpInit();
  EXPECT_EQ(record.name, "ppc_1");
  EXPECT_EQ(record.procFamily, 1U);
  EXPECT_EQ(record.procVariant, 2U);
  EXPECT_EQ(record.allowedConnections, 135U);
  EXPECT_EQ(record.cpuNr, 200);
  expect_default_settings(record);
}

TEST(ProcessorRecord, ResetReleasesTextsOfAnyLength) {
  ProcessorInfoImp record;
  for (std::string* const text : {&record.name, &record.simConfigFile, &record.simHost, &record.stubSerialPort,
                                  &record.cpuVersion, &record.odmVersion, &record.modelSimHost, &record.command}) {
    text->assign(1000, 'x');
  }
  record.ProcessorInfoImpInit();
  EXPECT_EQ(record.name, std::string(1000, 'x'));
  expect_default_settings(record);
}

TEST(ProcessorRecord, CanBeResetAgainAndAgain) {
  ProcessorInfoImp record = changed_record();
  record.ProcessorInfoImpInit();
  record.ProcessorInfoImpInit();
  EXPECT_EQ(record.name, "ppc_1");
  expect_default_settings(record);
}

TEST(ProcessorRecord, AnAddressThatIsNotSetIsAllOnes) { EXPECT_EQ(kAddressNotSet, 0xFFFFFFFFU); }

TEST(ProcessorRecord, HasItsFieldsInTheDeclaredOrder) {
  const ProcessorInfoImp r;
  EXPECT_TRUE(in_order(r.name, r.procFamily, r.procVariant, r.allowedConnections, r.cpuNr, r.connectionType, r.memSize,
                       r.simConfigFile, r.simHost, r.simPort, r.vpConfigured, r.vpCycleApproximate, r.stubType,
                       r.stubSerialPort, r.stubBaudRate, r.stubTimeout, r.debugDevice, r.debugAddressMap,
                       r.isocmStartAddr, r.isocmSize, r.isocmDcrStartAddr, r.icacheStartAddr, r.dcacheStartAddr,
                       r.itagStartAddr, r.dtagStartAddr, r.tlbStartAddr, r.dcrStartAddr, r.fpuType, r.cpuVersion,
                       r.odmVersion, r.nCpu, r.romemStartAddr, r.romemSize, r.svfFileSet, r.modelSimEnabled,
                       r.modelSimHost, r.modelSimPort, r.uartEnabled, r.bscanPort, r.command));
}

TEST(ProcessorSummary, HoldsVariantFamilyAndConnectionsInThisOrder) {
  const ProcessorInfo info = {1, 2, 3};
  EXPECT_EQ(info.procVariant, 1U);
  EXPECT_EQ(info.procFamily, 2U);
  EXPECT_EQ(info.allowedConnections, 3U);
}

// --- Cable records ---

TEST(CableRecord, IsFreshlyNoCable) { expect_no_cable(CableOption()); }

TEST(CableRecord, HasItsFieldsInTheDeclaredOrder) {
  const CableOption c;
  EXPECT_TRUE(in_order(c.type, c.frequency, c.port, c.esn, c.fname, c.modulename, c.modulearg, c.url));
}

CableOption changed_cable() {
  CableOption cable;
  cable.type = Engine::ZARVEK_PLUGIN;
  cable.frequency = 1234;
  cable.port = "COM1";
  cable.esn = "0001";
  cable.fname = "out.svf";
  cable.modulename = "module";
  cable.modulearg = "a;b";
  cable.url = "tcp:host";
  return cable;
}

TEST(CableRecord, InitGivesTheDefaultsOfEachTypeAndEmptiesTheRest) {
  struct Row {
    unsigned int type;
    unsigned int frequency;
    const char* port;
  };
  constexpr Row kRows[] = {{0, 0, ""},          {1, 0, ""},         {2, 5000000, "LPT1"}, {3, 6000000, "USB21"},
                           {4, 200000, "LPT1"}, {5, 0, ""},         {6, 0, ""},           {7, 0, ""},
                           {8, 0, ""},          {0xFFFFFFFF, 0, ""}};
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.type);
    CableOption cable = changed_cable();
    cable.CableOptionInit(static_cast<Engine::CableType>(row.type));
    EXPECT_EQ(cable.type, row.type);
    EXPECT_EQ(cable.frequency, row.frequency);
    EXPECT_EQ(cable.port, row.port);
    EXPECT_EQ(cable.esn, "");
    EXPECT_EQ(cable.fname, "");
    EXPECT_EQ(cable.modulename, "");
    EXPECT_EQ(cable.modulearg, "");
    EXPECT_EQ(cable.url, "");
  }
}

TEST(CableRecord, CopiesAllEightFieldsIndependently) {
  CableOption original = changed_cable();
  const CableOption copy(original);
  original.CableOptionInit(Engine::CABLE_NONE);
  EXPECT_EQ(copy.type, Engine::ZARVEK_PLUGIN);
  EXPECT_EQ(copy.frequency, 1234U);
  EXPECT_EQ(copy.port, "COM1");
  EXPECT_EQ(copy.esn, "0001");
  EXPECT_EQ(copy.fname, "out.svf");
  EXPECT_EQ(copy.modulename, "module");
  EXPECT_EQ(copy.modulearg, "a;b");
  EXPECT_EQ(copy.url, "tcp:host");
}

// --- Chain records ---

TEST(ChainRecord, IsFreshlyAnUnknownDevice) {
  const JtagOption device;
  EXPECT_EQ(device.partname, "UNKNOWN");
  EXPECT_EQ(device.idcode, 0U);
  EXPECT_EQ(device.irlength, 0);
  EXPECT_EQ(device.devicenr, 0);
  EXPECT_EQ(device.isfpga, 0);
  EXPECT_EQ(device.hardppc, 0);
  EXPECT_EQ(device.nppc, 0);
}

TEST(ChainRecord, HasItsFieldsInTheDeclaredOrder) {
  const JtagOption d;
  EXPECT_TRUE(in_order(d.partname, d.idcode, d.irlength, d.devicenr, d.isfpga, d.hardppc, d.nppc));
}

}  // namespace
}  // namespace SdkDebugDialog
