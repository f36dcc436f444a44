// The classes of memory controllers.

#include <gtest/gtest.h>

#include <string>

#include "SdkDebugDialog/EngineImp.h"
#include "tests/support/GlobalLocale.h"

namespace SdkDebugDialog {
namespace {

struct Row {
  const char* type;
  const char* memoryClass;
};

constexpr Row kTypes[] = {
    {"lmb_ocram_port", "BRAM"},
    {"tfb_ocram_port", "BRAM"},
    {"axi_ocram_port", "BRAM"},
    {"plb_ocram_port", "BRAM"},
    {"opb_ocram_port", "BRAM"},
    {"iside_ocram_port", "BRAM"},
    {"dside_ocram_port", "BRAM"},
    {"hc9_ocram", "BRAM"},
    {"mpdc", "EXT_DRAM"},
    {"ppc440_ctl_ddr2", "EXT_DRAM"},
    {"plb_sdr_ctl", "EXT_DRAM"},
    {"plb_ctl_ddr", "EXT_DRAM"},
    {"plb_ctl_ddr2", "EXT_DRAM"},
    {"mc_opb_sdr_ctl", "EXT_DRAM"},
    {"mc_opb_ctl_ddr", "EXT_DRAM"},
    {"mc_opb_ctl_ddr2", "EXT_DRAM"},
    {"opb_ctl_ddr", "EXT_DRAM"},
    {"opb_sdr_ctl", "EXT_DRAM"},
    {"axi_xmem_ctl", "EXT_SRAM_FLASH"},
    {"tfb_mc_xmem_ctl", "EXT_SRAM_FLASH"},
    {"mc_opb_xmem_ctl", "EXT_SRAM_FLASH"},
    {"opb_xmem_ctl", "EXT_SRAM_FLASH"},
    {"plb_xmem_ctl", "EXT_SRAM_FLASH"},
};

std::string in_capitals(std::string text) {
  for (char& c : text) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  }
  return text;
}

TEST(ClassifyMemory, KnowsEveryListedController) {
  EngineImp imp;
  for (const Row& row : kTypes) EXPECT_EQ(imp.ClassifyMemory(row.type), row.memoryClass) << row.type;
}

TEST(ClassifyMemory, IgnoresCase) {
  const GlobalLocale classic;
  EngineImp imp;
  for (const Row& row : kTypes) EXPECT_EQ(imp.ClassifyMemory(in_capitals(row.type)), row.memoryClass) << row.type;
  for (const char* const type : {"LMB_OCRAM_PORT", "Lmb_OcRam_Port", "lmb_ocram_porT"}) {
    EXPECT_EQ(imp.ClassifyMemory(type), "BRAM") << type;
  }
  EXPECT_EQ(imp.ClassifyMemory("My_DdR_Ctrl"), "EXT_DRAM");
}

TEST(ClassifyMemory, LeavesTheNameAsItWas) {
  EngineImp imp;
  const std::string type = "HC9_OCRAM";
  EXPECT_EQ(imp.ClassifyMemory(type), "BRAM");
  EXPECT_EQ(type, "HC9_OCRAM");
}

TEST(ClassifyMemory, TakesWhateverMentionsDdrAnywhereForDynamic) {
  EngineImp imp;
  for (const char* const type : {"my_ddr_ctrl", "ddr", "ddr5x", "xddr", "lmb_ocram_port_ddr", "axi_xmem_ctl_ddr"}) {
    EXPECT_EQ(imp.ClassifyMemory(type), "EXT_DRAM") << type;
  }
}

TEST(ClassifyMemory, KnowsADynamicControllerThatDoesNotMentionDdr) {
  EngineImp imp;
  EXPECT_EQ(imp.ClassifyMemory("mpdc"), "EXT_DRAM");
}

TEST(ClassifyMemory, KnowsAStaticController) {
  EngineImp imp;
  EXPECT_EQ(imp.ClassifyMemory("axi_xmem_ctl"), "EXT_SRAM_FLASH");
}

TEST(ClassifyMemory, ComparesWholeNames) {
  EngineImp imp;
  for (const Row& row : kTypes) {
    if (std::string(row.type).find("ddr") != std::string::npos) continue;
    EXPECT_EQ(imp.ClassifyMemory(std::string(row.type) + "s"), "OTHER") << row.type;
    EXPECT_EQ(imp.ClassifyMemory(std::string("x") + row.type), "OTHER") << row.type;
    EXPECT_EQ(imp.ClassifyMemory(std::string(" ") + row.type), "OTHER") << row.type;
  }
}

TEST(ClassifyMemory, AnswersOtherForTheRest) {
  EngineImp imp;
  for (const char* const type : {"", "ovrin", "ocram", "dd", "d_d_r", "opb_serial_lite", "\xC4\xD6"}) {
    EXPECT_EQ(imp.ClassifyMemory(type), "OTHER") << type;
  }
}

}  // namespace
}  // namespace SdkDebugDialog
