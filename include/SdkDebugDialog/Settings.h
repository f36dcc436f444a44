// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The catalogue of settings: everything that can be set for a processor, for forms, command lines and documents.
///
///     for (const Setting& setting : settings()) ...
///
/// What depends on the configuration at hand (the value, the choices, whether the setting applies) is in
/// Configuration.h.

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "SdkDebugDialog/Expected.h"
#include "SdkDebugDialog/Export.h"
#include "SdkDebugDialog/JtagOption.h"

namespace SdkDebugDialog {

/// Whether all fields are equal.
inline bool operator==(const JtagOption& a, const JtagOption& b) {
  return a.partname == b.partname && a.idcode == b.idcode && a.irlength == b.irlength && a.devicenr == b.devicenr &&
         a.isfpga == b.isfpga && a.hardppc == b.hardppc && a.nppc == b.nppc;
}
/// Whether a field differs.
inline bool operator!=(const JtagOption& a, const JtagOption& b) { return !(a == b); }

/// What values a setting can have, and which alternative of a SettingValue holds them.
enum class SettingKind {
  flag,       ///< bool
  number,     ///< std::int64_t
  address,    ///< std::int64_t; std::monostate for "not set"
  frequency,  ///< std::int64_t, in Hz; 0 for "not set"
  size,       ///< std::int64_t, in bytes
  text,       ///< std::string; empty for "not set"
  word,       ///< std::string: one of a few words
  words,      ///< std::vector<std::string>: several of a few words
  devices,    ///< std::vector<JtagOption>: the JTAG chain
};

/// The value of a setting. The alternative depends on the kind: see SettingKind.
using SettingValue =
    std::variant<std::monostate, bool, std::int64_t, std::string, std::vector<std::string>, std::vector<JtagOption>>;

/// One setting. Settings exist once, as long as the library is loaded; compare their addresses.
/// Fields are added at its end, in a major version only.
struct Setting {
  std::string_view name;                 ///< such as "stub-port": stable, for scripts and files
  std::string_view group;                ///< such as "stub": settings of a group follow each other
  std::string_view label;                ///< a few words for a form
  std::string_view meaning;              ///< one sentence: what the setting means
  SettingKind kind = SettingKind::text;  ///< what values it can have
  std::string_view unit;                 ///< "Hz", "baud", "bytes", or empty
  std::string_view initial;              ///< a default that is no fixed value, in words, such as "that of the cable"
  /// The names of other settings that may change when this one is set, separated by blanks.
  std::string_view follows;
  bool readOnly = false;  ///< determined by the design or by another setting; it cannot be set
  /// Of SettingKind::word and words: every word, whether or not it can be chosen now. Those of "cable" are in the order
  /// of Engine::CableType.
  std::vector<std::string_view> words = {};
};

/// A group of settings: a tab or a heading of a form.
/// Fields are added at its end, in a major version only.
struct SettingGroup {
  std::string_view name;   ///< Setting::group of its settings, such as "jtag-chain"
  std::string_view label;  ///< for a form, such as "JTAG chain"
};

/// Every setting, in the order in which changes are applied: a setting comes before those that depend on it.
SDKDEBUGDIALOG_API const std::vector<Setting>& settings();

/// Every group, in the order of settings().
SDKDEBUGDIALOG_API const std::vector<SettingGroup>& setting_groups();

/// The setting of a name; null when there is none.
SDKDEBUGDIALOG_API const Setting* find_setting(std::string_view name);

/// A value as text, which parse_value reads back: "12 MHz", "0x70000000", "on", "USER3",
/// "1,prom32,16,0xa5059093:2,fpga,10,0x0a001093"; empty for "not set". A chain that has a part name with a comma or a
/// colon is not read back.
SDKDEBUGDIALOG_API std::string value_text(const Setting& setting, const SettingValue& value);

/// The value of a text as people type it. ErrorCode::invalidValue, with what is accepted. Only the form is checked
/// here: Configuration::set checks the range and what the configuration at hand accepts.
///
///     flag       on, off; also yes, no, true, false, 1, 0
///     number     16, 1_000, 0x10; with a fraction or an exponent if the value is whole: 12e6
///     frequency  the same, and 12M, 12 MHz, 200k, 1.5 MHz: powers of 1,000; baud rates as well
///     size       the same, and 64K, 64 KB, 1M: powers of 1,024; addresses as well
///     address    the same as a size; empty, "none" or "unset" for "not set"
///     text       any text; empty for "not set"
///     word       one of the words of the setting, in any case
///     words      such words, separated by commas
///     devices    NR,PART,IRLENGTH,IDCODE for each, or these and ,FPGA,HARDPPC,PPCCOUNT, a colon between; HARDPPC is
///                none, ppc405 or other; empty or "none" for no device
///
/// A number with a leading 0, such as 010, is refused: the connect command would take it as octal.
SDKDEBUGDIALOG_API Expected<SettingValue> parse_value(const Setting& setting, std::string_view text);

/// The candidate that a mistyped name resembles most; empty when it resembles none.
SDKDEBUGDIALOG_API std::string_view nearest_name(std::string_view name,
                                                 const std::vector<std::string_view>& candidates);

}  // namespace SdkDebugDialog
