// Values that are not what they seem.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <limits>
#include <optional>
#include <string>
#include <type_traits>
#include <variant>

#include "findings/checks.h"
#include "options/TokenCursor.h"
#include "options/number.h"
#include "settings/number_text.h"

namespace SdkDebugDialog {
namespace {

constexpr std::string_view kOctal = "01234567";
constexpr std::string_view kDecimal = "0123456789";
constexpr std::string_view kHexadecimal = "0123456789abcdefABCDEF";

bool is_made_of(std::string_view text, std::string_view characters) {
  return text.find_first_not_of(characters) == text.npos;
}

// --- How the reader reads a number ---

struct NumberRule {
  bool decimalAlone = false;  // neither "0x" nor a leading zero means anything
  bool hexadecimal = false;   // as it is written
  bool isSigned = false;      // negative numbers are as good as others
  // The numbers that are kept as they are typed.
  std::int64_t min = 0;
  std::int64_t max = 0;
  // What people may type behind it.
  Scale scale = Scale::none;
  std::string_view unit = {};
};

constexpr NumberRule kPort = {.decimalAlone = true, .max = 65535};

// What a value is read as, by its rule.
struct Value {
  std::string_view text;
  std::size_t length = 0;   // of the number at its beginning; 0 if there is none
  std::int64_t number = 0;  // as typed
  std::int64_t stored = 0;  // cut to the field
};

template <class Number>
constexpr std::int64_t cut(std::uint64_t number) {
  return static_cast<std::int64_t>(static_cast<Number>(number));
}

struct NumberField {
  std::int64_t min = 0;
  std::int64_t max = 0;
  std::size_t bytes = 0;
  std::int64_t (*cut)(std::uint64_t number) = nullptr;
};

template <class Record, class Number>
NumberField number_field(Number Record::* /*field*/) {
  if constexpr (std::is_integral_v<Number>) {
    using Limits = std::numeric_limits<Number>;
    return {.min = Limits::min(), .max = Limits::max(), .bytes = sizeof(Number), .cut = cut<Number>};
  }
  return {};
}
NumberField number_field(std::monostate /*none*/) { return {}; }

NumberRule rule_of(const Keyword& row, const NumberField& field) {
  NumberRule rule = {.isSigned = row.kind == Kind::signedNumber, .max = field.max, .unit = row.unit};
  rule.hexadecimal = row.kind == Kind::hexadecimal || row.kind == Kind::address;
  if (rule.isSigned) rule.min = field.min;
  // A byte is written as a signed number: 200 as -56.
  const bool isUnsignedByte = field.bytes == 1 && field.min == 0;
  if (isUnsignedByte && row.written.holds != nullptr) rule.min = std::numeric_limits<std::int8_t>::min();
  if (rule.unit == "Hz" || rule.unit == "baud") rule.scale = Scale::decimal;
  if (rule.unit == "bytes" || row.kind == Kind::address) rule.scale = Scale::binary;
  return rule;
}

// The length of the number that a text begins with; 0 if there is none.
std::size_t length_of_number(std::string_view text, bool decimalAlone) {
  std::size_t at = 0;
  while (at < text.size() && is_space(text[at])) ++at;
  if (at < text.size() && (text[at] == '-' || text[at] == '+')) ++at;
  std::string_view digits = kDecimal;
  if (!decimalAlone && at < text.size() && text[at] == '0') {
    const std::string_view rest = text.substr(at + 1);
    const bool hasPrefix =
        rest.size() > 1 && (rest[0] == 'x' || rest[0] == 'X') && kHexadecimal.find(rest[1]) != rest.npos;
    digits = hasPrefix ? kHexadecimal : kOctal;
    if (hasPrefix) at += 2;
  }
  const std::size_t end = std::min(text.find_first_not_of(digits, at), text.size());
  return end > at ? end : 0;
}

// --- What is wrong with a number ---

bool fits(const NumberRule& rule, std::int64_t number) { return number >= rule.min && number <= rule.max; }

// With a leading zero, and another number than it seems. The first digit that is not octal ends the reading.
bool is_octal(const NumberRule& rule, const Value& value) {
  if (rule.decimalAlone) return false;
  std::string_view digits = value.text;
  if (digits.starts_with('-') || digits.starts_with('+')) digits.remove_prefix(1);
  return digits.starts_with('0') && is_made_of(digits, kDecimal) && to_decimal(value.text) != value.number;
}

// Hexadecimal digits where "0x" seems to be missing.
bool lacks_prefix(const NumberRule& rule, const Value& value) {
  return rule.hexadecimal && is_made_of(value.text, kHexadecimal);
}

// The number that was probably meant; people type none that is longer.
constexpr std::size_t kLongestMeant = 64;

bool is_quote(char c) { return c == '"' || c == '\''; }

// "12000000,": what separates values elsewhere.
std::string_view without_separator(std::string_view text) { return text.substr(0, text.find_last_not_of(",;:.") + 1); }

// The digits of "1000h" or "0x1000h"; empty for any other text.
std::string_view digits_before_suffix(const NumberRule& rule, std::string_view text) {
  if (rule.decimalAlone || (!text.ends_with('h') && !text.ends_with('H'))) return {};
  text.remove_suffix(1);
  if (text.starts_with("0x") || text.starts_with("0X")) text.remove_prefix(2);
  return is_made_of(text, kHexadecimal) ? text : std::string_view();
}

// The digits of "12,000,000", "12'000" and "12.000.000"; a single point may be that of a fraction. Empty for any other
// text.
std::string digits_of_thousands(std::string_view text) {
  const std::size_t first = text.find_first_not_of(kDecimal);
  if (first == text.npos || first == 0 || first > 3) return {};
  const char separator = text[first];
  std::string digits(text.substr(0, first));
  std::size_t groups = 0;
  for (std::size_t at = first; at < text.size(); at += 4, ++groups) {
    const std::string_view group = text.substr(at + 1, 3);
    if (text[at] != separator || group.size() < 3 || !is_made_of(group, kDecimal)) return {};
    digits += group;
  }
  const bool isKnown = separator == ',' || separator == '\'' || (separator == '.' && groups > 1);
  return isKnown ? digits : std::string();
}

// "12.0", without a unit: hardly what was meant.
bool is_fraction(std::string_view text) { return text.find('.') != text.npos && is_made_of(text, "0123456789."); }

std::optional<std::int64_t> meant_by(const NumberRule& rule, const Value& value) {
  const std::string_view text = value.text;
  if (text.size() > kLongestMeant) return std::nullopt;
  if (text.size() > 2 && is_quote(text.front()) && text.front() == text.back()) {
    return parse_number(text.substr(1, text.size() - 2), rule.scale, rule.unit);
  }
  if (lacks_prefix(rule, value)) return to_signed("0x" + std::string(value.text));
  if (is_octal(rule, value)) return to_decimal(value.text);
  if (value.length > 0 && without_separator(text).size() == value.length) return value.number;
  if (const std::string_view digits = digits_before_suffix(rule, text); !digits.empty()) {
    return to_signed("0x" + std::string(digits));
  }
  if (const std::string digits = digits_of_thousands(text); !digits.empty()) return to_decimal(digits);
  if (is_fraction(text)) return std::nullopt;
  return parse_number(value.text, rule.scale, rule.unit);
}

bool ends_with_unit(const NumberRule& rule, const Value& value) {
  const char last = value.text.back();
  const bool isLetter = (last >= 'a' && last <= 'z') || (last >= 'A' && last <= 'Z');
  return isLetter && !lacks_prefix(rule, value) && digits_before_suffix(rule, value.text).empty();
}

std::string spelled(const NumberRule& rule, std::int64_t number) {
  return rule.hexadecimal ? address_text(static_cast<std::uint32_t>(number)) : std::to_string(number);
}

std::string range_remedy(const NumberRule& rule) {
  const std::int64_t min = rule.isSigned ? rule.min : 0;
  return "write a number from " + std::to_string(min) + " to " + spelled(rule, rule.max);
}

std::string message_of(const NumberRule& rule, const Value& value, const std::string& reason) {
  return quoted(value.text).append(" is read as ").append(spelled(rule, value.stored)).append(": ").append(reason);
}

Fix fix_with(const NumberRule& rule, std::int64_t number, bool safe, const Place& place) {
  const std::string text = spelled(rule, number);
  return fix("write " + text, safe, place, text);
}

void report_octal(const NumberRule& rule, const Value& value, const Place& place, Report& report) {
  Finding& finding = report.add(Code::octalNumber, place, message_of(rule, value, "a leading zero makes it octal"),
                                range_remedy(rule));
  if (!fits(rule, value.stored)) return;
  finding.remedy = "write " + spelled(rule, value.stored);
  finding.fixes.push_back(fix_with(rule, value.stored, true, place));
  const std::optional<std::int64_t> meant = meant_by(rule, value);
  if (!meant || !fits(rule, *meant)) return;
  finding.remedy.append(", or ").append(spelled(rule, *meant)).append(" if that is meant");
  finding.fixes.push_back(fix_with(rule, *meant, false, place));
}

// Something behind the number, or no number at all.
void report_characters(const NumberRule& rule, const Value& value, const Place& place, Report& report) {
  const bool isNumber = value.length > 0;
  const std::optional<std::int64_t> meant = meant_by(rule, value);
  const bool hasUnit = isNumber && meant && ends_with_unit(rule, value);
  const Code code = !isNumber ? Code::notANumber : hasUnit ? Code::unitIgnored : Code::trailingCharacters;
  const char* const reason = !isNumber ? "it is no number" : hasUnit ? "units are ignored" : "the rest is ignored";
  Finding& finding = report.add(code, place, message_of(rule, value, reason), range_remedy(rule));
  if (!isNumber && !meant) return;
  // Where a unit may stand, the digits in front are hardly the number that was meant.
  if (!meant && rule.scale != Scale::none) {
    finding.remedy =
        rule.unit.empty() ? "write the whole number" : "write the whole number, in " + std::string(rule.unit);
    return;
  }
  const std::int64_t number = meant.value_or(value.number);
  if (!fits(rule, number)) return;
  finding.remedy = "write " + spelled(rule, number);
  finding.fixes.push_back(fix_with(rule, number, meant == value.stored, place));
}

// A number that the field does not take, or takes as another one.
void report_range(const NumberRule& rule, const Value& value, const Place& place, Report& report) {
  const bool isNegative = value.number < 0 && !rule.isSigned;
  const std::string reason = isNegative ? "is negative" : "is too large";
  report.add(isNegative ? Code::negativeNumber : Code::numberTooLarge, place,
             value.stored == value.number ? quoted(value.text).append(" ").append(reason)
                                          : message_of(rule, value, "it " + reason),
             range_remedy(rule));
}

void check(const NumberRule& rule, const Value& value, const Place& place, Report& report) {
  if (is_octal(rule, value)) {
    report_octal(rule, value, place, report);
  } else if (value.length == 0 || value.length < value.text.size()) {
    report_characters(rule, value, place, report);
  } else if (!fits(rule, value.number)) {
    report_range(rule, value, place, report);
  }
}

// --- Host and port ---

void check_address(const Keyword& row, std::string_view value, const Place& place, Report& report) {
  const std::size_t colon = value.find(':');
  if (colon == value.npos) {
    Finding& finding =
        report.add(Code::addressWithoutPort, place, quoted(value).append(" has no port: ").append(row.meaning),
                   "write host and port with a colon between them");
    if (is_made_of(value, kDecimal)) {
      std::string port = ":";
      port += value;
      finding.remedy = "write " + quoted(port);
      finding.fixes.push_back(fix(finding.remedy, false, place, port));
    }
    return;
  }
  Value port = {.text = value.substr(colon + 1)};
  if (port.text.empty()) {
    report.add(Code::notANumber, {place.begin + colon, place.end}, "the port is missing and read as 0",
               "write a number from 1 to 65535 behind the colon");
    return;
  }
  port.length = length_of_number(port.text, kPort.decimalAlone);
  port.number = to_decimal(port.text);
  port.stored = cut<std::uint32_t>(static_cast<std::uint64_t>(port.number));
  check(kPort, port, {place.begin + colon + 1, place.end}, report);
}

// --- Texts ---

bool check_quotes(std::string_view value, const Place& place, Report& report) {
  if (value.ends_with('\\')) {
    report.add(Code::quotes, place, quoted(value) + " ends here: a backslash does not keep the blank behind it",
               "use a text without blanks");
    return true;
  }
  const bool isBegun = is_quote(value.front());
  if (isBegun && (value.size() == 1 || value.back() != value.front())) {
    report.add(Code::quotes, place, quoted(value) + " ends here: quotes join no words",
               "use a text without blanks and quotes");
    return true;
  }
  // An apostrophe may be part of a name.
  if (!isBegun && value.find('"') == value.npos) return false;
  Finding& finding = report.add(Code::quotes, place, quoted(value) + " keeps its quotes: they are part of the text",
                                "write the text without quotes");
  if (!isBegun) return true;
  const std::string_view text = value.substr(1, value.size() - 2);
  // What begins with a dash may be an option.
  if (!text.empty() && !text.starts_with('-')) {
    finding.fixes.push_back(fix("write " + quoted(text), false, place, std::string(text)));
  }
  return true;
}

// What separates values elsewhere. An argument of a module can have any form.
bool check_separator(const Keyword& row, std::string_view value, const Place& place, Report& report) {
  const std::string_view text = value.substr(0, value.find_last_not_of(",;") + 1);
  if (text.size() == value.size() || row.repeats) return false;
  const std::string_view separator = value.substr(text.size());
  Finding& finding = report.add(Code::trailingCharacters, place,
                                quoted(value).append(" keeps ").append(quoted(separator)).append(" at its end"),
                                "separate words by blanks alone");
  if (text.empty()) return true;
  finding.remedy = "write " + quoted(text);
  finding.fixes.push_back(fix(finding.remedy, false, place, std::string(text)));
  return true;
}

// What a shell would replace in the name of a file or a port.
void check_shell(const Keyword& row, std::string_view value, const Place& place, Report& report) {
  constexpr std::string_view kFilesAndPorts[] = {"port", "-port", "fname", "-icf"};
  if (std::ranges::find(kFilesAndPorts, row.name.text()) == std::end(kFilesAndPorts)) return;
  const bool isFolder = value == "~" || value.starts_with("~/");
  const std::size_t dollar = value.find('$');
  const bool isVariable = dollar != value.npos && dollar + 1 < value.size();
  if (!isFolder && !isVariable) return;
  const char* const reason =
      isFolder ? " keeps its '~': no shell replaces it by a folder" : " keeps its '$': no shell replaces a variable";
  report.add(Code::quotes, place, quoted(value) + reason, "write the whole name");
}

}  // namespace

void check_number(const Keyword& row, std::string_view value, const Place& place, Report& report) {
  if (row.kind == Kind::hostAndPort) return check_address(row, value, place, report);
  if (row.kind == Kind::flag || row.kind == Kind::text || row.kind == Kind::word) return;
  const NumberField field = std::visit([](auto member) { return number_field(member); }, row.field);
  if (field.cut == nullptr) return;
  const NumberRule rule = rule_of(row, field);
  Value read = {.text = value, .length = length_of_number(value, rule.decimalAlone), .number = to_signed(value)};
  read.stored = field.cut(rule.isSigned ? static_cast<std::uint64_t>(read.number) : to_unsigned(value));
  check(rule, read, place, report);
}

void check_text(const Keyword& row, std::string_view value, const Place& place, Report& report) {
  if (value.empty()) return;
  if (check_quotes(value, place, report) || check_separator(row, value, place, report)) return;
  check_shell(row, value, place, report);
}

}  // namespace SdkDebugDialog
