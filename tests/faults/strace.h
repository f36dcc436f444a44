#pragma once

// Runs the helper under strace, which injects errors into its system calls.

#include <filesystem>
#include <string>
#include <vector>

// A system call that the helper makes while it reads or writes.
struct Call {
  std::string name;
  int nth = 0;    // number among the calls with this name in the work, from 1 on
  int count = 0;  // number among the calls with this name in the whole process, from 1 on
  std::string line;
};

struct Trace {
  std::string output;       // of the helper
  std::vector<Call> calls;  // made during the work
  int injected = 0;         // number of calls with an injected fault
  std::string end;          // strace's line about how the helper ended
};

// Why processes cannot be traced here; empty if they can.
std::string why_no_strace();

// Runs the helper in the working directory. mode is "read" or "write"; injections are in strace's syntax, such as
// "write:error=EIO:when=3". The log is written to the folder.
Trace run_traced(const std::filesystem::path& folder, const std::string& mode,
                 const std::vector<std::string>& injections = {});
