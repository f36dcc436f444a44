// Random texts with the mistakes of people: there is an error exactly where the reader refuses the text, and the safe
// fixes make it readable and change nothing that was read.
//
// The environment variable DIAGNOSE_COUNT asks for more texts, DIAGNOSE_FIRST for others: text N is the same in every
// run.

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <set>
#include <string>

#include "diagnosis_check.h"
#include "random_mistakes.h"

namespace {

std::uint64_t number_in_environment(const char* name, std::uint64_t otherwise) {
  const char* const text = std::getenv(name);
  return text != nullptr ? std::strtoull(text, nullptr, 10) : otherwise;
}

TEST(DiagnosisProperty, FindsAnErrorExactlyWhereTheReaderDoes) {
  constexpr std::size_t kMostFaults = 12;
  const std::uint64_t first = number_in_environment("DIAGNOSE_FIRST", 0);
  const std::uint64_t count = number_in_environment("DIAGNOSE_COUNT", 20000);
  DiagnosisBench bench;
  std::set<std::string> faults;
  for (std::uint64_t i = first; i < first + count && faults.size() < kMostFaults; ++i) {
    Random random(i);
    DiagnosisCase c = random_case(random);
    for (std::size_t mistakes = random.below(4); mistakes > 0; --mistakes) make_mistake(random, c.text);
    const std::string fault = bench.fault(c);
    // One case of each kind of fault.
    if (fault.empty() || !faults.insert(fault.substr(0, fault.find_first_of(":\n0123456789"))).second) continue;
    const DiagnosisCase small = minimised(bench, c);
    ADD_FAILURE() << "text " << i << ": " << shown(small) << "\n  " << bench.fault(small);
  }
  const DiagnosisBench::Figures& f = bench.figures();
  std::printf("%llu texts: %zu read, %zu refused; %zu findings; %zu made readable, %zu improved by safe fixes\n",
              static_cast<unsigned long long>(count), f.read, f.refused, f.findings, f.fixed, f.improved);
  EXPECT_GT(f.fixed, 0U);
  EXPECT_GT(f.improved, 0U);
}

}  // namespace
