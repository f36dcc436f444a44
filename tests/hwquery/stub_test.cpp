// How a processor can reach a software stub.

#include <gmock/gmock.h>

#include "SdkDebugDialog/EngineImp.h"
#include "tests/support/FakeHardware.h"

namespace SdkDebugDialog {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class StubQuery : public testing::Test {
 protected:
  StubQuery() {
    hw.ipTypes = {{"uart", "opb_serial_lite"}, {"uart_2", "tfb_serial_lite"},   {"gpio", "opb_gpio"},
                  {"loud", "OPB_SERIAL_LITE"}, {"longer", "opb_serial_lite_2"}, {"axi", "axi_serial_lite"}};
    imp.hwManager = &hw;
  }

  FakeHardware hw;
  EngineImp imp;
};

TEST_F(StubQuery, FindsALightUartOfEitherType) {
  hw.peripherals = {{"a", {"uart"}}, {"b", {"uart_2"}}, {"c", {"gpio", "axi", "uart_2"}}};
  EXPECT_EQ(imp.IsStubSerialConnect("a"), 132U);
  EXPECT_EQ(imp.IsStubSerialConnect("b"), 132U);
  EXPECT_EQ(imp.IsStubSerialConnect("c"), 132U);
}

TEST_F(StubQuery, AnswersTheSameForTwoUartsAsForOne) {
  hw.peripherals = {{"a", {"uart", "uart_2"}}};
  EXPECT_EQ(imp.IsStubSerialConnect("a"), 132U);
}

TEST_F(StubQuery, FindsNoUartAmongOtherPeripherals) {
  hw.peripherals = {{"a", {"gpio", "loud", "longer", "axi", "unknown"}}};
  EXPECT_EQ(imp.IsStubSerialConnect("a"), 0U);
}

TEST_F(StubQuery, FindsNoUartWithoutPeripheralsOrProcessor) {
  hw.peripherals = {{"a", {}}};
  EXPECT_EQ(imp.IsStubSerialConnect("a"), 0U);
  EXPECT_EQ(imp.IsStubSerialConnect("unknown"), 0U);
  EXPECT_EQ(imp.IsStubSerialConnect(""), 0U);
}

TEST_F(StubQuery, FindsNoUartWithoutHardware) {
  imp.hwManager = nullptr;
  EXPECT_EQ(imp.IsStubSerialConnect("a"), 0U);
}

TEST_F(StubQuery, AsksForThePeripheralsInOrderUntilTheFirstUart) {
  hw.peripherals = {{"a", {"gpio", "uart_2", "uart"}}};
  imp.IsStubSerialConnect("a");
  EXPECT_THAT(hw.questions, ElementsAre("getPeripherals a", "getIpName gpio", "getIpName uart_2"));
}

TEST_F(StubQuery, NeverReportsAWayOverJtag) {
  hw.peripherals = {{"a", {"uart"}}};
  EXPECT_EQ(imp.IsStubJtagConnect("a"), 0U);
  EXPECT_EQ(imp.IsStubJtagConnect("unknown"), 0U);
  EXPECT_THAT(hw.questions, IsEmpty());
  imp.hwManager = nullptr;
  EXPECT_EQ(imp.IsStubJtagConnect("a"), 0U);
}

}  // namespace
}  // namespace SdkDebugDialog
