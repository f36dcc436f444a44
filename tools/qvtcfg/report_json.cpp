// The answer of qvtcfg check as JSON.

#include "answer.h"
#include "finding_text.h"
#include "report.h"
#include "text.h"

namespace qvtcfg {
namespace {

using SdkDebugDialog::Finding;
using SdkDebugDialog::Fix;
using SdkDebugDialog::Remark;
using SdkDebugDialog::Replacement;
using SdkDebugDialog::TextKind;

const char* kind_name(TextKind kind) {
  switch (kind) {
    case TextKind::command:
      return "command";
    case TextKind::cableText:
      return "cable";
    case TextKind::optionFile:
      break;
  }
  return "file";
}

Json fix_json(const Fix& fix, const Lines& lines) {
  Json replacements = Json::array();
  for (const Replacement& replacement : fix.replacements) {
    replacements.push_back(
        {{"place", place_json(replacement.begin, replacement.end, lines)}, {"text", replacement.text}});
  }
  return {{"title", fix.title}, {"safe", fix.safe}, {"replacements", std::move(replacements)}};
}

Json remark_json(const Remark& remark, const Json& file, const Lines& lines) {
  const bool has_place = remark.end > 0;
  return {{"message", visible(remark.message)},
          {"file", has_place ? file : Json()},
          {"place", has_place ? place_json(remark.begin, remark.end, lines) : Json()}};
}

// Null for standard input.
Json file_json(const Input& input) { return input.path.empty() ? Json() : Json(input.shown); }

Json checked_json(const CheckReport& report, const Checked& checked) {
  const Input& input = checked.input;
  Json findings = Json::array();
  for (const Located& located : checked.findings) {
    const Checked& other = located.remarks_in ? report.texts[*located.remarks_in] : checked;
    findings.push_back(finding_json(located.finding, checked.lines(), file_json(other.input), other.lines()));
  }
  Json fixed = Json::array();
  if (!checked.fixed.empty()) {
    const Lines before(checked.before);
    for (const Finding& finding : checked.fixed) {
      fixed.push_back(finding_json(finding, before, file_json(input), before));
    }
  }
  return {{"file", file_json(input)},
          {"kind", kind_name(input.kind)},
          {"processor", text_or_null(input.processor)},
          {"error", text_or_null(checked.error)},
          {"truncated", checked.cut},
          {"findings", std::move(findings)},
          {"fixed", std::move(fixed)}};
}

}  // namespace

Json finding_json(const Finding& finding, const Lines& lines, const Json& remarks_file, const Lines& remarks) {
  Json remark_list = Json::array();
  for (const Remark& remark : finding.remarks) remark_list.push_back(remark_json(remark, remarks_file, remarks));
  Json fixes = Json::array();
  for (const Fix& fix : finding.fixes) fixes.push_back(fix_json(fix, lines));
  return {{"code", finding.kind->code},
          {"severity", severity_name(finding.severity)},
          {"place", place_json(finding.begin, finding.end, lines)},
          {"message", visible(finding.message)},
          {"remedy", text_or_null(visible(finding.remedy))},
          {"remarks", std::move(remark_list)},
          {"fixes", std::move(fixes)}};
}

Json report_json(const CheckReport& report) {
  Json files = Json::array();
  for (const Checked& checked : report.texts) files.push_back(checked_json(report, checked));
  const Totals totals = report.totals();
  return {{"files", std::move(files)},
          {"withoutOptionFile", report.defaults},
          {"dryRun", report.dry_run},
          {"totals",
           {{"files", totals.files},
            {"errors", totals.errors},
            {"warnings", totals.warnings},
            {"notes", totals.notes},
            {"filesWithFindings", totals.files_with},
            {"fixable", totals.fixable},
            {"fixed", totals.fixed},
            {"notChecked", totals.unreadable}}}};
}

}  // namespace qvtcfg
