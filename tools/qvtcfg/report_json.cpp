// The answer of qvtcfg check as JSON.

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

// Raised when a member changes its meaning or goes; new members may come at any time.
constexpr int kFormatVersion = 1;

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

// Lines and columns from 1, bytes from 0; the end is the first byte behind.
Json place_json(std::size_t begin, std::size_t end, const Lines& lines) {
  const Position first = lines.position(begin);
  const Position last = lines.position(end);
  return {{"line", first.line},       {"column", first.column}, {"endLine", last.line},
          {"endColumn", last.column}, {"begin", begin},         {"end", end}};
}

Json fix_json(const Fix& fix, const Lines& lines) {
  Json replacements = Json::array();
  for (const Replacement& replacement : fix.replacements) {
    Json member = place_json(replacement.begin, replacement.end, lines);
    member["text"] = replacement.text;
    replacements.push_back(std::move(member));
  }
  return {{"title", fix.title}, {"safe", fix.safe}, {"replacements", std::move(replacements)}};
}

Json remark_json(const Remark& remark, std::string_view name, const Lines& lines) {
  Json member = Json::object();
  if (remark.end > 0) {
    member["file"] = visible(name);
    member.update(place_json(remark.begin, remark.end, lines));
  }
  member["message"] = visible(remark.message);
  return member;
}

Json checked_json(const CheckReport& report, const Checked& checked) {
  const Input& input = checked.input;
  Json findings = Json::array();
  for (const Located& located : checked.findings) {
    const Checked& other = located.remarks_in ? report.texts[*located.remarks_in] : checked;
    findings.push_back(finding_json(located.finding, checked.lines(), other.input.shown, other.lines()));
  }
  Json fixed = Json::array();
  if (!checked.fixed.empty()) {
    const Lines before(checked.before);
    for (const Finding& finding : checked.fixed) {
      fixed.push_back(finding_json(finding, before, input.shown, before));
    }
  }
  Json member = {{"file", input.shown},
                 {"kind", kind_name(input.kind)},
                 {"processor", input.processor.empty() ? Json() : Json(input.processor)},
                 {"error", checked.error.empty() ? Json() : Json(checked.error)},
                 {"truncated", checked.cut},
                 {"findings", std::move(findings)}};
  if (!fixed.empty()) member["fixed"] = std::move(fixed);
  return member;
}

}  // namespace

Json finding_json(const Finding& finding, const Lines& lines, std::string_view remarks_name, const Lines& remarks) {
  Json member = {{"code", finding.kind->code}, {"severity", severity_name(finding.severity)}};
  member.update(place_json(finding.begin, finding.end, lines));
  member["message"] = visible(finding.message);
  member["remedy"] = visible(finding.remedy);
  Json& remark_list = member["remarks"] = Json::array();
  for (const Remark& remark : finding.remarks) remark_list.push_back(remark_json(remark, remarks_name, remarks));
  Json& fixes = member["fixes"] = Json::array();
  for (const Fix& fix : finding.fixes) fixes.push_back(fix_json(fix, lines));
  return member;
}

Json report_json(const CheckReport& report) {
  Json files = Json::array();
  for (const Checked& checked : report.texts) files.push_back(checked_json(report, checked));
  const Totals totals = report.totals();
  return {{"formatVersion", kFormatVersion},
          {"files", std::move(files)},
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
