#include "options/option_loop.h"

#include <gtest/gtest.h>

#include <string>

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
  expect_readings(read_run<UnknownName::option>, {{"stray -plain", 2, Rest(" -plain")},
                                                  {"-5", 2},
                                                  {"-plain stray -plain", 2, "odmVersion=<-plain>", Rest(" -plain")},
                                                  {"-word one stray", 2, "cpuVersion=(one)"}});
}

TEST(ReadOptions, FailsWhereAnArgumentFails) {
  expect_reading(read_run<UnknownName::option>, {"-plain -fail -plain", 2, "odmVersion=<-plain>", Rest(" -plain")});
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
  expect_readings(read_run<UnknownName::option>,
                  {{"-Other x", 2, Error("unknown <-Other>"), Rest(" x")},
                   {"-plain -other", 2, "odmVersion=<-plain>", Error("unknown <-other>")},
                   {"-word one -other", 2, "cpuVersion=(one)", Error("unknown <-other>")},
                   {"-pla", 2, Error("unknown <-pla>")},
                   {"-plain1", 2, Error("unknown <-plain1>")},
                   {"--plain", 2, Error("unknown <--plain>")}});
}

TEST(ReadOptions, NamesTheLastTokenItReadItselfWhereAskedTo) {
  expect_readings(read_run<UnknownName::lastToken>,
                  {{"-other", 2, Error("unknown <>")},
                   {"-plain -other", 2, "odmVersion=<-plain>", Error("unknown <-other>")},
                   {"-word one -other", 2, "cpuVersion=(one)", Error("unknown <>")},
                   {"-take -lost -other", 2, Error("unknown <-other>")},
                   {"-plain -word one -other", 2, "cpuVersion=(one) odmVersion=<-plain>", Error("unknown <-word>")}});
}

}  // namespace
}  // namespace SdkDebugDialog
