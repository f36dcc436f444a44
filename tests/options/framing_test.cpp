// Whole commands: heads, targets, and the texts that are written.

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "tests/options/reading.h"
#include "tests/options/work_folder.h"
#include "tests/support/GlobalLocale.h"

namespace SdkDebugDialog {
namespace {

int read_command(std::string& text, EngineImp& imp) {
  return QvtOption_Parser::ReadQvtCommand(std::exchange(text, {}), imp);
}

// Reads the same text from the option file of the processor "p".
int read_file(std::string& text, EngineImp& imp) {
  const WorkFolder folder;
  WorkFolder::write(folder.option_file("p"), std::exchange(text, {}));
  return QvtOption_Parser::ReadQvtOptFile("p", imp);
}

// --- Reading: heads and targets ---

// A text, its results as a command and as an option file, and the settings that it changes when it is read.
struct Framed {
  std::string text;
  int fromCommand;
  int fromFile;
  std::string changes = {};
};

void expect_framed(const std::vector<Framed>& texts) {
  for (const auto& [text, fromCommand, fromFile, changes] : texts) {
    expect_reading(read_command, {text, fromCommand, fromCommand == 0 ? changes : ""});
    expect_reading(read_file, {text, fromFile, fromFile == 0 ? changes : ""});
  }
}

TEST(Framing, AcceptsTheHeadsOfEachSource) {
  expect_framed({{"connect ov odm", 0, 0, "allowedConnections=3"},
                 {"connect ov odm  \r", 0, 0, "allowedConnections=3"},
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
  const GlobalLocale classic;
  expect_framed({{"connect ov sim", 0, 0, "connectionType=1"},
                 {"connect ppc sim", 0, 0, "procFamily=1 procVariant=6 connectionType=1"},
                 {"CONNECT OV STUB -COMM SERIAL", 0, 0, "allowedConnections=5 connectionType=4 stubType=1"},
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
  expect_readings(read_command, {{"", 3}, {"\n", 3}});
}

TEST(Framing, AnswersNotUnderstoodWhereATargetFailsAndKeepsItsErrorText) {
  for (const auto& read : {read_command, read_file}) {
    expect_readings(read,
                    {{"connect ov odm -debugdevice deviceNr 2 -foo", 3, "debugDevice=2", Error("UNKNOWN Option ''")},
                     {"connect ov odm -quiet -foo", 3, Error("UNKNOWN Option '-foo'")},
                     {"connect ov odm -quiet 5", 3},
                     {"connect mips", 3}});
  }
}

TEST(Framing, KeepsTheTextThatWasReadWhateverCameOfIt) {
  for (const std::string text : {"connect ov odm -quiet  ", "connect ov odm -foo", "nonsense", "connect", " ", "\r"}) {
    SCOPED_TRACE(testing::PrintToString(text));
    for (const auto& read : {read_command, read_file}) {
      SelectedEngine e;
      std::string given = text;
      read(given, e.imp);
      EXPECT_EQ(e.processor.command, text);
    }
  }
  SelectedEngine e;
  e.processor.command = "an older command";
  EXPECT_EQ(QvtOption_Parser::ReadQvtCommand("", e.imp), 3);
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
  struct Row {
    std::string text;
    std::string changes;
  };
  for (const Row& row : {Row{"-", ""},
                         {"connect -", ""},
                         {"connect ov -", ""},
                         {"connect ov odm -", ""},
                         {"connect ov odm -quiet - x", ""},
                         {"connect ov odm -cable port -", ""},
                         {"vpconnect -", ""},
                         {"connect ppc sim -", "procFamily=1 procVariant=6"}}) {
    for (const auto& read : {read_command, read_file}) {
      expect_reading(read, {row.text, kThrows, row.changes});
      SelectedEngine e;
      std::string text = row.text;
      EXPECT_THROW(read(text, e.imp), std::out_of_range);
      EXPECT_EQ(e.processor.command, row.text);
    }
  }
}

TEST(Framing, ReadsAndWritesAHundredThousandDevices) {
  std::string chain;
  for (int i = 0; i < 100000; ++i) chain += " -configdevice devicenr 1 partname p irlength 10 idcode 0x1";
  SelectedEngine e;
  EXPECT_EQ(QvtOption_Parser::ReadQvtCommand("connect ov odm" + chain, e.imp), 0);
  std::string command;
  EXPECT_EQ(e.engine.GenerateCmdString(command), 0);
  EXPECT_EQ(e.imp.jtagChain.size(), 100000U);
  EXPECT_TRUE(command == "connect ov odm" + chain + " -debugdevice cpunr 1");
}

TEST(Framing, ReadsTokensOfAMegabyte) {
  const std::string token(1 << 20, 'x');
  expect_readings(read_command,
                  {{token, 3},
                   {"connect " + token, 3},
                   {"connect ov " + token, 3},
                   {"connect ov odm -" + token, 3, Error("UNKNOWN Option ''")},
                   {"connect ov odm -debugdevice " + token + " 1", 3, cut_error("UNKNOWN Parameter '" + token)},
                   {"connect ov stub -comm serial -port " + token, 0,
                    "allowedConnections=5 connectionType=4 stubType=1 stubSerialPort=" + token}});
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

// Sets a cable, a chain and a debug device, so that every group is written.
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

// A selected connection and the whole text that is written for it.
struct Connection {
  std::uint32_t family;
  std::uint32_t connection;
  std::string text;
  Prepare prepare = {};
};

const std::vector<Connection> kWritten = {
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

void prepare(SelectedEngine& e, const Connection& connection) {
  connect_everything(e);
  e.processor.name = "p";
  e.processor.procFamily = connection.family;
  e.processor.connectionType = connection.connection;
  if (connection.prepare) connection.prepare(e);
}

TEST(Framing, WritesEverySelectedConnectionAsAWholeText) {
  for (const Connection& connection : kWritten) {
    SCOPED_TRACE(connection.text);
    SelectedEngine e;
    prepare(e, connection);
    e.engine.SetErrorStr("an older text");
    std::string command = "before";
    EXPECT_EQ(QvtOption_Parser::WriteQvtCmdString(e.imp, command), 0);
    EXPECT_EQ(command, connection.text);
    EXPECT_EQ(e.processor.command, connection.text);
    EXPECT_EQ(e.error(), "an older text");
  }
}

TEST(Framing, WritesTheCommandTextAndNothingElseToTheOptionFile) {
  for (const Connection& connection : kWritten) {
    SCOPED_TRACE(connection.text);
    const WorkFolder folder;
    SelectedEngine e;
    prepare(e, connection);
    EXPECT_EQ(e.engine.Generate(), 0);
    EXPECT_EQ(WorkFolder::read(folder.option_file("p")), connection.text);
    EXPECT_EQ(e.processor.command, connection.text);
    EXPECT_EQ(e.error(), "");
    std::string command;
    EXPECT_EQ(e.engine.GenerateCmdString(command), 0);
    EXPECT_EQ(command, connection.text);
  }
}

// A selected connection that cannot be written, and the error text; empty if none is stored.
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

}  // namespace
}  // namespace SdkDebugDialog
