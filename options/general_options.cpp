// The options that may follow a connection keyword, whatever the target.

#include "options/QvtOption_Parser.h"
#include "options/groups.h"
#include "options/option_loop.h"
#include "options/status.h"

namespace SdkDebugDialog {
namespace {

// Accepted, and forgotten.
int pass_over(TokenCursor& /*in*/, std::string_view /*option*/, EngineImp& /*imp*/) { return kValue; }

constexpr Option kOptions[] = {
    {.name = "-debugdevice", .group = read_debugdevice},
    {.name = "-pfsl", .group = read_pfsl},
    {.name = "-quiet", .argument = pass_over},
    {.name = "-noattach", .argument = pass_over},
    {.name = "-writeonly", .argument = pass_over},
    {.name = "-cable", .group = read_cable},
    {.name = "-comm", .argument = read_stub_option},
    {.name = "-port", .argument = read_stub_option},
    {.name = "-baud", .argument = read_stub_option},
    {.name = "-timeout", .argument = read_stub_option},
    {.name = "-configdevice", .group = read_configdevice},
    {.name = "-sim", .group = read_modelsim},
    {.name = "-bscan", .argument = read_bscan},
};

}  // namespace

int read_general_options(TokenCursor& in, EngineImp& imp) {
  const int end = read_options<kOptions>(in, imp, "UNKNOWN Option '%s'", UnknownName::lastToken);
  return end == kEnd ? kValue : kError;
}

int QvtOption_Parser::parse_options(std::string& text, EngineImp& imp) {
  return on_text<read_general_options>(text, imp);
}

}  // namespace SdkDebugDialog
