// What each word of a text is for people and programs: its role, its setting, and how far the reader came.

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "SdkDebugDialog/Annotation.h"
#include "SdkDebugDialog/Configuration.h"
#include "SdkDebugDialog/Result.h"
#include "options/QvtOption_Parser.h"
#include "options/groups.h"
#include "settings/catalogue.h"
#include "tests/options/work_folder.h"
#include "tests/settings/random_text.h"
#include "tests/settings/word_text.h"
#include "tests/support/DesignedEngine.h"
#include "tests/support/SelectedEngine.h"

namespace SdkDebugDialog {
namespace {

using namespace std::string_literals;

std::string annotated(const std::string& text, TextKind kind = TextKind::command, const Processor& processor = {}) {
  const std::vector<Annotation> words = annotate(text, kind, processor);
  EXPECT_TRUE(covers(text, words));
  return word_text(text, words);
}
std::string annotated_file(const std::string& text) { return annotated(text, TextKind::optionFile); }
std::string annotated_cable(const std::string& text) { return annotated(text, TextKind::cableText); }

// The name of the setting of each word, "." for none.
std::string settings_in(const std::string& text, TextKind kind = TextKind::command) {
  std::string names;
  for (const Annotation& word : annotate(text, kind)) {
    names += names.empty() ? "" : " ";
    names += word.setting != nullptr ? word.setting->name : ".";
  }
  return names;
}

// --- Guesses ---

TEST(Annotate, GuessesNothingInWhatIsRead) {
  EXPECT_EQ(annotated("connect ov odm -cable type zarvek_platformusb frequency 12000000"),
            "H:connect T:ov C:odm O:-cable K:type V:zarvek_platformusb K:frequency V:12000000");
  EXPECT_EQ(annotated("connect ov sim x - -foo"), "H:connect T:ov C:sim I:x I:- I:-foo");
  EXPECT_EQ(annotated_file("\nvpconnect OV\n-foo"), "H:vpconnect T:OV I:-foo");
  EXPECT_EQ(annotated_cable("-bscan USER1"), "O:-bscan V:USER1");
}

TEST(Annotate, OfNoWordIsEmpty) {
  for (const TextKind kind : {TextKind::command, TextKind::optionFile, TextKind::cableText}) {
    for (const std::string& text : {""s, " "s, "\n"s, "\n\r\n"s}) EXPECT_EQ(annotated(text, kind), "");
  }
}

TEST(Annotate, GuessesFromTheWordThatIsRefused) {
  EXPECT_EQ(annotated("konnect ov odm"), "U?:konnect T?:ov C?:odm");
  EXPECT_EQ(annotated("connect mips -quiet"), "H:connect U?:mips O?:-quiet");
  EXPECT_EQ(annotated("connect ov hw -quiet"), "H:connect T:ov U?:hw O?:-quiet");
  EXPECT_EQ(annotated("connect ov odm -foo x -quiet"), "H:connect T:ov C:odm U?:-foo U?:x O?:-quiet");
  EXPECT_EQ(annotated("connect ov odm -quiet x -quiet"), "H:connect T:ov C:odm O:-quiet U?:x O?:-quiet");
  EXPECT_EQ(annotated_cable("-cable port x typ y -bscan USER1"), "O:-cable K:port V:x U:typ U?:y O?:-bscan V?:USER1");
  EXPECT_EQ(annotated_cable("-cable type x port y"), "O:-cable K:type V?:x K?:port V?:y");
  EXPECT_EQ(annotated_cable("-cable type -bscan USER1"), "O:-cable K:type O?:-bscan V?:USER1");
  EXPECT_EQ(annotated_cable("-bscan -configdevice"), "O:-bscan O?:-configdevice");
  EXPECT_EQ(annotated("connect ov stub -comm -port p"), "H:connect T:ov C:stub O:-comm I:-port U?:p");
}

TEST(Annotate, GuessesTheLastWordWhereTheEndIsRefused) {
  EXPECT_EQ(annotated("connect\n"), "H?:connect");
  EXPECT_EQ(annotated("connect ov  "), "H:connect T?:ov");
  EXPECT_EQ(annotated_cable("-cable type"), "O:-cable K?:type");
  EXPECT_EQ(annotated_cable("-bscan\t\n"), "O?:-bscan");
  EXPECT_EQ(annotated_cable("-cable type zarvek_parallel3 frequency 5 "),
            "O:-cable K:type V:zarvek_parallel3 K:frequency V?:5");
  EXPECT_EQ(annotated_cable("-cable type zarvek_plugin"), "O:-cable K:type V?:zarvek_plugin");
}

TEST(Annotate, GuessesFromALoneDash) {
  EXPECT_EQ(annotated("-"), "U?:-");
  EXPECT_EQ(annotated("connect ov - odm"), "H:connect T:ov U?:- C?:odm");
  EXPECT_EQ(annotated("connect ov odm -quiet -"), "H:connect T:ov C:odm O:-quiet U?:-");
}

TEST(Annotate, GuessesInTheLineOfAFileThatIsRead) {
  EXPECT_EQ(annotated_file("\n\nconnect odm -uart\nx"), "H:connect U?:odm O?:-uart I?:x");
  EXPECT_EQ(annotated_file("\r\nconnect ov odm"), "I?:connect I?:ov I?:odm");
  EXPECT_EQ(annotated_file("connect ov\nodm"), "H:connect T?:ov I?:odm");
  const std::string blanks(1023 - std::string("connect ov odm").size(), ' ');
  EXPECT_EQ(annotated_file("connect ov odm" + blanks + "-foo"), "H:connect T:ov C:odm I:-foo");
  EXPECT_EQ(annotated_file("connect ov odm" + blanks.substr(1) + "-foo"), "H:connect T:ov C:odm U?:- I?:foo");
}

TEST(Annotate, AsksTheProcessorWhatIsRefused) {
  FakeHardware hw = one_of_each();
  const Design design(hw);
  const Processor ovrin0 = design.find("ovrin_0").value();
  const Processor ovrin1 = design.find("ovrin_1").value();
  const std::string text = "connect ov odm -debugdevice cpunr 9";
  EXPECT_EQ(annotated(text), "H:connect T:ov C:odm O:-debugdevice K:cpunr V:9");
  EXPECT_EQ(annotated(text, TextKind::command, ovrin0), "H:connect T:ov C:odm O:-debugdevice K:cpunr V?:9");
  // No debug module reaches it.
  EXPECT_EQ(annotated(text, TextKind::command, ovrin1), "H:connect T:ov C?:odm O?:-debugdevice K?:cpunr V?:9");
}

// --- Settings ---

TEST(Annotate, TellsTheSettingOfEachWord) {
  EXPECT_EQ(settings_in("connect ov odm -quiet -cable frequency 1 -bscan USER1"),
            ". . connection . . frequency frequency bscan bscan");
  EXPECT_EQ(settings_in("connect ov odm -configdevice nppc 1"), ". . connection devices devices devices");
  EXPECT_EQ(settings_in("connect ov odm -foo x -cable foo x"), ". . connection . . . . .");
  EXPECT_EQ(settings_in("vpconnect ov"), ". connection");
  EXPECT_EQ(settings_in("connect ov stub -comm -port"), ". . connection stub .");
}

TEST(Annotate, TellsTheSettingOfEveryRow) {
  for (const Option& option : options()) {
    for (const Keyword& row : option.group.keywords) {
      const bool ofOption = &row == value_row(option);
      if (option.takes != Option::Takes::pairs && !ofOption) continue;
      if ((option.runs & kGeneralOptions.bit) == 0) continue;
      const std::string text =
          "connect arm hw " + std::string(option.name.text()) + (ofOption ? "" : " " + std::string(row.name.text()));
      EXPECT_EQ(annotate(text, TextKind::command).back().setting, setting_of(row)) << text;
    }
  }
}

// Time that grows faster than the text would exceed the time limit of the test.
TEST(Annotate, TakesLongTexts) {
  constexpr std::size_t kMany = 100000;
  std::string text = "connect ov odm";
  for (std::size_t i = 0; i < kMany; ++i) text += " -configdevice devicenr 1";
  EXPECT_EQ(annotate(text, TextKind::command).size(), 3 + 3 * kMany);
}

// --- With random texts ---

// A text that the engine's own entry points refuse.
struct Refused {
  std::optional<std::size_t> consumed;  // bytes, where the entry point tells them
};
std::optional<Refused> read_by_engine(const std::string& text, TextKind kind, EngineImp& imp,
                                      const WorkFolder& folder) {
  std::string rest = text;
  try {
    switch (kind) {
      case TextKind::command:
        if (QvtOption_Parser::ReadQvtCommand(text, imp) == kOk) return std::nullopt;
        return Refused{};
      case TextKind::optionFile:
        WorkFolder::write(folder.option_file("p"), text);
        if (QvtOption_Parser::ReadQvtOptFile("p", imp) != kNotUnderstood) return std::nullopt;
        return Refused{};
      case TextKind::cableText:
        if (QvtOption_Parser::ReadJtagCableOptions(rest, imp) == kOk) return std::nullopt;
        return Refused{text.size() - rest.size()};
    }
  } catch (const std::out_of_range&) {
    if (kind == TextKind::cableText) return Refused{text.size() - rest.size()};
  }
  return Refused{};
}

void check(const std::string& text, TextKind kind, const Processor& processor, const WorkFolder& folder) {
  const std::vector<Annotation> words = annotate(text, kind, processor);
  RC_LOG() << text << "\n" << word_text(text, words) << "\n";
  RC_ASSERT(covers(text, words));
  const bool isUnknown = std::ranges::any_of(words, [](const auto& word) { return word.role == Role::unknown; });
  const bool isGuess = std::ranges::any_of(words, &Annotation::guess);
  RC_ASSERT(std::ranges::is_partitioned(words, [](const Annotation& word) { return !word.guess; }));

  SelectedEngine e;
  e.processor = processor.identity();
  e.imp.hwManager = processor.hardware();
  const std::optional<Refused> refused = read_by_engine(text, kind, e.imp, folder);
  RC_ASSERT(isGuess == (refused.has_value() && !words.empty()));
  if (!refused) RC_ASSERT(!isUnknown);
  if (!refused || !refused->consumed || words.empty()) return;
  const auto guess = std::ranges::find(words, true, &Annotation::guess);
  RC_ASSERT(guess->end <= *refused->consumed);
  if (guess + 1 != words.end()) RC_ASSERT((guess + 1)->begin >= *refused->consumed);
}

RC_GTEST_PROP(AnnotateProperty, AgreesWithTheReaders, ()) {
  const WorkFolder folder;
  FakeHardware hw = one_of_each();
  const Design design(hw);
  for (const TextKind kind : {TextKind::command, TextKind::optionFile, TextKind::cableText}) {
    for (int i = 0; i < 5; ++i) {
      const std::string text = RandomText::make(kind);
      check(text, kind, Processor(), folder);
      for (const Processor& processor : design.processors()) check(text, kind, processor, folder);
    }
  }
}

RC_GTEST_PROP(AnnotateProperty, TakesAnyBytes, ()) {
  const WorkFolder folder;
  for (const TextKind kind : {TextKind::command, TextKind::optionFile, TextKind::cableText}) {
    check(*rc::gen::container<std::string>(rc::gen::arbitrary<char>()), kind, Processor(), folder);
  }
}

}  // namespace
}  // namespace SdkDebugDialog
