// Fuzz target: connect commands, with and without a design.

#include <string>

#include "SdkDebugDialog/Engine.h"
#include "SdkDebugDialog/ProcessorInfo.h"
#include "fuzz/again.h"
#include "fuzz/check.h"
#include "fuzz/error_text.h"
#include "fuzz/input.h"
#include "fuzz/lone_dash.h"
#include "model/processor_list.h"
#include "options/QvtOption_Parser.h"
#include "platform/ComMsgMgr.h"
#include "tests/support/SelectedEngine.h"
#include "tests/support/changes.h"

using namespace SdkDebugDialog;

namespace {

constexpr const char* kOlder = "an older text";

void check_error_text(const std::string& error, int result, const std::string& before) {
  if (result == 0) {
    expect_same(error, before, "no error text on success");
  } else {
    expect(error == before || is_reading_error(error), "a known error text", error);
  }
}

void read_alone(const std::string& text) {
  SelectedEngine selected;
  selected.engine.SetErrorStr(kOlder);
  const int result = result_of(text, [&] { return QvtOption_Parser::ReadQvtCommand(text, selected.imp); });
  expect(result == 0 || result == 3 || result == kThrown, "0 or 3");
  expect_same(selected.processor.command, text, "the text in command");
  check_error_text(selected.error(), result, kOlder);
  if (result == 0) check_writing(selected.imp, Way::command);
}

void read_for(const char* name, const std::string& text) {
  DiscoveredEngine engine(known_design());
  const ProcessorInfoImp before = *find_listed(engine.imp, name);
  ProcessorInfo info{7, 8, 9};
  const int result = result_of(text, [&] { return engine.engine.ParseProcessorInfo(name, info, text); });
  expect(result == 0 || result == 3 || result == kThrown, "0 or 3");
  ProcessorInfoImp& after = *engine.imp.currentProcessor;
  expect_same(after.name, name, "the processor selected");
  expect(after.cpuNr == before.cpuNr, "the number to be that of the design");
  check_error_text(engine.error(), result, "");
  if (result == kThrown) return;

  expect(info.procVariant == after.procVariant && info.procFamily == after.procFamily &&
             info.allowedConnections == after.allowedConnections,
         "what the record says in the answer");
  if (result == 0) {
    expect_same(after.command, text, "the text in command");
  } else {
    SelectedEngine untouched;
    untouched.processor.name = after.name;
    untouched.processor.procFamily = after.procFamily;
    untouched.processor.procVariant = after.procVariant;
    untouched.processor.allowedConnections = after.allowedConnections;
    untouched.processor.cpuNr = after.cpuNr;
    expect_same(changes(engine.imp, untouched.imp), "", "the defaults after a failure");
    expect_same(after.command, "", "no command after a failure");
  }
  check_writing(engine.imp, Way::design);
}

std::string g_message;

void describe(const std::string& text) {
  static const ComMsgMgr::Sink kBefore =
      ComMsgMgr::setSink([](int type, const char* id, unsigned int mask, const char* t) {
        expect(type == 1 && mask == 0x20000000U, "the message's type and mask");
        expect_same(id, "sdk", "the message's id");
        g_message = t;
      });
  static_cast<void>(kBefore);
  g_message = "none";
  DiscoveredEngine engine(known_design());
  const HHSMHwManager* const hw = engine.imp.hwManager;
  ProcessorInfoImp* record = nullptr;
  const int result = result_of(text, [&] { return (record = engine.imp.GetProcessorInfo(text)) != nullptr ? 0 : 3; });
  expect(engine.imp.hwManager == hw, "the design attached as before");
  expect(engine.imp.currentProcessor == record, "the record selected, or none");
  check_error_text(engine.error(), result, "");
  expect_same(g_message, result == 3 ? engine.error() + "\n" : "none", "the error text sent");
  if (record == nullptr) {
    expect(engine.imp.cable->type == Engine::CABLE_NONE && engine.imp.jtagChain.empty() && engine.imp.cpuJtag == 0,
           "the defaults after a failure");
    return;
  }
  expect_same(record->command, text, "the text in command");
  check_writing(engine.imp, Way::described);
  delete record;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr const char* kProcessors[] = {"ovrin_0", "ovrin_1", "ppc405_0", "ppc440_0", "a9_0"};
  const auto [way, text] = split(data, size, 2 + std::size(kProcessors));
  if (way == 0) {
    read_alone(text);
  } else if (way == 1) {
    describe(text);
  } else {
    read_for(kProcessors[way - 2], text);
  }
  return 0;
}
