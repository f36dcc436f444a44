#include "tool.h"

namespace {

using Cables = Tool;

TEST_F(Cables, AreListedWithTheirDefaultsAndFrequencies) {
  const Result result = qvtcfg({"cables"});
  EXPECT_EQ(result.code, 0);
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(result.out,
            "TYPE  NAME                WRITTEN  FREQUENCY  PORT   SUPPORTED FREQUENCIES (Hz)\n"
            "0     none                yes      -          -      -\n"
            "1     zarvek_svffile      no       -          -      -\n"
            "2     zarvek_parallel4    yes      5000000    LPT1   200000 625000 2500000 5000000\n"
            "3     zarvek_platformusb  yes      6000000    USB21  750000 1500000 3000000 6000000 12000000 24000000\n"
            "4     zarvek_parallel3    yes      200000     LPT1   200000\n"
            "5     zarvek_plugin       yes      -          -      -\n"
            "6     digilent_plugin     yes      -          -      -\n"
            "7     zarvek_tcf          no       -          -      -\n");
}

TEST_F(Cables, AreListedAsJson) {
  const auto cables = json({"cables"})["cables"];
  ASSERT_EQ(cables.size(), 8U);
  EXPECT_EQ(cables[4],
            nlohmann::json::parse(R"({"cable": "zarvek_parallel3", "type": 4, "written": true, "frequency": 200000,
                                                 "port": "LPT1", "frequencies": [200000], "unit": "Hz"})"));
  EXPECT_EQ(cables[7], nlohmann::json::parse(R"({"cable": "zarvek_tcf", "type": 7, "written": false, "frequency": null,
                                                 "port": null, "frequencies": [], "unit": "Hz"})"));
}

TEST_F(Cables, NeedNoDesign) {
  std::filesystem::remove(folder() / "design.json");
  EXPECT_EQ(qvtcfg({"cables"}).code, 0);
}

}  // namespace
