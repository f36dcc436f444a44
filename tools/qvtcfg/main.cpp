#include <SdkDebugDialog/platform/ComMsgMgr.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <exception>
#include <string_view>

#include "command_line.h"
#include "complete.h"
#include "failure.h"
#include "finding_text.h"
#include "output.h"
#include "print.h"
#include "report.h"
#include "text.h"

namespace qvtcfg {
namespace {

// Discards the engine's messages: their texts are reported as Failure.
void ignore_message(int /*type*/, const char* /*id*/, unsigned int /*mask*/, const char* /*text*/) {}

void enter(const std::string& directory) {
  if (directory.empty() || chdir(directory.c_str()) == 0) return;
  throw Failure(kFile, one_line(directory) + ": " + std::strerror(errno) + "; -C needs a folder");
}

ExitCode run(int argc, const char* const* argv) {
  Output out;
  if (argc > 1 && argv[1] == std::string_view("complete")) return complete({argv + 2, argv + argc}, out);
  Arguments arguments;
  ExitCode code = kDone;
  if (const Run command = parse_command_line(argc, argv, arguments, out)) {
    enter(arguments.directory);
    code = command(arguments, out);
  }
  out.flush();
  return code;
}

// Also for a command line that cannot be parsed.
bool wants_json(int argc, const char* const* argv) {
  const auto* const end = std::find(argv, argv + argc, std::string_view("--"));
  return std::find(argv, end, std::string_view("--json")) != end;
}

void print_json(const Failure& failure) {
  Json error = {
      {"code", failure.code()}, {"message", one_line(failure.what())}, {"losses", losses_json(failure.losses())}};
  if (!failure.engine_text().empty()) error["note"] = one_line(failure.engine_text());
  if (!failure.findings().empty()) {
    const Lines lines(failure.text().text);
    Json& findings = error["findings"] = Json::array();
    for (const auto& finding : failure.findings()) {
      findings.push_back(finding_json(finding, lines, failure.text().name, lines));
    }
  }
  Output out;
  out.json({{"error", std::move(error)}});
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

ExitCode report(const Failure& failure, bool json) {
  complain(failure.what());
  print_findings(failure);
  if (!failure.engine_text().empty()) complain("note: the engine says: " + one_line(failure.engine_text()));
  for (const auto& loss : failure.losses()) {
    std::fprintf(stderr, "  %s: %s\n", one_line(loss.what).c_str(), one_line(loss.why).c_str());
  }
  try {
    if (json) print_json(failure);
  } catch (const Failure&) {
    // Standard output cannot be used; the error is on standard error.
  }
  return failure.code();
}

}  // namespace
}  // namespace qvtcfg

int main(int argc, char** argv) {
  ComMsgMgr::setSink(qvtcfg::ignore_message);
  const bool json = qvtcfg::wants_json(argc, argv);
  try {
    return qvtcfg::run(argc, argv);
  } catch (const qvtcfg::Failure& failure) {
    return qvtcfg::report(failure, json);
  } catch (const std::exception& error) {
    // Other system errors, such as no memory or no working directory.
    return qvtcfg::report(qvtcfg::Failure(qvtcfg::kFile, error.what()), json);
  }
}
