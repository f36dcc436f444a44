#pragma once

// Compares everything that reading a text gives: the result, what is left of the text, the error text, and the
// settings.

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <sstream>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "tests/support/SelectedEngine.h"

// The settings that are not those of a fresh engine, as "field=value"; the record's command is left out.
inline std::string changes(const SelectedEngine& selected) {
  const SelectedEngine fresh;
  std::ostringstream out;
  const auto compare = [&out](const char* field, const auto& value, const auto& before) {
    if (value == before) return;
    out << (out.tellp() > 0 ? " " : "") << field << '=';
    if constexpr (std::is_enum_v<std::decay_t<decltype(value)>>) {
      out << std::underlying_type_t<std::decay_t<decltype(value)>>(value);
    } else if constexpr (std::is_arithmetic_v<std::decay_t<decltype(value)>>) {
      out << +value;
    } else {
      out << value;
    }
  };
#define COMPARE(field) compare(#field, selected.processor.field, fresh.processor.field)
  COMPARE(name);
  COMPARE(procFamily);
  COMPARE(procVariant);
  COMPARE(allowedConnections);
  COMPARE(cpuNr);
  COMPARE(connectionType);
  COMPARE(memSize);
  COMPARE(simConfigFile);
  COMPARE(simHost);
  COMPARE(simPort);
  COMPARE(vpConfigured);
  COMPARE(vpCycleApproximate);
  COMPARE(stubType);
  COMPARE(stubSerialPort);
  COMPARE(stubBaudRate);
  COMPARE(stubTimeout);
  COMPARE(debugDevice);
  COMPARE(debugAddressMap);
  COMPARE(isocmStartAddr);
  COMPARE(isocmSize);
  COMPARE(isocmDcrStartAddr);
  COMPARE(icacheStartAddr);
  COMPARE(dcacheStartAddr);
  COMPARE(itagStartAddr);
  COMPARE(dtagStartAddr);
  COMPARE(tlbStartAddr);
  COMPARE(dcrStartAddr);
  COMPARE(fpuType);
  COMPARE(cpuVersion);
  COMPARE(odmVersion);
  COMPARE(nCpu);
  COMPARE(romemStartAddr);
  COMPARE(romemSize);
  COMPARE(svfFileSet);
  COMPARE(modelSimEnabled);
  COMPARE(modelSimHost);
  COMPARE(modelSimPort);
  COMPARE(uartEnabled);
  COMPARE(bscanPort);
#undef COMPARE
#define COMPARE(field) compare("cable." #field, selected.imp.cable->field, fresh.imp.cable->field)
  COMPARE(type);
  COMPARE(frequency);
  COMPARE(port);
  COMPARE(esn);
  COMPARE(fname);
  COMPARE(modulename);
  COMPARE(modulearg);
  COMPARE(url);
#undef COMPARE
  compare("cpuJtag", selected.imp.cpuJtag, fresh.imp.cpuJtag);
  for (const SdkDebugDialog::JtagOption* const device : selected.imp.jtagChain) {
    out << (out.tellp() > 0 ? " " : "") << "device=" << +device->devicenr << '/' << device->partname << '/'
        << +device->irlength << '/' << device->idcode;
  }
  return out.str();
}

// A text, and what an operation of the parser is to make of it.
struct Reading {
  std::string text;
  int result = 0;
  std::string changes = {};               // see above
  std::optional<std::string> error = {};  // the error text that is stored; none: the one before stays
  std::string rest = {};                  // what is left of the text
};

using Reader = int (*)(std::string& text, SdkDebugDialog::EngineImp& imp);

// Reads on an engine of its own, which prepare may change first.
inline void expect_reading(Reader read, const Reading& expected,
                           const std::function<void(SelectedEngine&)>& prepare = {}) {
  SCOPED_TRACE(testing::PrintToString(expected.text));
  SelectedEngine selected;
  if (prepare) prepare(selected);
  selected.engine.SetErrorStr("an older text");
  std::string text = expected.text;
  EXPECT_EQ(read(text, selected.imp), expected.result);
  EXPECT_EQ(changes(selected), expected.changes);
  EXPECT_EQ(selected.error(), expected.error.value_or("an older text"));
  EXPECT_EQ(text, expected.rest);
}

inline void expect_readings(Reader read, const std::vector<Reading>& expected,
                            const std::function<void(SelectedEngine&)>& prepare = {}) {
  for (const Reading& reading : expected) expect_reading(read, reading, prepare);
}
