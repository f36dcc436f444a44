#pragma once

// What readers store and writers look at: all fields, by name.

#include <cstddef>
#include <cstdint>
#include <string>
#include <type_traits>

#include "SdkDebugDialog/CableOption.h"
#include "SdkDebugDialog/EngineImp.h"
#include "SdkDebugDialog/JtagOption.h"
#include "SdkDebugDialog/ProcessorInfo.h"
#include "random.h"
#include "texts.h"

template <class Visit>
void each_field(SdkDebugDialog::ProcessorInfoImp& p, Visit visit) {
  visit("name", p.name);
  visit("procFamily", p.procFamily);
  visit("procVariant", p.procVariant);
  visit("allowedConnections", p.allowedConnections);
  visit("cpuNr", p.cpuNr);
  visit("connectionType", p.connectionType);
  visit("memSize", p.memSize);
  visit("simConfigFile", p.simConfigFile);
  visit("simHost", p.simHost);
  visit("simPort", p.simPort);
  visit("vpConfigured", p.vpConfigured);
  visit("vpCycleApproximate", p.vpCycleApproximate);
  visit("stubType", p.stubType);
  visit("stubSerialPort", p.stubSerialPort);
  visit("stubBaudRate", p.stubBaudRate);
  visit("stubTimeout", p.stubTimeout);
  visit("debugDevice", p.debugDevice);
  visit("debugAddressMap", p.debugAddressMap);
  visit("isocmStartAddr", p.isocmStartAddr);
  visit("isocmSize", p.isocmSize);
  visit("isocmDcrStartAddr", p.isocmDcrStartAddr);
  visit("icacheStartAddr", p.icacheStartAddr);
  visit("dcacheStartAddr", p.dcacheStartAddr);
  visit("itagStartAddr", p.itagStartAddr);
  visit("dtagStartAddr", p.dtagStartAddr);
  visit("tlbStartAddr", p.tlbStartAddr);
  visit("dcrStartAddr", p.dcrStartAddr);
  visit("fpuType", p.fpuType);
  visit("cpuVersion", p.cpuVersion);
  visit("odmVersion", p.odmVersion);
  visit("nCpu", p.nCpu);
  visit("romemStartAddr", p.romemStartAddr);
  visit("romemSize", p.romemSize);
  visit("svfFileSet", p.svfFileSet);
  visit("modelSimEnabled", p.modelSimEnabled);
  visit("modelSimHost", p.modelSimHost);
  visit("modelSimPort", p.modelSimPort);
  visit("uartEnabled", p.uartEnabled);
  visit("bscanPort", p.bscanPort);
  visit("command", p.command);
}

template <class Visit>
void each_field(SdkDebugDialog::CableOption& c, Visit visit) {
  visit("cable type", c.type);
  visit("cable frequency", c.frequency);
  visit("cable port", c.port);
  visit("cable esn", c.esn);
  visit("cable fname", c.fname);
  visit("cable modulename", c.modulename);
  visit("cable modulearg", c.modulearg);
  visit("cable url", c.url);
}

template <class Visit>
void each_field(SdkDebugDialog::JtagOption& d, Visit visit) {
  visit("  partname", d.partname);
  visit("  idcode", d.idcode);
  visit("  irlength", d.irlength);
  visit("  devicenr", d.devicenr);
  visit("  isfpga", d.isfpga);
  visit("  hardppc", d.hardppc);
  visit("  nppc", d.nppc);
}

// A number that is likely to mean something.
inline std::uint64_t random_number(Random& random) {
  static constexpr std::uint32_t kBits[] = {1, 2, 4, 8, 16, 32, 64, 128, 132, 256, 512, 34, 35, 200, 200000, 6000000};
  switch (random.below(8)) {
    case 0:
      return random.bits();
    case 1:
      return 0xFFFFFFFFU;
    case 2:
      return random.below(0x10000) << 16U;
    case 3:
      return random.pick(kBits);
    default:
      return random.below(8);
  }
}

// Gives so many out of a hundred fields another value.
template <class Record>
void change_fields(Random& random, Record& record, unsigned percent) {
  each_field(record, [&](const char*, auto& field) {
    if (!random.chance(percent)) return;
    using Field = std::remove_reference_t<decltype(field)>;
    if constexpr (std::is_same_v<Field, std::string>) {
      field = random_field(random);
    } else {
      field = static_cast<Field>(random_number(random));
    }
  });
}

// States that readers leave and states that none leaves.
inline void change_state(Random& random, SdkDebugDialog::EngineImp& imp) {
  const unsigned percent = random.chance(50) ? 15 : 60;
  change_fields(random, *imp.currentProcessor, percent);
  // Above 127 it is written as a negative number.
  if (random.chance(10)) imp.currentProcessor->cpuNr = 200;
  change_fields(random, *imp.cable, percent);
  if (random.chance(30)) imp.cpuJtag = static_cast<std::int32_t>(random_number(random));
  for (std::size_t i = random.chance(50) ? random.below(4) : 0; i > 0; --i) {
    imp.jtagChain.push_back(new SdkDebugDialog::JtagOption);
    change_fields(random, *imp.jtagChain.back(), 60);
  }
}
