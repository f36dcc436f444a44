#pragma once

// The readers of the option groups, on one cursor over the text. QvtOption_Parser offers each of them on a text of
// its own; results are the same.

#include <string_view>

#include "options/TokenCursor.h"

namespace SdkDebugDialog {

class EngineImp;
class TextOut;

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

// The writers of the option groups, on one collector; QvtOption_Parser offers each of them on a text. kValue, or kError
// where the group cannot be written.
int write_cable_section(TextOut& out, EngineImp& imp);  // from " -cable" on; nothing without a cable
int write_cable_and_chain(TextOut& out, EngineImp& imp);
int write_chain_and_device(TextOut& out, EngineImp& imp);  // the cable first
int write_debugdevice(TextOut& out, EngineImp& imp);
int write_serial_stub(TextOut& out, EngineImp& imp);
int write_ppcsim(TextOut& out, EngineImp& imp);
void write_bscan(TextOut& out, const EngineImp& imp);
void write_comm(TextOut& out, const EngineImp& imp);  // " -comm jtag" or " -comm serial"

// The writers of the targets.
int write_ov_target(TextOut& out, EngineImp& imp);
int write_ppc_target(TextOut& out, EngineImp& imp);
int write_virtual_platform(TextOut& out, EngineImp& imp);  // head included

}  // namespace SdkDebugDialog
