// The frame of a command: heads, targets, and the whole texts that are written.

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "options/QvtOption_Parser.h"
#include "tests/options/reading.h"
#include "tests/options/work_folder.h"
#include "tests/support/GlobalLocale.h"

namespace SdkDebugDialog {
namespace {

constexpr char kOutOfRange[] = "basic_string::at: __n (which is 1) >= this->size() (which is 1)";

int read_command(SelectedEngine& e, const std::string& command) {
  return QvtOption_Parser::ReadQvtCommand(command, e.imp);
}

// The same text from the option file of the processor "p".
int read_file(SelectedEngine& e, const std::string& text) {
  const WorkFolder folder;
  WorkFolder::write(folder.option_file("p"), text);
  return QvtOption_Parser::ReadQvtOptFile("p", e.imp);
}

// --- Reading: heads and targets ---

// A text, whether a command and an option file may hold it, and what it does to a fresh engine.
struct Framed {
  std::string text;
  int fromCommand;
  int fromFile;
  std::string changes = {};
};

void expect_framed(const std::vector<Framed>& texts) {
  for (const Framed& framed : texts) {
    SCOPED_TRACE(framed.text);
    SelectedEngine e;
    EXPECT_EQ(read_command(e, framed.text), framed.fromCommand);
    EXPECT_EQ(changes(e), framed.fromCommand == 0 ? framed.changes : "");
    EXPECT_EQ(e.error(), "");
    SelectedEngine f;
    EXPECT_EQ(read_file(f, framed.text), framed.fromFile);
    EXPECT_EQ(changes(f), framed.fromFile == 0 ? framed.changes : "");
    EXPECT_EQ(f.error(), "");
  }
}

TEST(Framing, AcceptsTheHeadsOfEachSource) {
  expect_framed({{"connect ov odm", 0, 0, "allowedConnections=3"},
                 {"qconnect ov odm", 0, 3, "allowedConnections=3"},
                 {"vpconnect ov", 0, 0, "allowedConnections=9 connectionType=8"},
                 {"qvpconnect ov", 0, 3, "allowedConnections=9 connectionType=8"},
                 {"Connect ov odm", 0, 0, "allowedConnections=3"},
                 {"QCONNECT ov odm", 0, 3, "allowedConnections=3"},
                 {"VpConnect ov", 0, 0, "allowedConnections=9 connectionType=8"},
                 {"QVPCONNECT ov", 0, 3, "allowedConnections=9 connectionType=8"}});
}

TEST(Framing, RefusesAnyOtherHeadWithoutAText) {
  expect_framed({{"conn ov odm", 3, 3},
                 {"connects ov odm", 3, 3},
                 {"ov odm", 3, 3},
                 {"-connect ov odm", 3, 3},
                 {"5 ov odm", 3, 3},
                 {"\"connect\" ov odm", 3, 3},
                 {"xconnect", 3, 3}});
}

TEST(Framing, AcceptsTheTargetsOfEachSourceInAnyCase) {
  expect_framed({{"connect ov sim", 0, 0, "connectionType=1"},
                 {"connect ppc hw", 0, 0, "procFamily=1 procVariant=6 allowedConnections=3"},
                 {"connect arm hw", 0, 0, "procFamily=2 procVariant=4 allowedConnections=3"},
                 {"connect r5 hw", 0, 0, "procFamily=2 procVariant=5 allowedConnections=3"},
                 {"connect odm", 0, 3, "allowedConnections=16"},
                 {"connect dap hw", 0, 3, "procFamily=2 procVariant=4 allowedConnections=512"},
                 {"connect dcc", 0, 3, "procFamily=2 procVariant=4 allowedConnections=256"},
                 {"connect qmtc", 0, 3, "allowedConnections=32"},
                 {"connect OV sim", 0, 0, "connectionType=1"},
                 {"connect Ppc hw", 0, 0, "procFamily=1 procVariant=6 allowedConnections=3"},
                 {"connect ARM hw", 0, 0, "procFamily=2 procVariant=4 allowedConnections=3"},
                 {"connect R5 hw", 0, 0, "procFamily=2 procVariant=5 allowedConnections=3"},
                 {"connect Odm", 0, 3, "allowedConnections=16"},
                 {"connect DAP hw", 0, 3, "procFamily=2 procVariant=4 allowedConnections=512"},
                 {"connect dCC", 0, 3, "procFamily=2 procVariant=4 allowedConnections=256"},
                 {"connect QMTC", 0, 3, "allowedConnections=32"}});
}

TEST(Framing, RefusesAMissingOrUnknownTargetWithoutAText) {
  expect_framed({{"connect", 3, 3},
                 {"connect \t\r", 3, 3},
                 {"qconnect", 3, 3},
                 {"vpconnect", 3, 3},
                 {"qvpconnect", 3, 3},
                 {"connect mips hw", 3, 3},
                 {"connect sim", 3, 3},
                 {"connect o", 3, 3},
                 {"connect ovr sim", 3, 3},
                 {"connect -ov sim", 3, 3},
                 {"connect 5", 3, 3},
                 {"vpconnect ppc", 3, 3},
                 {"connect ov", 3, 3},
                 {"connect ppc", 3, 3},
                 {"connect arm", 3, 3},
                 {"connect r5", 3, 3},
                 {"connect dap", 3, 3}});
}

TEST(Framing, RefusesATextOfWhiteSpace) {
  expect_framed({{" ", 3, 3}, {"\t", 3, 3}, {"\r", 3, 3}, {" \v\f\r", 3, 3}});
  SelectedEngine e;
  EXPECT_EQ(read_command(e, ""), 3);
  EXPECT_EQ(read_command(e, "\n"), 3);
}

TEST(Framing, ReadsCapitalsLikeSmallLetters) {
  const GlobalLocale classic;
  expect_framed({{"CONNECT OV STUB", 0, 0, "allowedConnections=5 connectionType=4"},
                 {"connect ov stub", 0, 0, "allowedConnections=5 connectionType=4"},
                 {"CONNECT OV STUB -COMM SERIAL", 0, 0, "allowedConnections=5 connectionType=4 stubType=1"}});
}

TEST(Framing, AcceptsACommandThatEndsWithTheConnection) {
  expect_framed({{"connect ov odm", 0, 0, "allowedConnections=3"},
                 {"connect ov odm  \r", 0, 0, "allowedConnections=3"},
                 {"connect ov sim", 0, 0, "connectionType=1"},
                 {"connect ppc sim", 0, 0, "procFamily=1 procVariant=6 connectionType=1"}});
}

TEST(Framing, AnswersNotUnderstoodWhereATargetFailsAndKeepsItsErrorText) {
  for (const auto& read : {read_command, read_file}) {
    SelectedEngine e;
    e.engine.SetErrorStr("an older text");
    EXPECT_EQ(read(e, "connect ov odm -debugdevice deviceNr 2 -foo"), 3);
    EXPECT_EQ(e.error(), "UNKNOWN Option ''");
    EXPECT_EQ(changes(e), "debugDevice=2");
    e.engine.SetErrorStr("an older text");
    EXPECT_EQ(read(e, "connect ov odm -quiet 5"), 3);
    EXPECT_EQ(e.error(), "an older text");
    EXPECT_EQ(read(e, "connect mips"), 3);
    EXPECT_EQ(e.error(), "an older text");
  }
}

TEST(Framing, NamesTheScratchTokenForAnUnknownOption) {
  SelectedEngine e;
  e.processor.allowedConnections = 2;
  EXPECT_EQ(read_command(e, "connect ov odm -foo"), 3);
  EXPECT_EQ(e.error(), "UNKNOWN Option ''");
  EXPECT_EQ(read_command(e, "connect ov odm -quiet -foo"), 3);
  EXPECT_EQ(e.error(), "UNKNOWN Option '-foo'");
}

TEST(Framing, RefusesABareQconnectInAFileAndReadsItFromACommand) {
  SelectedEngine e;
  EXPECT_EQ(read_file(e, "qconnect ov odm -quiet"), 3);
  EXPECT_EQ(read_command(e, "qconnect ov odm -quiet"), 0);
}

TEST(Framing, RefusesTheDebugModuleAsATargetInAFile) {
  SelectedEngine e;
  EXPECT_EQ(read_file(e, "connect odm"), 3);
  EXPECT_EQ(e.processor.allowedConnections, 1U);
  EXPECT_EQ(read_command(e, "connect odm"), 0);
}

TEST(Framing, ReadsTheOptionsThatChangeNothingAndNeverWritesThem) {
  SelectedEngine e;
  EXPECT_EQ(read_command(e, "connect ov odm -quiet -noattach -writeonly"), 0);
  EXPECT_EQ(changes(e), "allowedConnections=3");
  std::string command;
  EXPECT_EQ(e.engine.GenerateCmdString(command), 0);
  EXPECT_EQ(command, "connect ov odm -debugdevice cpunr 1");
}

TEST(Framing, KeepsTheTextThatWasReadWhateverCameOfIt) {
  for (const std::string text : {"connect ov odm -quiet  ", "connect ov odm -foo", "nonsense", "connect", " ", "\r"}) {
    SCOPED_TRACE(testing::PrintToString(text));
    for (const auto& read : {read_command, read_file}) {
      SelectedEngine e;
      e.processor.command = "an older command";
      read(e, text);
      EXPECT_EQ(e.processor.command, text);
    }
  }
  SelectedEngine e;
  e.processor.command = "an older command";
  EXPECT_EQ(read_command(e, ""), 3);
  EXPECT_EQ(e.processor.command, "");
}

TEST(Framing, KeepsTheCommandWhereThereIsNoOptionFile) {
  const WorkFolder folder;
  SelectedEngine e;
  e.processor.command = "an older command";
  EXPECT_EQ(QvtOption_Parser::ReadQvtOptFile("p", e.imp), 4);
  WorkFolder::write(folder.option_file("p"), "\n\n");
  EXPECT_EQ(QvtOption_Parser::ReadQvtOptFile("p", e.imp), 4);
  EXPECT_EQ(e.processor.command, "an older command");
  EXPECT_EQ(e.error(), "");
}

TEST(Framing, LetsALoneDashThrowAndKeepsTheText) {
  for (const std::string text : {"-", "connect -", "connect ov -", "connect ov odm -", "connect ov odm -quiet - x",
                                 "connect ov odm -cable port -", "vpconnect -", "connect ppc sim -"}) {
    SCOPED_TRACE(text);
    for (const auto& read : {read_command, read_file}) {
      SelectedEngine e;
      try {
        read(e, text);
        ADD_FAILURE() << "nothing was thrown";
      } catch (const std::out_of_range& error) {
        EXPECT_STREQ(error.what(), kOutOfRange);
      }
      EXPECT_EQ(e.processor.command, text);
      EXPECT_EQ(e.error(), "");
    }
  }
}

TEST(Framing, ReadsAndWritesAHundredThousandDevices) {
  std::string chain;
  for (int i = 0; i < 100000; ++i) chain += " -configdevice devicenr 1 partname p irlength 10 idcode 0x1";
  SelectedEngine e;
  EXPECT_EQ(read_command(e, "connect ov odm" + chain), 0);
  std::string command;
  EXPECT_EQ(e.engine.GenerateCmdString(command), 0);
  EXPECT_EQ(e.imp.jtagChain.size(), 100000U);
  EXPECT_TRUE(command == "connect ov odm" + chain + " -debugdevice cpunr 1");
}

TEST(Framing, ReadsTokensOfAMegabyte) {
  const std::string token(1 << 20, 'x');
  SelectedEngine e;
  EXPECT_EQ(read_command(e, token), 3);
  EXPECT_EQ(read_command(e, "connect " + token), 3);
  EXPECT_EQ(read_command(e, "connect ov " + token), 3);
  EXPECT_EQ(e.error(), "");
  EXPECT_EQ(read_command(e, "connect ov odm -" + token), 3);
  EXPECT_EQ(e.error(), "UNKNOWN Option ''");
  EXPECT_EQ(read_command(e, "connect ov odm -debugdevice " + token + " 1"), 3);
  EXPECT_EQ(e.error(), "UNKNOWN Parameter '" + token.substr(0, 2047 - 19));
  EXPECT_EQ(read_command(e, "connect ov stub -comm serial -port " + token), 0);
  std::string command;
  EXPECT_EQ(e.engine.GenerateCmdString(command), 0);
  EXPECT_TRUE(command == "connect ov stub -comm serial -port " + token + "  -baud  0 -timeout 20000");
}

// --- Through the engine ---

struct ListedEngine : SelectedEngine {
  ProcessorInfo info;
  ListedEngine() {
    processor.name = "p";
    imp.processorList.push_back(&processor);
  }
};

TEST(Framing, IsReachedBySelectingAProcessor) {
  const WorkFolder folder;
  ListedEngine e;
  EXPECT_EQ(e.engine.SetProcessor("p", e.info), 4);
  WorkFolder::write(folder.option_file("p"), "connect ov odm -debugdevice deviceNr 2\n");
  EXPECT_EQ(e.engine.SetProcessor("p", e.info), 0);
  EXPECT_EQ(changes(e), "name=p allowedConnections=3 debugDevice=2");
  WorkFolder::write(folder.option_file("p"), "qconnect ov odm");
  EXPECT_EQ(e.engine.SetProcessor("p", e.info), 3);
  WorkFolder::write(folder.option_file("p"), "connect qmtc");
  EXPECT_EQ(e.engine.SetProcessor("p", e.info), 3);
  EXPECT_EQ(e.engine.ParseProcessorInfo("p", e.info, "qconnect ov odm -debugdevice deviceNr 3"), 0);
  EXPECT_EQ(changes(e), "name=p allowedConnections=3 debugDevice=3");
  EXPECT_EQ(e.engine.ParseProcessorInfo("p", e.info, "qconnect ov odm -quiet -foo"), 3);
  EXPECT_EQ(e.error(), "UNKNOWN Option '-foo'");
  EXPECT_EQ(e.engine.ParseProcessorInfo("p", e.info, "connect qmtc"), 0);
  EXPECT_EQ(e.info.allowedConnections, 32U);
  EXPECT_EQ(e.engine.ParseProcessorInfo("p", e.info, "connect r5 hw"), 0);
  EXPECT_EQ(e.info.procFamily, 2U);
  EXPECT_EQ(e.info.procVariant, 5U);
}

// --- Writing ---

using Setup = std::function<void(SelectedEngine&)>;

// A cable, a chain and a debug device, so that every group of a text has something to write.
void connect_everything(SelectedEngine& e) {
  e.imp.cable->CableOptionInit(Engine::ZARVEK_PLATFORMUSB);
  e.imp.cpuJtag = 1;
  e.imp.jtagChain.push_back(new JtagOption{.partname = "part", .idcode = 0x0A001093, .irlength = 10, .devicenr = 1});
  e.processor.bscanPort = 2;
  e.processor.debugDevice = 2;
  e.processor.memSize = 256;
  e.processor.stubSerialPort = "COM1";
  e.processor.stubBaudRate = 9600;
  e.processor.stubTimeout = 5;
  e.processor.uartEnabled = 1;
  e.processor.modelSimEnabled = 1;
}

const std::string kChain =
    " -cable type zarvek_platformusb port USB21 frequency 6000000 -bscan USER1 -configdevice jtagpin cpujtag "
    "-configdevice devicenr 1 partname part irlength 10 idcode 0xa001093";

// A selected connection and the whole text that it is written as.
struct Writing {
  std::uint32_t family;
  std::uint32_t connection;
  std::string text;
  Setup prepare = {};
};

const std::vector<Writing> kWritten = {
    // The soft processor.
    {0, 1, "connect ov sim"},
    {0, 4, "connect ov stub -comm jtag" + kChain + " -debugdevice deviceNr 2"},
    {0, 4, "connect ov stub -comm serial -port COM1  -baud  9600 -timeout 5",
     [](SelectedEngine& e) { e.processor.stubType = 1; }},
    {0, 4, "connect ov stub -comm serial -port COM1  -baud  9600 -timeout 5",
     [](SelectedEngine& e) { e.processor.stubType = 2; }},
    {0, 2, "connect ov odm" + kChain + " -debugdevice deviceNr 2 cpunr 1"},
    {0, 2, "connect ov odm" + kChain + " -debugdevice deviceNr 2 cpunr 1",
     [](SelectedEngine& e) { e.processor.stubType = 1; }},
    {0, 2, "connect ov odm -debugdevice deviceNr 2 cpunr 1",
     [](SelectedEngine& e) {
       e.imp.cable->CableOptionInit(Engine::CABLE_NONE);
       e.imp.cpuJtag = 0;
       e.release_chain();
       e.processor.bscanPort = 3;
     }},
    // The PowerPC.
    {1, 1, "connect ppc sim"},
    {1, 1, "connect ppc sim -icf a.cfg",
     [](SelectedEngine& e) {
       e.processor.simConfigFile = "a.cfg";
       e.processor.simHost = "host1";
     }},
    {1, 1, "connect ppc sim -ipcport host1:6470",
     [](SelectedEngine& e) {
       e.processor.simHost = "host1";
       e.processor.simPort = 6470;
     }},
    {1, 2, "connect ppc hw" + kChain + " -debugdevice deviceNr 2 cpunr 1 icacheStartAdr 0x70000000 fpuType sp",
     [](SelectedEngine& e) {
       e.processor.icacheStartAddr = 0x70000000;
       e.processor.fpuType = 1;
     }},
    // ARM, and any other family, like a PowerPC.
    {2, 1, "connect ppc sim"},
    {2, 2, "connect ppc hw" + kChain + " -debugdevice deviceNr 2 cpunr 1"},
    {3, 2, "connect ppc hw" + kChain + " -debugdevice deviceNr 2 cpunr 1"},
    {0xFFFFFFFF, 1, "connect ppc sim"},
    // The virtual platform.
    {0, 8, "vpconnect ov"},
    {0, 8, "vpconnect ov -config cycle_approximate",
     [](SelectedEngine& e) {
       e.processor.vpConfigured = 1;
       e.processor.vpCycleApproximate = 1;
       e.processor.simHost = "host1";
     }},
    {0, 8, "vpconnect ov -config", [](SelectedEngine& e) { e.processor.vpConfigured = 1; }},
    {0, 8, "vpconnect ov -ipcporthost12340",
     [](SelectedEngine& e) {
       e.processor.simHost = "host1";
       e.processor.simPort = 2340;
     }},
};

void prepare(SelectedEngine& e, const Writing& writing) {
  connect_everything(e);
  e.processor.name = "p";
  e.processor.procFamily = writing.family;
  e.processor.connectionType = writing.connection;
  if (writing.prepare) writing.prepare(e);
}

TEST(Framing, WritesEverySelectedConnectionAsAWholeText) {
  for (const Writing& writing : kWritten) {
    SCOPED_TRACE(writing.text);
    SelectedEngine e;
    prepare(e, writing);
    e.engine.SetErrorStr("an older text");
    std::string command = "before";
    EXPECT_EQ(QvtOption_Parser::WriteQvtCmdString(e.imp, command), 0);
    EXPECT_EQ(command, writing.text);
    EXPECT_EQ(e.processor.command, writing.text);
    EXPECT_EQ(e.error(), "an older text");
  }
}

TEST(Framing, WritesTheCommandTextAndNothingElseToTheOptionFile) {
  for (const Writing& writing : kWritten) {
    SCOPED_TRACE(writing.text);
    const WorkFolder folder;
    SelectedEngine e;
    prepare(e, writing);
    EXPECT_EQ(e.engine.Generate(), 0);
    EXPECT_EQ(WorkFolder::read(folder.option_file("p")), writing.text);
    EXPECT_EQ(e.processor.command, writing.text);
    EXPECT_EQ(e.error(), "");
    std::string command;
    EXPECT_EQ(e.engine.GenerateCmdString(command), 0);
    EXPECT_EQ(command, writing.text);
  }
}

TEST(Framing, WritesAnArmProcessorWithTheTargetOfThePowerPc) {
  SelectedEngine e;
  EXPECT_EQ(read_command(e,
                         "connect arm hw -configdevice devicenr 1 partname p irlength 4 idcode 0x1 -debugdevice "
                         "deviceNr 2"),
            0);
  std::string command;
  EXPECT_EQ(e.engine.GenerateCmdString(command), 0);
  EXPECT_EQ(command,
            "connect ppc hw -configdevice devicenr 1 partname p irlength 4 idcode 0x1 -debugdevice deviceNr 2 cpunr 1");
}

// A selected connection that cannot be written, and the text that tells so; empty: none does.
struct Refusal {
  std::uint32_t family;
  std::uint32_t connection;
  std::string error;
  Engine::CableType cable = Engine::ZARVEK_PLATFORMUSB;
};

TEST(Framing, LeavesEverythingAsItWasWhereTheConnectionCannotBeWritten) {
  const std::vector<Refusal> refusals = {
      {0, 0, "Invalid Connect Type for Ovrin Target"},
      {0, 3, "Invalid Connect Type for Ovrin Target"},
      {0, 5, "Invalid Connect Type for Ovrin Target"},
      {0, 16, "Invalid Connect Type for Ovrin Target"},
      {0, 132, "Invalid Connect Type for Ovrin Target"},
      {0, 512, "Invalid Connect Type for Ovrin Target"},
      {0, 0xFFFFFFFF, "Invalid Connect Type for Ovrin Target"},
      {1, 0, "Invalid Connect Type for PowerPC Target"},
      {1, 3, "Invalid Connect Type for PowerPC Target"},
      {1, 4, "Invalid Connect Type for PowerPC Target"},
      {1, 512, "Invalid Connect Type for PowerPC Target"},
      {2, 4, "Invalid Connect Type for PowerPC Target"},
      {2, 512, "Invalid Connect Type for PowerPC Target"},
      {7, 0, "Invalid Connect Type for PowerPC Target"},
      {1, 8, ""},
      {2, 8, ""},
      {0, 2, "Invalid Cable Type", Engine::ZARVEK_TCF},
      {0, 4, "Invalid Cable Type", Engine::ZARVEK_SVFFILE},
      {1, 2, "Invalid Cable Type", Engine::ZARVEK_TCF},
      {2, 2, "Invalid Cable Type", static_cast<Engine::CableType>(99)},
  };
  const WorkFolder folder;
  for (const Refusal& refusal : refusals) {
    SCOPED_TRACE(testing::Message() << "family " << refusal.family << " connection " << refusal.connection);
    SelectedEngine e;
    connect_everything(e);
    e.processor.name = "p";
    e.processor.procFamily = refusal.family;
    e.processor.connectionType = refusal.connection;
    e.imp.cable->type = refusal.cable;
    e.processor.command = "an older command";
    WorkFolder::write(folder.option_file("p"), "an older file\n");
    const std::string before = changes(e);
    const std::string error = refusal.error.empty() ? "an older text" : refusal.error;

    e.engine.SetErrorStr("an older text");
    std::string command = "before";
    EXPECT_EQ(e.engine.GenerateCmdString(command), 1);
    EXPECT_EQ(command, "before");
    EXPECT_EQ(e.error(), error);

    e.engine.SetErrorStr("an older text");
    EXPECT_EQ(e.engine.Generate(), 1);
    EXPECT_EQ(WorkFolder::read(folder.option_file("p")), "an older file\n");
    EXPECT_EQ(WorkFolder::list(folder.path() / "etc"), std::vector<std::string>{"qvt_p.opt"});
    EXPECT_EQ(e.error(), error);

    EXPECT_EQ(e.processor.command, "an older command");
    EXPECT_EQ(changes(e), before);
  }
}

TEST(Framing, WritesNothingWithoutASelectedProcessor) {
  const WorkFolder folder;
  Engine engine;
  std::string command = "before";
  EXPECT_EQ(engine.GenerateCmdString(command), 1);
  EXPECT_EQ(command, "before");
  EXPECT_EQ(engine.Generate(), 1);
  EXPECT_TRUE(WorkFolder::list(folder.path() / "etc").empty());
}

TEST(Framing, HandsTheCommandOutInPlaceOfWhatTheCallersTextHeld) {
  SelectedEngine e;
  std::string command = "before";
  EXPECT_EQ(e.engine.GenerateCmdString(command), 0);
  EXPECT_EQ(command, "connect ov odm -debugdevice cpunr 1");
  EXPECT_EQ(e.processor.command, "connect ov odm -debugdevice cpunr 1");
}

// --- Read and written again ---

TEST(Framing, WritesWhatAnotherEngineReadAsExpected) {
  struct Row {
    std::string read;
    std::string written;
  };
  const std::vector<Row> rows = {
      {"connect ov sim -memsize 0x100", "connect ov sim"},
      {"CONNECT OV STUB -comm serial -port COM1 -baud 0x1C200 -timeout 5",
       "connect ov stub -comm serial -port COM1  -baud  115200 -timeout 5"},
      {"connect ov stub -comm serial -port COM1  -baud  115200 -timeout 5",
       "connect ov stub -comm serial -port COM1  -baud  115200 -timeout 5"},
      {"connect ov stub", "connect ov stub -comm jtag"},
      {"connect ov odm -cable type zarvek_platformusb port USB21 frequency 6000000 -debugdevice deviceNr 2 cpunr 1",
       "connect ov odm -cable type zarvek_platformusb port USB21 frequency 6000000 -debugdevice deviceNr 2 cpunr 1"},
      {"connect ov odm -debugdevice deviceNr 2 -pfsl port 1 type ms -bscan USER1 -cable type zarvek_parallel3",
       "connect ov odm -cable type zarvek_parallel3 port LPT1 frequency 200000 -bscan USER1 -debugdevice deviceNr 2 "
       "cpunr 1"},
      {"connect ov odm -bscan USER4", "connect ov odm -debugdevice cpunr 1"},
      {"connect ppc sim -icf a.cfg -ipcport :7000 -debugdevice deviceNr 2", "connect ppc sim -icf a.cfg"},
      {"connect ppc sim -ipcport :7000", "connect ppc sim -ipcport localhost:7000"},
      {"connect ppc sim -ipcport host1", "connect ppc sim"},
      {"connect ppc hw -debugdevice proctype ppc405 isocmStartAdr 0xFFFF8000 isocmSize 0x8000 isocmDcrStartAdr 0x40 "
       "icacheStartAdr 0x70000000 deviceNr 2",
       "connect ppc hw -debugdevice deviceNr 2 cpunr 1 isocmStartAdr 0xffff8000 isocmSize 32768  isocmDcrStartAdr 0x40 "
       "icacheStartAdr 0x70000000"},
      {"connect arm hw", "connect ppc hw -debugdevice cpunr 1"},
      {"connect r5 hw -quiet", "connect ppc hw -debugdevice cpunr 1"},
      {"connect dap hw", "connect ppc hw -debugdevice cpunr 1"},
      {"connect dcc -uart", "connect ppc hw -debugdevice cpunr 1"},
      {"connect odm -uart -bscan USER1", "connect ov odm -bscan USER1 -debugdevice cpunr 1"},
      {"connect qmtc", "connect ov odm -debugdevice cpunr 1"},
      {"vpconnect ov -config cycle_approximate", "vpconnect ov -config cycle_approximate"},
      {"qvpconnect ov -ipcport :7000", "vpconnect ov -ipcportlocalhost7000"},
      {"vpconnect OV -ipcport 7000", "vpconnect ov"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.read);
    SelectedEngine e;
    EXPECT_EQ(read_command(e, row.read), 0);
    EXPECT_EQ(e.processor.command, row.read);
    std::string command;
    EXPECT_EQ(e.engine.GenerateCmdString(command), 0);
    EXPECT_EQ(command, row.written);
    EXPECT_EQ(e.processor.command, row.written);
  }
}

}  // namespace
}  // namespace SdkDebugDialog
