// The diagnosis of one text, and its fixes.

#include <algorithm>
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

// Where the reader does not see the end of a line, every byte more or less changes what it sees.
bool would_be_cut(const Subject& subject, const std::vector<Finding>& findings) {
  if (subject.kind != TextKind::optionFile) return false;
  std::size_t size = subject.line.end - subject.line.begin;
  const bool isCut = size == kLongestLine;
  for (const Finding& finding : findings) {
    for (const Fix& fix : finding.fixes) {
      if (!fix.safe) continue;
      for (const Replacement& r : fix.replacements) size += r.text.size();
    }
  }
  return isCut || size > kLongestLine;
}

}  // namespace

std::vector<Finding> diagnose(std::string_view text, TextKind kind, const Processor& processor) {
  const Subject subject(text, kind, processor);
  Report report;
  // An option file with nothing in it stands for the defaults.
  if (kind != TextKind::optionFile || subject.line.begin != subject.line.end) {
    const Examined examined = examine(subject, report);
    if (!report.has_errors()) {
      const State state = read_state(processor, text, kind).state;
      check_effects(subject, examined, state, report);
      check_rewriting(subject, examined, state, report);
      const Said* const device = examined.said(kDebugdevice, "deviceNr");
      check_chain(state.chain, examined.devices, state.processor.debugDevice,
                  device != nullptr ? std::optional(device->value) : std::nullopt, report);
    }
  }
  if (kind == TextKind::optionFile) check_file(subject, report);
  std::vector<Finding> findings = std::move(report).findings();
  if (would_be_cut(subject, findings)) {
    for (Finding& finding : findings) {
      for (Fix& fix : finding.fixes) fix.safe = false;
    }
  }
  return findings;
}

std::string with_fixes(std::string_view text, const std::vector<Finding>& findings, FixChoice choice) {
  std::vector<const Replacement*> chosen;
  std::size_t from = 0;
  for (const Finding& finding : findings) {
    const auto found =
        std::ranges::find_if(finding.fixes, [&](const Fix& fix) { return fix.safe || choice == FixChoice::allFirst; });
    if (found == finding.fixes.end()) continue;
    for (const Replacement& replacement : found->replacements) chosen.push_back(&replacement);
  }
  std::ranges::stable_sort(chosen, {}, [](const Replacement* r) { return std::pair(r->begin, r->end); });
  std::string out;
  for (const Replacement* const replacement : chosen) {
    if (replacement->begin < from) continue;
    out.append(text, from, replacement->begin - from);
    out += replacement->text;
    from = replacement->end;
  }
  return out.append(text, from);
}

}  // namespace SdkDebugDialog
