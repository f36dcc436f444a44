#include "options/framing.h"

#include <algorithm>

#include "options/target.h"

namespace SdkDebugDialog {
namespace {

constexpr Head kHeads[] = {
    {.name = "connect", .virtualPlatform = false, .inFile = true, .written = true},
    {.name = "vpconnect", .virtualPlatform = true, .inFile = true, .written = true},
    {.name = "qconnect", .virtualPlatform = false, .inFile = false, .written = false},
    {.name = "qvpconnect", .virtualPlatform = true, .inFile = false, .written = false},
};

// The target that a processor is written as. A family that no target names is written like a PowerPC.
const Target& target_of(const ProcessorInfoImp& processor) {
  const bool virtualPlatform = processor.connectionType == Engine::VIRTUAL_PLATFORM;
  if (virtualPlatform) return target("ov", virtualPlatform);
  const auto found = std::ranges::find_if(
      targets(), [&](const Target& t) { return t.family != kNoKind && t.family == processor.procFamily; });
  return found != targets().end() ? *found : target("ppc");
}

}  // namespace

std::span<const Head> heads() { return kHeads; }

const Target* find_target(std::string_view word, bool virtualPlatform, const LetterCase& letterCase) {
  const Bytes bytes = bytes_of(word);
  for (const Target& target : targets()) {
    if (target.virtualPlatform == virtualPlatform && target.name.is(word, bytes, letterCase)) return &target;
  }
  return nullptr;
}

bool read_target(TokenCursor& in, EngineImp& imp, Source source, bool virtualPlatform) {
  std::string_view word;
  if (in.next(word) == Token::end) return false;
  const Target* const target = find_target(word, virtualPlatform, in.letter_case());
  return target != nullptr && (target->inFile || source == Source::command) && target->read(*target, in, imp);
}

bool read_connect(TokenCursor& in, EngineImp& imp, Source source) {
  std::string_view word;
  if (in.next(word) == Token::end) return false;
  const Head* const head = find_name(heads(), word, in.letter_case());
  if (head == nullptr || (source == Source::file && !head->inFile)) return false;
  return read_target(in, imp, source, head->virtualPlatform);
}

bool write_connect(TextOut& out, EngineImp& imp) {
  const Target& target = target_of(*imp.currentProcessor);
  const auto ours = [&](const Head& head) { return head.written && head.virtualPlatform == target.virtualPlatform; };
  out.put_name(std::ranges::find_if(kHeads, ours)->name);
  return target.write(target, out, imp);
}

}  // namespace SdkDebugDialog
