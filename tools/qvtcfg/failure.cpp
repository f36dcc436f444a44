#include "failure.h"

#include "text.h"

namespace qvtcfg {
namespace {

using SdkDebugDialog::ErrorCode;
using SdkDebugDialog::Finding;
using SdkDebugDialog::Severity;

ExitCode exit_code(ErrorCode code) {
  switch (code) {
    case ErrorCode::noSuchSetting:
    case ErrorCode::invalidValue:
      return kUsage;
    case ErrorCode::notUnderstood:
      return kNotUnderstood;
    case ErrorCode::file:
      return kFile;
    case ErrorCode::noSuchProcessor:
    case ErrorCode::refused:
    case ErrorCode::cannotBeWritten:
    case ErrorCode::wouldLose:
    case ErrorCode::changedMeanwhile:
      break;
  }
  return kRefused;
}

std::string without_name(const std::string& message, std::string_view name) {
  const std::string start = std::string(name) + ": ";
  return message.starts_with(start) ? message.substr(start.size()) : message;
}

std::vector<Finding> errors_of(const SdkDebugDialog::Error& error, const TextRead& text) {
  if (error.code != ErrorCode::notUnderstood) return {};
  std::vector<Finding> findings = SdkDebugDialog::diagnose(text.text, text.kind, text.processor);
  std::erase_if(findings, [](const Finding& finding) { return finding.severity != Severity::error; });
  return findings;
}

// The reader can stop behind the word that is wrong; the place is that of the first error, which is shown below.
std::string not_understood(const TextRead& text, const std::vector<Finding>& errors) {
  const Finding& first = errors.front();
  const std::string word = one_line(std::string_view(text.text).substr(first.begin, first.end - first.begin), 60);
  return "the text is not understood" + (word.empty() ? "" : " at '" + word + "'");
}

}  // namespace

Failure::Failure(const SdkDebugDialog::Error& error, const std::string& subject, const std::string& advice,
                 std::string_view name)
    : std::runtime_error((subject.empty() ? "" : subject + ": ") + without_name(error.message, name) + advice),
      m_code(exit_code(error.code)),
      m_engine_text(error.engineText) {}

Failure::Failure(const SdkDebugDialog::Error& error, const TextRead& text, const std::string& advice,
                 std::string_view name)
    : Failure(error, text, errors_of(error, text), advice, name) {}

Failure::Failure(const SdkDebugDialog::Error& error, const TextRead& text, std::vector<Finding> findings,
                 const std::string& advice, std::string_view name)
    : std::runtime_error(text.name + ": " +
                         (findings.empty() ? without_name(error.message, name) : not_understood(text, findings)) +
                         advice),
      m_code(exit_code(error.code)),
      m_engine_text(error.engineText),
      m_text(text),
      m_findings(std::move(findings)) {}

}  // namespace qvtcfg
