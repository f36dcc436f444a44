// The clock frequencies that each cable supports.

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "SdkDebugDialog/Engine.h"
#include "options/QvtOption_Parser.h"
#include "tests/support/SelectedEngine.h"

namespace SdkDebugDialog {
namespace {

struct Cable {
  unsigned int type;
  std::vector<unsigned int> accepted;
  std::string refusal;  // error text before the frequency
  std::string offered;  // error text after the frequency
};

const Cable kChecked[] = {
    {4, {200000}, "UnSupported Zarvek Parallel3 Cable Frequency - ", "\n\t Supported Frequencies: 200000"},
    {2,
     {200000, 625000, 2500000, 5000000},
     "UnSupported Zarvek Parallel4 Cable Frequency - ",
     "\n Supported Frequencies: 200000, 625000, 2500000, 5000000"},
    {3,
     {750000, 1500000, 3000000, 6000000, 12000000, 24000000},
     "UnSupported Zarvek PlatformUSB Cable Frequency - ",
     "\nSupported Frequencies: 750000, 1500000, 3000000, 6000000, 12000000, 24000000"},
    {7,
     {125000, 250000, 500000, 750000, 1000000, 1500000, 2000000, 3000000, 4000000, 5000000, 6000000, 7500000, 10000000,
      12000000, 15000000, 24000000, 30000000},
     "UnSupported Zarvek TCF Cable Frequency - ",
     "\nSupported Frequencies: 750000, 1500000, 3000000, 6000000, 10000000, 12000000, 15000000, 20000000, 24000000, "
     "30000000"},
};

// Types without a frequency.
constexpr unsigned int kUnchecked[] = {0, 1, 5, 6, 8, 0xFFFFFFFF};

void set_cable(SelectedEngine& s, unsigned int type, unsigned int frequency) {
  s.imp.cable->type = static_cast<Engine::CableType>(type);
  s.imp.cable->frequency = frequency;
}

TEST(CableFrequency, OfEachTypePassesWhenItIsAccepted) {
  for (const Cable& cable : kChecked) {
    for (const unsigned int frequency : cable.accepted) {
      SCOPED_TRACE(testing::Message() << "type " << cable.type << " at " << frequency);
      SelectedEngine s;
      s.engine.SetErrorStr("before");
      set_cable(s, cable.type, frequency);
      EXPECT_EQ(QvtOption_Parser::setcable_frequency(s.imp, 0), 0);
      EXPECT_EQ(s.imp.cable->frequency, frequency);
      EXPECT_EQ(s.error(), "before");
    }
  }
}

TEST(CableFrequency, OfEachTypeIsRefusedOtherwiseAndStays) {
  // The accepted frequencies of all types, each with its neighbours, half and double, and some arbitrary numbers.
  std::vector<unsigned int> tried = {0, 1, 20000000, 2147483647, 2147483648, 4294967295};
  for (const Cable& cable : kChecked) {
    for (const unsigned int frequency : cable.accepted) {
      tried.insert(tried.end(), {frequency - 1, frequency, frequency + 1, frequency / 2, 2 * frequency});
    }
  }
  for (const Cable& cable : kChecked) {
    for (const unsigned int frequency : tried) {
      if (std::ranges::count(cable.accepted, frequency) != 0) continue;
      SCOPED_TRACE(testing::Message() << "type " << cable.type << " at " << frequency);
      SelectedEngine s;
      set_cable(s, cable.type, frequency);
      EXPECT_EQ(QvtOption_Parser::setcable_frequency(s.imp, 0), 2);
      EXPECT_EQ(s.imp.cable->frequency, frequency);
      EXPECT_EQ(s.error(), cable.refusal + std::to_string(static_cast<int>(frequency)) + cable.offered);
    }
  }
}

TEST(CableFrequency, OfOtherTypesIsRefusedWithoutAText) {
  for (const unsigned int type : kUnchecked) {
    for (const unsigned int frequency : {0U, 200000U, 6000000U}) {
      SCOPED_TRACE(testing::Message() << "type " << type << " at " << frequency);
      SelectedEngine s;
      s.engine.SetErrorStr("before");
      set_cable(s, type, frequency);
      EXPECT_EQ(QvtOption_Parser::setcable_frequency(s.imp, 0), 2);
      EXPECT_EQ(s.imp.cable->frequency, frequency);
      EXPECT_EQ(s.error(), "before");
    }
  }
}

TEST(CableFrequency, IsTheDefaultOfTheTypeWhereAskedFor) {
  struct Row {
    unsigned int type;
    unsigned int frequency;
  };
  constexpr Row kRows[] = {{0, 0}, {1, 0}, {2, 5000000}, {3, 6000000}, {4, 200000},
                           {5, 0}, {6, 0}, {7, 0},       {8, 0},       {0xFFFFFFFF, 0}};
  for (const int useDefault : {1, 2, -1}) {
    for (const Row& row : kRows) {
      SCOPED_TRACE(testing::Message() << "type " << row.type << " asked with " << useDefault);
      SelectedEngine s;
      s.engine.SetErrorStr("before");
      set_cable(s, row.type, 1234);
      EXPECT_EQ(QvtOption_Parser::setcable_frequency(s.imp, useDefault), 0);
      EXPECT_EQ(s.imp.cable->frequency, row.frequency);
      EXPECT_EQ(s.error(), "before");
    }
  }
}

TEST(CableFrequency, Of20MHzIsRefusedForTheTcfCableThoughTheTextOffersIt) {
  SelectedEngine s;
  set_cable(s, 7, 20000000);
  EXPECT_EQ(QvtOption_Parser::setcable_frequency(s.imp, 0), 2);
  EXPECT_EQ(s.error(),
            "UnSupported Zarvek TCF Cable Frequency - 20000000\nSupported Frequencies: 750000, 1500000, 3000000, "
            "6000000, 10000000, 12000000, 15000000, 20000000, 24000000, 30000000");
}

TEST(CableFrequency, Of125KHzPassesForTheTcfCableThoughTheTextDoesNotOfferIt) {
  SelectedEngine s;
  set_cable(s, 7, 125000);
  EXPECT_EQ(QvtOption_Parser::setcable_frequency(s.imp, 0), 0);
}

TEST(CableFrequency, Above2147483647IsNamedAsANegativeNumber) {
  struct Row {
    unsigned int frequency;
    const char* text;
  };
  constexpr Row kRows[] = {
      {2147483647, "UnSupported Zarvek Parallel3 Cable Frequency - 2147483647\n\t Supported Frequencies: 200000"},
      {2147483648, "UnSupported Zarvek Parallel3 Cable Frequency - -2147483648\n\t Supported Frequencies: 200000"},
      {4294967295, "UnSupported Zarvek Parallel3 Cable Frequency - -1\n\t Supported Frequencies: 200000"},
  };
  for (const Row& row : kRows) {
    SelectedEngine s;
    set_cable(s, 4, row.frequency);
    EXPECT_EQ(QvtOption_Parser::setcable_frequency(s.imp, 0), 2);
    EXPECT_EQ(s.error(), row.text);
  }
}

}  // namespace
}  // namespace SdkDebugDialog
