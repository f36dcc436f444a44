// Reads the targets that are no connection of a processor and take their options at once: the debug module ("odm"), the
// debug communications channel ("dcc") and the multi-threaded C target ("qmtc").

#include "options/groups.h"
#include "options/target.h"

namespace SdkDebugDialog {

// The processor is marked with the target before anything is read.
bool read_bare_target(const Target& target, TokenCursor& in, EngineImp& imp) {
  ProcessorInfoImp& processor = *imp.currentProcessor;
  processor.allowedConnections = target.admits;
  if (target.family != kNoKind) {
    processor.procFamily = target.family;
    processor.procVariant = target.variant;
  }
  return read_options(in, imp, *target.options);
}

}  // namespace SdkDebugDialog
