#pragma once

#include <sys/wait.h>
#include <unistd.h>

#include <functional>

// Runs a function in a child process. Returns its result (0 to 255), or 1000 plus the number of the signal that ended
// the process.
inline int in_child(const std::function<int()>& run) {
  const pid_t child = ::fork();
  if (child == 0) ::_exit(run());
  int status = 0;
  if (child < 0 || ::waitpid(child, &status, 0) != child) return -1;
  return WIFSIGNALED(status) ? 1000 + WTERMSIG(status) : WEXITSTATUS(status);
}
