// Which floating-point unit a processor has.

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "SdkDebugDialog/EngineImp.h"
#include "tests/support/FakeHardware.h"
#include "tests/support/SelectedEngine.h"

namespace SdkDebugDialog {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Fpu : public testing::Test {
 protected:
  Fpu() {
    hw.ipTypes = {{"single", "apu_flt"}, {"either", "apu_flt_varnel5"}, {"gpio", "opb_gpio"},
                  {"loud", "APU_FLT"},   {"longer", "apu_flt_varnel6"}, {"shorter", "apu_fl"}};
    s.processor.name = "ppc_0";
    s.processor.procFamily = 1;
    s.processor.fpuType = 7;
    s.imp.hwManager = &hw;
    s.engine.SetErrorStr("before");
  }
  ~Fpu() override { EXPECT_EQ(s.error(), "before"); }

  void peripherals(std::vector<std::string> names) { hw.peripherals["ppc_0"] = std::move(names); }

  FakeHardware hw;
  SelectedEngine s;
};

TEST_F(Fpu, IsSingleWithTheSingleUnit) {
  peripherals({"gpio", "single"});
  EXPECT_EQ(s.imp.GetFPUType(), 0);
  EXPECT_EQ(s.processor.fpuType, 1U);
}

TEST_F(Fpu, OfTheUnitThatIsEitherIsDoubleWhereItsParameterIsExactly1) {
  struct Row {
    const char* value;
    unsigned int fpu;
  };
  constexpr Row kRows[] = {
      {"1", 2},    {"0x1", 2}, {"01", 2},     {"0X01", 2},       {" 1", 2},
      {"+1", 2},   {"1x", 2},  {"1 2", 2},    {"0", 1},          {"2", 1},
      {"0x0", 1},  {"", 1},    {"double", 1}, {"-1", 1},         {"true", 1},
      {"0x11", 1}, {"011", 1}, {"x1", 1},     {"4294967297", 1}, {"99999999999999999999", 1},
  };
  peripherals({"either"});
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.value);
    hw.parameters = {{{"either", "C_DOUBLE_PRECISION"}, row.value}};
    EXPECT_EQ(s.imp.GetFPUType(), 0);
    EXPECT_EQ(s.processor.fpuType, row.fpu);
  }
}

TEST_F(Fpu, OfTheUnitThatIsEitherIsSingleWithoutItsParameter) {
  peripherals({"either"});
  EXPECT_EQ(s.imp.GetFPUType(), 0);
  EXPECT_EQ(s.processor.fpuType, 1U);
}

TEST_F(Fpu, IsThatOfTheUnitListedFirst) {
  hw.parameters = {{{"either", "C_DOUBLE_PRECISION"}, "1"}};
  peripherals({"single", "either"});
  EXPECT_EQ(s.imp.GetFPUType(), 0);
  EXPECT_EQ(s.processor.fpuType, 1U);
  peripherals({"either", "single"});
  EXPECT_EQ(s.imp.GetFPUType(), 0);
  EXPECT_EQ(s.processor.fpuType, 2U);
}

TEST_F(Fpu, IsNotLookedForBehindTheFirst) {
  peripherals({"gpio", "either", "single"});
  s.imp.GetFPUType();
  EXPECT_THAT(hw.questions, ElementsAre("getPeripherals ppc_0", "getIpName gpio", "getIpName either",
                                        "getParameterValue either C_DOUBLE_PRECISION"));
}

TEST_F(Fpu, IsNoneWithoutPeripherals) {
  EXPECT_EQ(s.imp.GetFPUType(), 1);
  EXPECT_EQ(s.processor.fpuType, 0U);
  EXPECT_THAT(hw.questions, ElementsAre("getPeripherals ppc_0"));
}

TEST_F(Fpu, IsNoneAmongOtherPeripherals) {
  peripherals({"gpio", "loud", "longer", "shorter", "unknown"});
  EXPECT_EQ(s.imp.GetFPUType(), 1);
  EXPECT_EQ(s.processor.fpuType, 0U);
}

TEST_F(Fpu, IsNoneForASoftProcessorOrAnArmWhateverThePeripherals) {
  peripherals({"single"});
  for (const unsigned int family : {0U, 2U, 3U}) {
    SCOPED_TRACE(family);
    s.processor.procFamily = family;
    s.processor.fpuType = 7;
    EXPECT_EQ(s.imp.GetFPUType(), 0);
    EXPECT_EQ(s.processor.fpuType, 0U);
  }
  EXPECT_THAT(hw.questions, IsEmpty());
}

TEST_F(Fpu, IsNoneWithoutHardware) {
  s.imp.hwManager = nullptr;
  EXPECT_EQ(s.imp.GetFPUType(), 1);
  EXPECT_EQ(s.processor.fpuType, 0U);
}

TEST_F(Fpu, IsNoneForASoftProcessorWithoutHardwareAndThatIsNoFailure) {
  s.imp.hwManager = nullptr;
  s.processor.procFamily = 0;
  EXPECT_EQ(s.imp.GetFPUType(), 0);
  EXPECT_EQ(s.processor.fpuType, 0U);
}

TEST_F(Fpu, IsNotLookedForWithoutASelectedProcessor) {
  s.imp.currentProcessor = nullptr;
  EXPECT_EQ(s.imp.GetFPUType(), 1);
  EXPECT_EQ(s.processor.fpuType, 7U);
  EXPECT_THAT(hw.questions, IsEmpty());
}

}  // namespace
}  // namespace SdkDebugDialog
