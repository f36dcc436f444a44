#pragma once

// Compares everything that reading a text gives: the result, what is left of the text, the error text, and the
// settings.

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "tests/support/SelectedEngine.h"
#include "tests/support/changes.h"

// A text, and what an operation of the parser is to make of it.
struct Reading {
  std::string text;
  int result = 0;
  std::string changes = {};               // tests/support/changes.h
  std::optional<std::string> error = {};  // the error text that is stored; none: the one before stays
  std::string rest = {};                  // what is left of the text
};

using Reader = int (*)(std::string& text, SdkDebugDialog::EngineImp& imp);

// Reads on an engine of its own, which prepare may change first.
inline void expect_reading(Reader read, const Reading& expected,
                           const std::function<void(SelectedEngine&)>& prepare = {}) {
  SCOPED_TRACE(testing::PrintToString(expected.text));
  SelectedEngine selected;
  if (prepare) prepare(selected);
  selected.engine.SetErrorStr("an older text");
  std::string text = expected.text;
  EXPECT_EQ(read(text, selected.imp), expected.result);
  EXPECT_EQ(changes(selected), expected.changes);
  EXPECT_EQ(selected.error(), expected.error.value_or("an older text"));
  EXPECT_EQ(text, expected.rest);
}

inline void expect_readings(Reader read, const std::vector<Reading>& expected,
                            const std::function<void(SelectedEngine&)>& prepare = {}) {
  for (const Reading& reading : expected) expect_reading(read, reading, prepare);
}
