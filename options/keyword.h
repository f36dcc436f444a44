#pragma once

// The description of an option group that its reader and its writer share: a table with one row per keyword.

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <span>
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
#include "options/status.h"
#include "options/text_out.h"
#include "options/word_index.h"

namespace SdkDebugDialog {

// Where the first row stands whose name is the word, in any case; the table's size when there is none. No two names of
// a table differ in case alone.
template <const auto& rows>
std::size_t find_index(std::string_view word, LetterCase& letterCase) {
  using Row = std::remove_cvref_t<decltype(rows[0])>;
  static constexpr WordIndex index{std::span<const Row, std::size(rows)>(rows)};
  const PackedWord packed(word);
  const std::size_t row = index.candidate(packed);
  // Our own spelling is right whatever the locale is.
  if (row != index.kNone && index.is_name(row, packed)) return row;
  if (letterCase.is_ascii()) {
    return row != index.kNone && index.is_name_in_any_ascii_case(row, packed) ? row : index.kNone;
  }
  const auto found = std::ranges::find_if(rows, [&](const Row& r) { return letterCase.same(r.name, word); });
  return static_cast<std::size_t>(found - std::begin(rows));
}

// That row; null when there is none.
template <const auto& rows>
auto find_row(std::string_view word, LetterCase& letterCase) -> decltype(&rows[0]) {
  const std::size_t i = find_index<rows>(word, letterCase);
  return i != std::size(rows) ? &rows[i] : nullptr;
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

// Reads the value of one row's keyword: kValue or kError. A number is cut to the field's width. The row is known when
// this is compiled, so that what it does not need costs nothing.
template <const auto& rows, std::size_t i, class Record>
int read_row(const Pair& pair, Record& record, EngineImp& imp) {
  constexpr const Keyword<Record>& row = rows[i];
  if (row.read != nullptr) return row.read(pair, record, imp);
  constexpr auto field = std::get<row.field.index()>(row.field);
  using Member = std::remove_const_t<decltype(field)>;
  if constexpr (std::is_same_v<Member, std::string Record::*>) {
    record.*field = pair.value;
  } else if constexpr (!std::is_same_v<Member, std::monostate>) {
    using Number = std::remove_reference_t<decltype(record.*field)>;
    record.*field =
        static_cast<Number>(row.isSigned ? static_cast<std::uint64_t>(to_signed(pair.value)) : to_unsigned(pair.value));
  }
  return kValue;
}

// The same for a row that the text has named.
template <const auto& rows, class Record>
int read_value(std::size_t row, const Pair& pair, Record& record, EngineImp& imp) {
  using Read = int (*)(const Pair& pair, Record& record, EngineImp& imp);
  static constexpr auto readers = []<std::size_t... i>(std::index_sequence<i...>) {
    return std::array<Read, sizeof...(i)>{read_row<rows, i, Record>...};
  }
  (std::make_index_sequence<std::size(rows)>());
  return readers[row](pair, record, imp);
}

// How a run of pairs ended.
struct PairsEnd {
  int kind = kError;       // the token that ended it, or kError
  bool refused = false;    // kError because of a pair that was complete
  std::uint32_t seen = 0;  // a bit for each row of the table that was met
};

// Reads pairs until something else comes. An unknown key becomes the %s of the text unknown.
template <const auto& rows, class Record>
PairsEnd read_pairs(TokenCursor& in, Record& record, EngineImp& imp, const char* unknown) {
  static_assert(std::size(rows) <= 32);
  PairsEnd end;
  Pair pair = {{}, {}, in.letter_case()};
  while ((end.kind = in.next_pair(pair.key, pair.value)) == kValue) {
    const std::size_t row = find_index<rows>(pair.key, pair.letterCase);
    if (row == std::size(rows)) set_error(imp, unknown, std::string(pair.key).c_str());
    if (row == std::size(rows) || read_value<rows>(row, pair, record, imp) != kValue) {
      end.kind = kError;
      end.refused = true;
      break;
    }
    end.seen |= 1U << row;
  }
  return end;
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
