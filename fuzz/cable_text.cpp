// Fuzz target: cable and chain as text, through the public operations.

#include <string>
#include <vector>

#include "SdkDebugDialog/CableOption.h"
#include "SdkDebugDialog/Engine.h"
#include "SdkDebugDialog/JtagOption.h"
#include "fuzz/again.h"
#include "fuzz/check.h"
#include "fuzz/error_text.h"
#include "fuzz/input.h"
#include "fuzz/lone_dash.h"
#include "tests/support/SelectedEngine.h"

using namespace SdkDebugDialog;

namespace {

// A caller's cable, chain and debug device.
struct Link {
  CableOption cable;
  std::vector<JtagOption*> chain;
  int cpuJtag = 7;
  char debugDevice = 'd';

  ~Link() {
    for (const JtagOption* const device : chain) delete device;
  }

  int parse(const std::string& text) {
    return result_of(text, [&] { return Engine::ParseJtagCableInfo(text, cable, chain, cpuJtag, debugDevice); });
  }
  int generate(std::string& text) { return Engine::GenerateJtagCableCmdString(text, cable, chain, debugDevice); }
};

bool is_untouched(const CableOption& cable) {
  return cable.type == Engine::CABLE_NONE && cable.frequency == 1 && cable.port == "port" && cable.esn.empty() &&
         cable.fname.empty() && cable.modulename.empty() && cable.modulearg.empty() && cable.url.empty();
}

CableOption older() {
  CableOption cable;
  cable.frequency = 1;
  cable.port = "port";
  return cable;
}

void parse_and_generate(const std::string& text) {
  Link link;
  link.cable = older();
  const int result = link.parse(text);
  if (result != 0) {
    expect(result == 3 || result == kThrown, "0 or 3", text);
    expect(is_untouched(link.cable) && link.chain.empty() && link.cpuJtag == 7 && link.debugDevice == 'd',
           "the outputs untouched on failure", text);
    return;
  }
  expect(link.cpuJtag == 0 || link.cpuJtag == 1, "a flag");

  std::string written = "before";
  const int status = link.generate(written);
  expect(status == 0 || status == 1, "0 or 1");
  if (status == 1) {
    expect_same(written, "before -cable", "a cable that cannot be written");
    return;
  }
  expect(written.starts_with("before"), "a text to be appended", written);
  written.erase(0, 6);

  Link again;
  const int second = again.parse(written);
  std::string rewritten;
  if (second == 0) again.generate(rewritten);
  SelectedEngine wrote;  // an engine with the same settings
  *wrote.imp.cable = link.cable;
  wrote.engine.SetJtagChainOptions(link.chain);
  check_second_text(wrote.imp, Way::cable, written, second, rewritten);
  wrote.imp.jtagChain.clear();
}

void set_plugin_options(const std::string& text) {
  SelectedEngine selected;
  expect(selected.engine.SetPluginCableOptions(text) == 1, "any other cable to be refused");
  expect_same(selected.error(), "Internal Error: Other Cable Options applies only for ZARVEK_PLUGIN cable type",
              "its error text");
  selected.engine.SetCableType(Engine::ZARVEK_PLUGIN);
  selected.engine.SetErrorStr("an older text");
  const int result = result_of(text, [&] { return selected.engine.SetPluginCableOptions(text); });
  expect(result == 0 || result == 1 || result == kThrown, "0 or 1");
  expect(selected.error() == "an older text" || (result == 1 && is_reading_error(selected.error())),
         "a known error text", selected.error());

  const CableOption& cable = *selected.imp.cable;
  std::string options = "before";
  const int status = selected.engine.GetPluginCableOptions(options);
  if (cable.type != Engine::ZARVEK_PLUGIN) {
    expect(status == 2, "2 for any other cable");
    expect_same(options, "before", "the answer untouched");
  } else if (cable.modulename.empty()) {
    expect(status == 1, "1 without a module");
    expect_same(options, "", "an empty answer");
  } else {
    expect(status == 0, "0");
    std::string same;
    expect(Engine::Get3rdPartyCableOptions(same, cable) == 0, "0 for a caller's record");
    expect_same(same, options, "the same text for a caller's record");
    expect(options.starts_with("-cable type zarvek_plugin modulename " + cable.modulename), "the module", options);
  }
}

void set_third_party_options(const std::string& text) {
  CableOption cable = older();
  const int result = result_of(text, [&] { return Engine::Set3rdPartyCableOptions(cable, text); });
  expect(result == 0 || result == 1 || result == kThrown, "0 or 1");
  Link link;
  const int same = link.parse(text);
  expect((result == 0) == (same == 0) && (result == kThrown) == (same == kThrown), "one answer of both operations");
  expect(result == 0 || is_untouched(cable), "the cable untouched on failure", text);
  if (result == 0) expect(cable.type == link.cable.type && cable.port == link.cable.port, "one cable of both");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto [way, text] = split(data, size, 3);
  constexpr void (*kWays[])(const std::string&) = {parse_and_generate, set_plugin_options, set_third_party_options};
  kWays[way](text);
  return 0;
}
