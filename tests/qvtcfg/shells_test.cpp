// The completions at work in the shells: keys are typed on a terminal, and the arguments are looked at that the program
// then gets.

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "tool.h"

namespace {

using testing::ElementsAre;
using testing::IsSupersetOf;

using Words = std::vector<std::string>;

class Shells : public Tool {
 protected:
  Shells() {
    // Stands for the program, and stores the arguments that it gets.
    std::filesystem::create_directories(folder() / "bin");
    write("bin/qvtcfg",
          "#!/bin/sh\n"
          "[ \"$1\" != complete ] || exec \"$QVTCFG\" \"$@\"\n"
          "printf '%s\\n' \"$@\" >got\n");
    std::filesystem::permissions(folder() / "bin/qvtcfg", std::filesystem::perms::owner_all);
    std::filesystem::create_directories(folder() / "my board/etc");
    std::filesystem::copy_file(PROJECT_SOURCE_DIR "/examples/designs/small.json", folder() / "my board/small.json");
    write("my board/etc/qvt_ovrin_0.opt", "connect ov sim");
  }

  bool is_there(const std::string& name) const { return shell("command -v " + name).code == 0; }

  static std::string script(const std::string& name) { return PROJECT_SOURCE_DIR "/tools/qvtcfg/completions/" + name; }

  // The arguments after the line was typed in the shell and sent off.
  Words typed(const Words& command, const std::string& setup, const std::string& line) const {
    std::filesystem::remove(folder() / "got");
    const Result result = on_terminal(
        command, {"TERM=dumb", "INPUTRC=/dev/null", "HOME=" + folder().string(), "PATH=" + path(), "PS1=> "},
        setup + "\n" + line + "\nexit\n");
    EXPECT_EQ(result.out.find("qvtcfg: "), std::string::npos) << result.out;
    if (!exists("got")) {
      ADD_FAILURE() << "the program was not run:\n" << result.out;
      return {};
    }
    return lines_of(read("got"));
  }

  Words typed_in_bash(const std::string& line) const {
    return typed({"/bin/bash", "--norc", "--noprofile", "-i"}, ". " + script("qvtcfg.bash"), line);
  }

  // ESC and "*" put in everything that is offered, as they do in bash.
  Words typed_in_zsh(const std::string& line) const {
    return typed({"/bin/zsh", "-f", "-i"},
                 "fpath=(" + script("") +
                     " $fpath); autoload -Uz compinit; compinit -u -D;"
                     "zle -C all-matches complete-word _generic; bindkey '\\e*' all-matches;"
                     "zstyle ':completion:all-matches::::' completer _all_matches _complete;"
                     "zstyle ':completion:all-matches:*' insert true",
                 line);
  }

  Words offered_in_fish(const std::string& line) const {
    write("ask.fish", "source " + script("qvtcfg.fish") + "\ncomplete -C \"" + line + "\"\n");
    const Result result = shell("PATH='" + path() + "' HOME=$PWD fish --no-config ask.fish");
    EXPECT_EQ(result.err, "");
    return lines_of(result.out);
  }

  static Words lines_of(const std::string& text) {
    Words lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) lines.push_back(line);
    return lines;
  }

  // typed(line): the arguments after the line was typed in a shell.
  template <class Typed>
  void expect_common_completions(Typed typed) const {
    EXPECT_THAT(typed("qvtcfg proc\t"), ElementsAre("processors"));
    EXPECT_THAT(typed("qvtcfg cable fo\t--ty\tzarvek_pla\t--fr\t24\t"),
                ElementsAre("cable", "format", "--type", "zarvek_platformusb", "--frequency", "24MHz"));
    EXPECT_THAT(typed("qvtcfg set ovrin_2 cable=zarvek_pla\tfreq\t12\tdebug-\t2"),
                ElementsAre("set", "ovrin_2", "cable=zarvek_platformusb", "frequency=12MHz", "debug-device=2"));
    EXPECT_THAT(typed("qvtcfg check --format=sh\t--explain unit-i\t"),
                ElementsAre("check", "--format=short", "--explain", "unit-ignored"));
    EXPECT_THAT(typed("qvtcfg --design my\\ bo\tsm\tshow ov\t--ch\t"),
                ElementsAre("--design", "my board/small.json", "show", "ovrin_0", "--changed"));
    EXPECT_THAT(typed("qvtcfg -C 'my board' --design=sm\tshow ov\t"),
                ElementsAre("-C", "my board", "--design=small.json", "show", "ovrin_0"));
    EXPECT_THAT(typed("qvtcfg -C my\\ board check et\tqv\t"),
                ElementsAre("-C", "my board", "check", "etc/qvt_ovrin_0.opt"));
    EXPECT_THAT(typed("qvtcfg set ovrin_0 'bscan=USER3\t"), ElementsAre("set", "ovrin_0", "bscan=USER3"));
    EXPECT_THAT(typed("bin/qvtcfg proc\t"), ElementsAre("processors"));
    write("design.json", "{");
    EXPECT_THAT(typed("qvtcfg show ov\t"), ElementsAre("show", "ov"));
  }

 private:
  std::string path() const { return (folder() / "bin").string() + ":/usr/bin:/bin"; }
};

TEST_F(Shells, CompleteInBash) {
  if (!is_there("bash")) GTEST_SKIP() << "there is no bash";
  expect_common_completions([&](const std::string& line) { return typed_in_bash(line); });
}

TEST_F(Shells, OfferWhatTheProcessorAdmitsInBash) {
  if (!is_there("bash")) GTEST_SKIP() << "there is no bash";
  // Bash puts in the parts behind "=".
  EXPECT_THAT(typed_in_bash("qvtcfg set ovrin_0 bscan=\x1b*"),
              ElementsAre("set", "ovrin_0", "bscan=USER1", "USER2", "USER3", "USER4"));
  EXPECT_THAT(typed_in_bash("qvtcfg set ovrin_0 cable=zarvek_platformusb frequency=\x1b*"),
              ElementsAre("set", "ovrin_0", "cable=zarvek_platformusb", "frequency=750kHz", "1.5MHz", "3MHz", "6MHz",
                          "12MHz", "24MHz"));
  EXPECT_THAT(typed_in_bash("qvtcfg set ovrin_0 cable=zarvek_platformusb \x1b*"),
              IsSupersetOf({"bscan=", "debug-device=", "frequency=", "port="}));
}

TEST_F(Shells, CompleteInZsh) {
  if (!is_there("zsh")) GTEST_SKIP() << "there is no zsh";
  expect_common_completions([&](const std::string& line) { return typed_in_zsh(line); });
}

TEST_F(Shells, OfferWhatTheProcessorAdmitsInZsh) {
  if (!is_there("zsh")) GTEST_SKIP() << "there is no zsh";
  EXPECT_THAT(typed_in_zsh("qvtcfg set ovrin_0 bscan=\t\x1b*"),
              ElementsAre("set", "ovrin_0", "bscan=USER1", "bscan=USER2", "bscan=USER3", "bscan=USER4"));
  EXPECT_THAT(typed_in_zsh("qvtcfg set ovrin_0 cable=zarvek_platformusb frequency=\t\x1b*"),
              ElementsAre("set", "ovrin_0", "cable=zarvek_platformusb", "frequency=750kHz", "frequency=1.5MHz",
                          "frequency=3MHz", "frequency=6MHz", "frequency=12MHz", "frequency=24MHz"));
  EXPECT_THAT(typed_in_zsh("qvtcfg set ovrin_0 cable=zarvek_platformusb \t\x1b*"),
              IsSupersetOf({"bscan=", "debug-device=", "frequency=", "port="}));
}

TEST_F(Shells, CompleteInFish) {
  if (!is_there("fish")) GTEST_SKIP() << "there is no fish";
  EXPECT_THAT(offered_in_fish("qvtcfg proc"), ElementsAre("processors\tList the processors of the design"));
  EXPECT_THAT(offered_in_fish("qvtcfg cable f"), ElementsAre("format\tPrint the options of a cable and a chain"));
  EXPECT_THAT(offered_in_fish("qvtcfg show ovrin_3"), ElementsAre("ovrin_3\tprocessor"));
  EXPECT_THAT(offered_in_fish("qvtcfg set ovrin_0 bscan="),
              ElementsAre("bscan=USER1", "bscan=USER2\tnow, default", "bscan=USER3", "bscan=USER4"));
  EXPECT_THAT(offered_in_fish("qvtcfg set ovrin_0 cable=zarvek_platformusb frequency=12"),
              ElementsAre("frequency=12MHz"));
  EXPECT_THAT(offered_in_fish("qvtcfg set ovrin_0 cable=zarvek_platformusb freq"),
              ElementsAre("frequency=\tCable frequency"));
  EXPECT_THAT(offered_in_fish("qvtcfg check --format=sh"), ElementsAre("--format=short"));
  EXPECT_THAT(offered_in_fish("qvtcfg -C my"), ElementsAre("my board/"));
  EXPECT_THAT(offered_in_fish("qvtcfg -C my\\\\ board --design=sm"), ElementsAre("--design=small.json"));
  EXPECT_THAT(offered_in_fish("qvtcfg -C my\\\\ board check et"), ElementsAre("etc/"));
  EXPECT_THAT(offered_in_fish("qvtcfg --design my\\\\ board/small.json show "), ElementsAre("ovrin_0\tprocessor"));
  write("design.json", "{");
  EXPECT_THAT(offered_in_fish("qvtcfg show ov"), ElementsAre());
}

}  // namespace
