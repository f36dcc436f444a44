#pragma once

// Writing an option file, as the tests of files do it.

#include "tests/support/SelectedEngine.h"

inline constexpr char kOldText[] = "an older and rather long content of the option file\n";
inline constexpr char kNewText[] = "connect ov odm -debugdevice deviceNr 2 cpunr 1";

// An engine whose processor "p" is written as kNewText.
struct Writer : SelectedEngine {
  Writer() {
    processor.name = 'p';
    processor.debugDevice = 2;
  }
};

// An engine whose processor "p" is written as the text for this port.
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
