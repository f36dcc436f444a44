#pragma once

// Checks of a processor's option file, before the library reads it and after it could not write it.

#include <string>

namespace qvtcfg {

struct OptionFile {
  bool exists = false;
  std::string command;     // the first non-empty line, up to the length that the library reads
  bool is_longer = false;  // the line is longer than that
};

// Relative to the working directory.
std::string option_file_path(const std::string& processor);

// Reads the option file; a missing file is not an error. Throws Failure for a file that exists but cannot be read,
// because the library treats it like a missing one. shown is the path for messages.
OptionFile look_at_option_file(const std::string& path, const std::string& shown);

// Why the library could not write the file, and what to do.
std::string why_not_written(const std::string& path, const std::string& shown);

// The number of bytes of a command that the library reads from an option file.
inline constexpr std::size_t kLongestCommand = 1023;

}  // namespace qvtcfg
