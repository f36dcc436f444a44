// Heap use of long texts and long chains.

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <functional>
#include <iostream>
#include <string>
#include <vector>

#include "options/QvtOption_Parser.h"
#include "tests/faults/heap.h"
#include "tests/options/work_folder.h"
#include "tests/support/SelectedEngine.h"

namespace SdkDebugDialog {
namespace {

struct Use {
  double peak;  // bytes per unit at most during the work
  double kept;  // bytes per unit afterwards
};

Use measure(std::size_t units, const std::function<void()>& work) {
  heap::restart_peak();
  const std::size_t before = heap::bytes();
  work();
  const auto count = static_cast<double>(units);
  return {static_cast<double>(heap::peak() - before) / count, static_cast<double>(heap::bytes() - before) / count};
}

// Memory per unit stays below the limit and does not grow with the size. The factor allows for containers that double
// their capacity.
void expect_linear(const char* what, const std::vector<Use>& uses, double most) {
  std::cout << what << ": bytes at the peak, and afterwards:";
  for (const Use& use : uses) {
    std::cout << "  " << use.peak << ' ' << use.kept;
    EXPECT_LE(use.peak, most);
    EXPECT_LE(use.kept, use.peak);
  }
  std::cout << '\n';
  EXPECT_LE(uses.back().peak, 1.5 * uses.front().peak);
}

constexpr std::size_t kMega = 1000000;
constexpr std::size_t kCharacters[] = {kMega, 4 * kMega, 16 * kMega};

std::string repeated(const std::string& part, std::size_t size) {
  std::string text;
  text.reserve(size + part.size());
  while (text.size() < size) text += part;
  return text;
}

// Reads texts of each size and writes them again.
void expect_linear_text(const std::string& head, const std::string& part, double mostRead, double mostWritten) {
  std::vector<Use> reads;
  std::vector<Use> writes;
  for (const std::size_t size : kCharacters) {
    const std::string text = head + repeated(part, size);
    SelectedEngine e;
    int status = 0;
    reads.push_back(measure(size, [&] { status = QvtOption_Parser::ReadQvtCommand(text, e.imp); }));
    EXPECT_EQ(status, 0);
    std::string out;
    writes.push_back(measure(size, [&] { status = e.engine.GenerateCmdString(out); }));
    EXPECT_EQ(status, 0);
  }
  expect_linear("reading", reads, mostRead);
  expect_linear("writing", writes, mostWritten);
}

// At most two copies of up to twice the length, rounded up to whole pages.
TEST(Memory, GrowsWithTheLengthOfOneValue) { expect_linear_text("connect ov stub -comm serial -port ", "x", 3, 4.1); }

TEST(Memory, GrowsWithTheLengthOfManyValues) {
  expect_linear_text("connect ov odm -cable type zarvek_plugin modulename m", " modulearg argument", 4, 8);
}

TEST(Memory, GrowsWithTheLengthOfAnUnknownKeyword) {
  std::vector<Use> reads;
  for (const std::size_t size : kCharacters) {
    const std::string text = "connect ov odm -debugdevice " + std::string(size, 'x') + " 1";
    SelectedEngine e;
    reads.push_back(measure(size, [&] { EXPECT_EQ(QvtOption_Parser::ReadQvtCommand(text, e.imp), 3); }));
    EXPECT_EQ(e.error().size(), 2047U);
  }
  expect_linear("reading", reads, 3);
}

TEST(Memory, GrowsWithTheLengthOfAChain) {
  const std::string device = " -configdevice devicenr 1 partname prom32 irlength 16 idcode 0x0a001093";
  std::vector<Use> reads;
  std::vector<Use> writes;
  for (const std::size_t devices : {1000U, 10000U, 100000U}) {
    const std::string text = "connect ov odm" + repeated(device, devices * device.size());
    SelectedEngine e;
    reads.push_back(measure(devices, [&] { EXPECT_EQ(QvtOption_Parser::ReadQvtCommand(text, e.imp), 0); }));
    EXPECT_EQ(e.imp.jtagChain.size(), devices);
    std::string out;
    writes.push_back(measure(devices, [&] { EXPECT_EQ(e.engine.GenerateCmdString(out), 0); }));
  }
  expect_linear("reading a device", reads, 250);
  expect_linear("writing a device", writes, 350);
}

// --- The option file: only the first line is kept ---

TEST(Memory, OfReadingAnOptionFileDoesNotDependOnItsSize) {
  const WorkFolder folder;
  const std::string start = "connect ov stub -port ";
  for (const bool letters : {false, true}) {
    const std::size_t size = letters ? 16 * kMega : std::size_t{1} << 30;
    {
      const std::string text = start + std::string(letters ? size : 0, 'x');
      WorkFolder::write(folder.option_file("p"), text);
    }
    ASSERT_EQ(::truncate(folder.option_file("p").c_str(), static_cast<off_t>(size)), 0);
    SelectedEngine e;
    const Use use = measure(1, [&] { EXPECT_EQ(QvtOption_Parser::ReadQvtOptFile("p", e.imp), 0); });
    EXPECT_EQ(e.processor.command, start + std::string(1023 - start.size(), letters ? 'x' : '\0'));
    EXPECT_LT(use.peak, 10000);
    std::cout << size << " characters: " << use.peak << " bytes\n";
  }
}

}  // namespace
}  // namespace SdkDebugDialog
