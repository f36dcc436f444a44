// Several processes that use the same option file, some of which are killed or stopped at a random moment.

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <fstream>
#include <iostream>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include "options/QvtOption_Parser.h"
#include "tests/faults/file_folder.h"
#include "tests/support/in_child.h"

namespace {

using SdkDebugDialog::QvtOption_Parser;

constexpr unsigned int kSeed = 20;
const std::string kLongPort(3000, 'x');
const std::string kLongText = StubWriter::text(kLongPort);

// Writes the two texts in turn, for ever when times is 0. Returns 1 when a write failed, else 0.
int write_in_turn(int times) {
  Writer a;
  StubWriter b(kLongPort);
  int failed = 0;
  for (int i = 0; times == 0 || i < times; ++i) {
    if (a.engine.Generate() != 0 || b.engine.Generate() != 0) failed = 1;
  }
  return failed;
}

pid_t start(int times) {
  const pid_t child = ::fork();
  if (child == 0) ::_exit(write_in_turn(times));
  return child;
}

int end_of(pid_t child) {
  int status = -1;
  EXPECT_EQ(::waitpid(child, &status, 0), child);
  return status;
}

class Writers : public FileFolder {
 protected:
  void SetUp() override {
    std::cout << "seed " << kSeed << '\n';
    WorkFolder::write(file(), kNewText);
  }
  void sleep_a_while() {
    std::this_thread::sleep_for(std::chrono::microseconds(std::uniform_int_distribution(0, 3000)(m_random)));
  }
  void expect_whole() const {
    const std::string now = content();
    EXPECT_TRUE(now == kNewText || now == kLongText) << now.size() << " characters: " << now.substr(0, 80);
  }
  static void kill_now(pid_t child) {
    ASSERT_GT(child, 0);
    ::kill(child, SIGKILL);
    EXPECT_TRUE(WIFSIGNALED(end_of(child)));
  }

 private:
  std::mt19937 m_random{kSeed};
};

TEST_F(Writers, KilledAThousandTimesLeaveAWholeFileAndAtMostOneNewFile) {
  int left = 0;
  for (int i = 0; i < 1000 && !HasFailure(); ++i) {
    SCOPED_TRACE(i);
    const pid_t writer = start(0);
    sleep_a_while();
    kill_now(writer);
    expect_whole();
    EXPECT_LE(new_files().size(), 1U);
    left += new_files().empty() ? 0 : 1;
  }
  std::cout << left << " of 1000 died with a new file in the folder\n";
  EXPECT_GT(left, 0);
  expect_written();
}

TEST_F(Writers, ThreeAtATimeKilledLeaveOnlyFilesThatTheNextWriterRemoves) {
  int left = 0;
  for (int i = 0; i < 100 && !HasFailure(); ++i) {
    SCOPED_TRACE(i);
    const std::vector<pid_t> writers = {start(0), start(0), start(0)};
    sleep_a_while();
    for (const pid_t writer : writers) {
      kill_now(writer);
      expect_whole();
    }
    EXPECT_LE(new_files().size(), 3U);
    left += new_files().empty() ? 0 : 1;
  }
  std::cout << left << " of 100 rounds left new files in the folder\n";
  EXPECT_GT(left, 0);
  expect_written();
}

TEST_F(Writers, FourAtATimeAllSucceedAndLeaveOneOfTheTexts) {
  const std::vector<pid_t> writers = {start(100), start(100), start(100), start(100)};
  for (const pid_t writer : writers) {
    int status = 0;
    while (::waitpid(writer, &status, WNOHANG) == 0) expect_whole();
    EXPECT_EQ(status, 0);
  }
  expect_whole();
  expect_file_alone();
}

// A stopped writer may keep its new file locked. Other writers do not wait for it, and it finishes when it is
// continued.
TEST_F(Writers, ThatAreStoppedDoNotBlockOthersAndFinishLater) {
  const pid_t writer = start(300);
  int stopped = 0;
  int kept = 0;
  for (int i = 0; i < 300 && stopped < 20; ++i) {
    sleep_a_while();
    ::kill(writer, SIGSTOP);
    int status = 0;
    ASSERT_EQ(::waitpid(writer, &status, WUNTRACED), writer);
    if (!WIFSTOPPED(status)) break;
    if (const std::vector<std::string> held = new_files(); !held.empty()) {
      ++stopped;
      StubWriter e(kLongPort);
      EXPECT_EQ(e.engine.Generate(), 0);
      EXPECT_EQ(content(), kLongText);
      // A writer stopped before it locked its new file loses the file, and creates another one when it is continued.
      const std::vector<std::string> now = new_files();
      EXPECT_TRUE(now.empty() || now == held);
      kept += now.empty() ? 0 : 1;
    }
    ::kill(writer, SIGCONT);
  }
  ::kill(writer, SIGCONT);
  int status = 0;
  ::waitpid(writer, &status, 0);
  EXPECT_EQ(status, 0);
  std::cout << stopped << " stopped with a new file, which " << kept << " still had afterwards\n";
  EXPECT_GT(kept, 0);
  expect_whole();
  expect_file_alone();
}

// --- Readers ---

TEST_F(Writers, AreReadAsOneOfTheTexts) {
  const pid_t writer = start(0);
  std::vector<int> seen(2);
  for (int i = 0; i < 5000 || (seen[0] * seen[1] == 0 && i < 100000); ++i) {
    SelectedEngine e;
    ASSERT_EQ(QvtOption_Parser::ReadQvtOptFile("p", e.imp), 0);
    const bool isNew = e.processor.command == kNewText;
    EXPECT_TRUE(isNew || e.processor.command == kLongText.substr(0, 1023));
    ++seen[isNew ? 0 : 1];
  }
  EXPECT_GT(seen[0], 0);
  EXPECT_GT(seen[1], 0);
  kill_now(writer);
}

// An editor that writes into the file without replacing it. A reader may see any part of it, but must return one of the
// documented results.
TEST_F(Writers, ThatChangeTheFileInPlaceDoNoHarmToReaders) {
  const pid_t editor = ::fork();
  if (editor == 0) {
    for (std::size_t i = 0;; ++i) {
      std::ofstream(file()) << std::string(i % 5000, '\n') << "connect ov sim\n" << std::string(3000, 'x');
    }
  }
  for (int i = 0; i < 5000; ++i) {
    SelectedEngine e;
    const int status = QvtOption_Parser::ReadQvtOptFile("p", e.imp);
    EXPECT_TRUE(status == 0 || status == 3 || status == 4) << status;
    EXPECT_LE(e.processor.command.size(), 1023U);
    EXPECT_EQ(e.processor.command.empty(), status == 4);
    EXPECT_EQ(e.error(), "");
  }
  kill_now(editor);
}

}  // namespace
