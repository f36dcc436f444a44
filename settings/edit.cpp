// Edits in place. For each setting that is to change there are a few ways to say so in the text; the first one that the
// reader understands as wanted is taken. So no way needs to know what the reader makes of the rest of the text.

#include "settings/edit.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <utility>

#include "options/groups.h"
#include "options/option_file.h"
#include "options/pairs.h"
#include "settings/catalogue.h"
#include "settings/engine_text.h"
#include "settings/value_words.h"
#include "settings/walk.h"
#include "settings/words.h"

namespace SdkDebugDialog {
namespace {

using P = ProcessorInfoImp;
using Takes = Option::Takes;

// --- A text with its words ---

struct Draft {
  Draft(std::string t, TextKind k) : text(std::move(t)), kind(k), words(walk(text, k)) {}

  std::string_view word(std::size_t i) const {
    return std::string_view(text).substr(words[i].begin, words[i].end - words[i].begin);
  }
  bool is_read(std::size_t i) const { return words[i].role != Role::ignored; }

  // The last word of a group, or of those before the first option. There is one.
  std::size_t last_of(std::size_t group) const {
    std::size_t found = words.size();
    for (std::size_t i = 0; i < words.size(); ++i) {
      if (words[i].group == group && (is_read(i) || found == words.size())) found = i;
    }
    return found;
  }
  std::size_t first_of(std::size_t group) const {
    return static_cast<std::size_t>(std::ranges::find(words, group, &WalkedWord::group) - words.begin());
  }

  // New texts.
  std::string with(std::size_t i, std::string_view replacement) const {
    return std::string(text).replace(words[i].begin, words[i].end - words[i].begin, replacement);
  }
  std::string with_behind(std::size_t i, std::string_view addition) const {
    return std::string(text).insert(words[i].end, addition);
  }

  std::string text;
  TextKind kind;
  std::vector<WalkedWord> words;
};

// The text without some words, each with the white space in front of it.
std::string without(const Draft& draft, const std::set<std::size_t>& removed) {
  std::string text;
  std::size_t from = 0;
  for (const std::size_t i : removed) {
    text.append(draft.text, from, (i == 0 ? 0 : draft.words[i - 1].end) - from);
    from = draft.words[i].end;
  }
  return text.append(draft.text, from);
}

// --- What the words of a setting are ---

bool has_pairs(const Option& option) { return option.takes == Takes::pairs; }

// Whether the option, with its value or its pairs, sets nothing.
bool sets_nothing(const Option& option) {
  const auto sets = [](const Keyword& keyword) { return setting_of(keyword) != nullptr; };
  if (has_pairs(option)) return std::ranges::none_of(option.group.keywords, sets);
  const Keyword* const row = value_row(option);
  return row == nullptr || !sets(*row);
}

// Some settings are told by the word of another one.
const Setting& told_by(const Setting& setting) {
  constexpr std::pair<std::string_view, std::string_view> kTold[] = {
      {"sim-port", "sim-host"},
      {"hardware-simulator-port", "hardware-simulator-host"},
      {"configured", "cycle-approximate"},
      {"svf-file-named", "svf-file"},
      {"address-map", "icache"},
  };
  const auto* const row = std::ranges::find(kTold, setting.name, [](const auto& told) { return told.first; });
  return row != std::end(kTold) ? *find_setting(row->second) : setting;
}

bool is_about(const Keyword* keyword, const Setting& setting) {
  return keyword != nullptr && setting_of(*keyword) == &told_by(setting);
}

// The words that set a setting: values, and options without a value.
std::vector<std::size_t> values_of(const Draft& draft, const Setting& setting) {
  std::vector<std::size_t> found;
  for (std::size_t i = 0; i < draft.words.size(); ++i) {
    const WalkedWord& word = draft.words[i];
    const bool isFlag = word.role == Role::option && word.option != nullptr &&
                        (word.option->takes == Takes::nothing || word.option->takes == Takes::ownRun);
    if (word.role == Role::value && is_about(word.keyword, setting)) found.push_back(i);
    if (isFlag && is_about(value_row(*word.option), setting)) found.push_back(i);
  }
  return found;
}

// --- Removing ---

// A value goes with its keyword or its option; an option whose pairs are all gone goes too, unless it is to stay. The
// simulator goes with its options.
std::string removed(const Draft& draft, const std::vector<std::size_t>& values, bool keepOptions) {
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
  if (keepOptions) return without(draft, gone);
  std::map<std::size_t, std::size_t> left;  // words behind the option, by group
  for (std::size_t i = 0; i < draft.words.size(); ++i) {
    const WalkedWord& word = draft.words[i];
    if (word.role != Role::option && !gone.contains(i) && draft.is_read(i)) ++left[word.group];
  }
  for (const std::size_t i : values) {
    const std::size_t group = draft.words[i].group;
    if (group != 0 && left[group] == 0) gone.insert(draft.first_of(group));
  }
  return without(draft, gone);
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
    if (word.role == Role::connection && word.connection != nullptr) run = &word.connection->options;
  }
  return run;
}

bool runs_hdl_simulator(const Draft& draft) {
  return std::ranges::any_of(draft.words, [](const WalkedWord& word) {
    return word.role == Role::option && word.option != nullptr && word.option->takes == Takes::ownRun;
  });
}

// The words behind which an option may be put: first where the writer would put it, then behind the last one of each
// other option.
std::vector<std::size_t> places_for(const Draft& draft, const Option& option) {
  std::map<std::size_t, std::size_t> lastOf;  // by place in the table; 0 for the words before the first option
  std::size_t last = draft.words.size();
  for (std::size_t i = 0; i < draft.words.size(); ++i) {
    const WalkedWord& word = draft.words[i];
    if (!draft.is_read(i)) continue;
    last = i;
    lastOf[word.group == 0 || word.option == nullptr ? 0 : place_in_table(*word.option) + 1] = i;
  }
  if (last == draft.words.size()) return {};
  std::size_t writers = draft.kind == TextKind::cableText ? last : lastOf[0];
  for (const auto& [place, i] : lastOf) {
    if (place <= place_in_table(option) + 1) writers = std::max(writers, i);
  }
  std::vector<std::size_t> places = {writers};
  for (const auto& [place, i] : lastOf) {
    if (std::ranges::find(places, i) == places.end()) places.push_back(i);
  }
  return places;
}

// Where a pair joins the words of its group: before the first one that the writer would put behind it, and at the end.
std::vector<std::size_t> places_in(const Draft& draft, std::size_t group, const Keyword& keyword) {
  const std::size_t end = draft.last_of(group);
  for (std::size_t i = draft.first_of(group) + 1; i <= end; ++i) {
    const WalkedWord& word = draft.words[i];
    if (word.role == Role::keyword && word.keyword != nullptr && word.keyword > &keyword) {
      return i - 1 == end ? std::vector{end} : std::vector{i - 1, end};
    }
  }
  return {end};
}

const Keyword& frequency_row() {
  return *std::ranges::find(kCable.keywords, "frequency", [](const Keyword& k) { return k.name.text(); });
}

// The same text with the frequency written out that a cable at its end implies, so that options can follow.
Draft with_frequency_written(const Draft& draft, const State& now) {
  const std::size_t last = draft.words.size();
  std::size_t end = last;
  for (std::size_t i = 0; i < last; ++i) {
    if (draft.is_read(i)) end = i;
  }
  if (end == last || draft.words[end].option == nullptr || now.cable.frequency == 0) return draft;
  const std::size_t group = draft.words[end].group;
  if (&draft.words[end].option->group != &kCable) return draft;
  for (const WalkedWord& word : draft.words) {
    if (word.group == group && word.keyword == &frequency_row()) return draft;
  }
  const std::size_t place = places_in(draft, group, frequency_row()).front();
  return {draft.with_behind(place, pair_text(frequency_row(), now)), draft.kind};
}

// The ways to put an option in.
void add_option(std::vector<std::string>& ways, const Draft& draft, const Option& option, const std::string& text,
                const State& now) {
  const Draft whole = with_frequency_written(draft, now);
  for (const std::size_t place : places_for(whole, option)) ways.push_back(whole.with_behind(place, text));
  if (whole.text == draft.text) return;
  for (const std::size_t place : places_for(draft, option)) ways.push_back(draft.with_behind(place, text));
}

// The ways to say a setting that the text does not say yet.
void add_setting(std::vector<std::string>& ways, const Draft& draft, const Setting& setting, const State& now,
                 const State& wanted) {
  const Run* const run = main_run(draft);
  const unsigned runs = (run != nullptr ? run->bit : 0) | (runs_hdl_simulator(draft) ? kHdlSimOptions.bit : 0);
  for (const Option& option : options()) {
    if ((option.runs & runs) == 0) continue;
    const auto keyword = std::ranges::find_if(option.group.keywords, [&](const Keyword& row) {
      return is_about(&row, setting) && (has_pairs(option) || row.name.text() == option.name.text());
    });
    if (keyword == option.group.keywords.end()) continue;
    const std::string pair = pair_text(*keyword, wanted);
    if (!has_pairs(option)) {
      add_option(ways, draft, option, pair, now);
      continue;
    }
    std::vector<std::size_t> groups;
    for (const WalkedWord& word : draft.words) {
      if (word.role == Role::option && word.option == &option) groups.push_back(word.group);
    }
    if (groups.size() > 2) groups = {groups.front(), groups.back()};
    std::ranges::reverse(groups);
    for (const std::size_t group : groups) {
      for (const std::size_t place : places_in(draft, group, *keyword)) {
        ways.push_back(draft.with_behind(place, pair));
      }
    }
    add_option(ways, draft, option, " " + std::string(option.name.text()) + pair, now);
  }
}

// --- The ways to change a setting ---

std::vector<std::string> ways_of_value(const Draft& draft, const SettingRow& row, const State& now, const State& wanted,
                                       bool toDefault) {
  std::vector<std::string> ways;
  const std::vector<std::size_t> values = values_of(draft, *row.setting);
  const bool unsaid = is_unsaid(row_of(told_by(*row.setting)), wanted);
  if ((unsaid || toDefault) && !values.empty()) {
    ways.push_back(removed(draft, values, false));
    ways.push_back(removed(draft, values, true));
  }
  if (unsaid) return ways;
  if (values.empty()) {
    add_setting(ways, draft, *row.setting, now, wanted);
    return ways;
  }
  const Keyword* const keyword = draft.words[values.back()].keyword;
  if (keyword == nullptr) return ways;
  const std::string value = value_words(*keyword, wanted);
  if (value.find(' ') == std::string::npos) {
    ways.push_back(draft.with(values.back(), value));
  } else {
    // Several values, each with its keyword.
    const Draft rest(removed(draft, values, true), draft.kind);
    add_setting(ways, rest, *row.setting, now, wanted);
  }
  return ways;
}

std::vector<std::string> ways_of_connection(const Draft& draft, const State& wanted) {
  std::vector<std::string> ways;
  for (std::size_t i = 0; i < draft.words.size(); ++i) {
    const WalkedWord& word = draft.words[i];
    if (word.role != Role::connection || word.target == nullptr) continue;
    for (const Connection& connection : word.target->connections) {
      if (connection.type == wanted.processor.connectionType) {
        ways.push_back(draft.with(i, connection.name.text()));
      }
    }
  }
  return ways;
}

// --- The chain ---

bool is_device_option(const WalkedWord& word) {
  return word.role == Role::option && word.option != nullptr && &word.option->group == &kConfigdevice;
}

std::vector<std::size_t> device_groups(const Draft& draft) {
  std::vector<std::size_t> groups;
  for (const WalkedWord& word : draft.words) {
    if (is_device_option(word)) groups.push_back(word.group);
  }
  return groups;
}

const Option& device_option() {
  return *std::ranges::find_if(options(), [](const Option& option) { return &option.group == &kConfigdevice; });
}

// The words of one device changed, keyword by keyword.
std::string with_device(std::string text, TextKind kind, std::size_t index, const JtagOption& before,
                        const JtagOption& after) {
  for (const Keyword& row : kConfigdevice.keywords) {
    const std::string pair = device_pair_text(row, after);
    if (pair == device_pair_text(row, before)) continue;
    const Draft draft(std::move(text), kind);
    const std::size_t group = device_groups(draft)[index];
    std::vector<std::size_t> values;
    for (std::size_t i = 0; i < draft.words.size(); ++i) {
      const WalkedWord& word = draft.words[i];
      if (word.group == group && word.role == Role::value && word.keyword == &row) values.push_back(i);
    }
    if (pair.empty()) {
      text = removed(draft, values, true);
    } else if (values.empty()) {
      text = draft.with_behind(places_in(draft, group, row).front(), pair);
    } else {
      text = draft.with(values.back(), device_value(row, after));
    }
  }
  return text;
}

// Devices that are the same at both ends of the chain keep their words.
std::vector<std::string> ways_of_devices(const Draft& draft, const State& now, const State& wanted) {
  const std::vector<JtagOption>& before = now.chain;
  const std::vector<JtagOption>& after = wanted.chain;
  const std::vector<std::size_t> groups = device_groups(draft);
  if (groups.size() != before.size()) return {};
  const auto [b, a] = std::ranges::mismatch(before, after);
  const auto head = static_cast<std::size_t>(b - before.begin());
  std::size_t tail = 0;
  while (tail < std::min(before.size(), after.size()) - head &&
         before[before.size() - 1 - tail] == after[after.size() - 1 - tail]) {
    ++tail;
  }
  const std::size_t oldEnd = before.size() - tail;
  const std::size_t newEnd = after.size() - tail;
  const std::size_t both = std::min(oldEnd, newEnd);

  std::string text = draft.text;
  for (std::size_t i = head; i < both; ++i) text = with_device(std::move(text), draft.kind, i, before[i], after[i]);
  const Draft changed(std::move(text), draft.kind);
  if (both < oldEnd) {
    const std::vector<std::size_t> now_groups = device_groups(changed);
    const std::set<std::size_t> gone(now_groups.begin() + static_cast<std::ptrdiff_t>(both),
                                     now_groups.begin() + static_cast<std::ptrdiff_t>(oldEnd));
    std::set<std::size_t> words;
    for (std::size_t i = 0; i < changed.words.size(); ++i) {
      if (gone.contains(changed.words[i].group) && changed.is_read(i)) words.insert(i);
    }
    return {without(changed, words)};
  }
  std::string added;
  for (std::size_t i = both; i < newEnd; ++i) added += device_text_of_command(after[i]);
  if (added.empty()) return {changed.text};
  if (both > 0) {
    const Draft whole = with_frequency_written(changed, now);
    return {whole.with_behind(whole.last_of(device_groups(whole)[both - 1]), added)};
  }
  if (!groups.empty()) {
    const std::size_t first = changed.first_of(device_groups(changed).front());
    return {changed.with_behind(first - 1, added)};
  }
  std::vector<std::string> ways;
  add_option(ways, changed, device_option(), added, now);
  return ways;
}

// --- The processor's own JTAG pins ---

// The words of the writer's form, which no reader knows.
std::set<std::size_t> own_pins_written(const Draft& draft) {
  std::set<std::size_t> found;
  for (std::size_t i = 0; i + 2 < draft.words.size(); ++i) {
    if (!is_device_option(draft.words[i])) continue;
    const std::string pair = " " + std::string(draft.word(i + 1)) + " " + std::string(draft.word(i + 2));
    const auto same = [](char a, char b) { return (a | 0x20) == (b | 0x20); };
    if (std::ranges::equal(pair, kOwnPinsWritten, same)) found.insert({i, i + 1, i + 2});
  }
  return found;
}

std::vector<std::string> ways_of_own_pins(const Draft& draft, const State& wanted) {
  if (wanted.cpuJtag != 0) return {};  // nothing that is read back
  const Setting& setting = *find_setting("cpu-jtag");
  return {removed(draft, values_of(draft, setting), false), removed(draft, values_of(draft, setting), true)};
}

std::string with_own_pins(std::string_view text, TextKind kind, const State& now) {
  std::vector<std::string> ways;
  const Draft draft{std::string(text), kind};
  const std::string form = " " + std::string(device_option().name.text()) + std::string(kOwnPinsWritten);
  const std::vector<std::size_t> groups = device_groups(draft);
  if (!groups.empty()) return draft.with_behind(draft.first_of(groups.front()) - 1, form);
  add_option(ways, draft, device_option(), form, now);
  return ways.empty() ? std::string(text) : ways.front();
}

std::vector<std::string> ways_of(const Draft& draft, const SettingRow& row, const State& now, const EditTask& task) {
  const std::string_view name = row.setting->name;
  if (name == "connection") return ways_of_connection(draft, task.wanted);
  if (name == "devices") return ways_of_devices(draft, now, task.wanted);
  if (name == "cpu-jtag") return ways_of_own_pins(draft, task.wanted);
  const auto place = static_cast<std::size_t>(&row - setting_rows().data());
  return ways_of_value(draft, row, now, task.wanted, task.toDefault.test(place));
}

// --- From what a text means to what is wanted ---

struct Meant {
  std::string text;
  State state;
  std::vector<const SettingRow*> wrong;  // the settings that are not as wanted
};

std::optional<Meant> meaning_of(std::string text, const EditTask& task) {
  Reading reading = read_state(task.processor, text, task.kind);
  if (!reading.understood) return std::nullopt;
  auto wrong = differing(reading.state, task.wanted);
  return Meant{std::move(text), std::move(reading.state), std::move(wrong)};
}

// Goes on from a text setting by setting, and takes only what the reader understands and what spoils nothing.
Meant step_by_step(Meant now, const EditTask& task) {
  for (bool moved = true; moved && !now.wrong.empty();) {
    moved = false;
    for (const SettingRow* const row : std::vector(now.wrong)) {
      const Draft draft(now.text, task.kind);
      for (std::string& way : ways_of(draft, *row, now.state, task)) {
        if (way == now.text) continue;
        std::optional<Meant> next = meaning_of(std::move(way), task);
        const bool better =
            next && next->wrong.size() < now.wrong.size() && std::ranges::includes(now.wrong, next->wrong, {}, {}, {});
        if (!better) continue;
        now = std::move(*next);
        moved = true;
        break;
      }
      if (moved) break;
    }
  }
  return now;
}

// The first way of each setting, one after the other: for changes that are not understood one by one.
std::optional<Meant> all_at_once(const EditTask& task) {
  std::string text(task.text);
  for (const SettingRow* const row : differing(task.before, task.wanted)) {
    const Draft draft(std::move(text), task.kind);
    const std::vector<std::string> ways = ways_of(draft, *row, task.before, task);
    text = ways.empty() ? draft.text : ways.front();
  }
  return meaning_of(std::move(text), task);
}

// --- Anew ---

// The text with its command, which for a file is the line that is read, replaced.
std::string with_command(const EditTask& task, std::string_view command) {
  if (task.kind != TextKind::optionFile) return std::string(command);
  const std::size_t begin = std::min(task.text.find_first_not_of('\n'), task.text.size());
  std::size_t end = std::min(task.text.find('\n', begin), task.text.size());
  if (end > begin && task.text[end - 1] == '\r') --end;
  return std::string(task.text).replace(begin, end - begin, command);
}

// Words that set nothing, as they stand: options that are accepted and forgotten, and what is not looked at.
std::vector<std::string> words_without_setting(std::string_view text, TextKind kind) {
  const Draft draft{std::string(text), kind};
  const std::string_view line = kind == TextKind::optionFile ? option_line(text) : text;
  const auto from = static_cast<std::size_t>(line.empty() ? 0 : line.data() - text.data());
  std::vector<std::string> found;
  std::size_t group = 0;
  for (std::size_t i = 0; i < draft.words.size(); ++i) {
    const WalkedWord& word = draft.words[i];
    const bool inCommand = word.begin >= from && text.substr(from, word.begin - from).find('\n') == std::string::npos;
    const bool isForgotten = word.option != nullptr && sets_nothing(*word.option);
    if (!inCommand || (!isForgotten && draft.is_read(i))) continue;
    if (isForgotten && word.group == group) {
      found.back() += " " + std::string(draft.word(i));
    } else {
      found.emplace_back(draft.word(i));
    }
    group = isForgotten ? word.group : 0;
  }
  return found;
}

std::vector<Loss> losses_between(const EditTask& task, std::string_view text, const Reading& reading) {
  std::vector<Loss> losses;
  if (reading.understood) {
    for (const SettingRow* const row : differing(reading.state, task.wanted)) {
      const std::string value = value_text(*row->setting, value_of(*row, task.wanted));
      losses.push_back(
          {row->setting, std::string(row->setting->name) + " " + value, why_not_written(*row, task.wanted)});
    }
  }
  std::vector<std::string> kept = words_without_setting(text, task.kind);
  for (std::string& words : words_without_setting(task.text, task.kind)) {
    const auto found = std::ranges::find(kept, words);
    if (found != kept.end()) {
      kept.erase(found);
    } else {
      losses.push_back({nullptr, std::move(words), "a command written anew does not have it"});
    }
  }
  return losses;
}

std::string why_not_read(const std::string& text, TextKind kind, const Reading& reading) {
  const std::size_t begin = std::min(text.find_first_not_of('\n'), text.size());
  const std::size_t size = std::min(text.find('\n', begin), text.size()) - begin;
  if (kind == TextKind::optionFile && size > kLongestLine) {
    return "the command has " + std::to_string(size) + " characters, and " + std::to_string(kLongestLine) +
           " are read back";
  }
  if (reading.understood) return {};
  return "the debugger accepts it, but it is not read back" +
         (reading.engineText.empty() ? std::string() : ": " + reading.engineText);
}

std::vector<Difference> differences_between(const State& before, const State& after) {
  std::vector<Difference> found;
  for (const SettingRow* const row : differing(before, after)) {
    found.push_back({row->setting, value_of(*row, before), value_of(*row, after)});
  }
  return found;
}

Edit finished(const EditTask& task, std::string text, bool anew) {
  Edit edit;
  edit.text = std::move(text);
  edit.anew = anew;
  const Reading reading = read_state(task.processor, edit.text, task.kind);
  edit.differences = differences_between(task.before, reading.understood ? reading.state : task.wanted);
  edit.losses = losses_between(task, edit.text, reading);
  edit.notReadBack = why_not_read(edit.text, task.kind, reading);
  return edit;
}

}  // namespace

Expected<SettingSet> written_settings(const State& state) {
  Expected<std::string> command = write_state(state, TextKind::command);
  if (!command) return command.error();
  const Draft draft(std::move(*command), TextKind::command);
  const bool hasPins = !own_pins_written(draft).empty();
  SettingSet written;
  for (const SettingRow& row : setting_rows()) {
    const bool isConnection = row.setting->name == "connection";
    const bool isPins = row.setting->name == "cpu-jtag" && hasPins;
    const auto place = static_cast<std::size_t>(&row - setting_rows().data());
    written.set(place, isConnection || isPins || !values_of(draft, *row.setting).empty());
  }
  return written;
}

std::string why_not_written(const SettingRow& row, const State& state) {
  if (!row.applies.holds(state)) return row.applies.otherwise;
  for (const Option& option : options()) {
    for (const Keyword& keyword : option.group.keywords) {
      if (!is_about(&keyword, *row.setting) || keyword.written.holds == kAlways.holds) continue;
      const bool isNever = keyword.written.holds == nullptr;
      std::string why = (isNever ? "it is never written: " : "it is written ") + std::string(keyword.written.words);
      std::ranges::replace(why, '`', '\'');
      return why;
    }
  }
  return "a command for this connection does not tell it";
}

std::string without_own_pins(std::string_view text, TextKind kind) {
  const Draft draft{std::string(text), kind};
  return without(draft, own_pins_written(draft));
}

Expected<Edit> write_anew(const EditTask& task) {
  const Expected<std::string> command = write_state(task.wanted, task.kind);
  if (!command) return command.error();
  return finished(task, with_command(task, *command), true);
}

Expected<Edit> edit_text(const EditTask& task) {
  if (differing(task.before, task.wanted).empty()) {
    Edit same;
    same.text = task.text;
    return same;
  }
  if (task.wanted.cpuJtag != 0 && task.before.cpuJtag == 0) {
    State readable = task.wanted;
    readable.cpuJtag = 0;
    Expected<Edit> edit = edit_text({task.processor, task.text, task.kind, task.before, readable, task.toDefault});
    if (!edit) return edit;
    if (edit->text.empty()) {
      const Expected<std::string> command = write_state(readable, task.kind);
      if (!command) return command.error();
      edit->text = *command;
      edit->anew = true;
    }
    std::vector<Loss> losses = std::move(edit->losses);
    const bool anew = edit->anew;
    edit = finished(task, with_own_pins(edit->text, task.kind, readable), anew);
    edit->losses = std::move(losses);
    return edit;
  }
  std::optional<Meant> best;
  if (std::optional<Meant> begin = meaning_of(std::string(task.text), task); begin && !task.text.empty()) {
    best = step_by_step(std::move(*begin), task);
    if (!best->wrong.empty()) {
      if (std::optional<Meant> whole = all_at_once(task)) best = step_by_step(std::move(*whole), task);
    }
    if (best->wrong.empty()) return finished(task, std::move(best->text), false);
  }
  Expected<Edit> anew = write_anew(task);
  if (!anew || anew->losses.empty()) return anew;
  // What the writer does not write may be put in all the same.
  std::optional<Meant> written = meaning_of(anew->text, task);
  if (!written) return anew;
  return finished(task, step_by_step(std::move(*written), task).text, true);
}

}  // namespace SdkDebugDialog
