#include "failure.h"

#include <algorithm>
#include <new>

#include "text.h"

namespace qvtcfg {
namespace {

using SdkDebugDialog::ErrorCode;
using SdkDebugDialog::Finding;
using SdkDebugDialog::Severity;

constexpr ErrorName kErrorNames[] = {
    {"noSuchProcessor", kRefused, "the design has no processor of this name that can be debugged"},
    {"refused", kRefused, "a value is not accepted, a setting does not apply, or the design does not admit it"},
    {"cannotBeWritten", kRefused, "there is no connect command for these settings"},
    {"wouldLose", kRefused, "storing would lose something, or what is stored would not be read back"},
    {"changedMeanwhile", kRefused, "another program has changed the file meanwhile"},
    {"usage", kUsage, "the command line is wrong"},
    {"noSuchSetting", kUsage, "no setting has this name"},
    {"invalidValue", kUsage, "the setting can never have this value"},
    {"notUnderstood", kNotUnderstood,
     "a connect command, an option file, or a text of cable and chain is not understood"},
    {"file", kFile, "a file, a folder, or standard input cannot be used"},
    {"outOfMemory", kFile, "there is not enough memory"},
    {"system", kFile, "another error of the system"},
};

const ErrorName& error_named(std::string_view name) { return *std::ranges::find(kErrorNames, name, &ErrorName::name); }

const ErrorName& error_of(ErrorCode code) {
  // In the order of ErrorCode.
  constexpr const char* kNames[] = {"noSuchProcessor", "noSuchSetting", "invalidValue",     "refused", "notUnderstood",
                                    "cannotBeWritten", "wouldLose",     "changedMeanwhile", "file"};
  return error_named(kNames[static_cast<std::size_t>(code)]);
}

// The most general error with this exit code.
const ErrorName& error_of(ExitCode code) {
  switch (code) {
    case kUsage:
      return error_named("usage");
    case kNotUnderstood:
      return error_named("notUnderstood");
    case kFile:
      return error_named("file");
    case kDone:
    case kRefused:
    case kDiffers:
      break;
  }
  return error_named("refused");
}

bool is_out_of_memory(const std::exception& error) { return dynamic_cast<const std::bad_alloc*>(&error) != nullptr; }

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

std::span<const ErrorName> error_names() { return kErrorNames; }

Failure::Failure(ExitCode code, const std::string& text) : std::runtime_error(text), m_kind(&error_of(code)) {}

Failure::Failure(const std::string& text, std::vector<SdkDebugDialog::Loss> losses)
    : std::runtime_error(text), m_kind(&error_named("wouldLose")), m_losses(std::move(losses)) {}

Failure::Failure(const std::exception& error)
    : std::runtime_error(is_out_of_memory(error) ? "out of memory" : error.what()),
      m_kind(&error_named(is_out_of_memory(error) ? "outOfMemory" : "system")) {}

Failure::Failure(const SdkDebugDialog::Error& error, const std::string& subject, const std::string& advice,
                 std::string_view name)
    : std::runtime_error((subject.empty() ? "" : subject + ": ") + without_name(error.message, name) + advice),
      m_kind(&error_of(error.code)),
      m_engine_text(error.engineText) {}

Failure::Failure(const SdkDebugDialog::Error& error, const TextRead& text, const std::string& advice,
                 std::string_view name)
    : Failure(error, text, errors_of(error, text), advice, name) {}

Failure::Failure(const SdkDebugDialog::Error& error, const TextRead& text, std::vector<Finding> findings,
                 const std::string& advice, std::string_view name)
    : std::runtime_error(text.name + ": " +
                         (findings.empty() ? without_name(error.message, name) : not_understood(text, findings)) +
                         advice),
      m_kind(&error_of(error.code)),
      m_engine_text(error.engineText),
      m_text(text),
      m_findings(std::move(findings)) {}

}  // namespace qvtcfg
