// qvtcfg explain

#include <SdkDebugDialog/Settings.h>

#include <numeric>

#include "answers.h"
#include "tool.h"

namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class Explain : public Tool {
 protected:
  Explain() {
    write_option_file("ovrin_0",
                      "connect ov odm -cable type zarvek_platformusb frequency 12000000 "
                      "-configdevice devicenr 1 partname dv3 irlength 6 idcode 0x1d23093 -debugdevice deviceNr 1 "
                      "-sim -ipcport lab:7000");
  }

  // The line of the table about a setting.
  std::string row(const std::string& setting) const {
    const std::string out = "\n" + qvtcfg({"explain", "ovrin_0", "--all"}).out;
    const std::size_t begin = out.find("\n" + setting + " ");
    if (begin == std::string::npos) return "";
    const std::string line = out.substr(begin + 1, out.find('\n', begin + 1) - begin - 1);
    std::string words;  // with one blank between two columns
    for (const char c : line) {
      if (c != ' ' || !words.ends_with(' ')) words += c;
    }
    return words;
  }
  // The only one of the answer.
  nlohmann::json setting(const std::string& name) const {
    const auto groups = json({"explain", "ovrin_0", name})["settings"];
    EXPECT_EQ(groups.size(), 1U);
    EXPECT_EQ(groups.begin()->size(), 1U);
    return groups.begin()->at(name);
  }
};

TEST_F(Explain, NamesTheFileAndItsCommand) {
  EXPECT_THAT(qvtcfg({"explain", "ovrin_0"}).out,
              StartsWith("ovrin_0 as in etc/qvt_ovrin_0.opt\nconnect ov odm -cable type "));
  EXPECT_THAT(qvtcfg({"explain", "ovrin_1"}).out,
              StartsWith("ovrin_1 as in the defaults (no etc/qvt_ovrin_1.opt)\n\nSETTING "));
}

TEST_F(Explain, TellsWhereEachValueComesFrom) {
  EXPECT_EQ(row("name"), "name ovrin_0 the design -");
  EXPECT_EQ(row("connection"), "connection hardware 1:12 odm yes");
  EXPECT_EQ(row("frequency"), "frequency 12 MHz 1:47 frequency 12000000 yes");
  EXPECT_THAT(row("port"), StartsWith("port USB21 the cable's default "));
  EXPECT_THAT(row("bscan"), StartsWith("bscan USER2 the default -"));
  EXPECT_THAT(row("devices"), StartsWith("devices 1 device 1:66 -configdevice devicenr 1 "));
}

TEST_F(Explain, KnowsValuesThatFollowTheWordsOfOthers) {
  EXPECT_THAT(row("hardware-simulator-host"), StartsWith("hardware-simulator-host lab 1:161 -ipcport lab:7000 no: "));
  EXPECT_THAT(row("hardware-simulator-port"),
              StartsWith("hardware-simulator-port 7000 1:161 -ipcport lab:7000 (hardware-simulator-host) no: "));
}

TEST_F(Explain, DoesNotTakeWordsWithoutEffectForTheOrigin) {
  write_option_file("ovrin_0",
                    "connect ov odm -cable type zarvek_platformusb frequency 12000000 -cable type zarvek_parallel3");
  EXPECT_EQ(row("frequency"), "frequency 200 kHz the cable's default yes");
  EXPECT_THAT(row("cable"), StartsWith("cable zarvek_parallel3 1:73 type zarvek_parallel3, and 1 before"));
  write_option_file("ovrin_0", "connect ov odm -cable port USB22 type zarvek_platformusb frequency 0x5b8d80");
  EXPECT_THAT(row("port"), StartsWith("port USB21 the cable's default"));
  EXPECT_THAT(row("frequency"), StartsWith("frequency 6 MHz 1:58 frequency 0x5b8d80"));
  EXPECT_EQ(setting("port")["words"], nlohmann::json::array());
}

TEST_F(Explain, KnowsWordsThatTellTheDefault) {
  write_option_file("ovrin_0",
                    "connect ov odm -cable type zarvek_platformusb frequency 6000000 port USB21 -debugdevice deviceNr "
                    "0 -bscan USER2");
  EXPECT_THAT(row("frequency"), StartsWith("frequency 6 MHz 1:47 frequency 6000000"));
  EXPECT_THAT(row("port"), StartsWith("port USB21 1:65 port USB21"));
  EXPECT_THAT(row("debug-device"), StartsWith("debug-device 0 1:89 deviceNr 0"));
  EXPECT_THAT(row("bscan"), StartsWith("bscan USER2 1:100 -bscan USER2"));
}

TEST_F(Explain, TellsTheLineOfTheFile) {
  write_option_file("ovrin_0", "\n\nconnect ov odm -debugdevice deviceNr 2 deviceNr 3");
  EXPECT_THAT(row("debug-device"), StartsWith("debug-device 3 3:40 deviceNr 3, and 1 before yes"));
}

TEST_F(Explain, LeavesOutWhatDoesNotApplyUnlessAskedForAll) {
  const std::string usual = qvtcfg({"explain", "ovrin_0"}).out;
  EXPECT_THAT(usual, Not(HasSubstr("\nmemory-size ")));
  EXPECT_THAT(row("memory-size"), StartsWith("memory-size "));
}

TEST_F(Explain, OneSettingInDetail) {
  const Result result = qvtcfg({"explain", "ovrin_0", "frequency"});
  EXPECT_EQ(result.code, 0) << result.err;
  EXPECT_EQ(result.out,
            "frequency: Cable frequency\n"
            "  JTAG clock of the cable.\n"
            "\n"
            "  value       12 MHz\n"
            "  from        1:47 frequency 12000000\n"
            "   1 | connect ov odm -cable type zarvek_platformusb frequency 12000000 -configdevice devicenr 1 ...\n"
            "     |                                               ------------------\n"
            "  default     6 MHz (that of the cable)\n"
            "  written     yes\n"
            "  unit        Hz\n"
            "  accepted    750 kHz, 1.5 MHz, 3 MHz, 6 MHz, 12 MHz, 24 MHz\n");
}

TEST_F(Explain, OneSettingThatCannotBeChangedOrDoesNotApply) {
  EXPECT_THAT(qvtcfg({"explain", "ovrin_0", "name"}).out, HasSubstr("  changeable  no: "));
  EXPECT_THAT(qvtcfg({"explain", "ovrin_0", "memory-size"}).out, HasSubstr("  applies     no: "));
  EXPECT_THAT(qvtcfg({"explain", "ovrin_0", "cable"}).out, HasSubstr("  changes too frequency, port, "));
}

TEST_F(Explain, InJson) {
  const auto frequency = setting("frequency");
  EXPECT_EQ(frequency["value"], 12000000);
  EXPECT_EQ(frequency["default"], 6000000);
  EXPECT_EQ(frequency["from"], "words");
  EXPECT_EQ(frequency["words"], nlohmann::json::parse(
                                    R"([{"place": {"line": 1, "column": 47, "endLine": 1, "endColumn": 65,
                                                   "offset": 46, "length": 18},
                                         "text": "frequency 12000000"}])"));
  EXPECT_EQ(frequency["written"], true);
  EXPECT_EQ(setting("port")["from"], "cable");
  EXPECT_EQ(setting("name")["from"], "design");
  EXPECT_EQ(setting("hardware-simulator-port")["from"], "wordsOfAnother");
  EXPECT_EQ(setting("hardware-simulator-port")["fromSetting"], "hardware-simulator-host");
  EXPECT_EQ(setting("bscan")["from"], "default");
  EXPECT_EQ(setting("bscan")["whyNotWritten"], "it has its default");
  const auto groups = json({"explain", "ovrin_0"})["settings"];
  EXPECT_EQ(std::accumulate(groups.begin(), groups.end(), std::size_t{0},
                            [](std::size_t sum, const nlohmann::json& group) { return sum + group.size(); }),
            SdkDebugDialog::settings().size());
}

TEST_F(Explain, NoSuchSettingOrProcessor) {
  const Result setting = qvtcfg({"explain", "ovrin_0", "frequenzy"});
  EXPECT_EQ(setting.code, 2);
  EXPECT_EQ(setting.err, "qvtcfg: no setting is called 'frequenzy' (did you mean 'frequency'?)\n");
  EXPECT_EQ(qvtcfg({"explain", "ovrin_9"}).code, 1);
  EXPECT_EQ(qvtcfg({"explain"}).code, 2);
}

TEST_F(Explain, OfAFileThatIsRefusedShowsItsErrors) {
  write_option_file("ovrin_0", "connect ov odm -cabel type zarvek_platformusb prot USB1");
  const Result result = qvtcfg({"explain", "ovrin_0"});
  EXPECT_EQ(result.code, 3);
  EXPECT_EQ(result.out, "");
  EXPECT_THAT(result.err, IsComplaint("etc/qvt_ovrin_0.opt: the text is not understood at '-cabel'"));
  EXPECT_THAT(result.err, AllOf(HasSubstr("\netc/qvt_ovrin_0.opt:1:16: error: no option '-cabel'"),
                                HasSubstr("\n     |                ^^^^^^\n"),
                                HasSubstr("\netc/qvt_ovrin_0.opt:1:47: error: '-cable' has no keyword 'prot'")));
}

}  // namespace
