// Which targets there are, and what their readers and writers share.

#include "options/target.h"

#include <algorithm>

#include "model/processor_kind.h"
#include "options/groups.h"

namespace SdkDebugDialog {
namespace {

// --- The tables ---

bool write_nothing(TextOut& /*out*/, EngineImp& /*imp*/) { return true; }

// An ARM processor is written like a PowerPC.
bool write_as_powerpc(const Target& /*target*/, TextOut& out, EngineImp& imp) {
  const Target& powerpc = target("ppc");
  return powerpc.write(powerpc, out, imp);
}

constexpr Connection kSoft[] = {
    {" sim", Engine::SIMULATOR, kSoftSimOptions, write_nothing, "simulator"},
    {" stub", Engine::STUB, kGeneralOptions, write_stub, "software stub"},
    {" odm", Engine::HARDWARE, kGeneralOptions, write_chain_and_device, "hardware"},
};
constexpr Connection kPowerPC[] = {
    {" sim", Engine::SIMULATOR, kPpcSimOptions, write_ppcsim, "simulator"},
    {" hw", Engine::HARDWARE, kGeneralOptions, write_chain_and_device, "hardware"},
};
constexpr Connection kArm[] = {
    {" hw", Engine::HARDWARE, kGeneralOptions, nullptr, "hardware"},
};

constexpr Target kTargets[] = {
    {.name = " ov",
     .meaning = "soft processor",
     .connections = kSoft,
     .family = kFamilySoft,
     .variant = kVariantSoft,
     .read = read_ov_target,
     .write = write_target,
     .invalidConnection = "Invalid Connect Type for Ovrin Target"},
    {.name = " ppc",
     .meaning = "PowerPC",
     .connections = kPowerPC,
     .family = kFamilyPowerPC,
     .variant = kVariantOtherPowerPC,
     .read = read_ppc_target,
     .write = write_target,
     .invalidConnection = "Invalid Connect Type for PowerPC Target"},
    {.name = " arm",
     .meaning = "Cortex-A9",
     .connections = kArm,
     .family = kFamilyArm,
     .variant = kVariantCortexA9,
     .read = read_by_connection,
     .write = write_as_powerpc},
    {.name = " r5",
     .meaning = "R5",
     .connections = kArm,
     .family = kFamilyArm,
     .variant = kVariantR5,
     .read = read_by_connection},
    {.name = " dap",
     .meaning = "ARM debug access port",
     .inFile = false,
     .connections = kArm,
     .admits = Engine::DAP_TARGET,
     .family = kFamilyArm,
     .variant = kVariantCortexA9,
     .read = read_dap_target},
    {.name = " odm",
     .meaning = "the debug module itself",
     .inFile = false,
     .options = &kOdmOptions,
     .admits = Engine::ODM_TARGET,
     .read = read_bare_target},
    {.name = " dcc",
     .meaning = "ARM debug communications channel",
     .inFile = false,
     .options = &kDccOptions,
     .admits = Engine::DCC_TARGET,
     .family = kFamilyArm,
     .variant = kVariantCortexA9,
     .read = read_bare_target},
    {.name = " qmtc",
     .meaning = "multi-threaded C target",
     .inFile = false,
     .options = &kQmtcOptions,
     .admits = Engine::QMTC_TARGET,
     .read = read_bare_target},
    {.name = " ov",
     .meaning = "virtual platform",
     .virtualPlatform = true,
     .options = &kPlatformOptions,
     .family = kFamilySoft,
     .variant = kVariantSoft,
     .read = read_virtual_platform,
     .write = write_virtual_platform},
};

}  // namespace

std::span<const Target> targets() { return kTargets; }

const Target& target(std::string_view name, bool virtualPlatform) {
  return *std::ranges::find_if(
      kTargets, [&](const Target& t) { return t.virtualPlatform == virtualPlatform && t.name.text() == name; });
}

// --- For the readers ---

bool admits(const EngineImp& imp, std::uint32_t connection) {
  return imp.hwManager == nullptr || (imp.currentProcessor->allowedConnections & connection) != 0;
}

const Connection* read_connection(const Target& target, TokenCursor& in, const EngineImp& imp) {
  std::string_view word;
  if (in.next(word) == Token::end) return nullptr;
  const Connection* const connection = find_name(target.connections, word, in.letter_case());
  return connection != nullptr && admits(imp, connection->type) ? connection : nullptr;
}

void learn_processor(const Target& target, EngineImp& imp) {
  if (imp.hwManager != nullptr) return;
  imp.currentProcessor->procFamily = target.family;
  imp.currentProcessor->procVariant = target.variant;
}

void learn_connection(std::uint32_t connection, EngineImp& imp) {
  if (imp.hwManager == nullptr) imp.currentProcessor->allowedConnections |= connection;
}

bool read_by_connection(const Target& target, TokenCursor& in, EngineImp& imp) {
  const Connection* const connection = read_connection(target, in, imp);
  if (connection == nullptr || !read_options(in, imp, connection->options)) return false;
  imp.currentProcessor->connectionType = connection->type;
  learn_processor(target, imp);
  learn_connection(connection->type, imp);
  return true;
}

// --- Writing ---

bool write_target(const Target& target, TextOut& out, EngineImp& imp) {
  out.put_name(target.name);
  const auto connection = std::ranges::find(target.connections, imp.currentProcessor->connectionType,
                                            [](const Connection& c) -> std::uint32_t { return c.type; });
  if (connection == target.connections.end()) {
    imp.engine->SetErrorStr(target.invalidConnection);
    return false;
  }
  out.put_name(connection->name);
  return connection->write(out, imp);
}

}  // namespace SdkDebugDialog
