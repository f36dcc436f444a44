#include "findings/names.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "settings/words.h"

namespace SdkDebugDialog {
namespace {

void add(std::string_view name, Names& names) {
  if (std::ranges::find(names, name) == names.end()) names.push_back(name);
}

bool takes_pairs(const Option& option) { return option.takes == Option::Takes::pairs; }

bool is_cable_type(const Keyword& row) { return &row == kCable.keywords.data(); }

// The texts of a command in which options of the run may stand.
std::vector<std::string> places_of(const Run& run) {
  std::vector<std::string> places;
  const auto add_place = [&](const Target& target, std::string_view connection) {
    std::string place(target.virtualPlatform ? "'vpconnect " : "'");
    place.append(target.name.text()).append(connection.empty() ? "" : " ").append(connection).append("'");
    places.push_back(std::move(place));
  };
  for (const Target& target : targets()) {
    if (target.options == &run) add_place(target, {});
    for (const Connection& connection : target.connections) {
      if (&connection.options == &run) add_place(target, connection.name.text());
    }
  }
  if (places.empty()) {
    places.emplace_back(run.where);
    std::ranges::replace(places.front(), '`', '\'');
  }
  return places;
}

}  // namespace

Names head_names(Source source) {
  Names names;
  for (const Head& head : heads()) {
    if (source == Source::command || head.inFile) add(head.name.text(), names);
  }
  return names;
}

Names target_names(Source source, const Head* head) {
  Names names;
  for (const Target& target : targets()) {
    const bool isHeads = head == nullptr || head->virtualPlatform == target.virtualPlatform;
    if (isHeads && (source == Source::command || target.inFile)) add(target.name.text(), names);
  }
  return names;
}

Names connection_names(const Target& target) {
  Names names;
  for (const Connection& connection : target.connections) add(connection.name.text(), names);
  return names;
}

Names option_names(const Run& run) {
  Names names;
  for (const Option& option : options()) {
    if ((option.runs & run.bit) != 0) add(option.name.text(), names);
  }
  return names;
}

Names keyword_names(const Group& group) {
  Names names;
  for (const Keyword& row : group.keywords) add(row.name.text(), names);
  return names;
}

Names value_names(const Keyword& row) {
  Names names;
  for (const Word& word : row.words) add(word.name.text(), names);
  if (!is_cable_type(row)) return names;
  for (const CableType& type : cable_types()) {
    if (type.notRead != nullptr) continue;
    for (const Name& name : type.names) add(name.text(), names);
  }
  return names;
}

std::string value_in_words(const Keyword& row) {
  if (const Names names = value_names(row); !names.empty()) return listed(names);
  switch (row.kind) {
    case Kind::hostAndPort:
      return "HOST:PORT";
    case Kind::address:
      return "an address";
    case Kind::number:
    case Kind::signedNumber:
    case Kind::hexadecimal:
      return *row.unit != '\0' ? std::string("a number in ") + row.unit : "a number";
    case Kind::flag:
    case Kind::text:
    case Kind::word:
      break;
  }
  return "a text";
}

Names options_with_keyword(std::string_view keyword, const Run& run) {
  Names names;
  for (const Option& option : options()) {
    if ((option.runs & run.bit) == 0 || !takes_pairs(option)) continue;
    if (is_one_of(keyword, keyword_names(option.group))) add(option.name.text(), names);
  }
  return names;
}

std::string places_of_option(std::string_view name, const Run& run) {
  std::vector<std::string> places;
  for (const Run* const other : kRuns) {
    const bool isThere = std::ranges::any_of(options(), [&](const Option& option) {
      return (option.runs & other->bit) != 0 && same_word(name, option.name.text());
    });
    if (!isThere || other == &run || other == &kCableTextOptions) continue;
    std::ranges::move(places_of(*other), std::back_inserter(places));
  }
  if (places.size() < 2) return joined(places, "");
  const std::string last = std::move(places.back());
  places.pop_back();
  return joined(places, ", ") + " and " + last;
}

}  // namespace SdkDebugDialog
