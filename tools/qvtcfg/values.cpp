#include "values.h"

#include <charconv>

#include "text.h"

namespace qvtcfg {

Failure refused(const std::string& argument, const std::string& why) {
  return {kRefused, one_line(argument) + ": " + why};
}

Failure wrong_value(const std::string& argument, const std::string& expected) {
  return {kUsage, one_line(argument) + ": expected " + expected};
}

std::uint32_t number(const std::string& argument, std::string_view text, std::uint32_t max) {
  const bool hex = text.starts_with("0x") || text.starts_with("0X");
  const std::string_view digits = hex ? text.substr(2) : text;
  std::uint32_t value = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value, hex ? 16 : 10);
  // A leading 0 is refused: the connect command reads it as octal, but users mostly mean decimal.
  const bool ambiguous = !hex && digits.size() > 1 && digits.front() == '0';
  if (error == std::errc() && end == digits.data() + digits.size() && !ambiguous && value <= max) return value;
  throw wrong_value(argument, "a number from 0 to " + std::to_string(max) + ", decimal or with 0x");
}

unsigned int word(const std::string& argument, const std::string& text, std::span<const Word> words) {
  const Word* const found = find_word(words, text);
  if (found == nullptr) throw wrong_value(argument, join(names_of(words)) + suggestion(text, names_of(words)));
  return found->value;
}

// The connect command separates words at white space, and takes a word that begins with a dash as an option unless a
// digit follows.
std::string one_word(const std::string& argument, const std::string& text) {
  const bool option = text.starts_with('-') && (text.size() == 1 || text[1] < '0' || text[1] > '9');
  const bool plain = text.find_first_of(kWhiteSpace) == std::string::npos && !first_non_text(text);
  if (plain && !option && !text.empty()) return text;
  throw wrong_value(argument, "one word of text, without blanks and without a dash in front");
}

SdkDebugDialog::JtagOption chain_device(const std::string& argument, const std::string& text) {
  const std::vector<std::string> fields = split_at(text, ',');
  if (fields.size() != 4) {
    throw wrong_value(argument, "a chain device as NR,PART,IRLENGTH,IDCODE, such as 1,prom32,16,0xa5059093");
  }
  SdkDebugDialog::JtagOption device;
  device.devicenr = static_cast<std::int8_t>(number(argument, fields[0], kMaxByte));
  device.partname = one_word(argument, fields[1]);
  device.irlength = static_cast<std::int8_t>(number(argument, fields[2], kMaxByte));
  device.idcode = number(argument, fields[3]);
  return device;
}

}  // namespace qvtcfg
