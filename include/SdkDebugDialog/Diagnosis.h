// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// What is wrong with a connect command, an option file or a cable text: where, and what to do.
///
///     for (const Finding& finding : diagnose(content, TextKind::optionFile, processor)) {
///       underline(finding.begin, finding.end, finding.message);
///     }
///     content = with_fixes(content, findings);  // the safe fixes
///
/// Nothing here changes a configuration or asks a hardware description.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "SdkDebugDialog/Annotation.h"
#include "SdkDebugDialog/Configuration.h"
#include "SdkDebugDialog/Export.h"

namespace SdkDebugDialog {

/// How bad a finding is.
enum class Severity {
  error,    ///< the reader refuses the text
  warning,  ///< it is accepted, and probably means something else than was intended
  note,     ///< worth knowing
};

/// A kind of finding. Kinds exist once, as long as the library is loaded; compare their addresses.
/// Fields are added at its end, in a major version only.
struct FindingKind {
  std::string_view code;                     ///< such as "unknown-option": stable, for scripts
  Severity severity = Severity::error;       ///< as a rule; see Finding::severity
  std::string_view title;                    ///< what is wrong, in a few words
  std::string_view meaning;                  ///< what it means, in a few sentences
  std::string_view example;                  ///< a text that has such a finding
  TextKind exampleKind = TextKind::command;  ///< what kind of text the example is
  std::string_view advice;                   ///< what to do about it, in a few sentences
};

/// All kinds, in the order of the documents.
SDKDEBUGDIALOG_API const std::vector<FindingKind>& finding_kinds();
/// The kind of a code; null when there is none.
SDKDEBUGDIALOG_API const FindingKind* find_finding_kind(std::string_view code);

/// A part of the text, in bytes, and what is to stand there instead.
/// Fields are added at its end, in a major version only.
struct Replacement {
  std::size_t begin = 0;  ///< the first byte that is replaced
  std::size_t end = 0;    ///< behind the last one; begin: something is inserted
  std::string text;       ///< what is to stand there
};

/// A change of the text that removes a finding.
/// Fields are added at its end, in a major version only.
struct Fix {
  std::string title;  ///< such as "write '-cable'"
  /// Safe: it keeps the meaning, or makes it certain. Otherwise it is a guess.
  bool safe = false;
  std::vector<Replacement> replacements;  ///< in the order of the text; they do not overlap
};

/// Another place of the same text, or another text, that explains a finding.
/// Fields are added at its end, in a major version only.
struct Remark {
  std::size_t begin = 0;  ///< in bytes; begin and end are 0 for no place
  std::size_t end = 0;    ///< behind its last byte
  std::string message;    ///< what is there
};

/// Something that is wrong with a text.
/// Fields are added at its end, in a major version only.
struct Finding {
  const FindingKind* kind = nullptr;  ///< never null
  /// Some kinds are errors only where the reader refuses the text.
  Severity severity = Severity::error;
  std::size_t begin = 0;        ///< in bytes; the place can be empty
  std::size_t end = 0;          ///< behind its last byte
  std::string message;          ///< what was found, one line: "no option '-cabel'"
  std::string remedy;           ///< what to do, or what is accepted there; can be empty: "did you mean '-cable'?"
  std::vector<Remark> remarks;  ///< other places that explain it
  std::vector<Fix> fixes;       ///< the best one first; at most one of them is to be applied
};

/// All findings, in the order of their places. There is an error exactly if the reader of this kind of text refuses it,
/// and the first error is where it does. With a processor of a design, the text is read as its own. Time and memory are
/// linear in the text; of one kind, 1,000 findings are listed.
SDKDEBUGDIALOG_API std::vector<Finding> diagnose(std::string_view text, TextKind kind, const Processor& processor = {});

/// Which fixes are applied.
enum class FixChoice {
  safe,     ///< safe fixes alone
  allFirst  ///< of each finding its first fix, safe or not, unless it overlaps with one before it
};

/// The text with fixes applied, which are those of findings of this text. A text in which every error has a safe fix is
/// then read, and what was read before is read still.
SDKDEBUGDIALOG_API std::string with_fixes(std::string_view text, const std::vector<Finding>& findings,
                                          FixChoice choice = FixChoice::safe);

/// A finding about two configurations that are kept side by side, such as the option files of one folder.
/// Fields are added at its end, in a major version only.
struct SharedFinding {
  std::size_t configuration = 0;  ///< the index of the one that it is about
  std::size_t other = 0;          ///< and of the one that it disagrees with
  Finding finding;                ///< its place is in the text of the first, its remark in that of the other
};

/// One of several configurations that are used side by side.
/// Fields are added at its end, in a major version only.
struct SideBySide {
  std::string_view name;                         ///< for messages
  const Configuration* configuration = nullptr;  ///< never null
  std::string_view text;                         ///< what the configuration was read from
  TextKind kind = TextKind::optionFile;          ///< what kind of text that is
};

/// What disagrees: processors that share a cable with other chains or frequencies, and two processors with the same
/// number on the same debug device. In the order of the configurations.
SDKDEBUGDIALOG_API std::vector<SharedFinding> diagnose_together(const std::vector<SideBySide>& configurations);

/// The finding for an option file, or another text, of a processor that the design does not have or that cannot be
/// debugged; the message is that of Design::find.
SDKDEBUGDIALOG_API Finding no_such_processor(const Error& error);

}  // namespace SdkDebugDialog
