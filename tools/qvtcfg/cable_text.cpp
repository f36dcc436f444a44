// qvtcfg cable parse and cable format

#include <memory>
#include <stdexcept>

#include "SdkDebugDialog/CableOption.h"
#include "SdkDebugDialog/Engine.h"
#include "SdkDebugDialog/JtagOption.h"
#include "SdkDebugDialog/ProcessorInfo.h"
#include "SdkDebugDialog/Result.h"
#include "catalogue.h"
#include "command_line.h"
#include "failure.h"
#include "given_text.h"
#include "output.h"
#include "settings.h"
#include "text.h"
#include "values.h"
#include "words.h"

namespace qvtcfg {
namespace {

using SdkDebugDialog::CableOption;
using SdkDebugDialog::Engine;
using SdkDebugDialog::JtagOption;

// --- Reading ---

struct CableText {
  CableOption cable;
  std::vector<JtagOption*> chain;
  int cpu_jtag = 0;
  SdkDebugDialog::ProcessorInfoImp processor;  // for the debug device

  CableText() = default;
  ~CableText() {
    for (const JtagOption* const device : chain) delete device;
  }
  CableText(const CableText&) = delete;
  CableText& operator=(const CableText&) = delete;
};

void read(const GivenText& given, CableText& out) {
  require_text(given);
  char debug_device = 0;
  try {
    if (Engine::ParseJtagCableInfo(given.text, out.cable, out.chain, out.cpu_jtag, debug_device) !=
        SdkDebugDialog::kOk) {
      throw Failure(kNotUnderstood,
                    given.source +
                        " is not understood; expected the options -cable, -configdevice, -debugdevice and "
                        "-bscan with their keywords and values; 'qvtcfg cable format' prints such a text");
    }
  } catch (const std::out_of_range&) {
    throw Failure(kNotUnderstood, given.source + ": " + kLoneDash);
  }
  out.processor.debugDevice = static_cast<std::int8_t>(debug_device);
}

// --- Writing ---

using Value = std::optional<std::string>;

// The option with its value, for messages.
std::string shown(const char* option, const Value& value) { return std::string(option) + "=" + value.value_or(""); }

Engine::CableType given_type(const Value& type) {
  return type ? static_cast<Engine::CableType>(word(shown("--type", type), *type, kCables)) : Engine::CABLE_NONE;
}

void take_word(const char* option, const Value& value, std::string& field) {
  if (value) field = one_word(shown(option, value), *value);
}

// Settings that are not given get the defaults of the type.
CableOption given_cable(const CableArguments& given) {
  CableOption cable;
  cable.CableOptionInit(given_type(given.type));
  if (given.frequency) {
    const std::string argument = shown("--frequency", given.frequency);
    cable.frequency = number(argument, *given.frequency);
    if (cable.frequency != 0) require_offered(argument, cable.type, cable.frequency);
  }
  take_word("--port", given.port, cable.port);
  take_word("--esn", given.esn, cable.esn);
  take_word("--module", given.module, cable.modulename);
  for (const std::string& argument : given.module_arguments) {
    if (!cable.modulearg.empty()) cable.modulearg += ';';
    cable.modulearg += one_word(shown("--module-arg", argument), argument);
  }
  return cable;
}

// Throws Failure for an option that the writer ignores for this type of cable.
void require_written(const CableArguments& given, const CableOption& cable) {
  const bool plugin = cable.type == Engine::ZARVEK_PLUGIN;
  const bool has_port = !plugin && cable.type != Engine::CABLE_NONE && cable.type != Engine::DIGILENT_PLUGIN;
  const struct {
    const char* option;
    bool given;
    bool written;
  } kParts[] = {
      {"--frequency", given.frequency.has_value() && cable.frequency != 0, has_port},
      {"--port", given.port.has_value(), has_port},
      {"--esn", given.esn.has_value(), has_port},
      {"--module", given.module.has_value(), plugin},
      {"--module-arg", !given.module_arguments.empty(), plugin},
  };
  for (const auto& part : kParts) {
    if (!part.given || part.written) continue;
    throw Failure(kRefused, std::string(part.option) + ": cable " + name_of(kCables, cable.type) +
                                " has no such setting; omit it, or choose another --type");
  }
  if (plugin && cable.modulename.empty()) {
    throw Failure(kRefused, "cable zarvek_plugin needs a module; add --module NAME");
  }
}

std::string written(const CableOption& cable, std::vector<JtagOption>& devices, std::uint32_t debug_device) {
  std::vector<JtagOption*> chain;
  chain.reserve(devices.size());
  for (JtagOption& device : devices) chain.push_back(&device);
  std::string text;
  if (Engine::GenerateJtagCableCmdString(text, cable, chain, static_cast<char>(debug_device)) != SdkDebugDialog::kOk) {
    throw Failure(kRefused, "no text can be written for cable " + name_of(kCables, cable.type) +
                                "; choose another --type: none, zarvek_parallel3, zarvek_parallel4, "
                                "zarvek_platformusb, zarvek_plugin or digilent_plugin");
  }
  if (text.empty()) throw Failure(kUsage, "nothing to write; give --type, --device or --debug-device");
  return text.substr(1);  // without the leading blank
}

}  // namespace

void run_cable_parse(const Arguments& arguments, Output& out) {
  const GivenText given = given_text(arguments.text, "the text given");
  CableText text;
  read(given, text);
  const Settings settings{text.processor, text.cable, text.cpu_jtag, text.chain};
  const Choice choice{.changed_only = arguments.changed_only, .cable_text_only = true};
  if (arguments.json) {
    out.json({{"text", given.text}, {"settings", settings_json(settings, choice)}});
    return;
  }
  out.line(out.styled(Style::kHeading, "cable and chain") + " as in " + given.source);
  if (!given.text.empty()) out.line(visible(given.text));
  print_settings(settings, choice, out);
}

void run_cable_format(const Arguments& arguments, Output& out) {
  const CableArguments& given = arguments.cable;
  const CableOption cable = given_cable(given);
  std::vector<JtagOption> devices;
  for (const std::string& device : given.devices) {
    devices.push_back(chain_device(shown("--device", device), device));
  }
  const std::uint32_t debug_device =
      given.debug_device ? number(shown("--debug-device", given.debug_device), *given.debug_device, kMaxByte) : 0;
  const std::string text = written(cable, devices, debug_device);
  require_written(given, cable);
  if (arguments.json) {
    out.json({{"text", text}});
  } else {
    out.line(visible(text));
  }
}

}  // namespace qvtcfg
