// The soft processor ("ov") and its "-pfsl" option.

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

constexpr std::string_view kTarget = " ov";
constexpr Word kConnections[] = {{"sim", Engine::SIMULATOR}, {"stub", Engine::STUB}, {"odm", Engine::HARDWARE}};

// "-memsize" with its value is all that may follow the simulator; a plain word is passed over, and nothing after it
// is looked at.
int read_memsize(TokenCursor& in, EngineImp& imp) {
  std::string_view token;
  if (in.next(token) != kOption) return kValue;
  if (!in.letter_case().same(token, "-memsize") || in.next(token) == kEnd) return kError;
  imp.currentProcessor->memSize = static_cast<std::uint32_t>(to_unsigned(token));
  return kValue;
}

}  // namespace

int read_ov_target(TokenCursor& in, EngineImp& imp) {
  const Word* const connection = next_row<kConnections>(in);
  if (connection == nullptr || !admits(imp, connection->value)) return kError;

  // The simulator is selected before its option is read, the others after theirs.
  if (connection->value == Engine::SIMULATOR) {
    imp.currentProcessor->connectionType = Engine::SIMULATOR;
    if (read_memsize(in, imp) == kError) return kError;
  } else {
    if (read_general_options(in, imp) == kError) return kError;
    imp.currentProcessor->connectionType = connection->value;
  }
  learn_connection(imp, connection->value);
  learn_processor(imp, kFamilySoft, kVariantSoft);
  return kValue;
}

int QvtOption_Parser::parse_ovoptions(std::string& text, EngineImp& imp) { return on_text<read_ov_target>(text, imp); }

int write_ov_target(TextOut& out, EngineImp& imp) {
  const ProcessorInfoImp& processor = *imp.currentProcessor;
  out.put(kTarget);
  const Word* const connection = std::ranges::find(kConnections, processor.connectionType, &Word::value);
  if (connection == std::end(kConnections)) {
    imp.engine->SetErrorStr("Invalid Connect Type for Ovrin Target");
    return kError;
  }
  out.put(" ");
  out.put(connection->name);
  if (connection->value == Engine::SIMULATOR) return kValue;
  if (connection->value == Engine::STUB) {
    write_comm(out, imp);
    if (processor.stubType != Engine::STUB_OVER_JTAG) return write_serial_stub(out, imp);
  }
  return write_chain_and_device(out, imp);
}

int QvtOption_Parser::write_ovoptions(std::string& out, EngineImp& imp) { return on_end<write_ov_target>(out, imp); }

// --- "-pfsl": checked, forgotten, and so never written ---

namespace {

struct Nothing {};

constexpr Word kLinkTypes[] = {{"m", 0}, {"s", 0}, {"ms", 0}};

int read_link_type(const Pair& pair, Nothing& /*nothing*/, EngineImp& imp) {
  if (find_row<kLinkTypes>(pair.value, pair.letterCase) != nullptr) return kValue;
  set_error(imp, "UNKNOWN Parameter '%s' for  option 'type'", std::string(pair.value).c_str());
  return kError;
}

constexpr Keyword<Nothing> kPfslKeywords[] = {
    {.name = "port"},
    {.name = "type", .read = read_link_type},
};

}  // namespace

int read_pfsl(TokenCursor& in, EngineImp& imp) {
  Nothing nothing;
  Reading<Nothing> reading = {nothing, imp, in.letter_case()};
  return read_pairs<kPfslKeywords>(in, reading, "UNKNOWN Parameter '%s' for  option '-pfsl'");
}

int QvtOption_Parser::parse_ovfsloptions(std::string& text, EngineImp& imp) { return on_text<read_pfsl>(text, imp); }

int QvtOption_Parser::write_ovfsloptions(std::string& /*out*/, EngineImp& /*imp*/) { return kValue; }

}  // namespace SdkDebugDialog
