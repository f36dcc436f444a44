#include <gtest/gtest.h>

#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

#include "options/QvtOption_Parser.h"
#include "tests/options/reading.h"
#include "tests/support/FakeHardware.h"

namespace SdkDebugDialog {
namespace {

// An ARM target, and what a fresh record differs in once it was read.
struct Target {
  std::string name;
  Reader read;
  std::string changes;
};

const std::vector<Target> kTargets = {
    {"arm", QvtOption_Parser::parse_armoptions, "procFamily=2 procVariant=4 allowedConnections=3"},
    {"r5", QvtOption_Parser::parse_armr5options, "procFamily=2 procVariant=5 allowedConnections=3"},
    {"dap", QvtOption_Parser::parse_dapoptions, "procFamily=2 procVariant=4 allowedConnections=512"},
};

class ArmTargets : public testing::Test {
 protected:
  // Attaches a hardware description in which the processor is a ppc440 that admits some connections.
  auto admitting(std::uint32_t connections) {
    return [this, connections](SelectedEngine& e) {
      e.imp.hwManager = &m_hardware;
      e.processor.procFamily = 1;
      e.processor.procVariant = 2;
      e.processor.allowedConnections = connections;
      e.processor.connectionType = 1;
    };
  }

 private:
  FakeHardware m_hardware;
};

TEST_F(ArmTargets, TakeTheHardwareConnectionInAnyCase) {
  for (const Target& target : kTargets) {
    SCOPED_TRACE(target.name);
    expect_readings(target.read, {{"hw", 0, target.changes}, {"\tHw \r\n", 0, target.changes}});
    SelectedEngine e;
    e.processor.connectionType = 1;
    std::string text = "hw";
    EXPECT_EQ(target.read(text, e.imp), 0);
    EXPECT_EQ(e.processor.connectionType, 2U);
  }
}

TEST_F(ArmTargets, RefuseTheSimulatorAndEveryOtherWordWithoutAText) {
  for (const Target& target : kTargets) {
    SCOPED_TRACE(target.name);
    expect_readings(target.read, {{"sim", 2},
                                  {"stub", 2},
                                  {"odm", 2},
                                  {"", 2},
                                  {" \r\n", 2},
                                  {"-hw", 2},
                                  {"hw1", 2},
                                  {"h", 2},
                                  {"-5", 2},
                                  {"sim -quiet", 2, "", {}, " -quiet"}});
  }
}

TEST_F(ArmTargets, HandTheRestToTheGeneralOptions) {
  for (const Target& target : kTargets) {
    SCOPED_TRACE(target.name);
    expect_readings(target.read, {{"hw -debugdevice deviceNr 2 -quiet", 0, target.changes + " debugDevice=2"},
                                  {"hw -bscan USER1", 0, target.changes + " bscanPort=2"},
                                  {"hw -sim", 0, target.changes + " modelSimEnabled=1"}});
  }
}

TEST_F(ArmTargets, LeaveProcessorAndConnectionWhereTheOptionsFail) {
  for (const Target& target : kTargets) {
    SCOPED_TRACE(target.name);
    expect_readings(target.read,
                    {{"hw -foo", 2, "connectionType=1", "UNKNOWN Option ''"},
                     {"hw -quiet -foo", 2, "connectionType=1", "UNKNOWN Option '-foo'"},
                     {"hw stray", 2, "connectionType=1"},
                     {"hw -timeout 5 stray", 2, "connectionType=1 stubTimeout=5"}},
                    [](SelectedEngine& e) { e.processor.connectionType = 1; });
  }
}

TEST_F(ArmTargets, LetALoneDashThrow) {
  for (const Target& target : kTargets) {
    SCOPED_TRACE(target.name);
    for (const std::string start : {"- x", "hw - x"}) {
      SelectedEngine e;
      std::string text = start;
      EXPECT_THROW(target.read(text, e.imp), std::out_of_range);
      EXPECT_EQ(text, " x");
      EXPECT_EQ(changes(e), "");
    }
  }
}

TEST_F(ArmTargets, WithHardwareTheCoresAreRefusedWhereTheConnectionIsNotAdmitted) {
  for (const Reader read : {QvtOption_Parser::parse_armoptions, QvtOption_Parser::parse_armr5options}) {
    expect_reading(read,
                   {"hw -foo", 2, "procFamily=1 procVariant=2 allowedConnections=253 connectionType=1", {}, " -foo"},
                   admitting(253));
    expect_reading(read, {"hw", 2, "procFamily=1 procVariant=2 allowedConnections=0 connectionType=1"}, admitting(0));
  }
}

TEST_F(ArmTargets, WithHardwareTheCoresKeepTheKindOfTheProcessor) {
  for (const Reader read : {QvtOption_Parser::parse_armoptions, QvtOption_Parser::parse_armr5options}) {
    expect_reading(read, {"hw", 0, "procFamily=1 procVariant=2 allowedConnections=2"}, admitting(2));
  }
}

TEST_F(ArmTargets, TheAccessPortRewritesTheProcessorWhateverTheHardwareAdmits) {
  for (const std::uint32_t connections : {0U, 1U, 2U, 253U}) {
    expect_reading(QvtOption_Parser::parse_dapoptions, {"hw", 0, "procFamily=2 procVariant=4 allowedConnections=512"},
                   admitting(connections));
  }
}

TEST_F(ArmTargets, WithoutHardwareTheR5IsRecordedAsVariant5) {
  SelectedEngine e;
  EXPECT_EQ(QvtOption_Parser::ReadQvtCommand("connect r5 hw", e.imp), 0);
  EXPECT_EQ(e.processor.procVariant, 5U);
  EXPECT_EQ(e.processor.procFamily, 2U);
}

TEST_F(ArmTargets, WithoutHardwareTheCoresAddTheConnectionToWhatIsAdmitted) {
  for (const Target& target : kTargets) {
    SCOPED_TRACE(target.name);
    SelectedEngine e;
    e.processor.allowedConnections = 12;
    std::string text = "hw";
    EXPECT_EQ(target.read(text, e.imp), 0);
    EXPECT_EQ(e.processor.allowedConnections, target.name == "dap" ? 512U : 14U);
  }
}

TEST_F(ArmTargets, AreWrittenLikeAPowerPc) {
  for (const Target& target : kTargets) {
    SCOPED_TRACE(target.name);
    SelectedEngine e;
    EXPECT_EQ(QvtOption_Parser::ReadQvtCommand("connect " + target.name + " hw -debugdevice deviceNr 2", e.imp), 0);
    std::string command;
    EXPECT_EQ(e.engine.GenerateCmdString(command), 0);
    EXPECT_EQ(command, "connect ppc hw -debugdevice deviceNr 2 cpunr 1");
  }
}

}  // namespace
}  // namespace SdkDebugDialog
