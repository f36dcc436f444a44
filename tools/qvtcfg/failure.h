#pragma once

// Exit codes and errors.

#include <SdkDebugDialog/Configuration.h>
#include <SdkDebugDialog/Diagnosis.h>
#include <SdkDebugDialog/Expected.h>

#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace qvtcfg {

enum ExitCode : int {
  kDone = 0,
  kRefused = 1,        // the library or the design does not allow it
  kUsage = 2,          // the command line is invalid
  kNotUnderstood = 3,  // a connect command or option text is not understood
  kFile = 4,           // error on a file, a folder or standard output
  kDiffers = 5,        // diff found a difference; something would change
};

// An error, as an answer in JSON names it.
struct ErrorName {
  const char* name;
  ExitCode code;
  const char* meaning;
};

// All of them, in the order of the exit codes.
std::span<const ErrorName> error_names();

// A text that is read, for the errors in it.
struct TextRead {
  std::string name;  // where it comes from
  std::string text;
  SdkDebugDialog::TextKind kind = SdkDebugDialog::TextKind::command;
  SdkDebugDialog::Processor processor = {};
};

// A message is cut there, in bytes.
inline constexpr std::size_t kLongestMessage = 4000;

// what() names the subject, the error and what to do. It is printed as one line after "qvtcfg: ".
class Failure : public std::runtime_error {
 public:
  Failure(ExitCode code, const std::string& text);

  // Something would be lost: each loss is printed on a line of its own.
  Failure(const std::string& text, std::vector<SdkDebugDialog::Loss> losses);

  // Out of memory, or another error of the system.
  explicit Failure(const std::exception& error);

  // An error of the library, with the subject in front of its message and the advice behind it. A message that begins
  // with the name that the library has for the subject goes on without it.
  Failure(const SdkDebugDialog::Error& error, const std::string& subject, const std::string& advice = "",
          std::string_view name = {});

  // The same for a text that was read; its name is the subject. When the text is not understood, the message names the
  // place of its first error, and its errors are shown.
  Failure(const SdkDebugDialog::Error& error, const TextRead& text, const std::string& advice, std::string_view name);

  ExitCode code() const { return m_kind->code; }
  const char* name() const { return m_kind->name; }
  const std::string& engine_text() const { return m_engine_text; }
  const std::vector<SdkDebugDialog::Loss>& losses() const { return m_losses; }
  const TextRead& text() const { return m_text; }
  // The errors of the text.
  const std::vector<SdkDebugDialog::Finding>& findings() const { return m_findings; }

 private:
  Failure(const SdkDebugDialog::Error& error, const TextRead& text, std::vector<SdkDebugDialog::Finding> findings,
          const std::string& advice, std::string_view name);

  const ErrorName* m_kind;
  std::string m_engine_text;
  std::vector<SdkDebugDialog::Loss> m_losses;
  TextRead m_text;
  std::vector<SdkDebugDialog::Finding> m_findings;
};

// Standard output cannot be used.
class OutputFailure : public Failure {
 public:
  using Failure::Failure;
};

// The value, or its error as Failure. The subject is a name or the text that was read.
template <class Value, class Subject>
Value require(SdkDebugDialog::Expected<Value> expected, const Subject& subject, const std::string& advice = "",
              std::string_view name = {}) {
  if (!expected) throw Failure(expected.error(), subject, advice, name);
  if constexpr (!std::is_void_v<Value>) return std::move(*expected);
}

}  // namespace qvtcfg
