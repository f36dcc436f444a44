#include "findings/guess.h"

#include <algorithm>
#include <utility>

#include "findings/checks.h"
#include "options/groups.h"
#include "settings/number_text.h"
#include "settings/words.h"

namespace SdkDebugDialog {
namespace {

// Such as the word of a text, and what stands around it.
struct Case {
  const Refusal& at;
  std::string_view word;
  Place place;
  const Surroundings& around;
  bool isOption = false;  // the word begins like an option
};

std::string_view without_dash(std::string_view word) { return word.substr(word.starts_with('-') ? 1 : 0); }

// The first of the words that the writer writes for the processor's own JTAG pins.
std::string_view own_pins_keyword() { return split(kOwnPinsWritten.substr(1), ' ').front(); }

// --- Explanations, in the order in which they are tried ---

std::optional<Guess> only_in_commands(const Case& c) {
  if (c.at.slot != Slot::target || c.at.target == nullptr) return std::nullopt;
  return Guess{.code = Code::notInFile,
               .message = quoted(c.word) + " cannot stand in an option file",
               .remedy = "accepted here: " + listed(c.at.names, "and"),
               .goesOn = true};
}

std::optional<Guess> comment(const Case& c) {
  const bool isFirst = c.at.slot == Slot::head;
  if (!(isFirst ? is_comment(c.word) : c.word.starts_with('#') || c.word.starts_with("//"))) return std::nullopt;
  return Guess{.code = Code::comment,
               .message = "there are no comments in a command",
               .remedy = isFirst ? "remove the line" : "remove the comment"};
}

std::optional<Guess> continued_line(const Case& c) {
  if (c.word != "\\") return std::nullopt;
  return Guess{.remedy = "a command cannot go on in another line: write it in one"};
}

std::optional<Guess> own_pins(const Case& c) {
  if (c.at.slot != Slot::keyword || !same_word(c.word, own_pins_keyword())) return std::nullopt;
  Guess guess{.code = Code::writtenNotRead,
              .message = "the writer writes " + quoted(kOwnPinsWritten.substr(1)) + ", which the reader refuses",
              .remedy = "write 'jtagport cpu'"};
  if (!c.around.next.empty()) {
    guess.fixes.push_back(fix(guess.remedy, false, {c.place.begin, c.around.nextPlace.end}, "jtagport cpu"));
  }
  return guess;
}

// "-ipcporthost12340": a value joined to its option, as the writer writes it.
std::optional<Guess> joined_value(const Case& c) {
  if (c.at.slot != Slot::option || !c.isOption) return std::nullopt;
  const auto is_joined = [&](const Option& option) {
    const std::string_view name = option.name.text();
    const Keyword* const row = value_row(option);
    return (option.runs & c.at.run->bit) != 0 && row != nullptr && *row->notReadBack != '\0' &&
           c.word.size() > name.size() && same_word(c.word.substr(0, name.size()), name);
  };
  const auto option = std::ranges::find_if(options(), is_joined);
  if (option == options().end()) return std::nullopt;
  const std::string name(option->name.text());
  return Guess{.code = Code::writtenNotRead,
               .message = "the writer joins the value to " + quoted(name) + ", which the reader refuses",
               .remedy = "write " + name + " " + value_in_words(*value_row(*option))};
}

// "12 MHz"
std::optional<Guess> unit_apart(const Case& c) {
  const Keyword* const row = c.around.row;
  if (row == nullptr || *row->unit == '\0') return std::nullopt;
  constexpr std::size_t kLongest = 32;
  if (c.around.value.size() + c.word.size() > kLongest) return std::nullopt;
  const Scale scale = row->kind == Kind::address ? Scale::binary : Scale::decimal;
  const std::optional<std::int64_t> number = parse_number(std::string(c.around.value).append(c.word), scale, row->unit);
  if (!number) return std::nullopt;
  const std::string text = std::to_string(*number);
  return Guess{.remedy = "numbers have no unit: write " + text,
               .fixes = {fix("write " + text, false, {c.around.valuePlace.begin, c.place.end}, text)}};
}

// Behind an option that the reader does not take as one.
std::optional<Guess> skipped_option(const Case& c) {
  if (c.at.slot != Slot::option || c.isOption || c.around.skipped.empty()) return std::nullopt;
  return Guess{.remedy = quoted(c.around.skipped) +
                         " in front of it is not read as an option: the value is missing "
                         "before it"};
}

std::optional<Guess> second_command(const Case& c) {
  const bool isHead = is_one_of(c.word, head_names(Source::command));
  const bool isTarget = c.at.slot == Slot::keyword && is_one_of(c.word, target_names(Source::command, nullptr));
  if (!c.around.isBehindHead || (!isHead && !isTarget)) return std::nullopt;
  return Guess{.remedy = "a second command begins here: keep one"};
}

std::optional<Guess> keyword_of_another_option(const Case& c) {
  if (c.at.slot != Slot::keyword && c.at.slot != Slot::option) return std::nullopt;
  const Names owners = options_with_keyword(without_dash(c.word), *c.at.run);
  if (owners.empty()) return std::nullopt;
  const std::string it = c.isOption ? quoted(without_dash(c.word)) + " is a keyword of " : "it belongs to ";
  Guess guess{.remedy = it + listed(owners), .goesOn = c.at.slot == Slot::keyword};
  if (c.at.slot == Slot::keyword) guess.code = Code::misplacedKeyword;
  return guess;
}

std::optional<Guess> option_of_other_places(const Case& c) {
  if (c.at.slot != Slot::option || !is_known_elsewhere(c.at, c.word)) return std::nullopt;
  Guess guess{.code = Code::misplacedOption, .message = quoted(c.word) + " cannot stand here"};
  const bool isBehindSim =
      c.at.run == &kHdlSimOptions && find_option(c.word, kGeneralOptions, *c.at.letterCase) != nullptr;
  guess.remedy = isBehindSim ? "write it before '-sim', which takes all options that follow"
                             : "it is an option of " + places_of_option(c.word, *c.at.run);
  return guess;
}

std::optional<Guess> resembling(const Case& c) {
  const Names names = nearest(c.word, c.at.names).names;
  if (names.empty()) return std::nullopt;
  const std::string name(names.front());
  return Guess{.remedy = "did you mean " + listed(names) + "?",
               .fixes = {fix("write " + quoted(name), false, c.place, name)},
               .goesOn = c.at.slot == Slot::keyword};
}

Guess accepted(const Case& c) {
  constexpr std::size_t kMostNames = 8;
  const Names first(c.at.names.begin(),
                    c.at.names.begin() + static_cast<std::ptrdiff_t>(std::min(kMostNames, c.at.names.size())));
  Guess guess{.remedy = "accepted here: " + listed(first, first.size() == c.at.names.size() ? "and" : "")};
  if (first.size() < c.at.names.size()) {
    guess.remedy.append(" and ").append(std::to_string(c.at.names.size() - first.size())).append(" others");
  }
  return guess;
}

}  // namespace

bool is_known_elsewhere(const Refusal& at, std::string_view word) {
  if (at.slot == Slot::keyword) return !options_with_keyword(word, *at.run).empty();
  return at.slot == Slot::option && word.starts_with('-') && !places_of_option(word, *at.run).empty();
}

Guess guess(const Refusal& refusal, const Piece& word, const Surroundings& around) {
  using Explanation = std::optional<Guess> (*)(const Case&);
  // A word that is known somewhere is rather misplaced than misspelt.
  constexpr Explanation kExplanations[] = {
      only_in_commands,
      comment,
      continued_line,
      own_pins,
      joined_value,
      unit_apart,
      skipped_option,
      second_command,
      keyword_of_another_option,
      option_of_other_places,
      resembling,
  };
  const Case c = {refusal, word.text, {word.begin, word.end}, around, is_option_word(word.text)};
  for (const Explanation explanation : kExplanations) {
    if (std::optional<Guess> found = explanation(c)) return *std::move(found);
  }
  return accepted(c);
}

}  // namespace SdkDebugDialog
