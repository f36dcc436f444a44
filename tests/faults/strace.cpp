#include "tests/faults/strace.h"

#include <sys/wait.h>

#include <cstdio>
#include <fstream>
#include <map>

#include "tests/options/work_folder.h"

namespace {

// The output of a shell command.
std::string output_of(const std::string& command) {
  std::string text;
  FILE* const pipe = ::popen(command.c_str(), "r");
  if (pipe == nullptr) return "no shell";
  for (int c = std::fgetc(pipe); c != EOF; c = std::fgetc(pipe)) text += static_cast<char>(c);
  ::pclose(pipe);
  return text;
}

}  // namespace

std::string why_no_strace() { return output_of("strace -o /dev/null true 2>&1 || echo failed"); }

Trace run_traced(const std::filesystem::path& folder, const std::string& mode,
                 const std::vector<std::string>& injections) {
  const std::filesystem::path log = folder / "trace";
  // The leak checker does not work in a traced process.
  std::string command = "exec 2>&1; ASAN_OPTIONS=detect_leaks=0 strace -o '" + log.string() + "'";
  for (const std::string& injection : injections) command += " -e inject=" + injection;
  Trace trace;
  trace.output = output_of(command + " '" FAULTS_HELPER "' " + mode);

  std::map<std::string, int> inProcess;
  std::map<std::string, int> inWork;
  bool working = false;
  std::ifstream lines(log);
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with("+++")) trace.end = line;
    const std::string name = line.substr(0, line.find('('));
    ++inProcess[name];
    if (line.find("\"begin\"") != std::string::npos) {
      working = true;
    } else if (line.find("\"end\"") != std::string::npos) {
      working = false;
    } else if (working && line.find('(') != std::string::npos && line[0] != '-' && line[0] != '+') {
      trace.calls.push_back({name, ++inWork[name], inProcess[name], line});
      if (line.find("(INJECTED)") != std::string::npos) ++trace.injected;
    }
  }
  return trace;
}
