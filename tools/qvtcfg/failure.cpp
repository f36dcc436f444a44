#include "failure.h"

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

}  // namespace

Failure::Failure(const SdkDebugDialog::Error& error, const std::string& subject, const std::string& advice,
                 std::string_view name)
    : std::runtime_error((subject.empty() ? "" : subject + ": ") + without_name(error.message, name) + advice),
      m_code(exit_code(error.code)),
      m_engine_text(error.engineText) {}

Failure::Failure(const SdkDebugDialog::Error& error, TextRead text, const std::string& advice, std::string_view name)
    : Failure(error, text.name, advice, name) {
  if (error.code != ErrorCode::notUnderstood) return;
  m_text = std::move(text);
  m_findings = SdkDebugDialog::diagnose(m_text.text, m_text.kind, m_text.processor);
  std::erase_if(m_findings, [](const Finding& finding) { return finding.severity != Severity::error; });
}

}  // namespace qvtcfg
