// qvtcfg diff

#include <filesystem>
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
using SdkDebugDialog::Difference;
using SdkDebugDialog::Processor;
using SdkDebugDialog::TextKind;

// A processor's option file, another option file, or a command.
struct Side {
  std::string name;  // for output
  Processor processor;
  std::optional<OptionFile> file;  // of a processor or another one
  GivenText command;               // otherwise
};

bool is_text(const std::string& argument) {
  return argument == "-" || argument.find_first_of(kWhiteSpace) != std::string::npos;
}

// A name of a processor comes first, then a path, then a command.
Side side(const std::string& argument, const Arguments& arguments, const std::optional<Design>& design) {
  if (design) {
    if (const auto processor = design->find(argument)) {
      const OptionFile file = option_file_of(*processor, arguments);
      return {argument, *processor, file, {}};
    }
  }
  if (std::filesystem::exists(std::filesystem::status(argument))) {
    const OptionFile file = file_at(argument, arguments);
    return {file.shown, {}, file, {}};
  }
  if (is_text(argument)) {
    const GivenText command = given_text(argument, "the command given");
    require_text(command);
    return {command.source, {}, std::nullopt, command};
  }
  if (design) require(design->find(argument), "", "; there is no such file either");
  throw Failure(kRefused, one_line(argument) + ": no such file, and there is no design to find a processor in");
}

// The processor of a side: its own, that of the other side, or the one that the command tells.
Processor processor_of(const Side& side, const Side& other, const std::optional<Design>& design) {
  if (!side.processor.name().empty()) return side.processor;
  if (!other.processor.name().empty()) return other.processor;
  if (!design) return {};
  if (!side.file) return require(design->identify(side.command.text), TextRead{side.name, side.command.text});
  const std::string content = side.file->content.value_or("");
  return require(design->identify(command_in(content)), TextRead{side.name, content, TextKind::optionFile});
}

Configuration configuration_of(const Side& side, const Processor& processor) {
  if (side.file) return open_configuration(processor, *side.file);
  return require(Configuration::read(processor, side.command.text),
                 TextRead{side.name, side.command.text, TextKind::command, processor});
}

// What was read, as in the answers of show and read.
Json side_json(const Side& side, const Configuration& configuration) {
  const bool has_file = side.file && side.file->content;
  return {{"processor", text_or_null(configuration.processor().name())},
          {"file", has_file ? Json(side.file->shown) : Json()},
          {"command", text_or_null(has_file ? command_in(*side.file->content) : side.command.text)}};
}

}  // namespace

ExitCode run_diff(const Arguments& arguments, Output& out) {
  const std::optional<Design> design = load_design_if_any(arguments);
  const bool two = arguments.diff_with.has_value();
  const Side a = side(arguments.text, arguments, design);
  const Side b = two ? side(*arguments.diff_with, arguments, design) : a;
  const Configuration last = configuration_of(b, processor_of(b, a, design));
  const Configuration first = two ? configuration_of(a, processor_of(a, b, design)) : Configuration(last.processor());
  const std::string first_name = two ? a.name : "the defaults";
  const std::vector<Difference> found = differences(first, last);
  if (arguments.json) {
    Json list = Json::array();
    for (const Difference& difference : found) list.push_back(difference_json(difference));
    const Json from =
        two ? side_json(a, first)
            : Json{{"processor", text_or_null(last.processor().name())}, {"file", nullptr}, {"command", nullptr}};
    out.result({{"from", from}, {"to", side_json(b, last)}, {"differences", std::move(list)}});
  } else {
    out.line(out.styled(Style::kHeading, visible(first_name + " -> " + b.name)));
    for (const Difference& difference : found) out.line(difference_line(difference));
    if (found.empty()) out.line("every setting is the same");
  }
  return found.empty() ? kDone : kDiffers;
}

}  // namespace qvtcfg
