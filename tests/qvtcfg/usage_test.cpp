#include "tool.h"

namespace {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

using Usage = Tool;

TEST_F(Usage, HelpOfTheProgramListsTheCommandsAndAnExample) {
  for (const char* flag : {"-h", "--help"}) {
    const Result result = qvtcfg({flag});
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.err, "");
    for (const char* text : {"processors", "show", "command", "read", "set", "unset", "copy", "diff", "cables",
                             "\n  cable ", "\nExample:\n  qvtcfg -C ", "docs/design-file.md"}) {
      EXPECT_THAT(result.out, HasSubstr(text));
    }
  }
}

TEST_F(Usage, HelpOfEveryCommandShowsAnExample) {
  for (std::vector<std::string> command : std::vector<std::vector<std::string>>{{"processors"},
                                                                                {"show"},
                                                                                {"command"},
                                                                                {"read"},
                                                                                {"set"},
                                                                                {"unset"},
                                                                                {"copy"},
                                                                                {"diff"},
                                                                                {"cables"},
                                                                                {"cable"},
                                                                                {"cable", "parse"},
                                                                                {"cable", "format"}}) {
    const std::string name = command.back();
    command.push_back("--help");
    const Result result = qvtcfg(command);
    EXPECT_EQ(result.code, 0) << name;
    EXPECT_EQ(result.err, "") << name;
    EXPECT_THAT(result.out, HasSubstr("\nExample:\n  qvtcfg ")) << name;
    EXPECT_THAT(result.out, HasSubstr(name)) << name;
  }
}

TEST_F(Usage, HelpOfSetListsTheKeys) {
  const std::string help = qvtcfg({"set", "-h"}).out;
  for (const char* key :
       {"connection=WORD", "stub=WORD", "stub-port=TEXT", "stub-baud=NUMBER", "debug-device=NUMBER", "cpu-jtag=on|off",
        "devices=LIST", "module=NAME[,ARG...]", "address-map=ADDRESS", "icache=ADDRESS", "rom=START,SIZE",
        "rom-size=SIZE", "cable=WORD", "frequency=FREQUENCY", "port=TEXT", "esn=TEXT", "bscan=WORD"}) {
    EXPECT_THAT(help, HasSubstr(std::string("\n  ") + key + " "));
  }
  EXPECT_THAT(help, HasSubstr(" One of USER1, USER2, USER3, USER4.\n"));
  EXPECT_THAT(help, Not(HasSubstr("\n  name=")));
}

TEST_F(Usage, VersionIsThatOfTheLibrary) {
  const Result result = qvtcfg({"--version"});
  EXPECT_EQ(result.code, 0);
  EXPECT_EQ(result.out, "qvtcfg 1.0.0\n");
}

TEST_F(Usage, OptionsOfTheProgramMayFollowTheCommand) {
  EXPECT_THAT(qvtcfg({"cables", "--json"}).out, StartsWith("{"));
}

TEST_F(Usage, TwoDashesEndTheOptions) {
  EXPECT_THAT(qvtcfg({"read", "ovrin_0", "--", "-foo"}).err,
              IsComplaint("the command given: the text is not understood at '-foo'; 'qvtcfg command ovrin_0' prints"));
}

TEST_F(Usage, MistakesAreExplainedInOneLine) {
  const struct {
    std::vector<std::string> arguments;
    const char* why;
  } kMistakes[] = {
      {{},
       "a command is missing: one of processors, show, command, read, set, unset, copy, diff, explain, check, cables, "
       "cable; see "
       "'qvtcfg --help'"},
      {{"cabels"}, "unknown command 'cabels' (did you mean 'cables'?); see 'qvtcfg --help'"},
      {{"--jsn", "cables"}, "unknown option '--jsn'; see 'qvtcfg cables --help'"},
      {{"cables", "all"}, "unexpected argument 'all'; see 'qvtcfg cables --help'"},
      {{"show"}, "PROC is required; see 'qvtcfg show --help'"},
      {{"show", "ovrin_0", "ovrin_1"}, "unexpected argument 'ovrin_1'; see 'qvtcfg show --help'"},
      {{"show", "ovrin_0", "--write"}, "unknown option '--write'; see 'qvtcfg show --help'"},
      {{"read"}, "TEXT is required; see 'qvtcfg read --help'"},
      {{"read", "ovrin_0"}, "TEXT is required; see 'qvtcfg read --help'"},
      {{"read", "connect ov sim", "ovrin_0", "x"}, "unexpected argument 'x'; see 'qvtcfg read --help'"},
      {{"cable"}, "a command is missing: one of parse, format; see 'qvtcfg cable --help'"},
      {{"cable", "prase"}, "unknown command 'prase' (did you mean 'parse'?); see 'qvtcfg cable --help'"},
      {{"cable", "parse"}, "TEXT is required; see 'qvtcfg cable parse --help'"},
      {{"cable", "parse", "-cable", "type"}, "unknown option '-cable'; see 'qvtcfg cable parse --help'"},
      {{"cable", "format", "--type"}, "--type: 1 required NAME missing; see 'qvtcfg cable format --help'"},
      {{"cable", "format", "--speed", "1"}, "unknown option '--speed'; see 'qvtcfg cable format --help'"},
      {{"set", "ovrin_0"}, "KEY=VALUE is required; see 'qvtcfg set --help'"},
      {{"set", "cable=none"}, "PROC is required; see 'qvtcfg set --help'"},
      {{"set", "--all", "ovrin_0", "cable=none"}, "--all: name no processor as well; see 'qvtcfg set --help'"},
      {{"unset", "ovrin_0"}, "NAME is required; see 'qvtcfg unset --help'"},
      {{"copy", "ovrin_0"}, "TO is required; see 'qvtcfg copy --help'"},
      {{"diff"}, "A is required; see 'qvtcfg diff --help'"},
      {{"-C"}, "-C: 1 required DIR missing; see 'qvtcfg --help'"},
      {{"\033]0;x\007"}, "unknown command '\\x1b]0;x\\x07'"},
  };
  for (const auto& mistake : kMistakes) {
    const Result result = qvtcfg(mistake.arguments);
    EXPECT_EQ(result.code, 2) << mistake.why;
    EXPECT_EQ(result.out, "") << mistake.why;
    EXPECT_THAT(result.err, IsComplaint(mistake.why));
  }
}

}  // namespace
