#include "edit_check.h"

#include <algorithm>
#include <exception>
#include <iterator>
#include <optional>
#include <set>
#include <utility>

#include "fuzz/input.h"
#include "tests/support/plain_token.h"

using SdkDebugDialog::Annotation;
using SdkDebugDialog::Change;
using SdkDebugDialog::Configuration;
using SdkDebugDialog::Edit;
using SdkDebugDialog::Error;
using SdkDebugDialog::ErrorCode;
using SdkDebugDialog::Loss;
using SdkDebugDialog::Processor;
using SdkDebugDialog::Role;
using SdkDebugDialog::Setting;
using SdkDebugDialog::SettingValue;
using SdkDebugDialog::TextKind;

namespace {

using Names = std::set<std::string_view>;

std::string in_quotes(std::string_view text) {
  constexpr char kDigits[] = "0123456789abcdef";
  std::string out = "\"";
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (c == '"' || c == '\\') {
      out.append(1, '\\').append(1, c);
    } else if (byte >= 0x20 && byte < 0x7f) {
      out += c;
    } else {
      out.append("\\x").append(1, kDigits[byte / 16]).append(1, kDigits[byte % 16]);
    }
  }
  return out + '"';
}

std::string lower(std::string_view word) {
  std::string text(word);
  for (char& letter : text) {
    if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter - 'A' + 'a');
  }
  return text;
}

std::string joined(const std::vector<std::string_view>& names) {
  std::string text;
  for (const std::string_view name : names) text.append(text.empty() ? "" : " ").append(name);
  return text;
}

// The settings that a change may change.
Names affected_by(const std::vector<Change>& changes) {
  Names names;
  for (const Change& change : changes) {
    const Setting* const setting = SdkDebugDialog::find_setting(change.setting);
    if (setting == nullptr) continue;
    names.insert(setting->name);
    std::string_view rest = setting->follows;
    while (!rest.empty()) {
      const std::size_t blank = std::min(rest.find(' '), rest.size());
      names.insert(rest.substr(0, blank));
      rest.remove_prefix(std::min(blank + 1, rest.size()));
    }
  }
  return names;
}

// --- Words ---

struct Word {
  std::size_t begin = 0;
  std::size_t end = 0;
  bool mayGo = false;  // belongs to what is changed, so it may be removed, or be new
};

// The part of a text that its reader looks at, or would without its limit on the length.
struct Line {
  std::size_t begin = 0;
  std::size_t end = 0;
};

Line line_of(std::string_view text, TextKind kind) {
  if (kind != TextKind::optionFile) return {0, text.size()};
  const std::size_t begin = std::min(text.find_first_not_of('\n'), text.size());
  return {begin, std::min(text.find('\n', begin), text.size())};
}

// Whether the line is so long that its end, or that of a line with a few more words, may not be read.
bool may_be_cut(const Line& line, TextKind kind) { return kind == TextKind::optionFile && line.end - line.begin > 900; }

std::vector<Word> words_of(std::string_view text, const Line& line) {
  std::vector<Word> words;
  for (std::size_t at = line.begin;;) {
    const PlainToken token = plain_token(text.substr(at, line.end - at));
    if (token.kind == 3 && !token.thrown) return words;
    at += token.end;
    words.push_back({at - token.token.size(), at});
  }
}

// A value "host:port" is said to be the host's; "jtagport cpu" stands in a device.
bool belongs(const Annotation& a, const Names& names) {
  if (a.setting == nullptr) return false;
  const std::string_view name = a.setting->name;
  return names.contains(name) || (name == "cpu-jtag" && names.contains("devices")) ||
         (name == "sim-host" && names.contains("sim-port")) ||
         (name == "hardware-simulator-host" && names.contains("hardware-simulator-port"));
}

// Marks the words that belong to the settings. An option without a setting of its own goes with its keywords.
void mark(std::vector<Word>& words, std::string_view text, const std::vector<Annotation>& annotations,
          const Names& names) {
  auto a = annotations.begin();
  std::vector<const Annotation*> of;
  for (Word& word : words) {
    while (a != annotations.end() && a->end <= word.begin) ++a;
    const bool known = a != annotations.end() && a->begin < word.end;
    of.push_back(known ? &*a : nullptr);
    // "-configdevice jtagpin cpujtag", as the writer has it, and no reader.
    const std::string_view bytes = text.substr(word.begin, word.end - word.begin);
    const bool isOwnPins = names.contains("cpu-jtag") && (bytes == "jtagpin" || bytes == "cpujtag" ||
                                                          text.substr(word.begin).starts_with("-configdevice jtagpin"));
    word.mayGo = known && (isOwnPins || belongs(*a, names));
  }
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (of[i] == nullptr || of[i]->role != Role::option || words[i].mayGo) continue;
    std::size_t next = i + 1;
    while (next < words.size() && words[next].mayGo && of[next]->role != Role::option) ++next;
    const bool whole = next == words.size() || (of[next] != nullptr && of[next]->role == Role::option);
    const bool isEmptyCable = names.contains("cable") && lower(text.substr(words[i].begin, 6)) == "-cable";
    words[i].mayGo = whole && (next > i + 1 || isEmptyCable);
  }
}

// A word that the reader skips in place of a value is needed twice.
void mark_doubled(std::vector<Word>& words, std::string_view text) {
  const auto word = [&](std::size_t i) { return text.substr(words[i].begin, words[i].end - words[i].begin); };
  for (std::size_t i = 0; i + 1 < words.size(); ++i) words[i].mayGo |= words[i + 1].mayGo && word(i) == word(i + 1);
}

// Whether the new words are the old ones, but for those that may go or be new, and whether the blanks between
// neighbours that stay are the same.
class Alignment {
 public:
  Alignment(std::string_view oldText, const Line& oldLine, const std::vector<Word>& oldWords, std::string_view newText,
            const Line& newLine, const std::vector<Word>& newWords)
      : m_old{oldText, oldLine, oldWords}, m_new{newText, newLine, newWords} {}

  bool holds() const {
    const std::size_t width = m_new.words.size() + 1;
    // For each number of new words: whether so many old and new words can be aligned, the last two with each other or
    // not. Before the first words is a place that is always the same.
    std::vector<char> together(width), apart(width);
    together[0] = 1;
    insert(together, apart);
    for (std::size_t i = 0; i < m_old.words.size(); ++i) {
      std::vector<char> nextTogether(width), nextApart(width);
      for (std::size_t j = 0; j < width; ++j) {
        if (m_old.words[i].mayGo && (together[j] != 0 || apart[j] != 0)) nextApart[j] = 1;
        if (j + 1 < width && m_old.word(i) == m_new.word(j)) {
          if (apart[j] != 0 || (together[j] != 0 && m_old.gap(i) == m_new.gap(j))) nextTogether[j + 1] = 1;
        }
      }
      insert(nextTogether, nextApart);
      together = std::move(nextTogether);
      apart = std::move(nextApart);
    }
    if (apart.back() != 0) return true;
    return together.back() != 0 && m_old.gap(m_old.words.size()) == m_new.gap(m_new.words.size());
  }

 private:
  struct Side {
    std::string_view text;
    const Line& line;
    const std::vector<Word>& words;

    std::string_view word(std::size_t i) const { return text.substr(words[i].begin, words[i].end - words[i].begin); }
    // What stands before a word; behind the last one: what is left of the line.
    std::string_view gap(std::size_t i) const {
      const std::size_t begin = i > 0 ? words[i - 1].end : line.begin;
      return text.substr(begin, (i < words.size() ? words[i].begin : line.end) - begin);
    }
  };

  void insert(const std::vector<char>& together, std::vector<char>& apart) const {
    for (std::size_t j = 0; j + 1 < apart.size(); ++j) {
      if (m_new.words[j].mayGo && (together[j] != 0 || apart[j] != 0)) apart[j + 1] = 1;
    }
  }

  Side m_old;
  Side m_new;
};

// --- The parts of the check ---

struct Check {
  const EditCase& c;
  const Processor& processor;
  Hardware& hardware;
  Names affected = affected_by(c.changes);
  ByHand before{hardware, c.processor};
  bool wasRead = before.read(c.text, c.kind);

  std::string error(const Error& error) const {
    if (error.message.empty() || error.message.find('\n') != std::string::npos) return "a message that is no line";
    const auto setting = [](const Change& change) { return SdkDebugDialog::find_setting(change.setting); };
    switch (error.code) {
      case ErrorCode::notUnderstood:
        return wasRead ? "said not to be understood: " + error.message : "";
      case ErrorCode::noSuchSetting:
        return std::ranges::none_of(c.changes, [&](const Change& change) { return setting(change) == nullptr; })
                   ? "every setting is there: " + error.message
                   : "";
      case ErrorCode::invalidValue:
        return std::ranges::all_of(c.changes, &Change::toDefault) ? "no value was given: " + error.message : "";
      case ErrorCode::refused:
      case ErrorCode::cannotBeWritten:
        return "";
      default:
        return "an error of another kind: " + error.message;
    }
  }

  std::string edit(const Edit& edit) const {
    for (const Loss& loss : edit.losses) {
      if (loss.what.empty() || loss.why.empty()) return "a loss without a text";
    }
    const bool mayBeCut = may_be_cut(line_of(c.text, c.kind), c.kind) || may_be_cut(line_of(edit.text, c.kind), c.kind);
    if (!edit.anew && !edit.losses.empty() && !mayBeCut) return "losses in an edit in place: " + edit.losses[0].what;
    // Of a line that is not read to its end, words may be needed twice, and halves of words.
    if (!edit.anew && wasRead && !mayBeCut) {
      if (std::string fault = bytes(edit); !fault.empty()) return fault;
    }
    if (!edit.notReadBack.empty()) return "";
    return meaning(edit);
  }

  std::string bytes(const Edit& edit) const {
    const Line oldLine = line_of(c.text, c.kind);
    const Line newLine = line_of(edit.text, c.kind);
    const std::string_view oldText = c.text;
    const std::string_view newText = edit.text;
    if (oldLine.begin == oldLine.end) return "";  // nothing in it
    if (oldText.substr(0, oldLine.begin) != newText.substr(0, newLine.begin) ||
        oldText.substr(oldLine.end) != newText.substr(newLine.end)) {
      return "another line changed";
    }
    std::vector<Word> oldWords = words_of(oldText, oldLine);
    std::vector<Word> newWords = words_of(newText, newLine);
    const std::vector<Annotation> annotations = annotate(oldText, c.kind, processor);
    Names names = affected;
    const std::vector<Annotation> newAnnotations = annotate(newText, c.kind, processor);
    // At the end of a text the frequency is implied, and checked.
    if (ends_in_cable(oldText, annotations) || ends_in_cable(newText, newAnnotations)) names.insert("frequency");
    mark(oldWords, oldText, annotations, names);
    mark(newWords, newText, newAnnotations, names);
    mark_doubled(newWords, newText);
    return Alignment(oldText, oldLine, oldWords, newText, newLine, newWords).holds() ? "" : "bytes changed needlessly";
  }

  static bool ends_in_cable(std::string_view text, const std::vector<Annotation>& annotations) {
    const auto isOption = [](const Annotation& a) { return a.role == Role::option; };
    const auto last = std::find_if(annotations.rbegin(), annotations.rend(), isOption);
    return last != annotations.rend() && lower(text.substr(last->begin, last->end - last->begin)) == "-cable";
  }

  std::string meaning(const Edit& edit) const {
    ByHand after(hardware, c.processor);
    if (!after.read(edit.text, c.kind)) return "the new text is refused";
    const State now = after.state();
    if (std::string fault = values(edit, now); !fault.empty()) return fault;
    if (!wasRead) return "";

    Names allowed = affected;
    for (const Loss& loss : edit.losses) {
      if (loss.setting != nullptr) allowed.insert(loss.setting->name);
    }
    const State was = before.state();
    const std::vector<std::string_view> changed = differing(was, now);
    std::vector<std::string_view> surplus;
    std::ranges::copy_if(changed, std::back_inserter(surplus), [&](auto name) { return !allowed.contains(name); });
    if (!surplus.empty()) return "changed as well: " + joined(surplus);
    if (std::string fault = differences(edit, was, now, changed); !fault.empty()) return fault;
    if (edit.anew && edit.losses.empty()) return no_word_lost(edit);
    return "";
  }

  // What was asked for is what is read.
  std::string values(const Edit& edit, const State& now) const {
    const auto read = Configuration::read(processor, edit.text, c.kind);
    if (!read) return "the new text is refused by a configuration: " + read.error().message;
    for (const Change& change : c.changes) {
      const Setting& setting = *SdkDebugDialog::find_setting(change.setting);
      if (std::ranges::find(edit.losses, &setting, &Loss::setting) != edit.losses.end()) continue;
      if (is_overridden(change) || setting.name == "connections") continue;
      const SettingValue wanted =
          change.toDefault ? read->state(setting).initial : parse_value(setting, change.value).value();
      if (value_in(now, setting.name) != wanted) return "not what was asked for: " + change.setting;
    }
    return "";
  }

  // Whether another change is applied later that sets the same setting, or one that it follows.
  bool is_overridden(const Change& change) const {
    const Setting* const setting = SdkDebugDialog::find_setting(change.setting);
    return std::ranges::any_of(c.changes, [&](const Change& other) {
      const Setting* const its = SdkDebugDialog::find_setting(other.setting);
      return its == setting ? &other > &change : its > setting && affected_by({other}).contains(setting->name);
    });
  }

  static std::string differences(const Edit& edit, const State& was, const State& now,
                                 const std::vector<std::string_view>& changed) {
    std::vector<std::string_view> told;
    for (const SdkDebugDialog::Difference& d : edit.differences) {
      // Without a design they are those of the family, and by hand those that the texts told.
      if (d.setting->name == "connections") continue;
      told.push_back(d.setting->name);
      if (d.before != value_in(was, d.setting->name) || d.after != value_in(now, d.setting->name)) {
        return "a difference with other values: " + std::string(d.setting->name);
      }
    }
    const Names a(told.begin(), told.end());
    Names b(changed.begin(), changed.end());
    b.erase("connections");
    return a == b ? "" : "differences told: " + joined(told) + "; read: " + joined(changed);
  }

  // Words that set nothing are not seen by reading.
  std::string no_word_lost(const Edit& edit) const {
    for (const Annotation& a : annotate(c.text, c.kind, processor)) {
      const std::string_view word = std::string_view(c.text).substr(a.begin, a.end - a.begin);
      if (a.role == Role::option && a.setting == nullptr && word.size() > 2 &&
          edit.text.find(word) == std::string::npos && !is_group(word)) {
        return "lost without a word: " + std::string(word);
      }
    }
    return "";
  }

  // Options with keywords, which may all have been put to their defaults, or be written in another case.
  static bool is_group(std::string_view word) {
    const std::string name = lower(word);
    return name == "-cable" || name == "-debugdevice" || name == "-configdevice";
  }
};

}  // namespace

Processor EditBench::processor(std::string_view name) const {
  return name.empty() ? Processor() : m_design.find(name).value();
}

std::string EditBench::fault(const EditCase& c) try {
  const Processor processor = this->processor(c.processor);
  const Check check{c, processor, m_hardware};
  const auto edit = SdkDebugDialog::edit(processor, c.text, c.kind, c.changes);
  if (!edit) {
    ++(edit.error().code == ErrorCode::notUnderstood ? m_figures.notUnderstood : m_figures.refused);
    return check.error(edit.error());
  }
  ++(edit->anew ? m_figures.anew : edit->text == c.text ? m_figures.unchanged : m_figures.inPlace);
  if (!edit->losses.empty()) ++m_figures.losing;
  if (!edit->notReadBack.empty()) ++m_figures.notReadBack;
  if (std::string fault = check.edit(*edit); !fault.empty()) return fault + "\n  new text " + in_quotes(edit->text);

  const auto contradicts = [&](const Change& change) { return check.is_overridden(change); };
  if (!edit->is_safe() || std::ranges::any_of(c.changes, contradicts)) return "";
  const auto again = SdkDebugDialog::edit(processor, edit->text, c.kind, c.changes);
  if (!again) return "refused the second time: " + again.error().message + "\n  new text " + in_quotes(edit->text);
  // A default that is written anew has words, which then go.
  if (again->differences.empty() && (edit->anew || again->text == edit->text)) return "";
  return "not the same the second time\n  new text " + in_quotes(edit->text) + "\n  then " + in_quotes(again->text);
} catch (const std::exception& error) {
  return std::string("an exception: ") + error.what();
}

// --- Cases ---

std::vector<Change> changes_of(std::string_view text) {
  std::vector<Change> changes;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find(' '), text.size());
    const std::string_view word = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    const std::size_t equals = std::min(word.find('='), word.size());
    if (word.starts_with('-')) {
      changes.push_back({std::string(word.substr(1)), "", true});
    } else {
      changes.push_back(
          {std::string(word.substr(0, equals)), std::string(word.substr(std::min(equals + 1, word.size())))});
    }
  }
  return changes;
}

std::string shown(const EditCase& c) {
  const char* const kKinds[] = {"command", "optionFile", "cableText"};
  std::string text = (c.processor.empty() ? "none" : c.processor) + ", " + kKinds[static_cast<int>(c.kind)] + ", " +
                     in_quotes(c.text) + "\n ";
  for (const Change& change : c.changes) {
    text += " " + change.setting + (change.toDefault ? " to its default" : "=" + in_quotes(change.value));
  }
  return text;
}

EditCase minimised(EditBench& bench, EditCase c) {
  const auto try_out = [&](EditCase smaller) {
    if (bench.fault(smaller).empty()) return false;
    c = std::move(smaller);
    return true;
  };
  for (bool smaller = true; smaller;) {
    smaller = false;
    for (std::size_t i = c.changes.size(); i-- > 0 && c.changes.size() > 1;) {
      EditCase next = c;
      next.changes.erase(next.changes.begin() + static_cast<std::ptrdiff_t>(i));
      smaller |= try_out(std::move(next));
    }
    // A word with what stands before it, then two.
    for (const std::size_t count : {1U, 2U}) {
      for (std::size_t i = 0;;) {
        const std::vector<Word> words = words_of(c.text, {0, c.text.size()});
        if (i + count > words.size()) break;
        EditCase next = c;
        const std::size_t begin = i > 0 ? words[i - 1].end : 0;
        next.text.erase(begin, words[i + count - 1].end - begin);
        if (try_out(std::move(next))) {
          smaller = true;
        } else {
          ++i;
        }
      }
    }
  }
  return c;
}
