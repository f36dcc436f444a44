#include "tool.h"

namespace {

using Processors = Tool;

TEST_F(Processors, AreListedInDesignOrderDebuggableOrNot) {
  const Result result = qvtcfg({"processors"});
  EXPECT_EQ(result.code, 0);
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(result.out,
            "NAME        FAMILY  VARIANT    CPU  FPU   CONNECTIONS\n"
            "ppc405_0    ppc     ppc405     1    sp    simulator, hardware\n"
            "ppc440_0    ppc     ppc440     2    dp    simulator, hardware\n"
            "cortexa9_0  arm     cortex-a9  1    none  hardware\n"
            "cortexa9_1  arm     cortex-a9  2    none  hardware\n"
            "ovrin_0     ovrin   soft       1    none  simulator, hardware, stub, stub-uart\n"
            "ovrin_1     ovrin   soft       2    none  simulator, hardware\n"
            "ovrin_2     ovrin   soft       3    none  simulator, hardware\n"
            "ovrin_3     ovrin   soft       4    none  simulator, stub, stub-uart\n"
            "vecdsp_0    -       -          -    -     cannot be debugged\n");
}

TEST_F(Processors, AreListedAsJson) {
  const auto processors = json({"processors"})["processors"];
  ASSERT_EQ(processors.size(), 9U);
  EXPECT_EQ(processors[1], nlohmann::json::parse(R"({"processor": "ppc440_0", "debuggable": true, "family": "ppc",
      "variant": "ppc440", "cpu": 2, "fpu": "dp", "connections": ["simulator", "hardware"]})"));
  EXPECT_EQ(processors[4]["connections"], nlohmann::json::parse(R"(["simulator", "hardware", "stub", "stub-uart"])"));
  EXPECT_EQ(processors[8], nlohmann::json::parse(R"({"processor": "vecdsp_0", "debuggable": false, "family": null,
      "variant": null, "cpu": null, "fpu": null, "connections": null})"));
}

TEST_F(Processors, AreListedWithoutReadingOptionFiles) {
  write_option_file("ovrin_0", "no command at all");
  const Result result = qvtcfg({"processors"});
  EXPECT_EQ(result.code, 0);
  EXPECT_EQ(result.err, "");
}

TEST_F(Processors, OfAnotherDesignAreListedOnDemand) {
  std::filesystem::copy_file(PROJECT_SOURCE_DIR "/examples/designs/small.json", folder() / "other.json");
  EXPECT_EQ(json({"--design", "other.json", "processors"})["processors"].size(), 1U);
}

TEST_F(Processors, OfAnEmptyDesignAreNone) {
  write("design.json", R"({"instances": []})");
  EXPECT_EQ(qvtcfg({"processors"}).out, "NAME  FAMILY  VARIANT  CPU  FPU  CONNECTIONS\n");
  EXPECT_TRUE(json({"processors"})["processors"].empty());
}

}  // namespace
