#pragma once

// Engines and texts for tests that write option files.

#include "tests/support/SelectedEngine.h"

inline constexpr char kOldText[] = "an older and rather long content of the option file\n";
inline constexpr char kNewText[] = "connect ov odm -debugdevice deviceNr 2 cpunr 1";

// An engine with processor "p", whose command is kNewText.
struct Writer : SelectedEngine {
  Writer() {
    processor.name = 'p';
    processor.debugDevice = 2;
  }
};

// An engine with processor "p", whose command contains this stub port.
struct StubWriter : SelectedEngine {
  explicit StubWriter(const std::string& port) {
    processor.name = 'p';
    processor.connectionType = 4;
    processor.stubType = 1;
    processor.stubSerialPort = port;
  }
  static std::string text(const std::string& port) {
    return "connect ov stub -comm serial -port " + port + "  -baud  0 -timeout 20000";
  }
};
