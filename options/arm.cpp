// The ARM targets "arm", "r5" and "dap". They are read and never written.

#include "SdkDebugDialog/Engine.h"
#include "SdkDebugDialog/EngineImp.h"
#include "model/processor_kind.h"
#include "options/QvtOption_Parser.h"
#include "options/groups.h"
#include "options/keyword.h"
#include "options/target.h"

namespace SdkDebugDialog {
namespace {

// All of them take the hardware connection alone.
bool read_hw(TokenCursor& in) {
  std::string_view word;
  return in.next(word) != kEnd && in.letter_case().same(word, "hw");
}

int read_core(TokenCursor& in, EngineImp& imp, std::uint32_t variant) {
  if (!read_hw(in) || !admits(imp, Engine::HARDWARE) || read_general_options(in, imp) == kError) return kError;
  imp.currentProcessor->connectionType = Engine::HARDWARE;
  learn_processor(imp, kFamilyArm, variant);
  learn_connection(imp, Engine::HARDWARE);
  return kValue;
}

}  // namespace

int read_arm_target(TokenCursor& in, EngineImp& imp) { return read_core(in, imp, kVariantCortexA9); }

int read_r5_target(TokenCursor& in, EngineImp& imp) { return read_core(in, imp, kVariantR5); }

// The access port is no processor of the design: the hardware description is not asked.
int read_dap_target(TokenCursor& in, EngineImp& imp) {
  if (!read_hw(in) || read_general_options(in, imp) == kError) return kError;
  ProcessorInfoImp& processor = *imp.currentProcessor;
  processor.connectionType = Engine::HARDWARE;
  processor.allowedConnections = Engine::DAP_TARGET;
  processor.procFamily = kFamilyArm;
  processor.procVariant = kVariantCortexA9;
  return kValue;
}

int QvtOption_Parser::parse_armoptions(std::string& text, EngineImp& imp) {
  return on_text<read_arm_target>(text, imp);
}

int QvtOption_Parser::parse_armr5options(std::string& text, EngineImp& imp) {
  return on_text<read_r5_target>(text, imp);
}

int QvtOption_Parser::parse_dapoptions(std::string& text, EngineImp& imp) {
  return on_text<read_dap_target>(text, imp);
}

}  // namespace SdkDebugDialog
