#include "findings/repair.h"

#include <algorithm>
#include <utility>

#include "findings/Report.h"
#include "findings/suggest.h"
#include "options/groups.h"
#include "settings/words.h"

namespace SdkDebugDialog {
namespace {

using Takes = Option::Takes;

// What others separate words with; the last three are spaces that are no blanks: U+00A0, U+202F and U+3000.
constexpr std::string_view kSeparators[] = {"=", ":", ",", ";", "\xC2\xA0", "\xE2\x80\xAF", "\xE3\x80\x80"};
// What word processors make of a dash: U+2010 to U+2015, and the minus sign.
constexpr std::string_view kOtherDashes[] = {"\xE2\x80\x90", "\xE2\x80\x91", "\xE2\x80\x92", "\xE2\x80\x93",
                                             "\xE2\x80\x94", "\xE2\x80\x95", "\xE2\x88\x92"};
// Plain quotes, and what word processors make of them.
constexpr std::string_view kQuotes[] = {"\"", "'", "`", "\xE2\x80\x9C", "\xE2\x80\x9D", "\xE2\x80\x98", "\xE2\x80\x99"};

bool is_number_kind(Kind kind) {
  return kind == Kind::number || kind == Kind::signedNumber || kind == Kind::hexadecimal || kind == Kind::address;
}

bool is_plain_number(std::string_view text) {
  const bool isHex = text.starts_with("0x") || text.starts_with("0X");
  const std::string_view digits = text.substr(isHex ? 2 : 0);
  const std::string_view allowed = isHex ? "0123456789abcdefABCDEF" : "0123456789";
  return !digits.empty() && digits.find_first_not_of(allowed) == std::string_view::npos;
}

Piece part(const Piece& word, std::size_t from, std::size_t size = std::string_view::npos) {
  const std::string_view text = word.text.substr(from, size);
  return {text, word.begin + from, word.begin + from + text.size()};
}

Fix safe_fix(std::string title, std::size_t begin, std::size_t end, std::string text) {
  return fix(std::move(title), true, {begin, end}, std::move(text));
}

std::string did_you_mean(std::string_view name) { return "did you mean " + quoted(name) + "?"; }

// --- Quotes and separators ---

std::optional<Repair> without_quotes(const Refusal& refusal, const Piece& word) {
  std::size_t front = 0;
  std::size_t behind = 0;
  for (const std::string_view quote : kQuotes) {
    if (word.text.starts_with(quote)) front = quote.size();
    if (word.text.ends_with(quote)) behind = quote.size();
  }
  if (front + behind == 0 || front + behind >= word.text.size()) return std::nullopt;
  const Piece inside = part(word, front, word.text.size() - front - behind);
  if (!is_one_of(inside.text, refusal.names)) return std::nullopt;
  Fix fix{"remove the quotes", true, {}};
  if (front != 0) fix.replacements.push_back({word.begin, inside.begin, ""});
  if (behind != 0) fix.replacements.push_back({inside.end, word.end, ""});
  return Repair{"there are no quotes in a command", std::move(fix), {inside}};
}

// The first separators in a row of the text; empty, at its end, if there are none.
std::string_view first_separators(std::string_view text) {
  const auto size_at = [&](std::size_t at) {
    const auto* const found = std::ranges::find_if(
        kSeparators, [&](std::string_view separator) { return text.substr(at).starts_with(separator); });
    return found != std::end(kSeparators) ? found->size() : 0;
  };
  std::size_t begin = 0;
  while (begin < text.size() && size_at(begin) == 0) ++begin;
  std::size_t end = begin;
  while (end < text.size() && size_at(end) != 0) end += size_at(end);
  return text.substr(begin, end - begin);
}

// "type=", "=type", "type=zarvek_tcf" and "=".
std::optional<Repair> without_separator(const Refusal& refusal, const Piece& word) {
  const std::string_view found = first_separators(word.text);
  if (found.empty()) return std::nullopt;
  if (found == word.text) {
    if (refusal.slot != Slot::option && refusal.slot != Slot::keyword) return std::nullopt;
    return Repair{not_a_blank(found), safe_fix("remove it", word.begin, word.end, ""), {}};
  }
  const auto begin = static_cast<std::size_t>(found.data() - word.text.data());
  const Piece separator = part(word, begin, found.size());
  const Piece front = part(word, 0, begin);
  const Piece rest = part(word, begin + found.size());
  const Piece& name = front.text.empty() ? rest : front;
  if (!is_one_of(name.text, refusal.names) && !nearest(name.text, refusal.names).isOneEdit) return std::nullopt;
  const bool isBetween = !front.text.empty() && !rest.text.empty();
  Repair repair;
  repair.remedy = not_a_blank(separator.text);
  repair.fix =
      safe_fix(isBetween ? "write a blank instead" : "remove it", separator.begin, separator.end, isBetween ? " " : "");
  if (!front.text.empty()) repair.words.push_back(front);
  if (!rest.text.empty()) repair.words.push_back(rest);
  return repair;
}

// --- A missing blank ---

bool row_takes(const Keyword& row, std::string_view word) {
  return is_one_of(word, value_names(row)) || (is_number_kind(row.kind) && is_plain_number(word));
}

// Whether the rest of a word is what can follow a name in its front.
bool can_follow(const Refusal& refusal, std::string_view name, std::string_view rest) {
  const LetterCase& letterCase = *refusal.letterCase;
  switch (refusal.slot) {
    case Slot::head: {
      const Head* const head = find_name(heads(), name, letterCase);
      return head != nullptr && is_one_of(rest, target_names(refusal.source, head));
    }
    case Slot::target: {
      const bool isPlatform = refusal.head != nullptr && refusal.head->virtualPlatform;
      const Target* const target = find_target(name, isPlatform, letterCase);
      if (target == nullptr) return false;
      const Names next = target->options != nullptr ? option_names(*target->options) : connection_names(*target);
      return is_one_of(rest, next);
    }
    case Slot::connection: {
      const Connection* const connection = find_name(refusal.target->connections, name, letterCase);
      return connection != nullptr && is_one_of(rest, option_names(connection->options));
    }
    case Slot::option: {
      const Option* const option = find_option(name, *refusal.run, letterCase);
      if (option == nullptr) return false;
      if (option->takes == Takes::pairs) return is_one_of(rest, keyword_names(option->group));
      return option->takes != Takes::nothing && row_takes(*value_row(*option), rest);
    }
    case Slot::keyword: {
      const Keyword* const row = find_name(refusal.option->group.keywords, name, letterCase);
      return row != nullptr && row_takes(*row, rest);
    }
    case Slot::value:
      if (is_one_of(rest, option_names(*refusal.run))) return true;
      return refusal.option->takes == Takes::pairs && is_one_of(rest, keyword_names(refusal.option->group));
  }
  return false;
}

// "-cabletype", "cpunr1", "odm-cable".
std::optional<Repair> with_blank(const Refusal& refusal, const Piece& word) {
  std::string_view longest;
  for (const std::string_view name : refusal.names) {
    const std::string_view front = word.text.substr(0, name.size());
    if (name.size() <= longest.size() || name.size() >= word.text.size() || !same_word(front, name)) continue;
    if (can_follow(refusal, front, word.text.substr(name.size()))) longest = front;
  }
  if (longest.empty()) return std::nullopt;
  const Piece front = part(word, 0, longest.size());
  return Repair{"a blank is missing behind " + quoted(longest),
                safe_fix("write a blank behind " + quoted(longest), front.end, front.end, " "),
                {front, part(word, longest.size())}};
}

// --- Dashes ---

// How many bytes of dashes the word begins with, and how many dashes that is.
struct Dashes {
  std::size_t bytes = 0;
  std::size_t plain = 0;
  std::size_t others = 0;
};
Dashes dashes_of(std::string_view word) {
  Dashes dashes;
  for (;;) {
    const std::string_view rest = word.substr(dashes.bytes);
    const auto* const other =
        std::ranges::find_if(kOtherDashes, [&](std::string_view dash) { return rest.starts_with(dash); });
    if (other != std::end(kOtherDashes)) {
      ++dashes.others;
      dashes.bytes += other->size();
    } else if (rest.starts_with('-')) {
      ++dashes.plain;
      ++dashes.bytes;
    } else {
      return dashes;
    }
  }
}

}  // namespace

std::optional<Repair> with_one_dash(const Refusal& refusal, const Piece& word) {
  if (refusal.slot != Slot::option && refusal.slot != Slot::keyword) return std::nullopt;
  const Dashes dashes = dashes_of(word.text);
  const bool isOneEdit =
      dashes.others == 0 ? dashes.plain == 0 || dashes.plain == 2 : dashes.others == 1 && dashes.plain == 0;
  if (!isOneEdit) return std::nullopt;
  const Option* const option =
      find_option(std::string("-").append(word.text.substr(dashes.bytes)), *refusal.run, *refusal.letterCase);
  if (option == nullptr) return std::nullopt;
  const std::string_view name = option->name.text();
  const char* const title = dashes.others != 0  ? "write a plain dash"
                            : dashes.plain == 2 ? "remove a dash"
                                                : "write a dash";
  return Repair{
      did_you_mean(name), safe_fix(title, word.begin, word.begin + dashes.bytes, "-"), {{name, word.begin, word.end}}};
}

namespace {

// --- Letters ---

std::optional<Repair> with_other_letter(const Refusal& refusal, const Piece& word) {
  const Nearest found = nearest(word.text, refusal.names);
  if (!found.isOneEdit) return std::nullopt;
  const std::string_view name = found.names.front();
  return Repair{did_you_mean(name),
                safe_fix("write " + quoted(name), word.begin, word.end, std::string(name)),
                {{name, word.begin, word.end}}};
}

}  // namespace

bool is_option_word(std::string_view word) {
  return word.size() > 1 && word[0] == '-' && (word[1] < '0' || word[1] > '9');
}

bool is_separator(std::string_view word) { return first_separators(word) == word; }

std::string not_a_blank(std::string_view separator) {
  const bool isSpace = static_cast<unsigned char>(separator.front()) >= 0x80;
  return "words are separated by blanks, not by " + (isSpace ? "a no-break or wide space" : quoted(separator));
}

Names names_at(const Refusal& refusal) {
  switch (refusal.slot) {
    case Slot::head:
      return head_names(refusal.source);
    case Slot::target:
      return target_names(refusal.source, refusal.head);
    case Slot::connection:
      return connection_names(*refusal.target);
    case Slot::option:
      return option_names(*refusal.run);
    case Slot::keyword:
      return keyword_names(refusal.option->group);
    case Slot::value:
      return value_names(*refusal.row);
  }
  return {};
}

std::optional<Repair> without_dash(const Names& names, const Piece& word) {
  if (!word.text.starts_with('-') || !is_one_of(word.text.substr(1), names)) return std::nullopt;
  return Repair{quoted(word.text.substr(1)) + " is written without a dash",
                safe_fix("remove the dash", word.begin, word.begin + 1, ""),
                {part(word, 1)}};
}

std::optional<Repair> repair(const Refusal& refusal, const Piece& word) {
  using Way = std::optional<Repair> (*)(const Refusal&, const Piece&);
  constexpr Way kWays[] = {without_quotes, without_separator, with_one_dash, with_blank, with_other_letter};
  // A carriage return in a word is another matter once the word ends there.
  if (std::ranges::any_of(word.text, is_space)) return std::nullopt;
  for (const Way way : kWays) {
    if (std::optional<Repair> found = way(refusal, word)) return found;
  }
  return std::nullopt;
}

}  // namespace SdkDebugDialog
