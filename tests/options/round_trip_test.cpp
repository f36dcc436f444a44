// Whole connect commands, read by an engine and written by the same engine.

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "options/QvtOption_Parser.h"
#include "tests/support/DesignedEngine.h"
#include "tests/support/GlobalLocale.h"
#include "tests/support/SelectedEngine.h"

namespace {

using SdkDebugDialog::Engine;
using SdkDebugDialog::ProcessorInfo;
using SdkDebugDialog::QvtOption_Parser;

// --- Without hardware ---

std::string read_and_write(const std::string& text) {
  SelectedEngine e;
  EXPECT_EQ(QvtOption_Parser::ReadQvtCommand(text, e.imp), 0);
  EXPECT_EQ(e.processor.command, text);
  std::string written;
  EXPECT_EQ(QvtOption_Parser::WriteQvtCmdString(e.imp, written), 0);
  EXPECT_EQ(e.processor.command, written);
  EXPECT_EQ(e.error(), "");
  return written;
}

// Texts that are written exactly as they were read.
const char* const kUnchanged[] = {
    "connect ov sim",
    "connect ov stub -comm jtag",
    "connect ov odm -debugdevice cpunr 1",
    "connect ov odm -cable type zarvek_platformusb port USB21 frequency 6000000 -debugdevice deviceNr 2 cpunr 1",
    ("connect ov odm -cable type digilent_plugin -bscan USER1 -configdevice devicenr 1 partname a irlength 6 idcode "
     "0xabcdef01 -configdevice devicenr -56 partname UNKNOWN irlength 0 idcode 0x0 -debugdevice deviceNr -1 cpunr -1 "
     "romemStartAdr 0xfff00000 romemSize 4096"),
    "connect ov odm -cable type zarvek_plugin modulename m modulearg a=1 modulearg b -debugdevice cpunr 1",
    "connect ov odm -cable type zarvek_platformusb esn 1234 -debugdevice cpunr 1",
    "connect ov odm -cable type zarvek_parallel port LPT2 frequency -1 -debugdevice cpunr 1",
    "connect ov stub -comm serial -port COM1  -baud  9600 -timeout 5",
    "connect ppc sim",
    "connect ppc sim -icf file.icf",
    "connect ppc sim -ipcport host1:7000",
    ("connect ppc hw -cable type zarvek_parallel3 port LPT1 frequency 200000 -debugdevice deviceNr 1 cpunr 2 "
     "icacheStartAdr 0x10000 itagStartAdr 0x20000 dcacheStartAdr 0x30000 dtagStartAdr 0x40000 tlbStartAdr 0x50000 "
     "dcrStartAdr 0x60000 fpuType dp"),
    "vpconnect ov",
    "vpconnect ov -config cycle_approximate",
};

const struct {
  std::string read;
  std::string written;
} kChanged[] = {
    // Case, blanks and the order of options.
    {"\tCONNECT  OV\tODM -DEBUGDEVICE CPUNR 2 DEVICENR 3 -BSCAN user1 -CABLE TYPE Zarvek_Parallel4\r\n",
     "connect ov odm -cable type zarvek_parallel port LPT1 frequency 5000000 -bscan USER1 -debugdevice deviceNr 3 "
     "cpunr 2"},
    {"connect ov odm -debugdevice deviceNr 2 -pfsl port 1 type ms -bscan USER1 -cable type zarvek_parallel3",
     "connect ov odm -cable type zarvek_parallel3 port LPT1 frequency 200000 -bscan USER1 -debugdevice deviceNr 2 "
     "cpunr 1"},
    {"CONNECT OV STUB -comm serial -port COM1 -baud 0x1C200 -timeout 5",
     "connect ov stub -comm serial -port COM1  -baud  115200 -timeout 5"},
    // Heads that are never written.
    {"qconnect ov sim", "connect ov sim"},
    {"QvpConnect OV", "vpconnect ov"},
    // Defaults of settings that are not in the text.
    {"connect ov odm", "connect ov odm -debugdevice cpunr 1"},
    {"connect ov stub", "connect ov stub -comm jtag"},
    {"connect ov stub -comm serial", "connect ov stub -comm serial -port /dev/ttyS0  -baud  0 -timeout 20000"},
    {"connect ov odm -cable type zarvek_platformusb",
     "connect ov odm -cable type zarvek_platformusb port USB21 frequency 6000000 -debugdevice cpunr 1"},
    {"connect ov odm -configdevice",
     "connect ov odm -configdevice devicenr 0 partname UNKNOWN irlength 0 idcode 0x0 "
     "-debugdevice cpunr 1"},
    // A cable that is not the last option keeps its old frequency.
    {"connect ov odm -cable type zarvek_platformusb -quiet",
     "connect ov odm -cable type zarvek_platformusb port USB21 frequency 0 -debugdevice cpunr 1"},
    // Settings that are never written.
    {"connect ov sim -memsize 0x100", "connect ov sim"},
    {"connect ov odm -quiet -noattach -writeonly -pfsl port 1 type ms", "connect ov odm -debugdevice cpunr 1"},
    {"connect ov odm -sim -ipcport host1:1 -configdevice devicenr 1",
     "connect ov odm -configdevice devicenr 1 partname UNKNOWN irlength 0 idcode 0x0 -debugdevice cpunr 1"},
    {"connect ov odm -bscan USER4 -configdevice devicenr 1 isfpga 1 hardppc ppc405 nppc 2 irlength 010 idcode 255",
     "connect ov odm -configdevice devicenr 1 partname UNKNOWN irlength 8 idcode 0xff -debugdevice cpunr 1"},
    {"connect ov odm -cable esn 1 url u fname f port p frequency 5 type zarvek_parallel3 -quiet",
     "connect ov odm -cable type zarvek_parallel3 esn 1 -debugdevice cpunr 1"},
    {"connect ov odm -debugdevice cpu_version 1 odm_version 2 nCpu 3 fpuType sp icacheStartAdr 0x10000",
     "connect ov odm -debugdevice cpunr 1"},
    {"connect ov stub -comm jtag -debugdevice deviceNr 2 cpunr 2 romemStartAdr 0 romemSize 1",
     "connect ov stub -comm jtag -debugdevice deviceNr 2"},
    {"connect ppc sim -debugdevice deviceNr 2 -ipcport host1", "connect ppc sim"},
    {"connect ppc sim -ipcport host1:7000 -icf file.icf", "connect ppc sim -icf file.icf"},
    {"connect ppc sim -ipcport :7000", "connect ppc sim -ipcport localhost:7000"},
    {"vpconnect OV -ipcport 7000", "vpconnect ov"},
    {"connect ppc hw -debugdevice isocmStartAdr 0xffff8000 isocmSize 32768 isocmDcrStartAdr 0x40 proctype ppc405",
     "connect ppc hw -debugdevice cpunr 1 isocmStartAdr 0xffff8000 isocmSize 32768  isocmDcrStartAdr 0x40"},
    {"connect ppc hw -debugdevice isocmStartAdr 0xffff8000 isocmSize 32768  isocmDcrStartAdr 0x40",
     "connect ppc hw -debugdevice cpunr 1"},
    // Targets without a writer of their own.
    {"connect arm hw -debugdevice deviceNr 4", "connect ppc hw -debugdevice deviceNr 4 cpunr 1"},
    {"connect r5 hw", "connect ppc hw -debugdevice cpunr 1"},
    {"connect dap hw", "connect ppc hw -debugdevice cpunr 1"},
    {"connect dcc -uart", "connect ppc hw -debugdevice cpunr 1"},
    {"connect odm -uart -bscan USER1", "connect ov odm -bscan USER1 -debugdevice cpunr 1"},
    {"connect qmtc -debugdevice deviceNr 2", "connect ov odm -debugdevice deviceNr 2 cpunr 1"},
};

TEST(RoundTrip, LeavesAWrittenTextAsItIs) {
  for (const char* const text : kUnchanged) EXPECT_EQ(read_and_write(text), text);
}

TEST(RoundTrip, WritesWhatItReadInTheFormThatItReadsBack) {
  const GlobalLocale classic;
  for (const auto& row : kChanged) {
    SCOPED_TRACE(row.read);
    EXPECT_EQ(read_and_write(row.read), row.written);
    // Only a ppc405 has on-chip memory, and the written text does not contain the processor type.
    if (row.written.find("isocm") == std::string::npos) {
      EXPECT_EQ(read_and_write(row.written), row.written);
    }
  }
}

TEST(RoundTrip, WritesTheProcessorsOwnPinsInAFormThatItDoesNotReadBack) {
  const std::string written = read_and_write("connect ov odm -configdevice jtagport cpu");
  EXPECT_EQ(written,
            "connect ov odm -configdevice jtagpin cpujtag -configdevice devicenr 0 partname UNKNOWN irlength 0 idcode "
            "0x0 -debugdevice cpunr 1");
  SelectedEngine e;
  EXPECT_EQ(QvtOption_Parser::ReadQvtCommand(written, e.imp), 3);
  EXPECT_EQ(e.error(), "UNKNOWN Parameter 'jtagpin' for option '-configDevice'");
}

TEST(RoundTrip, WritesTheVirtualPlatformsPortInAFormThatItDoesNotReadBack) {
  const std::string written = read_and_write("vpconnect ov -ipcport host1:2340");
  EXPECT_EQ(written, "vpconnect ov -ipcporthost12340");
  SelectedEngine e;
  EXPECT_EQ(QvtOption_Parser::ReadQvtCommand(written, e.imp), 3);
  EXPECT_EQ(e.error(), "UNKNOWN virtual platform Option '-ipcporthost12340'");
}

TEST(RoundTrip, WritesEmptyModuleArgumentsInAFormThatLosesThem) {
  EXPECT_EQ(read_and_write("connect ov odm -cable type zarvek_plugin modulename m modulearg a;;b"),
            "connect ov odm -cable type zarvek_plugin modulename m modulearg a modulearg  modulearg b -debugdevice "
            "cpunr 1");
}

TEST(RoundTrip, ChecksTheFrequencyOfACableThatEndsAStubsCommandOnlyWhenItReadsItBack) {
  const std::string written = read_and_write("connect ov stub -comm jtag -cable type zarvek_platformusb -quiet");
  EXPECT_EQ(written, "connect ov stub -comm jtag -cable type zarvek_platformusb port USB21 frequency 0");
  SelectedEngine e;
  EXPECT_EQ(QvtOption_Parser::ReadQvtCommand(written, e.imp), 3);
  EXPECT_EQ(e.error(),
            "UnSupported Zarvek PlatformUSB Cable Frequency - 0\n"
            "Supported Frequencies: 750000, 1500000, 3000000, 6000000, 12000000, 24000000");
}

TEST(RoundTrip, WritesATextThatBeginsWithADashInAFormThatItDoesNotReadBack) {
  SelectedEngine e;
  e.engine.SetCableType(Engine::ZARVEK_PLATFORMUSB);
  std::string written;
  e.engine.SetCablePort("-x");
  EXPECT_EQ(e.engine.GenerateCmdString(written), 0);
  EXPECT_EQ(QvtOption_Parser::ReadQvtCommand(written, e.imp), 3);
  e.engine.SetCablePort("-");
  EXPECT_EQ(e.engine.GenerateCmdString(written), 0);
  EXPECT_THROW(QvtOption_Parser::ReadQvtCommand(written, e.imp), std::out_of_range);
}

TEST(RoundTrip, WritesBasesOffTheBoundaryInAFormThatItDoesNotReadBack) {
  SelectedEngine e;
  e.processor.procFamily = 1;
  EXPECT_EQ(e.imp.AssignAddressMap(0x10001), 0);
  std::string written;
  EXPECT_EQ(e.engine.GenerateCmdString(written), 0);
  EXPECT_EQ(QvtOption_Parser::ReadQvtCommand(written, e.imp), 3);
  EXPECT_EQ(e.error(), "Icache Start Address should be aligned at 64k boundry");
}

// --- With a design ---

TEST(DesignRoundTrip, WritesWhatItReadForEachProcessor) {
  struct {
    const char* processor;
    unsigned int variant;
    unsigned int family;
    unsigned int allowed;
    const char* read;
    const char* written;
  } const rows[] = {
      {"ovrin_0", 0, 0, 135, "connect ov sim -memsize 32", "connect ov sim"},
      {"ovrin_0", 0, 0, 135, "connect ov stub -comm serial -port COM1 -baud 9600",
       "connect ov stub -comm serial -port COM1  -baud  9600 -timeout 20000"},
      {"ovrin_0", 0, 0, 135, "qconnect OV odm -cable type zarvek_platformusb -debugdevice deviceNr 2 cpunr 1",
       "connect ov odm -cable type zarvek_platformusb port USB21 frequency 0 -debugdevice deviceNr 2 cpunr 1"},
      {"ovrin_1", 0, 0, 1, "connect ov sim", "connect ov sim"},
      {"ppc405_0", 1, 1, 3,
       "connect ppc hw -debugdevice deviceNr 2 cpunr 1 isocmStartAdr 0xffff8000 isocmSize 32768  isocmDcrStartAdr 0x40 "
       "icacheStartAdr 0x70000000 fpuType dp",
       "connect ppc hw -debugdevice deviceNr 2 cpunr 1 isocmStartAdr 0xffff8000 isocmSize 32768  isocmDcrStartAdr 0x40 "
       "icacheStartAdr 0x70000000"},
      {"ppc440_0", 2, 1, 3, "connect ppc hw -debugdevice cpunr 2 isocmStartAdr 0 fpuType sp",
       "connect ppc hw -debugdevice cpunr 2 fpuType dp"},
      {"ppc440_0", 2, 1, 3, "connect ppc sim -icf file.icf", "connect ppc sim -icf file.icf"},
      {"a9_0", 4, 2, 2, "connect arm hw -configdevice devicenr 1 partname p irlength 4 idcode 0xAB",
       "connect ppc hw -configdevice devicenr 1 partname p irlength 4 idcode 0xab -debugdevice cpunr 1"},
      {"ovrin_0", 0, 0, 16, "connect odm -uart", "connect ov odm -debugdevice cpunr 1"},
      {"ovrin_0", 4, 2, 512, "connect dap hw", "connect ppc hw -debugdevice cpunr 1"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(std::string(row.processor) + ": " + row.read);
    DesignedEngine d;
    ProcessorInfo info;
    EXPECT_EQ(d.engine.ParseProcessorInfo(row.processor, info, row.read), 0);
    EXPECT_EQ(info.procVariant, row.variant);
    EXPECT_EQ(info.procFamily, row.family);
    EXPECT_EQ(info.allowedConnections, row.allowed);
    std::string written;
    EXPECT_EQ(d.engine.GenerateCmdString(written), 0);
    EXPECT_EQ(written, row.written);
    EXPECT_EQ(d.engine.imp->currentProcessor->command, row.written);
    EXPECT_EQ(d.error(), "");
  }
}

TEST(DesignRoundTrip, GoesBackToTheDefaultsWhenTheTextDoesNotFitTheProcessor) {
  struct {
    const char* processor;
    const char* read;
    const char* error;
    const char* written;
  } const rows[] = {
      {"ovrin_1", "connect ov odm -debugdevice deviceNr 2", "", "connect ov odm -debugdevice cpunr 2"},
      {"ovrin_1", "connect ov stub", "", "connect ov odm -debugdevice cpunr 2"},
      {"a9_0", "connect ppc sim", "", "connect ppc hw -debugdevice cpunr 1"},
      {"ppc440_0", "connect ppc hw -debugdevice deviceNr 2 cpunr 1", "", "connect ppc hw -debugdevice cpunr 2"},
      {"ovrin_0", "connect ov odm -cable type zarvek_tcf -configdevice devicenr 1 -quiet -foo", "UNKNOWN Option '-foo'",
       "connect ov odm -debugdevice cpunr 1"},
      {"ovrin_0", "connect ov sim -cable type zarvek_tcf", "", "connect ov odm -debugdevice cpunr 1"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(std::string(row.processor) + ": " + row.read);
    DesignedEngine d;
    d.engine.SetErrorStr("an older text");
    ProcessorInfo info;
    EXPECT_EQ(d.engine.ParseProcessorInfo(row.processor, info, row.read), 3);
    EXPECT_EQ(d.error(), row.error);
    std::string written;
    EXPECT_EQ(d.engine.GenerateCmdString(written), 0);
    EXPECT_EQ(written, row.written);
  }
}

TEST(DesignRoundTrip, FindsTheFpuOnlyAfterASuccessfulRead) {
  DesignedEngine d;
  ProcessorInfo info;
  EXPECT_EQ(d.engine.ParseProcessorInfo("ppc440_0", info, "connect ov"), 3);
  std::string written;
  EXPECT_EQ(d.engine.GenerateCmdString(written), 0);
  EXPECT_EQ(written, "connect ppc hw -debugdevice cpunr 2");
  EXPECT_EQ(d.engine.ParseProcessorInfo("ppc440_0", info, written), 0);
  EXPECT_EQ(d.engine.GenerateCmdString(written), 0);
  EXPECT_EQ(written, "connect ppc hw -debugdevice cpunr 2 fpuType dp");
}

TEST(DesignRoundTrip, TakesNoOnChipMemoryFromATextThatLacksTheProcessorsType) {
  DesignedEngine d;
  ProcessorInfo info;
  EXPECT_EQ(d.engine.ParseProcessorInfo("ppc440_0", info,
                                        "connect ppc hw -debugdevice cpunr 2 proctype ppc405 isocmStartAdr 0x40"),
            0);
  std::string written;
  EXPECT_EQ(d.engine.GenerateCmdString(written), 0);
  EXPECT_EQ(written,
            "connect ppc hw -debugdevice cpunr 2 isocmStartAdr 0x40 isocmSize 0  isocmDcrStartAdr 0xffffffff fpuType "
            "dp");
  DesignedEngine fresh;
  EXPECT_EQ(fresh.engine.ParseProcessorInfo("ppc440_0", info, written), 0);
  EXPECT_EQ(fresh.engine.GenerateCmdString(written), 0);
  EXPECT_EQ(written, "connect ppc hw -debugdevice cpunr 2 fpuType dp");
}

TEST(DesignRoundTrip, ChangesNothingForAProcessorThatIsNotListed) {
  DesignedEngine d;
  ProcessorInfo info{7, 8, 9};
  EXPECT_EQ(d.engine.ParseProcessorInfo("ovrin_0", info, "connect ov sim"), 0);
  info = {7, 8, 9};
  EXPECT_EQ(d.engine.ParseProcessorInfo("OVRIN_0", info, "connect ov odm"), 2);
  EXPECT_EQ(d.error(),
            "Processor Instance OVRIN_0 not Found !!, Please check \t\t\t\t\tProcessor Connection in your "
            "HWS file\n");
  EXPECT_EQ(info.procVariant, 7U);
  EXPECT_EQ(info.procFamily, 8U);
  EXPECT_EQ(info.allowedConnections, 9U);
  std::string written;
  EXPECT_EQ(d.engine.GenerateCmdString(written), 0);
  EXPECT_EQ(written, "connect ov sim");
}

TEST(DesignRoundTrip, WritesChangesThatSettersMadeInBetween) {
  DesignedEngine d;
  ProcessorInfo info;
  EXPECT_EQ(d.engine.ParseProcessorInfo("ppc405_0", info, "connect ppc sim"), 0);
  EXPECT_EQ(d.engine.SetConnectionType(Engine::HARDWARE), 0);
  EXPECT_EQ(d.engine.SetCableType(Engine::ZARVEK_PLATFORMUSB), 0);
  EXPECT_EQ(d.engine.SetCableSpeed(12000000), 0);
  EXPECT_EQ(d.engine.SetDebugDevice(200), 0);
  EXPECT_EQ(d.engine.SetDcacheBaseAddr(0x20000), 0);
  EXPECT_EQ(d.engine.SetROMem(0xFFF00000U, 4096), 0);
  std::string written;
  EXPECT_EQ(d.engine.GenerateCmdString(written), 0);
  EXPECT_EQ(written,
            "connect ppc hw -cable type zarvek_platformusb port USB21 frequency 12000000 -debugdevice deviceNr -56 "
            "cpunr 1 romemStartAdr 0xfff00000 romemSize 4096 dcacheStartAdr 0x20000");
  EXPECT_EQ(d.engine.ParseProcessorInfo("ppc405_0", info, written), 0);
  std::string again;
  EXPECT_EQ(d.engine.GenerateCmdString(again), 0);
  EXPECT_EQ(again, written);
}

TEST(DesignRoundTrip, ThrowsOnALoneDashAndKeepsWhatCameBeforeIt) {
  DesignedEngine d;
  ProcessorInfo info;
  EXPECT_THROW(d.engine.ParseProcessorInfo("ovrin_0", info, "connect ov odm -configdevice devicenr 1 -cable port p -"),
               std::out_of_range);
  EXPECT_EQ(d.engine.imp->cable->port, "p");
  EXPECT_EQ(d.engine.imp->jtagChain.size(), 1U);
}

}  // namespace
