#pragma once

// How a run ends when it cannot do what was asked.

#include <stdexcept>
#include <string>

namespace qvtcfg {

enum ExitCode : int {
  kDone = 0,
  kRefused = 1,        // the engine or the design does not allow it
  kUsage = 2,          // the command line is wrong
  kNotUnderstood = 3,  // a connect command cannot be read
  kFile = 4,           // a file, a folder or standard output
};

// what() says what is concerned, what is wrong and what to do; it is printed as one line after "qvtcfg: ".
class Failure : public std::runtime_error {
 public:
  Failure(ExitCode code, const std::string& text) : std::runtime_error(text), m_code(code) {}

  ExitCode code() const { return m_code; }

 private:
  ExitCode m_code;
};

}  // namespace qvtcfg
