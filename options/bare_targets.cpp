// Targets that are no connection of a processor and take their options at once: the debug module ("odm"), the debug
// communications channel ("dcc") and the multi-threaded C target ("qmtc"). They are read and never written.

#include "SdkDebugDialog/Engine.h"
#include "SdkDebugDialog/EngineImp.h"
#include "model/processor_kind.h"
#include "options/QvtOption_Parser.h"
#include "options/groups.h"
#include "options/option_loop.h"
#include "options/status.h"

namespace SdkDebugDialog {
namespace {

int read_uart(TokenCursor& /*in*/, std::string_view /*option*/, EngineImp& imp) {
  imp.currentProcessor->uartEnabled = 1;
  return kValue;
}

constexpr Option kOdmOptions[] = {
    {.name = "-uart", .argument = read_uart},
    {.name = "-bscan", .argument = read_bscan},
    {.name = "-debugdevice", .group = read_debugdevice},
    {.name = "-cable", .group = read_cable},
    {.name = "-configdevice", .group = read_configdevice},
};

constexpr Option kDccOptions[] = {
    {.name = "-uart", .argument = read_uart},
    {.name = "-debugdevice", .group = read_debugdevice},
    {.name = "-cable", .group = read_cable},
};

constexpr Option kQmtcOptions[] = {
    {.name = "-debugdevice", .group = read_debugdevice},
    {.name = "-cable", .group = read_cable},
    {.name = "-configdevice", .group = read_configdevice},
};

// The processor is marked with the target before anything is read.
template <const auto& options>
int read_bare_target(TokenCursor& in, EngineImp& imp, std::uint32_t target) {
  imp.currentProcessor->allowedConnections = target;
  return read_options<options>(in, imp, "UNKNOWN Option '%s'", UnknownName::option) == kEnd ? kValue : kError;
}

}  // namespace

int read_odm_target(TokenCursor& in, EngineImp& imp) {
  return read_bare_target<kOdmOptions>(in, imp, Engine::ODM_TARGET);
}

int read_dcc_target(TokenCursor& in, EngineImp& imp) {
  imp.currentProcessor->procFamily = kFamilyArm;
  imp.currentProcessor->procVariant = kVariantCortexA9;
  return read_bare_target<kDccOptions>(in, imp, Engine::DCC_TARGET);
}

int read_qmtc_target(TokenCursor& in, EngineImp& imp) {
  return read_bare_target<kQmtcOptions>(in, imp, Engine::QMTC_TARGET);
}

int QvtOption_Parser::parse_odmoptions(std::string& text, EngineImp& imp) {
  return on_text<read_odm_target>(text, imp);
}

int QvtOption_Parser::parse_dccoptions(std::string& text, EngineImp& imp) {
  return on_text<read_dcc_target>(text, imp);
}

int QvtOption_Parser::parse_qmtcoptions(std::string& text, EngineImp& imp) {
  return on_text<read_qmtc_target>(text, imp);
}

}  // namespace SdkDebugDialog
