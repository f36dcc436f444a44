// Option files that people wrote, changes, and the whole files afterwards, byte for byte.

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "SdkDebugDialog/Configuration.h"
#include "by_hand.h"
#include "edit_check.h"
#include "tests/options/work_folder.h"

namespace {

using SdkDebugDialog::Change;
using SdkDebugDialog::Configuration;
using SdkDebugDialog::Processor;
using SdkDebugDialog::TextKind;

struct Row {
  const char* processor;
  std::optional<std::string> before;  // none: there is no file
  const char* changes;                // see changes_of
  const char* after;
};

const Row kFiles[] = {
    // Everything that is never written stays.
    {"ovrin_0",
     "connect ov odm -quiet -bscan USER3 -cable type zarvek_platformusb esn 0042 port USB22 frequency 3000000 "
     "-configdevice devicenr 1 partname fpga irlength 10 isfpga 1 -debugdevice deviceNr 1 cpu_version 7.10.d nCpu 2\n",
     "debug-device=2",
     "connect ov odm -quiet -bscan USER3 -cable type zarvek_platformusb esn 0042 port USB22 frequency 3000000 "
     "-configdevice devicenr 1 partname fpga irlength 10 isfpga 1 -debugdevice deviceNr 2 cpu_version 7.10.d nCpu 2\n"},
    {"ovrin_0", "connect ov odm -pfsl port 1 type ms -noattach -debugdevice deviceNr 1", "debug-device=3",
     "connect ov odm -pfsl port 1 type ms -noattach -debugdevice deviceNr 3"},
    {"ovrin_0", "connect ov odm -cable type zarvek_platformusb frequency 750000 fname out.svf url http://x",
     "url=ftp://y frequency=1.5M",
     "connect ov odm -cable type zarvek_platformusb frequency 1500000 fname out.svf url ftp://y"},

    // Spelling, blanks, tabs, lines.
    {"ovrin_0", "\tConnect\tOV  ODM -CABLE Type Zarvek_PlatformUSB\tFREQUENCY   0x5B8D80 -Debugdevice DEViCENR 010\n",
     "frequency=12M",
     "\tConnect\tOV  ODM -CABLE Type Zarvek_PlatformUSB\tFREQUENCY   12000000 -Debugdevice DEViCENR 010\n"},
    {"ovrin_0", "\n\nconnect ov odm -bscan USER3\r\nconnect ov sim\r\n", "bscan=USER4",
     "\n\nconnect ov odm -bscan USER4\r\nconnect ov sim\r\n"},
    {"ovrin_0", "connect ov odm -debugdevice deviceNr 1 \t\r\n", "debug-device=2",
     "connect ov odm -debugdevice deviceNr 2 \t\r\n"},
    {"ovrin_0", "connect ov odm -debugdevice deviceNr 010", "debug-device=8",
     "connect ov odm -debugdevice deviceNr 010"},

    // A missing keyword joins its group, in the writer's order.
    {"ovrin_0", "connect ov odm -cable type zarvek_platformusb -quiet", "port=USB22",
     "connect ov odm -cable type zarvek_platformusb port USB22 -quiet"},
    {"ovrin_0", "connect ov odm -cable frequency 750000 type zarvek_platformusb -quiet", "port=USB22",
     "connect ov odm -cable frequency 750000 type zarvek_platformusb port USB22 -quiet"},
    {"ovrin_0", "connect ov odm -debugdevice cpunr 1", "debug-device=2",
     "connect ov odm -debugdevice deviceNr 2 cpunr 1"},
    {"ovrin_0", "connect ov odm -debugdevice cpunr 1", "cpu-version=8.0 cpu-count=4",
     "connect ov odm -debugdevice cpunr 1 cpu_version 8.0 nCpu 4"},
    {"ppc405_0", "connect ppc hw -debugdevice deviceNr 1 icacheStartAdr 0x70000000 dcrStartAdr 0x70050000",
     "itag=0x7001_0000",
     "connect ppc hw -debugdevice deviceNr 1 icacheStartAdr 0x70000000 itagStartAdr 0x70010000 dcrStartAdr "
     "0x70050000"},
    {"ppc405_0", "connect ppc hw -debugdevice cpunr 1", "rom=0xfff00000 rom-size=4K",
     "connect ppc hw -debugdevice cpunr 1 romemStartAdr 0xfff00000 romemSize 4096"},
    {"ppc405_0", "connect ppc hw -debugdevice isocmStartAdr 0xffff8000 isocmSize 32768", "isocm-size=16K",
     "connect ppc hw -debugdevice isocmStartAdr 0xffff8000 isocmSize 16384"},

    // A missing option stands where the writer puts it, and the frequency of the cable before it is written out.
    {"ovrin_0", "connect ov odm -cable type zarvek_platformusb\r\n", "bscan=USER1",
     "connect ov odm -cable type zarvek_platformusb frequency 6000000 -bscan USER1\r\n"},
    {"ovrin_0", "connect ov odm -cable type zarvek_platformusb", "debug-device=2",
     "connect ov odm -cable type zarvek_platformusb frequency 6000000 -debugdevice deviceNr 2"},
    {"a9_0", "connect arm hw -cable type zarvek_platformusb esn 1234", "debug-device=1",
     "connect arm hw -cable type zarvek_platformusb frequency 6000000 esn 1234 -debugdevice deviceNr 1"},
    {"ovrin_0", "connect ov odm -cable type zarvek_platformusb", "frequency=12M esn=7 debug-device=1",
     "connect ov odm -cable type zarvek_platformusb frequency 12000000 esn 7 -debugdevice deviceNr 1"},
    {"ovrin_0", "connect ov odm -configdevice devicenr 1 -debugdevice deviceNr 2", "bscan=USER4",
     "connect ov odm -bscan USER4 -configdevice devicenr 1 -debugdevice deviceNr 2"},
    {"ovrin_0", "connect ov stub -port COM2", "stub=serial", "connect ov stub -comm serial -port COM2"},
    {"ovrin_0", "connect ov stub -comm serial -port /dev/ttyS1 -baud 9600", "stub-timeout=100 stub-baud=115.2k",
     "connect ov stub -comm serial -port /dev/ttyS1 -baud 115200 -timeout 100"},
    {"ovrin_0", "connect ov odm -sim -ipcport host1:9000", "bscan=USER1",
     "connect ov odm -bscan USER1 -sim -ipcport host1:9000"},

    // Another cable brings its port and frequency.
    {"ovrin_0", "connect ov odm -quiet -cable type zarvek_platformusb port USB22 frequency 3000000 -bscan USER3",
     "cable=zarvek_parallel3",
     "connect ov odm -quiet -cable type zarvek_parallel3 port LPT1 frequency 200000 -bscan USER3"},
    {"ovrin_0", "connect ov odm -cable type zarvek_plugin modulename probe modulearg a=1 modulearg b",
     "module=other module-arguments=a;c",
     "connect ov odm -cable type zarvek_plugin modulename other modulearg a modulearg c"},

    // Back to the default: the words go where the rest then reads right.
    {"ovrin_0", "connect ov odm -debugdevice deviceNr 2 cpunr 1", "-debug-device",
     "connect ov odm -debugdevice cpunr 1"},
    {"ovrin_0", "connect ov odm -cable type zarvek_platformusb frequency 3000000 -debugdevice deviceNr 2\n",
     "-debug-device", "connect ov odm -cable type zarvek_platformusb frequency 3000000\n"},
    {"ovrin_0", "connect ov odm -debugdevice deviceNr 1 -cable type zarvek_platformusb frequency 12000000",
     "-frequency", "connect ov odm -debugdevice deviceNr 1 -cable type zarvek_platformusb"},
    {"ovrin_0", "connect ov odm -cable type zarvek_platformusb frequency 12000000 -debugdevice deviceNr 1",
     "-frequency", "connect ov odm -cable type zarvek_platformusb frequency 6000000 -debugdevice deviceNr 1"},
    {"ovrin_0", "connect ov odm -quiet -cable type zarvek_platformusb port P frequency 750000 -debugdevice deviceNr 1",
     "-cable", "connect ov odm -quiet -debugdevice deviceNr 1"},
    {"ovrin_0", "connect ov stub -comm serial -port /dev/ttyS1 -baud 9600", "-stub-port",
     "connect ov stub -comm serial -baud 9600"},
    {"ppc405_0", "connect ppc hw -debugdevice deviceNr 1 icacheStartAdr 0x70000000 fpuType sp", "-icache",
     "connect ppc hw -debugdevice deviceNr 1 fpuType sp"},
    {"ovrin_0", "connect ov odm -debugdevice deviceNr 1 -sim", "-enabled", "connect ov odm -debugdevice deviceNr 1"},
    {"ovrin_0", "connect ov odm -configdevice jtagpin cpujtag -debugdevice deviceNr 1", "-cpu-jtag",
     "connect ov odm -debugdevice deviceNr 1"},
    {"ovrin_0", "connect ov odm -configdevice devicenr 1 partname p jtagport cpu", "cpu-jtag=off",
     "connect ov odm -configdevice devicenr 1 partname p"},

    // The simulators, the virtual platform, processors of no design.
    {"ovrin_0", "connect ov sim -memsize 0x100\n", "memory-size=0x400", "connect ov sim -memsize 1024\n"},
    {"ovrin_0", "connect ov sim\n", "memory-size=64", "connect ov sim -memsize 64\n"},
    {"ovrin_0", "connect ov sim -memsize 0x100", "-memory-size", "connect ov sim"},
    {"ppc405_0", "connect ppc sim -ipcport host1:7000 -debugdevice deviceNr 3", "sim-port=7001",
     "connect ppc sim -ipcport host1:7001 -debugdevice deviceNr 3"},
    {"ppc405_0", "connect ppc sim -ipcport host1:7000", "sim-host=host2 config-file=a.icf",
     "connect ppc sim -icf a.icf -ipcport host2:7000"},
    {"ovrin_0", "connect ov odm -quiet -sim -ipcport host1:9000 -configdevice devicenr 1",
     "hardware-simulator-port=9001", "connect ov odm -quiet -sim -ipcport host1:9001 -configdevice devicenr 1"},
    {"", "vpconnect ov -ipcport host1:2340", "sim-port=2341", "vpconnect ov -ipcport host1:2341"},
    {"", "VPConnect OV", "cycle-approximate=on", "VPConnect OV -config cycle_approximate"},
    {"", "connect r5 hw -debugdevice deviceNr 4", "debug-device=5", "connect r5 hw -debugdevice deviceNr 5"},

    // Another connection, another chain.
    {"ovrin_0", "Connect OV sim\n", "connection=hardware", "Connect OV odm\n"},
    {"ovrin_0", "connect ov  odm", "stub=serial stub-port=COM2", "connect ov  stub -comm serial -port COM2"},
    {"ovrin_0", "connect ov odm -configdevice devicenr 1 partname a irlength 4 idcode 1 -debugdevice deviceNr 1",
     "devices=2,b,5,2",
     "connect ov odm -configdevice devicenr 2 partname b irlength 5 idcode 0x2 -debugdevice deviceNr 1"},
    {"ovrin_0", "connect ov odm -quiet -debugdevice deviceNr 2",
     "devices=1,prom32,16,0xa5059093:2,fpga,10,0x0a001093,1,ppc405,2",
     "connect ov odm -configdevice devicenr 1 partname prom32 irlength 16 idcode 0xa5059093 -configdevice devicenr 2 "
     "partname fpga irlength 10 idcode 0xa001093 isfpga 1 hardppc ppc405 nppc 2 -quiet -debugdevice deviceNr 2"},

    // Written anew.
    {"ovrin_0", std::nullopt, "debug-device=2", "connect ov odm -debugdevice deviceNr 2 cpunr 1"},
    {"ppc405_0", "connect ppc sim -debugdevice cpunr 1", "connection=hardware", "connect ppc hw -debugdevice cpunr 1"},
};

class EditFiles : public testing::Test {
 protected:
  Processor processor(const std::string& name) const {
    return name.empty() ? Processor() : m_design.find(name).value();
  }

 private:
  Hardware m_hardware;
  SdkDebugDialog::Design m_design{m_hardware};
};

TEST_F(EditFiles, AreAsExpectedByteForByte) {
  const WorkFolder folder;
  const std::string path = "etc/file";
  for (const Row& row : kFiles) {
    SCOPED_TRACE(row.before.value_or("(no file)") + "\n" + row.changes);
    const auto edit = SdkDebugDialog::edit(processor(row.processor), row.before.value_or(""), TextKind::optionFile,
                                           changes_of(row.changes));
    if (!edit) {
      ADD_FAILURE() << edit.error().message;
      continue;
    }
    EXPECT_EQ(edit->text, row.after);
    EXPECT_TRUE(edit->is_safe()) << edit->notReadBack;

    std::filesystem::remove(path);
    if (row.before) WorkFolder::write(path, *row.before);
    auto configuration = Configuration::open(processor(row.processor), path);
    // A text that is refused for one thing alone cannot be opened.
    if (!configuration) continue;
    for (const Change& change : changes_of(row.changes)) {
      if (change.toDefault) {
        EXPECT_TRUE(configuration->reset(*SdkDebugDialog::find_setting(change.setting)));
      } else {
        const auto set = configuration->set(change.setting, change.value);
        EXPECT_TRUE(set) << set.error().message;
      }
    }
    const auto stored = configuration->store();
    ASSERT_TRUE(stored) << stored.error().message;
    EXPECT_EQ(WorkFolder::read(path), row.after);
    EXPECT_EQ(WorkFolder::list("etc").size(), 1U);
  }
}

// Targets that stand in no file.
TEST_F(EditFiles, CommandsForOtherTargetsAreEditedAlike) {
  const Row kCommands[] = {
      {"ovrin_0", "connect odm -uart -bscan USER1 -cable type zarvek_platformusb", "bscan=USER4",
       "connect odm -uart -bscan USER4 -cable type zarvek_platformusb"},
      {"ovrin_0", "connect odm -uart -cable type zarvek_platformusb", "uart=off",
       "connect odm -cable type zarvek_platformusb"},
      {"", "connect dcc -debugdevice deviceNr 1", "uart=on", "connect dcc -debugdevice deviceNr 1 -uart"},
      {"", "QConnect qmtc -configdevice devicenr 1", "debug-device=1",
       "QConnect qmtc -configdevice devicenr 1 -debugdevice deviceNr 1"},
      {"", "connect dap hw -cable type zarvek_platformusb frequency 750000", "bscan=USER1",
       "connect dap hw -cable type zarvek_platformusb frequency 750000 -bscan USER1"},
      {"ovrin_0", " qconnect\tOV odm -quiet", "debug-device=1", " qconnect\tOV odm -debugdevice deviceNr 1 -quiet"},
  };
  for (const Row& row : kCommands) {
    SCOPED_TRACE(*row.before + "\n" + row.changes);
    const auto edit =
        SdkDebugDialog::edit(processor(row.processor), *row.before, TextKind::command, changes_of(row.changes));
    if (edit) {
      EXPECT_EQ(edit->text, row.after);
      EXPECT_TRUE(edit->is_safe()) << edit->notReadBack;
    } else {
      ADD_FAILURE() << edit.error().message;
    }
  }
}

TEST_F(EditFiles, CableAndChainAloneAreEditedAlike) {
  const Row kTexts[] = {
      {"", "-cable type zarvek_platformusb", "frequency=12M", "-cable type zarvek_platformusb frequency 12000000"},
      {"", " -Configdevice devicenr 1  -bscan USER3 ", "bscan=USER1", " -Configdevice devicenr 1  -bscan USER1 "},
      {"", "-cable type zarvek_parallel3 port P", "debug-device=2",
       "-cable type zarvek_parallel3 port P frequency 200000 -debugdevice deviceNr 2"},
  };
  for (const Row& row : kTexts) {
    SCOPED_TRACE(*row.before + "\n" + row.changes);
    const auto edit = SdkDebugDialog::edit({}, *row.before, TextKind::cableText, changes_of(row.changes));
    if (edit) {
      EXPECT_EQ(edit->text, row.after);
    } else {
      ADD_FAILURE() << edit.error().message;
    }
  }
}

}  // namespace
