#include "SdkDebugDialog/Regions.h"

#include <algorithm>
#include <cstdint>
#include <string_view>
#include <variant>

#include "model/base_address.h"
#include "settings/catalogue.h"

namespace SdkDebugDialog {
namespace {

struct Row {
  std::string_view base;
  std::string_view size = {};  // empty: a block of the debug address map
};

// In the order of the catalogue. The setting "address-map" only repeats the base of the instruction cache.
constexpr Row kRows[] = {{"icache"},         {"itag"}, {"dcache"}, {"dtag"}, {"tlb"}, {"dcr"}, {"isocm", "isocm-size"},
                         {"rom", "rom-size"}};

// The regions are in the order of their first addresses.
void mark_overlaps(std::vector<Region>& regions) {
  Region* furthest = nullptr;  // of those before, the one that ends last
  for (Region& region : regions) {
    if (region.begin == region.end) continue;
    if (furthest != nullptr && region.begin < furthest->end) furthest->overlaps = region.overlaps = true;
    if (furthest == nullptr || region.end > furthest->end) furthest = &region;
  }
}

}  // namespace

std::vector<Region> regions(const Configuration& configuration) {
  const std::vector<SettingState> states = configuration.states();
  const auto state_of = [&](std::string_view name) -> const SettingState& { return states[place_of(row_named(name))]; };
  std::vector<Region> found;
  for (const Row& row : kRows) {
    const SettingState& base = state_of(row.base);
    const auto* const begin = std::get_if<std::int64_t>(&base.value);
    if (begin == nullptr || !base.applies) continue;
    const std::int64_t size = row.size.empty() ? kMapBlock : std::get<std::int64_t>(state_of(row.size).value);
    found.push_back(
        {find_setting(row.base), static_cast<std::uint64_t>(*begin), static_cast<std::uint64_t>(*begin + size), false});
  }
  std::ranges::stable_sort(found, {}, &Region::begin);
  mark_overlaps(found);
  return found;
}

}  // namespace SdkDebugDialog
