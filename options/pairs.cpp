#include "options/pairs.h"

#include <string>
#include <type_traits>

#include "model/error_text.h"
#include "options/field.h"
#include "options/number.h"

namespace SdkDebugDialog {
namespace {

// A number is cut to the width of its field.
void store(const Keyword& row, std::uint64_t number, const Records& to) {
  with_field(row.field, to, [&]<class Value>(Value& value) {
    if constexpr (std::is_integral_v<Value>) value = static_cast<Value>(number);
  });
}

}  // namespace

// --- Reading ---

bool read_value(const Keyword& row, const KeywordAndValue& pair, const Records& to) {
  if (row.read != nullptr) return row.read(row, pair, to);
  if (row.kind == Kind::word) return read_word(row, pair, to);
  with_field(row.field, to, [&]<class Value>(Value& value) {
    if constexpr (std::is_same_v<Value, std::string>) {
      value = pair.value;
    } else if (row.kind == Kind::signedNumber) {
      value = static_cast<Value>(to_signed(pair.value));
    } else {
      value = static_cast<Value>(to_unsigned(pair.value));
    }
  });
  return true;
}

bool read_word(const Keyword& row, const KeywordAndValue& pair, const Records& to) {
  const Word* const word = find_name(row.words, pair.value, pair.letterCase);
  if (word != nullptr) store(row, word->value, to);
  return word != nullptr;
}

PairsRead read_pairs(TokenCursor& in, const Group& group, const Records& to, const Keyword* toNote) {
  KeywordAndValue pair = {{}, {}, in.letter_case()};
  PairsRead read = {};
  for (;;) {
    switch (in.next_pair(pair.key, pair.value)) {
      case Pair::complete:
        break;
      case Pair::option:
        read.outcome = Outcome::option;
        return read;
      case Pair::incomplete:
        read.outcome = Outcome::error;
        return read;
      case Pair::end:
        read.outcome = Outcome::end;
        return read;
    }
    const Keyword* const row = find_name(group.keywords, pair.key, pair.letterCase);
    if (row == nullptr) set_error(*to.imp, group.unknown, std::string(pair.key).c_str());
    if (row == nullptr || !read_value(*row, pair, to)) {
      read.outcome = Outcome::error;
      read.refused = true;
      return read;
    }
    read.noted |= row == toNote;
  }
}

// --- Writing ---

bool is_written(const Keyword& row, const Records& from) {
  // Most rows are always written; they are spared the call.
  return row.written.holds != nullptr && (row.written.holds == kAlways.holds || row.written.holds(row, from));
}

namespace {

// The word that the value stands for; the last word for any other value. Not inline: write_pair would be slower with
// it.
[[gnu::noinline]] void write_word(const Keyword& row, TextOut& out, const Records& from) {
  const Word* word = row.words.data();
  const Word* const last = &row.words.back();
  with_field(row.field, from, [&]<class Value>(const Value& value) {
    if constexpr (std::is_integral_v<Value>) {
      while (word != last && word->value != static_cast<std::uint32_t>(value)) ++word;
    }
  });
  out.put_name(row.name);
  out.put_name(word->name);
}

}  // namespace

void write_pair(TextOut& out, const Keyword& row, const Records& from) {
  if (row.write != nullptr) return row.write(row, out, from);
  if (row.kind == Kind::word) return write_word(row, out, from);
  with_field(row.field, from, [&]<class Value>(const Value& value) {
    if constexpr (std::is_same_v<Value, std::string>) {
      out.put(row.name, value);
    } else if (row.kind == Kind::hexadecimal || row.kind == Kind::address) {
      out.put_hex(row.name, static_cast<std::uint32_t>(value));
    } else {
      out.put_decimal(row.name, static_cast<std::int32_t>(value));
    }
  });
}

void write_pairs(TextOut& out, std::span<const Keyword> rows, const Records& from) {
  for (const Keyword& row : rows) {
    if (is_written(row, from)) write_pair(out, row, from);
  }
}

}  // namespace SdkDebugDialog
