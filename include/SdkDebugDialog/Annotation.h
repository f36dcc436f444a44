#pragma once

// What each word of a connect command is: for highlighting, for editing, for "where does this value come from".

#include <cstddef>
#include <string_view>
#include <vector>

#include "SdkDebugDialog/Export.h"
#include "SdkDebugDialog/Settings.h"

namespace SdkDebugDialog {

class Processor;

enum class TextKind {
  command,     // a connect command
  optionFile,  // the whole content of an option file
  cableText,   // the options of cable and chain alone, without head and target
};

enum class Role {
  head,        // connect, vpconnect
  target,      // ov, ppc
  connection,  // odm, hw
  option,      // -cable
  keyword,     // frequency
  value,       // 12000000
  ignored,     // a word that the reader never looks at, or passes over
  unknown,     // no word that may stand there
};

struct Annotation {
  std::size_t begin = 0;  // in bytes
  std::size_t end = 0;
  Role role = Role::ignored;
  // The reader refuses the text at this word or before it: the role is a guess.
  bool guess = false;
  // The setting that the word sets or, for an option or a keyword, is about; null when there is none. A value
  // "host:port" has that of the host.
  const Setting* setting = nullptr;
};

// Every word of the text in its order, whatever the bytes. The processor tells what its reader refuses; without one
// the text is read for no design.
SDKDEBUGDIALOG_API std::vector<Annotation> annotate(std::string_view text, TextKind kind);
SDKDEBUGDIALOG_API std::vector<Annotation> annotate(std::string_view text, TextKind kind, const Processor& processor);

}  // namespace SdkDebugDialog
