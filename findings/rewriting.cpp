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

void check_lost(const Examined& examined, const State& state, const State& readBack, Report& report) {
  for (const SettingRow* const row : differing(readBack, state)) {
    for (const Said& said : examined.lasts) {
      const Setting* const setting = setting_of(*said.row);
      const bool isDevice = row->setting->kind == SettingKind::devices && &said.option->group == &kConfigdevice;
      const bool isSetting = setting != nullptr && &told_by(*row->setting) == setting;
      // Of a device most is written; what is never written is lost.
      if (isDevice ? said.row->written.holds != nullptr : !isSetting) continue;
      if (report.has(said.word) || report.has(said.optionWord)) continue;
      report.add(Code::lostWhenWritten, said.word,
                 quoted(said.row->name.text()) + " is lost when the command is written anew: " +
                     (isDevice ? std::string(said.row->written.words) : why_not_written(*row, state)));
    }
  }
}

// Where a program would look for the reason.
Place place_of_not_read(const Examined& examined) {
  for (const Said& said : examined.lasts) {
    if (*said.row->notReadBack != '\0') return said.word;
  }
  return examined.targetWord;
}

}  // namespace

void check_rewriting(const Subject& subject, const Examined& examined, const State& state, Report& report) {
  const Expected<std::string> written = write_state(state, subject.kind);
  if (!written) {
    const Said* const type = examined.said(kCable, "type");
    const bool isCable = type != nullptr && cable_type(state.cable.type).notWritten != nullptr;
    report.add(Code::cannotBeWritten, isCable ? type->value : examined.targetWord, written.error().message);
    return;
  }
  if (*written == subject.in(subject.line)) return;
  const Reading reading = read_state(subject.processor, *written, subject.kind);
  if (reading.understood) check_lost(examined, state, reading.state, report);
  const bool isCut = subject.kind == TextKind::optionFile && written->size() > kLongestLine;
  if (!isCut && reading.understood) return;
  report.add(Code::notReadBack, place_of_not_read(examined),
             isCut ? "written anew, the command has " + std::to_string(written->size()) + " bytes, and " +
                         std::to_string(kLongestLine) + " are read"
                   : "written anew, the command is not read back: " + not_understood(reading, *written).message);
}

}  // namespace SdkDebugDialog
