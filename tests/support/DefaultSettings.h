#pragma once

// The expected values after a reset.

#include <gtest/gtest.h>

#include "SdkDebugDialog/CableOption.h"
#include "SdkDebugDialog/EngineImp.h"
#include "SdkDebugDialog/ProcessorInfo.h"

// All fields of a record except the five that identify the processor.
inline void expect_default_settings(const SdkDebugDialog::ProcessorInfoImp& processor) {
  EXPECT_EQ(processor.connectionType, 2U);
  EXPECT_EQ(processor.memSize, 16U);
  EXPECT_EQ(processor.simConfigFile, "");
  EXPECT_EQ(processor.simHost, "");
  EXPECT_EQ(processor.simPort, 0U);
  EXPECT_EQ(processor.vpConfigured, 0U);
  EXPECT_EQ(processor.vpCycleApproximate, 0U);
  EXPECT_EQ(processor.stubType, 0U);
  EXPECT_EQ(processor.stubSerialPort, "/dev/ttyS0");
  EXPECT_EQ(processor.stubBaudRate, 0);
  EXPECT_EQ(processor.stubTimeout, 20000);
  EXPECT_EQ(processor.debugDevice, 0);
  EXPECT_EQ(processor.debugAddressMap, 0xFFFFFFFFU);
  EXPECT_EQ(processor.isocmStartAddr, 0xFFFFFFFFU);
  EXPECT_EQ(processor.isocmSize, 0U);
  EXPECT_EQ(processor.isocmDcrStartAddr, 0xFFFFFFFFU);
  EXPECT_EQ(processor.icacheStartAddr, 0xFFFFFFFFU);
  EXPECT_EQ(processor.dcacheStartAddr, 0xFFFFFFFFU);
  EXPECT_EQ(processor.itagStartAddr, 0xFFFFFFFFU);
  EXPECT_EQ(processor.dtagStartAddr, 0xFFFFFFFFU);
  EXPECT_EQ(processor.tlbStartAddr, 0xFFFFFFFFU);
  EXPECT_EQ(processor.dcrStartAddr, 0xFFFFFFFFU);
  EXPECT_EQ(processor.fpuType, 0U);
  EXPECT_EQ(processor.cpuVersion, "");
  EXPECT_EQ(processor.odmVersion, "");
  EXPECT_EQ(processor.nCpu, 8);
  EXPECT_EQ(processor.romemStartAddr, 0xFFFFFFFFU);
  EXPECT_EQ(processor.romemSize, 0U);
  EXPECT_EQ(processor.svfFileSet, 0);
  EXPECT_EQ(processor.modelSimEnabled, 0);
  EXPECT_EQ(processor.modelSimHost, "localhost");
  EXPECT_EQ(processor.modelSimPort, 9998U);
  EXPECT_EQ(processor.uartEnabled, 0);
  EXPECT_EQ(processor.bscanPort, 3U);
  EXPECT_EQ(processor.command, "");
}

inline void expect_no_cable(const SdkDebugDialog::CableOption& cable) {
  EXPECT_EQ(cable.type, 0U);
  EXPECT_EQ(cable.frequency, 0U);
  EXPECT_EQ(cable.port, "");
  EXPECT_EQ(cable.esn, "");
  EXPECT_EQ(cable.fname, "");
  EXPECT_EQ(cable.modulename, "");
  EXPECT_EQ(cable.modulearg, "");
  EXPECT_EQ(cable.url, "");
}

// The settings that do not belong to a processor.
inline void expect_no_link(const SdkDebugDialog::EngineImp& imp) {
  expect_no_cable(*imp.cable);
  EXPECT_EQ(imp.cpuJtag, 0);
  EXPECT_TRUE(imp.jtagChain.empty());
}
