#include "options/option_loop.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <stdexcept>
#include <string>
#include <vector>

#include "options/QvtOption_Parser.h"
#include "tests/options/reading.h"
#include "tests/support/GlobalLocale.h"

namespace SdkDebugDialog {
namespace {

// --- Any run of options ---

int read_word(TokenCursor& in, EngineImp& imp) {
  std::string_view word;
  if (in.next(word) == 0) imp.currentProcessor->cpuVersion.append("(").append(word).append(")");
  return in.next(word);
}
int keep_name(TokenCursor& /*in*/, std::string_view option, EngineImp& imp) {
  imp.currentProcessor->odmVersion.append("<").append(option).append(">");
  return 0;
}
int take_token(TokenCursor& in, std::string_view /*option*/, EngineImp& /*imp*/) {
  std::string_view token;
  return in.next(token);
}
int fail(TokenCursor& /*in*/, std::string_view /*option*/, EngineImp& /*imp*/) { return 2; }

constexpr Option kOptions[] = {
    {.name = "-word", .group = read_word},
    {.name = "-Plain", .argument = keep_name},
    {.name = "-take", .argument = take_token},
    {.name = "-fail", .argument = fail},
};

template <UnknownName name>
int read_run(std::string& text, EngineImp& imp) {
  return read_front(text, [&](TokenCursor& in) { return read_options<kOptions>(in, imp, "unknown <%s>", name); });
}

TEST(ReadOptions, RunsToTheEndOfTheText) {
  const GlobalLocale classic;
  expect_readings(read_run<UnknownName::option>,
                  {{"", 3},
                   {" \r\n", 3},
                   {"-plain", 3, "odmVersion=<-plain>"},
                   {"-PLAIN -plain \t-Plain\r\n", 3, "odmVersion=<-PLAIN><-plain><-Plain>"},
                   {"-word one -WORD two", 3, "cpuVersion=(one)(two)"},
                   {"-word one -plain -word two", 3, "cpuVersion=(one)(two) odmVersion=<-plain>"}});
}

TEST(ReadOptions, FailsAtAValueWhereAnOptionIsExpected) {
  expect_readings(read_run<UnknownName::option>, {{"stray -plain", 2, "", {}, " -plain"},
                                                  {"-5", 2},
                                                  {"-plain stray -plain", 2, "odmVersion=<-plain>", {}, " -plain"},
                                                  {"-word one stray", 2, "cpuVersion=(one)"}});
}

TEST(ReadOptions, FailsWhereAnArgumentFails) {
  expect_reading(read_run<UnknownName::option>, {"-plain -fail -plain", 2, "odmVersion=<-plain>", {}, " -plain"});
}

TEST(ReadOptions, GoesOnAfterAnArgumentThatFoundAnotherKindOfToken) {
  expect_readings(read_run<UnknownName::option>,
                  {{"-take -lost -plain", 3, "odmVersion=<-plain>"}, {"-take", 3}, {"-take x -take", 3}});
}

TEST(ReadOptions, TakesTheOptionThatAGroupStoppedAt) {
  // The group reads it into a token of its own; its name is found in the pushback token.
  expect_reading(read_run<UnknownName::option>, {"-word -plain -Plain", 3, "odmVersion=<-Plain>"});
}

TEST(ReadOptions, NamesTheUnknownOptionWhereAskedTo) {
  expect_readings(read_run<UnknownName::option>, {{"-Other x", 2, "", "unknown <-Other>", " x"},
                                                  {"-plain -other", 2, "odmVersion=<-plain>", "unknown <-other>"},
                                                  {"-word one -other", 2, "cpuVersion=(one)", "unknown <-other>"},
                                                  {"-pla", 2, "", "unknown <-pla>"},
                                                  {"-plain1", 2, "", "unknown <-plain1>"},
                                                  {"--plain", 2, "", "unknown <--plain>"}});
}

TEST(ReadOptions, NamesTheLastTokenItReadItselfWhereAskedTo) {
  expect_readings(read_run<UnknownName::lastToken>,
                  {{"-other", 2, "", "unknown <>"},
                   {"-plain -other", 2, "odmVersion=<-plain>", "unknown <-other>"},
                   {"-word one -other", 2, "cpuVersion=(one)", "unknown <>"},
                   {"-take -lost -other", 2, "", "unknown <-other>"},
                   {"-plain -word one -other", 2, "cpuVersion=(one) odmVersion=<-plain>", "unknown <-word>"}});
}

// --- The general options ---

constexpr Reader kGeneral = QvtOption_Parser::parse_options;

struct GeneralOption {
  std::string text;
  std::string changes;
};

// Each general option, complete.
const std::vector<GeneralOption> kGeneralOptions = {
    {"-debugdevice deviceNr 3", "debugDevice=3"},
    {"-pfsl port 1 type ms", ""},
    {"-quiet", ""},
    {"-noattach", ""},
    {"-writeonly", ""},
    {"-cable type zarvek_platformusb", "cable.type=3 cable.frequency=6000000 cable.port=USB21"},
    {"-comm serial", "stubType=1"},
    {"-port COM1", "stubSerialPort=COM1"},
    {"-baud 0x1C200", "stubBaudRate=115200"},
    {"-timeout 5", "stubTimeout=5"},
    {"-configdevice devicenr 2 partname p irlength 10 idcode 0x0A001093", "device=2/p/10/167776403"},
    {"-sim -ipcport host1:7000", "modelSimEnabled=1 modelSimHost=host1 modelSimPort=7000"},
    {"-bscan USER1", "bscanPort=2"},
};

std::string in_capitals(std::string text) {
  const std::size_t end = std::min(text.find(' '), text.size());
  for (std::size_t i = 0; i < end; ++i) text[i] = static_cast<char>(std::toupper(static_cast<unsigned char>(text[i])));
  return text;
}

TEST(GeneralOptions, EndWellWhenThereAreNone) {
  newoption_token = "-older";
  expect_readings(kGeneral, {{"", 0}, {"  ", 0}, {"\r\n", 0}});
  EXPECT_EQ(newoption_token, "-older");
}

TEST(GeneralOptions, DispatchEveryOption) {
  for (const GeneralOption& option : kGeneralOptions) expect_reading(kGeneral, {option.text, 0, option.changes});
}

TEST(GeneralOptions, AreReadInAnyCase) {
  for (const GeneralOption& option : kGeneralOptions) {
    expect_reading(kGeneral, {in_capitals(option.text), 0, option.changes});
  }
}

TEST(GeneralOptions, MayFollowOneThatIsIgnored) {
  for (const GeneralOption& option : kGeneralOptions) {
    expect_reading(kGeneral, {" -quiet  " + option.text + " \r\n", 0, option.changes});
  }
}

TEST(GeneralOptions, AllFitIntoOneText) {
  expect_reading(kGeneral,
                 {"-cable type zarvek_platformusb -bscan USER3 -configdevice devicenr 1 partname a -configdevice "
                  "devicenr 2 partname b -debugdevice deviceNr 2 -comm serial -port COM1 -baud 9600 -timeout 5 -pfsl "
                  "port 1 type m -quiet -noattach -writeonly -sim -ipcport h:1 -configdevice devicenr 3 partname c",
                  0,
                  // A cable that other options follow keeps the frequency it had.
                  "stubType=1 stubSerialPort=COM1 stubBaudRate=9600 stubTimeout=5 debugDevice=2 modelSimEnabled=1 "
                  "modelSimHost=h modelSimPort=1 bscanPort=34 cable.type=3 cable.port=USB21 device=1/a/0/0 "
                  "device=2/b/0/0 device=3/c/0/0"});
}

TEST(GeneralOptions, FailAtAValueWhereAnOptionIsExpected) {
  expect_readings(kGeneral, {{"stray -quiet", 2, "", {}, " -quiet"},
                             {"-5", 2},
                             {"-quiet 5 -quiet", 2, "", {}, " -quiet"},
                             {"-noattach stray", 2},
                             {"-writeonly stray", 2},
                             {"-comm serial stray", 2, "stubType=1"},
                             {"-bscan USER1 stray", 2, "bscanPort=2"}});
}

TEST(GeneralOptions, DoNotKnowTheOptionsThatOnlyOtherTargetsHave) {
  for (const char* const option : {"-uart", "-memsize", "-icf", "-ipcport", "-config"}) {
    expect_reading(kGeneral, {option + std::string(" 1"), 2, "", "UNKNOWN Option ''", " 1"});
  }
}

TEST(GeneralOptions, FailWhereAGroupFails) {
  expect_readings(
      kGeneral,
      {{"-debugdevice speed 1 -quiet", 2, "", "UNKNOWN Parameter 'speed' for  option '-debugDevice'", " -quiet"},
       {"-pfsl speed 1 -quiet", 2, "", "UNKNOWN Parameter 'speed' for  option '-pfsl'", " -quiet"},
       {"-pfsl type x", 2, "", "UNKNOWN Parameter 'x' for  option 'type'"},
       {"-cable speed 1 -quiet", 2, "", "UNKNOWN Parameter 'speed' for  option '-cable'", " -quiet"},
       {"-configdevice speed 1 -quiet", 2, "", "UNKNOWN Parameter 'speed' for option '-configDevice'", " -quiet"},
       {"-sim -quiet x", 2, "modelSimEnabled=1", "UNKNOWN  ModelSim Option '-quiet'", " x"},
       {"-debugdevice deviceNr", 2},
       {"-cable type -quiet", 2},
       {"-comm usb -quiet", 2, "", {}, " -quiet"},
       {"-bscan USER5 -quiet", 2, "", {}, " -quiet"},
       {"-bscan", 2},
       {"-bscan -quiet", 2}});
}

TEST(GeneralOptions, ReadNothingAfterASimulatorThatRanToTheEnd) {
  expect_readings(kGeneral, {{"-sim", 0, "modelSimEnabled=1"}, {"-quiet -sim \t", 0, "modelSimEnabled=1"}});
}

TEST(GeneralOptions, LoseAnOptionThatStandsWhereAStubValueIsMissing) {
  expect_readings(kGeneral, {{"-comm", 0},
                             {"-port", 0},
                             {"-baud \r\n", 0},
                             {"-timeout", 0},
                             {"-comm -quiet", 0},
                             {"-comm -no-such-option", 0},
                             {"-port -comm -baud 9600", 0, "stubBaudRate=9600"},
                             {"-timeout -bscan -comm serial", 0, "stubType=1"},
                             {"-port -baud 9600", 2},
                             {"-comm -comm serial", 2},
                             {"-baud -cable type zarvek_platformusb", 2, "", {}, " zarvek_platformusb"}});
}

TEST(GeneralOptions, NameTheScratchTokenWhereAnOptionIsUnknown) {
  expect_readings(
      kGeneral,
      {// The first option, and those that follow a group: the scratch token is empty.
       {"-foo", 2, "", "UNKNOWN Option ''"},
       {"-foo bar", 2, "", "UNKNOWN Option ''", " bar"},
       {"-debugdevice deviceNr 3 -foo", 2, "debugDevice=3", "UNKNOWN Option ''"},
       {"-pfsl port 1 -foo", 2, "", "UNKNOWN Option ''"},
       {"-cable type zarvek_tcf -foo", 2, "cable.type=7", "UNKNOWN Option ''"},
       {"-configdevice devicenr 1 -foo", 2, "device=1/UNKNOWN/0/0", "UNKNOWN Option ''"},
       // Directly behind an option without a group: it is the unknown option.
       {"-quiet -foo", 2, "", "UNKNOWN Option '-foo'"},
       {"-noattach -foo", 2, "", "UNKNOWN Option '-foo'"},
       {"-writeonly -Foo", 2, "", "UNKNOWN Option '-Foo'"},
       {"-comm serial -foo", 2, "stubType=1", "UNKNOWN Option '-foo'"},
       {"-port COM1 -foo", 2, "stubSerialPort=COM1", "UNKNOWN Option '-foo'"},
       {"-baud 1 -foo", 2, "stubBaudRate=1", "UNKNOWN Option '-foo'"},
       {"-timeout 1 -foo", 2, "stubTimeout=1", "UNKNOWN Option '-foo'"},
       {"-bscan USER1 -foo", 2, "bscanPort=2", "UNKNOWN Option '-foo'"},
       {"-comm -lost -foo", 2, "", "UNKNOWN Option '-foo'"},
       // Behind a group that followed one of those: it is the group's own option.
       {"-quiet -debugdevice deviceNr 3 -foo", 2, "debugDevice=3", "UNKNOWN Option '-debugdevice'"},
       {"-noattach -PFSL port 1 -foo", 2, "", "UNKNOWN Option '-PFSL'"},
       {"-bscan USER1 -cable -foo", 2, "bscanPort=2", "UNKNOWN Option '-cable'"},
       {"-quiet -debugdevice deviceNr 3 -pfsl port 1 -foo", 2, "debugDevice=3", "UNKNOWN Option '-debugdevice'"},
       {"-quiet -cable -quiet -configdevice -foo", 2, "device=0/UNKNOWN/0/0", "UNKNOWN Option '-configdevice'"}});
}

TEST(GeneralOptions, CutTheErrorTextAfter2047Characters) {
  const std::string option = "-" + std::string(1 << 20, 'o');
  expect_reading(kGeneral, {"-quiet " + option, 2, "", "UNKNOWN Option '" + option.substr(0, 2047 - 16)});
}

TEST(GeneralOptions, LeaveTheLastOptionInThePushbackToken) {
  SelectedEngine e;
  std::string text = "-quiet -comm serial -Timeout 5";
  EXPECT_EQ(kGeneral(text, e.imp), 0);
  EXPECT_EQ(newoption_token, "-Timeout");
  text = "-quiet -Foo -bar";
  EXPECT_EQ(kGeneral(text, e.imp), 2);
  EXPECT_EQ(newoption_token, "-Foo");
  text = "-comm -lost";
  EXPECT_EQ(kGeneral(text, e.imp), 0);
  EXPECT_EQ(newoption_token, "-lost");
}

TEST(GeneralOptions, LetALoneDashThrowAndKeepWhatWasRead) {
  SelectedEngine e;
  std::string text = "-timeout 5 - -quiet";
  EXPECT_THROW(kGeneral(text, e.imp), std::out_of_range);
  EXPECT_EQ(text, " -quiet");
  EXPECT_EQ(changes(e), "stubTimeout=5");
}

}  // namespace
}  // namespace SdkDebugDialog
