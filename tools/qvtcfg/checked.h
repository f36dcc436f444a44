#pragma once

// What qvtcfg check has found.

#include <SdkDebugDialog/Configuration.h>
#include <SdkDebugDialog/Diagnosis.h>

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "lines.h"

namespace qvtcfg {

// A text to be checked.
struct Input {
  std::string path;   // of the file, relative to the working directory; empty for standard input
  std::string shown;  // the same for output
  SdkDebugDialog::TextKind kind = SdkDebugDialog::TextKind::optionFile;
  std::string processor;  // that the file's name tells; empty if it tells none, or if there is no design
};

// A finding, and the text in which the places of its remarks are.
struct Located {
  SdkDebugDialog::Finding finding;
  std::optional<std::size_t> remarks_in;  // the index of another text; not set: the same one
};

struct Checked {
  Input input;
  std::string text;
  bool cut = false;   // the file is larger: its first bytes were checked
  std::string error;  // why the file cannot be read, or not be written
  std::vector<Located> findings;
  // What an option file means that is understood, to be compared with others.
  std::optional<SdkDebugDialog::Configuration> configuration;
  std::vector<SdkDebugDialog::Finding> fixed;  // those whose safe fixes are applied, with places in the text before
  std::string before;                          // that text

  // Standard input and a part of a file cannot be replaced.
  bool can_be_fixed() const { return !input.path.empty() && !cut; }

  // The lines of the text; made when they are needed.
  const Lines& lines() const {
    if (!m_lines) m_lines = std::make_unique<Lines>(text);
    return *m_lines;
  }

 private:
  mutable std::unique_ptr<Lines> m_lines;
};

struct Totals {
  std::size_t files = 0;
  std::size_t errors = 0;
  std::size_t warnings = 0;
  std::size_t notes = 0;
  std::size_t files_with = 0;  // files in which something was found
  std::size_t fixable = 0;     // findings that --fix puts right
  std::size_t fixed = 0;       // findings that it has put right
  std::size_t unreadable = 0;
};

// The answer of a check.
struct CheckReport {
  std::vector<Checked> texts;         // sorted by what is shown
  std::vector<std::string> defaults;  // processors without an option file
  bool dry_run = false;

  Totals totals() const;
};

}  // namespace qvtcfg
