// Reads the debug access port of an ARM ("dap").

#include "options/groups.h"
#include "options/target.h"

namespace SdkDebugDialog {

// The access port is no processor of the design: the hardware description is not asked.
bool read_dap_target(const Target& target, TokenCursor& in, EngineImp& imp) {
  std::string_view word;
  if (in.next(word) == Token::end) return false;
  const Connection* const connection = find_name(target.connections, word, in.letter_case());
  if (connection == nullptr || !read_options(in, imp, connection->options)) return false;
  ProcessorInfoImp& processor = *imp.currentProcessor;
  processor.connectionType = connection->type;
  processor.allowedConnections = target.admits;
  processor.procFamily = target.family;
  processor.procVariant = target.variant;
  return true;
}

}  // namespace SdkDebugDialog
