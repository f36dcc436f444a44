#pragma once

// The library at the same work.

#include <string>

#include "bench/Settings.h"
#include "tests/support/SelectedEngine.h"

namespace bench {

class Ours {
 public:
  // Reads a command into the engine, which is reset before. Ends the program when it is not understood.
  void read(const std::string& text);
  std::string write();

  // What the engine holds.
  Settings settings() const;

 private:
  SelectedEngine m_selected;
};

}  // namespace bench
