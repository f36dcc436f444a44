#include "bench/report.h"

#include <stdio.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <string_view>

#include "bench/suite.h"

namespace bench {
namespace {

// --- Goals ---

// An upper limit for the ratio of the library's time to another's, for a range of sizes.
struct Goal {
  std::string_view work;
  std::string_view who;
  double atMost;
  std::size_t from = 0;
  std::size_t to = std::numeric_limits<std::size_t>::max();
};

constexpr Goal kGoals[] = {
    {"read hardware", "hand-written", 1.0},
    {"read hardware", "CLI11", 1.0 / 20},
    {"read hardware", "Boost.Program_options", 1.0 / 50},
    {"read hardware, retyped", "hand-written", 0.95},
    {"read chain", "hand-written", 1.0},
    {"write hardware", "append + to_chars", 0.9},
    {"write chain", "append + to_chars", 0.9},
    {"discovery", "the same questions", 2, 100, 10000},
    {"look-up in 100,000", "std::unordered_map", 4},
    {"qvtcfg command", "empty program", 2},
    {"qvtcfg check, 10,000", "cat", 3},
    {"qvtcfg command, 100,000", "nlohmann::json document", 0.5},
};
constexpr double kHighestExponent = 1.1;
constexpr std::size_t kSmallestFitted = 100;
constexpr double kHighestPeak = 3;

double goal(const Work& work, std::string_view who) {
  const auto* const found = std::ranges::find_if(kGoals, [&](const Goal& g) {
    return g.work == work.name && g.who == who && g.from <= work.size && work.size <= g.to;
  });
  return found != std::end(kGoals) ? found->atMost : 0;
}

// --- Numbers ---

std::string format(const char* pattern, double value) {
  char text[32];
  std::snprintf(text, sizeof text, pattern, value);
  return text;
}

// Three significant digits.
std::string digits(double value) { return format(value < 10 ? "%.2f" : value < 100 ? "%.1f" : "%.0f", value); }

std::string in_units(double value, double step, std::initializer_list<const char*> units) {
  const auto* unit = units.begin();
  for (; value >= step && unit + 1 != units.end(); ++unit) value /= step;
  return digits(value) + " " + *unit;
}

std::string time(double nanoseconds) { return in_units(nanoseconds, 1000, {"ns", "us", "ms", "s"}); }
std::string bytes(double count) { return in_units(count, 1024, {"B", "KiB", "MiB"}); }

struct Point {
  double size;
  double time;
};

// The exponent e of the best fit time = c * size^e: least squares on the logarithms.
double exponent(const std::vector<Point>& points) {
  double x = 0;
  double y = 0;
  double xx = 0;
  double xy = 0;
  for (const Point& p : points) {
    x += std::log(p.size);
    y += std::log(p.time);
    xx += std::log(p.size) * std::log(p.size);
    xy += std::log(p.size) * std::log(p.time);
  }
  const auto n = static_cast<double>(points.size());
  return (n * xy - x * y) / (n * xx - x * x);
}

// --- The table ---

void print_row(const std::string& work, const std::string& ours, const std::string& each, const std::string& who,
               const std::string& theirs, const std::string& ratio, const std::string& atMost,
               const std::string& verdict) {
  std::printf("| %-28s | %12s | %9s | %-24s | %9s | %6s | %7s | %-7s |\n", work.c_str(), ours.c_str(), each.c_str(),
              who.c_str(), theirs.c_str(), ratio.c_str(), atMost.c_str(), verdict.c_str());
}

std::string verdict(double value, double atMost) { return atMost == 0 ? "" : value <= atMost ? "met" : "not met"; }
std::string limit(double atMost) { return atMost == 0 ? "" : format("%.3g", atMost); }

void print_comparison(const Collector& times, const Case& other) {
  const double ours = times.median(other.work.label() + "/" + kOurs);
  const double theirs = times.median(other.id);
  if (ours == 0 || theirs == 0) return;
  const double atMost = goal(other.work, other.who);
  const std::string each = other.work.size == 0 ? "" : time(ours / static_cast<double>(other.work.size));
  print_row(other.work.label(), time(ours), each, other.who, time(theirs), format("%.3f", ours / theirs), limit(atMost),
            verdict(ours / theirs, atMost));
}

std::vector<Point> series(const Collector& times, const std::string& work, const std::string& who) {
  std::vector<Point> points;
  for (const Case& c : cases()) {
    if (c.work.name != work || c.who != who || c.work.size < kSmallestFitted) continue;
    if (const double time = times.median(c.id); time != 0) points.push_back({static_cast<double>(c.work.size), time});
  }
  return points;
}

void print_exponents(const Collector& times) {
  for (const Case& c : cases()) {
    if (c.work.size != kSmallestFitted || c.who == kOurs) continue;
    const std::vector<Point> ours = series(times, c.work.name, kOurs);
    const std::vector<Point> theirs = series(times, c.work.name, c.who);
    if (ours.size() < 2 || theirs.size() < 2) continue;
    print_row(c.work.name + ", exponent", digits(exponent(ours)), "", c.who, digits(exponent(theirs)), "",
              limit(kHighestExponent), verdict(exponent(ours), kHighestExponent));
  }
}

// Runs bench_memory, which counts every allocation, and prints its results.
void print_memory() {
  FILE* const pipe = popen("'" BENCH_MEMORY "'", "r");
  if (pipe == nullptr) return;
  double devices = 0;
  double text = 0;
  double records = 0;
  double peak = 0;
  while (std::fscanf(pipe, "%lf %lf %lf %lf", &devices, &text, &records, &peak) == 4) {
    const double ratio = peak / (text + records);
    print_row("peak heap of a read, " + format("%.0f", devices), bytes(peak), bytes(peak / devices), "text + records",
              bytes(text + records), format("%.3f", ratio), limit(kHighestPeak), verdict(ratio, kHighestPeak));
  }
  pclose(pipe);
}

void print_footprints() {
  for (const Footprint& f : footprints()) {
    const double ratio = f.ours / f.theirs;
    print_row(f.work, bytes(f.ours), "", f.what, bytes(f.theirs), format("%.3f", ratio), limit(f.atMost),
              verdict(ratio, f.atMost));
  }
}

}  // namespace

bool Collector::ReportContext(const Context& /*context*/) { return true; }

void Collector::ReportRuns(const std::vector<Run>& runs) {
  for (const Run& run : runs) {
    if (run.run_type != Run::RT_Iteration) continue;
    const bool wall = !run.run_name.time_type.empty();
    m_times[run.run_name.function_name].push_back(wall ? run.GetAdjustedRealTime() : run.GetAdjustedCPUTime());
  }
}

double Collector::median(const std::string& id) const {
  const auto found = m_times.find(id);
  if (found == m_times.end()) return 0;
  std::vector<double> times = found->second;
  std::ranges::sort(times);
  return (times[times.size() / 2] + times[(times.size() - 1) / 2]) / 2;
}

void print_table(const Collector& times) {
  print_row("work", kOurs, "for each", "beside it", "takes", "ratio", "at most", "");
  std::puts("|---|--:|--:|---|--:|--:|--:|---|");
  for (const Case& c : cases()) {
    if (c.who != kOurs) print_comparison(times, c);
  }
  print_exponents(times);
  print_memory();
  print_footprints();
}

}  // namespace bench
