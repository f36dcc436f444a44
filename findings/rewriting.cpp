// What a text written anew would lose.

#include <algorithm>
#include <string>

#include "SdkDebugDialog/OptionFile.h"
#include "findings/effects.h"
#include "options/groups.h"
#include "settings/catalogue.h"
#include "settings/edit.h"
#include "settings/engine_text.h"

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

// What is known not to be read back, if it is said; null otherwise.
const Said* not_read_back(const Examined& examined) {
  const auto found =
      std::ranges::find_if(examined.lasts, [](const Said& said) { return *said.row->notReadBack != '\0'; });
  return found != examined.lasts.end() ? &*found : nullptr;
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
  const Reading reading = read_state(subject.processor, *written, subject.kind);
  if (reading.understood) check_lost(subject, examined, state, reading.state, report);
  if (subject.kind == TextKind::optionFile && written->size() > kLongestLine) {
    report.add(Code::notReadBack, examined.targetWord,
               "written anew, the command has " + std::to_string(written->size()) + " bytes, and " +
                   std::to_string(kLongestLine) + " are read",
               kKeep);
  } else if (!reading.understood) {
    const Said* const said = not_read_back(examined);
    std::string why = said != nullptr ? std::string(": ") + said->row->notReadBack : std::string();
    std::ranges::replace(why, '`', '\'');
    report.add(Code::notReadBack, said != nullptr ? said->word : examined.targetWord,
               "written anew, the command is not read back" + why, kKeep);
  }
}

}  // namespace SdkDebugDialog
