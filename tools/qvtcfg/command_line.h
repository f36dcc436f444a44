#pragma once

// What the user asks for.

#include <optional>
#include <string>
#include <vector>

namespace qvtcfg {

class Output;

// What cable format writes, as given.
struct CableArguments {
  std::optional<std::string> type, frequency, port, esn, module, debug_device;
  std::vector<std::string> module_arguments;
  std::vector<std::string> devices;
};

struct Arguments {
  std::string directory;              // where to work; empty: here
  std::optional<std::string> design;  // a file; none: the default's, which need not be there for every command
  bool json = false;
  std::optional<std::string> processor;
  std::string text;                  // of read and cable parse
  std::vector<std::string> changes;  // of set
  CableArguments cable;
  bool changed_only = false;
  bool write = false;
  bool dry_run = false;

  // A path of the working directory as the user's shell would see it.
  std::string seen_from_outside(const std::string& path) const;
};

// The commands, a room each.
void run_processors(const Arguments& arguments, Output& out);
void run_show(const Arguments& arguments, Output& out);
void run_command(const Arguments& arguments, Output& out);
void run_read(const Arguments& arguments, Output& out);
void run_set(const Arguments& arguments, Output& out);
void run_cables(const Arguments& arguments, Output& out);
void run_cable_parse(const Arguments& arguments, Output& out);
void run_cable_format(const Arguments& arguments, Output& out);

using Run = void (*)(const Arguments&, Output&);

// Fills the arguments and answers what to run. Help and version are answered on out; the result is then null. Throws
// Failure for a wrong command line.
Run parse_command_line(int argc, const char* const* argv, Arguments& arguments, Output& out);

// Writes one line to standard error.
void complain(const std::string& text);

}  // namespace qvtcfg
