// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// What each word of a connect command is: for highlighting, for editing, and to show where a value comes from.

#include <cstddef>
#include <string_view>
#include <vector>

#include "SdkDebugDialog/Export.h"
#include "SdkDebugDialog/Settings.h"

namespace SdkDebugDialog {

class Processor;

/// What a text holds.
enum class TextKind {
  command,     ///< a connect command
  optionFile,  ///< the whole content of an option file
  cableText,   ///< the options of cable and chain alone, without head and target
};

/// What a word of a text is.
enum class Role {
  head,        ///< connect, vpconnect
  target,      ///< ov, ppc
  connection,  ///< odm, hw
  option,      ///< -cable
  keyword,     ///< frequency
  value,       ///< 12000000
  ignored,     ///< a word that the reader skips or does not reach
  unknown,     ///< a word that may not stand there
};

/// One word of a text.
/// Fields are added at its end, in a major version only.
struct Annotation {
  std::size_t begin = 0;      ///< in bytes
  std::size_t end = 0;        ///< behind its last byte
  Role role = Role::ignored;  ///< what the word is
  /// The reader refuses the text at this word or before it: the role is a guess.
  bool guess = false;
  /// The setting that the word sets or, for an option or a keyword, is about; null if there is none. A value
  /// "host:port" has the setting of the host.
  const Setting* setting = nullptr;
};

/// Every word of the text, in order. Any bytes are accepted. Whether the reader refuses a text can depend on the
/// processor; without one, the text is read as that of no design.
SDKDEBUGDIALOG_API std::vector<Annotation> annotate(std::string_view text, TextKind kind);
/// The same for the text of a processor.
SDKDEBUGDIALOG_API std::vector<Annotation> annotate(std::string_view text, TextKind kind, const Processor& processor);

}  // namespace SdkDebugDialog
