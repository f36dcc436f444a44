#pragma once

// A design with one processor of each kind, and an engine that discovered it.

#include "tests/support/FakeHardware.h"
#include "tests/support/SelectedEngine.h"

inline FakeHardware one_of_each() {
  FakeHardware hw;
  hw.processors = {"ovrin_0", "ovrin_1", "ppc405_0", "ppc440_0", "a9_0"};
  hw.debugIps = {"odm_0", "bridge_0"};
  hw.ipTypes = {{"odm_0", "odm"},         {"bridge_0", "jtag_ppc_bridge"}, {"ovrin_0", "ovrin"},
                {"ovrin_1", "ovrin"},     {"ppc405_0", "ppc405_varnel"},   {"ppc440_0", "ppc440_varnel"},
                {"a9_0", "hc9_cortexa9"}, {"uart_0", "tfb_serial_lite"},   {"fpu_0", "apu_flt_varnel5"}};
  hw.reached = {{"odm_0", {"ovrin_0"}}, {"bridge_0", {"ppc405_0", "ppc440_0"}}};
  hw.peripherals = {{"ovrin_0", {"uart_0"}}, {"ppc440_0", {"fpu_0"}}};
  hw.parameters = {{{"fpu_0", "C_DOUBLE_PRECISION"}, "1"}};
  return hw;
}

struct OneOfEach {
  FakeHardware hw = one_of_each();
};

struct DesignedEngine : OneOfEach, DiscoveredEngine {
  DesignedEngine() : DiscoveredEngine(hw) {}
};
