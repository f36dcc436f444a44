#pragma once

// What can be told about a processor's option file before and after the library works on it.

#include <string>

namespace qvtcfg {

struct OptionFile {
  bool exists = false;
  std::string command;     // its first line that is not empty, as far as the library reads it
  bool is_longer = false;  // the line goes on where the library stops reading
};

// The path from the working directory.
std::string option_file_path(const std::string& processor);

// A missing file is an answer; one that is there and cannot be read throws Failure, since the library would take it
// for a missing one. shown is the path to name in messages.
OptionFile look_at_option_file(const std::string& path, const std::string& shown);

// Why the file cannot have been written, and what to do.
std::string why_not_written(const std::string& path, const std::string& shown);

// The number of characters of a command that are read back from an option file.
inline constexpr std::size_t kLongestCommand = 1023;

}  // namespace qvtcfg
