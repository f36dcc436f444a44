// Fuzz target: the reader and the writer of each option group alone.

#include <algorithm>
#include <initializer_list>
#include <iterator>
#include <string>

#include "fuzz/again.h"
#include "fuzz/check.h"
#include "fuzz/error_text.h"
#include "fuzz/input.h"
#include "fuzz/lone_dash.h"
#include "options/QvtOption_Parser.h"
#include "tests/support/SelectedEngine.h"

using namespace SdkDebugDialog;

namespace {

using P = QvtOption_Parser;

template <const char* const& option>
int read_stub_option(std::string& text, EngineImp& imp) {
  return P::parse_commoptions(text, option, imp);
}

constexpr const char* kComm = "-comm";
constexpr const char* kPort = "-PORT";
constexpr const char* kBaud = "-Baud";
constexpr const char* kTimeout = "-timeout";

// The possible results of a reader.
using Results = std::initializer_list<int>;
constexpr Results kGroup = {1, 2, 3};
constexpr Results kWhole = {0, 2};
constexpr Results kArgument = {0, 1, 2, 3};
constexpr Results kText = {0, 3};
constexpr Results kLast = {2, 3};

struct Reader {
  int (*read)(std::string& text, EngineImp& imp);
  const Results& results;
};

constexpr Reader kReaders[] = {
    {P::parse_cable, kGroup},
    {P::parse_configdevice, kGroup},
    {P::parse_debugdevice, kGroup},
    {P::parse_ovfsloptions, kGroup},
    {P::parse_modelsim_options, kLast},
    {P::parse_odmbscan, kWhole},
    {read_stub_option<kComm>, kArgument},
    {read_stub_option<kPort>, kArgument},
    {read_stub_option<kBaud>, kArgument},
    {read_stub_option<kTimeout>, kArgument},
    {P::parse_options, kWhole},
    {P::parse_ovoptions, kWhole},
    {P::parse_odmoptions, kWhole},
    {P::parse_ppcoptions, kWhole},
    {P::parse_armoptions, kWhole},
    {P::parse_armr5options, kWhole},
    {P::parse_dapoptions, kWhole},
    {P::parse_dccoptions, kWhole},
    {P::parse_qmtcoptions, kWhole},
    {P::parse_vpoptions, kWhole},
    {P::parse_ppcsim_options, kWhole},
    {P::ReadJtagCableOptions, kText},
};

int write_cable_and_chain(std::string& out, EngineImp& imp) { return P::WriteJtagCableOptionsString(imp, out); }

constexpr struct {
  int (*write)(std::string& out, EngineImp& imp);
  bool replaces = false;
} kWriters[] = {
    {P::write_ovoptions},      {P::write_ppcoptions},   {P::write_vpoptions, true},
    {P::write_ppcsim_options}, {P::write_jtagoptions},  {P::write_commoptions},
    {P::write_ovfsloptions},   {write_cable_and_chain}, {P::write_debugdeviceoptions},
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto [way, text] = split(data, size, 2 * std::size(kReaders));
  const Reader& reader = kReaders[way % std::size(kReaders)];
  const bool isWholeText =
      reader.read == P::ReadJtagCableOptions;  // there 3 is an error, elsewhere the end of the text
  SelectedEngine selected;
  if (way >= std::size(kReaders)) selected.imp.hwManager = &known_design();
  selected.engine.SetErrorStr("an older text");
  newoption_token = "-older";

  std::string rest = text;
  const int result = result_of(text, [&] { return reader.read(rest, selected.imp); });
  expect(result == kThrown || std::ranges::find(reader.results, result) != reader.results.end(),
         "a result of this reader", text);
  expect(text.ends_with(rest), "what is left to be the end of the text", rest);
  if (result == 3 && !isWholeText) expect_same(rest, "", "nothing to be left at the end");
  if (result == 1) {
    expect(newoption_token.size() > 1 && newoption_token[0] == '-', "an option to wait", newoption_token);
    const std::string_view taken(text.data(), text.size() - rest.size());
    expect(taken.ends_with(newoption_token), "the option to be the last thing read", newoption_token);
  }
  const bool failed = result == 2 || (result == 3 && isWholeText);
  expect(selected.error() == "an older text" || (failed && is_reading_error(selected.error())), "a known error text",
         selected.error());

  // All writers must work with any settings that were read.
  selected.engine.SetErrorStr("an older text");
  for (const auto& [write, replaces] : kWriters) {
    std::string out = "before";
    const int written = write(out, selected.imp);
    expect(written >= 0 && written <= 2, "a result of a writer");
    expect(replaces || out.starts_with("before"), "a writer to append", out);
    expect(selected.error() == "an older text" || is_writing_error(selected.error()), "a known error text",
           selected.error());
  }
  return 0;
}
