#include "session.h"

#include <SdkDebugDialog/OptionFile.h>
#include <SdkDebugDialog/platform/DesignFile.h>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <system_error>
#include <utility>

#include "failure.h"
#include "given_text.h"
#include "text.h"

namespace qvtcfg {
namespace {

using SdkDebugDialog::Configuration;
using SdkDebugDialog::Design;
using SdkDebugDialog::Edit;
using SdkDebugDialog::ErrorCode;
using SdkDebugDialog::kLongestLine;
using SdkDebugDialog::Loss;
using SdkDebugDialog::OnLoss;
using SdkDebugDialog::option_file_path;
using SdkDebugDialog::Processor;
using SdkDebugDialog::read_option_file;
using SdkDebugDialog::TextKind;

constexpr const char* kDefaultDesign = "design.json";

std::string_view first_line(std::string_view content) {
  content.remove_prefix(std::min(content.find_first_not_of('\n'), content.size()));
  return content.substr(0, content.find('\n'));
}

}  // namespace

Design load_design(const Arguments& arguments) {
  try {
    return Design(std::make_shared<DesignFile>(DesignFile::load(arguments.design.value_or(kDefaultDesign))));
  } catch (const DesignFileError& error) {
    throw Failure(kFile, arguments.seen_from_outside(error.what()) + "; --design FILE names another design");
  }
}

std::optional<Design> load_design_if_any(const Arguments& arguments) {
  if (!arguments.design && !std::filesystem::exists(std::filesystem::symlink_status(kDefaultDesign))) {
    return std::nullopt;
  }
  return load_design(arguments);
}

Processor find_processor(const Design& design, const std::string& name) {
  return require(design.find(name), "", "; 'qvtcfg processors' lists the processors");
}

OptionFile file_at(const std::string& path, const Arguments& arguments) {
  auto content = read_option_file(path);
  return {path, arguments.seen_from_outside(path), content ? std::move(*content) : std::nullopt};
}

OptionFile option_file_of(const Processor& processor, const Arguments& arguments) {
  return file_at(option_file_path(processor.name()), arguments);
}

Configuration open_configuration(const Processor& processor, const OptionFile& file) {
  std::string advice = "; correct the file";
  if (file.path == option_file_path(processor.name())) {
    advice += ", or replace it with 'qvtcfg read " + processor.name() + " TEXT --write'";
  }
  const std::string_view line = first_line(file.content ? *file.content : std::string_view());
  require_text({std::string(line.substr(0, kLongestLine)), file.shown}, advice);
  auto configuration = Configuration::open(processor, file.path);
  if (!configuration && configuration.error().code == ErrorCode::file) {
    advice = "; it contains the settings of the processor: make it readable first";
  }
  if (!configuration) {
    const TextRead text{file.shown, file.content.value_or(""), TextKind::optionFile, processor};
    throw Failure(configuration.error(), text, advice, file.path);
  }
  if (line.size() > kLongestLine) {
    warn(file.shown + ": the command is longer than " + std::to_string(kLongestLine) +
         " characters, and the rest is not read");
  }
  return *configuration;
}

std::string command_in(std::string_view content) { return std::string(SdkDebugDialog::option_line(content)); }

void require_safe(const Edit& edit, const OptionFile& file, bool force, const std::vector<std::string>& warnings) {
  for (const std::string& warning : warnings) {
    if (force || edit.is_safe()) warn(warning);
  }
  if (edit.is_safe()) return;
  std::vector<std::string> lost;
  for (const Loss& loss : edit.losses) lost.push_back(loss.what);
  std::string text = file.shown + ": " + edit.notReadBack;
  if (!lost.empty()) text += (edit.notReadBack.empty() ? "would lose " : "; would lose ") + join(lost);
  if (force) {
    warn(text);
  } else {
    for (const std::string& warning : warnings) text += "; " + warning;
    throw Failure(text + "; --force stores it nevertheless", edit.losses);
  }
}

bool would_change(const Edit& edit, const OptionFile& file) {
  return file.content ? edit.text != *file.content : !edit.differences.empty();
}

void store(Configuration& configuration, const Edit& edit, const OptionFile& file, const Arguments& arguments) {
  const std::filesystem::path folder = std::filesystem::path(file.path).parent_path();
  std::error_code error;
  std::filesystem::create_directory(folder, error);
  if (error && !std::filesystem::exists(folder)) {
    throw Failure(kFile,
                  arguments.seen_from_outside(folder) + ": " + error.message() + "; option files are kept there");
  }
  require(configuration.store(edit, file.path, OnLoss::goOn), file.shown, "", file.path);
}

}  // namespace qvtcfg
