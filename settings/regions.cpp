#include "SdkDebugDialog/Regions.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <optional>
#include <string_view>
#include <utility>
#include <variant>

#include "model/base_address.h"

namespace SdkDebugDialog {
namespace {

// Of a memory, the setting of its size.
const Setting* size_setting(std::string_view base) {
  constexpr std::pair<std::string_view, std::string_view> kMemories[] = {{"isocm", "isocm-size"}, {"rom", "rom-size"}};
  const auto* const memory = std::ranges::find(kMemories, base, [](const auto& pair) { return pair.first; });
  return memory != std::end(kMemories) ? find_setting(memory->second) : nullptr;
}

// The number of bytes behind the base that a setting tells; nothing if it tells no base.
std::optional<std::uint64_t> size_behind(const Setting& base, const Configuration& configuration) {
  if (const Setting* const size = size_setting(base.name)) {
    return static_cast<std::uint64_t>(std::get<std::int64_t>(configuration.value(*size)));
  }
  // The setting "address-map" only repeats the base of the instruction cache.
  if (base.group == "address-map" && base.name != "address-map") return kMapBlock;
  return std::nullopt;
}

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
  std::vector<Region> found;
  const std::vector<SettingState> states = configuration.states();
  for (std::size_t i = 0; i < states.size(); ++i) {
    const Setting& setting = settings()[i];
    const SettingState& state = states[i];
    const auto* const base = std::get_if<std::int64_t>(&state.value);
    const auto size = size_behind(setting, configuration);
    if (base == nullptr || !size || !state.applies) continue;
    const auto begin = static_cast<std::uint64_t>(*base);
    found.push_back({&setting, begin, begin + *size, false});
  }
  std::ranges::stable_sort(found, {}, &Region::begin);
  mark_overlaps(found);
  return found;
}

}  // namespace SdkDebugDialog
