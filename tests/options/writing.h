#pragma once

// Tables of settings with the text that is expected to be written.

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "tests/options/reading.h"

struct Writing {
  std::string text;      // the text that is appended
  Prepare prepare = {};  // changes the settings of a new engine first
  int status = 0;
  std::optional<std::string> error = {};  // the error text that is stored; nullopt: the old one stays
};

using Writer = int (*)(std::string& out, SdkDebugDialog::EngineImp& imp);

// Writes to the end of another text. No setting may change.
inline void expect_writing(Writer write, const Writing& expected) {
  SCOPED_TRACE(testing::PrintToString(expected.text));
  SelectedEngine e;
  SelectedEngine before;
  for (SelectedEngine* const engine : {&e, &before}) {
    if (expected.prepare) expected.prepare(*engine);
  }
  e.engine.SetErrorStr("an older text");
  e.processor.command = "an older command";
  std::string out = "before";
  EXPECT_EQ(write(out, e.imp), expected.status);
  EXPECT_EQ(out, "before" + expected.text);
  EXPECT_EQ(e.error(), expected.error.value_or("an older text"));
  EXPECT_EQ(e.processor.command, "an older command");
  EXPECT_EQ(changes(e.imp, before.imp), "");
}

inline void expect_writings(Writer write, const std::vector<Writing>& expected) {
  for (const Writing& writing : expected) expect_writing(write, writing);
}
