#include "command_line.h"

#include <CLI/CLI.hpp>
#include <algorithm>

#include "failure.h"
#include "keys.h"
#include "output.h"
#include "text.h"

namespace qvtcfg {
namespace {

// The parts of a command line that commands share.
void take_processor(CLI::App& app, Arguments& a) {
  app.add_option("PROC", a.processor, "Name of a processor of the design")->required()->type_name("");
}

void take_write(CLI::App& app, Arguments& a) { app.add_flag("--write", a.write, "Store the option file"); }

void take_nothing(CLI::App& /*app*/, Arguments& /*a*/) {}

void take_command(CLI::App& app, Arguments& a) {
  take_processor(app, a);
  take_write(app, a);
}

void take_read(CLI::App& app, Arguments& a) {
  take_processor(app, a);
  app.add_option("TEXT", a.text, "The connect command, in quotes; - for standard input")->required()->type_name("");
  take_write(app, a);
}

void take_set(CLI::App& app, Arguments& a) {
  take_processor(app, a);
  app.add_option("CHANGE", a.changes, "KEY=VALUE, see the keys below")->required()->type_name("");
  app.add_flag("--dry-run", a.dry_run, "Show what would change and store nothing");
}

struct Command {
  const char* name;
  const char* purpose;
  const char* example;
  void (*take)(CLI::App&, Arguments&);
  Run run;
  std::string (*help)() = nullptr;  // what else the help has to say
};

constexpr Command kCommands[] = {
    {"processors", "List the processors of the design", "qvtcfg -C my_board processors", take_nothing, run_processors},
    {"show", "Show every setting of a processor, as its option file has it", "qvtcfg show cpu0", take_processor,
     run_show},
    {"command", "Print the connect command of a processor", "qvtcfg command cpu0", take_command, run_command},
    {"read", "Show what a connect command means for a processor",
     "qvtcfg read cpu0 'connect ov odm -cable type zarvek_platformusb' --write", take_read, run_read},
    {"set", "Change settings of a processor and store its option file",
     "qvtcfg set cpu0 cable=zarvek_platformusb frequency=12000000 debug-device=2 --dry-run", take_set, run_set,
     keys_help},
    {"cables", "List the cables that are known", "qvtcfg --json cables", take_nothing, run_cables},
};

std::string help_of(const Command& command) {
  const std::string more = command.help != nullptr ? command.help() + "\n" : "";
  return more + "Example:\n  " + command.example +
         "\n\nThe options -C DIR, --design FILE and --json of 'qvtcfg --help' may be given as well.";
}

std::string help_of_program() {
  return "Example:\n  qvtcfg -C my_board show cpu0\n\n"
         "Exit codes: 0 done, 1 refused, 2 usage, 3 text not understood, 4 file";
}

void name_parts_of_help(CLI::FormatterBase& formatter) {
  formatter.label("Positionals", "Arguments");
  formatter.label("REQUIRED", "");
  formatter.label("SUBCOMMAND", "COMMAND");
}

void add_command(CLI::App& app, const Command& command, Arguments& arguments) {
  CLI::App& sub = *app.add_subcommand(command.name, command.purpose);
  sub.group("Commands");
  command.take(sub, arguments);
  sub.footer([&command] { return help_of(command); });
}

void declare(CLI::App& app, Arguments& a) {
  name_parts_of_help(*app.get_formatter());
  app.set_help_flag("-h,--help", "Print this help");
  app.set_version_flag("--version", "qvtcfg " QVTCFG_VERSION, "Print the version");
  app.add_option("-C", a.directory, "Work in this folder")->type_name("DIR");
  app.add_option("--design", a.design, "The hardware design; design.json if not given")->type_name("FILE");
  app.add_flag("--json", a.json, "Answer in JSON");
  app.require_subcommand(0, 1);
  app.footer(help_of_program);
  // What is left over is explained here; options of the program may stand after the command as well.
  app.allow_extras();
  app.fallthrough();
  for (const Command& command : kCommands) add_command(app, command, a);
}

std::vector<std::string> command_names() {
  std::vector<std::string> names;
  for (const Command& command : kCommands) names.emplace_back(command.name);
  return names;
}

Failure usage(const CLI::App& app, const std::string& text) {
  const auto parsed = app.get_subcommands();
  const std::string command = parsed.empty() ? "" : parsed.front()->get_name() + " ";
  return {kUsage, text + "; see 'qvtcfg " + command + "--help'"};
}

// What is wrong with the first argument that nothing wanted.
std::string why_left_over(const std::string& argument, bool command_known) {
  const std::string quoted = " '" + one_line(argument) + "'";
  if (argument.starts_with('-')) return "unknown option" + quoted;
  if (command_known) return "unexpected argument" + quoted;
  return "unknown command" + quoted + suggestion(argument, command_names());
}

const Command& chosen_command(const CLI::App& app) {
  std::vector<std::string> left_over = app.remaining(true);
  std::erase(left_over, "--");  // it has done its work
  const auto parsed = app.get_subcommands();
  if (!left_over.empty()) throw usage(app, why_left_over(left_over.front(), !parsed.empty()));
  if (parsed.empty()) throw usage(app, "which command? One of " + join(command_names()));
  return *std::ranges::find_if(kCommands, [&](const Command& c) { return parsed.front()->get_name() == c.name; });
}

}  // namespace

std::string Arguments::seen_from_outside(const std::string& path) const {
  if (directory.empty() || path.starts_with('/')) return path;
  return directory + (directory.ends_with('/') ? "" : "/") + path;
}

Run parse_command_line(int argc, const char* const* argv, Arguments& arguments, Output& out) {
  CLI::App app("Debug settings of the processors of a hardware design", "qvtcfg");
  declare(app, arguments);
  try {
    app.parse(argc, argv);
  } catch (const CLI::CallForHelp&) {
    const std::string help = app.help();
    out.line(help.substr(0, help.find_last_not_of('\n') + 1));
    return nullptr;
  } catch (const CLI::CallForVersion& version) {
    out.line(version.what());
    return nullptr;
  } catch (const CLI::ParseError& error) {
    throw usage(app, one_line(error.what()));
  }
  return chosen_command(app).run;
}

}  // namespace qvtcfg
