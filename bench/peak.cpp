// Runs a program with its output discarded and prints its peak resident memory in bytes. This is a separate, small
// program because the system includes the memory of the parent process before exec.
//   bench_peak PROGRAM ARGUMENT...

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>

int main(int argc, char** argv) {
  if (argc < 2) return 2;
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  pid_t child = 0;
  int status = 0;
  rusage usage = {};
  if (posix_spawn(&child, argv[1], &actions, nullptr, argv + 1, environ) != 0) return 1;
  if (wait4(child, &status, 0, &usage) != child || !WIFEXITED(status) || WEXITSTATUS(status) != 0) return 1;
  std::printf("%ld\n", usage.ru_maxrss * 1024);
}
