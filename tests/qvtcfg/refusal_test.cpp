// How the commands refuse a text: every error with its place, and what the engine says.

#include "answers.h"
#include "tool.h"

namespace {

using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

constexpr const char* kText = "connect ov odm -cabel type zarvek_platformusb prot USB1 -debugdevice deviceNr 010";

class Refusals : public Tool {
 protected:
  Refusals() { write_option_file("ovrin_0", kText); }

  void expect_errors(const Result& result, const std::string& name) const {
    EXPECT_EQ(result.code, 3);
    EXPECT_EQ(result.out, "");
    EXPECT_THAT(result.err, IsComplaint("qvtcfg: " + name + ": the text is not understood at '-cabel'"));
    EXPECT_THAT(result.err, HasSubstr("\n" + name + ":1:16: error: no option '-cabel'; did you mean '-cable'?"));
    EXPECT_THAT(result.err, HasSubstr("\n     |                ^^^^^^\n"));
    EXPECT_THAT(result.err, HasSubstr("\n" + name + ":1:47: error: '-cable' has no keyword 'prot'"));
    EXPECT_THAT(result.err, Not(HasSubstr("warning:")));
  }
};

TEST_F(Refusals, OfAnOptionFileShowItsErrors) {
  for (const std::vector<std::string>& arguments : {std::vector<std::string>{"show", "ovrin_0"},
                                                    {"command", "ovrin_0"},
                                                    {"set", "ovrin_0", "debug-device=1"},
                                                    {"copy", "ovrin_0", "ovrin_1"},
                                                    {"diff", "ovrin_0"},
                                                    {"unset", "ovrin_0", "debug-device"}}) {
    expect_errors(qvtcfg(arguments), "etc/qvt_ovrin_0.opt");
  }
}

TEST_F(Refusals, OfACommandShowItsErrors) {
  expect_errors(qvtcfg({"read", kText}), "the command given");
  expect_errors(qvtcfg({"read", "ovrin_0", kText}), "the command given");
  expect_errors(qvtcfg({"read", "-"}, kText), "standard input");
  std::filesystem::remove(folder() / "design.json");
  expect_errors(qvtcfg({"read", kText}), "the command given");
  expect_errors(qvtcfg({"diff", kText}), "the command given");
  expect_errors(qvtcfg({"diff", "etc/qvt_ovrin_0.opt"}), "etc/qvt_ovrin_0.opt");
}

TEST_F(Refusals, OfACableTextShowItsErrors) {
  const Result result = qvtcfg({"cable", "parse", "-cable tpye zarvek_platformusb"});
  EXPECT_EQ(result.code, 3);
  EXPECT_THAT(result.err,
              HasSubstr("\nthe text given:1:8: error: '-cable' has no keyword 'tpye'; did you mean 'type'?"));
}

TEST_F(Refusals, NameThePlaceOfTheFirstError) {
  const std::string cable = "-cable typ zarvek_tcf";
  EXPECT_THAT(qvtcfg({"read", "ovrin_0", "connect ov odm " + cable}).err,
              StartsWith("qvtcfg: the command given: the text is not understood at 'typ'; 'qvtcfg command "));
  EXPECT_THAT(qvtcfg({"cable", "parse", cable}).err,
              StartsWith("qvtcfg: the text given: the text is not understood at 'typ'; expected "));
}

TEST_F(Refusals, ShowTenErrors) {
  const auto text = [](std::size_t errors) {
    std::string words = "connect ov odm";
    for (std::size_t i = 0; i < errors; ++i) words += " -foo" + std::to_string(i);
    return words;
  };
  EXPECT_THAT(qvtcfg({"read", text(10)}).err, AllOf(HasSubstr("'-foo9'"), Not(HasSubstr("more"))));
  const std::string err = qvtcfg({"read", text(12)}).err;
  EXPECT_THAT(err, AllOf(HasSubstr("no option '-foo9'"), Not(HasSubstr("no option '-foo10'"))));
  EXPECT_THAT(err, HasSubstr("\n  ... and 2 more; 'qvtcfg check' shows all\n"));
  EXPECT_EQ(error_of(qvtcfg({"--json", "read", text(12)}).out)["findings"].size(), 12U);
}

TEST_F(Refusals, EndWithWhatTheEngineSays) {
  EXPECT_THAT(qvtcfg({"show", "ovrin_0"}).err, EndsWith("\nqvtcfg: note: the engine says: UNKNOWN Option ''\n"));
}

TEST_F(Refusals, OfAProcessorTakeItsDesignIntoAccount) {
  write_option_file("ovrin_1", "connect ov stub");
  EXPECT_THAT(qvtcfg({"show", "ovrin_1"}).err, HasSubstr("[connection-not-admitted]"));
}

TEST_F(Refusals, InJsonHaveTheErrors) {
  const auto error = error_of(qvtcfg({"--json", "show", "ovrin_0"}).out);
  EXPECT_EQ(error["file"], "etc/qvt_ovrin_0.opt");
  const auto& findings = error["findings"];
  ASSERT_EQ(findings.size(), 2U);
  EXPECT_EQ(findings[0]["code"], "unknown-option");
  EXPECT_EQ(findings[1]["place"]["column"], 47);
  EXPECT_EQ(error_of(qvtcfg({"--json", "show", "ovrin_9"}).out)["findings"], nlohmann::json::array());
}

TEST_F(Refusals, UseColoursOnATerminal) {
  EXPECT_THAT(qvtcfg_on_terminal({"show", "ovrin_0"}).out, HasSubstr("\033[1;31m^^^^^^\033[0m"));
}

}  // namespace
