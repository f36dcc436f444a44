#pragma once

// Reads and writes the connect command, option group by option group.

#include <string>

#include "SdkDebugDialog/Engine.h"

namespace SdkDebugDialog {

class EngineImp;

// The last option that a reader of this thread read. It is the next option right after a result of 1, and an older one
// otherwise.
extern thread_local std::string newoption_token;

// Every operation works on the selected processor, the cable and the chain of the engine it is given; a processor must
// be selected. Readers remove what they read from the front of the text and leave the rest; the first error ends them,
// and what was stored before it stays. Writers append. A lone "-" in a text throws std::out_of_range.
//
// Results of readers, where nothing else is said: 0 a value was read, or all that there was; 1 the next option begins;
// 2 an error; 3 the end of the text. Whole texts have the results of SdkDebugDialog/Result.h.
class QvtOption_Parser {
 public:
  // --- Tokens ---
  static int get_token(std::string& input, std::string& token);
  static int get_tokenpair(std::string& input, std::string& key, std::string& value);

  // --- Whole texts ---
  // 0 read, kNotUnderstood, kNoOptionFile (the file only).
  static int ReadQvtOptFile(std::string processorName, EngineImp& imp);
  static int ReadQvtCommand(std::string command, EngineImp& imp);
  // 0 written, kCannotBeWritten, kFileNotWritten (the file only).
  static int WriteQvtOptFile(EngineImp& imp);
  static int WriteQvtCmdString(EngineImp& imp, std::string& command);
  // Cable and chain alone: 0 or kNotUnderstood; 0 or kCannotBeWritten.
  static int ReadJtagCableOptions(std::string& text, EngineImp& imp);
  static int WriteJtagCableOptionsString(EngineImp& imp, std::string& out);

  // --- What follows a target keyword: 0 or 2 ---
  static int parse_ovoptions(std::string& text, EngineImp& imp);
  static int parse_odmoptions(std::string& text, EngineImp& imp);
  static int parse_ppcoptions(std::string& text, EngineImp& imp);
  static int parse_armoptions(std::string& text, EngineImp& imp);
  static int parse_armr5options(std::string& text, EngineImp& imp);
  static int parse_dapoptions(std::string& text, EngineImp& imp);
  static int parse_dccoptions(std::string& text, EngineImp& imp);
  static int parse_qmtcoptions(std::string& text, EngineImp& imp);
  static int parse_vpoptions(std::string& text, EngineImp& imp);
  static int parse_ppcsim_options(std::string& text, EngineImp& imp);

  // Appends a target and its options: 0 or 2. write_vpoptions replaces the text.
  static int write_ovoptions(std::string& out, EngineImp& imp);
  static int write_ppcoptions(std::string& out, EngineImp& imp);
  static int write_vpoptions(std::string& out, EngineImp& imp);
  static int write_ppcsim_options(std::string& out, EngineImp& imp);

  // --- Option groups ---
  // The run of options after a connection keyword: 0 or 2.
  static int parse_options(std::string& text, EngineImp& imp);
  // What follows an option that has a group of its own: what ended the group.
  static int parse_cable(std::string& text, EngineImp& imp);
  static int parse_configdevice(std::string& text, EngineImp& imp);
  static int parse_debugdevice(std::string& text, EngineImp& imp);
  static int parse_ovfsloptions(std::string& text, EngineImp& imp);
  static int parse_modelsim_options(std::string& text, EngineImp& imp);
  // What follows an option that has one value: 0 or 2; parse_commoptions: or the kind of token found in place
  // of the value.
  static int parse_odmbscan(std::string& text, EngineImp& imp);
  static int parse_commoptions(std::string& text, std::string option, EngineImp& imp);

  // 0, or 2 where the cable cannot be written.
  static int write_jtagoptions(std::string& out, EngineImp& imp);
  // Always 0.
  static int write_debugdeviceoptions(std::string& out, EngineImp& imp);
  static int write_commoptions(std::string& out, EngineImp& imp);
  static int write_ovfsloptions(std::string& out, EngineImp& imp);
  static int write_zarvek_cableoptions(std::string& out, const CableOption& cable);
  static int write_digilent_cableoptions(std::string& out, const CableOption& cable);
  static int write_plugin_cableoptions(std::string& out, const CableOption& cable);

  // Gives the cable its type's default frequency, or checks the one it has: 0 or 2.
  static int setcable_frequency(EngineImp& imp, int useDefault);
};

}  // namespace SdkDebugDialog
