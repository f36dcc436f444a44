// Reads the soft processor ("ov").

#include "options/groups.h"
#include "options/target.h"

namespace SdkDebugDialog {
namespace {

// "-memsize" with its value is all that may follow the simulator; a plain word is passed over, and nothing after it is
// looked at.
bool read_simulator(TokenCursor& in, EngineImp& imp, const Run& options) {
  std::string_view token;
  if (in.next(token) != Token::option) return true;
  const Option* const option = find_option(token, options, in.letter_case());
  return option != nullptr && option->read(*option, in, token, imp) != Outcome::error;
}

}  // namespace

bool read_ov_target(const Target& target, TokenCursor& in, EngineImp& imp) {
  const Connection* const connection = read_connection(target, in, imp);
  if (connection == nullptr) return false;
  // The simulator is selected before its option is read, the others after theirs.
  if (connection->type == Engine::SIMULATOR) {
    imp.currentProcessor->connectionType = Engine::SIMULATOR;
    if (!read_simulator(in, imp, connection->options)) return false;
  } else {
    if (!read_options(in, imp, connection->options)) return false;
    imp.currentProcessor->connectionType = connection->type;
  }
  learn_connection(connection->type, imp);
  learn_processor(target, imp);
  return true;
}

}  // namespace SdkDebugDialog
