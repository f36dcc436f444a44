#pragma once

// The settings of an engine that are not those of a fresh one, as one text.

#include <locale>
#include <sstream>
#include <string>
#include <type_traits>

#include "tests/support/SelectedEngine.h"

// As "field=value"; the record's command is left out. A processor must be selected.
inline std::string changes(const SdkDebugDialog::EngineImp& imp) {
  const SelectedEngine fresh;
  std::ostringstream out;
  out.imbue(std::locale::classic());
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
#define COMPARE(field) compare(#field, imp.currentProcessor->field, fresh.processor.field)
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
#define COMPARE(field) compare("cable." #field, imp.cable->field, fresh.imp.cable->field)
  COMPARE(type);
  COMPARE(frequency);
  COMPARE(port);
  COMPARE(esn);
  COMPARE(fname);
  COMPARE(modulename);
  COMPARE(modulearg);
  COMPARE(url);
#undef COMPARE
  compare("cpuJtag", imp.cpuJtag, fresh.imp.cpuJtag);
  for (const SdkDebugDialog::JtagOption* const device : imp.jtagChain) {
    out << (out.tellp() > 0 ? " " : "") << "device=" << +device->devicenr << '/' << device->partname << '/'
        << +device->irlength << '/' << device->idcode;
  }
  return out.str();
}

inline std::string changes(const SelectedEngine& selected) { return changes(selected.imp); }
