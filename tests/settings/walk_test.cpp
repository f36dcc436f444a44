// What each word of a text is.

#include "settings/walk.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <stdexcept>
#include <string>
#include <vector>

#include "options/framing.h"
#include "options/groups.h"
#include "options/option_file.h"
#include "options/target.h"
#include "tests/settings/random_text.h"
#include "tests/settings/word_text.h"
#include "tests/support/DesignedEngine.h"
#include "tests/support/SelectedEngine.h"

namespace SdkDebugDialog {
namespace {

using namespace std::string_literals;

std::string walked(const std::string& text, TextKind kind = TextKind::command) {
  const std::vector<WalkedWord> words = walk(text, kind);
  EXPECT_TRUE(covers(text, words));
  return word_text(text, words);
}
std::string walked_file(const std::string& text) { return walked(text, TextKind::optionFile); }
std::string walked_cable(const std::string& text) { return walked(text, TextKind::cableText); }

// --- Heads, targets and connections ---

TEST(Walk, OfNoWordIsEmpty) {
  for (const TextKind kind : {TextKind::command, TextKind::optionFile, TextKind::cableText}) {
    EXPECT_TRUE(walk({}, kind).empty());
    for (const std::string& text : {""s, " "s, "\n"s, "\n\n\r\n"s, "\t \v\f"s}) EXPECT_EQ(walked(text, kind), "");
  }
}

TEST(Walk, KnowsEveryHeadAndTarget) {
  for (const Head& head : heads()) {
    for (const Target& target : targets()) {
      std::string text = std::string(head.name.text()) + " " + std::string(target.name.text());
      std::string expected = "H:" + std::string(head.name.text()) + " T:" + std::string(target.name.text());
      if (head.virtualPlatform != target.virtualPlatform) continue;
      EXPECT_EQ(walked(text), expected);
      for (const Connection& connection : target.connections) {
        const std::string name(connection.name.text());
        EXPECT_EQ(walked(std::string(text).append(" ").append(name)), std::string(expected).append(" C:").append(name));
      }
      if (!target.connections.empty()) continue;
      text += " -cable -config";
      EXPECT_EQ(walked(text), expected + (target.virtualPlatform ? " U:-cable O:-config" : " O:-cable U:-config"));
    }
  }
}

TEST(Walk, KnowsWordsInAnyCaseAndWhiteSpaceOfAnyKind) {
  EXPECT_EQ(walked("CONNECT Ov oDM -CaBlE TYPE Zarvek_Plugin"), "H:CONNECT T:Ov C:oDM O:-CaBlE K:TYPE V:Zarvek_Plugin");
  EXPECT_EQ(walked("\n\vconnect\r\t\n ppc\f hw  \t\t-quiet\r\n"), "H:connect T:ppc C:hw O:-quiet");
  EXPECT_EQ(walked("connect ov odm\n-quiet"), "H:connect T:ov U:odm\n-quiet");
  EXPECT_EQ(walked("connect ov stub -port a\0b"s), "H:connect T:ov C:stub O:-port V:a\0b"s);
}

TEST(Walk, GoesOnBehindAnUnknownHead) {
  EXPECT_EQ(walked("konnect"), "U:konnect");
  EXPECT_EQ(walked("konnect ppc hw -quiet"), "U:konnect T:ppc C:hw O:-quiet");
  EXPECT_EQ(walked("konnect mips hw -quiet"), "U:konnect U:mips U:hw O:-quiet");
  EXPECT_EQ(walked("-connect -ppc hw"), "U:-connect U:-ppc U:hw");
}

TEST(Walk, GoesOnBehindAnUnknownTargetOrConnection) {
  EXPECT_EQ(walked("connect mips"), "H:connect U:mips");
  EXPECT_EQ(walked("connect mips hw -cable port x -memsize 3"),
            "H:connect U:mips U:hw O:-cable K:port V:x O:-memsize V:3");
  EXPECT_EQ(walked("vpconnect ppc hw -cable"), "H:vpconnect U:ppc U:hw O:-cable");
  EXPECT_EQ(walked("connect ppc odm -cable port x"), "H:connect T:ppc U:odm O:-cable K:port V:x");
  EXPECT_EQ(walked("connect ov -cable port x -quiet"), "H:connect T:ov O:-cable K:port V:x O:-quiet");
}

TEST(Walk, TellsWhereEachWordStands) {
  const auto walked_words = walk("connect ppc hw -sim -ipcport h:1 -foo x -configdevice nppc 2 y z", TextKind::command);
  ASSERT_EQ(walked_words.size(), 13U);
  const Target& ppc = target("ppc");
  const Connection& hw = *std::ranges::find(ppc.connections, Engine::HARDWARE, &Connection::type);
  const Option* const sim = find_option("-sim", kGeneralOptions, {});
  const Option* const ipcport = find_option("-ipcport", kHdlSimOptions, {});
  const Option* const configdevice = find_option("-configdevice", kHdlSimOptions, {});
  const Keyword* const nppc = find_name(kConfigdevice.keywords, "nppc", {});
  struct Row {
    const Target* target = nullptr;
    const Connection* connection = nullptr;
    const SdkDebugDialog::Run* run = nullptr;
    const Option* option = nullptr;
    const Keyword* keyword = nullptr;
    std::size_t group = 0;
  };
  const Row rows[] = {
      {},
      {&ppc},
      {&ppc, &hw},
      {&ppc, &hw, &kGeneralOptions, sim, nullptr, 1},
      {&ppc, &hw, &kHdlSimOptions, ipcport, nullptr, 2},
      {&ppc, &hw, &kHdlSimOptions, ipcport, value_row(*ipcport), 2},
      {&ppc, &hw, &kHdlSimOptions, nullptr, nullptr, 3},
      {&ppc, &hw, &kHdlSimOptions, nullptr, nullptr, 3},
      {&ppc, &hw, &kHdlSimOptions, configdevice, nullptr, 4},
      {&ppc, &hw, &kHdlSimOptions, configdevice, nppc, 4},
      {&ppc, &hw, &kHdlSimOptions, configdevice, nppc, 4},
      {&ppc, &hw, &kHdlSimOptions, configdevice, nullptr, 4},
      {&ppc, &hw, &kHdlSimOptions, configdevice, nullptr, 4},
  };
  for (std::size_t i = 0; i < walked_words.size(); ++i) {
    SCOPED_TRACE(i);
    EXPECT_EQ(walked_words[i].target, rows[i].target);
    EXPECT_EQ(walked_words[i].connection, rows[i].connection);
    EXPECT_EQ(walked_words[i].run, rows[i].run);
    EXPECT_EQ(walked_words[i].option, rows[i].option);
    EXPECT_EQ(walked_words[i].keyword, rows[i].keyword);
    EXPECT_EQ(walked_words[i].group, rows[i].group);
  }
}

TEST(Walk, GivesAWordOfNoOptionNoGroup) {
  const auto walked_words = walk("connect ov odm x -quiet y -comm -port -port p q", TextKind::command);
  std::vector<std::size_t> groups;
  groups.reserve(walked_words.size());
  for (const WalkedWord& word : walked_words) groups.push_back(word.group);
  EXPECT_EQ(groups, (std::vector<std::size_t>{0, 0, 0, 0, 1, 0, 2, 2, 3, 3, 0}));
  EXPECT_EQ(walked_words[5].run, nullptr);
  EXPECT_EQ(walked_words[5].option, nullptr);
  EXPECT_EQ(walked_words[7].option->name.text(), "-comm");
  EXPECT_EQ(walked_words[7].keyword, nullptr);
}

// --- What options take ---

TEST(Walk, KnowsEveryOptionWhereItMayStand) {
  for (const Option& option : options()) {
    // Several options have the same name, in different runs.
    const auto is_in = [&](const SdkDebugDialog::Run& run) {
      return std::ranges::any_of(options(), [&](const Option& other) {
        return other.name.text() == option.name.text() && (other.runs & run.bit) != 0;
      });
    };
    for (const Target& target : targets()) {
      const std::string start =
          (target.virtualPlatform ? "vpconnect " : "connect ") + std::string(target.name.text()) + " ";
      const auto expect_option = [&](const std::string& before, const SdkDebugDialog::Run& run) {
        const std::string text = before + std::string(option.name.text());
        const WalkedWord found = walk(text, TextKind::command).back();
        EXPECT_EQ(found.role == Role::option, is_in(run)) << text;
        if ((option.runs & run.bit) != 0) {
          EXPECT_EQ(found.option, &option) << text;
        }
      };
      for (const Connection& connection : target.connections) {
        expect_option(start + std::string(connection.name.text()) + " ", connection.options);
      }
      if (target.connections.empty()) expect_option(start, *target.options);
      if (target.name.text() == "arm") expect_option(start + "hw -sim ", kHdlSimOptions);
    }
    const WalkedWord alone = walk(option.name.text(), TextKind::cableText).back();
    EXPECT_EQ(alone.role, is_in(kCableTextOptions) ? Role::option : Role::unknown);
  }
}

TEST(Walk, KnowsEveryKeyword) {
  for (const Option& option : options()) {
    if (option.takes != Option::Takes::pairs || (option.runs & kGeneralOptions.bit) == 0) continue;
    std::string text = "connect arm hw " + std::string(option.name.text());
    std::string expected = "H:connect T:arm C:hw O:" + std::string(option.name.text());
    for (const Keyword& row : option.group.keywords) {
      text.append(" ").append(row.name.text()).append(" 1");
      expected.append(" K:").append(row.name.text()).append(" V:1");
    }
    EXPECT_EQ(walked(text), expected);
  }
}

TEST(Walk, GoesOnBehindAnUnknownKeyword) {
  EXPECT_EQ(walked_cable("-cable typ x port y"), "O:-cable U:typ U:x K:port V:y");
  EXPECT_EQ(walked_cable("-cable typ"), "O:-cable U:typ");
  EXPECT_EQ(walked_cable("-cable typ -cable"), "O:-cable U:typ O:-cable");
}

TEST(Walk, EndsPairsAtAnOption) {
  EXPECT_EQ(walked_cable("-cable type"), "O:-cable K:type");
  EXPECT_EQ(walked_cable("-cable -bscan USER1"), "O:-cable O:-bscan V:USER1");
  EXPECT_EQ(walked_cable("-cable type -bscan USER1"), "O:-cable K:type O:-bscan V:USER1");
  EXPECT_EQ(walked_cable("-cable port -1 -2 -3 esn"), "O:-cable K:port V:-1 U:-2 U:-3 K:esn");
}

TEST(Walk, ReadsTheValueOfAnOption) {
  const std::string stub = "connect ov stub ";
  const std::string walkedStub = "H:connect T:ov C:stub ";
  // A value, or an error.
  EXPECT_EQ(walked(stub + "-bscan USER2 -quiet"), walkedStub + "O:-bscan V:USER2 O:-quiet");
  EXPECT_EQ(walked(stub + "-bscan"), walkedStub + "O:-bscan");
  EXPECT_EQ(walked(stub + "-bscan -quiet"), walkedStub + "O:-bscan O:-quiet");
  EXPECT_EQ(walked("vpconnect ov -config -ipcport h:1"), "H:vpconnect T:ov O:-config O:-ipcport V:h:1");
  // A value; an option in its place is skipped.
  EXPECT_EQ(walked(stub + "-comm jtag -baud -9"), walkedStub + "O:-comm V:jtag O:-baud V:-9");
  EXPECT_EQ(walked(stub + "-comm"), walkedStub + "O:-comm");
  EXPECT_EQ(walked(stub + "-comm -quiet -port p"), walkedStub + "O:-comm I:-quiet O:-port V:p");
  EXPECT_EQ(walked(stub + "-comm -port p"), walkedStub + "O:-comm I:-port U:p");
  EXPECT_EQ(walked(stub + "-timeout -foo"), walkedStub + "O:-timeout I:-foo");
  // Any token.
  EXPECT_EQ(walked("connect ppc sim -icf f -icf -icf -ipcport"),
            "H:connect T:ppc C:sim O:-icf V:f O:-icf V:-icf O:-ipcport");
}

TEST(Walk, FindsPlainWordsBetweenOptions) {
  EXPECT_EQ(walked("connect ov odm x -quiet y z -comm jtag w"),
            "H:connect T:ov C:odm U:x O:-quiet U:y U:z O:-comm V:jtag U:w");
}

TEST(Walk, FindsUnknownOptionsWithTheirWords) {
  EXPECT_EQ(walked("connect ov odm -foo a -2 -Cable esn 1 -memsize 3 -quiet"),
            "H:connect T:ov C:odm U:-foo U:a U:-2 O:-Cable K:esn V:1 U:-memsize U:3 O:-quiet");
  EXPECT_EQ(walked_cable("-quiet x -cable"), "U:-quiet U:x O:-cable");
}

TEST(Walk, StaysInTheRunOfASimulator) {
  EXPECT_EQ(walked("connect arm hw -quiet -sim -ipcport a:1 -configdevice nppc 1 -quiet -ipcport -cable"),
            "H:connect T:arm C:hw O:-quiet O:-sim O:-ipcport V:a:1 O:-configdevice K:nppc V:1 U:-quiet O:-ipcport "
            "V:-cable");
  EXPECT_EQ(walked("connect ppc sim -debugdevice cpunr 1 -icf f -cable"),
            "H:connect T:ppc C:sim O:-debugdevice K:cpunr V:1 O:-icf V:f U:-cable");
}

TEST(Walk, LooksAtOneOptionOfTheSoftProcessorSimulator) {
  const std::string sim = "H:connect T:ov C:sim";
  EXPECT_EQ(walked("connect ov sim"), sim);
  EXPECT_EQ(walked("connect ov sim -memsize"), sim + " O:-memsize");
  EXPECT_EQ(walked("connect ov sim -memsize 64 -memsize 65 - x"), sim + " O:-memsize V:64 I:-memsize I:65 I:- I:x");
  EXPECT_EQ(walked("connect ov sim -memsize -quiet"), sim + " O:-memsize V:-quiet");
  EXPECT_EQ(walked("connect ov sim x - -memsize 64"), sim + " I:x I:- I:-memsize I:64");
  EXPECT_EQ(walked("connect ov sim - x -quiet"), sim + " U:- I:x I:-quiet");
  EXPECT_EQ(walked("connect ov sim -foo x -memsize 64"), sim + " U:-foo U:x I:-memsize I:64");
}

TEST(Walk, PassesOverLoneDashes) {
  EXPECT_EQ(walked("-"), "U:-");
  EXPECT_EQ(walked("- connect - ov\t-\r odm - -cable - type - x -"),
            "U:- H:connect U:- T:ov U:- C:odm U:- O:-cable U:- K:type U:- V:x U:-");
  EXPECT_EQ(walked_cable("-bscan - USER1 - -foo - x"), "O:-bscan U:- V:USER1 U:- U:-foo U:- U:x");
  EXPECT_EQ(walked_cable("-- -- -"), "U:-- U:-- U:-");
}

// --- Option files ---

TEST(Walk, LooksAtOneLineOfAFile) {
  EXPECT_EQ(walked_file("connect ov odm -quiet\n"), "H:connect T:ov C:odm O:-quiet");
  EXPECT_EQ(walked_file("\n\nconnect ov odm\r\nconnect -\vx\n\n y"), "H:connect T:ov C:odm I:connect I:- I:x I:y");
  EXPECT_EQ(walked_file("\r\nconnect ov odm\n"), "I:connect I:ov I:odm");
  EXPECT_EQ(walked_file(" \nconnect"), "I:connect");
}

TEST(Walk, KnowsFewerHeadsAndTargetsInAFile) {
  for (const Head& head : heads()) {
    EXPECT_EQ(walked_file(std::string(head.name.text())), (head.inFile ? "H:" : "U:") + std::string(head.name.text()));
  }
  EXPECT_EQ(walked_file("qvpconnect ov -config x"), "U:qvpconnect T:ov O:-config V:x");
  EXPECT_EQ(walked_file("connect odm -uart"), "H:connect U:odm O:-uart");
  EXPECT_EQ(walked_file("connect dap hw -quiet"), "H:connect U:dap C:hw O:-quiet");
}

TEST(Walk, CutsALongLineOfAFile) {
  const std::string start = "\nconnect ov stub -port ";
  const auto walked_long = [&](std::size_t length, const std::string& after) {
    const std::string text = start + std::string(length - (start.size() - 1), 'x') + after;
    std::string found = walked_file(text);
    found.erase(0, std::string("H:connect T:ov C:stub O:-port V:").size());
    return found.erase(0, found.find_first_not_of('x'));
  };
  EXPECT_EQ(walked_long(1022, ""), "");
  EXPECT_EQ(walked_long(1023, " -quiet"), " I:-quiet");
  EXPECT_EQ(walked_long(1022, " -quiet"), " I:-quiet");
  EXPECT_EQ(walked_long(1021, " -quiet"), " U:- I:quiet");
  EXPECT_EQ(walked_long(1019, " -quiet z\ny"), " U:-qu I:iet I:z I:y");
  EXPECT_EQ(walked_long(1023, "abc\ry d"), " I:abc I:y I:d");
  EXPECT_EQ(walked_long(1023, "\n-quiet"), " I:-quiet");
}

// --- Properties ---

constexpr TextKind kKinds[] = {TextKind::command, TextKind::optionFile, TextKind::cableText};

bool is_read(const std::string& text, TextKind kind, EngineImp& imp) {
  try {
    if (kind == TextKind::optionFile) {
      const std::string_view line = option_line(text);
      TokenCursor in(line);
      return line.empty() || read_connect(in, imp, Source::file);
    }
    TokenCursor in(text);
    return kind == TextKind::cableText ? read_options(in, imp, kCableTextOptions)
                                       : read_connect(in, imp, Source::command);
  } catch (const std::out_of_range&) {
    return false;
  }
}

RC_GTEST_PROP(WalkProperty, KnowsEveryWordOfWhatIsRead, ()) {
  for (const TextKind kind : kKinds) {
    for (int i = 0; i < 10; ++i) {
      const std::string text = RandomText::make(kind);
      const std::vector<WalkedWord> words = walk(text, kind);
      RC_ASSERT(covers(text, words));
      SelectedEngine e;
      if (!is_read(text, kind, e.imp)) continue;
      RC_LOG() << text << "\n" << word_text(text, words);
      RC_ASSERT(std::ranges::none_of(words, [](const WalkedWord& word) { return word.role == Role::unknown; }));
    }
  }
}

RC_GTEST_PROP(WalkProperty, CoversAnyBytes, ()) {
  const auto text = *rc::gen::container<std::string>(rc::gen::arbitrary<char>());
  const auto spaced = *rc::gen::container<std::string>(rc::gen::elementOf(" \t\n\r\v-0ax"s));
  for (const TextKind kind : kKinds) {
    RC_ASSERT(covers(text, walk(text, kind)));
    RC_ASSERT(covers(spaced, walk(spaced, kind)));
  }
}

// Time that grows faster than the text would exceed the time limit of the test.
TEST(Walk, TakesLongTexts) {
  constexpr std::size_t kMany = 1000000;
  std::string chain;
  for (std::size_t i = 0; i < kMany; ++i) chain += " -configdevice devicenr 1";
  EXPECT_EQ(walk("connect ov odm" + chain, TextKind::command).size(), 3 + 3 * kMany);
  std::string dashes = "connect ov odm";
  for (std::size_t i = 0; i < kMany; ++i) dashes += " - x -foo";
  EXPECT_EQ(walk(dashes, TextKind::command).size(), 3 + 3 * kMany);
}

}  // namespace
}  // namespace SdkDebugDialog
