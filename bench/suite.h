#pragma once

// The benchmark cases: each piece of work is done by the library and by others.

#include <benchmark/benchmark.h>

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace bench {

inline constexpr const char* kOurs = "this library";

// The sizes in a series.
inline constexpr std::size_t kSizes[] = {10, 100, 1000, 10000, 100000};

struct Work {
  std::string name;
  std::size_t size = 0;  // number of devices or processors; 0: not in a series

  // The name with the size.
  std::string label() const;
};

enum class Clock { cpu, wall };

// Memory use, and a size that it is compared with; both in bytes.
struct Footprint {
  std::string work;
  double ours;
  std::string what;
  double theirs;
  double atMost;  // limit for the ratio
};
std::vector<Footprint>& footprints();

struct Case {
  Work work;
  std::string who;
  std::string id;  // the benchmark's name
};

// In the order in which they were added.
std::vector<Case>& cases();

// Exits with an error unless right is true: only correct results are timed.
void expect(bool right, const Work& work, const std::string& who);

std::string add_case(const Work& work, const std::string& who);

// Adds a case that calls run.
template <class Run>
void add(const Work& work, const std::string& who, Run run, Clock clock = Clock::cpu) {
  auto* const benchmark = benchmark::RegisterBenchmark(add_case(work, who).c_str(), [run](benchmark::State& state) {
    for ([[maybe_unused]] auto step : state) run();
  });
  if (clock == Clock::wall) benchmark->UseRealTime();
}

// Add the cases; each kind of work has its own file.
void add_reading();
void add_writing();
void add_discovery();
void add_lookup();
void add_selection();
void add_process();
void add_many_files();
void add_large_design();

}  // namespace bench
