#pragma once

// What must hold for every edit of every text, for the random tests and the fuzzer.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "SdkDebugDialog/Configuration.h"
#include "by_hand.h"

struct EditCase {
  std::string processor;  // one of kProcessors
  SdkDebugDialog::TextKind kind = SdkDebugDialog::TextKind::command;
  std::string text;
  std::vector<SdkDebugDialog::Change> changes;
};

// The processors of the design of tests/compare, discovered once.
class EditBench {
 public:
  // The one without a design for an empty name.
  SdkDebugDialog::Processor processor(std::string_view name) const;

  // What is wrong with the edit; empty when nothing is.
  std::string fault(const EditCase& c);

  // What the edits so far were.
  struct Figures {
    std::size_t inPlace = 0;
    std::size_t unchanged = 0;
    std::size_t anew = 0;
    std::size_t losing = 0;
    std::size_t notReadBack = 0;
    std::size_t refused = 0;
    std::size_t notUnderstood = 0;
  };
  const Figures& figures() const { return m_figures; }

  Hardware& hardware() { return m_hardware; }

 private:
  Hardware m_hardware;
  SdkDebugDialog::Design m_design{m_hardware};
  Figures m_figures;
};

// Changes as a text, a blank between them: "frequency=12M", or "-frequency" for back to the default.
std::vector<SdkDebugDialog::Change> changes_of(std::string_view text);

// The case as C++ would have it, for a message.
std::string shown(const EditCase& c);

// A smaller case with a fault.
EditCase minimised(EditBench& bench, EditCase c);
