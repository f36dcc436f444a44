// qvtcfg show, command and read

#include "command_line.h"
#include "failure.h"
#include "given_text.h"
#include "output.h"
#include "session.h"
#include "settings.h"
#include "text.h"

namespace qvtcfg {
namespace {

// Where the settings come from: a description for text output, and the path of the option file, or null, for JSON.
struct Source {
  std::string name;
  Json file;
};

void show_settings(const Arguments& arguments, const Session& session, const Source& source, Output& out) {
  const std::string& processor = session.processor();
  const std::string& command = session.state().currentProcessor->command;
  const Settings settings = settings_of(session.state());
  const Choice choice{.changed_only = arguments.changed_only};
  if (arguments.json) {
    out.json({{"processor", processor.empty() ? Json() : Json(processor)},
              {"file", source.file},
              {"command", command.empty() ? Json() : Json(command)},
              {"settings", settings_json(settings, choice)}});
    return;
  }
  const std::string name = processor.empty() ? "no processor of a design," : processor;
  out.line(out.styled(Style::kHeading, name) + visible(" as in " + source.name));
  if (!command.empty()) out.line(visible(command));
  print_settings(settings, choice, out);
}

void write_if_asked(const Arguments& arguments, Session& session, Output& out) {
  out.flush();  // first, so that an output error leaves the option file unchanged
  if (arguments.write) session.write_option_file();
}

// Reads a command without a processor name. Before it is written, it is read again for the processor that was found:
// this checks that the processor allows its connection.
void read_alone(const Arguments& arguments, Session& session, const GivenText& command) {
  session.identify(command);
  if (!arguments.write) return;
  if (session.processor().empty()) {
    throw Failure(kRefused, std::string("--write: ") +
                                (session.has_design() ? "the command is for no processor of the design; name one: "
                                                        "'qvtcfg processors' lists the processors"
                                                      : "there is no design to find its processor in; "
                                                        "--design FILE names one"));
  }
  session.read_command(command);
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
    out.json({{"processor", session.processor()}, {"command", command}});
  } else {
    out.line(visible(command));
  }
  write_if_asked(arguments, session, out);
}

void run_read(const Arguments& arguments, Output& out) {
  const GivenText command = given_text(arguments.text, "the command given");
  const bool named = arguments.processor.has_value();
  Session session(arguments, named ? Need::kDesign : Need::kDesignIfAny);
  if (named) {
    session.read_command(command);
  } else {
    read_alone(arguments, session, command);
  }
  const Json file = arguments.write ? Json(session.option_file_name()) : Json();
  show_settings(arguments, session, {command.source, file}, out);
  write_if_asked(arguments, session, out);
  if (arguments.write && !arguments.json) out.line(visible("written to " + session.option_file_name()));
}

}  // namespace qvtcfg
