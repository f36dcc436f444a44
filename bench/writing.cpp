#include <memory>

#include "bench/hand_written.h"
#include "bench/others.h"
#include "bench/ours.h"
#include "bench/suite.h"
#include "bench/texts.h"

namespace bench {
namespace {

using Writer = std::string (*)(const Settings& settings);

void add_writer(const Work& work, const char* who, Writer write, const Settings& settings) {
  add(work, who, [write, settings] { benchmark::DoNotOptimize(write(settings)); });
}

void add_all(const Work& work, const std::string& text, const Settings& settings) {
  auto ours = std::make_shared<Ours>();
  ours->read(text);
  expect(ours->write() == text, work, kOurs);
  add(work, kOurs, [ours] { benchmark::DoNotOptimize(ours->write()); });

  expect(write_by_hand(settings) == text, work, "append + to_chars");
  add_writer(work, "append + to_chars", write_by_hand, settings);

  Settings again;
  expect(read_json(write_json(settings), again) && again == settings, work, "RapidJSON");
  add_writer(work, "RapidJSON", write_json, settings);
}

}  // namespace

void add_writing() {
  add_all({"write simulator"}, simulator_text(), simulator_settings());
  add_all({"write hardware"}, hardware_text(), hardware_settings());
  for (const std::size_t devices : kSizes) {
    add_all({"write chain", devices}, chain_text(devices), chain_settings(devices));
  }
}

}  // namespace bench
