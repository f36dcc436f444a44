#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "options/QvtOption_Parser.h"
#include "tests/options/reading.h"
#include "tests/support/SelectedEngine.h"

namespace {

using SdkDebugDialog::newoption_token;
using SdkDebugDialog::QvtOption_Parser;

constexpr Reader kReadBscan = &QvtOption_Parser::parse_odmbscan;

TEST(BscanReading, KnowsTheFourRegistersInAnyCase) {
  expect_readings(kReadBscan, {
                                  {.text = "USER1", .changes = "bscanPort=2"},
                                  {.text = "user1", .changes = "bscanPort=2"},
                                  {.text = "User2"},  // the default
                                  {.text = "uSER3", .changes = "bscanPort=34"},
                                  {.text = "user4", .changes = "bscanPort=35"},
                              });
}

TEST(BscanReading, PutsTheSecondRegisterInPlaceOfAnother) {
  SelectedEngine e;
  e.processor.bscanPort = 35;
  std::string text = "USER2";
  EXPECT_EQ(QvtOption_Parser::parse_odmbscan(text, e.imp), 0);
  EXPECT_EQ(e.processor.bscanPort, 3U);
}

TEST(BscanReading, RefusesAnyOtherWordWithoutATextAndKeepsTheRegister) {
  expect_readings(kReadBscan,
                  {
                      {.text = "USER5", .result = 2, .changes = "bscanPort=35"},
                      {.text = "USER0", .result = 2, .changes = "bscanPort=35"},
                      {.text = "USER", .result = 2, .changes = "bscanPort=35"},
                      {.text = "USER11", .result = 2, .changes = "bscanPort=35"},
                      {.text = "2 USER1", .result = 2, .changes = "bscanPort=35", .rest = " USER1"},
                      {.text = "-1", .result = 2, .changes = "bscanPort=35"},
                      {.text = "", .result = 2, .changes = "bscanPort=35"},
                      {.text = " \t\r\n", .result = 2, .changes = "bscanPort=35"},
                  },
                  [](SelectedEngine& e) { e.processor.bscanPort = 35; });
}

TEST(BscanReading, ConsumesAnOptionThatStandsInPlaceOfTheRegister) {
  expect_reading(kReadBscan, {.text = "-Cable USER1", .result = 2, .rest = " USER1"});
  EXPECT_EQ(newoption_token, "-Cable");
}

TEST(BscanReading, ReadsOneWordAlone) {
  expect_reading(kReadBscan, {.text = "\tUSER1\tUSER4 -cable", .changes = "bscanPort=2", .rest = "\tUSER4 -cable"});
}

TEST(BscanReading, ThrowsOnALoneDash) {
  SelectedEngine e;
  std::string text = "- USER1";
  EXPECT_THROW(QvtOption_Parser::parse_odmbscan(text, e.imp), std::out_of_range);
  EXPECT_EQ(text, " USER1");
  EXPECT_EQ(changes(e), "");
}

}  // namespace
