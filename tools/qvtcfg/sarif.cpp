// The answer of qvtcfg check in the Static Analysis Results Interchange Format, SARIF 2.1.0.

#include <string_view>

#include "finding_text.h"
#include "report.h"
#include "text.h"

namespace qvtcfg {
namespace {

using SdkDebugDialog::Finding;
using SdkDebugDialog::finding_kinds;
using SdkDebugDialog::FindingKind;
using SdkDebugDialog::Fix;
using SdkDebugDialog::Remark;
using SdkDebugDialog::Replacement;

// A relative path is relative to the folder in which the program was started.
constexpr const char* kBase = "SRCROOT";

Json message(std::string_view text) { return {{"text", visible(text)}}; }

std::string percent_encoded(std::string_view path) {
  constexpr std::string_view kPlain = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789-._~/";
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string out;
  for (const char c : path) {
    const auto byte = static_cast<unsigned char>(c);
    if (kPlain.find(c) != std::string_view::npos) {
      out += c;
    } else {
      out += {'%', kDigits[byte >> 4U], kDigits[byte & 0xFU]};
    }
  }
  return out;
}

Json artifact_location(const Input& input) {
  if (input.path.empty()) return {{"uri", "stdin:"}, {"description", message("standard input")}};
  const std::string path = percent_encoded(input.shown);
  if (path.starts_with('/')) return {{"uri", "file://" + path}};
  return {{"uri", path}, {"uriBaseId", kBase}};
}

Json region(std::size_t begin, std::size_t end, const Lines& lines) {
  const Position first = lines.position_in_characters(begin);
  const Position last = lines.position_in_characters(end);
  return {{"startLine", first.line},  {"startColumn", first.column}, {"endLine", last.line},
          {"endColumn", last.column}, {"byteOffset", begin},         {"byteLength", end - begin}};
}

// A finding with an empty place at the beginning is about the whole text.
Json location(const Checked& checked, const Finding& finding, const Lines& lines) {
  Json place = {{"artifactLocation", artifact_location(checked.input)}};
  if (finding.end != 0) place["region"] = region(finding.begin, finding.end, lines);
  return {{"physicalLocation", std::move(place)}};
}

Json location(const Checked& checked, std::size_t begin, std::size_t end) {
  return {{"physicalLocation",
           {{"artifactLocation", artifact_location(checked.input)}, {"region", region(begin, end, checked.lines())}}}};
}

Json fix_json(const Fix& fix, const Checked& checked) {
  Json replacements = Json::array();
  for (const Replacement& replacement : fix.replacements) {
    Json member = {{"deletedRegion", region(replacement.begin, replacement.end, checked.lines())}};
    if (!replacement.text.empty()) member["insertedContent"] = {{"text", replacement.text}};
    replacements.push_back(std::move(member));
  }
  const Json change = {{"artifactLocation", artifact_location(checked.input)},
                       {"replacements", std::move(replacements)}};
  return {{"description", message(fix.title + (fix.safe ? "" : " (a guess)"))},
          {"artifactChanges", Json::array({change})},
          {"properties", {{"safe", fix.safe}}}};
}

Json related_locations(const Finding& finding, const Checked& remarks_in) {
  Json list = Json::array();
  for (const Remark& remark : finding.remarks) {
    Json member = Json::object();
    if (remark.end > 0) member = location(remarks_in, remark.begin, remark.end);
    member["message"] = message(remark.message);
    list.push_back(std::move(member));
  }
  return list;
}

Json result(const CheckReport& report, const Checked& checked, const Located& located) {
  const Finding& finding = located.finding;
  Json member = {{"ruleId", finding.kind->code},
                 {"ruleIndex", finding.kind - finding_kinds().data()},
                 {"level", severity_name(finding.severity)},
                 {"message", message(whole_message(finding))},
                 {"locations", Json::array({location(checked, finding, checked.lines())})}};
  const Checked& other = located.remarks_in ? report.texts[*located.remarks_in] : checked;
  if (!finding.remarks.empty()) member["relatedLocations"] = related_locations(finding, other);
  if (!finding.fixes.empty()) {
    Json& fixes = member["fixes"] = Json::array();
    for (const Fix& fix : finding.fixes) {
      if (!fix.replacements.empty()) fixes.push_back(fix_json(fix, checked));
    }
  }
  return member;
}

Json rule(const FindingKind& kind) {
  return {{"id", kind.code},
          {"shortDescription", message(kind.title)},
          {"fullDescription", message(kind.meaning)},
          {"help", message(kind.advice)},
          {"defaultConfiguration", {{"level", severity_name(kind.severity)}}}};
}

Json rule_reference(const Finding& finding) {
  return {{"id", finding.kind->code}, {"index", finding.kind - finding_kinds().data()}};
}

Json notification(const Checked& checked, std::string_view level, const std::string& text) {
  const Json place = {{"physicalLocation", {{"artifactLocation", artifact_location(checked.input)}}}};
  return {{"level", level}, {"message", message(text)}, {"locations", Json::array({place})}};
}

// A finding that is no result any more.
Json fixed_notification(const Checked& checked, const Finding& finding, const Lines& before, bool dry_run) {
  Json member = notification(checked, "note", (dry_run ? "would fix: " : "fixed: ") + whole_message(finding));
  member["associatedRule"] = rule_reference(finding);
  member["locations"] = Json::array({location(checked, finding, before)});
  return member;
}

// Whether all was checked, what was not, and what was fixed.
Json invocation(const CheckReport& report) {
  Json notifications = Json::array();
  bool successful = true;
  for (const Checked& checked : report.texts) {
    if (!checked.error.empty()) notifications.push_back(notification(checked, "error", checked.error));
    if (checked.cut) {
      notifications.push_back(
          notification(checked, "note", "the file is larger than 16 MiB: what follows is not checked"));
    }
    const Lines before(checked.before);
    for (const Finding& finding : checked.fixed) {
      notifications.push_back(fixed_notification(checked, finding, before, report.dry_run));
    }
    successful &= checked.error.empty();
  }
  return {{"executionSuccessful", successful}, {"toolExecutionNotifications", std::move(notifications)}};
}

}  // namespace

Json sarif(const CheckReport& report) {
  Json rules = Json::array();
  for (const FindingKind& kind : finding_kinds()) rules.push_back(rule(kind));
  Json results = Json::array();
  for (const Checked& checked : report.texts) {
    for (const Located& located : checked.findings) results.push_back(result(report, checked, located));
  }
  const Json driver = {{"name", "qvtcfg"}, {"semanticVersion", QVTCFG_VERSION}, {"rules", std::move(rules)}};
  const Json base = {{"description", message("the folder in which qvtcfg was started")}};
  const Json run = {{"tool", {{"driver", driver}}},
                    {"originalUriBaseIds", {{kBase, base}}},
                    {"columnKind", "unicodeCodePoints"},
                    {"newlineSequences", Json::array({"\n"})},
                    {"invocations", Json::array({invocation(report)})},
                    {"results", std::move(results)}};
  return {{"$schema", "https://docs.oasis-open.org/sarif/sarif/v2.1.0/errata01/os/schemas/sarif-schema-2.1.0.json"},
          {"version", "2.1.0"},
          {"runs", Json::array({run})}};
}

}  // namespace qvtcfg
