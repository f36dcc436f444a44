#include "options/option_file.h"

#include <algorithm>
#include <boost/filesystem/operations.hpp>
#include <boost/filesystem/path.hpp>
#include <string_view>
#include <utility>

#include "util/regular_file.h"
#include "util/replace_file.h"

namespace SdkDebugDialog {
namespace {

namespace fs = boost::filesystem;

// Empty when the working directory cannot be told, or when the name holds a byte that no path may hold.
fs::path option_path(const std::string& processor) {
  boost::system::error_code error;
  const fs::path directory = fs::current_path(error);
  if (error || processor.find('\0') != std::string::npos) return {};
  return directory.string() + "/" + option_file_path(processor);
}

std::string_view without_empty_lines(std::string_view content) {
  content.remove_prefix(std::min(content.find_first_not_of('\n'), content.size()));
  return content;
}

}  // namespace

std::string option_file_path(std::string_view processor) {
  return std::string("etc/qvt_").append(processor).append(".opt");
}

Expected<FileContent> content_of(const std::string& path) {
  FileContent file = read_whole_file(path, kLargestFile);
  if (!file.error.empty()) return Error{ErrorCode::file, path + ": " + file.error, {}};
  return file;
}

Error changed_meanwhile(const std::string& path, bool wasRead) {
  const char* const why =
      wasRead ? ": the file has changed since it was read; read it again" : ": there is such a file already";
  return {ErrorCode::changedMeanwhile, path + why, {}};
}

Expected<std::optional<std::string>> read_option_file(const std::string& path) {
  Expected<FileContent> file = content_of(path);
  if (!file) return file.error();
  return file->exists ? std::optional(std::move(file->bytes)) : std::nullopt;
}

std::string_view option_line(std::string_view content) {
  content = without_empty_lines(content);
  return content.substr(0, std::min(content.find('\n'), kLongestLine));
}

std::string read_option_line(const std::string& processor) {
  RegularFile file(option_path(processor).string());
  if (!file) return {};
  std::string content;
  char buffer[kLongestLine + 1];
  std::ptrdiff_t count = 0;
  while ((count = file.read(buffer, sizeof buffer)) > 0) {
    const std::string_view part(buffer, static_cast<std::size_t>(count));
    content += content.empty() ? without_empty_lines(part) : part;
    const std::size_t size = option_line(content).size();
    if (size < content.size() || size == kLongestLine) return content.substr(0, size);
  }
  return count == 0 ? content : std::string();
}

bool write_option_file(const std::string& processor, const std::string& text) {
  return replace_file(option_path(processor), text);
}

Expected<void> replace_option_file(const std::string& path, const std::optional<std::string>& expected,
                                   std::string_view text) {
  const FileContent content = {.exists = expected.has_value(), .bytes = expected.value_or(""), .error = {}};
  const ReplaceResult replaced = replace_file_if_unchanged(path, content, text);
  if (replaced.result == Replaced::done) return {};
  if (replaced.result == Replaced::failed) return Error{ErrorCode::file, path + ": " + replaced.error, {}};
  return changed_meanwhile(path, expected.has_value());
}

}  // namespace SdkDebugDialog
