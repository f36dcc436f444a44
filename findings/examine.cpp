#include "findings/examine.h"

#include <algorithm>
#include <string>
#include <utility>

#include "SdkDebugDialog/Engine.h"
#include "SdkDebugDialog/EngineImp.h"
#include "findings/effects.h"
#include "findings/guess.h"
#include "findings/repair.h"
#include "model/base_address.h"
#include "model/processor_kind.h"
#include "options/groups.h"
#include "options/number.h"
#include "options/pairs.h"
#include "options/target.h"
#include "settings/number_text.h"
#include "settings/walk.h"
#include "settings/words.h"

namespace SdkDebugDialog {

const Said* Examined::said(const Group& group, std::string_view name) const {
  const auto found = std::ranges::find_if(
      lasts, [&](const Said& said) { return &said.option->group == &group && said.row->name.text() == name; });
  return found != lasts.end() ? &*found : nullptr;
}

namespace {

using Takes = Option::Takes;

// Then no more is looked for what was meant, since no more is listed.
constexpr std::size_t kMostErrors = 10 * Report::kMostOfOneKind;

// In the order of Slot.
constexpr Code kUnknown[] = {Code::unknownHead,   Code::unknownTarget,  Code::unknownConnection,
                             Code::unknownOption, Code::unknownKeyword, Code::invalidValue};

Place place_of(const Piece& word) { return {word.begin, word.end}; }
Place place_of(const WalkedWord& word) { return {word.begin, word.end}; }

std::string name_of(const Keyword& row) { return quoted(row.name.text()); }

// Every word of a text, one after the other. A word that is refused is reported. If it is certain enough what was
// meant, the words behind it are read as the reader reads the text with the fix; else what follows up to the next
// option is passed over, so that one mistake is one error.
class Examiner : public Walker {
 public:
  Examiner(const Subject& subject, Report& report)
      : Walker(subject.text, subject.kind),
        m_subject(subject),
        m_report(report),
        m_processor(subject.processor.identity()) {
    m_imp.hwManager = subject.processor.hardware();
    m_imp.currentProcessor = &m_processor;
  }

  Examined examine() {
    go();
    check_end_of_cable();
    std::ranges::sort(m_said.lasts, {}, [](const Said& said) { return said.word.begin; });
    return std::move(m_said);
  }

 private:
  // --- What the walk tells ---

  bool refused(Slot slot) override;
  bool lone_dash(bool isValueDue) override;
  void missing(Slot slot) override;
  void value_ahead() override;
  void found(const WalkedWord& word, std::string_view spelled) override;

  // --- Words that are refused ---

  Refusal refusal(Slot slot, const Keyword* row = nullptr) const;
  std::string no_such(const Refusal& refusal, std::string_view word) const;
  Code code_of(const Refusal& refusal, std::string_view word) const;
  void apply(Finding& finding, Repair repair, std::size_t words = 1);
  bool stands_behind_blank(const Piece& word) const;
  bool has_needless_dash(Slot slot);
  bool begins_option(const Piece& word);
  bool without_mark();
  bool written_head();
  bool with_head();
  void report_unknown(const Refusal& refusal);
  Surroundings surroundings();
  Finding& report_dash(const Piece& dash);

  // --- Values ---

  bool accepts(const Keyword& row, std::string_view value);
  bool separator_in_place_of_value(const Keyword& row);
  void option_joined_to_number(const Keyword& row);
  bool refuses_second();
  Code code_of_second() const;
  void report_value(const Refusal& refusal);
  void say(const WalkedWord& word, const Keyword& row, const Place& value, std::string_view text);

  void target_known(const WalkedWord& word);
  void connection_known(const WalkedWord& word);
  void begin_option(const WalkedWord& word);
  void not_admitted(const WalkedWord& word, std::uint32_t connection);
  void missing_value();
  void check_end_of_cable();
  void report_frequency(const Said& frequency);

  const Subject& m_subject;
  Report& m_report;

  // What values are tried out on.
  Engine m_engine;
  EngineImp& m_imp = *m_engine.imp;
  ProcessorInfoImp m_processor;
  JtagOption m_device;

  bool m_isLost = false;      // nothing certain can be said about the words up to the next option
  bool m_isAccepted = false;  // the value ahead
  Place m_lastSeen;           // the last word, also if it was passed over
  Place m_lastWord;           // the last one that is taken to stand in the text
  Role m_lastRole = Role::unknown;
  const Keyword* m_lastRow = nullptr;  // of the last value
  std::string_view m_lastValue;
  std::string_view m_skipped;  // an option that the reader took as the value of the last one, or skipped
  std::size_t m_reported = std::string_view::npos;  // the beginning of a word that is not to be reported again
  Place m_keyword;                                  // the last keyword, or option with a value of its own
  Place m_option;
  bool m_endsWithCable = false;     // no option has followed the last "-cable" so far
  bool m_hasFrequency = false;      // in the last "-cable"
  std::size_t m_errorsBefore = 0;   // before the last option
  bool m_isCableUncertain = false;  // a mistake in a "-cable" was not repaired
  Examined m_said;
};

// --- Words that are refused ---

Refusal Examiner::refusal(Slot slot, const Keyword* row) const {
  Refusal at;
  at.slot = slot;
  at.source = source();
  at.head = head();
  at.target = here().target;
  at.run = run();
  at.option = here().option;
  at.row = row;
  at.letterCase = &letter_case();
  at.names = names_at(at);
  return at;
}

std::string Examiner::no_such(const Refusal& at, std::string_view word) const {
  switch (at.slot) {
    case Slot::head:
      return "a command cannot begin with " + quoted(word);
    case Slot::target:
      return "no target " + quoted(word);
    case Slot::connection:
      return "the target " + quoted(at.target->name.text()) + " has no connection " + quoted(word);
    case Slot::option:
      return is_option_word(word) ? "no option " + quoted(word) : quoted(word) + " stands where an option is expected";
    case Slot::keyword:
      return quoted(at.option->name.text()) + " has no keyword " + quoted(word);
    case Slot::value:
      break;
  }
  return name_of(*at.row) + " cannot be " + quoted(word);
}

Code Examiner::code_of(const Refusal& at, std::string_view word) const {
  if (at.slot == Slot::option && !is_option_word(word)) return Code::wordWithoutOption;
  return kUnknown[static_cast<std::size_t>(at.slot)];
}

// Goes on with what was meant.
void Examiner::apply(Finding& finding, Repair repair, std::size_t words) {
  finding.remedy = std::move(repair.remedy);
  finding.fixes.push_back(std::move(repair.fix));
  replace_ahead(words, repair.words);
}

bool Examiner::refused(Slot slot) {
  const Piece word = *ahead();
  const bool isOption = is_option_word(word.text);
  m_lastSeen = place_of(word);
  if (slot == Slot::option && isOption) m_isLost = false;
  const bool isReported = word.begin == m_reported;
  if (isReported || m_report.errors() > kMostErrors) m_isLost = true;
  if (m_isLost) return !isReported && slot == Slot::option && begins_option(word);
  if (isOption && slot != Slot::option) return has_needless_dash(slot);
  if (slot == Slot::keyword && ahead(1) != nullptr && ahead(1)->text == "-") {
    // The reader takes both words before it looks at the first one.
    m_isLost = true;
    report_dash(*ahead(1));
    return false;
  }
  if (slot == Slot::head && (without_mark() || written_head() || with_head())) return true;
  const Refusal at = refusal(slot);
  std::optional<Repair> found;
  // Without a separator, an option joined to the number in front of it would be seen.
  const bool isBehindJoined =
      is_separator(word.text) && m_lastRole == Role::value && m_lastValue.find('-', 1) != std::string_view::npos;
  if (stands_behind_blank(word) && !isBehindJoined && !is_known_elsewhere(at, word.text)) found = repair(at, word);
  if (!found) {
    report_unknown(at);
    return false;
  }
  apply(m_report.add(code_of(at, word.text), place_of(word), no_such(at, word.text)), std::move(*found));
  return true;
}

// Other white space, such as a carriage return, may become the end of the line once the word has changed.
bool Examiner::stands_behind_blank(const Piece& word) const {
  if (word.begin == 0) return true;
  const char before = m_subject.text[word.begin - 1];
  return !is_space(before) || before == ' ' || before == '\t' || before == '\n';
}

// A dash before a word that is a name without it. Without such a name the word is an option, and what is due is
// missing.
bool Examiner::has_needless_dash(Slot slot) {
  // Behind a keyword without a value the name would become the value.
  if (slot == Slot::keyword && m_lastRole != Role::value && m_lastRole != Role::option) return false;
  const Piece word = *ahead();
  const Refusal at = refusal(slot, slot == Slot::value ? row() : nullptr);
  std::optional<Repair> found = without_dash(at.names, word);
  if (!found) return false;
  if (slot == Slot::value) {
    apply(m_report.add(Code::missingValue, m_keyword, name_of(*row()) + " has no value"), std::move(*found));
  } else if (slot == Slot::keyword) {
    apply(m_report.add(Code::unknownOption, place_of(word), "no option " + quoted(word.text)), std::move(*found));
  } else {
    apply(m_report.add(code_of(at, word.text), place_of(word), no_such(at, word.text)), std::move(*found));
  }
  return true;
}

// Behind words that nothing is known about, an option without its dash is noticed all the same.
bool Examiner::begins_option(const Piece& word) {
  const Refusal at = refusal(Slot::option);
  std::optional<Repair> found = with_one_dash(at, word);
  if (!found) return false;
  m_isLost = false;
  apply(m_report.add(code_of(at, word.text), place_of(word), no_such(at, word.text)), std::move(*found));
  return true;
}

bool Examiner::without_mark() {
  Piece word = *ahead();
  if (word.begin != m_subject.line.begin || !word.text.starts_with(kByteOrderMark)) return false;
  Finding& finding = m_report.add(Code::byteOrderMark, place_of(word), "the text begins with a byte-order mark");
  Place mark = {word.begin, word.begin};
  while (m_subject.text.substr(mark.end).starts_with(kByteOrderMark)) mark.end += kByteOrderMark.size();
  const std::string_view behind = word.text.substr(mark.end - mark.begin);
  const auto spaces = static_cast<std::size_t>(std::ranges::find_if_not(behind, is_space) - behind.begin());
  word = {behind.substr(spaces), mark.end + spaces, word.end};
  std::vector<Piece> rest;
  if (!word.text.empty()) rest.push_back(word);
  // Without it, a line of blanks can become an empty one, which is passed over: another line is then read.
  const std::string_view line = m_subject.in({mark.end, m_subject.line.end});
  const bool isSafe = std::ranges::find_if_not(line, is_space) != line.end();
  m_isLost = !isSafe;
  apply(finding, {"store it without one", fix("remove the byte-order mark", isSafe, mark, ""), std::move(rest)});
  return true;
}

// "qconnect" means the same as "connect", which a file can have.
bool Examiner::written_head() {
  const Head* const known = head();
  if (known == nullptr) return false;
  const auto isWritten = [&](const Head& h) { return h.written && h.virtualPlatform == known->virtualPlatform; };
  const std::string_view name = std::ranges::find_if(heads(), isWritten)->name.text();
  const Piece word = *ahead();
  Finding& finding =
      m_report.add(Code::notInFile, place_of(word), quoted(word.text) + " cannot stand in an option file");
  apply(finding, {"it means the same as " + quoted(name),
                  fix("write " + quoted(name), true, place_of(word), std::string(name)),
                  {{name, word.begin, word.end}}});
  return true;
}

// A target alone: the head is missing.
bool Examiner::with_head() {
  const Piece word = *ahead();
  const Head& connect = heads().front();
  if (!is_one_of(word.text, target_names(source(), &connect))) return false;
  const std::string name(connect.name.text());
  Finding& finding = m_report.add(Code::incompleteCommand, place_of(word),
                                  "the head is missing before the target " + quoted(word.text));
  const Place before = {word.begin, word.begin};
  m_reported = word.begin;
  apply(finding, {"write " + quoted(name) + " before it",
                  fix("write " + quoted(name), false, before, name + " "),
                  {{connect.name.text(), word.begin, word.begin}, word}});
  return true;
}

// A dash with a blank behind it, in front of an option's name; or any other dash that stands alone.
bool Examiner::lone_dash(bool isValueDue) {
  const Piece dash = *ahead();
  const Piece* const next = ahead(1);
  const Option* option = nullptr;
  if (next != nullptr && run() != nullptr && !isValueDue) {
    option = find_option(std::string("-").append(next->text), *run(), letter_case());
  }
  if (option == nullptr) {
    if (!m_isLost) report_dash(dash);
    m_isLost = true;
    return false;
  }
  const std::string_view name = option->name.text();
  const Fix joined = fix("remove the blank behind the dash", true, {dash.end, next->begin}, "");
  apply(report_dash(dash), {"did you mean " + quoted(name) + "?", joined, {{name, dash.begin, next->end}}}, 2);
  return true;
}

Finding& Examiner::report_dash(const Piece& dash) {
  return m_report.add(Code::loneDash, place_of(dash), "a dash stands alone",
                      "remove it, or write an option or a value");
}

// Reports the next word with what can be said about it.
void Examiner::report_unknown(const Refusal& at) {
  const Piece word = *ahead();
  Guess said = guess(at, word, surroundings());
  if (said.message.empty()) said.message = no_such(at, word.text);
  Finding& finding =
      m_report.add(code_of(at, word.text), place_of(word), std::move(said.message), std::move(said.remedy));
  if (said.code) finding.kind = &kind_of(*said.code);
  finding.fixes = std::move(said.fixes);
  m_isCableUncertain = m_isCableUncertain || (at.option != nullptr && &at.option->group == &kCable);
  m_isLost = !said.goesOn;
}

Surroundings Examiner::surroundings() {
  Surroundings around;
  if (const Piece* const next = ahead(1)) {
    around.next = next->text;
    around.nextPlace = place_of(*next);
  }
  if (m_lastRole == Role::value && m_isAccepted) {
    around.row = m_lastRow;
    around.valuePlace = m_lastWord;
    around.value = m_lastValue;
  }
  around.skipped = m_skipped;
  around.isBehindHead = m_subject.kind == TextKind::cableText || m_said.target != nullptr;
  return around;
}

void Examiner::missing(Slot slot) {
  if (m_isLost) return;
  if (slot == Slot::value) return missing_value();
  const std::string remedy = "write " + listed(refusal(slot).names);
  const char* const what = slot == Slot::head ? "a head" : slot == Slot::target ? "a target" : "a connection";
  if (const Piece* const next = ahead()) {
    m_report.add(Code::incompleteCommand, place_of(*next),
                 std::string(what).append(" is missing before ").append(quoted(next->text)), remedy);
    // Of a word that is no option anywhere, this is enough.
    if (find_option(next->text, kAnyOptions, letter_case()) == nullptr) m_reported = next->begin;
  } else if (m_lastWord != Place()) {
    if (m_lastWord.begin == m_reported) return;
    m_report.add(Code::incompleteCommand, m_lastWord,
                 std::string(what).append(" is missing behind ").append(quoted(m_subject.in(m_lastWord))), remedy);
  } else if (m_subject.kind == TextKind::optionFile) {
    m_report.add(Code::blankFirstLine, m_subject.line, "the first line has nothing in it but blanks",
                 "remove the line");
  } else {
    m_report.add(Code::incompleteCommand, m_subject.line, "the command is empty", remedy);
  }
}

void Examiner::missing_value() {
  const Option& option = *here().option;
  const Keyword& row = *Walker::row();
  const std::string instead = ahead() != nullptr ? "; " + quoted(ahead()->text) + " is an option" : "";
  if (option.takes == Takes::valueOrNone || option.takes == Takes::tokenOrNone) {
    m_report.add(Code::skippedOption, m_keyword,
                 name_of(row) + " has no value, and nothing is stored" +
                     (ahead() != nullptr ? "; the option " + quoted(ahead()->text) + " is skipped with it" : ""),
                 "write " + value_in_words(row));
    return;
  }
  m_isCableUncertain = m_isCableUncertain || &option.group == &kCable;
  Finding& finding = m_report.add(Code::missingValue, m_keyword, name_of(row) + " has no value" + instead,
                                  "write " + value_in_words(row));
  if (option.takes == Takes::value && row.kind == Kind::word && *row.notReadBack != '\0') {
    finding.kind = &kind_of(Code::writtenNotRead);
    finding.message = "the writer writes " + name_of(row) + " alone, which the reader refuses";
  }
}

// --- Values ---

bool Examiner::accepts(const Keyword& row, std::string_view value) {
  return read_value(row, {row.name.text(), value, letter_case()}, records_of(m_imp, &m_device));
}

// Whether the reader, once it has taken the next word as a value, refuses the one behind it: where a keyword or an
// option is due, it is another word.
bool Examiner::refuses_second() {
  const Piece* const second = ahead(1);
  if (second == nullptr || second->text == "-" || is_option_word(second->text)) return false;
  if (run()->bit == kSoftSimOptions.bit) return false;
  if (here().option->takes != Takes::pairs) return true;
  // It reads a pair before it looks at the keyword, and comes to a lone dash in the place of its value first.
  if (ahead(2) != nullptr && ahead(2)->text == "-") return false;
  return !is_one_of(second->text, keyword_names(here().option->group));
}

Code Examiner::code_of_second() const {
  return here().option->takes == Takes::pairs ? Code::unknownKeyword : Code::wordWithoutOption;
}

// "frequency = 12000000": the reader takes the separator as the value.
bool Examiner::separator_in_place_of_value(const Keyword& row) {
  const Piece separator = *ahead();
  if (!is_separator(separator.text) || !refuses_second()) return false;
  const Piece value = *ahead(1);
  Finding& finding = accepts(row, separator.text)
                         ? m_report.add(code_of_second(), place_of(value),
                                        quoted(separator.text) + " is taken as the value of " + name_of(row))
                         : m_report.add(Code::invalidValue, place_of(separator),
                                        name_of(row) + " cannot be " + quoted(separator.text));
  apply(finding, {not_a_blank(separator.text), fix("remove it", true, {separator.begin, value.begin}, ""), {}});
  return true;
}

// "2-cable type": the reader takes the number at the beginning.
void Examiner::option_joined_to_number(const Keyword& row) {
  const Piece word = *ahead();
  const std::size_t dash = word.text.find('-', 1);
  const bool isNumber = row.kind == Kind::number || row.kind == Kind::hexadecimal || row.kind == Kind::address;
  if (!isNumber || dash == std::string_view::npos || !refuses_second()) return;
  const Piece number = {word.text.substr(0, dash), word.begin, word.begin + dash};
  const Piece option = {word.text.substr(dash), number.end, word.end};
  const bool isPlain = number.text.find_first_not_of("0123456789") == std::string_view::npos;
  const Option* const known = find_option(option.text, *run(), letter_case());
  if (!isPlain || known == nullptr || known->takes != Takes::pairs) return;
  if (!is_one_of(ahead(1)->text, keyword_names(known->group)) || !accepts(row, number.text)) return;
  Finding& finding =
      m_report.add(code_of_second(), place_of(*ahead(1)),
                   "in front of it, " + quoted(option.text) + " is joined to the number " + quoted(number.text));
  apply(finding, {"a blank is missing before " + quoted(option.text),
                  fix("write a blank before " + quoted(option.text), true, {number.end, number.end}, " "),
                  {number, option}});
}

void Examiner::value_ahead() {
  const Keyword& row = *Walker::row();
  m_isAccepted = false;
  if (m_isLost) return;
  while (separator_in_place_of_value(row)) continue;
  option_joined_to_number(row);
  for (;;) {
    const Piece word = *ahead();
    if (accepts(row, word.text)) break;
    const Refusal at = refusal(Slot::value, &row);
    std::optional<Repair> found = at.names.empty() ? std::nullopt : repair(at, word);
    if (!found) return report_value(at);
    apply(m_report.add(Code::invalidValue, place_of(word), no_such(at, word.text)), std::move(*found));
  }
  m_isAccepted = true;
  const Piece& word = *ahead();
  if (is_option_word(word.text)) {
    m_report.add(Code::skippedOption, place_of(word),
                 "the option " + quoted(word.text) + " is taken as the value of " + name_of(row),
                 "write " + value_in_words(row) + " before it");
    m_skipped = word.text;
    return;
  }
  check_number(row, word.text, place_of(word), m_report);
  if (row.kind == Kind::text) check_text(row, word.text, place_of(word), m_report);
}

void Examiner::report_value(const Refusal& at) {
  const Keyword& row = *at.row;
  const Piece word = *ahead();
  const Place place = place_of(word);
  m_isCableUncertain = m_isCableUncertain || &at.option->group == &kCable;
  if (row.kind == Kind::address) {
    const auto address = static_cast<std::uint32_t>(to_unsigned(word.text));
    const std::uint32_t below = address - address % kMapBlock;
    Finding& finding =
        m_report.add(Code::misalignedAddress, place,
                     name_of(row) + " must be a multiple of 64 KB (0x10000), and " + quoted(word.text) + " is none");
    for (const std::uint32_t nearby : {below, below + kMapBlock}) {
      if (nearby < below) continue;  // there is none above
      finding.remedy.append(nearby == below ? "write " : " or ").append(address_text(nearby));
      finding.fixes.push_back(fix("write " + address_text(nearby), false, place, address_text(nearby)));
    }
    return;
  }
  if (at.names.empty()) {
    const std::string number = std::to_string(static_cast<std::int8_t>(m_subject.processor.identity().cpuNr));
    Finding& finding =
        m_report.add(Code::wrongCpuNumber, place,
                     "the processor has the number " + number + " in the design, not " + quoted(word.text),
                     "write " + number + ", or see whether the text is for another processor");
    finding.fixes.push_back(fix("write " + number, false, place, number));
    return;
  }
  const auto is_known = [&](const CableType& type) {
    return std::ranges::any_of(type.names, [&](const Name& name) { return same_word(name.text(), word.text); });
  };
  if (&at.option->group == &kCable && std::ranges::any_of(cable_types(), is_known)) {
    m_report.add(Code::unsupportedCable, place, "cables of the type " + quoted(word.text) + " are not supported",
                 "accepted here: " + listed(at.names, "and"));
    return;
  }
  Finding& finding = m_report.add(Code::invalidValue, place, no_such(at, word.text));
  const Names resembling = nearest(word.text, at.names).names;
  if (resembling.empty()) {
    finding.remedy = "accepted here: " + listed(at.names, "and");
    return;
  }
  finding.remedy = "did you mean " + listed(resembling) + "?";
  finding.fixes.push_back(fix("write " + quoted(resembling.front()), false, place, std::string(resembling.front())));
}

// --- What is said ---

void Examiner::found(const WalkedWord& word, std::string_view spelled) {
  m_lastWord = place_of(word);
  m_lastSeen = m_lastWord;
  m_lastRole = word.role;
  switch (word.role) {
    case Role::head:
    case Role::unknown:
      break;
    case Role::target:
      target_known(word);
      break;
    case Role::connection:
      connection_known(word);
      break;
    case Role::option:
      begin_option(word);
      break;
    case Role::keyword:
      m_keyword = place_of(word);
      break;
    case Role::value:
      if (m_isAccepted) say(word, *word.keyword, place_of(word), spelled);
      break;
    case Role::ignored:
      if (word.option != nullptr) {
        m_skipped = spelled;
        break;
      }
      if (!m_said.notReached) m_said.notReached = place_of(word);
      m_said.notReached->end = word.end;
      break;
  }
  if (word.role == Role::unknown && is_option_word(spelled)) m_endsWithCable = false;
}

void Examiner::target_known(const WalkedWord& word) {
  m_isLost = false;
  m_said.target = word.target;
  m_said.targetWord = place_of(word);
  if (word.target->virtualPlatform) not_admitted(word, Engine::VIRTUAL_PLATFORM);
}

// The debug access port is no processor of a design, which is not asked then.
void Examiner::connection_known(const WalkedWord& word) {
  if (word.target->admits == 0) not_admitted(word, word.connection->type);
}

void Examiner::not_admitted(const WalkedWord& word, std::uint32_t connection) {
  if (admits(m_imp, connection)) return;
  std::vector<std::string> admitted;
  for (const Target& target : targets()) {
    const bool isArm = target.family == kFamilyArm;
    const bool isItsTarget = target.family == m_processor.procFamily && target.admits == 0 && !target.virtualPlatform &&
                             (!isArm || target.variant == m_processor.procVariant);
    for (const Connection& other : target.connections) {
      if (!isItsTarget || !admits(m_imp, other.type)) continue;
      admitted.push_back("'connect " + std::string(target.name.text()) + " " + std::string(other.name.text()) + "'");
    }
  }
  m_report.add(Code::connectionNotAdmitted, place_of(word),
               "processor " + quoted(m_subject.processor.name()) + " has no connection " +
                   quoted(m_subject.in({m_said.targetWord.begin, word.end})) + " in the design",
               "it has " + joined(admitted, ", "));
}

void Examiner::begin_option(const WalkedWord& word) {
  const Option& option = *word.option;
  m_isLost = false;
  m_skipped = {};
  m_keyword = place_of(word);
  m_option = m_keyword;
  m_endsWithCable = &option.group == &kCable;
  m_hasFrequency = false;
  m_errorsBefore = m_report.errors();
  if (&option.group == &kConfigdevice) {
    m_device = {};
    m_said.devices.emplace_back().option = m_option;
  }
  if (option.takes == Takes::pairs && m_said.bare.size() <= Report::kMostOfOneKind) {
    m_said.bare.push_back({&option, m_option});
  }
  if (option.takes == Takes::nothing || option.takes == Takes::ownRun) say(word, *value_row(option), {}, {});
}

void Examiner::say(const WalkedWord& word, const Keyword& row, const Place& value, std::string_view text) {
  const Said said = {&row, word.option, word.group, m_option, m_keyword, value, text};
  const bool isOfDevice = &word.option->group == &kConfigdevice;
  if (!m_said.bare.empty() && m_said.bare.back().word == m_option) m_said.bare.pop_back();
  const auto before = std::ranges::find(m_said.lasts, &row, &Said::row);
  if (before == m_said.lasts.end()) {
    m_said.lasts.push_back(said);
  } else {
    const bool isAgain = !row.repeats && (!isOfDevice || before->group == word.group);
    if (isAgain && m_said.twice.size() <= Report::kMostOfOneKind) {
      m_said.twice.push_back({before->optionWord, before->word, said.word, &row, word.option});
    }
    *before = said;
  }
  m_lastRow = &row;
  m_lastValue = text;
  const std::string_view name = row.name.text();
  if (m_endsWithCable && name == "frequency") m_hasFrequency = true;
  if (!isOfDevice) return;
  DeviceWords& device = m_said.devices.back();
  if (name == "devicenr") device.number = value;
  if (name == "irlength") device.irlength = value;
  if (name == "idcode") device.idcode = value;
  (name == "jtagport" ? device.isReached : device.isDescribed) = true;
}

// --- The end of the text ---

void Examiner::check_end_of_cable() {
  if (m_endsWithCable) m_said.lastCable = m_option;
  if (!m_endsWithCable || m_isLost || m_isCableUncertain || check_cable(m_imp, m_hasFrequency)) return;
  // An error that the reader came to before comes first here as well.
  const bool isFirst = m_report.errors() == m_errorsBefore;
  if (m_hasFrequency && (m_imp.cable->type != Engine::ZARVEK_PLUGIN || !m_imp.cable->modulename.empty())) {
    Said frequency = *m_said.said(kCable, "frequency");
    if (!isFirst) frequency.value = m_lastSeen;
    return report_frequency(frequency);
  }
  m_report.add(Code::missingModule, isFirst ? m_option : m_lastSeen, "a plug-in cable needs its module",
               "write 'modulename' and the name of the module");
}

void Examiner::report_frequency(const Said& frequency) {
  const CableType& type = cable_type(m_imp.cable->type);
  if (!type.accepted.empty()) {
    add_frequency(type, m_imp.cable->frequency, frequency, m_report);
    return;
  }
  m_report.take_warning(frequency.value);
  if (type.names.empty()) {
    m_report.add(Code::unsupportedFrequency, frequency.value, "a frequency is given, but no type of cable",
                 "write 'type' and the type");
    return;
  }
  Finding& finding = m_report.add(Code::unsupportedFrequency, frequency.value,
                                  "a cable of the type " + quoted(type.names.back().text()) + " has no frequency",
                                  "remove 'frequency'");
  finding.fixes.push_back(fix(finding.remedy, false, {frequency.word.begin, frequency.value.end}, ""));
}

}  // namespace

Examined examine(const Subject& subject, Report& report) { return Examiner(subject, report).examine(); }

}  // namespace SdkDebugDialog
