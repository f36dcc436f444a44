// Random edits of random texts: the settings given change, and what follows from them; nothing else does, and no byte
// that needs no change.
//
// The environment variable EDIT_COUNT asks for more edits, EDIT_FIRST for others: edit N is the same in every run.

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <set>
#include <string>

#include "edit_check.h"
#include "random_edits.h"

namespace {

std::uint64_t number_in_environment(const char* name, std::uint64_t otherwise) {
  const char* const text = std::getenv(name);
  return text != nullptr ? std::strtoull(text, nullptr, 10) : otherwise;
}

void print(std::uint64_t count, const EditBench::Figures& f) {
  std::printf(
      "%llu edits: %zu in place, %zu without a change, %zu anew (%zu with losses), %zu not read back, %zu refused, "
      "%zu of a text that is not understood\n",
      static_cast<unsigned long long>(count), f.inPlace, f.unchanged, f.anew, f.losing, f.notReadBack, f.refused,
      f.notUnderstood);
}

TEST(EditProperty, ChangesWhatWasAskedForAndNothingElse) {
  constexpr std::size_t kMostFaults = 12;
  const std::uint64_t first = number_in_environment("EDIT_FIRST", 0);
  const std::uint64_t count = number_in_environment("EDIT_COUNT", 3000);
  EditBench bench;
  std::set<std::string> faults;
  for (std::uint64_t i = first; i < first + count && faults.size() < kMostFaults; ++i) {
    Random random(i);
    const EditCase c = random_edit(random, bench);
    const std::string fault = bench.fault(c);
    // One case of each kind of fault.
    if (fault.empty() || !faults.insert(fault.substr(0, fault.find_first_of(":\n"))).second) continue;
    const EditCase small = minimised(bench, c);
    ADD_FAILURE() << "edit " << i << ": " << shown(small) << "\n  " << bench.fault(small);
  }
  print(count, bench.figures());
  EXPECT_GT(bench.figures().inPlace, 0U);
}

}  // namespace
