// What a text written anew would lose.

#include <algorithm>
#include <string>

#include "SdkDebugDialog/OptionFile.h"
#include "findings/effects.h"
#include "options/groups.h"
#include "settings/catalogue.h"
#include "settings/edit.h"
#include "settings/engine_text.h"
#include "settings/words.h"

namespace SdkDebugDialog {
namespace {

constexpr const char* kKeep = "keep the text, or change it in place";

// Why this is not written: the words of the row itself, since a setting can be said by several rows.
std::string why_lost(const Said& said, const SettingRow& row, const State& state) {
  const bool isNever = said.row->written.holds == nullptr;
  if (isNever && &said.option->group == &kConfigdevice) return said.row->written.words;
  if (said.row->written.holds == kAlways.holds || !why_not(row, state).empty()) return why_not_written(row, state);
  std::string why = (isNever ? "it is never written: " : "it is written ") + std::string(said.row->written.words);
  std::ranges::replace(why, '`', '\'');
  return why;
}

void check_lost(const Subject& subject, const Examined& examined, const State& state, const State& readBack,
                Report& report) {
  for (const SettingRow* const row : differing(readBack, state)) {
    for (const Said& said : examined.lasts) {
      const Setting* const setting = setting_of(*said.row);
      const bool isDevice = row->setting->kind == SettingKind::devices && &said.option->group == &kConfigdevice;
      const bool isSetting = setting != nullptr && &told_by(*row->setting) == setting;
      // Of a device most is written; what is never written is lost.
      if (isDevice ? said.row->written.holds != nullptr : !isSetting) continue;
      if (report.has(said.word) || report.has(said.optionWord) || report.has(said.value)) continue;
      const Place place = {said.word.begin, std::max(said.word.end, said.value.end)};
      // Several settings can be said by the same words, such as host and port.
      if (report.has(place)) continue;
      Finding& finding = report.add(Code::lostWhenWritten, place,
                                    quoted(subject.in(place)) + " is lost if the command is written anew", kKeep);
      finding.remarks.push_back({0, 0, "the reason: " + why_lost(said, *row, state)});
    }
  }
}

// Why what is written for this is not read back; empty where it is.
std::string why_not_read_back(const Said& said) {
  std::string why = said.row->notReadBack;
  std::ranges::replace(why, '`', '\'');
  return why;
}

// Each argument is written as a word, and an empty one is none.
void check_arguments(const Examined& examined, const State& state, Report& report) {
  const Said* const said = examined.said(kCable, "modulearg");
  if (said == nullptr || !why_not(row_named("module-arguments"), state).empty()) return;
  const auto isEmpty = [](std::string_view argument) { return argument.empty(); };
  if (std::ranges::none_of(split(state.cable.modulearg, ';'), isEmpty)) return;
  report.add(Code::notReadBack, said->value,
             "written anew, the command is not read back: ';' separates arguments, and an empty one is no word", kKeep);
}

// Other reasons are findings of their own: a module that is missing, or a frequency that the cable does not support.
void check_read_back(const Examined& examined, Report& report) {
  const auto isReason = [](const Said& said) { return !why_not_read_back(said).empty(); };
  const auto found = std::ranges::find_if(examined.lasts, isReason);
  if (found == examined.lasts.end()) return;
  report.add(Code::notReadBack, found->word, "written anew, the command is not read back: " + why_not_read_back(*found),
             kKeep);
}

}  // namespace

void check_rewriting(const Subject& subject, const Examined& examined, const State& state, Report& report) {
  // A command for another kind of processor is not written as such.
  if (report.has(examined.targetWord)) return;
  const Expected<std::string> written = write_state(state, subject.kind);
  if (!written) {
    const Said* const type = examined.said(kCable, "type");
    const bool isCable = type != nullptr && cable_type(state.cable.type).notWritten != nullptr;
    report.add(Code::cannotBeWritten, isCable ? type->value : examined.targetWord, written.error().message, kKeep);
    return;
  }
  if (*written == subject.in(subject.line)) return;
  check_arguments(examined, state, report);
  const Reading reading = read_state(subject.processor, *written, subject.kind);
  if (reading.understood) check_lost(subject, examined, state, reading.state, report);
  if (subject.kind == TextKind::optionFile && written->size() > kLongestLine) {
    report.add(Code::notReadBack, examined.targetWord,
               "written anew, the command has " + std::to_string(written->size()) + " bytes, and " +
                   std::to_string(kLongestLine) + " are read",
               kKeep);
  } else if (!reading.understood) {
    check_read_back(examined, report);
  }
}

}  // namespace SdkDebugDialog
