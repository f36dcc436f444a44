#include "check_inputs.h"

#include <SdkDebugDialog/OptionFile.h>
#include <dirent.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <memory>
#include <set>
#include <string_view>
#include <tuple>

#include "failure.h"
#include "session.h"
#include "text.h"

namespace qvtcfg {
namespace {

using SdkDebugDialog::Design;
using SdkDebugDialog::option_file_path;
using SdkDebugDialog::TextKind;

constexpr std::string_view kPrefix = "qvt_";
constexpr std::string_view kSuffix = ".opt";

std::string_view file_name(std::string_view path) { return path.substr(path.rfind('/') + 1); }

bool is_option_file_name(std::string_view name) {
  return name.size() > kPrefix.size() + kSuffix.size() && name.starts_with(kPrefix) && name.ends_with(kSuffix);
}

std::string processor_of(std::string_view path) {
  std::string_view name = file_name(path);
  if (!is_option_file_name(name)) return "";
  name.remove_prefix(kPrefix.size());
  name.remove_suffix(kSuffix.size());
  return std::string(name);
}

TextKind kind_of(const std::optional<std::string>& given, TextKind otherwise) {
  if (!given) return otherwise;
  if (*given == "command") return TextKind::command;
  return *given == "cable" ? TextKind::cableText : TextKind::optionFile;
}

// The option files in a folder, sorted; with the folder's own name in front. errno tells why the folder cannot be read,
// or is 0.
std::vector<std::string> option_files_in(const std::string& folder) {
  errno = 0;
  std::vector<std::string> paths;
  const std::unique_ptr<DIR, int (*)(DIR*)> stream(opendir(folder.c_str()), closedir);
  if (!stream) return paths;
  const std::string start = folder.ends_with('/') ? folder : folder + "/";
  while (const dirent* const entry = readdir(stream.get())) {
    if (is_option_file_name(entry->d_name)) paths.push_back(start + entry->d_name);
  }
  std::ranges::sort(paths);
  return paths;
}

class Finder {
 public:
  Finder(const Arguments& arguments, const std::optional<Design>& design) : m_arguments(arguments), m_design(design) {}

  void add_working_directory() {
    const std::vector<std::string> paths = option_files_in("etc");
    if (paths.empty() && errno != 0 && errno != ENOENT) return add_file("etc", std::strerror(errno));
    if (paths.empty() && !m_design) {
      throw Failure(kFile, "this folder has no design.json and no option file etc/qvt_NAME.opt; -C DIR names another");
    }
    for (const std::string& path : paths) add_file(path);
  }

  void add(const std::string& operand) {
    if (operand == "-") {
      add_text({"", "<stdin>", kind_of(m_arguments.text_kind, TextKind::command), ""}, "");
    } else if (m_design && m_design->find(operand)) {
      add_processor(operand);
    } else {
      add_path(operand);
    }
  }

  Inputs found() && {
    std::vector<Checked>& texts = m_found.texts;
    const auto shown = [](const Checked& checked) -> const std::string& { return checked.input.shown; };
    std::ranges::stable_sort(texts, {}, shown);
    const auto same = [&](const Checked& a, const Checked& b) { return shown(a) == shown(b); };
    texts.erase(std::unique(texts.begin(), texts.end(), same), texts.end());
    std::vector<std::string>& defaults = m_found.defaults;
    std::ranges::sort(defaults);
    defaults.erase(std::unique(defaults.begin(), defaults.end()), defaults.end());
    return std::move(m_found);
  }

 private:
  void add_text(Input input, std::string error) {
    Checked& checked = m_found.texts.emplace_back();
    checked.input = std::move(input);
    checked.error = std::move(error);
  }

  void add_file(std::string path, const std::string& error = "") {
    while (path.starts_with("./") && path.size() > 2) path.erase(0, 2);
    const std::string processor = processor_of(path);
    if (is_known(path, processor)) return;
    const TextKind kind =
        processor.empty() ? kind_of(m_arguments.text_kind, TextKind::optionFile) : TextKind::optionFile;
    add_text({path, m_arguments.seen_from_outside(path), kind, m_design ? processor : ""}, error);
  }

  // Whether the file was added before under another name. A link for another processor is a file of its own.
  bool is_known(const std::string& path, const std::string& processor) {
    struct stat status = {};
    return stat(path.c_str(), &status) == 0 && !m_known.emplace(status.st_dev, status.st_ino, processor).second;
  }

  void add_processor(const std::string& name) {
    const std::string path = option_file_path(name);
    struct stat status = {};
    if (lstat(path.c_str(), &status) != 0 && errno == ENOENT) {
      m_found.defaults.push_back(name);
    } else {
      add_file(path);
    }
  }

  void add_path(const std::string& operand) {
    struct stat status = {};
    if (stat(operand.c_str(), &status) != 0) {
      const int why = errno;
      if (is_processor_that_is_gone(operand)) return add_file(option_file_path(operand));
      add_file(operand, why == ENOENT ? "no such file" + hint(operand) : std::strerror(why));
    } else if (S_ISDIR(status.st_mode)) {
      add_folder(operand);
    } else {
      add_file(operand);
    }
  }

  static bool is_processor_that_is_gone(const std::string& operand) {
    struct stat status = {};
    return operand.find('/') == std::string::npos && lstat(option_file_path(operand).c_str(), &status) == 0;
  }

  // What may be meant by the name of a file that is not there.
  std::string hint(const std::string& operand) const {
    if (operand.find_first_of(kWhiteSpace) != std::string::npos) return "; a text is read from standard input, with -";
    if (!m_design || operand.find('/') != std::string::npos) return "";
    return "; " + m_design->find(operand).error().message;
  }

  void add_folder(const std::string& folder) {
    std::vector<std::string> paths = option_files_in(folder);
    if (paths.empty()) paths = option_files_in(folder + (folder.ends_with('/') ? "etc" : "/etc"));
    if (paths.empty()) add_file(folder, "no option file qvt_NAME.opt is in this folder or in etc below it");
    for (const std::string& path : paths) add_file(path);
  }

  const Arguments& m_arguments;
  const std::optional<Design>& m_design;
  Inputs m_found;
  std::set<std::tuple<dev_t, ino_t, std::string>> m_known;  // the last is the processor
};

}  // namespace

Inputs find_inputs(const Arguments& arguments, const std::optional<Design>& design) {
  Finder finder(arguments, design);
  if (arguments.operands.empty()) finder.add_working_directory();
  for (const std::string& operand : arguments.operands) finder.add(operand);
  return std::move(finder).found();
}

}  // namespace qvtcfg
