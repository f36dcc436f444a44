#include "complete.h"

#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <exception>
#include <iterator>
#include <optional>
#include <span>
#include <utility>

#include "SdkDebugDialog/Diagnosis.h"
#include "changes.h"
#include "command_line.h"
#include "output.h"
#include "session.h"
#include "text.h"
#include "typed_line.h"

namespace qvtcfg {
namespace {

using SdkDebugDialog::Configuration;
using SdkDebugDialog::Design;
using SdkDebugDialog::find_setting;
using SdkDebugDialog::FindingKind;
using SdkDebugDialog::parse_value;
using SdkDebugDialog::Processor;
using SdkDebugDialog::Setting;
using SdkDebugDialog::settings;
using SdkDebugDialog::SettingState;
using SdkDebugDialog::TextKind;

struct Candidate {
  std::string word;
  std::vector<std::string> about;
};

struct Offer {
  std::vector<Candidate> candidates;
  std::string names_of;  // "files" or "folders", if their names are offered

  void add(std::string_view word, std::string_view about) {
    candidates.push_back({std::string(word), {std::string(about)}});
  }
};

constexpr const char* kNow = "now";

// For an offer that is not for the stored settings of one processor.
void drop_now(Offer& offer) {
  for (Candidate& candidate : offer.candidates) std::erase(candidate.about, kNow);
}

// --- The design and its processors ---

Arguments arguments_of(const TypedLine& line) {
  Arguments arguments;
  arguments.design = line.value("--design");
  return arguments;
}

bool is_among(const std::vector<std::string>& words, std::string_view word) {
  return std::ranges::find(words, word) != words.end();
}

void offer_processors_not_given(const Design& design, const TypedLine& line, Offer& offer) {
  for (const Processor& processor : design.processors()) {
    const std::string& name = processor.name();
    if (name.starts_with(line.word) && !is_among(line.operands, name)) offer.add(name, "processor");
  }
}

void offer_processors(const TypedLine& line, Offer& offer) {
  offer_processors_not_given(load_design(arguments_of(line)), line, offer);
}

// A file stands in its place without a design as well.
void offer_processors_and_files(const TypedLine& line, Offer& offer) {
  offer.names_of = "files";
  if (const auto design = load_design_if_any(arguments_of(line))) offer_processors_not_given(*design, line, offer);
}

// As in its option file; the defaults if that cannot be read.
Configuration configuration_of(const Processor& processor, const TypedLine& line) {
  auto read = Configuration::open(processor, option_file_of(processor, arguments_of(line)).path);
  return read ? *read : Configuration(processor);
}

// --- Settings ---

std::string key_of(std::string_view change) {
  std::string_view key = change.substr(0, change.find('='));
  if (key.ends_with('+')) key.remove_suffix(1);
  return std::string(key);
}

bool is_change(const std::string& operand) { return operand.find('=') != std::string::npos; }

// With the changes that have been typed, as far as they are accepted.
Configuration changed(Configuration configuration, const std::vector<std::string>& operands) {
  std::vector<GivenChange> changes;
  for (const std::string& operand : operands) {
    try {
      if (is_change(operand)) std::ranges::copy(parse_changes({operand}), std::back_inserter(changes));
    } catch (const Failure&) {
      // It is being typed, or is told when the line is run.
    }
  }
  std::ranges::stable_sort(changes, {}, &GivenChange::meant);
  for (const GivenChange& change : changes) {
    try {
      apply_changes({change}, configuration, "");
    } catch (const Failure&) {
      // The same.
    }
  }
  return configuration;
}

// A value as one word: "12MHz".
std::string one_word(const Setting& setting, const std::string& value) {
  std::string word = value;
  std::erase(word, ' ');
  const auto meant = parse_value(setting, value);
  const auto same = parse_value(setting, word);
  return meant && same && *meant == *same ? word : value;
}

// What the setting accepts now; where that is no list, its value and its default.
void offer_values(const Setting& setting, const Configuration& configuration, const std::string& start, Offer& offer) {
  const SettingState state = configuration.state(setting);
  if (!state.applies || !state.changeable) return;
  const std::string now = value_text(setting, state.value);
  const std::string initial = value_text(setting, state.initial);
  std::vector<std::string> values = state.choices;
  if (values.empty()) values = now == initial ? std::vector{now} : std::vector{now, initial};
  for (const std::string& value : values) {
    if (value.empty()) continue;
    std::vector<std::string> about;
    if (value == now) about.emplace_back(kNow);
    if (value == initial) about.emplace_back("default");
    offer.candidates.push_back({start + one_word(setting, value), std::move(about)});
  }
}

void offer_keys(const Configuration& configuration, const TypedLine& line, Offer& offer) {
  for (const Setting& setting : settings()) {
    const SettingState state = configuration.state(setting);
    const bool given =
        std::ranges::any_of(line.operands, [&](const auto& o) { return is_change(o) && key_of(o) == setting.name; });
    if (setting.readOnly || !state.applies || !state.changeable || given) continue;
    offer.add(std::string(setting.name) + "=", setting.label);
  }
}

void offer_changes_of(const Configuration& configuration, const TypedLine& line, Offer& offer) {
  const Configuration now = changed(configuration, line.operands);
  if (!is_change(line.word)) return offer_keys(now, line, offer);
  const std::string key = line.word.substr(0, line.word.find('='));
  // What is stored already must not be appended again.
  if (key.ends_with('+')) return;
  if (const Setting* const setting = find_setting(key)) offer_values(*setting, now, key + "=", offer);
}

// Those that can be put back to a default.
void offer_names_of(const Configuration& configuration, const TypedLine& line, Offer& offer) {
  for (const Setting& setting : settings()) {
    const SettingState state = configuration.state(setting);
    if (setting.readOnly || state.value == state.initial || is_among(line.operands, setting.name)) continue;
    offer.add(setting.name, setting.label);
  }
}

// Keeps what is true for both processors.
void keep_common(Offer& offer, const Offer& other) {
  std::erase_if(offer.candidates, [&](Candidate& candidate) {
    const auto same = std::ranges::find(other.candidates, candidate.word, &Candidate::word);
    if (same == other.candidates.end()) return true;
    std::erase_if(candidate.about, [&](const std::string& about) { return !is_among(same->about, about); });
    return false;
  });
}

// What is offered for every one of the processors.
void offer_common(std::vector<Offer> offers, Offer& offer) {
  Offer common = std::move(offers.front());
  for (const Offer& other : std::span(offers).subspan(1)) keep_common(common, other);
  std::ranges::move(common.candidates, std::back_inserter(offer.candidates));
}

// Processors, then what they have in common. For all processors, what does not depend on one.
template <class OfferOfOne>
void offer_processors_and(OfferOfOne offer_of_one, const TypedLine& line, Offer& offer) {
  const Design design = load_design(arguments_of(line));
  std::vector<Offer> offers;
  for (const std::string& operand : line.operands) {
    if (const auto processor = design.find(operand); processor && !line.has("--all")) {
      offer_of_one(configuration_of(*processor, line), line, offers.emplace_back());
    }
  }
  if (line.has("--all")) {
    offer_of_one(Configuration(), line, offers.emplace_back());
    drop_now(offers.back());
  }
  if (!line.has("--all") && line.place <= offers.size()) offer_processors_not_given(design, line, offer);
  if (!offers.empty()) offer_common(std::move(offers), offer);
}

void offer_changes(const TypedLine& line, Offer& offer) { offer_processors_and(offer_changes_of, line, offer); }

void offer_names(const TypedLine& line, Offer& offer) { offer_processors_and(offer_names_of, line, offer); }

void offer_settings(const TypedLine& line, Offer& offer) {
  const auto processor = load_design(arguments_of(line)).find(line.operands.front());
  if (!processor) return;
  const Configuration configuration = configuration_of(*processor, line);
  for (const Setting& setting : settings()) {
    if (line.has("--all") || configuration.state(setting).applies) offer.add(setting.name, setting.label);
  }
}

// --- Values of options ---

void offer_files(const TypedLine& /*line*/, Offer& offer) { offer.names_of = "files"; }

void offer_folders(const TypedLine& /*line*/, Offer& offer) { offer.names_of = "folders"; }

void offer_codes(const TypedLine& /*line*/, Offer& offer) {
  for (const FindingKind& kind : SdkDebugDialog::finding_kinds()) offer.add(kind.code, kind.title);
}

// Of "cable format": what the cable that was named accepts.
void offer_cable_values(const char* setting, const TypedLine& line, Offer& offer) {
  auto configuration = Configuration::read({}, "", TextKind::cableText);
  if (!configuration) return;
  if (const auto type = line.value("--type")) configuration->set("cable", *type);
  offer_values(*find_setting(setting), *configuration, "", offer);
  drop_now(offer);
}

// "cable format" refuses a type that leaves nothing to write.
bool can_be_written(const std::string& type) {
  auto configuration = Configuration::read({}, "", TextKind::cableText);
  if (!configuration || !configuration->set("cable", type)) return false;
  const auto edit = configuration->written_anew();
  return edit && !edit->text.empty();
}

void offer_cable_types(const TypedLine& line, Offer& offer) {
  offer_cable_values("cable", line, offer);
  std::erase_if(offer.candidates, [](const Candidate& candidate) { return !can_be_written(candidate.word); });
}

void offer_frequencies(const TypedLine& line, Offer& offer) { offer_cable_values("frequency", line, offer); }
void offer_ports(const TypedLine& line, Offer& offer) { offer_cable_values("port", line, offer); }

// --- What is offered where ---

struct Source {
  std::string_view command;    // empty: any
  std::string_view parameter;  // as the description calls it, or its value
  void (*offer)(const TypedLine&, Offer&);
};

// The first row counts.
constexpr Source kSources[] = {
    {"set", "PROC", offer_changes},
    {"unset", "PROC", offer_names},
    {"diff", "A", offer_processors_and_files},
    {"diff", "B", offer_processors_and_files},
    {"check", "TEXT", offer_processors_and_files},
    {"explain", "SETTING", offer_settings},
    {"", "PROC", offer_processors},
    {"copy", "FROM", offer_processors},
    {"copy", "TO", offer_processors},
    {"", "DIR", offer_folders},
    {"", "FILE", offer_files},
    {"check", "CODE", offer_codes},
    {"cable format", "--type", offer_cable_types},
    {"cable format", "--frequency", offer_frequencies},
    {"cable format", "--port", offer_ports},
};

void offer_for(const Parameter& parameter, const TypedLine& line, Offer& offer) {
  for (const std::string& choice : parameter.choices) offer.add(choice, "");
  const auto* const source = std::ranges::find_if(kSources, [&](const Source& s) {
    const bool meant = s.parameter == parameter.names.front() || s.parameter == parameter.value;
    return meant && (s.command.empty() || s.command == line.command->name);
  });
  if (source != std::end(kSources)) source->offer(line, offer);
  for (Candidate& candidate : offer.candidates) candidate.word.insert(0, line.start);
}

const Parameter* argument_at(const CommandDescription& command, std::size_t place) {
  if (place < command.arguments.size()) return &command.arguments[place];
  return !command.arguments.empty() && command.arguments.back().repeated ? &command.arguments.back() : nullptr;
}

void offer_options(const CommandDescription& program, const TypedLine& line, Offer& offer) {
  for (const Parameter* const option : options_of(program, *line.command)) {
    const bool given = !option->repeated && line.has(option->names.front());
    const bool possible = std::ranges::all_of(option->needs, [&](const std::string& name) { return line.has(name); });
    if (!given && possible) offer.add(option->names.back(), option->meaning);
  }
}

Offer offer_of(const CommandDescription& program, const TypedLine& line) {
  Offer offer;
  const bool is_option = line.word.starts_with('-') && !line.options_ended;
  if (line.option != nullptr) {
    offer_for(*line.option, line, offer);
    return offer;
  }
  if (is_option) {
    offer_options(program, line, offer);
    return offer;
  }
  if (line.operands.empty()) {
    for (const CommandDescription& command : line.command->commands) {
      offer.add(own_name(command), command.purpose);
    }
  }
  if (const Parameter* const argument = argument_at(*line.command, line.place)) {
    offer_for(*argument, line, offer);
  } else if (line.command->commands.empty()) {
    offer_options(program, line, offer);
  }
  return offer;
}

// --- The answer ---

// A folder that begins with "~/" is that of the user: the shell has not replaced it in a line that is being typed.
std::string real_path(const std::string& path) {
  const char* const home = std::getenv("HOME");
  return path.starts_with("~/") && home != nullptr ? home + path.substr(1) : path;
}

// Such as a candidate with a line feed in it, which would be two lines.
bool is_printable(const Candidate& candidate) { return visible(candidate.word) == candidate.word; }

void print(const Offer& offer, const TypedLine& line, const std::string& directory, Output& out) {
  for (const Candidate& candidate : offer.candidates) {
    if (!candidate.word.starts_with(line.word) || !is_printable(candidate)) continue;
    const std::string about = join(candidate.about);
    out.line(candidate.word + (about.empty() ? "" : '\t' + visible(about)));
  }
  if (offer.names_of.empty()) return;
  const bool inside = !directory.empty() && !(line.option != nullptr && line.option->value == "DIR");
  out.line('\t' + offer.names_of + (inside ? '\t' + directory : ""));
}

constexpr const char* kHelp =
    "Print what can stand in place of a word of a command line, for the completions of shells and editors\n\n"
    "qvtcfg complete INDEX WORD...\n\n"
    "INDEX is that of the word, counted from 0; the index behind the last word stands for a new word. The first\n"
    "word is qvtcfg. Each line is a whole word and, behind a tab, a few words about it. A line that begins with\n"
    "a tab asks for names of files or folders.\n\n"
    "Example:\n"
    "  qvtcfg complete 3 qvtcfg set cpu0 bscan=";

void answer(const std::vector<std::string>& words, std::size_t index, Output& out) {
  const CommandDescription program = describe();
  const TypedLine line = typed_line(program, words, index);
  const std::string directory = real_path(line.value("-C").value_or(""));
  if (!directory.empty() && chdir(directory.c_str()) != 0) return;
  print(offer_of(program, line), line, directory, out);
  out.flush();
}

}  // namespace

ExitCode complete(const std::vector<std::string>& arguments, Output& out) {
  std::size_t index = 0;
  const std::string first = arguments.empty() ? "" : arguments.front();
  if (first == "-h" || first == "--help") {
    out.line(kHelp);
    out.flush();
    return kDone;
  }
  const auto [end, error] = std::from_chars(first.data(), first.data() + first.size(), index);
  if (error != std::errc() || end != first.data() + first.size() || index == 0 || index >= arguments.size()) {
    throw Failure(kUsage, "complete: expected INDEX WORD..., with the index of one of the words or of the next one");
  }
  std::vector<std::string> words(arguments.begin() + 2, arguments.end());
  words.resize(std::max(words.size(), index));
  try {
    answer(words, index - 1, out);
  } catch (const std::exception&) {
    // Nothing is offered, and a message would disturb the line that is being typed.
  }
  return kDone;
}

}  // namespace qvtcfg
