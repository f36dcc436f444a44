#include "docs/tables/print.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <set>
#include <span>
#include <stdexcept>
#include <string_view>
#include <type_traits>
#include <utility>

#include "docs/tables/markdown.h"

namespace SdkDebugDialog {
namespace {

using markdown::code;
using markdown::joined;
using markdown::Row;
using markdown::Table;

const char* yes_or_no(bool yes) { return yes ? "yes" : "no"; }

std::string plain(const Name& name) { return std::string(name.text()); }
std::string code(const Name& name) { return markdown::code(name.text()); }

// The texts of the rows in one line.
template <class Rows, class Text>
std::string listed(const Rows& rows, Text text, std::string_view separator = ", ") {
  std::vector<std::string> texts;
  std::ranges::transform(rows, std::back_inserter(texts), text);
  return joined(texts, separator);
}

std::string frequencies(std::span<const std::uint32_t> values) {
  return values.empty() ? "none"
                        : listed(
                              values, [](std::uint32_t value) { return std::to_string(value); }, " ");
}

std::vector<const Run*> runs_of(const Option& option) {
  std::vector<const Run*> runs;
  std::ranges::copy_if(kRuns, std::back_inserter(runs), [&](const Run* run) { return (option.runs & run->bit) != 0; });
  return runs;
}

// The bits of the runs that a command in an option file can have.
unsigned runs_in_files() {
  unsigned runs = 0;
  for (const Target& target : targets()) {
    const bool hasHead = std::ranges::any_of(
        heads(), [&](const Head& head) { return head.inFile && head.virtualPlatform == target.virtualPlatform; });
    if (!target.inFile || !hasHead) continue;
    for (const Connection& connection : target.connections) runs |= connection.options.bit;
    if (target.options != nullptr) runs |= target.options->bit;
  }
  const bool hasHdlSim = std::ranges::any_of(options(), [&](const Option& option) {
    return option.takes == Option::Takes::ownRun && (option.runs & runs) != 0;
  });
  return hasHdlSim ? runs | kHdlSimOptions.bit : runs;
}

std::string where(const std::vector<const Run*>& runs) {
  return listed(runs, [](const Run* run) { return run->where; });
}

// The rows that describe an option: those of its pairs, or that of its value.
std::span<const Keyword> rows_of(const Option& option) {
  const std::span<const Keyword> rows = option.group.keywords;
  if (option.takes == Option::Takes::pairs) return rows;
  const auto value = std::ranges::find(rows, option.name.text(), [](const Keyword& row) { return row.name.text(); });
  return {value, 1};
}

// --- A keyword ---

const char* kind(const Keyword& row) {
  switch (row.kind) {
    case Kind::flag:
      return "none";
    case Kind::number:
    case Kind::hexadecimal:
      return "number";
    case Kind::signedNumber:
      return "signed number";
    case Kind::address:
      return "address";
    case Kind::text:
      return "text";
    case Kind::word:
      return "word";
    case Kind::hostAndPort:
      return "host and port";
  }
  return "";
}

// Calls use with the field's value in a new record, unless the row has no field.
template <class Use>
void with_new_value(const Keyword& row, Use use) {
  const auto of_new = [&]<class Record, class Value>(Value Record::*field) { use(Record{}.*field); };
  std::visit(
      [&](auto field) {
        if constexpr (!std::is_same_v<decltype(field), std::monostate>) of_new(field);
      },
      row.field);
}

std::string value_of(const Keyword& row) {
  std::string text =
      row.words.empty() ? kind(row) : listed(row.words, [](const Word& word) { return code(word.name); });
  if (row.kind != Kind::word && row.kind != Kind::flag) {
    with_new_value(row, [&](const auto& value) {
      if (sizeof(value) == 1) text += ", 8 bits";
    });
  }
  const std::string unit = *row.unit != '\0' ? std::string("in ") + row.unit : "";
  return joined({text, joined({row.meaning, unit})}, ": ");
}

std::string default_of(const Keyword& row) {
  std::string text = row.initial;
  if (!text.empty()) return text;
  with_new_value(row, [&]<class Value>(const Value& value) {
    if constexpr (std::is_same_v<Value, std::string>) {
      text = value.empty() ? "none" : code(value);
    } else if (!row.words.empty()) {
      const auto word = std::ranges::find(row.words, static_cast<std::uint32_t>(value), &Word::value);
      text = word != row.words.end() ? code(word->name) : "none";
    } else if (row.kind == Kind::flag) {
      text = value == 0 ? "off" : "on";
    } else if (row.kind == Kind::address && static_cast<std::uint32_t>(value) == kAddressNotSet) {
      text = "not set";
    } else {
      text = std::to_string(value);
    }
  });
  return text;
}

std::string written(const Keyword& row) {
  if (row.written.holds == nullptr) return std::string("no: ") + row.written.words;
  const char* const form = row.kind == Kind::number        ? "as a signed number"
                           : row.kind == Kind::hexadecimal ? "hexadecimal"
                                                           : "";
  return joined({row.written.words, form}, "; ");
}

const char* without_value(const Option& option) {
  switch (option.takes) {
    case Option::Takes::nothing:
    case Option::Takes::pairs:
    case Option::Takes::ownRun:
      return "";
    case Option::Takes::value:
      return "error";
    case Option::Takes::valueOrNone:
      return "nothing is stored; an option in its place is skipped";
    case Option::Takes::token:
      return "error; an option in its place is its value";
    case Option::Takes::tokenOrNone:
      return "nothing is stored; an option in its place is its value";
  }
  return "";
}

// Rows "where, what, why" of the keywords that have a reason. Neighbours with the same reason share one.
template <class Reason>
std::vector<Row> reasons(Reason reason) {
  std::vector<Row> rows;
  for (const Option& option : options()) {
    const std::string place = option.takes == Option::Takes::pairs ? code(option.name) : where(runs_of(option));
    for (const Keyword& keyword : rows_of(option)) {
      const std::string why = reason(keyword);
      if (why.empty()) continue;
      if (!rows.empty() && rows.back().front() == place && rows.back().back() == why) {
        rows.back()[1] += ", " + code(keyword.name);
      } else {
        rows.push_back({place, code(keyword.name), why});
      }
    }
  }
  return rows;
}

}  // namespace

// --- Options and keywords ---

Table option_index_table(const Links& links) {
  constexpr const Run* kColumns[] = {&kGeneralOptions, &kOdmOptions, &kDccOptions, &kQmtcOptions, &kPpcSimOptions};
  const unsigned inFiles = runs_in_files();
  Row head = {"option", "for", "in a file"};
  for (const Run* const run : kColumns) head.emplace_back(run->where);
  head.emplace_back("others");

  std::vector<Row> rows;
  for (const Option& option : options()) {
    const auto link = links.find(&option);
    if (link == links.end()) throw std::runtime_error("no part describes the option " + plain(option.name));
    Row row = {'[' + code(option.name) + "](" + link->second + ')', option.meaning,
               yes_or_no((option.runs & inFiles) != 0)};
    std::vector<const Run*> others = runs_of(option);
    for (const Run* const column : kColumns) row.emplace_back(std::erase(others, column) != 0 ? "yes" : "");
    row.push_back(where(others));
    rows.push_back(std::move(row));
  }
  std::ranges::stable_sort(rows, {}, [](const Row& row) { return row.front(); });
  return {head, rows};
}

Table keyword_table(const Option& option) {
  std::vector<Row> rows;
  for (const Keyword& row : rows_of(option)) {
    rows.push_back({code(row.name), value_of(row), default_of(row), written(row)});
  }
  return {{"keyword", "value", "default", "written"}, rows};
}

Table option_table(const std::vector<const Option*>& described) {
  std::vector<Row> rows;
  for (const Option* const option : described) {
    const Keyword& row = rows_of(*option).front();
    rows.push_back({code(option->name), value_of(row), default_of(row), without_value(*option), written(row)});
  }
  return {{"option", "value", "default", "without a value", "written"}, rows};
}

Table never_written_table() {
  return {{"where", "what", "because"},
          reasons([](const Keyword& row) { return row.written.holds == nullptr ? row.written.words : ""; })};
}

Table not_read_back_table() {
  return {{"where", "what", "because"}, reasons([](const Keyword& row) { return row.notReadBack; })};
}

// --- Heads and targets ---

Table head_table() {
  std::vector<Row> rows;
  for (const Head& head : heads()) {
    const auto following = [&](const Target& target) {
      return target.virtualPlatform == head.virtualPlatform ? code(target.name) : "";
    };
    rows.push_back(
        {code(head.name), yes_or_no(head.inFile), "yes", yes_or_no(head.written), listed(targets(), following)});
  }
  return {{"head", "in a file", "in a command", "written", "targets that may follow"}, rows};
}

Table target_table() {
  std::vector<Row> rows;
  const auto add = [&](const Target& target, const std::string& connection, const Run& run) {
    const auto head = std::ranges::find(heads(), target.virtualPlatform, &Head::virtualPlatform);
    rows.push_back({code(plain(head->name) + ' ' + plain(target.name)), target.meaning, connection,
                    yes_or_no(target.inFile), "yes", run.where});
  };
  for (const Target& target : targets()) {
    for (const Connection& connection : target.connections) {
      add(target, code(connection.name) + ' ' + connection.meaning, connection.options);
    }
    if (target.options != nullptr) add(target, "", *target.options);
  }
  return {{"target", "for", "connection", "in a file", "in a command", "options"}, rows};
}

// --- Cables ---

Table cable_type_table() {
  std::vector<Row> rows;
  for (const CableType& type : cable_types()) {
    const std::string names = listed(type.names, [](const Name& name) { return code(name); });
    std::string write = type.notWritten != nullptr ? std::string("no: ") + type.notWritten : "`type`";
    for (const Keyword* const keyword : type.writes) write += ", " + code(keyword->name);
    const std::string port = type.defaultPort.empty() ? "" : code(type.defaultPort);
    const std::string accepted = type.notRead != nullptr ? "the type itself is refused" : frequencies(type.accepted);
    const bool all = !type.offered.empty() && std::ranges::equal(type.offered, type.accepted);
    rows.push_back({names, port, std::to_string(type.defaultFrequency), accepted,
                    all ? "all of these" : frequencies(type.offered), write});
  }
  return {{"type", "default port", "default Hz", "accepted Hz", "offered Hz", "written"}, rows};
}

// --- Dictionary ---

std::string print_dictionary() {
  std::set<std::string> seen;
  std::string text;
  const auto add = [&](const Name& name) {
    if (seen.insert(plain(name)).second) text += '"' + plain(name) + "\"\n";
  };
  const auto add_all = [&](const auto& rows) {
    for (const auto& row : rows) add(row.name);
  };

  text += "\n# Heads, targets, connections\n";
  add_all(heads());
  add_all(targets());
  for (const Target& target : targets()) add_all(target.connections);
  text += "\n# Options\n";
  add_all(options());
  text += "\n# Keywords\n";
  for (const Option& option : options()) add_all(rows_of(option));
  text += "\n# Words\n";
  for (const CableType& type : cable_types()) std::ranges::for_each(type.names, add);
  for (const Option& option : options()) {
    for (const Keyword& row : rows_of(option)) add_all(row.words);
  }
  return text + '\n';
}

}  // namespace SdkDebugDialog
