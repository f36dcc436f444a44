// The answer of qvtcfg check for people and for editors.

#include <SdkDebugDialog/OptionFile.h>

#include <algorithm>

#include "finding_text.h"
#include "report.h"
#include "text.h"
#include "word_diff.h"

namespace qvtcfg {
namespace {

using SdkDebugDialog::Finding;
using SdkDebugDialog::Fix;
using SdkDebugDialog::Severity;
using SdkDebugDialog::TextKind;

Source source_of(const Checked& checked) { return {checked.input.shown, &checked.lines()}; }

Source remarks_of(const CheckReport& report, const Checked& checked, const Located& located) {
  return source_of(located.remarks_in ? report.texts[*located.remarks_in] : checked);
}

// Such as "1 error", "3 errors".
std::string counted(std::size_t count, const std::string& noun) {
  return std::to_string(count).append(" ").append(noun).append(count == 1 ? "" : "s");
}

std::string found_in(const Totals& totals) {
  std::vector<std::string> parts;
  if (totals.errors != 0) parts.push_back(counted(totals.errors, "error"));
  if (totals.warnings != 0) parts.push_back(counted(totals.warnings, "warning"));
  if (totals.notes != 0) parts.push_back(counted(totals.notes, "note"));
  if (parts.empty()) return "nothing found";
  return join(parts) + (totals.files == 1 ? "" : " in " + counted(totals.files_with, "file"));
}

std::string totals_line(const CheckReport& report) {
  const Totals totals = report.totals();
  if (report.texts.empty() && report.defaults.empty()) return "no option file: every processor has the defaults";
  std::string line = counted(totals.files, "file") + ": " + found_in(totals);
  if (totals.fixed != 0) line += "; " + std::to_string(totals.fixed) + (report.dry_run ? " would be fixed" : " fixed");
  if (totals.fixable != 0) line += "; " + std::to_string(totals.fixable) + " can be fixed with --fix";
  if (totals.unreadable != 0) line += "; " + counted(totals.unreadable, "file") + " not checked";
  if (report.defaults.size() == 1) line += "; no option file, so the defaults: " + report.defaults.front();
  if (report.defaults.size() > 1) line += "; no option files, so the defaults: " + join(report.defaults);
  return line;
}

const Fix& safe_fix(const Finding& finding) { return *std::ranges::find_if(finding.fixes, &Fix::safe); }

// FILE:LINE:COLUMN: fixed: TITLE [CODE]
std::string fixed_line(const Finding& finding, const Source& source, bool dry_run, const Look& look) {
  const Position at = source.lines->position(finding.begin);
  return look.styled(Style::kHeading,
                     visible(source.name) + ':' + std::to_string(at.line) + ':' + std::to_string(at.column) + ": ") +
         look.styled(Style::kAdded, dry_run ? "would fix:" : "fixed:") + ' ' + visible(safe_fix(finding).title) + " [" +
         std::string(finding.kind->code) + ']';
}

void print_fixed(const Checked& checked, bool dry_run, Output& out) {
  // A longer text is no command.
  constexpr std::size_t kLongest = 4096;
  if (checked.fixed.empty()) return;
  const Lines lines(checked.before);
  for (const Finding& finding : checked.fixed) {
    out.line(fixed_line(finding, {checked.input.shown, &lines}, dry_run, out.look()));
  }
  const bool file = checked.input.kind == TextKind::optionFile;
  const auto command = [&](const std::string& text) {
    return file ? std::string(SdkDebugDialog::option_line(text)) : text;
  };
  const std::string before = command(checked.before);
  const std::string after = command(checked.text);
  if (before == after || before.size() > kLongest || after.size() > kLongest) return;
  print_word_diff(before, after, out);
}

}  // namespace

Totals CheckReport::totals() const {
  Totals totals;
  for (const Checked& checked : texts) {
    if (!checked.error.empty()) ++totals.unreadable;
    if (!checked.error.empty() && checked.text.empty()) continue;
    ++totals.files;
    totals.fixed += checked.fixed.size();
    if (!checked.findings.empty()) ++totals.files_with;
    for (const Located& located : checked.findings) {
      const Finding& finding = located.finding;
      ++(finding.severity == Severity::error     ? totals.errors
         : finding.severity == Severity::warning ? totals.warnings
                                                 : totals.notes);
      if (checked.can_be_fixed() && std::ranges::any_of(finding.fixes, &Fix::safe)) ++totals.fixable;
    }
  }
  return totals;
}

void print_text(const CheckReport& report, Output& out) {
  for (const Checked& checked : report.texts) {
    print_fixed(checked, report.dry_run, out);
    for (const Located& located : checked.findings) {
      const std::string text =
          finding_text(located.finding, source_of(checked), remarks_of(report, checked, located), out.look());
      out.line(text);
    }
    if (checked.cut) {
      out.line(visible(checked.input.shown) + ": " + out.styled(Style::kNote, "note:") +
               " the file is larger than 16 MiB: what follows is not checked");
    }
  }
  out.line(totals_line(report));
}

void print_short(const CheckReport& report, Output& out) {
  for (const Checked& checked : report.texts) {
    if (!checked.fixed.empty()) {
      const Lines before(checked.before);
      for (const Finding& finding : checked.fixed) {
        out.line(fixed_line(finding, {checked.input.shown, &before}, report.dry_run, {}));
      }
    }
    for (const Located& located : checked.findings) out.line(finding_line(located.finding, source_of(checked)));
  }
}

}  // namespace qvtcfg
