// Engines in different threads do not affect each other. scripts/test tsan runs these tests with the thread sanitizer.

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "options/QvtOption_Parser.h"
#include "tests/options/work_folder.h"
#include "tests/support/DesignedEngine.h"
#include "tests/support/SelectedEngine.h"
#include "tests/support/run_together.h"

namespace {

using SdkDebugDialog::CableOption;
using SdkDebugDialog::Engine;
using SdkDebugDialog::JtagOption;
using SdkDebugDialog::newoption_token;
using SdkDebugDialog::ProcessorInfo;
using SdkDebugDialog::QvtOption_Parser;

constexpr int kThreads = 4;
constexpr int kRounds = 300;

TEST(Threads, ReadAndWriteWithTheirOwnEngines) {
  run_together(kThreads, [](int thread) {
    const std::string number = std::to_string(thread + 1);
    const std::string text = "connect ov odm -cable type zarvek_platformusb port USB" + number +
                             " frequency 12000000 -configdevice devicenr " + number + " partname part" + number +
                             " irlength 10 idcode 0x" + number + " -debugdevice deviceNr " + number + " cpunr " +
                             number;
    SelectedEngine selected;
    for (int i = 0; i < kRounds; ++i) {
      selected.release_chain();
      selected.imp.EngineImpInit();
      ASSERT_EQ(QvtOption_Parser::ReadQvtCommand(text, selected.imp), 0);
      std::string written;
      ASSERT_EQ(selected.engine.GenerateCmdString(written), 0);
      ASSERT_EQ(written, text);
    }
  });
}

TEST(Threads, KeepTheLastOptionThatEachOfThemRead) {
  run_together(kThreads, [](int thread) {
    const std::string option = "-option" + std::to_string(thread);
    for (int i = 0; i < kRounds; ++i) {
      std::string text = option + " x";
      std::string token;
      ASSERT_EQ(QvtOption_Parser::get_token(text, token), 1);
      std::this_thread::yield();
      ASSERT_EQ(newoption_token, option);
    }
  });
}

TEST(Threads, HaveErrorsAndExceptionsOfTheirOwn) {
  run_together(kThreads, [](int thread) {
    const std::string option = "-unknown" + std::to_string(thread);
    SelectedEngine selected;
    for (int i = 0; i < kRounds; ++i) {
      ASSERT_EQ(QvtOption_Parser::ReadQvtCommand("connect odm " + option, selected.imp), 3);
      ASSERT_EQ(selected.error(), "UNKNOWN Option '" + option + "'");
      ASSERT_THROW(QvtOption_Parser::ReadQvtCommand("connect odm -uart -", selected.imp), std::out_of_range);
      ASSERT_EQ(newoption_token, "-uart");
    }
  });
}

TEST(Threads, UseTheStaticOperations) {
  run_together(kThreads, [](int thread) {
    const std::string frequency = std::to_string(thread % 2 == 0 ? 6000000 : 12000000);
    const std::string expected = " -cable type zarvek_platformusb port USB21 frequency " + frequency +
                                 " -configdevice devicenr 1 partname p irlength 6 idcode 0x1 -debugdevice deviceNr 3";
    for (int i = 0; i < kRounds; ++i) {
      CableOption cable;
      std::vector<JtagOption*> chain;
      int cpuJtag = 0;
      char device = 0;
      ASSERT_EQ(Engine::ParseJtagCableInfo(expected, cable, chain, cpuJtag, device), 0);
      const std::unique_ptr<JtagOption> owner(chain.at(0));
      std::string written;
      ASSERT_EQ(Engine::GenerateJtagCableCmdString(written, cable, chain, device), 0);
      ASSERT_EQ(written, expected);
    }
  });
}

// Each thread has its own processor, engine, option file and hardware description.
TEST(Threads, SelectProcessorsAndStoreThem) {
  const WorkFolder folder;
  const char* const kNames[] = {"ovrin_0", "ppc405_0", "ppc440_0", "a9_0"};
  run_together(kThreads, [&](int thread) {
    DesignedEngine d;
    ProcessorInfo info;
    const std::string name = kNames[thread];
    for (int i = 0; i < kRounds / 10; ++i) {
      d.release_chain();
      ASSERT_EQ(d.engine.SetProcessor(name, info), i == 0 ? 4 : 0);
      ASSERT_EQ(d.engine.SetConnectionType(Engine::HARDWARE), 0);
      ASSERT_EQ(d.engine.SetDebugDevice(thread + 1), 0);
      ASSERT_EQ(d.engine.Generate(), 0);
    }
  });
}

}  // namespace
