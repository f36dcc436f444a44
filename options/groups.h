#pragma once

// The readers of the option groups, on one cursor over the text. QvtOption_Parser offers each of them on a text of
// its own; results are the same.

#include <string>
#include <string_view>

#include "options/TokenCursor.h"

namespace SdkDebugDialog {

class EngineImp;

// After an option that has a group: the kind of token that ended the group.
int read_cable(TokenCursor& in, EngineImp& imp);
int read_configdevice(TokenCursor& in, EngineImp& imp);
int read_debugdevice(TokenCursor& in, EngineImp& imp);
int read_pfsl(TokenCursor& in, EngineImp& imp);

int read_modelsim(TokenCursor& in, EngineImp& imp);

// The argument of an option, which is passed as it was typed: kValue or kError; read_stub_option: or the kind of
// token found in place of the argument.
int read_bscan(TokenCursor& in, std::string_view option, EngineImp& imp);
int read_stub_option(TokenCursor& in, std::string_view option, EngineImp& imp);

// The run of general options after a connection keyword: kValue or kError.
int read_general_options(TokenCursor& in, EngineImp& imp);

// What follows a target keyword: kValue or kError.
int read_ov_target(TokenCursor& in, EngineImp& imp);
int read_odm_target(TokenCursor& in, EngineImp& imp);
int read_ppc_target(TokenCursor& in, EngineImp& imp);
int read_ppcsim(TokenCursor& in, EngineImp& imp);
int read_arm_target(TokenCursor& in, EngineImp& imp);
int read_r5_target(TokenCursor& in, EngineImp& imp);
int read_dap_target(TokenCursor& in, EngineImp& imp);
int read_dcc_target(TokenCursor& in, EngineImp& imp);
int read_qmtc_target(TokenCursor& in, EngineImp& imp);
int read_virtual_platform(TokenCursor& in, EngineImp& imp);

// Parts of a command that several writers share.
// The cable, from " -cable" on; nothing without a cable. kValue, or kError for one that cannot be written.
int write_cable_section(std::string& out, EngineImp& imp);
void write_bscan(std::string& out, const EngineImp& imp);
// How the stub is reached: " -comm jtag" or " -comm serial".
void write_comm(std::string& out, const EngineImp& imp);
// Cable, chain and debug device: kValue, or kError as above.
int write_chain_and_device(std::string& out, EngineImp& imp);

}  // namespace SdkDebugDialog
