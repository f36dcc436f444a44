#include <gtest/gtest.h>

#include "SdkDebugDialog/CableCatalogue.h"
#include "tests/support/SelectedEngine.h"

namespace SdkDebugDialog {
namespace {

struct Row {
  unsigned int type;
  unsigned int frequency;
  const char* port;
  const char* supported;
};

constexpr Row kRows[] = {
    {0, 0, "", "0"},
    {1, 0, "", "0"},
    {2, 5000000, "LPT1", "200000 625000 2500000 5000000"},
    {3, 6000000, "USB21", "750000 1500000 3000000 6000000 12000000 24000000"},
    {4, 200000, "LPT1", "200000"},
    {5, 0, "", "0"},
    {6, 0, "", "0"},
    {7, 0, "", "0"},
    // Unknown types.
    {8, 0, "", "0"},
    {258, 0, "", "0"},
    {0x80000000, 0, "", "0"},
    {0xFFFFFFFF, 0, "", "0"},
};

TEST(CableCatalogue, HoldsTheDefaultsOfEachType) {
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.type);
    const auto type = static_cast<Engine::CableType>(row.type);
    EXPECT_EQ(setcable_default_frequency(type), row.frequency);
    EXPECT_EQ(setcable_default_port(type), row.port);
    EXPECT_EQ(getcable_supported_frequency(type), row.supported);
  }
}

TEST(CableCatalogue, IsAnsweredByTheEngineAsWell) {
  Engine engine;  // without a processor
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.type);
    const auto type = static_cast<Engine::CableType>(row.type);
    EXPECT_EQ(engine.GetDefaultCableSpeed(type), row.frequency);
    EXPECT_EQ(engine.GetDefaultCablePort(type), row.port);
    EXPECT_EQ(engine.GetSupportedCableSpeed(type), row.supported);
  }
}

}  // namespace
}  // namespace SdkDebugDialog
