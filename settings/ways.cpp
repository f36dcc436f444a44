// There are a few ways to change a setting in a text. The caller tries them and takes the first one that the reader
// understands as wanted, so that no way needs to know what the rest of the text means.

#include "settings/ways.h"

#include <algorithm>
#include <map>
#include <set>
#include <span>
#include <utility>

#include "options/groups.h"
#include "settings/value_words.h"
#include "settings/words.h"

namespace SdkDebugDialog {
namespace {

using Takes = Option::Takes;

bool has_pairs(const Option& option) { return option.takes == Takes::pairs; }

// The setting that a word sets, if the word is a value or an option without one.
const Setting* set_by(const WalkedWord& word) {
  if (word.role == Role::value && word.keyword != nullptr) return setting_of(*word.keyword);
  const bool isFlag = word.role == Role::option && word.option != nullptr &&
                      (word.option->takes == Takes::nothing || word.option->takes == Takes::ownRun);
  const Keyword* const row = isFlag ? value_row(*word.option) : nullptr;
  return row != nullptr ? setting_of(*row) : nullptr;
}

// The words that set a setting: values, and options without a value.
std::vector<std::size_t> values_of(const Draft& draft, const Setting& setting) {
  const Setting* const told = &told_by(setting);
  std::vector<std::size_t> found;
  for (std::size_t i = 0; i < draft.words.size(); ++i) {
    if (told == set_by(draft.words[i])) found.push_back(i);
  }
  return found;
}

// --- Removing ---

// The ways to remove values. A value is removed with its keyword or its option, and the hardware simulator with its own
// options. An option that loses all its pairs is removed too in the first way, and stays in the second.
std::vector<std::string> ways_without(const Draft& draft, const std::vector<std::size_t>& values) {
  std::set<std::size_t> gone;
  for (const std::size_t i : values) {
    const WalkedWord& word = draft.words[i];
    gone.insert(i);
    if (word.role == Role::value) gone.insert(i - 1);
    if (word.option == nullptr || word.option->takes != Takes::ownRun) continue;
    for (std::size_t j = i + 1; j < draft.words.size(); ++j) {
      const WalkedWord& behind = draft.words[j];
      if (behind.option != nullptr && behind.run == &kHdlSimOptions && !has_pairs(*behind.option)) gone.insert(j);
    }
  }
  const auto without = [&] {
    Changes changes(draft);
    for (const std::size_t i : gone) changes.remove(i);
    return changes.made();
  };
  const std::string optionsStay = without();
  for (const std::size_t i : values) {
    const Draft::Group& group = draft.groups[draft.words[i].group];
    bool isEmpty = true;
    for (std::size_t j = group.first + 1; j < group.end; ++j) isEmpty = isEmpty && gone.contains(j);
    if (draft.words[i].group != 0 && isEmpty) gone.insert(group.first);
  }
  return {without(), optionsStay};
}

// Removes the cable with all its keywords.
std::string without_cable(const Draft& draft) {
  Changes changes(draft);
  for (const Draft::Group& group : draft.groups) {
    if (group.option == nullptr || &group.option->group != &kCable) continue;
    for (std::size_t i = group.first; i < group.end; ++i) changes.remove(i);
  }
  return changes.made();
}

// --- Adding ---

std::size_t place_in_table(const Option& option) { return static_cast<std::size_t>(&option - options().data()); }

// The options that follow the target or the connection; null where none may stand.
const Run* main_run(const Draft& draft) {
  if (draft.kind == TextKind::cableText) return &kCableTextOptions;
  const Run* run = nullptr;
  for (const WalkedWord& word : draft.words) {
    if (word.role == Role::target && word.target != nullptr && word.target->options != nullptr) {
      run = word.target->options;
    }
    if (word.role == Role::connection && word.connection != nullptr) return &word.connection->options;
    if (word.group != 0) break;
  }
  return run;
}

bool runs_hdl_simulator(const Draft& draft) {
  return std::ranges::any_of(draft.groups, [](const Draft::Group& group) {
    return group.option != nullptr && group.option->takes == Takes::ownRun;
  });
}

// Behind how many words an option may be put: first where the writer would put it, then behind the last one of each
// other option.
std::vector<std::size_t> places_for(const Draft& draft, const Option& option) {
  if (draft.groups.empty()) return {};
  std::map<std::size_t, std::size_t> endOf;  // by place in the table; 0 for the words before the first option
  for (std::size_t i = 0; i < draft.groups.size(); ++i) {
    const Draft::Group& group = draft.groups[i];
    const std::size_t place = i == 0 || group.option == nullptr ? 0 : place_in_table(*group.option) + 1;
    std::size_t& end = endOf[place];
    end = std::max(end, group.end);
  }
  std::size_t writers = 0;
  for (const auto& [place, end] : endOf) {
    if (place <= place_in_table(option) + 1) writers = std::max(writers, end);
  }
  std::vector<std::size_t> places = {writers};
  for (const auto& [place, end] : endOf) {
    if (end != writers) places.push_back(end);
  }
  return places;
}

// Behind how many words a pair joins those of its group: before the first one that the writer would put behind it, and
// at the end.
std::vector<std::size_t> places_in(const Draft& draft, const Draft::Group& group, const Keyword& keyword) {
  for (std::size_t i = group.first + 1; i < group.end; ++i) {
    const WalkedWord& word = draft.words[i];
    if (word.role == Role::keyword && word.keyword != nullptr && word.keyword > &keyword) return {i, group.end};
  }
  return {group.end};
}

const Keyword& frequency_row() {
  return *std::ranges::find(kCable.keywords, "frequency", [](const Keyword& k) { return k.name.text(); });
}

// A cable at the end of a text implies a frequency: the same text with it written out, so that options can follow.
Draft with_frequency_written(const Draft& draft, const State& now) {
  const std::size_t end = draft.read_end();
  if (end == 0 || now.cable.frequency == 0) return draft;
  const Draft::Group& group = draft.groups[draft.words[end - 1].group];
  if (group.option == nullptr || &group.option->group != &kCable) return draft;
  for (std::size_t i = group.first; i < group.end; ++i) {
    if (draft.words[i].keyword == &frequency_row()) return draft;
  }
  const std::size_t place = places_in(draft, group, frequency_row()).front();
  return {with_added(draft, place, pair_text(frequency_row(), now)), draft.kind};
}

// Adds the ways to add an option.
void add_option(std::vector<std::string>& ways, const Draft& draft, const Option& option, const std::string& text,
                const State& now) {
  const Draft whole = with_frequency_written(draft, now);
  for (const std::size_t place : places_for(whole, option)) ways.push_back(with_added(whole, place, text));
  if (whole.text == draft.text) return;
  for (const std::size_t place : places_for(draft, option)) ways.push_back(with_added(draft, place, text));
}

// Adds the ways to add the words of a setting that the text does not have: to an option that it has, or with an option.
void add_setting(std::vector<std::string>& ways, const Draft& draft, const Setting& setting, const Meanings& meanings,
                 bool inNewOption = true) {
  const Run* const run = main_run(draft);
  const unsigned runs = (run != nullptr ? run->bit : 0) | (runs_hdl_simulator(draft) ? kHdlSimOptions.bit : 0);
  for (const Option& option : options()) {
    if ((option.runs & runs) == 0) continue;
    const auto keyword = std::ranges::find_if(option.group.keywords, [&](const Keyword& row) {
      return is_about(&row, setting) && (has_pairs(option) || &row == value_row(option));
    });
    if (keyword == option.group.keywords.end()) continue;
    const std::string pair = pair_text(*keyword, meanings.wanted);
    if (!has_pairs(option)) {
      if (inNewOption) add_option(ways, draft, option, pair, meanings.now);
      continue;
    }
    const auto isOption = [&](const Draft::Group& group) { return group.option == &option; };
    const auto first = std::ranges::find_if(draft.groups, isOption);
    if (first != draft.groups.end()) {
      const auto last = std::find_if(draft.groups.rbegin(), draft.groups.rend(), isOption);
      for (const Draft::Group* const group : {&*last, &*first}) {
        for (const std::size_t place : places_in(draft, *group, *keyword)) {
          ways.push_back(with_added(draft, place, pair));
        }
      }
    }
    if (inNewOption) add_option(ways, draft, option, spaced(option.name.text()) + pair, meanings.now);
  }
}

// --- The ways to change a setting ---

std::vector<std::string> ways_of_value(const Draft& draft, const SettingRow& row, const Meanings& meanings,
                                       bool toDefault) {
  std::vector<std::string> ways;
  const std::vector<std::size_t> values = values_of(draft, *row.setting);
  const bool unsaid = is_unsaid(row_of(told_by(*row.setting)), meanings.wanted);
  // No frequency is said by no words where the cable has none by itself, and by 0 elsewhere.
  const bool isNoFrequency = row.setting->kind == SettingKind::frequency && meanings.wanted.cable.frequency == 0;
  if (unsaid || toDefault || isNoFrequency) {
    ways.push_back(draft.text);
    if (!values.empty()) ways = ways_without(draft, values);
  }
  if (unsaid && row.setting->name == "cable") ways = {without_cable(draft)};
  if (unsaid) return ways;
  if (values.empty()) {
    add_setting(ways, draft, *row.setting, meanings);
    return ways;
  }
  const Keyword* const keyword = draft.words[values.back()].keyword;
  if (keyword == nullptr) return ways;
  const std::string value = value_words(*keyword, meanings.wanted);
  // Only the words of settings that are to change are changed; for others, which an edit spoilt, words are added.
  if (value_of(row, meanings.before) == value_of(row, meanings.wanted)) {
    add_setting(ways, draft, *row.setting, meanings, false);
    return ways;
  }
  const bool isOneWord = value.find(' ') == std::string::npos;
  if (isOneWord) {
    Changes changes(draft);
    changes.replace(values.back(), value);
    ways.push_back(changes.made());
    // Without the others, which may have had effects of their own.
    for (const std::size_t i : std::span(values).first(values.size() - 1)) {
      changes.remove(i - 1);
      changes.remove(i);
    }
    if (values.size() > 1) ways.push_back(changes.made());
  }
  // At the end of its option, for a value that later words there change; or several values, each with its keyword.
  const Draft rest(ways_without(draft, values).back(), draft.kind);
  add_setting(ways, rest, *row.setting, meanings, !isOneWord);
  return ways;
}

std::vector<std::string> ways_of_connection(const Draft& draft, const State& wanted) {
  std::vector<std::string> ways;
  for (std::size_t i = 0; i < draft.words.size(); ++i) {
    const WalkedWord& word = draft.words[i];
    if (word.role != Role::connection || word.target == nullptr) continue;
    for (const Connection& connection : word.target->connections) {
      if (connection.type != wanted.processor.connectionType) continue;
      Changes changes(draft);
      changes.replace(i, connection.name.text());
      ways.push_back(changes.made());
    }
  }
  return ways;
}

// --- The chain ---

bool is_device(const Draft::Group& group) { return group.option != nullptr && &group.option->group == &kConfigdevice; }

const Option& device_option() {
  return *std::ranges::find_if(options(), [](const Option& option) { return &option.group == &kConfigdevice; });
}

std::vector<const Draft::Group*> device_groups(const Draft& draft) {
  std::vector<const Draft::Group*> found;
  for (const Draft::Group& group : draft.groups) {
    if (is_device(group)) found.push_back(&group);
  }
  return found;
}

// Changes the words of one device, keyword by keyword.
void change_device(Changes& changes, const Draft& draft, const Draft::Group& group, const JtagOption& before,
                   const JtagOption& after) {
  for (const Keyword& row : kConfigdevice.keywords) {
    const std::string pair = device_pair_text(row, after);
    if (pair == device_pair_text(row, before)) continue;
    std::vector<std::size_t> values;
    for (std::size_t i = group.first + 1; i < group.end; ++i) {
      if (draft.words[i].role == Role::value && draft.words[i].keyword == &row) values.push_back(i);
    }
    if (pair.empty()) {
      for (const std::size_t i : values) {
        changes.remove(i - 1);
        changes.remove(i);
      }
    } else if (values.empty()) {
      changes.add(places_in(draft, group, row).front(), pair);
    } else {
      changes.replace(values.back(), device_value(row, after));
    }
  }
}

// Devices at the beginning and at the end of the chain that do not change keep their words.
std::vector<std::string> ways_of_devices(const Draft& draft, const Meanings& meanings) {
  const std::vector<JtagOption>& before = meanings.now.chain;
  const std::vector<JtagOption>& after = meanings.wanted.chain;
  const auto groups = device_groups(draft);
  if (groups.size() != before.size()) return {};
  std::size_t head = 0;
  const std::size_t shorter = std::min(before.size(), after.size());
  while (head < shorter && before[head] == after[head]) ++head;
  std::size_t tail = 0;
  while (tail < shorter - head && before[before.size() - 1 - tail] == after[after.size() - 1 - tail]) ++tail;
  const std::size_t beforeEnd = before.size() - tail;
  const std::size_t afterEnd = after.size() - tail;
  const std::size_t both = std::min(beforeEnd, afterEnd);

  Changes changes(draft);
  for (std::size_t i = head; i < both; ++i) change_device(changes, draft, *groups[i], before[i], after[i]);
  for (std::size_t i = both; i < beforeEnd; ++i) {
    for (std::size_t word = groups[i]->first; word < groups[i]->end; ++word) changes.remove(word);
  }
  std::string added;
  for (std::size_t i = both; i < afterEnd; ++i) added += device_text_of_command(after[i]);
  if (added.empty()) return {changes.made()};
  const Draft changed(changes.made(), draft.kind);
  const Draft whole = with_frequency_written(changed, meanings.now);
  const auto now = device_groups(whole);
  if (now.size() < both) return {};  // the end of a file's line is pushed out of what is read
  if (both > 0) return {with_added(whole, now[both - 1]->end, added)};
  if (!now.empty()) return {with_added(whole, now.front()->first, added)};
  std::vector<std::string> ways;
  add_option(ways, changed, device_option(), added, meanings.now);
  return ways;
}

}  // namespace

// --- What words are about ---

bool is_about(const Keyword* keyword, const Setting& setting) {
  return keyword != nullptr && setting_of(*keyword) == &told_by(setting);
}

bool sets_nothing(const Option& option) {
  const auto sets = [](const Keyword& keyword) { return setting_of(keyword) != nullptr; };
  if (has_pairs(option)) return std::ranges::none_of(option.group.keywords, sets);
  const Keyword* const row = value_row(option);
  return row == nullptr || !sets(*row);
}

bool is_said(const Setting& setting, const std::set<const Setting*>& said) { return said.contains(&told_by(setting)); }

std::set<const Setting*> said_by(const Draft& draft) {
  std::set<const Setting*> said;
  for (const WalkedWord& word : draft.words) {
    said.insert(set_by(word));
    // An option without the value that it wants.
    const Keyword* const row = word.option != nullptr ? value_row(*word.option) : nullptr;
    if (row != nullptr) said.insert(setting_of(*row));
  }
  said.erase(nullptr);
  return said;
}

std::vector<std::size_t> own_pins_written(const Draft& draft) {
  std::vector<std::size_t> found;
  for (const Draft::Group& group : draft.groups) {
    if (!is_device(group) || group.end != group.first + 3) continue;
    const std::string pair = spaced(draft.word(group.first + 1)) + spaced(draft.word(group.first + 2));
    if (!same_word(pair, kOwnPinsWritten)) continue;
    found.insert(found.end(), {group.first, group.first + 1, group.first + 2});
  }
  return found;
}

std::string with_own_pins(const Draft& draft, const State& now) {
  const std::string form = spaced(device_option().name.text()) + std::string(kOwnPinsWritten);
  const auto groups = device_groups(draft);
  if (!groups.empty()) return with_added(draft, groups.front()->first, form);
  std::vector<std::string> ways;
  add_option(ways, draft, device_option(), form, now);
  return ways.empty() ? draft.text + form : ways.front();
}

std::vector<std::string> ways_without(const Draft& draft, const SettingRow& row) {
  const std::vector<std::size_t> values = values_of(draft, *row.setting);
  return values.empty() || row.setting->name == "devices" ? std::vector<std::string>() : ways_without(draft, values);
}

std::vector<std::string> ways_of(const Draft& draft, const SettingRow& row, const Meanings& meanings, bool toDefault) {
  const std::string_view name = row.setting->name;
  if (name == "connection") return ways_of_connection(draft, meanings.wanted);
  if (name == "devices") return ways_of_devices(draft, meanings);
  if (name == "cpu-jtag") {
    // Switched on, it is written in a form that is not read back: with_own_pins.
    if (meanings.wanted.cpuJtag != 0) return {};
    return ways_without(draft, values_of(draft, *row.setting));
  }
  return ways_of_value(draft, row, meanings, toDefault);
}

}  // namespace SdkDebugDialog
