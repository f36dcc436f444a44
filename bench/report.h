#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace bench {

// Stores the time of every repetition, in nanoseconds, by the name of the benchmark.
class Collector : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context& context) override;
  void ReportRuns(const std::vector<Run>& runs) override;

  // The median time; 0 for a benchmark that did not run.
  double median(const std::string& id) const;

 private:
  std::map<std::string, std::vector<double>> m_times;
};

// Prints the table of all cases that ran.
void print_table(const Collector& times);

}  // namespace bench
