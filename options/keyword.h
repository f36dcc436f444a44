#pragma once

// The description of an option group that its reader and its writer share: a table with one row per keyword.

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
#include "options/TokenCursor.h"
#include "options/number.h"
#include "options/status.h"
#include "options/text_out.h"
#include "options/word_index.h"

namespace SdkDebugDialog {

// Whether two words are the same without regard to case, as the program's global locale sees it.
bool same_word(std::string_view a, std::string_view b);

// Whether the global locale is the classic one, which folds the case of ASCII letters and of nothing else.
bool folds_ascii_only();

// The first row whose name is the word, in any case; null when there is none. No two names of a table differ in case
// alone.
template <const auto& rows>
auto find_row(std::string_view word) -> decltype(&rows[0]) {
  using Row = std::remove_cvref_t<decltype(rows[0])>;
  static constexpr WordIndex index{std::span<const Row, std::size(rows)>(rows)};
  const std::size_t found = index.find(FoldedWord(word));
  // Our own spelling is right whatever the locale is.
  if (found != index.kNone && rows[found].name == word) return &rows[found];
  if (folds_ascii_only()) {
    const bool same = found != index.kNone && (word.size() <= 16 || same_word(rows[found].name, word));
    return same ? &rows[found] : nullptr;
  }
  for (const Row& row : rows) {
    if (same_word(row.name, word)) return &row;
  }
  return nullptr;
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
  void (*write)(TextOut& out, const Record& record) = nullptr;
  std::string_view gap = " ";  // what stands before the keyword
};

// Stores a value in the row's field, cut to the field's width.
template <class Record>
void store_value(const Keyword<Record>& row, std::string_view value, Record& record) {
  std::visit(
      [&](auto field) {
        using Member = decltype(field);
        if constexpr (std::is_same_v<Member, std::string Record::*>) {
          record.*field = value;
        } else if constexpr (!std::is_same_v<Member, std::monostate>) {
          using Number = std::remove_reference_t<decltype(record.*field)>;
          record.*field =
              static_cast<Number>(row.isSigned ? static_cast<std::uint64_t>(to_signed(value)) : to_unsigned(value));
        }
      },
      row.field);
}

template <class Record>
int read_value(const Keyword<Record>& row, const Pair& pair, Record& record, EngineImp& imp) {
  if (row.read != nullptr) return row.read(pair, record, imp);
  store_value(row, pair.value, record);
  return kValue;
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
  Pair pair;
  while ((end.kind = in.next_pair(pair.key, pair.value)) == kValue) {
    const Keyword<Record>* const row = find_row<rows>(pair.key);
    if (row == nullptr) set_error(imp, unknown, std::string(pair.key).c_str());
    if (row == nullptr || read_value(*row, pair, record, imp) != kValue) {
      end.kind = kError;
      end.refused = true;
      break;
    }
    end.seen |= 1U << (row - rows);
  }
  return end;
}

// Appends the pair of one row of the table if it is to be written. The row is known when this is compiled, so that what
// it does not need costs nothing.
template <const auto& rows, std::size_t i, class Record>
void write_pair(TextOut& out, const Record& record) {
  constexpr const Keyword<Record>& row = rows[i];
  if (row.written == nullptr || !row.written(record)) return;
  static constexpr auto lead = joined<row.gap.size() + row.name.size() + 1>(row.gap, row.name, " ");
  out.put(lead);
  if (row.write != nullptr) {
    row.write(out, record);
    return;
  }
  constexpr auto field = std::get<row.field.index()>(row.field);
  using Member = std::remove_const_t<decltype(field)>;
  if constexpr (std::is_same_v<Member, std::string Record::*>) {
    out.put(record.*field);
  } else if constexpr (!std::is_same_v<Member, std::monostate>) {
    if (row.hex) {
      out.put_hex(static_cast<std::uint32_t>(record.*field));
    } else {
      out.put_decimal(static_cast<std::int32_t>(record.*field));
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
  [&]<std::size_t... i>(std::index_sequence<i...>) { (write_pair<rows, first + i>(out, record), ...); }
  (std::make_index_sequence<last - first + 1>());
}

template <class Record>
bool always(const Record& /*record*/) {
  return true;
}

}  // namespace SdkDebugDialog
