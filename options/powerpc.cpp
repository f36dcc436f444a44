// The PowerPC ("ppc").

#include <algorithm>
#include <string>

#include "SdkDebugDialog/Engine.h"
#include "SdkDebugDialog/EngineImp.h"
#include "model/processor_kind.h"
#include "options/QvtOption_Parser.h"
#include "options/groups.h"
#include "options/keyword.h"
#include "options/target.h"

namespace SdkDebugDialog {
namespace {

struct Connection {
  std::string_view name;
  std::uint32_t type;
  int (*read)(TokenCursor& in, EngineImp& imp);
  int (*write)(TextOut& out, EngineImp& imp);
};

constexpr Connection kConnections[] = {
    {"sim", Engine::SIMULATOR, read_ppcsim, write_ppcsim},
    {"hw", Engine::HARDWARE, read_general_options, write_chain_and_device},
};

}  // namespace

int read_ppc_target(TokenCursor& in, EngineImp& imp) {
  const Connection* const connection = next_row<kConnections>(in);
  if (connection == nullptr || !admits(imp, connection->type)) return kError;
  // The processor is known before its options are read, the connection only after.
  learn_processor(imp, kFamilyPowerPC, kVariantOtherPowerPC);
  if (connection->read(in, imp) == kError) return kError;
  imp.currentProcessor->connectionType = connection->type;
  learn_connection(imp, connection->type);
  return kValue;
}

int QvtOption_Parser::parse_ppcoptions(std::string& text, EngineImp& imp) {
  return on_text<read_ppc_target>(text, imp);
}

int write_ppc_target(TextOut& out, EngineImp& imp) {
  out.put(" ppc");
  const auto* const connection =
      std::ranges::find(kConnections, imp.currentProcessor->connectionType, &Connection::type);
  if (connection == std::end(kConnections)) {
    imp.engine->SetErrorStr("Invalid Connect Type for PowerPC Target");
    return kError;
  }
  out.put(" ");
  out.put(connection->name);
  return connection->write(out, imp);
}

int QvtOption_Parser::write_ppcoptions(std::string& out, EngineImp& imp) { return on_end<write_ppc_target>(out, imp); }

}  // namespace SdkDebugDialog
