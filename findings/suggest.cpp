#include "findings/suggest.h"

#include <algorithm>

#include "settings/words.h"

namespace SdkDebugDialog {
namespace {

constexpr std::size_t kLongestName = 64;

std::string in_small_letters(std::string_view word) {
  std::string small(word);
  for (char& c : small) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return small;
}

bool is_digit(char c) { return c >= '0' && c <= '9'; }

// A digit is hardly ever a typing error of another: zarvek_parallel3 is not zarvek_parallel4.
bool differ_in_digits_alone(std::string a, std::string b) {
  std::erase_if(a, is_digit);
  std::erase_if(b, is_digit);
  return a == b;
}

// "freq" may stand for "frequency".
Names beginning_with(std::string_view typed, const Names& names) {
  constexpr std::size_t kShortest = 4;
  Names found;
  for (const std::string_view name : names) {
    const bool begins = typed.size() >= kShortest && in_small_letters(name).starts_with(typed);
    if (begins && std::ranges::find(found, name) == found.end()) found.push_back(name);
  }
  return found;
}

}  // namespace

Nearest nearest(std::string_view word, const Names& names) {
  Nearest found;
  if (word.size() > kLongestName) return found;
  const std::string typed = in_small_letters(word);
  std::size_t least = 3;
  for (const std::string_view name : names) {
    const std::string small = in_small_letters(name);
    const std::size_t most = small.size() < 2 ? 0 : small.size() < 4 ? 1 : 2;
    const std::size_t longer = std::max(small.size(), typed.size());
    if (longer - std::min(small.size(), typed.size()) > most) continue;
    const std::size_t apart = edit_distance(typed, small);
    if (apart > most || apart > least || std::ranges::find(found.names, name) != found.names.end()) continue;
    if (apart < least) found.names.clear();
    least = apart;
    found.names.push_back(name);
  }
  if (found.names.empty()) found.names = beginning_with(typed, names);
  found.isOneEdit =
      least == 1 && found.names.size() == 1 && !differ_in_digits_alone(typed, in_small_letters(found.names.front()));
  return found;
}

bool is_one_of(std::string_view word, const Names& names) {
  return std::ranges::any_of(names, [&](std::string_view name) { return same_word(word, name); });
}

std::string listed(const Names& names, std::string_view last) {
  std::string out;
  for (std::size_t i = 0; i < names.size(); ++i) {
    const bool isLast = i + 1 == names.size() && !last.empty();
    if (i != 0) out += isLast ? std::string(" ").append(last).append(" ") : ", ";
    out.append("'").append(names[i]).append("'");
  }
  return out;
}

}  // namespace SdkDebugDialog
