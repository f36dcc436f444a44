#pragma once

// The description of an option group that its reader and its writer share: a table with one row per keyword.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>

#include "SdkDebugDialog/EngineImp.h"
#include "model/error_text.h"
#include "options/LetterCase.h"
#include "options/TokenCursor.h"
#include "options/number.h"
#include "options/row_name.h"
#include "options/status.h"
#include "options/text_out.h"

namespace SdkDebugDialog {

// What is_name misses: the first row whose name is the word because more letters than those of ASCII have cases; null
// when there is none.
template <class Row, std::size_t N>
const Row* find_in_locale(const Row (&rows)[N], std::string_view word, LetterCase& letterCase) {
  if (letterCase.is_ascii()) return nullptr;
  const Row* const found = std::ranges::find_if(rows, [&](const Row& r) { return letterCase.same(r.name, word); });
  return found != std::end(rows) ? found : nullptr;
}

// The row whose name is the word, in any case; null when there is none. No two names of a table differ in case alone.
template <const auto& rows>
auto find_row(std::string_view word, LetterCase& letterCase) -> decltype(&rows[0]) {
  decltype(&rows[0]) found = nullptr;
  any_row<rows>([&]<std::size_t i> {
    if (is_name<rows, i>(word, letterCase)) found = &rows[i];
    return found != nullptr;
  });
  return found != nullptr ? found : find_in_locale(rows, word, letterCase);
}

// The row that the next token names; null when it names none.
template <const auto& rows>
auto next_row(TokenCursor& in) -> decltype(&rows[0]) {
  std::string_view word;
  return in.next(word) != kEnd ? find_row<rows>(word, in.letter_case()) : nullptr;
}

// Where a row stands in its table.
template <class Row, std::size_t N>
consteval std::size_t row_index(const Row (&rows)[N], std::string_view name) {
  std::size_t i = 0;
  while (rows[i].name != name) ++i;
  return i;
}

// A value that is one of a few words.
struct Word {
  std::string_view name;  // as written
  std::uint32_t value;
};

// A keyword with its value, as met in the text.
struct Pair {
  std::string_view key;
  std::string_view value;
  LetterCase& letterCase;  // for the value
};

// One keyword of a group that fills a Record. Rows stand in writing order.
template <class Record>
struct Keyword {
  using Field = std::variant<std::monostate, std::int8_t Record::*, std::uint8_t Record::*, std::int32_t Record::*,
                             std::uint32_t Record::*, std::string Record::*>;

  std::string_view name;  // as written; read in any case
  Field field = {};       // where the value is kept
  bool isSigned = false;  // read the number the signed way
  bool hex = false;       // write the number in hexadecimal

  // Reads the value instead of a plain store into the field: kValue or kError.
  int (*read)(const Pair& pair, Record& record, EngineImp& imp) = nullptr;

  // Whether a record's value is written; null: it is read and never written.
  bool (*written)(const Record& record) = nullptr;
  // Writes the value where the field alone does not tell it.
  void (*write)(TextOut::Pen& pen, const Record& record) = nullptr;
  std::string_view gap = " ";  // what stands before the keyword
};

// What the pairs of a group are read into.
template <class Record>
struct Reading {
  Record& record;
  EngineImp& imp;
  LetterCase& letterCase;
  std::uint32_t seen = 0;  // a bit for each row of the table that was read without an error
  bool refused = false;    // a pair that was complete ended the reading with an error
};

// Reads the value of one row's keyword: kValue or kError. A number is cut to the field's width. The row is known when
// this is compiled, so that what it does not need costs nothing.
template <const auto& rows, std::size_t i, class Record>
int read_row(std::string_view key, std::string_view value, Reading<Record>& reading) {
  constexpr const Keyword<Record>& row = rows[i];
  Record& record = reading.record;
  if constexpr (row.read != nullptr) {
    if (row.read({key, value, reading.letterCase}, record, reading.imp) != kValue) return kError;
  } else {
    constexpr auto field = std::get<row.field.index()>(row.field);
    using Member = std::remove_const_t<decltype(field)>;
    if constexpr (std::is_same_v<Member, std::string Record::*>) {
      record.*field = value;
    } else if constexpr (!std::is_same_v<Member, std::monostate>) {
      using Number = std::remove_reference_t<decltype(record.*field)>;
      record.*field =
          static_cast<Number>(row.isSigned ? static_cast<std::uint64_t>(to_signed(value)) : to_unsigned(value));
    }
  }
  reading.seen |= 1U << i;
  return kValue;
}

// What read_pair returns for a key that names no row.
inline constexpr int kOtherKey = -1;

// Reads a pair by the first row for which isKey<row>() holds.
template <const auto& rows, class Record, class IsKey>
int read_by_row(std::string_view key, std::string_view value, Reading<Record>& reading, IsKey isKey) {
  int result = kOtherKey;
  any_row<rows>([&]<std::size_t i> {
    if (!isKey.template operator()<i>()) return false;
    result = read_row<rows, i>(key, value, reading);
    return true;
  });
  return result;
}

// What is_name misses. Apart from read_pair, which would be slower with it.
template <const auto& rows, class Record>
[[gnu::noinline]] int read_pair_in_locale(std::string_view key, std::string_view value, Reading<Record>& reading) {
  return read_by_row<rows>(key, value, reading,
                           [&]<std::size_t i> { return reading.letterCase.same(rows[i].name, key); });
}

// Reads a pair by the row that its key names.
template <const auto& rows, class Record>
int read_pair(std::string_view key, std::string_view value, Reading<Record>& reading) {
  static_assert(std::size(rows) <= 32);
  const int result =
      read_by_row<rows>(key, value, reading, [&]<std::size_t i> { return is_name<rows, i>(key, reading.letterCase); });
  if (result != kOtherKey || reading.letterCase.is_ascii()) return result;
  return read_pair_in_locale<rows>(key, value, reading);
}

// Reads pairs until something else comes, and answers what that is. An unknown key becomes the %s of the text unknown.
template <const auto& rows, class Record>
int read_pairs(TokenCursor& in, Reading<Record>& reading, const char* unknown) {
  return in.next_pairs([&](std::string_view key, std::string_view value) {
    const int result = read_pair<rows>(key, value, reading);
    if (result == kValue) [[likely]]
      return true;
    if (result == kOtherKey) set_error(reading.imp, unknown, std::string(key).c_str());
    reading.refused = true;
    return false;
  });
}

// Appends the pair of one row of the table if it is to be written, known when this is compiled as well.
template <const auto& rows, std::size_t i, class Record>
void write_pair(TextOut::Pen& pen, const Record& record) {
  constexpr const Keyword<Record>& row = rows[i];
  if (row.written == nullptr || !row.written(record)) return;
  static constexpr auto lead = joined<row.gap.size() + row.name.size() + 1>(row.gap, row.name, " ");
  pen.put(lead);
  if (row.write != nullptr) {
    row.write(pen, record);
    return;
  }
  constexpr auto field = std::get<row.field.index()>(row.field);
  using Member = std::remove_const_t<decltype(field)>;
  if constexpr (std::is_same_v<Member, std::string Record::*>) {
    pen.put(record.*field);
  } else if constexpr (!std::is_same_v<Member, std::monostate>) {
    if (row.hex) {
      pen.put_hex(static_cast<std::uint32_t>(record.*field));
    } else {
      pen.put_decimal(static_cast<std::int32_t>(record.*field));
    }
  }
}

// Whether the record has any pair to be written.
template <const auto& rows, class Record>
bool any_written(const Record& record) {
  return [&]<std::size_t... i>(std::index_sequence<i...>) {
    return ((rows[i].written != nullptr && rows[i].written(record)) || ...);
  }
  (std::make_index_sequence<std::size(rows)>());
}

// Appends every pair of the record that is to be written, from one row of the table to another.
template <const auto& rows, std::size_t first = 0, std::size_t last = std::size(rows) - 1, class Record>
void write_pairs(TextOut& out, const Record& record) {
  TextOut::Pen pen(out);
  [&]<std::size_t... i>(std::index_sequence<i...>) { (write_pair<rows, first + i>(pen, record), ...); }
  (std::make_index_sequence<last - first + 1>());
}

template <class Record>
bool always(const Record& /*record*/) {
  return true;
}

}  // namespace SdkDebugDialog
