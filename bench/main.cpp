// Runs the benchmarks and prints one table. Takes the options of Google Benchmark.

#include <benchmark/benchmark.h>

#include <vector>

#include "bench/report.h"
#include "bench/suite.h"

int main(int argc, char** argv) {
  // Interleaved, so that changes of the machine's speed affect all cases alike. Options of the user come last and
  // override these.
  char interleaved[] = "--benchmark_enable_random_interleaving=true";
  char repetitions[] = "--benchmark_repetitions=9";
  char shortest[] = "--benchmark_min_time=0.05";
  std::vector<char*> arguments = {argv[0], interleaved, repetitions, shortest};
  arguments.insert(arguments.end(), argv + 1, argv + argc);
  int count = static_cast<int>(arguments.size());
  arguments.push_back(nullptr);
  benchmark::Initialize(&count, arguments.data());
  if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) return 2;

  bench::add_reading();
  bench::add_writing();
  bench::add_discovery();
  bench::add_lookup();
  bench::add_selection();
  bench::add_process();
  bench::add_many_files();
  bench::add_large_design();
  bench::Collector times;
  benchmark::RunSpecifiedBenchmarks(&times);
  bench::print_table(times);
}
