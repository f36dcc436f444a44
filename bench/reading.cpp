#include <algorithm>
#include <memory>

#include "bench/hand_written.h"
#include "bench/others.h"
#include "bench/ours.h"
#include "bench/suite.h"
#include "bench/texts.h"

namespace bench {
namespace {

bool read_by_hand_from(const std::string& text, Settings& settings) { return read_by_hand(text, settings); }

using Reader = bool (*)(const std::string& text, Settings& settings);

void add_ours(const Work& work, const std::string& text, const Settings& expected) {
  auto ours = std::make_shared<Ours>();
  ours->read(text);
  expect(ours->settings() == expected, work, kOurs);
  add(work, kOurs, [ours, text] { ours->read(text); });
}

void add_reader(const Work& work, const char* who, Reader read, const std::string& text, const Settings& expected) {
  Settings settings;
  expect(read(text, settings) && settings == expected, work, who);
  add(work, who, [read, text] {
    Settings fresh;
    benchmark::DoNotOptimize(read(text, fresh));
    benchmark::DoNotOptimize(fresh);
  });
}

void add_floor(const Work& work, const std::string& text) {
  const auto blanks = static_cast<std::size_t>(std::ranges::count(text, ' '));
  expect(count_words(text) == blanks + 1, work, "strtok_r");
  add(work, "strtok_r", [text] { benchmark::DoNotOptimize(count_words(text)); });
}

// The readers that are fast enough for texts of any length.
void add_quick(const Work& work, const std::string& text, const Settings& expected) {
  add_ours(work, text, expected);
  add_reader(work, "hand-written", read_by_hand_from, text, expected);
  add_reader(work, "RapidJSON", read_json, write_json(expected), expected);
  add_floor(work, text);
}

void add_all(const Work& work, const std::string& text, const Settings& expected) {
  add_quick(work, text, expected);
  add_reader(work, "getopt_long_only", read_with_getopt, text, expected);
  add_reader(work, "cxxopts", read_with_cxxopts, text, expected);
  add_reader(work, "CLI11", read_with_cli11, text, expected);
  add_reader(work, "Boost.Program_options", read_with_boost, text, expected);
}

}  // namespace

void add_reading() {
  add_all({"read simulator"}, simulator_text(), simulator_settings());
  add_all({"read hardware"}, hardware_text(), hardware_settings());
  add_all({"read hardware, retyped"}, hardware_text_retyped(), hardware_settings());
  for (const std::size_t devices : kSizes) {
    const Work work = {"read chain", devices};
    if (devices <= 100) {
      add_all(work, chain_text(devices), chain_settings(devices));
    } else {
      add_quick(work, chain_text(devices), chain_settings(devices));
    }
  }
}

}  // namespace bench
