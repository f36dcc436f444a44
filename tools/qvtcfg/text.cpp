#include "text.h"

#include <algorithm>
#include <cstdio>

namespace qvtcfg {
namespace {

unsigned char byte_at(std::string_view text, std::size_t at) {
  return at < text.size() ? static_cast<unsigned char>(text[at]) : 0;
}

bool is_continuation(unsigned char byte) { return (byte & 0xC0U) == 0x80; }

// UTF-8 lead bytes from first to last: the length of the sequence and the range of its second byte. C1 control
// characters, overlong forms and surrogates are excluded.
struct Lead {
  unsigned char first, last, length, low, high;
};
constexpr Lead kLeads[] = {
    {0xC2, 0xC2, 2, 0xA0, 0xBF}, {0xC3, 0xDF, 2, 0x80, 0xBF}, {0xE0, 0xE0, 3, 0xA0, 0xBF},
    {0xE1, 0xEC, 3, 0x80, 0xBF}, {0xED, 0xED, 3, 0x80, 0x9F}, {0xEE, 0xEF, 3, 0x80, 0xBF},
    {0xF0, 0xF0, 4, 0x90, 0xBF}, {0xF1, 0xF3, 4, 0x80, 0xBF}, {0xF4, 0xF4, 4, 0x80, 0x8F},
};

struct Range {
  std::uint32_t first, last;
};

constexpr Range kUnseen[] = {{0xAD, 0xAD},     {0x061C, 0x061C}, {0x180E, 0x180E}, {0x200B, 0x200F},
                             {0x2028, 0x202E}, {0x2060, 0x206F}, {0xFEFF, 0xFEFF}, {0xFFF9, 0xFFFB}};

}  // namespace

std::size_t character_length(std::string_view text) {
  const unsigned char lead = byte_at(text, 0);
  if (lead < 0x80) return lead >= 0x20 && lead != 0x7F ? 1 : 0;
  const auto* const row =
      std::ranges::find_if(kLeads, [&](const Lead& l) { return l.first <= lead && lead <= l.last; });
  if (row == std::end(kLeads)) return 0;
  const unsigned char second = byte_at(text, 1);
  if (second < row->low || second > row->high) return 0;
  for (std::size_t i = 2; i < row->length; ++i) {
    if (!is_continuation(byte_at(text, i))) return 0;
  }
  return row->length;
}

std::uint32_t code_point(std::string_view character) {
  constexpr unsigned char kLeadBits[] = {0, 0x7F, 0x1F, 0x0F, 0x07};
  std::uint32_t value = static_cast<unsigned char>(character[0]) & kLeadBits[character.size()];
  for (const char c : character.substr(1)) value = value << 6U | (static_cast<unsigned char>(c) & 0x3FU);
  return value;
}

bool is_unseen(std::string_view character) {
  const std::uint32_t value = code_point(character);
  return std::ranges::any_of(kUnseen, [&](const Range& r) { return r.first <= value && value <= r.last; });
}

std::string visible(std::string_view text) {
  std::string out;
  while (!text.empty()) {
    std::size_t length = character_length(text);
    if (length > 1 && is_unseen(text.substr(0, length))) {
      char spelled[7];
      std::snprintf(spelled, sizeof spelled, "\\u%04x", code_point(text.substr(0, length)) & 0xFFFFU);
      out += spelled;
    } else if (length > 0) {
      out += text.substr(0, length);
    } else {
      char spelled[5];
      std::snprintf(spelled, sizeof spelled, "\\x%02x", byte_at(text, 0));
      out += spelled;
      length = 1;
    }
    text.remove_prefix(length);
  }
  return out;
}

std::string one_line(std::string_view text, std::size_t limit) {
  std::string out;
  for (std::size_t at = text.find_first_not_of(kWhiteSpace); at < text.size() && out.size() <= limit;) {
    const std::size_t end = std::min(text.find_first_of(kWhiteSpace, at), text.size());
    // Only as much as the limit needs; the margin keeps a multi-byte character at the limit whole.
    if (!out.empty()) out += ' ';
    out += visible(text.substr(at, std::min(end - at, limit + 8)));
    at = text.find_first_not_of(kWhiteSpace, end);
  }
  if (out.size() <= limit) return out;
  std::size_t cut = limit;
  while (cut > 0 && is_continuation(byte_at(out, cut))) --cut;
  return out.substr(0, cut) + "...";
}

std::optional<std::size_t> first_non_text(std::string_view text) {
  for (std::size_t at = 0; at < text.size();) {
    const bool white = kWhiteSpace.find(text[at]) != std::string_view::npos;
    const std::size_t length = white ? 1 : character_length(text.substr(at));
    if (length == 0) return at;
    at += length;
  }
  return std::nullopt;
}

std::vector<std::string> split_words(std::string_view text) {
  std::vector<std::string> words;
  for (std::size_t at = text.find_first_not_of(" \t"); at < text.size();) {
    const std::size_t end = std::min(text.find_first_of(" \t", at), text.size());
    words.emplace_back(text.substr(at, end - at));
    at = text.find_first_not_of(" \t", end);
  }
  return words;
}

std::string join(const std::vector<std::string>& items, std::string_view separator) {
  std::string out;
  for (const std::string& item : items) {
    if (!out.empty()) out += separator;
    out += item;
  }
  return out;
}

std::string hex_text(std::uint32_t value) {
  char text[11];
  std::snprintf(text, sizeof text, "0x%08x", value);
  return text;
}

}  // namespace qvtcfg
