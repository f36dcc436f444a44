#pragma once

// The command line as data: what help, man pages and completions are made from.

#include <string>
#include <string_view>
#include <vector>

namespace qvtcfg {

// An option, or an argument by its place.
struct Parameter {
  std::vector<std::string> names;  // "-C"; "-h", "--help"; "PROC" for an argument by its place
  std::string value;               // what an option takes, such as "DIR"; empty for a flag
  std::string meaning;
  bool required = false;
  bool repeated = false;             // it may be given several times
  bool valueOptional = false;        // an option that may stand without its value
  std::vector<std::string> needs;    // the options without which it cannot be given
  std::vector<std::string> choices;  // the values of an option that takes one of a few words
};

struct CommandDescription {
  std::string name;  // "cable format"; "qvtcfg" for the program
  std::string_view purpose;
  std::vector<Parameter> arguments;  // by their place
  std::vector<Parameter> options;
  std::vector<CommandDescription> commands;
};

// The last word of its name, as it is typed behind the command that it belongs to.
inline std::string own_name(const CommandDescription& command) {
  return command.name.substr(command.name.rfind(' ') + 1);
}

// The program with all its commands.
CommandDescription describe();

}  // namespace qvtcfg
