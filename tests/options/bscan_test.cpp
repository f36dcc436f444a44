#include <gtest/gtest.h>

#include "tests/options/reading.h"

namespace SdkDebugDialog {
namespace {

const Reader kRead = QvtOption_Parser::parse_odmbscan;

TEST(BscanReading, KnowsTheFourRegistersInAnyCase) {
  expect_readings(kRead,
                  {{"USER1", 0, "bscanPort=2"},
                   {"user1", 0, "bscanPort=2"},
                   {"User2", 0, "bscanPort=3"},
                   {"uSER3", 0, "bscanPort=34"},
                   {"user4", 0, "bscanPort=35"}},
                  [](SelectedEngine& e) { e.processor.bscanPort = 99; });
}

TEST(BscanReading, RefusesAnyOtherWordWithoutATextAndKeepsTheRegister) {
  expect_readings(kRead, {{"USER5", 2},
                          {"USER0", 2},
                          {"USER", 2},
                          {"USER11", 2},
                          {"2 USER1", 2, Rest(" USER1")},
                          {"-1", 2},
                          {"", 2},
                          {" \t\r\n", 2}});
}

TEST(BscanReading, ConsumesAnOptionThatStandsInPlaceOfTheRegister) {
  expect_reading(kRead, {"-Cable USER1", 2, Rest(" USER1"), LastOption("-Cable")});
}

TEST(BscanReading, ReadsOneWordAlone) {
  expect_reading(kRead, {"\tUSER1\tUSER4 -cable", 0, "bscanPort=2", Rest("\tUSER4 -cable")});
}

TEST(BscanReading, ThrowsOnALoneDash) { expect_reading(kRead, {"- USER1", kThrows, Rest(" USER1")}); }

}  // namespace
}  // namespace SdkDebugDialog
