#include "command_line.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdio>
#include <span>
#include <string_view>

#include "changes.h"
#include "description.h"
#include "failure.h"
#include "output.h"
#include "text.h"

namespace qvtcfg {
namespace {

// Arguments and options that several subcommands use.
void take_all_settings(CLI::App& app, Arguments& a) {
  app.add_flag("--all", a.all, "Show also the settings that do not apply, and why");
}

void take_force(CLI::App& app, Arguments& a) {
  app.add_flag("--force", a.force, "Store also what loses something or is not read back");
}

// How option files are changed.
void take_change_options(CLI::App& app, Arguments& a) {
  take_force(app, a);
  CLI::Option* const dry_run = app.add_flag("--dry-run", a.dry_run, "Show what would change and store nothing");
  app.add_flag("--exit-code", a.exit_code, "Exit with 5 when something would change")->needs(dry_run);
}

CLI::Option& take_processor(CLI::App& app, Arguments& a) {
  return *app.add_option("PROC", a.processor, "Name of a processor of the design")->required()->type_name("");
}

void take_write(CLI::App& app, Arguments& a) {
  app.add_flag("--write", a.write, "Store the option file");
  take_force(app, a);
}

void take_changed(CLI::App& app, Arguments& a) {
  app.add_flag("--changed", a.changed_only, "Show only what differs from its default");
}

void take_text(CLI::App& app, Arguments& a, const char* what) {
  app.add_option("TEXT", a.text, what)->required()->type_name("");
}

// --- Arguments and options of each subcommand ---

void take_nothing(CLI::App& /*app*/, Arguments& /*a*/) {}

void take_program(CLI::App& app, Arguments& a) {
  app.set_version_flag("--version", "qvtcfg " QVTCFG_VERSION, "Print the version");
  app.add_option("-C", a.directory, "Work in this folder")->type_name("DIR");
  app.add_option("--design", a.design, "The hardware design; design.json if not given")->type_name("FILE");
  app.add_flag("--json", a.json, "Answer in JSON");
}

void take_show(CLI::App& app, Arguments& a) {
  take_processor(app, a);
  take_changed(app, a);
  take_all_settings(app, a);
}

void take_command(CLI::App& app, Arguments& a) {
  take_processor(app, a);
  take_write(app, a);
}

// PROC is optional: an argument that cannot be a name is taken as TEXT.
void take_read(CLI::App& app, Arguments& a) {
  const auto name = [](const std::string& text) {
    const bool possible = !text.empty() && text != "-" && text.find_first_of(kWhiteSpace) == std::string::npos;
    return std::string(possible ? "" : "no name");
  };
  take_processor(app, a).required(false)->check(name, "")->description(
      "Name of a processor of the design; without it the command tells the processor");
  app.validate_positionals();
  take_text(app, a, "The connect command, in quotes; - for standard input");
  take_changed(app, a);
  take_all_settings(app, a);
  take_write(app, a);
}

void take_processors_and(CLI::App& app, Arguments& a, const char* what, const char* description) {
  app.add_option("PROC", a.operands, description)->type_name(what);
  app.add_flag(
      "--all", a.all,
      "Instead of names: all processors to which every setting given applies; the others are listed with the reason");
  take_change_options(app, a);
}

void take_set(CLI::App& app, Arguments& a) {
  take_processors_and(app, a, "KEY=VALUE",
                      "Names of processors of the design, then changes, see the keys below; KEY= for the default");
}

void take_unset(CLI::App& app, Arguments& a) {
  take_processors_and(app, a, "NAME",
                      "Names of processors of the design, then of settings to be put back to their defaults");
}

void take_copy(CLI::App& app, Arguments& a) {
  app.add_option("FROM", a.processor, "Name of the processor that has the settings")->required()->type_name("");
  app.add_option("TO", a.operands, "Names of the processors that get them")->required()->type_name("");
  take_change_options(app, a);
}

void take_diff(CLI::App& app, Arguments& a) {
  app.add_option("A", a.text, "A processor, the path of an option file, a connect command in quotes, or - for one")
      ->required()
      ->type_name("");
  app.add_option("B", a.diff_with, "The same; without it, the defaults of A come first")->type_name("");
}

void take_explain(CLI::App& app, Arguments& a) {
  take_processor(app, a);
  app.add_option("SETTING", a.setting, "One setting, in detail")->type_name("");
  take_all_settings(app, a);
}

void take_check(CLI::App& app, Arguments& a) {
  app.add_option("TEXT", a.operands,
                 "What to check: the option file of a processor of the design, a file, the option files of a folder, "
                 "or - for standard input; without it, the option files of the working folder")
      ->type_name("");
  app.add_option("--as", a.text_kind,
                 "What standard input or a file of another name holds: command (as a rule from standard input), file "
                 "(an option file, as a rule in a file) or cable (the options of cable and chain)")
      ->type_name("KIND")
      ->check(CLI::IsMember({"command", "file", "cable"}));
  app.add_option("--format", a.format,
                 "How to answer: text, with the lines and the marks; short, a line for each finding, for editors; "
                 "json; sarif, for the services that show such results")
      ->type_name("FORMAT")
      ->check(CLI::IsMember({"text", "short", "json", "sarif"}))
      ->each([&a](const std::string& format) { a.json |= format == "json"; });
  app.add_flag("--strict", a.strict, "Exit with 3 for warnings as well");
  CLI::Option* const fix = app.add_flag(
      "--fix", a.fix, "Make the fixes that are safe, and show them; a file is replaced whole or stays as it was");
  app.add_flag("--dry-run", a.dry_run, "Show what --fix would change and store nothing")->needs(fix);
  app.add_option("--explain", a.explain, "Explain the findings with this code; all codes without it")
      ->type_name("CODE")
      ->expected(0, 1);
}

void take_cable_parse(CLI::App& app, Arguments& a) {
  take_text(app, a, "The options of cable and chain, in quotes; - for standard input");
  take_changed(app, a);
  take_all_settings(app, a);
}

void take_cable_format(CLI::App& app, Arguments& a) {
  CableArguments& cable = a.cable;
  app.add_option("--type", cable.type, "Type of the cable, see 'qvtcfg cables'")->type_name("NAME");
  app.add_option("--frequency", cable.frequency,
                 "Its clock, one that the cable supports, or 0; the type's default if not given")
      ->type_name("HZ");
  app.add_option("--port", cable.port, "Its port; the type's default if not given")->type_name("PORT");
  app.add_option("--esn", cable.esn, "Its serial number, written instead of frequency and port")->type_name("ESN");
  app.add_option("--module", cable.module, "Module of a zarvek_plugin cable")->type_name("NAME");
  app.add_option("--module-arg", cable.module_arguments, "Argument of the module; may be given again")
      ->type_name("ARG")
      ->allow_extra_args(false);
  app.add_option("--device", cable.devices, "The next device of the JTAG chain; may be given again")
      ->type_name("NR,PART,IRLENGTH,IDCODE")
      ->allow_extra_args(false);
  app.add_option("--debug-device", cable.debug_device, "Number of the debug device in the chain, 0 to 127; 0 for none")
      ->type_name("NR");
}

std::string program_help() {
  return "Exit codes: 0 done, 1 refused, 2 usage, 3 text not understood, 4 file,\n"
         "5 diff found a difference, or --dry-run --exit-code that something would change\n\n"
         "A design is a JSON file: docs/design-file.md and 'man qvt_design' describe it, and the schema\n"
         "design-file.schema.json is installed in share/SdkDebugDialog. Every command has a man page:\n"
         "'man qvtcfg-set'.";
}

std::string check_help() {
  return "A word that is both a processor and a file is the processor. The processor of an option file is told by the\n"
         "file's name, qvt_NAME.opt, when there is a design.\n\n"
         "Exit codes: 0 nothing found or warnings only, 3 errors, 4 a file cannot be read or written";
}

// --- The table of subcommands ---

struct Command {
  const char* name;
  const char* purpose;
  const char* example;
  void (*take)(CLI::App&, Arguments&);
  Run run = nullptr;                // null if a subcommand is required
  std::string (*help)() = nullptr;  // additional help text
  const Command* commands = nullptr;
  std::size_t count = 0;  // number of subcommands
};

constexpr Command kCableCommands[] = {
    {"parse", "Show what the options of cable and chain mean",
     "qvtcfg cable parse '-cable type zarvek_parallel3 -configdevice devicenr 1 isfpga 1'", take_cable_parse,
     run_cable_parse},
    {"format", "Print the options of a cable and a chain",
     "qvtcfg cable format --type zarvek_platformusb --device 1,prom32,16,0xa5059093 --debug-device 1",
     take_cable_format, run_cable_format},
};

constexpr Command kCommands[] = {
    {"processors", "List the processors of the design", "qvtcfg -C my_board processors", take_nothing, run_processors},
    {"show", "Show the settings of a processor, as its option file has them", "qvtcfg show cpu0 --changed", take_show,
     run_show},
    {"command", "Print the connect command of a processor", "qvtcfg command cpu0", take_command, run_command},
    {"read", "Show what a connect command means, for a processor or by itself",
     "qvtcfg read cpu0 'connect ov odm -cable type zarvek_platformusb' --write", take_read, run_read},
    {"set", "Change settings of processors and store their option files",
     "qvtcfg set cpu0 cable=zarvek_platformusb frequency=12M debug-device=2 --dry-run", take_set, run_set, keys_help},
    {"unset", "Put settings of a processor back to their defaults", "qvtcfg unset cpu0 bscan devices", take_unset,
     run_unset},
    {"copy", "Copy the settings of a processor to others", "qvtcfg copy cpu0 cpu1 cpu2 --dry-run", take_copy, run_copy},
    {"diff", "Compare settings", "qvtcfg diff cpu0 'connect ov sim'", take_diff, run_diff},
    {"explain", "Tell where each setting comes from, and whether a new command has it", "qvtcfg explain cpu0 frequency",
     take_explain, run_explain},
    {"check", "Find what is wrong with option files and connect commands", "qvtcfg check --strict", take_check,
     run_check, check_help},
    {"cables", "List the cables that are known", "qvtcfg --json cables", take_nothing, run_cables},
    {"cable", "Read and write the options of cable and chain, without a design",
     "qvtcfg cable format --type zarvek_platformusb", take_nothing, nullptr, nullptr, kCableCommands,
     std::size(kCableCommands)},
};

constexpr Command kProgram = {"qvtcfg",
                              "Debug settings of the processors of a hardware design",
                              "qvtcfg -C my_board show cpu0",
                              take_program,
                              nullptr,
                              program_help,
                              kCommands,
                              std::size(kCommands)};

std::span<const Command> commands_of(const Command& command) { return {command.commands, command.count}; }

std::vector<std::string> names_of_commands(const Command& command) {
  std::vector<std::string> names;
  for (const Command& c : commands_of(command)) names.emplace_back(c.name);
  return names;
}

// --- Help ---

std::string help_of(const Command& command) {
  std::string text = std::string("Example:\n  ") + command.example;
  if (command.help != nullptr) text += "\n\n" + command.help();
  if (&command == &kProgram) return text;
  return text + "\n\nThe options -C DIR, --design FILE and --json of 'qvtcfg --help' may be given as well.";
}

void name_parts_of_help(CLI::FormatterBase& formatter) {
  formatter.label("Positionals", "Arguments");
  formatter.label("REQUIRED", "");
  formatter.label("SUBCOMMAND", "COMMAND");
}

// --- Parsing ---

void declare(CLI::App& app, const Command& command, Arguments& arguments) {
  command.take(app, arguments);
  app.footer([&command] { return help_of(command); });
  app.require_subcommand(0, 1);
  for (const Command& c : commands_of(command)) {
    CLI::App& sub = *app.add_subcommand(c.name, c.purpose);
    sub.group("Commands");
    declare(sub, c, arguments);
  }
}

void declare_program(CLI::App& app, Arguments& arguments) {
  name_parts_of_help(*app.get_formatter());
  app.set_help_flag("-h,--help", "Print this help");
  // Unknown arguments are reported by why_left_over(). Options of the program are also accepted after the subcommand.
  app.allow_extras();
  app.fallthrough();
  declare(app, kProgram, arguments);
}

// --- Description ---

std::vector<std::string> names_of(const CLI::Option& option) {
  if (option.get_positional()) return {option.get_name(true)};
  std::vector<std::string> names;
  for (const std::string& name : option.get_snames()) names.push_back("-" + name);
  for (const std::string& name : option.get_lnames()) names.push_back("--" + name);
  return names;
}

Parameter described(const CLI::Option& option) {
  Parameter parameter;
  parameter.names = names_of(option);
  parameter.meaning = option.get_description();
  parameter.required = option.get_required();
  parameter.repeated = option.get_expected_max() > 1;
  for (const CLI::Option* const needed : option.get_needs()) parameter.needs.push_back(needed->get_name());
  // Words to choose from follow the name of the value: "KIND:{command,file,cable}".
  const std::string type = option.get_type_name();
  const std::size_t words = type.find(":{");
  parameter.value = type.substr(0, words);
  if (words != std::string::npos) {
    parameter.choices = CLI::detail::split(type.substr(words + 2, type.size() - words - 3), ',');
  }
  parameter.valueOptional = !parameter.value.empty() && option.get_items_expected_min() == 0;
  return parameter;
}

CommandDescription described(const CLI::App& app, const Command& command, const std::string& name) {
  CommandDescription description;
  description.name = name;
  description.purpose = command.purpose;
  for (const CLI::Option* const option : app.get_options()) {
    (option->get_positional() ? description.arguments : description.options).push_back(described(*option));
  }
  const std::string path = &command == &kProgram ? "" : name + " ";
  for (const Command& c : commands_of(command)) {
    description.commands.push_back(described(*app.get_subcommand(c.name), c, path + c.name));
  }
  return description;
}

// An argument that begins with a dash and contains white space is an option text, such as "-cable type x", not an
// option of this program. A blank in front hides it from the parser. It is removed after parsing, so that the column
// numbers in messages are right.
bool is_option_text(std::string_view argument) {
  const std::size_t start = argument.find_first_not_of(' ');
  return start < argument.size() && argument[start] == '-' &&
         argument.find_first_of(kWhiteSpace, start) < argument.size();
}

std::vector<std::string> protected_arguments(int argc, const char* const* argv) {
  std::vector<std::string> arguments(argv + 1, argv + argc);
  for (std::string& argument : arguments) {
    if (is_option_text(argument)) argument.insert(0, 1, ' ');
  }
  return arguments;
}

void unprotect(std::string& text) {
  if (text.starts_with(' ') && is_option_text(text)) text.erase(0, 1);
}

// The subcommand that was given.
struct Chosen {
  const Command* command = &kProgram;
  const CLI::App* app = nullptr;
  std::string name;  // "cable parse"; empty for the program
};

Chosen chosen_command(const CLI::App& program) {
  Chosen chosen{&kProgram, &program, ""};
  for (auto parsed = program.get_subcommands(); !parsed.empty(); parsed = chosen.app->get_subcommands()) {
    chosen.app = parsed.front();
    chosen.command = &*std::ranges::find_if(commands_of(*chosen.command),
                                            [&](const Command& c) { return chosen.app->get_name() == c.name; });
    chosen.name += (chosen.name.empty() ? "" : " ") + chosen.app->get_name();
  }
  return chosen;
}

Failure usage(const Chosen& chosen, const std::string& text) {
  return {kUsage, text + "; see 'qvtcfg " + chosen.name + (chosen.name.empty() ? "" : " ") + "--help'"};
}

std::string suggestion(std::string_view name, const Command& command) {
  std::vector<std::string_view> names;
  for (const Command& c : commands_of(command)) names.emplace_back(c.name);
  const std::string_view nearest = SdkDebugDialog::nearest_name(name, names);
  return nearest.empty() ? "" : " (did you mean '" + std::string(nearest) + "'?)";
}

// The error for the first argument that was not parsed.
std::string why_left_over(const std::string& argument, const Command& command) {
  const std::string quoted = " '" + one_line(argument) + "'";
  if (argument.starts_with('-')) return "unknown option" + quoted;
  if (command.run != nullptr) return "unexpected argument" + quoted;
  return "unknown command" + quoted + suggestion(argument, command);
}

Run require_run(const Chosen& chosen, const CLI::App& program) {
  const Command& command = *chosen.command;
  std::vector<std::string> left_over = program.remaining(true);
  std::erase(left_over, "--");  // the end-of-options separator
  if (!left_over.empty()) throw usage(chosen, why_left_over(left_over.front(), command));
  if (command.run == nullptr) throw usage(chosen, "a command is missing: one of " + join(names_of_commands(command)));
  return command.run;
}

// Whether a command line that cannot be parsed asks for JSON.
bool asks_for_json(std::span<const char* const> given) {
  std::string_view before;
  for (const std::string_view argument : given) {
    if (argument == "--") break;
    if (argument == "--json" || argument == "--format=json" || (before == "--format" && argument == "json"))
      return true;
    before = argument;
  }
  return false;
}

std::vector<std::string>& warnings_so_far() {
  static std::vector<std::string> all;
  return all;
}

}  // namespace

void complain(const std::string& text) {
  std::fprintf(stderr, "qvtcfg: %s\n", one_line(text, kLongestMessage).c_str());
}

void warn(const std::string& text) {
  complain("warning: " + text);
  warnings_so_far().push_back(one_line(text, kLongestMessage));
}

const std::vector<std::string>& warnings() { return warnings_so_far(); }

CommandDescription describe() {
  CLI::App app;
  Arguments arguments;
  declare_program(app, arguments);
  return described(app, kProgram, kProgram.name);
}

std::string Arguments::seen_from_outside(const std::string& path) const {
  if (directory.empty() || path.starts_with('/')) return path;
  return directory + (directory.ends_with('/') ? "" : "/") + path;
}

Run parse_command_line(int argc, const char* const* argv, Arguments& arguments, Output& out) {
  CLI::App app(kProgram.purpose, kProgram.name);
  declare_program(app, arguments);
  std::vector<std::string> given = protected_arguments(argc, argv);
  std::ranges::reverse(given);  // the parser expects them in reverse order
  std::optional<std::string> parse_error;
  try {
    app.parse(std::move(given));
  } catch (const CLI::CallForHelp&) {
    const std::string help = app.help();
    out.line(help.substr(0, help.find_last_not_of('\n') + 1));
    return nullptr;
  } catch (const CLI::CallForVersion& version) {
    out.line(version.what());
    return nullptr;
  } catch (const CLI::ParseError& error) {
    arguments.json = asks_for_json({argv, argv + argc});
    parse_error = one_line(error.what());
  }
  const Chosen chosen = chosen_command(app);
  if (chosen.command->run != nullptr) arguments.subcommand = chosen.name;
  if (parse_error) throw usage(chosen, *parse_error);
  unprotect(arguments.text);
  return require_run(chosen, app);
}

}  // namespace qvtcfg
