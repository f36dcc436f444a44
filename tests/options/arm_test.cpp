// The targets "arm", "r5" and "dap". round_trip_test.cpp tests how they are written.

#include <gtest/gtest.h>

#include <string>

#include "tests/options/reading.h"
#include "tests/support/FakeHardware.h"

namespace SdkDebugDialog {
namespace {

// An ARM target, and the changes that reading it makes where no hardware is known.
struct Target {
  std::string name;
  Reader read;
  std::string changes;
};

const Target kArm = {"Arm", QvtOption_Parser::parse_armoptions,
                     "procFamily=2 procVariant=4 allowedConnections=3 connectionType=2"};
const Target kR5 = {"R5", QvtOption_Parser::parse_armr5options,
                    "procFamily=2 procVariant=5 allowedConnections=3 connectionType=2"};
const Target kDap = {"Dap", QvtOption_Parser::parse_dapoptions,
                     "procFamily=2 procVariant=4 allowedConnections=512 connectionType=2"};

void simulated(SelectedEngine& e) { e.processor.connectionType = 1; }

class ArmTargets : public testing::TestWithParam<Target> {};

INSTANTIATE_TEST_SUITE_P(Of, ArmTargets, testing::Values(kArm, kR5, kDap),
                         [](const auto& target) { return target.param.name; });

TEST_P(ArmTargets, TakeTheHardwareConnectionInAnyCase) {
  expect_readings(GetParam().read, {{"hw", 0, GetParam().changes}, {"\tHw \r\n", 0, GetParam().changes}}, simulated);
}

TEST_P(ArmTargets, RefuseTheSimulatorAndEveryOtherWordWithoutAText) {
  expect_readings(GetParam().read, {{"sim", 2},
                                    {"stub", 2},
                                    {"odm", 2},
                                    {"", 2},
                                    {" \r\n", 2},
                                    {"-hw", 2},
                                    {"hw1", 2},
                                    {"h", 2},
                                    {"-5", 2},
                                    {"sim -quiet", 2, Rest(" -quiet")}});
}

TEST_P(ArmTargets, HandTheRestToTheGeneralOptions) {
  expect_readings(GetParam().read,
                  {{"hw -debugdevice deviceNr 2 -quiet", 0, GetParam().changes + " debugDevice=2"},
                   {"hw -bscan USER1", 0, GetParam().changes + " bscanPort=2"},
                   {"hw -sim", 0, GetParam().changes + " modelSimEnabled=1"}},
                  simulated);
}

TEST_P(ArmTargets, LeaveProcessorAndConnectionWhereTheOptionsFail) {
  expect_readings(GetParam().read,
                  {{"hw -foo", 2, Error("UNKNOWN Option ''")},
                   {"hw -quiet -foo", 2, Error("UNKNOWN Option '-foo'")},
                   {"hw stray", 2},
                   {"hw -timeout 5 stray", 2, "stubTimeout=5"}},
                  simulated);
}

TEST_P(ArmTargets, LetALoneDashThrow) {
  expect_readings(GetParam().read, {{"- x", kThrows, Rest(" x")}, {"hw - x", kThrows, Rest(" x")}}, simulated);
}

// A ppc440 that admits some connections.
class ArmTargetsWithHardware : public testing::Test {
 protected:
  Prepare admitting(unsigned int connections) {
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

TEST_F(ArmTargetsWithHardware, AreCoresThatKeepTheKindOfTheProcessorWhereItAdmitsThem) {
  for (const Target& core : {kArm, kR5}) {
    expect_reading(core.read, {"hw -foo", 2, Rest(" -foo")}, admitting(253));
    expect_reading(core.read, {"hw", 2}, admitting(0));
    expect_reading(core.read, {"hw", 0, "connectionType=2"}, admitting(2));
  }
}

TEST_F(ArmTargetsWithHardware, OrAnAccessPortThatRewritesTheProcessorWhateverItAdmits) {
  for (const unsigned int connections : {0U, 1U, 2U, 253U}) {
    expect_reading(kDap.read, {"hw", 0, kDap.changes}, admitting(connections));
  }
}

}  // namespace
}  // namespace SdkDebugDialog
