// The diagnosis of one text, and its fixes.

#include <algorithm>
#include <iterator>
#include <set>
#include <utility>

#include "SdkDebugDialog/Diagnosis.h"
#include "SdkDebugDialog/OptionFile.h"
#include "findings/Report.h"
#include "findings/checks.h"
#include "findings/effects.h"
#include "findings/examine.h"
#include "options/groups.h"
#include "settings/engine_text.h"

namespace SdkDebugDialog {

namespace {

// Whether the reader does not see the end of the line.
bool is_cut(const Subject& subject) {
  if (subject.kind != TextKind::optionFile || subject.line.end - subject.line.begin < kLongestLine) return false;
  return subject.line.end < subject.text.size() && subject.text[subject.line.end] != '\n';
}

// Where the reader does not see the end of a line, every byte more or less changes what it sees.
bool would_be_cut(const Subject& subject, const std::vector<Finding>& findings) {
  if (subject.kind != TextKind::optionFile) return false;
  std::size_t size = subject.line.end - subject.line.begin;
  for (const Finding& finding : findings) {
    for (const Fix& fix : finding.fixes) {
      if (!fix.safe) continue;
      for (const Replacement& r : fix.replacements) size += r.text.size();
    }
  }
  return size > kLongestLine || is_cut(subject);
}

// An error at the very end of a line that is cut comes from the cut. It is then the one finding about the cut.
void blame_cut(const Subject& subject, std::vector<Finding>& findings) {
  const std::string_view line = subject.in(subject.line);
  const std::size_t end = subject.line.begin + line.find_last_not_of(" \t\n\v\f\r") + 1;
  const auto isAtEnd = [&](const Finding& f) { return f.severity == Severity::error && f.end == end; };
  const auto first = std::ranges::find_if(findings, isAtEnd);
  if (first == findings.end()) return;
  Finding blamed = *first;
  blamed.kind = &kind_of(Code::lineTooLong);
  blamed.message = "the line is cut here, behind " + std::to_string(kLongestLine) + " bytes";
  blamed.remedy = "write a shorter command";
  blamed.fixes.clear();
  const auto position = first - findings.begin();
  std::erase_if(findings, [&](const Finding& f) { return isAtEnd(f) || f.kind == blamed.kind; });
  findings.insert(findings.begin() + position, std::move(blamed));
}

void check_whole(const Subject& subject, const Examined& examined, const State& state, Report& report) {
  check_rewriting(subject, examined, state, report);
  const Said* const device = examined.said(kDebugdevice, "deviceNr");
  check_chain(state.chain, examined.devices, state.processor.debugDevice,
              device != nullptr ? std::optional(device->value) : std::nullopt, report);
}

}  // namespace

std::vector<Finding> diagnose(std::string_view text, TextKind kind, const Processor& processor) {
  const Subject subject(text, kind, processor);
  Report report;
  // An option file with nothing in it stands for the defaults.
  if (kind != TextKind::optionFile || subject.line.begin != subject.line.end) {
    const Examined examined = examine(subject, report);
    if (report.errors() == 0) {
      const State state = read_state(processor, text, kind).state;
      check_effects(subject, examined, state, report);
      // The end of a line that is cut means something else than it says.
      if (!is_cut(subject)) check_whole(subject, examined, state, report);
    }
  }
  if (kind == TextKind::optionFile) check_file(subject, report);
  std::vector<Finding> findings = std::move(report).findings();
  if (is_cut(subject)) blame_cut(subject, findings);
  if (would_be_cut(subject, findings)) {
    for (Finding& finding : findings) {
      for (Fix& fix : finding.fixes) fix.safe = false;
    }
  }
  return findings;
}

namespace {

struct InOrder {
  bool operator()(const Replacement* a, const Replacement* b) const {
    return std::pair(a->begin, a->end) < std::pair(b->begin, b->end);
  }
};
using Replacements = std::multiset<const Replacement*, InOrder>;

bool overlaps(const Replacements& chosen, const Replacement& replacement) {
  const auto next = chosen.upper_bound(&replacement);
  if (next != chosen.end() && (*next)->begin < replacement.end) return true;
  return next != chosen.begin() && (*std::prev(next))->end > replacement.begin;
}

}  // namespace

std::string with_fixes(std::string_view text, const std::vector<Finding>& findings, FixChoice choice) {
  Replacements chosen;
  for (const Finding& finding : findings) {
    const auto fix =
        std::ranges::find_if(finding.fixes, [&](const Fix& f) { return f.safe || choice == FixChoice::allFirst; });
    if (fix == finding.fixes.end()) continue;
    // A fix is made whole or not at all.
    if (std::ranges::any_of(fix->replacements, [&](const Replacement& r) { return overlaps(chosen, r); })) continue;
    for (const Replacement& replacement : fix->replacements) chosen.insert(&replacement);
  }
  std::string out;
  std::size_t from = 0;
  for (const Replacement* const replacement : chosen) {
    out.append(text, from, replacement->begin - from);
    out += replacement->text;
    from = replacement->end;
  }
  return out.append(text, from);
}

}  // namespace SdkDebugDialog
