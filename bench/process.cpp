// The whole process "qvtcfg command". With a design of usual size, compared with an empty program that links the
// library; with a very large one, compared with a program that only parses the file. And "qvtcfg check" with many
// option files, compared with a program that only reads them.

#include <fcntl.h>
#include <spawn.h>
#include <stdio.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "bench/design_file.h"
#include "bench/folder.h"
#include "bench/suite.h"
#include "bench/texts.h"

namespace bench {
namespace {

using Words = std::vector<std::string>;

Words qvtcfg(const std::filesystem::path& design) {
  return {QVTCFG, "-C", work_folder(), "--design", design, "command", "ovrin_0"};
}

// Runs a program with its output discarded. Returns whether it exited with 0.
bool run(const Words& words) {
  std::vector<char*> arguments;
  for (const std::string& word : words) arguments.push_back(const_cast<char*>(word.c_str()));
  arguments.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  pid_t child = 0;
  const bool started = posix_spawn(&child, arguments[0], &actions, nullptr, arguments.data(), environ) == 0;
  posix_spawn_file_actions_destroy(&actions);
  int status = 0;
  return started && waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

std::string output(const Words& words) {
  std::string line;
  for (const std::string& word : words) line += '\'' + word + "' ";
  FILE* const pipe = popen(line.c_str(), "r");
  if (pipe == nullptr) return {};
  std::string text;
  for (int c = 0; (c = std::fgetc(pipe)) != EOF;) text += static_cast<char>(c);
  pclose(pipe);
  return text;
}

void add_program(const Work& work, const char* who, const Words& words) {
  expect(run(words), work, who);
  add(
      work, who, [words] { benchmark::DoNotOptimize(run(words)); }, Clock::wall);
}

}  // namespace

void add_process() {
  const Work work = {"qvtcfg command"};
  const Words ours = qvtcfg(example_design("large.json"));
  expect(output(ours) == hardware_text() + "\n", work, kOurs);
  add_program(work, kOurs, ours);
  add_program(work, "empty program", {EMPTY_PROGRAM});
}

void add_many_files() {
  constexpr std::size_t kFiles = 10000;
  const Work work = {"qvtcfg check, 10,000"};
  const std::filesystem::path folder = many_option_files(kFiles);
  const Words ours = {QVTCFG, "-C", folder, "check"};
  expect(output(ours) == std::to_string(kFiles) + " files: nothing found\n", work, kOurs);
  add_program(work, kOurs, ours);
  add_program(work, "cat", {"/bin/sh", "-c", "cat '" + folder.string() + "'/etc/*.opt"});
}

void add_large_design() {
  const Work work = {"qvtcfg command, 100,000"};
  const std::filesystem::path design = work_folder() / "design.json";
  write_design_file(design, 100000);
  const Words ours = qvtcfg(design);
  expect(output(ours) == hardware_text() + "\n", work, kOurs);
  add_program(work, kOurs, ours);
  add_program(work, "nlohmann::json document", {PARSE_JSON, design});

  Words measured = ours;
  measured.insert(measured.begin(), PEAK);
  const double peak = std::strtod(output(measured).c_str(), nullptr);
  expect(peak > 0, {"peak memory"}, kOurs);
  footprints().push_back({"peak memory of that", peak, "the file", static_cast<double>(file_size(design)), 4});
}

}  // namespace bench
