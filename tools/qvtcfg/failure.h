#pragma once

// Exit codes and errors.

#include <stdexcept>
#include <string>

namespace qvtcfg {

enum ExitCode : int {
  kDone = 0,
  kRefused = 1,        // the engine or the design does not allow it
  kUsage = 2,          // the command line is invalid
  kNotUnderstood = 3,  // a connect command or option text is not understood
  kFile = 4,           // error on a file, a folder or standard output
};

// what() names the subject, the error and what to do. It is printed as one line after "qvtcfg: ".
class Failure : public std::runtime_error {
 public:
  Failure(ExitCode code, const std::string& text) : std::runtime_error(text), m_code(code) {}

  ExitCode code() const { return m_code; }

 private:
  ExitCode m_code;
};

}  // namespace qvtcfg
