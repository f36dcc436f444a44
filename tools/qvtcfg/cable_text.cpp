// qvtcfg cable parse and cable format

#include <algorithm>

#include "changes.h"
#include "command_line.h"
#include "failure.h"
#include "given_text.h"
#include "output.h"
#include "print.h"
#include "text.h"

namespace qvtcfg {
namespace {

using SdkDebugDialog::Configuration;
using SdkDebugDialog::Edit;
using SdkDebugDialog::find_setting;
using SdkDebugDialog::JtagOption;
using SdkDebugDialog::TextKind;

// Without a debug device the first FPGA of the chain is the debug device.
void find_debug_device(Configuration& configuration) {
  const auto& chain = configuration.chain();
  const auto fpga = std::ranges::find_if(chain, [](const JtagOption& device) { return device.isfpga != 0; });
  if (configuration.record().debugDevice != 0 || fpga == chain.end()) return;
  configuration.set(*find_setting("debug-device"), std::int64_t{fpga->devicenr});
}

// The options of the command line, as changes of settings.
std::vector<GivenChange> changes_of(const CableArguments& given) {
  std::vector<GivenChange> changes;
  const auto add = [&](const std::string& option, const char* setting, const std::string& value, bool append = false) {
    GivenChange& change = changes.emplace_back();
    change.setting = setting;
    change.value = value;
    change.argument = option + "=" + value;
    change.meant = find_setting(setting);
    change.append = append;
  };
  if (given.type) add("--type", "cable", *given.type);
  if (given.frequency) add("--frequency", "frequency", *given.frequency);
  if (given.port) add("--port", "port", *given.port);
  if (given.esn) add("--esn", "esn", *given.esn);
  if (given.module) add("--module", "module", *given.module);
  if (!given.module_arguments.empty()) add("--module-arg", "module-arguments", join(given.module_arguments, ";"));
  for (const std::string& device : given.devices) add("--device", "devices", device, true);
  if (given.debug_device) add("--debug-device", "debug-device", *given.debug_device);
  return changes;
}

}  // namespace

ExitCode run_cable_parse(const Arguments& arguments, Output& out) {
  const GivenText given = given_text(arguments.text, "the text given");
  require_text(given);
  Configuration configuration = require(
      Configuration::read({}, given.text, TextKind::cableText), TextRead{given.source, given.text, TextKind::cableText},
      "; expected the options -cable, -configdevice, -debugdevice and -bscan with their keywords and values; "
      "'qvtcfg cable format' prints such a text");
  find_debug_device(configuration);
  const Choice choice{.changed_only = arguments.changed_only, .all = arguments.all, .cable_text_only = true};
  if (arguments.json) {
    out.result({{"text", given.text}, {"settings", settings_json(configuration, choice)}});
    return kDone;
  }
  out.line(out.styled(Style::kHeading, "cable and chain") + " as in " + given.source);
  if (!given.text.empty()) out.line(visible(given.text));
  print_settings(configuration, choice, out);
  return kDone;
}

ExitCode run_cable_format(const Arguments& arguments, Output& out) {
  Configuration configuration = require(Configuration::read({}, "", TextKind::cableText), "");
  const std::vector<std::string> warnings = apply_changes(changes_of(arguments.cable), configuration, "");
  const Edit edit = require(configuration.written_anew(), "", "; 'qvtcfg cables' lists the cables that can be written");
  if (!edit.notReadBack.empty()) throw Failure(kRefused, join({edit.notReadBack, join(warnings, "; ")}, "; "));
  for (const std::string& warning : warnings) warn(warning);
  const std::string text = edit.text.substr(std::min(edit.text.find_first_not_of(' '), edit.text.size()));
  if (text.empty()) throw Failure(kUsage, "nothing to write; give --type, --device or --debug-device");
  if (arguments.json) {
    out.result({{"text", text}});
  } else {
    out.line(visible(text));
  }
  return kDone;
}

}  // namespace qvtcfg
