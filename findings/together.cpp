// What disagrees between configurations that are used side by side, and files without a processor.

#include "SdkDebugDialog/Diagnosis.h"
#include "findings/kinds.h"

namespace SdkDebugDialog {

std::vector<SharedFinding> diagnose_together(const std::vector<SideBySide>& /*configurations*/) { return {}; }

Finding no_such_processor(const Error& error) {
  Finding finding;
  finding.kind = &kind_of(Code::noSuchProcessor);
  finding.severity = finding.kind->severity;
  finding.message = error.message;
  return finding;
}

}  // namespace SdkDebugDialog
