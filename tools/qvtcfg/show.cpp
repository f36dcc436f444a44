// qvtcfg show, command and read

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "command_line.h"
#include "failure.h"
#include "output.h"
#include "session.h"
#include "settings.h"
#include "text.h"

namespace qvtcfg {
namespace {

// Where settings were taken from, for people; and the option file that has them, for programs.
struct Source {
  std::string name;
  Json file;
};

void show_settings(const Arguments& arguments, const Session& session, const Source& source, Output& out) {
  const std::string& command = session.state().currentProcessor->command;
  if (arguments.json) {
    out.json({{"processor", arguments.processor},
              {"file", source.file},
              {"command", command.empty() ? Json() : Json(command)},
              {"settings", settings_json(session.state())}});
    return;
  }
  out.line(out.styled(Style::kHeading, arguments.processor) + visible(" as in " + source.name));
  if (!command.empty()) out.line(visible(command));
  print_settings(session.state(), out);
}

void write_if_asked(const Arguments& arguments, Session& session, Output& out) {
  out.flush();  // nothing is stored that could not be shown
  if (arguments.write) session.write_option_file();
}

std::string standard_input() {
  constexpr std::size_t kLimit = std::size_t{64} << 20;
  std::string text;
  char block[65536];
  while (const std::size_t count = std::fread(block, 1, sizeof block, stdin)) {
    text.append(block, count);
    if (text.size() > kLimit) throw Failure(kNotUnderstood, "standard input: too long for a connect command");
  }
  if (std::ferror(stdin) != 0) throw Failure(kFile, std::string("standard input: ") + std::strerror(errno));
  return text;
}

}  // namespace

void run_show(const Arguments& arguments, Output& out) {
  Session session(arguments);
  const std::string& file = session.option_file_name();
  const bool exists = session.read_option_file(Purpose::kShow).exists;
  show_settings(arguments, session, exists ? Source{file, file} : Source{"the defaults (no " + file + ")", Json()},
                out);
}

void run_command(const Arguments& arguments, Output& out) {
  Session session(arguments);
  session.read_option_file(arguments.write ? Purpose::kChange : Purpose::kShow);
  const std::string command = session.command();
  if (arguments.json) {
    out.json({{"processor", arguments.processor}, {"command", command}});
  } else {
    out.line(visible(command));
  }
  write_if_asked(arguments, session, out);
}

void run_read(const Arguments& arguments, Output& out) {
  const bool piped = arguments.text == "-";
  const std::string text = piped ? standard_input() : arguments.text;
  const std::string source = piped ? "standard input" : "the command given";
  Session session(arguments);
  session.read_command(text, source);
  show_settings(arguments, session, {source, arguments.write ? Json(session.option_file_name()) : Json()}, out);
  write_if_asked(arguments, session, out);
  if (arguments.write && !arguments.json) out.line(visible("written to " + session.option_file_name()));
}

}  // namespace qvtcfg
