#include "settings/words.h"

#include <algorithm>
#include <numeric>

#include "SdkDebugDialog/Settings.h"

namespace SdkDebugDialog {
namespace {

// Levenshtein distance.
std::size_t distance(std::string_view a, std::string_view b) {
  std::vector<std::size_t> row(b.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (std::size_t i = 1; i <= a.size(); ++i) {
    std::size_t diagonal = row[0];
    row[0] = i;
    for (std::size_t j = 1; j <= b.size(); ++j) {
      const std::size_t replaced = diagonal + (a[i - 1] == b[j - 1] ? 0 : 1);
      diagonal = row[j];
      row[j] = std::min({replaced, row[j] + 1, row[j - 1] + 1});
    }
  }
  return row.back();
}

}  // namespace

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
    const std::size_t apart = distance(name, candidate);
    if (apart >= best || apart >= candidate.size()) continue;
    best = apart;
    found = candidate;
  }
  return found;
}

}  // namespace SdkDebugDialog
