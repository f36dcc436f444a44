#pragma once

#include <sys/wait.h>
#include <unistd.h>

#include <functional>

// Runs in a process of its own; what it returns is its exit code, a signal that ends it counts 1000 more.
inline int in_child(const std::function<int()>& run) {
  const pid_t child = ::fork();
  if (child == 0) ::_exit(run());
  int status = 0;
  if (child < 0 || ::waitpid(child, &status, 0) != child) return -1;
  return WIFSIGNALED(status) ? 1000 + WTERMSIG(status) : WEXITSTATUS(status);
}
