// Reads the PowerPC ("ppc").

#include "options/groups.h"
#include "options/target.h"

namespace SdkDebugDialog {

bool read_ppc_target(const Target& target, TokenCursor& in, EngineImp& imp) {
  const Connection* const connection = read_connection(target, in, imp);
  if (connection == nullptr) return false;
  // The processor is known before its options are read, the connection only after.
  learn_processor(target, imp);
  if (!read_options(in, imp, connection->options)) return false;
  imp.currentProcessor->connectionType = connection->type;
  learn_connection(connection->type, imp);
  return true;
}

}  // namespace SdkDebugDialog
