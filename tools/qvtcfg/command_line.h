#pragma once

// The command line.

#include <optional>
#include <string>
#include <vector>

#include "failure.h"

namespace qvtcfg {

class Output;

// Options of "cable format", as given.
struct CableArguments {
  std::optional<std::string> type, frequency, port, esn, module, debug_device;
  std::vector<std::string> module_arguments;
  std::vector<std::string> devices;
};

struct Arguments {
  std::string directory;              // working directory; empty: the current one
  std::optional<std::string> design;  // path of the design file; not set: the default path
  std::string subcommand;             // "cable parse"; empty if none that can be run was named
  bool json = false;
  std::optional<std::string> processor;
  std::optional<std::string> setting;    // for explain
  std::vector<std::string> operands;     // processors and changes for set and unset; the last processors of copy
  std::string text;                      // for read and cable parse; the first argument of diff
  std::optional<std::string> diff_with;  // its second one
  CableArguments cable;
  bool all = false;  // settings for show, processors for set
  bool changed_only = false;
  bool write = false;
  bool dry_run = false;
  bool exit_code = false;
  bool force = false;
  std::optional<std::string> text_kind;  // command, file or cable
  std::optional<std::string> format;     // of check
  bool strict = false;
  bool fix = false;
  std::optional<std::string> explain;  // the code of a finding; empty: all

  // A path relative to the working directory (-C), as seen from the directory where qvtcfg was started.
  std::string seen_from_outside(const std::string& path) const;
};

// The subcommands. They throw Failure.
ExitCode run_processors(const Arguments& arguments, Output& out);
ExitCode run_show(const Arguments& arguments, Output& out);
ExitCode run_command(const Arguments& arguments, Output& out);
ExitCode run_read(const Arguments& arguments, Output& out);
ExitCode run_set(const Arguments& arguments, Output& out);
ExitCode run_unset(const Arguments& arguments, Output& out);
ExitCode run_copy(const Arguments& arguments, Output& out);
ExitCode run_diff(const Arguments& arguments, Output& out);
ExitCode run_explain(const Arguments& arguments, Output& out);
ExitCode run_check(const Arguments& arguments, Output& out);
ExitCode run_cables(const Arguments& arguments, Output& out);
ExitCode run_cable_parse(const Arguments& arguments, Output& out);
ExitCode run_cable_format(const Arguments& arguments, Output& out);

// Of check: explains a finding, or lists all codes for "all" and an empty text.
ExitCode explain_finding(const std::string& code, bool json, Output& out);

using Run = ExitCode (*)(const Arguments&, Output&);

// Fills the arguments and returns the function to run. Returns null after printing help or version to out. Throws
// Failure for an invalid command line; the subcommand and whether to answer in JSON are known then as well.
Run parse_command_line(int argc, const char* const* argv, Arguments& arguments, Output& out);

// Writes the text as one line, after "qvtcfg: ", to standard error.
void complain(const std::string& text);

// The same for a warning, which an answer in JSON has as well.
void warn(const std::string& text);
const std::vector<std::string>& warnings();

}  // namespace qvtcfg
