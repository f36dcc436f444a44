// The parts of documents that come from the definitions of the command line and from the catalogue of settings.

#include <algorithm>
#include <cstddef>
#include <locale>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "SdkDebugDialog/Settings.h"
#include "docs/tables/markdown.h"
#include "docs/tables/print.h"
#include "docs/tables/roff.h"
#include "tools/qvtcfg/changes.h"
#include "tools/qvtcfg/description.h"

namespace SdkDebugDialog {
namespace {

using qvtcfg::CommandDescription;
using qvtcfg::Parameter;

const CommandDescription& program() {
  static const CommandDescription description = qvtcfg::describe();
  return description;
}

const CommandDescription* find(const CommandDescription& in, const std::string& name) {
  if (in.name == name) return &in;
  for (const CommandDescription& command : in.commands) {
    if (const CommandDescription* const found = find(command, name)) return found;
  }
  return nullptr;
}

const CommandDescription& command_named(const std::string& name) {
  const CommandDescription* const found = find(program(), name);
  if (found == nullptr) throw std::runtime_error("there is no command of this name: " + name);
  return *found;
}

// "Fl -format" for "--format".
std::string flag(const std::string& name) { return "Fl " + roff::text(name.substr(1)); }

bool is_help(const Parameter& option) { return option.names.back() == "--help"; }
bool is_alone(const Parameter& option) { return is_help(option) || option.names.back() == "--version"; }

std::string with_value(const Parameter& option) {
  std::string text;
  for (const std::string& name : option.names) text += (text.empty() ? "" : " , ") + flag(name);
  if (option.value.empty()) return text;
  return text + (option.valueOptional ? " Op Ar " : " Ar ") + roff::text(option.value);
}

// The options that cannot be given without this one.
std::vector<const Parameter*> needing(const Parameter& option, const CommandDescription& command) {
  std::vector<const Parameter*> found;
  for (const Parameter& other : command.options) {
    if (std::ranges::find(other.needs, option.names.back()) != other.needs.end()) found.push_back(&other);
  }
  return found;
}

// An option, with those that need it.
std::string in_synopsis(const Parameter& option, const CommandDescription& command) {
  std::string text = "Op " + with_value(option) + (option.repeated ? " No ..." : "");
  for (const Parameter* const other : needing(option, command)) text += ' ' + in_synopsis(*other, command);
  return text;
}

// An argument that takes names and then something else, such as PROC and KEY=VALUE, can do without the names.
std::string argument_in_synopsis(const Parameter& argument) {
  const std::string more = argument.repeated ? " ..." : "";
  std::string text = (argument.required ? ".Ar " : ".Op Ar ") + roff::text(argument.names.front()) + more + '\n';
  if (!argument.value.empty()) text += ".Ar " + roff::text(argument.value) + more + '\n';
  return text;
}

std::string usage(const CommandDescription& command) {
  std::string text = ".Nm qvtcfg\n";
  for (const Parameter& option : program().options) {
    if (!is_alone(option)) text += '.' + in_synopsis(option, program()) + '\n';
  }
  if (&command == &program()) return text + ".Ar COMMAND ...\n";
  text += ".Cm " + command.name + '\n';
  for (const Parameter& argument : command.arguments) text += argument_in_synopsis(argument);
  for (const Parameter& option : command.options) {
    if (!is_help(option) && option.needs.empty()) text += '.' + in_synopsis(option, command) + '\n';
  }
  return text;
}

std::string page_of(const CommandDescription& command) {
  return &command == &program() ? command.name : "qvtcfg-" + command.name;
}

std::string with_small_initial(std::string_view purpose) {
  std::string text(purpose);
  text.front() = std::tolower(text.front(), std::locale::classic());
  return text;
}

// --- As it is typed, for Markdown ---

std::string typed_option(const Parameter& option) {
  std::string text = markdown::joined(option.names);
  if (option.value.empty()) return text;
  return text + (option.valueOptional ? " [" + option.value + ']' : ' ' + option.value);
}

std::string typed_argument(const Parameter& argument) {
  const std::string more = argument.repeated ? "..." : "";
  const std::string name = argument.names.front() + more;
  const std::string text = argument.required ? name : '[' + name + ']';
  return argument.value.empty() ? text : text + ' ' + argument.value + more;
}

// An option, with those that need it.
std::string optional(const Parameter& option, const CommandDescription& command) {
  std::string text = '[' + typed_option(option);
  for (const Parameter* const other : needing(option, command)) text += ' ' + optional(*other, command);
  return text + (option.repeated ? "]..." : "]");
}

std::string typed_command(const CommandDescription& command) {
  std::string text = command.name;
  for (const Parameter& argument : command.arguments) text += ' ' + typed_argument(argument);
  for (const Parameter& option : command.options) {
    if (!is_help(option) && option.needs.empty()) text += ' ' + optional(option, command);
  }
  return text;
}

// Those below the command that can be run.
void add_commands(const CommandDescription& in, std::vector<markdown::Row>& rows) {
  for (const CommandDescription& command : in.commands) {
    if (command.commands.empty()) {
      rows.push_back({markdown::code(typed_command(command)), markdown::with_code(command.purpose)});
    }
    add_commands(command, rows);
  }
}

}  // namespace

std::string print_synopsis(const std::string& name) {
  const CommandDescription& command = command_named(name);
  std::string text = ".Sh NAME\n.Nm " + page_of(command) + "\n.Nd " + roff::text(with_small_initial(command.purpose)) +
                     "\n.Sh SYNOPSIS\n";
  if (command.commands.empty() || &command == &program()) return text + usage(command);
  for (const CommandDescription& c : command.commands) text += usage(c);
  return text;
}

std::string print_parameters(const std::string& name) {
  const CommandDescription& command = command_named(name);
  std::string items;
  for (const Parameter& argument : command.arguments) {
    items += ".It Ar " + roff::text(argument.names.front());
    if (!argument.value.empty()) items += " ... " + roff::text(argument.value);
    items += (argument.repeated ? " ...\n" : "\n") + roff::lines(roff::sentence(markdown::with_code(argument.meaning)));
  }
  for (const Parameter& option : command.options) {
    if (is_help(option) && &command != &program()) continue;
    items += ".It " + with_value(option) + '\n' + roff::lines(roff::sentence(markdown::with_code(option.meaning)));
    for (const std::string& needed : option.needs) items += "Only with\n." + flag(needed) + " .\n";
  }
  return roff::list(items);
}

std::string print_commands() {
  std::string items;
  for (const CommandDescription& command : program().commands) {
    items += ".It Xr " + page_of(command) + " 1\n" + roff::lines(roff::sentence(std::string(command.purpose)));
  }
  return roff::list(items);
}

markdown::Table command_table() {
  std::vector<markdown::Row> rows;
  add_commands(program(), rows);
  return {{"command", "does"}, rows};
}

markdown::Table parameter_table(const std::string& name) {
  const CommandDescription& command = command_named(name);
  std::vector<markdown::Row> rows;
  for (const Parameter& argument : command.arguments) {
    rows.push_back({markdown::code(typed_argument(argument)), markdown::with_code(argument.meaning)});
  }
  for (const Parameter& option : command.options) {
    if (is_help(option)) continue;
    std::string meaning = markdown::with_code(option.meaning);
    for (const std::string& needed : option.needs) meaning += "; only with " + markdown::code(needed);
    rows.push_back({markdown::code(typed_option(option)), meaning});
  }
  return {{command.arguments.empty() ? "option" : "argument", "meaning"}, rows};
}

std::string print_keys() {
  std::string items;
  for (const qvtcfg::Key& key : qvtcfg::keys()) {
    items += ".It Cm " + roff::text(key.setting->name) + "= Ns Ar " + roff::text(key.takes) + '\n' +
             roff::lines(roff::sentence(markdown::with_code(key.about)));
    if (!key.setting->unit.empty()) items += roff::lines("In " + std::string(key.setting->unit) + '.');
  }
  return roff::list(items);
}

}  // namespace SdkDebugDialog
