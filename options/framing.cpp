// The frame of a connect command: its head, its target, and which reader and writer each selects.

#include <string>
#include <utility>

#include "SdkDebugDialog/Engine.h"
#include "SdkDebugDialog/EngineImp.h"
#include "SdkDebugDialog/ProcessorInfo.h"
#include "model/processor_kind.h"
#include "options/QvtOption_Parser.h"
#include "options/groups.h"
#include "options/keyword.h"
#include "options/option_file.h"

namespace SdkDebugDialog {
namespace {

// An option file takes fewer heads and targets than a command.
enum class Source { file, command };

struct Head {
  std::string_view name;
  bool virtualPlatform;
  bool inFile;
};

constexpr Head kHeads[] = {
    {"qconnect", false, false},
    {"qvpconnect", true, false},
    {"connect", false, true},
    {"vpconnect", true, true},
};

struct Target {
  std::string_view name;
  int (*read)(TokenCursor& in, EngineImp& imp);
  bool inFile;
};

constexpr Target kTargets[] = {
    {"ov", read_ov_target, true},    {"ppc", read_ppc_target, true},    {"arm", read_arm_target, true},
    {"r5", read_r5_target, true},    {"odm", read_odm_target, false},   {"dap", read_dap_target, false},
    {"dcc", read_dcc_target, false}, {"qmtc", read_qmtc_target, false},
};

// The same where the source does not take every row.
template <const auto& rows>
auto next_row(TokenCursor& in, Source source) -> decltype(&rows[0]) {
  const auto* const row = next_row<rows>(in);
  return row != nullptr && (row->inFile || source == Source::command) ? row : nullptr;
}

int read_command(TokenCursor& in, EngineImp& imp, Source source) {
  const Head* const head = next_row<kHeads>(in, source);
  if (head == nullptr) return kNotUnderstood;
  auto read = read_virtual_platform;
  if (!head->virtualPlatform) {
    const Target* const target = next_row<kTargets>(in, source);
    if (target == nullptr) return kNotUnderstood;
    read = target->read;
  }
  return read(in, imp) == kError ? kNotUnderstood : kValue;
}

// Reads the text that the current record's command holds; nothing changes it meanwhile.
int read_text(EngineImp& imp, Source source) {
  TokenCursor cursor(imp.currentProcessor->command);
  return read_and_keep_option(cursor, [&](TokenCursor& in) { return read_command(in, imp, source); });
}

// An ARM processor is written like a PowerPC.
int write_command(TextOut& out, EngineImp& imp) {
  const ProcessorInfoImp& processor = *imp.currentProcessor;
  if (processor.connectionType == Engine::VIRTUAL_PLATFORM) return write_virtual_platform(out, imp);
  out.put("connect");
  return processor.procFamily == kFamilySoft ? write_ov_target(out, imp) : write_ppc_target(out, imp);
}

// Nothing is changed on failure but the error text.
int write_text(EngineImp& imp, std::string& text) {
  // What a device takes up as a rule; a long chain's text is not moved time and again while it grows.
  constexpr std::size_t kDevice = 80;
  if (!imp.jtagChain.empty()) text.reserve((imp.jtagChain.size() + 4) * kDevice);
  return on_end<write_command>(text, imp) == kError ? kCannotBeWritten : kValue;
}

}  // namespace

int QvtOption_Parser::ReadQvtOptFile(std::string processorName, EngineImp& imp) {
  std::string line = read_option_line(processorName);
  if (line.empty()) return kNoOptionFile;
  imp.currentProcessor->command = std::move(line);
  return read_text(imp, Source::file);
}

int QvtOption_Parser::ReadQvtCommand(std::string command, EngineImp& imp) {
  imp.currentProcessor->command = std::move(command);
  return read_text(imp, Source::command);
}

int QvtOption_Parser::WriteQvtCmdString(EngineImp& imp, std::string& command) {
  std::string text;
  if (const int result = write_text(imp, text); result != kValue) return result;
  imp.currentProcessor->command = text;
  command = std::move(text);
  return kValue;
}

int QvtOption_Parser::WriteQvtOptFile(EngineImp& imp) {
  std::string text;
  if (const int result = write_text(imp, text); result != kValue) return result;
  imp.currentProcessor->command = std::move(text);
  if (write_option_file(imp.currentProcessor->name, imp.currentProcessor->command)) return kValue;
  imp.engine->SetErrorStr("Error Opening File");
  return kFileNotWritten;
}

}  // namespace SdkDebugDialog
