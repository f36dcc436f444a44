// What disagrees between configurations that are used side by side.

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "SdkDebugDialog/Diagnosis.h"

namespace {

using namespace SdkDebugDialog;

// Configurations named "a", "b" and so on.
class Folder {
 public:
  Folder() = default;
  explicit Folder(const std::vector<std::string>& texts) {
    for (const std::string& text : texts) add(text);
  }

  void add(const std::string& text) {
    Expected<Configuration> read = Configuration::read({}, text);
    ASSERT_TRUE(read) << text;
    m_texts.push_back(text);
    m_configurations.push_back(std::move(*read));
  }

  std::vector<SharedFinding> diagnose() {
    std::vector<std::string> names;
    std::vector<SideBySide> sides;
    for (std::size_t i = 0; i < m_texts.size(); ++i) names.emplace_back(1, static_cast<char>('a' + i % 26));
    for (std::size_t i = 0; i < m_texts.size(); ++i) {
      sides.push_back({names[i], &m_configurations[i], m_texts[i], TextKind::command});
    }
    return diagnose_together(sides);
  }

  // "a code: message 'words' [remark 'words of the other']", a line each.
  std::string shown() {
    std::string out;
    for (const SharedFinding& shared : diagnose()) {
      const Finding& finding = shared.finding;
      const auto words = [&](std::size_t side, std::size_t begin, std::size_t end) {
        return " '" + m_texts[side].substr(begin, end - begin) + "'";
      };
      EXPECT_EQ(finding.remarks.size(), 1U);
      EXPECT_EQ(finding.severity, Severity::warning);
      EXPECT_FALSE(finding.remedy.empty());
      const Remark& remark = finding.remarks.at(0);
      out.append(1, static_cast<char>('a' + shared.configuration)).append(" ").append(finding.kind->code).append(": ");
      out.append(finding.message).append(words(shared.configuration, finding.begin, finding.end)).append(" [");
      out.append(remark.message).append(words(shared.other, remark.begin, remark.end)).append("]\n");
    }
    return out;
  }

 private:
  std::vector<std::string> m_texts;
  std::vector<Configuration> m_configurations;
};

std::string shown(const std::vector<std::string>& texts) { return Folder(texts).shown(); }

const std::string kUsb = "connect ov odm -cable type zarvek_platformusb port USB21 frequency 6000000";
const std::string kDevice1 = " -configdevice devicenr 1 partname prom irlength 16 idcode 0xa5059093";
const std::string kDevice2 = " -configdevice devicenr 2 partname fpga irlength 10 idcode 0x0a001093";

TEST(Together, WhatAgrees) {
  EXPECT_EQ(shown({}), "");
  EXPECT_EQ(shown({kUsb}), "");
  EXPECT_EQ(shown({"connect ov sim", "connect ov sim", "vpconnect ov", "vpconnect ov"}), "");
  // Two processors behind one debug module; one of the texts has no chain.
  EXPECT_EQ(shown({kUsb + kDevice1 + kDevice2 + " -debugdevice deviceNr 2 cpunr 1",
                   kUsb + kDevice1 + kDevice2 + " -debugdevice deviceNr 2 cpunr 2", kUsb + " -debugdevice cpunr 3"}),
            "");
  // What is kept for programs alone makes no other device.
  EXPECT_EQ(shown({kUsb + kDevice2, kUsb + kDevice2 + " isfpga 1", kUsb + " -configdevice jtagport cpu" + kDevice2}),
            "");
}

TEST(Together, Chains) {
  EXPECT_EQ(shown({kUsb + kDevice1 + kDevice2, kUsb + kDevice1 + " -configdevice devicenr 2 partname fpga irlength 6"}),
            "b shared-cable-chain: device 2 of the JTAG chain is another than for 'a', which is on the same cable "
            "'-configdevice devicenr 2 partname fpga irlength 6' [the chain of 'a' "
            "'-configdevice devicenr 2 partname fpga irlength 10 idcode 0x0a001093']\n");
  EXPECT_EQ(shown({kUsb + kDevice1 + kDevice2, kUsb + kDevice1}),
            "b shared-cable-chain: the number of devices in the JTAG chain is 1, but 2 for 'a', which is on the same "
            "cable '-configdevice devicenr 1 partname prom irlength 16 idcode 0xa5059093' [the chain of 'a' "
            "'-configdevice devicenr 2 partname fpga irlength 10 idcode 0x0a001093']\n");
  EXPECT_EQ(
      shown({kUsb + kDevice1, kUsb + " -configdevice jtagport cpu" + kDevice1 + kDevice2 + " -debugdevice cpunr 2"}),
      "b shared-cable-chain: the number of devices in the JTAG chain is 2, but 1 for 'a', which is on the same "
      "cable '-configdevice devicenr 2 partname fpga irlength 10 idcode 0x0a001093' [the chain of 'a' "
      "'-configdevice devicenr 1 partname prom irlength 16 idcode 0xa5059093']\n");
}

TEST(Together, Frequencies) {
  EXPECT_EQ(shown({kUsb, "connect ov stub -comm jtag -cable type zarvek_platformusb frequency 12000000"}),
            "b shared-cable-frequency: the cable runs at 12 MHz, but at 6 MHz for 'a', which is on the same cable "
            "'12000000' [6 MHz for 'a' '6000000']\n");
  // The default frequency has no word.
  EXPECT_EQ(shown({"connect ov odm -cable type zarvek_platformusb",
                   "connect ppc hw -cable frequency 1 frequency 12000000 type zarvek_platformusb port USB21"}),
            "b shared-cable-frequency: the cable runs at 12 MHz, but at 6 MHz for 'a', which is on the same cable "
            "'12000000' [6 MHz for 'a' 'zarvek_platformusb']\n");
  // A frequency that is not set tells nothing.
  EXPECT_EQ(shown({kUsb, "connect ov odm -cable type zarvek_platformusb -debugdevice cpunr 2"}), "");
}

TEST(Together, SameProcessors) {
  EXPECT_EQ(shown({kUsb + " -debugdevice deviceNr 2 cpunr 3", kUsb + " -debugdevice deviceNr 2",
                   kUsb + " -debugdevice deviceNr 2 cpunr 1", kUsb + " -debugdevice deviceNr 1 cpunr 3"}),
            "c same-processor: 'b' has the same debug device 2 and processor number 1 on the same cable '1' "
            "[the processor of 'b' '2']\n");
  // Another family, and no debug device.
  const std::string powerpc = "connect ppc hw" + kUsb.substr(14);
  EXPECT_EQ(shown({kUsb + " -debugdevice deviceNr 2", powerpc + " -debugdevice deviceNr 2", kUsb, kUsb}), "");
}

TEST(Together, WhichCableItIs) {
  const std::string fast = " frequency 12000000 -quiet";
  const std::string type = "connect ov odm -cable type ";
  const auto share = [](const std::string& a, const std::string& b) { return !shown({a, b}).empty(); };
  EXPECT_TRUE(share(kUsb, type + "zarvek_platformusb port USB21" + fast));
  EXPECT_FALSE(share(kUsb, type + "zarvek_platformusb port USB22" + fast));
  EXPECT_FALSE(share(kUsb, type + "zarvek_tcf port USB21" + fast));
  EXPECT_TRUE(share(kUsb + " esn 12", type + "zarvek_platformusb esn 12 port USB22" + fast));
  EXPECT_FALSE(share(kUsb + " esn 12", type + "zarvek_platformusb esn 13 port USB21" + fast));
  EXPECT_FALSE(share(kUsb + " esn 12", type + "zarvek_platformusb port USB21" + fast));
  const std::string plugin = type + "zarvek_plugin modulename ";
  EXPECT_TRUE(share(plugin + "m frequency 1 -quiet", plugin + "m" + fast));
  EXPECT_FALSE(share(plugin + "m frequency 1 -quiet", plugin + "n" + fast));
  EXPECT_FALSE(share(plugin + "m modulearg a frequency 1 -quiet", plugin + "m modulearg b" + fast));
  // Connections without a cable.
  EXPECT_FALSE(share(kUsb, "connect ov stub -comm serial -cable type zarvek_platformusb" + fast));
  EXPECT_FALSE(share(kUsb, "connect ov odm -cable type zarvek_platformusb frequency 12000000 -sim"));
  EXPECT_FALSE(share("connect ov odm -cable frequency 1 -quiet", "connect ov odm -cable frequency 2 -quiet"));
}

// Each other value is told once, compared with the first one.
TEST(Together, ManyConfigurations) {
  Folder folder;
  for (int i = 0; i < 3; ++i) {
    for (const char* const frequency : {"6000000", "12000000", "24000000"}) {
      folder.add(std::string("connect ov odm -cable type zarvek_platformusb frequency ") + frequency);
    }
  }
  std::vector<std::pair<std::size_t, std::size_t>> found;
  for (const SharedFinding& shared : folder.diagnose()) found.emplace_back(shared.configuration, shared.other);
  EXPECT_EQ(found, (std::vector<std::pair<std::size_t, std::size_t>>{{1, 0}, {2, 0}}));
}

TEST(Together, ConfigurationsThatAreMissing) {
  Expected<Configuration> read = Configuration::read({}, kUsb);
  ASSERT_TRUE(read);
  EXPECT_TRUE(
      diagnose_together({{"a", nullptr, "", TextKind::optionFile}, {"b", &*read, kUsb, TextKind::command}}).empty());
}

TEST(Together, FilesWithoutProcessor) {
  const Finding finding = no_such_processor({ErrorCode::noSuchProcessor, "there is no processor 'cpu9'", ""});
  EXPECT_EQ(finding.kind->code, "no-such-processor");
  EXPECT_EQ(finding.severity, Severity::error);
  EXPECT_EQ(finding.message, "there is no processor 'cpu9'");
}

}  // namespace
