#pragma once

// Tables of texts with the expected results of reading each of them.
//
//   expect_readings(QvtOption_Parser::parse_debugdevice,
//                   {{"deviceNr 3", 3, "debugDevice=3"},
//                    {"foo 2 deviceNr 3", 2, Error("UNKNOWN Parameter 'foo' ..."), Rest(" deviceNr 3")}});
//
// Whatever a row does not list must stay unchanged: all other settings and the error text. Without Rest the whole text
// must be consumed. A reader of a group returns 0 for a value, 1 at the next option, 2 for an error and 3 at the end of
// the text; a reader of a target returns 0 or 2; a reader of a whole command 0 or 3.

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "options/QvtOption_Parser.h"
#include "tests/support/SelectedEngine.h"
#include "tests/support/changes.h"

// In place of a status: reading throws std::out_of_range, because of a lone dash.
inline constexpr int kThrows = -1;

struct Expected {
  explicit Expected(std::string expected) : text(std::move(expected)) {}
  std::string text;
};
// The error text that is stored.
struct Error : Expected {
  using Expected::Expected;
};
// The text that was not consumed.
struct Rest : Expected {
  using Expected::Expected;
};
// newoption_token afterwards; not checked in a row without it.
struct LastOption : Expected {
  using Expected::Expected;
};

// The text and the status, then in any order: the changed settings (in the format of tests/support/changes.h), Error,
// Rest and LastOption. Each of these may be missing.
struct Reading {
  template <class... More>
  Reading(std::string givenText, int expectedStatus, More... more)
      : text(std::move(givenText)), status(expectedStatus) {
    (set(std::move(more)), ...);
  }

  std::string text;
  int status;
  std::string changes;
  std::string error = "an older text";
  std::string rest;
  std::optional<std::string> lastOption;

 private:
  void set(std::string expected) { changes = std::move(expected); }
  void set(Error expected) { error = std::move(expected.text); }
  void set(Rest expected) { rest = std::move(expected.text); }
  void set(LastOption expected) { lastOption = std::move(expected.text); }
};

using Reader = std::function<int(std::string& text, SdkDebugDialog::EngineImp& imp)>;
using Prepare = std::function<void(SelectedEngine&)>;

// Reads with a new engine. prepare may change its settings first; these do not count as changes.
inline void expect_reading(const Reader& read, const Reading& expected, const Prepare& prepare = {}) {
  SCOPED_TRACE(testing::PrintToString(expected.text));
  SelectedEngine e;
  SelectedEngine before;
  for (SelectedEngine* const engine : {&e, &before}) {
    if (prepare) prepare(*engine);
  }
  e.engine.SetErrorStr("an older text");
  std::string text = expected.text;
  int status = kThrows;
  try {
    status = read(text, e.imp);
  } catch (const std::out_of_range& error) {
    EXPECT_STREQ(error.what(), "basic_string::at: __n (which is 1) >= this->size() (which is 1)");
  }
  EXPECT_EQ(status, expected.status);
  EXPECT_EQ(changes(e.imp, before.imp), expected.changes);
  EXPECT_EQ(e.error(), expected.error);
  EXPECT_EQ(text, expected.rest);
  EXPECT_EQ(SdkDebugDialog::newoption_token, expected.lastOption.value_or(SdkDebugDialog::newoption_token));
}

inline void expect_readings(const Reader& read, const std::vector<Reading>& expected, const Prepare& prepare = {}) {
  for (const Reading& reading : expected) expect_reading(read, reading, prepare);
}

// An error text is cut after 2047 characters.
inline Error cut_error(const std::string& error) { return Error(error.substr(0, 2047)); }
