// Time and memory of diagnoses of long texts, and diagnoses without enough memory.

#include "SdkDebugDialog/Diagnosis.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ctime>
#include <iostream>
#include <new>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "tests/faults/heap.h"

namespace SdkDebugDialog {
namespace {

using namespace std::string_view_literals;

// A text that becomes long: its beginning, and then the same again and again.
struct Long {
  const char* name;
  std::string_view head;
  std::string_view part;
};

constexpr Long kTexts[] = {
    {"options", "connect ov odm", " -quiet"sv},
    {"groups", "connect ov odm", " -cable type zarvek_platformusb frequency 6000000 -bscan USER1"},
    {"chain", "connect ov odm", " -configdevice devicenr 1 partname fpga irlength 10 idcode 0x0a001093"},
    {"pairs", "connect ov odm -cable", " port USB21 frequency 12MHz"},
    {"unknown options", "connect ov odm", " -cabel type x"},
    {"unknown keywords", "connect ov odm -cable", " typ x"},
    {"wrong values", "connect ov odm", " -bscan USER5"},
    {"missing values", "connect ov odm", " -bscan"},
    {"separators", "connect ov odm -cable", " type=x,"},
    {"words", "connect ov odm", " cable"},
    {"words of a simulator", "connect ov sim", " x"},
    {"lone dashes", "connect ov odm", " -"},
    {"commands", "", "connect ov odm -quiet "},
    {"lines", "connect ov odm", "\n# x"},
    {"carriage returns", "connect ov odm -quiet", "\r"},
    {"line feeds", "", "\n"},
    {"blanks", "", " "},
    {"a word", "", "x"},
    {"a number", "connect ov odm -cable frequency ", "1"},
    {"an option", "connect ov odm -", "c"},
    {"dashes", "connect ov odm ", "-"},
    {"equals signs", "connect ov odm -cable type", "="},
    {"commas", "connect ov odm -cable port ", ","},
    {"quotes", "connect ov odm -cable port ", "\""},
    {"an option with what belongs to it", "connect ov odm -cable", "type"},
    {"bytes", "connect ov odm -cable port ", "\xff"},
    {"zeros", "connect ov odm -cable port ", "\0"sv},
};

void PrintTo(const Long& text, std::ostream* out) { *out << text.name; }

std::string text_of(const Long& text, std::size_t size) {
  std::string made(text.head);
  made.reserve(size + text.part.size());
  while (made.size() < size) made += text.part;
  return made;
}

// Seconds and bytes at the peak, the least of some runs.
struct Use {
  double seconds = 1e9;
  double bytes = 1e18;
};

// Of this thread, so that it does not matter what else the machine does.
double processor_seconds() {
  std::timespec now{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
}

Use measure(const std::string& text, TextKind kind, int runs) {
  Use least;
  for (int i = 0; i < runs; ++i) {
    heap::restart_peak();
    const std::size_t before = heap::bytes();
    const double start = processor_seconds();
    with_fixes(text, diagnose(text, kind));
    least.seconds = std::min(least.seconds, processor_seconds() - start);
    least.bytes = std::min(least.bytes, static_cast<double>(heap::peak() - before));
  }
  return least;
}

class LongDiagnosis : public testing::TestWithParam<Long> {};

TEST_P(LongDiagnosis, TakesTimeAndMemoryInProportion) {
  constexpr std::size_t kSize = 40000;
  constexpr std::size_t kTimes = 10;
  const std::string smaller = text_of(GetParam(), kSize);
  const std::string larger = text_of(GetParam(), kSize * kTimes);
  for (const TextKind kind : {TextKind::command, TextKind::optionFile, TextKind::cableText}) {
    const Use a = measure(smaller, kind, 3);
    const Use b = measure(larger, kind, 2);
    std::cout << b.seconds * 1e9 / static_cast<double>(larger.size()) << " ns and "
              << b.bytes / static_cast<double>(larger.size()) << " bytes a character\n";
    // The memory of a list may double; what is quadratic would take 100 times as long.
    EXPECT_LE(b.bytes, 2.1 * kTimes * std::max(a.bytes, 1000.0));
    EXPECT_LE(b.seconds, 4.0 * kTimes * std::max(a.seconds, 1e-4));
  }
}

INSTANTIATE_TEST_SUITE_P(All, LongDiagnosis, testing::ValuesIn(kTexts));

TEST(Diagnosis, ThrowsWithoutMemoryAndReleasesWhatItHas) {
  const std::string text =
      "\n\xEF\xBB\xBF"
      "conect ov odm -cabel type=zarvek_plaformusb frequency 12MHz - -debugdevice deviceNr 300\r\n# x\n";
  // The kinds are made at the first use, and stay.
  const std::string fixed = with_fixes(text, diagnose(text, TextKind::optionFile));
  std::size_t n = 0;
  for (bool happened = true; happened;) {
    const std::size_t before = heap::blocks();
    try {
      const heap::Refusal refusal(++n);
      EXPECT_EQ(with_fixes(text, diagnose(text, TextKind::optionFile)), fixed);
      happened = heap::Refusal::happened();
    } catch (const std::bad_alloc&) {
    }
    ASSERT_EQ(heap::blocks(), before) << "something leaks when allocation " << n << " fails";
  }
  EXPECT_GT(n, 10U);
}

}  // namespace
}  // namespace SdkDebugDialog
