#pragma once

// Edits a text so that it has other settings.

#include <bitset>
#include <string>
#include <string_view>

#include "SdkDebugDialog/Configuration.h"
#include "settings/State.h"
#include "settings/catalogue.h"

namespace SdkDebugDialog {

// A set of settings, by their places in the catalogue.
using SettingSet = std::bitset<64>;

// A text, and what it is to mean.
struct EditTask {
  const Processor& processor;
  std::string_view text;
  TextKind kind;
  const State& before;      // what the text means
  const State& wanted;      // what it is to mean
  SettingSet toDefault;     // those whose words are removed if the reader then gives the default
  TextKind written = kind;  // what the new text is to be read as
};

// In place if that is possible; otherwise the command is written anew. ErrorCode::cannotBeWritten.
Expected<Edit> edit_text(const EditTask& task);

// With the command as the engine writes it, and nothing added to it. ErrorCode::cannotBeWritten.
Expected<Edit> write_anew(const EditTask& task);

// The settings in the command that the engine writes for the state. ErrorCode::cannotBeWritten.
Expected<SettingSet> written_settings(const State& state);
// Why the command for the state does not have a setting, according to the tables of the syntax.
std::string why_not_written(const SettingRow& row, const State& state);

// Removes the words that the writer writes for cpu-jtag, which no reader accepts.
std::string without_own_pins(std::string_view text, TextKind kind);

}  // namespace SdkDebugDialog
