#include "docs/tables/json.h"

#include <algorithm>
#include <set>
#include <stdexcept>
#include <vector>

#include "SdkDebugDialog/Diagnosis.h"
#include "SdkDebugDialog/Settings.h"
#include "docs/tables/markdown.h"
#include "docs/tables/print.h"
#include "tools/qvtcfg/description.h"
#include "tools/qvtcfg/failure.h"
#include "tools/qvtcfg/finding_text.h"

namespace SdkDebugDialog {
namespace {

// Lines of JSON, without the commas between them.
using Lines = std::vector<std::string>;

std::string json_string(std::string_view text) { return '"' + std::string(text) + '"'; }

std::string reference(std::string_view definition) {
  return R"({"$ref": "#/definitions/)" + std::string(definition) + "\"}";
}

// A member whose value is an array or an object; the content has the lines of one element each.
std::string member(std::string_view name, char open, const Lines& elements, char close,
                   const std::string& indentation) {
  std::string all = indentation + json_string(name) + ": " + open;
  for (const std::string& element : elements) {
    all += (&element == &elements.front() ? "\n" : ",\n");
    // Elements of several lines bring their own indentation.
    if (!element.starts_with(' ')) all.append(indentation).append("  ");
    all += element;
  }
  return all + '\n' + indentation + close;
}

std::string enumeration(const Lines& values, const std::string& indentation) {
  return member("enum", '[', values, ']', indentation);
}

std::string object(std::string_view name, const Lines& members, const std::string& indentation) {
  return member(name, '{', members, '}', indentation);
}

Lines setting_names() {
  Lines names;
  for (const Setting& setting : settings()) names.push_back(json_string(setting.name));
  return names;
}

Lines finding_codes() {
  Lines codes;
  for (const FindingKind& kind : finding_kinds()) codes.push_back(json_string(kind.code));
  return codes;
}

Lines severities() {
  return {json_string(qvtcfg::severity_name(Severity::error)), json_string(qvtcfg::severity_name(Severity::warning)),
          json_string(qvtcfg::severity_name(Severity::note))};
}

Lines error_codes() {
  Lines codes;
  for (const qvtcfg::ErrorName& error : qvtcfg::error_names()) codes.push_back(json_string(error.name));
  return codes;
}

Lines exit_codes() {
  std::set<int> codes;
  for (const qvtcfg::ErrorName& error : qvtcfg::error_names()) codes.insert(error.code);
  Lines numbers;
  for (const int code : codes) numbers.push_back(std::to_string(code));
  return numbers;
}

// The names of the subcommands that can be run; null stands for a command line that names none.
void add_subcommands(const qvtcfg::CommandDescription& command, Lines& names) {
  if (command.commands.empty()) names.push_back(json_string(command.name));
  for (const qvtcfg::CommandDescription& below : command.commands) add_subcommands(below, names);
}

Lines subcommands() {
  Lines names;
  add_subcommands(qvtcfg::describe(), names);
  names.emplace_back("null");
  return names;
}

// The values of a setting. What a command tells about no processor of the design is null.
std::string values(const Setting& setting) {
  Lines words;
  for (const std::string_view word : setting.words) words.push_back(json_string(word));
  switch (setting.kind) {
    case SettingKind::flag:
      return R"({"type": "boolean"})";
    case SettingKind::number:
    case SettingKind::frequency:
    case SettingKind::size:
      return R"({"type": "integer"})";
    case SettingKind::address:
      return R"({"type": ["integer", "null"]})";
    case SettingKind::text:
      return setting.readOnly ? R"({"type": ["string", "null"]})" : R"({"type": "string"})";
    case SettingKind::word:
      return R"({"enum": [)" + markdown::joined(words) + "]}";
    case SettingKind::words:
      return R"({"type": "array", "items": {"enum": [)" + markdown::joined(words) + "]}}";
    case SettingKind::devices:
      break;
  }
  return R"({"type": "array", "items": )" + reference("device") + "}";
}

Lines values_of_settings() {
  Lines all;
  for (const Setting& setting : settings()) all.push_back(json_string(setting.name) + ": " + values(setting));
  return all;
}

// A setting as the definition has it, with values of its own.
std::string setting_member(const Setting& setting, const std::string& definition, const std::string& indentation) {
  const std::string own = reference("values/definitions/" + std::string(setting.name));
  Lines parts = {reference(definition), R"({"properties": {"value": )" + own + "}}"};
  if (definition == "explainedSetting") parts.push_back(R"({"properties": {"default": )" + own + "}}");
  return object(setting.name, {member("allOf", '[', parts, ']', indentation + "  ")}, indentation);
}

std::string groups_of(const std::string& definition, const std::string& indentation) {
  const std::string in_groups = indentation + "  ";
  const std::string in_group = in_groups + "  ";
  Lines groups;
  for (auto first = settings().begin(); first != settings().end();) {
    const auto last = std::find_if(first, settings().end(), [&](const Setting& s) { return s.group != first->group; });
    Lines members;
    for (auto setting = first; setting != last; ++setting) {
      members.push_back(setting_member(*setting, definition, in_group + "  "));
    }
    groups.push_back(
        object(first->group,
               {R"("type": "object")", R"("additionalProperties": false)", object("properties", members, in_group)},
               in_groups));
    first = last;
  }
  return object("properties", groups, indentation);
}

}  // namespace

std::string print_schema_part(const std::string& part, const std::string& indentation) {
  if (part == "setting names") return enumeration(setting_names(), indentation) + '\n';
  if (part == "finding codes") return enumeration(finding_codes(), indentation) + '\n';
  if (part == "severities") return enumeration(severities(), indentation) + '\n';
  if (part == "subcommands") return enumeration(subcommands(), indentation) + '\n';
  if (part == "error codes") return enumeration(error_codes(), indentation) + '\n';
  if (part == "exit codes of errors") return enumeration(exit_codes(), indentation) + '\n';
  if (part == "values of settings") return object("definitions", values_of_settings(), indentation) + '\n';
  if (part == "groups of setting") return groups_of("setting", indentation) + '\n';
  if (part == "groups of explainedSetting") return groups_of("explainedSetting", indentation) + '\n';
  throw std::runtime_error("there is no part of this name: " + part);
}

markdown::Table error_table() {
  std::vector<markdown::Row> rows;
  for (const qvtcfg::ErrorName& error : qvtcfg::error_names()) {
    rows.push_back({markdown::code(error.name), std::to_string(error.code), error.meaning});
  }
  return {{"code", "exit code", "means"}, rows};
}

}  // namespace SdkDebugDialog
