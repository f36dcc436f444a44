// Edits in place, setting by setting: each new text is read before it is accepted. Commands written anew.

#include "settings/edit.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "options/option_file.h"
#include "settings/Draft.h"
#include "settings/engine_text.h"
#include "settings/ways.h"
#include "settings/words.h"

namespace SdkDebugDialog {
namespace {

// --- In place ---

struct Meant {
  std::string text;
  State state;
  std::vector<const SettingRow*> wrong;  // the settings that are not as wanted
};

std::optional<Meant> meaning_of(std::string text, const EditTask& task) {
  Reading reading = read_state(task.processor, text, task.written);
  if (!reading.understood) return std::nullopt;
  auto wrong = differing(reading.state, task.wanted);
  return Meant{std::move(text), std::move(reading.state), std::move(wrong)};
}

// A text in which fewer settings are wrong, and none that was right; nothing if no way of one setting leads to one.
std::optional<Meant> next_step(const Meant& now, const EditTask& task) {
  const Draft draft(now.text, task.written);
  const Meanings meanings = {task.before, now.state, task.wanted};
  for (const SettingRow* const row : now.wrong) {
    for (std::string& way : ways_of(draft, *row, meanings, task.toDefault.test(place_of(*row)))) {
      if (way == now.text) continue;
      std::optional<Meant> next = meaning_of(std::move(way), task);
      if (next && next->wrong.size() < now.wrong.size() && std::ranges::includes(now.wrong, next->wrong)) return next;
    }
  }
  return std::nullopt;
}

// Goes on from a text setting by setting. It can end early where two settings must change together.
Meant step_by_step(Meant now, const EditTask& task) {
  while (std::optional<Meant> next = next_step(now, task)) now = std::move(*next);
  return now;
}

// Removes the words of settings that were reset, where the text means the same without them.
std::string without_needless(Meant now, const EditTask& task) {
  for (const SettingRow& row : setting_rows()) {
    if (!task.toDefault.test(place_of(row))) continue;
    for (std::string& way : ways_without(Draft(now.text, task.written), row)) {
      std::optional<Meant> next = meaning_of(std::move(way), task);
      if (!next || !next->wrong.empty()) continue;
      now = std::move(*next);
      break;
    }
  }
  return std::move(now.text);
}

// Changes all settings at once, each in its best way: for changes that the reader only understands together.
std::optional<Meant> all_at_once(const EditTask& task) {
  std::string text(task.text);
  for (const SettingRow* const row : differing(task.before, task.wanted)) {
    const Draft draft(std::move(text), task.written);
    const std::vector<std::string> ways =
        ways_of(draft, *row, {task.before, task.before, task.wanted}, task.toDefault.test(place_of(*row)));
    text = ways.empty() ? draft.text : ways.front();
  }
  return meaning_of(std::move(text), task);
}

// --- Anew ---

// The line of a file that is read, of any length; the whole of any other text.
std::string_view command_in(std::string_view text, TextKind kind) {
  if (kind != TextKind::optionFile) return text;
  text.remove_prefix(std::min(text.find_first_not_of('\n'), text.size()));
  return text.substr(0, text.find('\n'));
}

// The text with its command, which for a file is the line that is read, replaced.
std::string with_command(const EditTask& task, std::string_view command) {
  std::string_view old = command_in(task.text, task.kind);
  if (old.ends_with('\r')) old.remove_suffix(1);
  return std::string(task.text).replace(static_cast<std::size_t>(old.data() - task.text.data()), old.size(), command);
}

// Words that set nothing, as they stand: options that are accepted and forgotten, and words that are not read.
std::vector<std::string> words_without_setting(std::string_view text, TextKind kind) {
  const std::string_view command = command_in(text, kind);
  const auto begin = static_cast<std::size_t>(command.data() - text.data());
  const std::size_t end = begin + command.size();
  const Draft draft{std::string(text), kind};
  std::vector<std::string> found;
  std::size_t group = 0;
  for (std::size_t i = 0; i < draft.words.size(); ++i) {
    const WalkedWord& word = draft.words[i];
    const bool isForgotten = word.option != nullptr && sets_nothing(*word.option);
    if (word.begin < begin || word.end > end || (!isForgotten && draft.is_read(i))) continue;
    if (isForgotten && word.group == group) {
      found.back() += spaced(draft.word(i));
    } else {
      found.emplace_back(draft.word(i));
    }
    group = isForgotten ? word.group : 0;
  }
  return found;
}

Loss loss_of(const SettingRow& row, const State& wanted) {
  const std::string value = value_text(*row.setting, value_of(row, wanted));
  return {row.setting, std::string(row.setting->name) + " " + value, why_not_written(row, wanted)};
}

// The settings that a text that is not read back has no words for.
std::vector<Loss> unsaid_losses(const EditTask& task, const Draft& draft) {
  const State defaults = defaults_of(task.processor);
  const auto said = said_by(draft);
  std::vector<Loss> losses;
  for (const SettingRow* const row : differing(defaults, task.wanted)) {
    const Setting& setting = *row->setting;
    const bool hasWords = setting.group != "identity" && setting.group != "connection" && setting.name != "cpu-jtag";
    if (hasWords && !is_said(setting, said)) losses.push_back(loss_of(*row, task.wanted));
  }
  return losses;
}

std::vector<Loss> losses_between(const EditTask& task, std::string_view text, const Reading& reading) {
  std::vector<Loss> losses;
  if (reading.understood) {
    for (const SettingRow* const row : differing(reading.state, task.wanted)) {
      losses.push_back(loss_of(*row, task.wanted));
    }
  } else {
    losses = unsaid_losses(task, {std::string(text), task.written});
  }
  std::vector<std::string> kept = words_without_setting(text, task.written);
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
  const std::size_t size = command_in(text, kind).size();
  if (kind == TextKind::optionFile && size > kLongestLine) {
    return "the command has " + std::to_string(size) + " characters, and " + std::to_string(kLongestLine) +
           " are read back";
  }
  if (reading.understood) return {};
  return "it is not read back: " +
         (reading.engineText.empty() ? not_understood(reading, text).message : reading.engineText);
}

Edit finished(const EditTask& task, std::string text, bool anew) {
  Edit edit;
  edit.text = std::move(text);
  edit.anew = anew;
  const Reading reading = read_state(task.processor, edit.text, task.written);
  const State& after = reading.understood ? reading.state : task.wanted;
  for (const SettingRow* const row : differing(task.before, after)) {
    edit.differences.push_back({row->setting, value_of(*row, task.before), value_of(*row, after)});
    for (std::string& warning : warnings_of(*row, after)) {
      if (std::ranges::find(edit.warnings, warning) == edit.warnings.end()) edit.warnings.push_back(std::move(warning));
    }
  }
  edit.losses = losses_between(task, edit.text, reading);
  edit.notReadBack = why_not_read(edit.text, task.written, reading);
  return edit;
}

}  // namespace

Expected<SettingSet> written_settings(const State& state) {
  Expected<std::string> command = write_state(state, TextKind::command);
  if (!command) return command.error();
  const Draft draft(std::move(*command), TextKind::command);
  const bool hasOwnPins = !own_pins_written(draft).empty();
  const auto said = said_by(draft);
  SettingSet written;
  for (const SettingRow& row : setting_rows()) {
    const bool isConnection = row.setting->name == "connection";
    const bool isOwnPins = row.setting->name == "cpu-jtag" && hasOwnPins;
    written.set(place_of(row), isConnection || isOwnPins || is_said(*row.setting, said));
  }
  return written;
}

std::string why_not_written(const SettingRow& row, const State& state) {
  if (std::string why = why_not(row, state); !why.empty()) return why;
  if (row.setting->kind == SettingKind::devices) return "of a device number, part, length and IDCODE are written";
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
  Changes changes(draft);
  for (const std::size_t word : own_pins_written(draft)) changes.remove(word);
  return changes.made();
}

Expected<Edit> write_anew(const EditTask& task) {
  const Expected<std::string> command = write_state(task.wanted, task.kind);
  if (!command) return command.error();
  return finished(task, with_command(task, *command), true);
}

Expected<Edit> edit_text(const EditTask& task) {
  if (differing(task.before, task.wanted).empty() && (task.toDefault.none() || task.text.empty())) {
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
    edit = finished(task, with_own_pins({edit->text, task.kind}, readable), anew);
    edit->losses = std::move(losses);
    return edit;
  }
  // The rest of a line that is too long is not read: where it is cut depends on every word before.
  const bool isCut = task.kind == TextKind::optionFile && command_in(task.text, task.kind).size() > kLongestLine;
  std::optional<Meant> best;
  if (!task.text.empty() && !isCut) best = meaning_of(std::string(task.text), task);
  if (best) {
    best = step_by_step(std::move(*best), task);
    if (!best->wrong.empty()) {
      if (std::optional<Meant> whole = all_at_once(task)) best = step_by_step(std::move(*whole), task);
    }
    if (best->wrong.empty()) return finished(task, without_needless(std::move(*best), task), false);
  }
  Expected<Edit> anew = write_anew(task);
  if (!anew || anew->losses.empty()) return anew;
  // What the writer leaves out can perhaps be added to its text.
  std::optional<Meant> written = meaning_of(anew->text, task);
  if (!written) return anew;
  return finished(task, step_by_step(std::move(*written), task).text, true);
}

}  // namespace SdkDebugDialog
