#include <gmock/gmock.h>

#include <stdexcept>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "tests/options/reading.h"
#include "tests/support/SelectedEngine.h"

namespace {

using SdkDebugDialog::CableOption;
using SdkDebugDialog::Engine;
using SdkDebugDialog::EngineImp;
using SdkDebugDialog::JtagOption;
using testing::ElementsAre;

// The eight fields of a cable, in their order.
auto fields(const CableOption& c) {
  return std::make_tuple(unsigned{c.type}, c.frequency, c.port, c.esn, c.fname, c.modulename, c.modulearg, c.url);
}

// A cable with every field set.
CableOption filled(Engine::CableType type) {
  CableOption c;
  c.type = type;
  c.frequency = 1234;
  c.port = "P";
  c.esn = "E";
  c.fname = "F";
  c.modulename = "M";
  c.modulearg = "A";
  c.url = "U";
  return c;
}

// The outputs of ParseJtagCableInfo, with initial values. Releases the devices that were added to the chain.
struct Parsed {
  CableOption cable = filled(Engine::DIGILENT_PLUGIN);
  JtagOption before;
  std::vector<JtagOption*> chain = {&before};
  int cpuJtag = 77;
  char debugDevice = 'd';

  Parsed() = default;
  ~Parsed() {
    for (const JtagOption* const device : chain) {
      if (device != &before) delete device;
    }
  }
  Parsed(const Parsed&) = delete;
  Parsed& operator=(const Parsed&) = delete;

  int parse(const std::string& text) { return Engine::ParseJtagCableInfo(text, cable, chain, cpuJtag, debugDevice); }
  void expect_untouched() const {
    EXPECT_EQ(fields(cable), fields(filled(Engine::DIGILENT_PLUGIN)));
    EXPECT_THAT(chain, ElementsAre(&before));
    EXPECT_EQ(cpuJtag, 77);
    EXPECT_EQ(debugDevice, 'd');
  }
};

// --- The engine's own plug-in cable ---

constexpr unsigned int kOtherTypes[] = {0, 1, 2, 3, 4, 6, 7, 99};

int set_plugin(std::string& text, EngineImp& imp) { return imp.engine->SetPluginCableOptions(std::exchange(text, {})); }

TEST(LivePluginCable, RefusesATextForAnyOtherCableAndChangesNothing) {
  for (const unsigned int type : kOtherTypes) {
    SCOPED_TRACE(type);
    expect_reading(set_plugin,
                   {"-cable modulename m -configdevice", 1,
                    Error("Internal Error: Other Cable Options applies only for ZARVEK_PLUGIN cable type")},
                   [type](SelectedEngine& e) { e.imp.cable->type = static_cast<Engine::CableType>(type); });
  }
}

TEST(LivePluginCable, AppliesWhateverTheTextSetsAndKeepsItOnAFailureThatItTellsOf) {
  expect_readings(
      set_plugin,
      {{"", 0},
       {"-configdevice jtagport cpu devicenr 1 -debugdevice deviceNr 2 cpunr 3 -bscan USER1 -cable modulename m "
        "modulearg a modulearg b",
        0, "cpuNr=3 debugDevice=2 bscanPort=2 cable.modulename=m cable.modulearg=a;b cpuJtag=1 device{devicenr=1}"},
       {"-cable type zarvek_parallel3", 0, "cable.type=4 cable.frequency=200000 cable.port=LPT1"},
       {"-cable modulename m -configdevice devicenr 1 -foo", 1, "cable.modulename=m device{devicenr=1}",
        Error("UNKNOWN Option ''")},
       {"-cable modulename m speed 1", 1, "cable.modulename=m",
        Error("UNKNOWN Parameter 'speed' for  option '-cable'")},
       {"-cable modulearg a", 1, "cable.modulearg=a",
        Error("Plug-in Module NOT specified for Cable Type zarvek_plugin")},
       {"-cable modulename m frequency 5", 1, "cable.frequency=5 cable.modulename=m"},
       {"word", 1},
       {"-configdevice devicenr 1 -cable modulename m -", kThrows, "cable.modulename=m device{devicenr=1}"}},
      [](SelectedEngine& e) { e.engine.SetCableType(Engine::ZARVEK_PLUGIN); });
}

TEST(LivePluginCable, RefusesATextWithoutAProcessor) {
  Engine engine;
  engine.SetCableType(Engine::ZARVEK_PLUGIN);
  EXPECT_EQ(engine.SetPluginCableOptions("-cable modulename m"), 1);
}

TEST(LivePluginCable, IsAnsweredWholeAsText) {
  SelectedEngine e;
  e.engine.SetCableType(Engine::ZARVEK_PLUGIN);
  const std::string name(5000, 'n');
  e.imp.cable->modulename = name;
  e.imp.cable->modulearg = ";a%s;";
  e.imp.cable->url = "u";
  e.imp.cable->frequency = 5;
  std::string out = "before";
  EXPECT_EQ(e.engine.GetPluginCableOptions(out), 0);
  EXPECT_EQ(out, "-cable type zarvek_plugin modulename " + name + " modulearg  modulearg a%s modulearg ");
}

TEST(LivePluginCable, AnswersAnEmptyTextWithoutAModule) {
  SelectedEngine e;
  e.engine.SetCableType(Engine::ZARVEK_PLUGIN);
  e.imp.cable->modulearg = "a";
  std::string out = "before";
  EXPECT_EQ(e.engine.GetPluginCableOptions(out), 1);
  EXPECT_EQ(out, "");
}

TEST(LivePluginCable, LeavesTheAnswerAloneForAnyOtherCable) {
  for (const unsigned int type : kOtherTypes) {
    SCOPED_TRACE(type);
    SelectedEngine e;
    e.imp.cable->type = static_cast<Engine::CableType>(type);
    e.imp.cable->modulename = "mod";
    std::string out = "before";
    EXPECT_EQ(e.engine.GetPluginCableOptions(out), 2);
    EXPECT_EQ(out, "before");
    EXPECT_EQ(e.error(), "");
  }
}

// --- A caller's plug-in cable ---

TEST(CallersCable, IsAnsweredAsTextEvenWithoutAModule) {
  CableOption c;
  c.type = Engine::ZARVEK_PLUGIN;
  std::string out = "before";
  EXPECT_EQ(Engine::Get3rdPartyCableOptions(out, c), 0);
  EXPECT_EQ(out, "-cable type zarvek_plugin modulename ");
  EXPECT_EQ(Engine::Get3rdPartyCableOptions(out, filled(Engine::ZARVEK_PLUGIN)), 0);
  EXPECT_EQ(out, "-cable type zarvek_plugin modulename M modulearg A");
}

TEST(CallersCable, OfAnyOtherTypeLeavesTheAnswerAlone) {
  for (const unsigned int type : kOtherTypes) {
    SCOPED_TRACE(type);
    std::string out = "before";
    EXPECT_EQ(Engine::Get3rdPartyCableOptions(out, filled(static_cast<Engine::CableType>(type))), 1);
    EXPECT_EQ(out, "before");
  }
}

TEST(CallersCable, TakesAllEightFieldsFromATextOfAnyType) {
  CableOption c = filled(Engine::ZARVEK_TCF);
  EXPECT_EQ(Engine::Set3rdPartyCableOptions(c, "-cable type zarvek_parallel4 esn e fname f url u"), 0);
  EXPECT_EQ(fields(c), std::make_tuple(2U, 5000000U, "LPT1", "e", "f", "", "", "u"));
}

TEST(CallersCable, IsResetByATextWithoutACable) {
  CableOption c = filled(Engine::ZARVEK_TCF);
  EXPECT_EQ(Engine::Set3rdPartyCableOptions(c, ""), 0);
  EXPECT_EQ(fields(c), fields(CableOption()));
}

TEST(CallersCable, ReadsItsOwnTextBack) {
  CableOption c = filled(Engine::ZARVEK_PLUGIN);
  c.modulearg = "a=1;b";
  std::string text;
  EXPECT_EQ(Engine::Get3rdPartyCableOptions(text, c), 0);
  CableOption back;
  EXPECT_EQ(Engine::Set3rdPartyCableOptions(back, text), 0);
  EXPECT_EQ(fields(back), std::make_tuple(5U, 0U, "", "", "", "M", "a=1;b", ""));
}

TEST(CallersCable, StaysUntouchedByATextThatIsNotUnderstood) {
  for (const char* const text : {"word", "-foo", "-cable type usb", "-cable type zarvek_plugin", "-cable port",
                                 "-configdevice devicenr 1 -configdevice irlength", "-cable port p -bscan USER9"}) {
    SCOPED_TRACE(text);
    CableOption c = filled(Engine::ZARVEK_TCF);
    EXPECT_EQ(Engine::Set3rdPartyCableOptions(c, text), 1);
    EXPECT_EQ(fields(c), fields(filled(Engine::ZARVEK_TCF)));
  }
}

// The sanitizer checks that the devices are released.
TEST(CallersCable, PassesOverTheDevicesOfAChain) {
  CableOption c;
  EXPECT_EQ(Engine::Set3rdPartyCableOptions(
                c, "-cable type zarvek_tcf -configdevice devicenr 1 -configdevice devicenr 2 -debugdevice deviceNr 3"),
            0);
  EXPECT_EQ(c.type, Engine::ZARVEK_TCF);
}

TEST(CallersCable, StaysUntouchedWhenALoneDashThrows) {
  CableOption c = filled(Engine::ZARVEK_TCF);
  EXPECT_THROW(Engine::Set3rdPartyCableOptions(c, "-cable port p -configdevice devicenr 1 -"), std::out_of_range);
  EXPECT_EQ(fields(c), fields(filled(Engine::ZARVEK_TCF)));
}

// --- A whole text ---

TEST(CableInfo, ReplacesCableChainPinsAndDebugDevice) {
  Parsed p;
  EXPECT_EQ(p.parse("-cable type zarvek_parallel3 -configdevice devicenr 1 partname p irlength 6 idcode 0x1 "
                    "-configdevice jtagport cpu devicenr 2 isfpga 1"),
            0);
  EXPECT_EQ(fields(p.cable), std::make_tuple(4U, 0U, "LPT1", "", "", "", "", ""));
  ASSERT_EQ(p.chain.size(), 2U);
  EXPECT_EQ(device_text(*p.chain[0]), "device{devicenr=1 partname=p irlength=6 idcode=1}");
  EXPECT_EQ(device_text(*p.chain[1]), "device{devicenr=2 isfpga=1}");
  EXPECT_EQ(p.cpuJtag, 1);
  EXPECT_EQ(p.debugDevice, 2);
}

// The sanitizer checks that the devices are released.
TEST(CableInfo, LeavesEverythingAsItWasOnAnyFailure) {
  for (const char* const text : {"word", "-cable type zarvek_tcf -configdevice devicenr 1 -foo",
                                 "-cable type zarvek_plugin", "-configdevice jtagport cpu -configdevice devicenr",
                                 "-configdevice foo 1", "-configdevice devicenr 1 -configdevice jtagport gpio",
                                 "-configdevice devicenr 1 -bscan USER5", "-debugdevice deviceNr 3 foo 1"}) {
    SCOPED_TRACE(text);
    Parsed p;
    EXPECT_EQ(p.parse(text), 3);
    p.expect_untouched();
  }
}

TEST(CableInfo, LeavesEverythingAsItWasWhenALoneDashThrows) {
  for (const char* const text : {"-", "-cable port p -configdevice devicenr 1 -", "-configdevice jtagport cpu -bscan -",
                                 "-configdevice devicenr 1 -configdevice devicenr -"}) {
    SCOPED_TRACE(text);
    Parsed p;
    EXPECT_THROW(p.parse(text), std::out_of_range);
    p.expect_untouched();
  }
}

TEST(CableInfo, ResetsEverythingForAnEmptyText) {
  Parsed p;
  EXPECT_EQ(p.parse(""), 0);
  EXPECT_EQ(fields(p.cable), fields(CableOption()));
  EXPECT_TRUE(p.chain.empty());
  EXPECT_EQ(p.cpuJtag, 0);
  EXPECT_EQ(p.debugDevice, 0);
}

// The one in the text, else the first FPGA.
TEST(CableInfo, FindsTheDebugDevice) {
  struct {
    const char* text;
    int device;
  } const rows[] = {
      {"-configdevice devicenr 1 -configdevice devicenr 2", 0},
      {"-configdevice devicenr 1 isfpga 1 -configdevice devicenr 2 isfpga 1", 1},
      {"-configdevice devicenr 1 -configdevice devicenr 200 isfpga -1", -56},
      {"-configdevice isfpga 1 -configdevice devicenr 2 isfpga 1", 0},
      {"-configdevice devicenr 1 isfpga 256 -configdevice devicenr 2 isfpga 2", 2},
      {"-configdevice devicenr 2 isfpga 1 -debugdevice deviceNr 5", 5},
      {"-debugdevice deviceNr 0 -configdevice devicenr 7 isfpga 1", 7},
      {"-debugdevice deviceNr 200 -configdevice devicenr 7 isfpga 1", -56},
      {"-debugdevice cpunr 9", 0},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.text);
    Parsed p;
    EXPECT_EQ(p.parse(row.text), 0);
    EXPECT_EQ(static_cast<signed char>(p.debugDevice), row.device);
  }
}

TEST(CableInfo, GivesTheDefaultFrequencyToACableAtTheEndOfTheText) {
  Parsed p;
  EXPECT_EQ(p.parse("-bscan USER1 -configdevice devicenr 1 -cable type zarvek_platformusb"), 0);
  EXPECT_EQ(p.cable.frequency, 6000000U);
}

TEST(CableInfo, TouchesNoOtherEngine) {
  SelectedEngine e;
  e.engine.SetErrorStr("an older text");
  Parsed p;
  EXPECT_EQ(p.parse("-cable type zarvek_tcf -debugdevice deviceNr 1 -foo"), 3);
  EXPECT_EQ(p.parse("-cable type zarvek_tcf -configdevice -debugdevice deviceNr 1"), 0);
  std::string out;
  EXPECT_EQ(Engine::GenerateJtagCableCmdString(out, p.cable, p.chain, 0), 1);
  EXPECT_EQ(Engine::Set3rdPartyCableOptions(p.cable, "-foo"), 1);
  EXPECT_EQ(changes(e), "");
  EXPECT_EQ(e.error(), "an older text");
}

// --- Writing a whole text ---

TEST(CableCommand, WritesTheCableAloneWithoutDevices) {
  std::vector<JtagOption*> none;
  std::string out;
  EXPECT_EQ(Engine::GenerateJtagCableCmdString(out, Engine::ZARVEK_PLATFORMUSB, 12000000, "USB21", none, 0), 0);
  EXPECT_EQ(out, " -cable type zarvek_platformusb port USB21 frequency 12000000");
}

TEST(CableCommand, WritesTheOptionAloneOfACableThatCannotBeWritten) {
  JtagOption device;
  std::vector<JtagOption*> chain = {&device};
  std::string out = "before";
  EXPECT_EQ(Engine::GenerateJtagCableCmdString(out, Engine::ZARVEK_TCF, 12000000, "USB21", chain, 5), 1);
  EXPECT_EQ(out, "before -cable");
  EXPECT_EQ(Engine::GenerateJtagCableCmdString(out, filled(Engine::ZARVEK_SVFFILE), chain, 5), 1);
  EXPECT_EQ(out, "before -cable -cable");
}

TEST(CableCommand, WritesEveryTypeFromTypeFrequencyAndPortAlone) {
  struct {
    Engine::CableType type;
    const char* written;
  } const rows[] = {
      {Engine::CABLE_NONE, ""},
      {Engine::ZARVEK_PARALLEL4, " -cable type zarvek_parallel port P frequency -1"},
      {Engine::ZARVEK_PLATFORMUSB, " -cable type zarvek_platformusb port P frequency -1"},
      {Engine::ZARVEK_PARALLEL3, " -cable type zarvek_parallel3 port P frequency -1"},
      {Engine::ZARVEK_PLUGIN, " -cable type zarvek_plugin modulename "},
      {Engine::DIGILENT_PLUGIN, " -cable type digilent_plugin"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.written);
    std::vector<JtagOption*> none;
    std::string out;
    EXPECT_EQ(Engine::GenerateJtagCableCmdString(out, row.type, 4294967295U, "P", none, 0), 0);
    EXPECT_EQ(out, row.written);
  }
}

TEST(CableCommand, WritesEveryTypeOfACallersCable) {
  struct {
    Engine::CableType type;
    const char* written;
  } const rows[] = {
      {Engine::CABLE_NONE, "x"},
      {Engine::ZARVEK_PARALLEL4, "x -cable type zarvek_parallel esn E"},
      {Engine::ZARVEK_PLATFORMUSB, "x -cable type zarvek_platformusb esn E"},
      {Engine::ZARVEK_PARALLEL3, "x -cable type zarvek_parallel3 esn E"},
      {Engine::ZARVEK_PLUGIN, "x -cable type zarvek_plugin modulename M modulearg A"},
      {Engine::DIGILENT_PLUGIN, "x -cable type digilent_plugin"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.written);
    std::vector<JtagOption*> none;
    std::string out = "x";
    EXPECT_EQ(Engine::GenerateJtagCableCmdString(out, filled(row.type), none, 0), 0);
    EXPECT_EQ(out, row.written);
  }
}

TEST(CableCommand, WritesChainAndDebugDeviceAndNeitherRegisterNorPins) {
  JtagOption first{.partname = "a%s", .idcode = 0xAB, .irlength = 6, .devicenr = 1, .isfpga = 1};
  JtagOption second;
  std::vector<JtagOption*> chain = {&first, &second};
  for (const auto& [device, written] :
       {std::pair<int, const char*>{0, ""}, {5, " -debugdevice deviceNr 5"}, {200, " -debugdevice deviceNr -56"}}) {
    std::string out;
    EXPECT_EQ(Engine::GenerateJtagCableCmdString(out, CableOption(), chain, static_cast<char>(device)), 0);
    EXPECT_EQ(out, std::string(" -configdevice devicenr 1 partname a%s irlength 6 idcode 0xab"
                               " -configdevice devicenr 0 partname UNKNOWN irlength 0 idcode 0x0") +
                       written);
  }
  EXPECT_THAT(chain, ElementsAre(&first, &second));
  EXPECT_EQ(first.partname, "a%s");
}

TEST(CableCommand, WritesLongNamesWhole) {
  const std::string name(5000, 'n');
  JtagOption device{.partname = name};
  std::vector<JtagOption*> chain = {&device};
  std::string out;
  EXPECT_EQ(Engine::GenerateJtagCableCmdString(out, Engine::ZARVEK_PARALLEL3, 0, name, chain, 0), 0);
  EXPECT_EQ(out, " -cable type zarvek_parallel3 port " + name + " frequency 0 -configdevice devicenr 0 partname " +
                     name + " irlength 0 idcode 0x0");
}

TEST(CableCommand, ReadsItsOwnTextBackWithoutTheFpgaMark) {
  JtagOption device{
      .partname = "p", .idcode = 0xFF, .irlength = 6, .devicenr = 3, .isfpga = 1, .hardppc = 1, .nppc = 1};
  std::vector<JtagOption*> chain = {&device};
  std::string text;
  EXPECT_EQ(Engine::GenerateJtagCableCmdString(text, Engine::ZARVEK_PLATFORMUSB, 1234, "USB22", chain, 0), 0);
  Parsed p;
  EXPECT_EQ(p.parse(text), 0);
  EXPECT_EQ(fields(p.cable), std::make_tuple(3U, 1234U, "USB22", "", "", "", "", ""));
  ASSERT_EQ(p.chain.size(), 1U);
  EXPECT_EQ(device_text(*p.chain[0]), "device{devicenr=3 partname=p irlength=6 idcode=255}");
  EXPECT_EQ(p.debugDevice, 0);
}

}  // namespace
