#include "settings/words.h"

#include <algorithm>
#include <numeric>

#include "SdkDebugDialog/Settings.h"

namespace SdkDebugDialog {
// The distance of optimal string alignment, row by row.
std::size_t edit_distance(std::string_view a, std::string_view b) {
  std::vector<std::size_t> before(b.size() + 1);  // the row before the last one
  std::vector<std::size_t> last(b.size() + 1);
  std::vector<std::size_t> row(b.size() + 1);
  std::iota(last.begin(), last.end(), std::size_t{0});
  for (std::size_t i = 1; i <= a.size(); ++i) {
    row[0] = i;
    for (std::size_t j = 1; j <= b.size(); ++j) {
      const bool isSame = a[i - 1] == b[j - 1];
      row[j] = std::min({last[j - 1] + (isSame ? 0 : 1), last[j] + 1, row[j - 1] + 1});
      const bool isSwapped = i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1];
      if (isSwapped) row[j] = std::min(row[j], before[j - 2] + 1);
    }
    std::swap(before, last);
    std::swap(last, row);
  }
  return last.back();
}

bool same_word(std::string_view a, std::string_view b) {
  const auto small = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
  return std::ranges::equal(a, b, {}, small, small);
}

std::string spaced(std::string_view word) { return std::string(" ").append(word); }

std::string joined(std::span<const std::string> items, std::string_view separator) {
  std::string out;
  for (const std::string& item : items) {
    if (!out.empty()) out += separator;
    out += item;
  }
  return out;
}

std::vector<std::string_view> split(std::string_view text, char separator) {
  std::vector<std::string_view> items;
  for (std::size_t end = text.find(separator); end != std::string_view::npos; end = text.find(separator)) {
    items.push_back(text.substr(0, end));
    text.remove_prefix(end + 1);
  }
  items.push_back(text);
  return items;
}

std::string_view nearest_name(std::string_view name, const std::vector<std::string_view>& candidates) {
  constexpr std::size_t kResembles = 2;  // largest distance
  constexpr std::size_t kLongestName = 64;
  if (name.size() > kLongestName) return {};
  std::size_t best = kResembles + 1;
  std::string_view found;
  for (const std::string_view candidate : candidates) {
    const std::size_t difference = std::max(candidate.size(), name.size()) - std::min(candidate.size(), name.size());
    if (difference >= best) continue;
    const std::size_t apart = edit_distance(name, candidate);
    if (apart >= best || apart >= candidate.size()) continue;
    best = apart;
    found = candidate;
  }
  return found;
}

}  // namespace SdkDebugDialog
