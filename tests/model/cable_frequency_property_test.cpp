// The clock frequencies that each cable supports, checked with random frequencies.

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "SdkDebugDialog/CableOption.h"
#include "SdkDebugDialog/Engine.h"
#include "options/QvtOption_Parser.h"
#include "tests/support/SelectedEngine.h"

namespace SdkDebugDialog {
namespace {

struct Cable {
  std::uint32_t type;
  const char* name;
  std::vector<std::uint32_t> accepted;
};

const std::vector<Cable> kCables = {
    {0, "none", {}},
    {1, "SVF file", {}},
    {2, "Parallel4", {200000, 625000, 2500000, 5000000}},
    {3, "PlatformUSB", {750000, 1500000, 3000000, 6000000, 12000000, 24000000}},
    {4, "Parallel3", {200000}},
    {5, "plug-in", {}},
    {6, "Digilent", {}},
    {7,
     "TCF",
     {125000, 250000, 500000, 750000, 1000000, 1500000, 2000000, 3000000, 4000000, 5000000, 6000000, 7500000, 10000000,
      12000000, 15000000, 24000000, 30000000}},
    {8, "one that there is not", {}},
    {4294967295U, "the last number", {}},
};

// Zero, all ones, every power of two, every frequency that any cable takes, and the neighbours of all of them.
std::vector<std::uint32_t> corners() {
  std::vector<std::uint32_t> values = {0, 4294967295U, 20000000};
  for (unsigned int bit = 0; bit < 32; ++bit) values.push_back(std::uint32_t{1} << bit);
  for (const Cable& cable : kCables) values.insert(values.end(), cable.accepted.begin(), cable.accepted.end());
  std::vector<std::uint32_t> all;
  for (const std::uint32_t value : values) {
    for (const std::uint32_t near : {value - 1, value, value + 1}) all.push_back(near);
  }
  return all;
}

// The result of the check and the state after it.
bool is_taken(const Cable& cable, std::uint32_t frequency) {
  SelectedEngine s;
  s.imp.cable->type = static_cast<Engine::CableType>(cable.type);
  s.imp.cable->frequency = frequency;
  const int result = QvtOption_Parser::setcable_frequency(s.imp, 0);
  EXPECT_TRUE(result == 0 || result == 2) << result;
  EXPECT_EQ(s.imp.cable->frequency, frequency);
  const bool explained = result == 2 && !cable.accepted.empty();
  const std::string start = std::string("UnSupported Zarvek ") + cable.name + " Cable Frequency - " +
                            std::to_string(static_cast<std::int32_t>(frequency)) + "\n";
  EXPECT_EQ(s.error().substr(0, start.size()), explained ? start : "");
  return result == 0;
}

bool is_accepted(const Cable& cable, std::uint32_t frequency) {
  return std::ranges::find(cable.accepted, frequency) != cable.accepted.end();
}

TEST(CableFrequencyProperty, CornersAndTheirNeighboursAreTakenAsTheTableSays) {
  for (const Cable& cable : kCables) {
    for (const std::uint32_t frequency : corners()) {
      SCOPED_TRACE(testing::Message() << cable.name << " at " << frequency);
      EXPECT_EQ(is_taken(cable, frequency), is_accepted(cable, frequency));
    }
  }
}

RC_GTEST_PROP(CableFrequencyProperty, AnyFrequencyIsTakenAsTheTableSays, (std::uint32_t frequency)) {
  for (const Cable& cable : kCables) RC_ASSERT(is_taken(cable, frequency) == is_accepted(cable, frequency));
}

}  // namespace
}  // namespace SdkDebugDialog
