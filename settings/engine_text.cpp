#include "settings/engine_text.h"

#include <stdexcept>
#include <utility>

#include "SdkDebugDialog/Engine.h"
#include "SdkDebugDialog/EngineImp.h"
#include "SdkDebugDialog/Result.h"
#include "model/processor_kind.h"
#include "options/QvtOption_Parser.h"
#include "options/framing.h"
#include "options/groups.h"
#include "options/option_file.h"

namespace SdkDebugDialog {
namespace {

// An engine for one call, with a processor selected.
struct BoundEngine {
  explicit BoundEngine(ProcessorInfoImp& processor, HHSMHwManager* hardware) {
    imp.hwManager = hardware;
    imp.currentProcessor = &processor;
  }
  Engine engine;
  EngineImp& imp = *engine.imp;
};

// An engine that reads: it owns the devices that the reader creates.
struct ReadingEngine : BoundEngine {
  using BoundEngine::BoundEngine;
  ~ReadingEngine() {
    for (const JtagOption* const device : imp.jtagChain) delete device;
  }
  ReadingEngine(const ReadingEngine&) = delete;
  ReadingEngine& operator=(const ReadingEngine&) = delete;
};

bool read_text(TokenCursor& in, EngineImp& imp, TextKind kind) {
  if (kind == TextKind::cableText) return read_options(in, imp, kCableTextOptions);
  return read_connect(in, imp, kind == TextKind::optionFile ? Source::file : Source::command);
}

// The engine asks the hardware description for the FPU after each reading; the processor knows the answer.
void take_fpu(ProcessorInfoImp& settings, const Processor& processor) {
  if (processor.hardware() == nullptr) return;
  settings.fpuType = settings.procFamily == kFamilyPowerPC ? processor.identity().fpuType : kFpuNone;
}

}  // namespace

State defaults_of(const Processor& processor) {
  State state;
  state.processor = processor.identity();
  state.hasDesign = processor.hardware() != nullptr;
  BoundEngine engine(state.processor, processor.hardware());
  engine.imp.EngineImpInit();
  take_fpu(state.processor, processor);
  return state;
}

Reading read_state(const Processor& processor, std::string_view text, TextKind kind) {
  Reading reading;
  const std::string_view read = kind == TextKind::optionFile ? option_line(text) : text;
  if (kind == TextKind::optionFile && read.empty()) {
    reading.understood = true;
    reading.state = defaults_of(processor);
    return reading;
  }
  State& state = reading.state;
  state.processor = processor.identity();
  state.hasDesign = processor.hardware() != nullptr;
  ReadingEngine engine(state.processor, processor.hardware());
  EngineImp& imp = engine.imp;
  imp.EngineImpInit();
  TokenCursor cursor(read);
  try {
    reading.understood = read_text(cursor, imp, kind);
  } catch (const std::out_of_range&) {
    reading.loneDash = true;
  }
  reading.consumed = static_cast<std::size_t>(cursor.rest().data() - text.data());
  engine.engine.GetErrorStr(reading.engineText);
  if (!reading.understood) return reading;
  if (kind != TextKind::cableText) take_fpu(state.processor, processor);
  state.cable = std::move(*imp.cable);
  state.cpuJtag = imp.cpuJtag;
  state.chain.reserve(imp.jtagChain.size());
  for (JtagOption* const device : imp.jtagChain) state.chain.push_back(std::move(*device));
  return reading;
}

Error not_understood(const Reading& reading, std::string_view text) {
  std::string_view word = text.substr(0, reading.consumed);
  word = word.substr(0, word.find_last_not_of(" \t\n\v\f\r") + 1);
  word = word.substr(word.find_last_of(" \t\n") + 1);
  std::string message = "the text is not understood";
  if (!word.empty()) message += " at '" + std::string(word) + "'";
  if (reading.loneDash) message = "a lone '-' stands in the place of an option or a value";
  return {ErrorCode::notUnderstood, std::move(message), reading.engineText};
}

Expected<std::string> write_state(const State& state, TextKind kind) {
  ProcessorInfoImp processor = state.processor;
  std::vector<JtagOption> chain = state.chain;
  BoundEngine engine(processor, nullptr);
  EngineImp& imp = engine.imp;
  *imp.cable = state.cable;
  imp.cpuJtag = state.cpuJtag;
  imp.jtagChain.reserve(chain.size());
  for (JtagOption& device : chain) imp.jtagChain.push_back(&device);
  std::string text;
  const int result = kind == TextKind::cableText ? QvtOption_Parser::WriteJtagCableOptionsString(imp, text)
                                                 : engine.engine.GenerateCmdString(text);
  if (result == kOk) return text;
  std::string engineText;
  engine.engine.GetErrorStr(engineText);
  std::string message = "no connect command can be written for these settings";
  const CableType& cable = cable_type(state.cable.type);
  if (state.cable.type != Engine::CABLE_NONE && cable.notWritten != nullptr) {
    message += "; the cable: " + std::string(cable.notWritten);
  }
  return Error{ErrorCode::cannotBeWritten, std::move(message), engineText};
}

}  // namespace SdkDebugDialog
