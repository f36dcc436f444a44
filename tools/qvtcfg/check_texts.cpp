#include "check_texts.h"

#include <SdkDebugDialog/OptionFile.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <iterator>
#include <map>
#include <utility>

#include "given_text.h"
#include "parallel.h"
#include "text.h"

namespace qvtcfg {
namespace {

using SdkDebugDialog::Configuration;
using SdkDebugDialog::Design;
using SdkDebugDialog::diagnose;
using SdkDebugDialog::diagnose_together;
using SdkDebugDialog::Finding;
using SdkDebugDialog::Fix;
using SdkDebugDialog::Processor;
using SdkDebugDialog::replace_option_file;
using SdkDebugDialog::Severity;
using SdkDebugDialog::SharedFinding;
using SdkDebugDialog::SideBySide;
using SdkDebugDialog::TextKind;
using SdkDebugDialog::with_fixes;

// --- Reading ---

class Descriptor {
 public:
  explicit Descriptor(int number) : m_number(number) {}
  ~Descriptor() {
    if (m_number > STDERR_FILENO) close(m_number);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  int number() const { return m_number; }

 private:
  int m_number;
};

void read_all(int descriptor, Checked& checked) {
  Content content = read_to_end(descriptor);
  checked.text = std::move(content.text);
  checked.cut = content.cut;
  checked.error = std::move(content.error);
}

// Opening another kind of file can block or have side effects.
bool is_regular(int result, const struct stat& status, std::string& error) {
  if (result != 0) {
    error = std::strerror(errno);
  } else if (S_ISDIR(status.st_mode)) {
    error = "is a directory";
  } else if (!S_ISREG(status.st_mode)) {
    error = "is no regular file";
  }
  return error.empty();
}

void read_file(Checked& checked) {
  struct stat status = {};
  const char* const path = checked.input.path.c_str();
  if (!is_regular(stat(path, &status), status, checked.error)) return;
  const Descriptor file(open(path, O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
  if (!is_regular(fstat(file.number(), &status), status, checked.error)) return;
  read_all(file.number(), checked);
}

void read_standard_input(Checked& checked) {
  read_all(STDIN_FILENO, checked);
  // The newline is not part of a command.
  if (checked.input.kind != TextKind::optionFile) {
    checked.text.erase(checked.text.find_last_not_of('\n') + 1);
  }
}

// --- Checking ---

bool is_error(const Located& located) { return located.finding.severity == Severity::error; }

void examine(Checked& checked, const std::optional<Design>& design) {
  Processor processor;
  checked.findings.clear();
  checked.configuration.reset();
  bool gone = false;
  if (design && !checked.input.processor.empty()) {
    auto found = design->find(checked.input.processor);
    gone = !found;
    if (gone) {
      checked.findings.push_back({no_such_processor(found.error()), std::nullopt});
    } else {
      processor = std::move(*found);
    }
  }
  for (Finding& finding : diagnose(checked.text, checked.input.kind, processor)) {
    checked.findings.push_back({std::move(finding), std::nullopt});
  }
  if (checked.input.kind != TextKind::optionFile || gone) return;
  if (std::ranges::any_of(checked.findings, is_error)) return;
  if (auto configuration = Configuration::read(std::move(processor), checked.text, checked.input.kind)) {
    checked.configuration = std::move(*configuration);
  }
}

void read_and_examine(Checked& checked, const std::optional<Design>& design) {
  if (!checked.error.empty()) return;
  if (checked.input.path.empty()) {
    read_standard_input(checked);
  } else {
    read_file(checked);
  }
  if (checked.error.empty()) examine(checked, design);
}

bool has_safe_fix(const Located& located) { return std::ranges::any_of(located.finding.fixes, &Fix::safe); }

// Returns why the file cannot be written; empty if it is.
std::string write_fixed(const Checked& checked, const std::string& text) {
  const auto done = replace_option_file(checked.input.path, checked.text, text);
  if (done) return "";
  const std::string name = checked.input.path + ": ";
  const std::string& message = done.error().message;
  return message.starts_with(name) ? message.substr(name.size()) : message;
}

}  // namespace

void check_texts(std::vector<Checked>& texts, const std::optional<Design>& design) {
  for_each_in_parallel(
      texts.size(), [&](std::size_t i) { read_and_examine(texts[i], design); }, "files checked");
}

void fix_texts(std::vector<Checked>& texts, const std::optional<Design>& design, bool dry_run) {
  for (Checked& checked : texts) {
    if (!checked.can_be_fixed() || std::ranges::none_of(checked.findings, has_safe_fix)) continue;
    std::vector<Finding> fixable;
    for (const Located& located : checked.findings) {
      if (has_safe_fix(located)) fixable.push_back(located.finding);
    }
    std::string fixed = with_fixes(checked.text, fixable);
    if (!dry_run) checked.error = write_fixed(checked, fixed);
    if (!checked.error.empty()) continue;
    checked.fixed = std::move(fixable);
    checked.before = std::exchange(checked.text, std::move(fixed));
    examine(checked, design);
  }
}

void compare_texts(std::vector<Checked>& texts) {
  std::map<std::string, std::vector<std::size_t>> folders;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    if (!texts[i].configuration) continue;
    const std::string& path = texts[i].input.path;
    folders[path.substr(0, path.rfind('/') + 1)].push_back(i);
  }
  for (const auto& [folder, members] : folders) {
    if (members.size() < 2) continue;
    std::vector<SideBySide> configurations;
    configurations.reserve(members.size());
    for (const std::size_t i : members) {
      const Checked& checked = texts[i];
      configurations.push_back({checked.input.shown, &*checked.configuration, checked.text, TextKind::optionFile});
    }
    for (SharedFinding& shared : diagnose_together(configurations)) {
      texts[members[shared.configuration]].findings.push_back({std::move(shared.finding), members[shared.other]});
    }
  }
  for (Checked& checked : texts) {
    std::ranges::stable_sort(checked.findings, {}, [](const Located& located) { return located.finding.begin; });
  }
}

}  // namespace qvtcfg
