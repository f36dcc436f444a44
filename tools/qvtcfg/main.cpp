#include <SdkDebugDialog/platform/ComMsgMgr.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <exception>
#include <new>
#include <string>
#include <string_view>
#include <vector>

#include "answer.h"
#include "command_line.h"
#include "complete.h"
#include "failure.h"
#include "finding_text.h"
#include "output.h"
#include "text.h"

namespace qvtcfg {
namespace {

// Discards the engine's messages: their texts are reported as Failure.
void ignore_message(int /*type*/, const char* /*id*/, unsigned int /*mask*/, const char* /*text*/) {}

void enter(const std::string& directory) {
  if (directory.empty() || chdir(directory.c_str()) == 0) return;
  throw Failure(kFile, one_line(directory) + ": " + std::strerror(errno) + "; -C needs a folder");
}

// The answer when the program is out of memory, made beforehand; empty for text.
std::string& out_of_memory_answer() {
  static std::string text;
  return text;
}

// Ends the program at once: to unwind can need memory too, because the destructors of JSON values allocate.
[[noreturn]] void end_out_of_memory() {
  static std::atomic_flag ending;
  while (ending.test_and_set()) pause();  // another thread ends the program
  constexpr std::string_view kMessage = "qvtcfg: out of memory\n";
  const std::string& answer = out_of_memory_answer();
  // What cannot be written cannot be told either.
  if (write(STDERR_FILENO, kMessage.data(), kMessage.size()) < 0) _exit(kFile);
  if (!answer.empty() && write(STDOUT_FILENO, answer.data(), answer.size()) < 0) _exit(kFile);
  _exit(kFile);
}

void prepare_for_out_of_memory(const Arguments& arguments) {
  if (arguments.json) {
    Output out;
    out.json(answer(arguments.subcommand, Failure(std::bad_alloc())));
    out_of_memory_answer() = out.take_text();
  }
  std::set_new_handler(end_out_of_memory);
}

ExitCode run(int argc, const char* const* argv, Arguments& arguments) {
  Output out;
  if (argc > 1 && argv[1] == std::string_view("complete")) return complete({argv + 2, argv + argc}, out);
  ExitCode code = kDone;
  if (const Run command = parse_command_line(argc, argv, arguments, out)) {
    prepare_for_out_of_memory(arguments);
    enter(arguments.directory);
    code = command(arguments, out);
    if (arguments.json) out.json(answer(arguments.subcommand, code, out.take_result()));
  }
  out.flush();
  return code;
}

void print_json(const Failure& failure, const Arguments& arguments) {
  Output out;
  out.json(answer(arguments.subcommand, failure));
  out.flush();
}

void print_findings(const Failure& failure) {
  const Lines lines(failure.text().text);
  const Source source{failure.text().name, &lines};
  const Look look = look_of(STDERR_FILENO);
  constexpr std::size_t kMost = 10;
  const auto& findings = failure.findings();
  for (std::size_t i = 0; i < std::min(kMost, findings.size()); ++i) {
    std::fputs(finding_text(findings[i], source, source, look).c_str(), stderr);
  }
  if (findings.size() > kMost) {
    std::fprintf(stderr, "  ... and %zu more; 'qvtcfg check' shows all\n", findings.size() - kMost);
  }
}

void print(const Failure& failure) {
  complain(failure.what());
  print_findings(failure);
  if (!failure.engine_text().empty()) complain("note: the engine says: " + one_line(failure.engine_text()));
  for (const auto& loss : failure.losses()) {
    std::fprintf(stderr, "  %s: %s\n", one_line(loss.what).c_str(), one_line(loss.why).c_str());
  }
}

ExitCode report(const Failure& failure, const Arguments& arguments) {
  print(failure);
  try {
    if (arguments.json) print_json(failure, arguments);
  } catch (const OutputFailure&) {
    // The error is on standard error.
  }
  return failure.code();
}

ExitCode run_and_report(int argc, const char* const* argv) {
  Arguments arguments;
  try {
    return run(argc, argv, arguments);
  } catch (const OutputFailure& failure) {
    // A part of an answer may have been written: nothing may follow it.
    print(failure);
    return failure.code();
  } catch (const Failure& failure) {
    return report(failure, arguments);
  } catch (const std::exception& error) {
    return report(Failure(error), arguments);
  }
}

}  // namespace
}  // namespace qvtcfg

int main(int argc, char** argv) {
  ComMsgMgr::setSink(qvtcfg::ignore_message);
  return qvtcfg::run_and_report(argc, argv);
}
