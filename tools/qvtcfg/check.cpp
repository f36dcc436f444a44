// qvtcfg check

#include <algorithm>

#include "check_inputs.h"
#include "check_texts.h"
#include "command_line.h"
#include "failure.h"
#include "report.h"
#include "session.h"
#include "text.h"

namespace qvtcfg {
namespace {

constexpr const char* kSeeHelp = "; see 'qvtcfg check --help'";

void require_sense(const Arguments& arguments) {
  if (arguments.json && arguments.format.value_or("json") != "json") {
    throw Failure(kUsage, "--format=" + *arguments.format + ": --json asks for another format" + kSeeHelp);
  }
  const bool standard_input = std::ranges::find(arguments.operands, "-") != arguments.operands.end();
  if (arguments.fix && standard_input) {
    throw Failure(kUsage, std::string("--fix: standard input cannot be changed; name files") + kSeeHelp);
  }
}

CheckReport checked(const Arguments& arguments) {
  const auto design = load_design_if_any(arguments);
  Inputs inputs = find_inputs(arguments, design);
  CheckReport report;
  report.texts = std::move(inputs.texts);
  report.defaults = std::move(inputs.defaults);
  report.dry_run = arguments.dry_run;
  check_texts(report.texts, design);
  if (arguments.fix) fix_texts(report.texts, design, arguments.dry_run);
  compare_texts(report.texts);
  return report;
}

void print(const CheckReport& report, const Arguments& arguments, Output& out) {
  if (arguments.json) {
    out.result(report_json(report));
  } else if (arguments.format == "sarif") {
    out.json(sarif(report));
  } else if (arguments.format == "short") {
    print_short(report, out);
  } else {
    print_text(report, out);
  }
}

}  // namespace

ExitCode run_check(const Arguments& arguments, Output& out) {
  require_sense(arguments);
  if (arguments.explain) return explain_finding(*arguments.explain, arguments.json, out);
  const CheckReport report = checked(arguments);
  for (const Checked& text : report.texts) {
    if (!text.error.empty()) complain(text.input.shown + ": " + text.error);
  }
  print(report, arguments, out);
  const Totals totals = report.totals();
  if (totals.unreadable != 0) return kFile;
  return totals.errors != 0 || (arguments.strict && totals.warnings != 0) ? kNotUnderstood : kDone;
}

}  // namespace qvtcfg
