// The values of settings: kept, checked, compared.

#include <algorithm>
#include <iterator>
#include <string>

#include "SdkDebugDialog/Engine.h"
#include "options/field.h"
#include "settings/catalogue.h"
#include "settings/number_text.h"
#include "settings/words.h"

namespace SdkDebugDialog {
namespace {

Records records_of(const State& state) {
  // Records has no const pointers, because readers and writers share it; here nothing is changed.
  auto& s = const_cast<State&>(state);
  return {.processor = &s.processor, .cable = &s.cable};
}

// --- Plain values ---

SettingValue plain_value(const SettingRow& row, const State& state) {
  SettingValue value;
  with_field(row.field, records_of(state), [&]<class Stored>(const Stored& stored) {
    if constexpr (std::is_same_v<Stored, std::string>) {
      value = stored;
    } else {
      switch (row.setting->kind) {
        case SettingKind::flag:
          value = stored != 0;
          break;
        case SettingKind::address:
          if (static_cast<std::uint32_t>(stored) != kAddressNotSet) value = static_cast<std::int64_t>(stored);
          break;
        case SettingKind::word: {
          const auto word =
              std::ranges::find(row.traits.words, static_cast<std::uint32_t>(stored), &SettingWord::value);
          value = word != row.traits.words.end() ? std::string(word->name) : std::to_string(stored);
          break;
        }
        default:
          value = static_cast<std::int64_t>(stored);
      }
    }
  });
  return value;
}

void store_plain(const SettingRow& row, State& state, const SettingValue& value) {
  with_field(row.field, records_of(state), [&]<class Stored>(Stored& stored) {
    if constexpr (std::is_same_v<Stored, std::string>) {
      stored = std::get<std::string>(value);
    } else if (const auto* const number = std::get_if<std::int64_t>(&value)) {
      stored = static_cast<Stored>(*number);
    } else if (const auto* const flag = std::get_if<bool>(&value)) {
      stored = static_cast<Stored>(*flag);
    } else if (const auto* const name = std::get_if<std::string>(&value)) {
      stored = static_cast<Stored>(std::ranges::find(row.traits.words, *name, &SettingWord::name)->value);
    } else {
      stored = static_cast<Stored>(kAddressNotSet);
    }
  });
}

// --- Checks that hold for a kind of value ---

std::string check_number(const SettingRow& row, std::int64_t number) {
  if (number >= 0 && number <= row.traits.max) return {};
  const bool isAddress = row.setting->kind == SettingKind::address;
  const std::string max =
      isAddress ? address_text(static_cast<std::uint32_t>(row.traits.max)) : std::to_string(row.traits.max);
  return "it must be from 0 to " + max;
}

std::string check_text(const SettingRow& row, const std::string& text) {
  if (text.empty() || row.traits.manyWords || is_plain_word(text)) return {};
  return "it must be one word, without blanks and without a dash in front: a connect command has no quoting";
}

std::string check_word(const SettingRow& row, const State& state, const std::string& word) {
  const auto known = std::ranges::find(row.traits.words, word, &SettingWord::name);
  const auto choices = row.traits.choices != nullptr ? row.traits.choices(row, state) : std::vector<std::string>();
  if (known != row.traits.words.end() && (row.traits.choices == nullptr || row.traits.set != nullptr ||
                                          std::ranges::find(choices, word) != choices.end())) {
    return {};
  }
  std::vector<std::string> accepted = choices;
  if (row.traits.choices == nullptr) {
    for (const SettingWord& w : row.traits.words) accepted.emplace_back(w.name);
  }
  return "it must be one of " + joined(accepted, ", ");
}

// Which alternative of SettingValue a kind has; an address may be not set.
bool has_kind(const SettingRow& row, const SettingValue& value) {
  switch (row.setting->kind) {
    case SettingKind::flag:
      return std::holds_alternative<bool>(value);
    case SettingKind::number:
    case SettingKind::frequency:
    case SettingKind::size:
      return std::holds_alternative<std::int64_t>(value);
    case SettingKind::address:
      return std::holds_alternative<std::int64_t>(value) || std::holds_alternative<std::monostate>(value);
    case SettingKind::text:
    case SettingKind::word:
      return std::holds_alternative<std::string>(value);
    case SettingKind::words:
      return std::holds_alternative<std::vector<std::string>>(value);
    case SettingKind::devices:
      return std::holds_alternative<std::vector<JtagOption>>(value);
  }
  return false;
}

}  // namespace

SettingValue value_of(const SettingRow& row, const State& state) {
  return row.traits.get != nullptr ? row.traits.get(row, state) : plain_value(row, state);
}

SettingValue initial_of(const SettingRow& row, const State& state, const State& defaults) {
  return row.traits.initial != nullptr ? row.traits.initial(state, defaults) : value_of(row, defaults);
}

std::string why_invalid(const SettingRow& row, const State& state, const SettingValue& value) {
  if (!has_kind(row, value)) return "it is no value of this kind";
  if (const auto* const number = std::get_if<std::int64_t>(&value)) return check_number(row, *number);
  if (row.setting->kind == SettingKind::text) return check_text(row, std::get<std::string>(value));
  if (row.setting->kind == SettingKind::word) return check_word(row, state, std::get<std::string>(value));
  return {};
}

std::string set_value(const SettingRow& row, State& state, const SettingValue& value) {
  if (row.setting->readOnly) return "it cannot be set";
  if (row.traits.fixed != nullptr) {
    if (const char* const why = row.traits.fixed(state)) return std::string(why) + " and cannot be set";
  }
  if (row.traits.set != nullptr) return row.traits.set(row, state, value);
  store_plain(row, state, value);
  return {};
}

void reset_value(const SettingRow& row, State& state, const State& defaults) {
  const SettingValue initial = initial_of(row, state, defaults);
  if (row.traits.set == nullptr || row.traits.resetPlainly) {
    store_plain(row, state, initial);
  } else {
    row.traits.set(row, state, initial);
  }
}

std::vector<std::string> warnings_of(const SettingRow& row, const State& state) {
  std::vector<std::string> warnings;
  if (row.traits.warn != nullptr) row.traits.warn(state, warnings);
  return warnings;
}

std::vector<const SettingRow*> differing(const State& a, const State& b) {
  std::vector<const SettingRow*> found;
  for (const SettingRow& row : setting_rows()) {
    if (value_of(row, a) != value_of(row, b)) found.push_back(&row);
  }
  return found;
}

}  // namespace SdkDebugDialog
