#pragma once

// Makes a text mean other settings.

#include <bitset>
#include <string>
#include <string_view>

#include "SdkDebugDialog/Configuration.h"
#include "settings/State.h"
#include "settings/catalogue.h"

namespace SdkDebugDialog {

// Bits of settings, by their places in the catalogue.
using SettingSet = std::bitset<64>;

// A text, and what it is to mean.
struct EditTask {
  const Processor& processor;
  std::string_view text;
  TextKind kind;
  const State& before;      // what the text means
  const State& wanted;      // what it is to mean
  SettingSet toDefault;     // whose words go if their defaults are read then
  TextKind written = kind;  // what the new text is to be read as
};

// In place if that is possible, else anew. ErrorCode::cannotBeWritten.
Expected<Edit> edit_text(const EditTask& task);

// As the engine writes it; nothing that it does not write is added. ErrorCode::cannotBeWritten.
Expected<Edit> write_anew(const EditTask& task);

// The settings that the command has which the engine writes for the state; ErrorCode::cannotBeWritten.
Expected<SettingSet> written_settings(const State& state);
// Why a command for the state has not got a setting, by what the syntax tells of it.
std::string why_not_written(const SettingRow& row, const State& state);

// Removes what cpu-jtag makes the writer write, which no reader takes.
std::string without_own_pins(std::string_view text, TextKind kind);

}  // namespace SdkDebugDialog
