// Reads the ARM targets "arm", "r5" and "dap".

#include "options/groups.h"
#include "options/target.h"

namespace SdkDebugDialog {

bool read_arm_target(const Target& target, TokenCursor& in, EngineImp& imp) {
  const Connection* const connection = read_connection(target, in, imp);
  if (connection == nullptr || !read_options(in, imp, connection->options)) return false;
  imp.currentProcessor->connectionType = connection->type;
  learn_processor(target, imp);
  learn_connection(connection->type, imp);
  return true;
}

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
