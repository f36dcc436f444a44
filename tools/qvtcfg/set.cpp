// qvtcfg set, unset and copy

#include <algorithm>
#include <iterator>
#include <optional>

#include "answer.h"
#include "changes.h"
#include "command_line.h"
#include "failure.h"
#include "output.h"
#include "print.h"
#include "session.h"
#include "text.h"
#include "word_diff.h"

namespace qvtcfg {
namespace {

using SdkDebugDialog::Change;
using SdkDebugDialog::Configuration;
using SdkDebugDialog::Design;
using SdkDebugDialog::Difference;
using SdkDebugDialog::edit;
using SdkDebugDialog::Edit;
using SdkDebugDialog::ErrorCode;
using SdkDebugDialog::find_setting;
using SdkDebugDialog::Loss;
using SdkDebugDialog::Processor;
using SdkDebugDialog::Setting;
using SdkDebugDialog::TextKind;

// One processor whose option file changes.
struct Target {
  std::string processor;
  OptionFile file;
  Configuration configuration;  // the defaults if the file is refused and the edit puts that right
  Edit edit;
  std::vector<std::string> warnings;
  std::vector<Loss> not_taken;  // settings that could not be copied

  bool changes() const { return would_change(edit, file); }
  // The command after the changes. A missing file stays missing when nothing changes.
  std::string command() const {
    return edit.text.empty() ? require(configuration.command(), processor) : command_in(edit.text);
  }
};

// A processor that does not have every setting given.
struct Skipped {
  std::string processor;
  std::string why;
};

struct Plan {
  std::vector<Target> targets;
  std::vector<Skipped> skipped;
  std::vector<const Setting*> given;  // the settings of the command line; empty: all
};

// --- Making the changes ---

// The edit of a file that is refused, but not any more when the changes are made; otherwise why it is refused.
Edit edit_of_refused(const Processor& processor, const OptionFile& file, const std::vector<GivenChange>& changes,
                     const Failure& refused) {
  const bool plain = std::ranges::none_of(changes, &GivenChange::append);
  if (refused.code() != kNotUnderstood || !file.content || !plain) throw refused;
  const std::vector<Change> plain_changes(changes.begin(), changes.end());
  const auto made = edit(processor, *file.content, TextKind::optionFile, plain_changes);
  if (!made && made.error().code == ErrorCode::notUnderstood) throw refused;
  return require(made, processor.name());
}

Target changed(const Processor& processor, const Arguments& arguments, const std::vector<GivenChange>& changes,
               const std::string& subject) {
  Target target{processor.name(), option_file_of(processor, arguments), Configuration(processor), {}, {}, {}};
  try {
    target.configuration = open_configuration(processor, target.file);
  } catch (const Failure& refused) {
    target.edit = edit_of_refused(processor, target.file, changes, refused);
    target.configuration =
        require(Configuration::over(processor, target.file.path), target.file.shown, "", target.file.path);
    return target;
  }
  target.warnings = apply_changes(changes, target.configuration, subject);
  target.edit = require(target.configuration.for_file(), processor.name(), kChangeCable);
  return target;
}

// Why one of the settings given does not apply, after the changes before it; empty if all do. A file that is refused is
// a matter of changed().
std::string why_not(const Processor& processor, const Arguments& arguments, const std::vector<GivenChange>& changes) {
  auto configuration = Configuration::open(processor, option_file_of(processor, arguments).path);
  if (!configuration) return "";
  for (const GivenChange& change : changes) {
    const auto state = configuration->state(*change.meant);
    if (!state.applies) return std::string(change.meant->name) + ": " + state.whyNot;
    apply_changes({change}, *configuration, processor.name() + ": ");
  }
  return "";
}

std::vector<Processor> named_processors(const Design& design, const std::vector<std::string>& names) {
  std::vector<Processor> processors;
  processors.reserve(names.size());
  for (const std::string& name : names) {
    if (std::ranges::find(processors, name, &Processor::name) != processors.end()) {
      throw Failure(kUsage, one_line(name) + ": the processor is given twice");
    }
    processors.push_back(find_processor(design, name));
  }
  return processors;
}

Plan plan_changes(const Design& design, const Arguments& arguments, const std::vector<std::string>& names,
                  const std::vector<GivenChange>& changes) {
  Plan plan;
  for (const GivenChange& change : changes) plan.given.push_back(change.meant);
  const std::vector<Processor> processors = arguments.all ? design.processors() : named_processors(design, names);
  for (const Processor& processor : processors) {
    const std::string why = arguments.all ? why_not(processor, arguments, changes) : "";
    if (why.empty()) {
      const std::string subject = processors.size() > 1 ? processor.name() + ": " : "";
      plan.targets.push_back(changed(processor, arguments, changes, subject));
    } else {
      plan.skipped.push_back({processor.name(), why});
    }
  }
  if (plan.targets.empty()) {
    std::string text = "no processor of the design has these settings";
    for (const Skipped& skipped : plan.skipped) text += "; " + skipped.processor + ": " + skipped.why;
    throw Failure(kRefused, text);
  }
  return plan;
}

Plan plan_copies(const Design& design, const Arguments& arguments) {
  const Processor source = find_processor(design, *arguments.processor);
  const Configuration from = open_configuration(source, option_file_of(source, arguments));
  Plan plan;
  for (const Processor& processor : named_processors(design, arguments.operands)) {
    Target target{processor.name(), option_file_of(processor, arguments), Configuration(), {}, {}, {}};
    target.configuration = open_configuration(processor, target.file);
    target.not_taken = target.configuration.copy_settings(from);
    target.edit = require(target.configuration.for_file(), processor.name(), kChangeCable);
    plan.targets.push_back(std::move(target));
  }
  return plan;
}

// --- Printing ---

bool is_given(const Plan& plan, const Difference& difference) {
  return plan.given.empty() || std::ranges::find(plan.given, difference.setting) != plan.given.end();
}

void print_lines(const Target& target, Output& out) {
  const std::string before = command_in(target.file.content.value_or(""));
  const std::string after = target.command();
  if (!target.changes()) {
    out.line("  " + visible(after));
    out.line("nothing changes");
  } else if (before.empty()) {
    out.line("+ " + out.styled(Style::kAdded, visible(after)));
  } else {
    print_word_diff(before, after, out);
  }
}

void print_target(const Plan& plan, const Target& target, const Arguments& arguments, Output& out) {
  if (plan.targets.size() > 1 || arguments.all) out.line(out.styled(Style::kHeading, target.processor));
  print_lines(target, out);
  for (const Difference& difference : target.edit.differences) {
    out.line((is_given(plan, difference) ? "" : "follows: ") + difference_line(difference));
  }
  for (const Loss& loss : target.not_taken) out.line(visible("not taken: " + loss.what + ": " + loss.why));
}

Json target_json(const Plan& plan, const Target& target) {
  Json differences = Json::array();
  for (const Difference& difference : target.edit.differences) {
    Json member = difference_json(difference);
    member["follows"] = !is_given(plan, difference);
    differences.push_back(std::move(member));
  }
  return {{"processor", target.processor},
          {"file", target.file.shown},
          {"before", target.file.content ? Json(command_in(*target.file.content)) : Json()},
          {"after", target.command()},
          {"changes", target.changes()},
          {"differences", std::move(differences)},
          {"losses", losses_json(target.edit.losses)},
          {"notReadBack", text_or_null(target.edit.notReadBack)},
          {"notTaken", losses_json(target.not_taken)}};
}

Json plan_json(const Plan& plan, const Arguments& arguments) {
  Json targets = Json::array();
  for (const Target& target : plan.targets) targets.push_back(target_json(plan, target));
  Json skipped = Json::array();
  for (const Skipped& s : plan.skipped) skipped.push_back({{"processor", s.processor}, {"why", s.why}});
  return {{"dryRun", arguments.dry_run}, {"processors", std::move(targets)}, {"skipped", std::move(skipped)}};
}

// --- Storing ---

// Everything is checked before the first file is written. Text is printed before as well, so that an output error
// leaves the option files unchanged; JSON is printed when all is done, so that there is one answer.
ExitCode carry_out(Plan plan, const Arguments& arguments, Output& out) {
  for (const Target& target : plan.targets) {
    if (target.changes()) require_safe(target.edit, target.file, arguments.force, target.warnings);
  }
  for (const Skipped& skipped : plan.skipped) {
    if (!arguments.json) out.line(visible("skipped " + skipped.processor + ": " + skipped.why));
  }
  bool any_changes = false;
  std::vector<std::string> stored;
  for (Target& target : plan.targets) {
    any_changes |= target.changes();
    const bool stores = target.changes() && !arguments.dry_run;
    if (!arguments.json) {
      print_target(plan, target, arguments, out);
      out.flush();
    }
    if (!stores) continue;
    try {
      store(target.configuration, target.edit, target.file, arguments);
    } catch (const Failure&) {
      if (!stored.empty()) warn("already written: " + join(stored));
      throw;
    }
    stored.push_back(target.file.shown);
    if (!arguments.json) out.line(visible("written to " + target.file.shown));
  }
  if (arguments.json) out.result(plan_json(plan, arguments));
  return arguments.exit_code && any_changes ? kDiffers : kDone;
}

// --- The command line ---

struct Request {
  std::vector<std::string> processors;
  std::vector<std::string> changes;
};

// Processors first, then changes. A processor may have a name like a change: then it is the first one.
template <typename IsChange>
Request split(const Arguments& arguments, const Design& design, IsChange is_change) {
  Request request;
  for (const std::string& operand : arguments.operands) {
    const bool first = &operand == &arguments.operands.front() && !arguments.all;
    const bool processor = !is_change(operand) || (first && design.find(operand));
    (processor ? request.processors : request.changes).push_back(operand);
  }
  return request;
}

void require_complete(const Request& request, const Arguments& arguments, const std::string& command,
                      const std::string& changes) {
  std::string error;
  if (arguments.all && !request.processors.empty()) error = "--all: name no processor as well";
  if (request.changes.empty()) error = changes + " is required";
  if (!arguments.all && request.processors.empty()) error = "PROC is required";
  if (!error.empty()) throw Failure(kUsage, error + "; see 'qvtcfg " + command + " --help'");
}

}  // namespace

ExitCode run_set(const Arguments& arguments, Output& out) {
  const Design design = load_design(arguments);
  const auto is_change = [](const std::string& text) { return text.find('=') != std::string::npos; };
  const Request request = split(arguments, design, is_change);
  require_complete(request, arguments, "set", "KEY=VALUE");
  return carry_out(plan_changes(design, arguments, request.processors, parse_changes(request.changes)), arguments, out);
}

// What is neither a processor nor a setting is taken as a setting, so that the message names the nearest setting.
ExitCode run_unset(const Arguments& arguments, Output& out) {
  const Design design = load_design(arguments);
  const auto is_change = [&](const std::string& text) {
    const bool first = text == arguments.operands.front() && !arguments.all;
    return find_setting(text) != nullptr || (!first && !design.find(text));
  };
  const Request request = split(arguments, design, is_change);
  require_complete(request, arguments, "unset", "NAME");
  return carry_out(plan_changes(design, arguments, request.processors, parse_defaults(request.changes)), arguments,
                   out);
}

ExitCode run_copy(const Arguments& arguments, Output& out) {
  return carry_out(plan_copies(load_design(arguments), arguments), arguments, out);
}

}  // namespace qvtcfg
