// qvtcfg show, command and read

#include <optional>

#include "answer.h"
#include "command_line.h"
#include "failure.h"
#include "given_text.h"
#include "output.h"
#include "print.h"
#include "session.h"
#include "text.h"

namespace qvtcfg {
namespace {

using SdkDebugDialog::Configuration;
using SdkDebugDialog::Design;
using SdkDebugDialog::Edit;
using SdkDebugDialog::Processor;
using SdkDebugDialog::TextKind;

// Where the settings come from.
struct Source {
  std::string name;     // for text output
  Json file;            // the path of the option file, or null
  std::string command;  // empty: none
};

void show_settings(const Arguments& arguments, const Configuration& configuration, const Source& source, Output& out) {
  const std::string& processor = configuration.processor().name();
  const Choice choice{.changed_only = arguments.changed_only, .all = arguments.all};
  if (arguments.json) {
    out.result({{"processor", text_or_null(processor)},
                {"file", source.file},
                {"command", text_or_null(source.command)},
                {"settings", settings_json(configuration, choice)}});
    return;
  }
  const std::string name = processor.empty() ? "no processor of a design," : processor;
  out.line(out.styled(Style::kHeading, name) + visible(" as in " + source.name));
  if (!source.command.empty()) out.line(visible(source.command));
  print_settings(configuration, choice, out);
}

// The option file to be replaced, so that it is replaced only as it is now.
Configuration to_replace(const Processor& processor, const OptionFile& file) {
  return require(Configuration::over(processor, file.path), file.shown, "", file.path);
}

std::string advice_for(const Processor& processor) {
  const std::string name = processor.name().empty() ? "PROC" : processor.name();
  return "; 'qvtcfg command " + name + "' prints one that is understood";
}

// The settings of a command. Without a processor on the command line, and if they are not to be stored, it need not
// suit the processor that it tells.
Configuration read_command(const Processor& processor, const GivenText& given, const Arguments& arguments) {
  auto configuration = Configuration::read(processor, given.text);
  const bool alone = !configuration && !arguments.processor && !arguments.write;
  if (alone) configuration = Configuration::read({}, given.text);
  const TextRead text{given.source, given.text, TextKind::command, alone ? Processor() : processor};
  return require(configuration, text, advice_for(processor));
}

// What is stored, as it is read back; as it was given if it is not read back.
Configuration stored(const Configuration& given, const Edit& edit) {
  const auto read_back = Configuration::read(given.processor(), edit.text, TextKind::optionFile);
  return read_back ? *read_back : given;
}

Processor processor_of(const Arguments& arguments, const std::optional<Design>& design, const GivenText& command) {
  if (arguments.processor) return find_processor(*design, *arguments.processor);
  if (!design) return {};
  return require(design->identify(command.text), TextRead{command.source, command.text}, advice_for({}));
}

void require_processor(const Processor& processor, bool has_design) {
  if (!processor.name().empty()) return;
  throw Failure(kRefused, std::string("--write: ") +
                              (has_design ? "the command is for no processor of the design; name one: "
                                            "'qvtcfg processors' lists the processors"
                                          : "there is no design to find its processor in; --design FILE names one"));
}

}  // namespace

ExitCode run_show(const Arguments& arguments, Output& out) {
  const Processor processor = find_processor(load_design(arguments), *arguments.processor);
  const OptionFile file = option_file_of(processor, arguments);
  const Configuration configuration = open_configuration(processor, file);
  const Source source = file.content ? Source{file.shown, file.shown, command_in(*file.content)}
                                     : Source{"the defaults (no " + file.shown + ")", Json(), ""};
  show_settings(arguments, configuration, source, out);
  return kDone;
}

ExitCode run_command(const Arguments& arguments, Output& out) {
  const Processor processor = find_processor(load_design(arguments), *arguments.processor);
  const OptionFile file = option_file_of(processor, arguments);
  Configuration configuration = open_configuration(processor, file);
  const std::string command = require(configuration.command(), processor.name(), kChangeCable);
  if (arguments.write) {
    const Edit edit = require(configuration.written_anew(), processor.name(), kChangeCable);
    require_safe(edit, file, arguments.force);
    if (!arguments.json) out.line(visible(command));
    if (!arguments.json) out.flush();  // first, so that an output error leaves the option file unchanged
    store(configuration, edit, file, arguments);
  } else if (!arguments.json) {
    out.line(visible(command));
  }
  const bool in_file = file.content || arguments.write;
  out.result({{"processor", processor.name()}, {"file", in_file ? Json(file.shown) : Json()}, {"command", command}});
  return kDone;
}

ExitCode run_read(const Arguments& arguments, Output& out) {
  const GivenText given = given_text(arguments.text, "the command given");
  const std::optional<Design> design = arguments.processor ? load_design(arguments) : load_design_if_any(arguments);
  require_text(given);
  const Processor processor = processor_of(arguments, design, given);
  if (arguments.write) require_processor(processor, design.has_value());
  const Configuration configuration = read_command(processor, given, arguments);
  if (!arguments.write) {
    show_settings(arguments, configuration, {given.source, Json(), given.text}, out);
    return kDone;
  }
  const OptionFile file = option_file_of(processor, arguments);
  const Edit edit = require(configuration.for_file(), given.source, kChangeCable);
  require_safe(edit, file, arguments.force);
  Configuration replaced = to_replace(processor, file);
  const auto show = [&] {
    show_settings(arguments, stored(configuration, edit), {given.source, file.shown, command_in(edit.text)}, out);
  };
  if (!arguments.json) {
    show();
    out.flush();  // first, so that an output error leaves the option file unchanged
  }
  store(replaced, edit, file, arguments);
  if (arguments.json) {
    show();
  } else {
    out.line(visible("written to " + file.shown));
  }
  return kDone;
}

}  // namespace qvtcfg
