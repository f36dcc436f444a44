// Look-up by name among 100,000 processors, in random order.

#include <algorithm>
#include <memory>
#include <random>
#include <string>
#include <unordered_map>
#include <vector>

#include "bench/design.h"
#include "bench/suite.h"
#include "model/processor_list.h"
#include "tests/support/SelectedEngine.h"

namespace bench {
namespace {

using SdkDebugDialog::ProcessorInfoImp;

constexpr std::size_t kProcessors = 100000;

struct Lookup {
  Design design{kProcessors};
  DiscoveredEngine engine{design};
  std::unordered_map<std::string, ProcessorInfoImp*> map;
  std::vector<std::string> names;
  std::size_t at = 0;

  Lookup() {
    for (ProcessorInfoImp* const processor : engine.imp.processorList) {
      map.emplace(processor->name, processor);
      names.push_back(processor->name);
    }
    std::ranges::shuffle(names, std::mt19937(1));
  }

  const std::string& next() {
    at = (at + 1) % names.size();
    return names[at];
  }
};

}  // namespace

void add_lookup() {
  const Work work = {"look-up in 100,000"};
  const char* const who = "std::unordered_map";
  auto lookup = std::make_shared<Lookup>();
  for (const std::string& name : lookup->names) {
    const ProcessorInfoImp* const found = SdkDebugDialog::find_listed(lookup->engine.imp, name);
    expect(found != nullptr && found->name == name, work, kOurs);
    expect(lookup->map.find(name)->second == found, work, who);
  }
  add(work, kOurs,
      [lookup] { benchmark::DoNotOptimize(SdkDebugDialog::find_listed(lookup->engine.imp, lookup->next())); });
  add(work, who, [lookup] { benchmark::DoNotOptimize(lookup->map.find(lookup->next())->second); });
}

}  // namespace bench
