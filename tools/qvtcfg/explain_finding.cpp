// qvtcfg check --explain

#include <SdkDebugDialog/Diagnosis.h>

#include <string>
#include <vector>

#include "command_line.h"
#include "finding_text.h"
#include "output.h"
#include "text.h"

namespace qvtcfg {
namespace {

using SdkDebugDialog::diagnose;
using SdkDebugDialog::find_finding_kind;
using SdkDebugDialog::Finding;
using SdkDebugDialog::finding_kinds;
using SdkDebugDialog::FindingKind;
using SdkDebugDialog::nearest_name;

Failure no_such_code(const std::string& code) {
  std::vector<std::string_view> codes;
  for (const FindingKind& kind : finding_kinds()) codes.push_back(kind.code);
  const std::string_view nearest = nearest_name(code, codes);
  const std::string suggestion = nearest.empty() ? "" : " (did you mean '" + std::string(nearest) + "'?)";
  return {kUsage, "no finding has the code '" + one_line(code) + "'" + suggestion +
                      "; 'qvtcfg check --explain' lists all codes"};
}

// The finding of this kind that the example has; null if it takes more than the example to find it.
const Finding* own_finding(const std::vector<Finding>& findings, const FindingKind& kind) {
  const auto found = std::ranges::find(findings, &kind, &Finding::kind);
  return found != findings.end() ? &*found : nullptr;
}

Json kind_json(const FindingKind& kind) {
  return {{"code", kind.code},       {"severity", severity_name(kind.severity)},
          {"title", kind.title},     {"meaning", kind.meaning},
          {"example", kind.example}, {"advice", kind.advice}};
}

// A paragraph, in lines that fit.
void print_paragraph(std::string_view text, Output& out) {
  std::string line;
  for (const std::string& word : split_words(text)) {
    if (!line.empty() && line.size() + 1 + word.size() > std::min<std::size_t>(out.look().columns, 100)) {
      out.line(line);
      line.clear();
    }
    if (!line.empty()) line += ' ';
    line += word;
  }
  if (!line.empty()) out.line(line);
}

void print_kind(const FindingKind& kind, Output& out) {
  out.line(out.styled(Style::kHeading, std::string(kind.code)) + " (" + std::string(severity_name(kind.severity)) +
           "): " + std::string(kind.title));
  out.line("");
  print_paragraph(kind.meaning, out);
  if (!kind.example.empty()) {
    const std::vector<Finding> findings = diagnose(kind.example, kind.exampleKind);
    const Lines lines(kind.example);
    const Source source{"example", &lines};
    out.line("");
    if (const Finding* const finding = own_finding(findings, kind)) {
      out.text(finding_text(*finding, source, source, out.look()));
    } else {
      // Its meaning tells what else it takes: the design, or several files.
      out.line("Example: " + visible(kind.example));
      out.line("This text alone has no such finding: see above.");
    }
  }
  out.line("");
  print_paragraph(kind.advice, out);
}

void print_kinds(Output& out) {
  std::vector<std::vector<std::string>> rows = {{"code", "severity", "title"}};
  for (const FindingKind& kind : finding_kinds()) {
    rows.push_back({std::string(kind.code), std::string(severity_name(kind.severity)), std::string(kind.title)});
  }
  out.table(rows);
}

}  // namespace

ExitCode explain_finding(const std::string& code, bool json, Output& out) {
  const bool all = code.empty() || code == "all";
  const FindingKind* const one = find_finding_kind(code);
  if (!all && one == nullptr) throw no_such_code(code);
  if (json) {
    Json list = Json::array();
    for (const FindingKind& kind : finding_kinds()) {
      if (all || &kind == one) list.push_back(kind_json(kind));
    }
    out.result({{"kinds", std::move(list)}});
  } else if (all) {
    print_kinds(out);
  } else {
    print_kind(*one, out);
  }
  return kDone;
}

}  // namespace qvtcfg
