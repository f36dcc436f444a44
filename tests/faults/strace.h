#pragma once

// Runs the helper under strace, which makes system calls fail for real.

#include <filesystem>
#include <string>
#include <vector>

// A system call of the helper's work.
struct Call {
  std::string name;
  int nth = 0;    // of those with the name in the work, from 1 on
  int count = 0;  // of those with the name in the process, from 1 on
  std::string line;
};

struct Trace {
  std::string output;       // of the helper
  std::vector<Call> calls;  // of its work
  int injected = 0;         // of them were tampered with
  std::string end;          // how the helper ended
};

// Empty where processes can be traced; or why not.
std::string why_no_strace();

// Runs the helper in the working directory. mode is "read" or "write"; injections are those of strace, such as
// "write:error=EIO:when=3". Logs are kept in the folder.
Trace run_traced(const std::filesystem::path& folder, const std::string& mode,
                 const std::vector<std::string>& injections = {});
