#pragma once

// What is measured: pieces of work, each done by one or several parties.

#include <benchmark/benchmark.h>

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace bench {

inline constexpr const char* kOurs = "this library";

// The sizes of a series.
inline constexpr std::size_t kSizes[] = {10, 100, 1000, 10000, 100000};

struct Work {
  std::string name;
  std::size_t size = 0;  // devices or processors of a series that grows; 0: not in a series

  // The name that tells sizes apart.
  std::string label() const;
};

enum class Clock { cpu, wall };

// Memory beside a size that it is compared with, in bytes.
struct Footprint {
  std::string work;
  double ours;
  std::string what;
  double theirs;
  double atMost;  // the ratio
};
std::vector<Footprint>& footprints();

struct Case {
  Work work;
  std::string who;
  std::string id;  // the benchmark's name
};

// In the order in which they were added.
std::vector<Case>& cases();

// Ends the program unless what a party did was right: nothing wrong is ever timed.
void expect(bool right, const Work& work, const std::string& who);

std::string add_case(const Work& work, const std::string& who);

// Adds a party that does the work by calling run.
template <class Run>
void add(const Work& work, const std::string& who, Run run, Clock clock = Clock::cpu) {
  auto* const benchmark = benchmark::RegisterBenchmark(add_case(work, who).c_str(), [run](benchmark::State& state) {
    for ([[maybe_unused]] auto step : state) run();
  });
  if (clock == Clock::wall) benchmark->UseRealTime();
}

// The pieces of work, one file for each kind.
void add_reading();
void add_writing();
void add_discovery();
void add_lookup();
void add_selection();
void add_process();
void add_large_design();

}  // namespace bench
