#pragma once

// The readers and writers of the targets, and what they share.

#include <cstdint>

#include "options/syntax.h"

namespace SdkDebugDialog {

// --- For Target::read: what follows the target's name. False for an error. ---

// A connection keyword and its options; nothing is stored of a connection that fails. The others differ from it.
bool read_by_connection(const Target& target, TokenCursor& in, EngineImp& imp);
bool read_ov_target(const Target& target, TokenCursor& in, EngineImp& imp);
bool read_ppc_target(const Target& target, TokenCursor& in, EngineImp& imp);
bool read_dap_target(const Target& target, TokenCursor& in, EngineImp& imp);
bool read_bare_target(const Target& target, TokenCursor& in, EngineImp& imp);
bool read_virtual_platform(const Target& target, TokenCursor& in, EngineImp& imp);

// --- For Target::write: from the blank before the target's name on. False for an error. ---

bool write_target(const Target& target, TextOut& out, EngineImp& imp);
bool write_virtual_platform(const Target& target, TextOut& out, EngineImp& imp);

// The target of a name, virtual platform or not; it must be there.
const Target& target(std::string_view name, bool virtualPlatform = false);

// --- For the readers ---

// The connection that the next token names, if the selected processor may be connected this way; else null. Where no
// hardware is known, the text is believed.
const Connection* read_connection(const Target& target, TokenCursor& in, const EngineImp& imp);
bool admits(const EngineImp& imp, std::uint32_t connection);

// Where no hardware is known, the text tells what the processor is and what it admits.
void learn_processor(const Target& target, EngineImp& imp);
void learn_connection(std::uint32_t connection, EngineImp& imp);

}  // namespace SdkDebugDialog
