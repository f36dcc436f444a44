// qvtcfg explain

#include <algorithm>
#include <optional>

#include "answer.h"
#include "command_line.h"
#include "failure.h"
#include "finding_text.h"
#include "lines.h"
#include "origin.h"
#include "output.h"
#include "print.h"
#include "session.h"
#include "text.h"

namespace qvtcfg {
namespace {

using SdkDebugDialog::Configuration;
using SdkDebugDialog::find_setting;
using SdkDebugDialog::nearest_name;
using SdkDebugDialog::Processor;
using SdkDebugDialog::Setting;
using SdkDebugDialog::settings;
using SdkDebugDialog::SettingState;
using SdkDebugDialog::SettingValue;

// One setting, with all that is told about it.
struct Explained {
  const Setting& setting;
  SettingState state;
  Origin origin;
  std::vector<std::string> warnings;
};

const Setting& setting_named(const std::string& name) {
  if (const Setting* const setting = find_setting(name)) return *setting;
  std::vector<std::string_view> names;
  for (const Setting& setting : settings()) names.push_back(setting.name);
  const std::string_view nearest = nearest_name(name, names);
  throw Failure(kUsage, "no setting is called '" + one_line(name) + "'" +
                            (nearest.empty() ? "" : " (did you mean '" + std::string(nearest) + "'?)"));
}

std::vector<Explained> explained(const Configuration& configuration, const std::string& text) {
  std::vector<SettingState> states = configuration.states();
  std::vector<Origin> found = origins(configuration, text);
  std::vector<Explained> all;
  for (std::size_t i = 0; i < states.size(); ++i) {
    const Setting& setting = settings()[i];
    all.push_back({setting, std::move(states[i]), std::move(found[i]), configuration.warnings(setting)});
  }
  return all;
}

std::string words_in(const Lines& lines, const Words& words) {
  return one_line(lines.text().substr(words.begin, words.end - words.begin), 60);
}

std::string place(const Lines& lines, std::size_t offset) {
  const Position at = lines.position(offset);
  return std::to_string(at.line) + ":" + std::to_string(at.column);
}

// Such as "1:47 frequency 12000000"; of several, the last ones.
std::string origin_text(const Origin& origin, const Lines& lines) {
  switch (origin.kind) {
    case Origin::Kind::words:
    case Origin::Kind::otherWords: {
      const Words& last = origin.words.back();
      std::string text = place(lines, last.begin) + " " + words_in(lines, last);
      if (origin.kind == Origin::Kind::otherWords) text += " (" + std::string(origin.other->name) + ")";
      if (origin.words.size() > 1) text += ", and " + std::to_string(origin.words.size() - 1) + " before";
      return text;
    }
    case Origin::Kind::design:
      return "the design";
    case Origin::Kind::cable:
      return "the cable's default";
    case Origin::Kind::initial:
      break;
  }
  return "the default";
}

const char* origin_name(Origin::Kind kind) {
  constexpr const char* kNames[] = {"words", "wordsOfAnother", "design", "cable", "default"};
  return kNames[static_cast<std::size_t>(kind)];
}

std::string written_text(const SettingState& state) {
  return state.written ? "yes" : "no: " + visible(state.whyNotWritten);
}

// A default need not be written.
std::string written_cell(const SettingState& state) {
  return !state.written && state.value == state.initial ? "-" : written_text(state);
}

std::string value_cell(const Explained& e) {
  const auto* const devices = std::get_if<std::vector<SdkDebugDialog::JtagOption>>(&e.state.value);
  if (devices == nullptr || devices->empty()) return shown_value(e.setting, e.state.value);
  return std::to_string(devices->size()) + (devices->size() == 1 ? " device" : " devices");
}

// --- Text ---

void print_heading(const std::string& processor, const OptionFile& file, Output& out) {
  out.line(out.styled(Style::kHeading, processor) +
           visible(file.content ? " as in " + file.shown : " as in the defaults (no " + file.shown + ")"));
  if (file.content) out.line(visible(command_in(*file.content)));
  out.line("");
}

void print_table(const std::vector<Explained>& all, const Lines& lines, bool every, Output& out) {
  std::vector<std::vector<std::string>> rows = {{"SETTING", "VALUE", "FROM", "WRITTEN"}};
  for (const Explained& e : all) {
    const bool said = e.origin.kind == Origin::Kind::words;
    if (!every && !e.state.applies && !said && e.state.value == e.state.initial) continue;
    rows.push_back({std::string(e.setting.name), value_cell(e), origin_text(e.origin, lines), written_cell(e.state)});
  }
  out.table(rows);
}

void print_row(const std::string& name, const std::string& text, Output& out) {
  if (!text.empty()) out.line("  " + padded(name, 12) + text);
}

std::string accepted(const Explained& e) {
  std::string text = visible(join(e.state.choices));
  if (!text.empty() && e.state.freeText) text += ", or another value";
  return text;
}

void print_details(const Explained& e, const OptionFile& file, const Lines& lines, Output& out) {
  const Setting& setting = e.setting;
  out.line(out.styled(Style::kHeading, std::string(setting.name)) + ": " + std::string(setting.label));
  out.line("  " + std::string(setting.meaning));
  out.line("");
  print_row("value", shown_value(setting, e.state.value), out);
  print_row("from", origin_text(e.origin, lines), out);
  const Source source{file.shown, &lines};
  for (const Words& words : e.origin.words) out.text(marked_line(source, words.begin, words.end, out.look()));
  print_row("default",
            shown_value(setting, e.state.initial) +
                (setting.initial.empty() ? "" : " (" + std::string(setting.initial) + ")"),
            out);
  print_row("written", written_text(e.state), out);
  print_row("unit", std::string(setting.unit), out);
  print_row("accepted", accepted(e), out);
  if (!e.state.applies) {
    print_row("applies", "no: " + visible(e.state.whyNot), out);
  } else if (!e.state.changeable) {
    print_row("changeable", "no: " + visible(e.state.whyNot), out);
  }
  print_row("changes too", join(split_words(setting.follows)), out);
  for (const std::string& warning : e.warnings) print_row("warning", visible(warning), out);
}

// --- JSON ---

Json words_json(const Origin& origin, const Lines& lines) {
  Json list = Json::array();
  for (const Words& words : origin.words) {
    list.push_back({{"place", place_json(words.begin, words.end, lines)},
                    {"text", lines.text().substr(words.begin, words.end - words.begin)}});
  }
  return list;
}

Json explained_json(const Explained& e, const Lines& lines) {
  const SettingState& state = e.state;
  Json member = setting_json(e.setting, state);
  member.update({{"label", e.setting.label},
                 {"meaning", e.setting.meaning},
                 {"default", json_value(e.setting, state.initial)},
                 {"from", origin_name(e.origin.kind)},
                 {"fromSetting", e.origin.other != nullptr ? Json(e.origin.other->name) : Json()},
                 {"words", words_json(e.origin, lines)},
                 {"written", state.written},
                 {"whyNotWritten", text_or_null(state.whyNotWritten)},
                 {"choices", state.choices},
                 {"otherValues", state.freeText},
                 {"warnings", e.warnings}});
  return member;
}

}  // namespace

ExitCode run_explain(const Arguments& arguments, Output& out) {
  const Processor processor = find_processor(load_design(arguments), *arguments.processor);
  const Setting* const one = arguments.setting ? &setting_named(*arguments.setting) : nullptr;
  const OptionFile file = option_file_of(processor, arguments);
  const Configuration configuration = open_configuration(processor, file);
  const std::string text = file.content.value_or("");
  const Lines lines(text);
  std::vector<Explained> all = explained(configuration, text);
  if (arguments.json) {
    Json groups = Json::object();
    for (const Explained& e : all) {
      if (one == nullptr || one == &e.setting) groups[e.setting.group][e.setting.name] = explained_json(e, lines);
    }
    out.result({{"processor", processor.name()},
                {"file", file.content ? Json(file.shown) : Json()},
                {"command", text_or_null(command_in(text))},
                {"settings", std::move(groups)}});
  } else if (one != nullptr) {
    print_details(*std::ranges::find(all, one, [](const Explained& e) { return &e.setting; }), file, lines, out);
  } else {
    print_heading(processor.name(), file, out);
    print_table(all, lines, arguments.all, out);
  }
  return kDone;
}

}  // namespace qvtcfg
