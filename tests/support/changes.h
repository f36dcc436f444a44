#pragma once

// The settings that differ between two engines, as one text: "cpuNr=2 cable.port=p device{devicenr=1}".

#include <cstddef>
#include <locale>
#include <sstream>
#include <string>
#include <type_traits>

#include "tests/support/SelectedEngine.h"

// The fields of a device that differ from their defaults.
inline std::string device_text(const SdkDebugDialog::JtagOption& device) {
  const SdkDebugDialog::JtagOption fresh;
  std::string text;
  const auto add = [&text](const char* field, const std::string& value) {
    text.append(text.empty() ? "" : " ").append(field).append("=").append(value);
  };
  if (device.devicenr != fresh.devicenr) add("devicenr", std::to_string(device.devicenr));
  if (device.partname != fresh.partname) add("partname", device.partname);
  if (device.irlength != fresh.irlength) add("irlength", std::to_string(device.irlength));
  if (device.idcode != fresh.idcode) add("idcode", std::to_string(device.idcode));
  if (device.isfpga != fresh.isfpga) add("isfpga", std::to_string(device.isfpga));
  if (device.hardppc != fresh.hardppc) add("hardppc", std::to_string(device.hardppc));
  if (device.nppc != fresh.nppc) add("nppc", std::to_string(device.nppc));
  return "device{" + text + "}";
}

// The settings of the first engine that differ from those of the second, without the record's command. Both engines
// must have a selected processor.
inline std::string changes(const SdkDebugDialog::EngineImp& imp, const SdkDebugDialog::EngineImp& before) {
  std::ostringstream out;
  out.imbue(std::locale::classic());
  const auto compare = [&out](const char* field, const auto& value, const auto& old) {
    if (value == old) return;
    out << (out.tellp() > 0 ? " " : "") << field << '=';
    if constexpr (std::is_enum_v<std::decay_t<decltype(value)>>) {
      out << std::underlying_type_t<std::decay_t<decltype(value)>>(value);
    } else if constexpr (std::is_arithmetic_v<std::decay_t<decltype(value)>>) {
      out << +value;
    } else {
      out << value;
    }
  };
#define COMPARE(field) compare(#field, imp.currentProcessor->field, before.currentProcessor->field)
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
#define COMPARE(field) compare("cable." #field, imp.cable->field, before.cable->field)
  COMPARE(type);
  COMPARE(frequency);
  COMPARE(port);
  COMPARE(esn);
  COMPARE(fname);
  COMPARE(modulename);
  COMPARE(modulearg);
  COMPARE(url);
#undef COMPARE
  compare("cpuJtag", imp.cpuJtag, before.cpuJtag);
  if (imp.jtagChain.size() < before.jtagChain.size()) compare("devices", imp.jtagChain.size(), before.jtagChain.size());
  for (std::size_t i = 0; i < imp.jtagChain.size(); ++i) {
    const std::string device = device_text(*imp.jtagChain[i]);
    if (i < before.jtagChain.size() && device == device_text(*before.jtagChain[i])) continue;
    out << (out.tellp() > 0 ? " " : "") << device;
  }
  return out.str();
}

// The settings that differ from those of a new engine.
inline std::string changes(const SelectedEngine& selected) {
  const SelectedEngine fresh;
  return changes(selected.imp, fresh.imp);
}
