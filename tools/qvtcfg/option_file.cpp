#include "option_file.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fstream>

#include "failure.h"

namespace qvtcfg {
namespace {

Failure unreadable(const std::string& shown, const std::string& why) {
  return {kFile, shown + ": " + why + "; it contains the settings of the processor: make it readable first"};
}

}  // namespace

std::string option_file_path(const std::string& processor) { return "etc/qvt_" + processor + ".opt"; }

OptionFile look_at_option_file(const std::string& path, const std::string& shown) {
  struct stat status {};
  if (stat(path.c_str(), &status) != 0) {
    if (errno == ENOENT) return {};
    throw unreadable(shown, std::strerror(errno));
  }
  if (S_ISDIR(status.st_mode)) throw unreadable(shown, "is a folder");
  if (!S_ISREG(status.st_mode)) throw unreadable(shown, "is not a regular file");

  std::ifstream file(path, std::ios::binary);
  if (!file) throw unreadable(shown, std::strerror(errno));
  OptionFile found;
  found.exists = true;
  while (file.peek() == '\n') file.get();
  found.command.resize(kLongestCommand);
  file.read(found.command.data(), static_cast<std::streamsize>(kLongestCommand));
  found.command.resize(static_cast<std::size_t>(file.gcount()));
  const std::size_t end = found.command.find('\n');
  found.is_longer = end == std::string::npos && file && file.peek() != '\n' && file.good();
  found.command.resize(std::min(end, found.command.size()));
  return found;
}

std::string why_not_written(const std::string& path, const std::string& shown) {
  struct stat status {};
  const std::string folder = path.substr(0, path.rfind('/'));
  const std::string shown_folder = shown.substr(0, shown.rfind('/'));
  if (stat(folder.c_str(), &status) != 0) return "there is no folder " + shown_folder + ": make it first";
  if (!S_ISDIR(status.st_mode)) return shown_folder + " is no folder";
  if (access(folder.c_str(), W_OK) != 0) return "the folder " + shown_folder + " is not writable";
  if (stat(path.c_str(), &status) == 0) {
    if (!S_ISREG(status.st_mode)) return "it is not a regular file";
    if (access(path.c_str(), W_OK) != 0) return "it is not writable";
  }
  return "check that the disk has free space; the file is unchanged";
}

}  // namespace qvtcfg
