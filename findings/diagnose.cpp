// The diagnosis of one text, and its fixes.

#include <algorithm>
#include <utility>

#include "SdkDebugDialog/Diagnosis.h"
#include "findings/Report.h"
#include "findings/checks.h"

namespace SdkDebugDialog {

std::vector<Finding> diagnose(std::string_view text, TextKind kind, const Processor& processor) {
  const Subject subject(text, kind, processor);
  Report report;
  if (kind == TextKind::optionFile) check_file(subject, report);
  return std::move(report).findings();
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
