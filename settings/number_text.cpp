#include "settings/number_text.h"

#include <algorithm>
#include <array>
#include <boost/algorithm/string/predicate.hpp>
#include <charconv>
#include <cinttypes>
#include <cstddef>
#include <cstdio>
#include <iterator>
#include <limits>
#include <locale>
#include <system_error>

namespace SdkDebugDialog {
namespace {

// --- Units ---

struct Prefix {
  Scale scale;
  std::string_view letter;
  std::int64_t factor;
};

// The largest first.
constexpr Prefix kPrefixes[] = {
    {Scale::decimal, "G", 1'000'000'000}, {Scale::decimal, "M", 1'000'000}, {Scale::decimal, "k", 1'000},
    {Scale::binary, "G", 1 << 30},        {Scale::binary, "M", 1 << 20},    {Scale::binary, "K", 1 << 10},
};

std::string frequency_text(std::int64_t hertz) {
  const auto* const prefix = std::ranges::find_if(
      kPrefixes, [&](const Prefix& p) { return p.scale == Scale::decimal && hertz / p.factor != 0; });
  std::string text = std::to_string(hertz);
  if (prefix == std::end(kPrefixes) || hertz % (prefix->factor / 1000) != 0) return text + " Hz";
  const std::size_t places = std::to_string(prefix->factor).size() - 1;
  text.insert(text.size() - places, 1, '.');
  text.erase(text.find_last_not_of('0') + 1);
  if (text.ends_with('.')) text.pop_back();
  return text.append(" ").append(prefix->letter).append("Hz");
}

std::string rate_text(std::int64_t baud) { return std::to_string(baud) + " baud"; }

std::string size_text(std::int64_t bytes) {
  const auto* const prefix = std::ranges::find_if(
      kPrefixes, [&](const Prefix& p) { return p.scale == Scale::binary && bytes != 0 && bytes % p.factor == 0; });
  if (prefix == std::end(kPrefixes)) return std::to_string(bytes) + (bytes == 1 ? " byte" : " bytes");
  return std::to_string(bytes / prefix->factor).append(" ").append(prefix->letter).append("B");
}

// Up to three; the rest is empty. The unit may always be left out.
using Words = std::array<std::string_view, 3>;

struct Unit {
  Scale scale;
  std::string_view name;
  Words words;          // behind the number
  Words prefixedWords;  // behind a prefix
  std::string (*text)(std::int64_t value);
};

constexpr Unit kUnits[] = {
    {Scale::decimal, "Hz", {"Hz"}, {"Hz"}, frequency_text},
    {Scale::decimal, "baud", {"baud", "Bd"}, {"baud", "Bd"}, rate_text},
    {Scale::binary, "bytes", {"bytes", "byte", "B"}, {"B", "iB"}, size_text},
    {Scale::binary, "", {}, {"B", "iB"}, std::to_string},
};

constexpr Unit kNoUnit = {Scale::none, "", {}, {}, std::to_string};

const Unit& unit_of(Scale scale, std::string_view name) {
  const auto* const unit =
      std::ranges::find_if(kUnits, [&](const Unit& u) { return u.scale == scale && u.name == name; });
  return unit != std::end(kUnits) ? *unit : kNoUnit;
}

// Whatever the program's locale is: a text means the same everywhere.
bool same(std::string_view a, std::string_view b) { return boost::iequals(a, b, std::locale::classic()); }

bool has(const Words& words, std::string_view word) {
  return word.empty() || std::ranges::any_of(words, [&](std::string_view w) { return same(w, word); });
}

// What a suffix multiplies the number by.
std::optional<std::int64_t> factor_of(std::string_view suffix, Scale scale, std::string_view unitName) {
  const Unit& unit = unit_of(scale, unitName);
  if (has(unit.words, suffix)) return 1;
  const auto* const prefix = std::ranges::find_if(
      kPrefixes, [&](const Prefix& p) { return p.scale == scale && same(p.letter, suffix.substr(0, 1)); });
  if (prefix == std::end(kPrefixes) || !has(unit.prefixedWords, suffix.substr(1))) return std::nullopt;
  return prefix->factor;
}

// --- Digits ---

constexpr std::string_view kDecimal = "0123456789";
constexpr std::string_view kHexadecimal = "0123456789abcdefABCDEF";

// Removes the digits at the front of a text and returns them without the underscores between them.
std::string take_digits(std::string_view& text, std::string_view base) {
  const auto is_digit = [&](std::size_t i) { return i < text.size() && base.find(text[i]) != base.npos; };
  std::string digits;
  std::size_t i = 0;
  for (; is_digit(i) || (i > 0 && i < text.size() && text[i] == '_' && is_digit(i + 1)); ++i) {
    if (text[i] != '_') digits += text[i];
  }
  text.remove_prefix(i);
  return digits;
}

bool take(std::string_view& text, std::string_view front) {
  const bool isThere = same(text.substr(0, front.size()), front);
  if (isThere) text.remove_prefix(front.size());
  return isThere;
}

std::optional<std::int64_t> to_number(bool negative, const std::string& digits, int base) {
  const std::string text = (negative ? "-" : "") + digits;
  std::int64_t number = 0;
  if (std::from_chars(text.data(), text.data() + text.size(), number, base).ec != std::errc()) return std::nullopt;
  return number;
}

// Removes the exponent at the front of the text and returns it; 0 if there is none. A huge exponent is returned as a
// smaller one that is still huge: the number is too large, or not whole, with either.
std::optional<std::int64_t> take_exponent(std::string_view& text) {
  if (!take(text, "e")) return 0;
  const bool negative = take(text, "-");
  if (!negative) take(text, "+");
  const std::string digits = take_digits(text, kDecimal);
  if (digits.empty()) return std::nullopt;
  constexpr std::int64_t kHuge = std::numeric_limits<std::int64_t>::max() / 4;
  const std::int64_t exponent = std::min(to_number(false, digits, 10).value_or(kHuge), kHuge);
  return negative ? -exponent : exponent;
}

// The product of a number of any length, in decimal digits.
std::string times(const std::string& digits, std::int64_t factor) {
  std::string product;
  std::int64_t carry = 0;
  const auto put = [&] {
    product += kDecimal[static_cast<std::size_t>(carry % 10)];
    carry /= 10;
  };
  std::for_each(digits.rbegin(), digits.rend(), [&](char digit) {
    carry += (digit - '0') * factor;
    put();
  });
  while (carry != 0) put();
  std::ranges::reverse(product);
  return product;
}

// A number times a power of ten.
std::optional<std::int64_t> to_whole(bool negative, std::string digits, std::int64_t exponent) {
  digits.erase(0, digits.find_first_not_of('0'));
  if (digits.empty()) return 0;
  const std::size_t zeros = digits.size() - 1 - digits.find_last_not_of('0');
  digits.resize(digits.size() - zeros);
  exponent += static_cast<std::int64_t>(zeros);
  if (exponent < 0 || exponent > std::numeric_limits<std::int64_t>::digits10) return std::nullopt;
  return to_number(negative, digits.append(static_cast<std::size_t>(exponent), '0'), 10);
}

}  // namespace

std::optional<std::int64_t> parse_number(std::string_view text, Scale scale, std::string_view unit) {
  const bool negative = take(text, "-");
  if (take(text, "0x")) {
    const std::string digits = take_digits(text, kHexadecimal);
    return text.empty() ? to_number(negative, digits, 16) : std::nullopt;
  }

  const std::string whole = take_digits(text, kDecimal);
  if (whole.empty() || (whole.starts_with('0') && whole != "0")) return std::nullopt;
  const bool hasPoint = take(text, ".");
  const std::string fraction = hasPoint ? take_digits(text, kDecimal) : "";
  if (hasPoint && fraction.empty()) return std::nullopt;
  const std::optional<std::int64_t> exponent = take_exponent(text);
  if (!exponent) return std::nullopt;

  const std::string_view suffix = text.substr(std::min(text.find_first_not_of(' '), text.size()));
  const bool endsWithBlanks = suffix.empty() && !text.empty();
  const std::optional<std::int64_t> factor = factor_of(suffix, scale, unit);
  if (endsWithBlanks || !factor) return std::nullopt;
  return to_whole(negative, times(whole + fraction, *factor), *exponent - static_cast<std::int64_t>(fraction.size()));
}

std::string number_text(std::int64_t value, Scale scale, std::string_view unit) {
  return unit_of(scale, unit).text(value);
}

std::string address_text(std::uint32_t address) {
  char text[sizeof "0x00000000"];
  std::snprintf(text, sizeof text, "0x%08" PRIx32, address);
  return text;
}

}  // namespace SdkDebugDialog
