#pragma once

// The description of an option group that its reader and its writer share: a table with one row per keyword.

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>

#include "SdkDebugDialog/EngineImp.h"
#include "model/error_text.h"
#include "options/TokenCursor.h"
#include "options/number.h"
#include "options/status.h"

namespace SdkDebugDialog {

// Whether two words are the same without regard to case, as the program's global locale sees it.
bool same_word(std::string_view a, std::string_view b);

// The first row whose name is the word, in any case; null when there is none.
template <class Row>
const Row* find_row(std::span<const Row> rows, std::string_view word) {
  // No two names of a table differ in case alone, so a name in our own spelling can be found without folding case.
  for (const Row& row : rows) {
    if (row.name == word) return &row;
  }
  for (const Row& row : rows) {
    if (same_word(row.name, word)) return &row;
  }
  return nullptr;
}

template <class Row, std::size_t N>
const Row* find_row(const Row (&rows)[N], std::string_view word) {
  return find_row(std::span<const Row>(rows), word);
}

// Where a row stands in its table.
template <class Row, std::size_t N>
consteval std::size_t row_index(const Row (&rows)[N], std::string_view name) {
  std::size_t i = 0;
  while (rows[i].name != name) ++i;
  return i;
}

// The rows from one name to another.
template <class Row, std::size_t N>
consteval std::span<const Row> row_range(const Row (&rows)[N], std::string_view first, std::string_view last) {
  return std::span<const Row>(rows).subspan(row_index(rows, first), row_index(rows, last) - row_index(rows, first) + 1);
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
  void (*write)(std::string& out, const Record& record) = nullptr;
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
template <class Record, std::size_t N>
PairsEnd read_pairs(TokenCursor& in, const Keyword<Record> (&rows)[N], Record& record, EngineImp& imp,
                    const char* unknown) {
  static_assert(N <= 32);
  PairsEnd end;
  Pair pair;
  while ((end.kind = in.next_pair(pair.key, pair.value)) == kValue) {
    const Keyword<Record>* const row = find_row(rows, pair.key);
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

// Appends every pair of the record that is to be written.
template <class Record>
void write_pairs(std::string& out, std::span<const Keyword<Record>> rows, const Record& record) {
  for (const Keyword<Record>& row : rows) {
    if (row.written == nullptr || !row.written(record)) continue;
    out.append(row.gap).append(row.name).append(1, ' ');
    if (row.write != nullptr) {
      row.write(out, record);
      continue;
    }
    std::visit(
        [&](auto field) {
          using Member = decltype(field);
          if constexpr (std::is_same_v<Member, std::string Record::*>) {
            out.append(record.*field);
          } else if constexpr (!std::is_same_v<Member, std::monostate>) {
            if (row.hex) {
              append_hex(out, static_cast<std::uint32_t>(record.*field));
            } else {
              append_decimal(out, static_cast<std::int32_t>(record.*field));
            }
          }
        },
        row.field);
  }
}

template <class Record, std::size_t N>
void write_pairs(std::string& out, const Keyword<Record> (&rows)[N], const Record& record) {
  write_pairs(out, std::span<const Keyword<Record>>(rows), record);
}

template <class Record>
bool always(const Record& /*record*/) {
  return true;
}

}  // namespace SdkDebugDialog
