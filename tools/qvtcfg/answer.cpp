#include "answer.h"

#include <utility>

#include "command_line.h"
#include "print.h"
#include "report.h"
#include "text.h"

namespace qvtcfg {
namespace {

Json envelope(const std::string& subcommand, ExitCode code, const char* member, Json content) {
  Json document = {{"formatVersion", kFormatVersion},
                   {"subcommand", text_or_null(subcommand)},
                   {"exitCode", code},
                   {"warnings", warnings()}};
  document[member] = std::move(content);
  return document;
}

}  // namespace

Json answer(const std::string& subcommand, ExitCode code, Json result) {
  return envelope(subcommand, code, "result", std::move(result));
}

Json answer(const std::string& subcommand, const Failure& failure) {
  const TextRead& text = failure.text();
  const Json file = text.kind == SdkDebugDialog::TextKind::optionFile ? Json(text.name) : Json();
  const Lines lines(text.text);
  Json findings = Json::array();
  for (const auto& finding : failure.findings()) findings.push_back(finding_json(finding, lines, file, lines));
  return envelope(subcommand, failure.code(), "error",
                  {{"code", failure.name()},
                   {"message", one_line(failure.what(), kLongestMessage)},
                   {"note", text_or_null(one_line(failure.engine_text()))},
                   {"file", file},
                   {"losses", losses_json(failure.losses())},
                   {"findings", std::move(findings)}});
}

Json text_or_null(const std::string& text) { return text.empty() ? Json() : Json(text); }

Json place_json(std::size_t begin, std::size_t end, const Lines& lines) {
  const Position first = lines.position(begin);
  const Position last = lines.position(end);
  return {{"line", first.line},       {"column", first.column}, {"endLine", last.line},
          {"endColumn", last.column}, {"offset", begin},        {"length", end - begin}};
}

}  // namespace qvtcfg
