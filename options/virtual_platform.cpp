// The virtual platform, whose command has a head of its own.

#include "options/groups.h"
#include "options/pairs.h"
#include "options/target.h"

namespace SdkDebugDialog {

// With a design the processor's kind stays; without one its variant is known and its family is left alone.
bool read_virtual_platform(const Target& target, TokenCursor& in, EngineImp& imp) {
  if (!admits(imp, Engine::VIRTUAL_PLATFORM)) return false;
  imp.currentProcessor->connectionType = Engine::VIRTUAL_PLATFORM;
  learn_connection(Engine::VIRTUAL_PLATFORM, imp);
  if (imp.hwManager == nullptr) imp.currentProcessor->procVariant = target.variant;
  return read_options(in, imp, *target.options);
}

bool write_virtual_platform(const Target& target, TextOut& out, EngineImp& imp) {
  if (imp.currentProcessor->procFamily != target.family) return false;
  out.put_name(target.name);
  write_pairs(out, kVirtualPlatform.keywords, records_of(imp));
  return true;
}

}  // namespace SdkDebugDialog
