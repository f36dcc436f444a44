#pragma once

// Exit codes and errors.

#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "SdkDebugDialog/Configuration.h"
#include "SdkDebugDialog/Expected.h"

namespace qvtcfg {

enum ExitCode : int {
  kDone = 0,
  kRefused = 1,        // the library or the design does not allow it
  kUsage = 2,          // the command line is invalid
  kNotUnderstood = 3,  // a connect command or option text is not understood
  kFile = 4,           // error on a file, a folder or standard output
  kDiffers = 5,        // diff found a difference; something would change
};

// what() names the subject, the error and what to do. It is printed as one line after "qvtcfg: ".
class Failure : public std::runtime_error {
 public:
  Failure(ExitCode code, const std::string& text) : std::runtime_error(text), m_code(code) {}

  // Something would be lost: each loss is printed on a line of its own.
  Failure(const std::string& text, std::vector<SdkDebugDialog::Loss> losses)
      : std::runtime_error(text), m_code(kRefused), m_losses(std::move(losses)) {}

  // An error of the library, with the subject in front of its message and the advice behind it. A message that begins
  // with the name that the library has for the subject goes on without it.
  Failure(const SdkDebugDialog::Error& error, const std::string& subject, const std::string& advice = "",
          std::string_view name = {});

  ExitCode code() const { return m_code; }
  const std::string& engine_text() const { return m_engine_text; }
  const std::vector<SdkDebugDialog::Loss>& losses() const { return m_losses; }

 private:
  ExitCode m_code;
  std::string m_engine_text;
  std::vector<SdkDebugDialog::Loss> m_losses;
};

// The value, or its error as Failure.
template <class Value>
Value require(SdkDebugDialog::Expected<Value> expected, const std::string& subject, const std::string& advice = "",
              std::string_view name = {}) {
  if (!expected) throw Failure(expected.error(), subject, advice, name);
  if constexpr (!std::is_void_v<Value>) return std::move(*expected);
}

}  // namespace qvtcfg
