#pragma once

// The catalogue of settings: everything that can be set for a processor, for forms, command lines and documents.
//
//   for (const Setting& setting : settings()) ...
//
// What a setting is for one configuration (its value, its choices, whether it applies) is asked of the configuration:
// Configuration.h.

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "SdkDebugDialog/Expected.h"
#include "SdkDebugDialog/Export.h"
#include "SdkDebugDialog/JtagOption.h"

namespace SdkDebugDialog {

inline bool operator==(const JtagOption& a, const JtagOption& b) {
  return a.partname == b.partname && a.idcode == b.idcode && a.irlength == b.irlength && a.devicenr == b.devicenr &&
         a.isfpga == b.isfpga && a.hardppc == b.hardppc && a.nppc == b.nppc;
}
inline bool operator!=(const JtagOption& a, const JtagOption& b) { return !(a == b); }

enum class SettingKind {
  flag,       // bool
  number,     // std::int64_t
  address,    // std::int64_t; std::monostate for "not set"
  frequency,  // std::int64_t, in Hz; 0 for "not set"
  size,       // std::int64_t, in bytes
  text,       // std::string; empty for "not set"
  word,       // std::string: one of a few words
  words,      // std::vector<std::string>: several of a few words
  devices,    // std::vector<JtagOption>: the JTAG chain
};

// The value of a setting; its kind tells the alternative.
using SettingValue =
    std::variant<std::monostate, bool, std::int64_t, std::string, std::vector<std::string>, std::vector<JtagOption>>;

// One setting. All settings live as long as the library is loaded; two are the same if their addresses are.
struct Setting {
  std::string_view name;     // such as "stub-port": stable, for scripts and files
  std::string_view group;    // such as "stub": settings of a group follow each other
  std::string_view label;    // a few words for a form
  std::string_view meaning;  // a sentence
  SettingKind kind = SettingKind::text;
  std::string_view unit;     // "Hz", "baud", "bytes", or empty
  std::string_view initial;  // the default, where it is no fixed value: in words, such as "that of the cable"
  // The names of other settings that may change when this one is set, separated by a blank; empty: none.
  std::string_view follows;
  bool readOnly = false;  // what the design or another setting tells
  // Of SettingKind::word and words: every word, whether or not it can be chosen now. Those of "cable" are in the order
  // of Engine::CableType.
  std::vector<std::string_view> words = {};
};

// Every setting, in the order in which changes are applied: a setting comes before those that depend on it.
SDKDEBUGDIALOG_API const std::vector<Setting>& settings();

// The setting of a name; null when there is none.
SDKDEBUGDIALOG_API const Setting* find_setting(std::string_view name);

// A value as text, which parse_value reads back: "12 MHz", "0x70000000", "on", "USER3",
// "1,prom32,16,0xa5059093:2,fpga,10,0x0a001093" (but for a part name with a comma or a colon); empty for "not set".
SDKDEBUGDIALOG_API std::string value_text(const Setting& setting, const SettingValue& value);

// A text as people type it. Errors: ErrorCode::invalidValue, with what is accepted.
//
//   flag       on, off; also yes, no, true, false, 1, 0
//   number     16, 1_000, 0x10; with a fraction or an exponent if the value is whole: 12e6
//   frequency  the same, and 12M, 12 MHz, 200k, 1.5 MHz: powers of 1,000; baud rates as well
//   size       the same, and 64K, 64 KB, 1M: powers of 1,024; addresses as well
//   address    nothing, "none" and "unset" for "not set"
//   text       one word without a dash in front, since the connect command has no quoting; empty for "not set"
//   word       a word in any case
//   devices    NR,PART,IRLENGTH,IDCODE and if needed ,FPGA,HARDPPC,PPCCOUNT for each, a colon between; "none"
//
// A number with a leading 0, such as 010, is refused: the connect command would take it as octal.
SDKDEBUGDIALOG_API Expected<SettingValue> parse_value(const Setting& setting, std::string_view text);

// The candidate that a mistyped name resembles most; empty when it resembles none.
SDKDEBUGDIALOG_API std::string_view nearest_name(std::string_view name,
                                                 const std::vector<std::string_view>& candidates);

}  // namespace SdkDebugDialog
