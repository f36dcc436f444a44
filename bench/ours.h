#pragma once

// The library's own reader and writer.

#include <string>

#include "bench/Settings.h"
#include "tests/support/SelectedEngine.h"

namespace bench {

class Ours {
 public:
  // Resets the engine and reads a command. Aborts the program when the command is not understood.
  void read(const std::string& text);
  std::string write();

  // The settings in the engine.
  Settings settings() const;

 private:
  SelectedEngine m_selected;
};

}  // namespace bench
