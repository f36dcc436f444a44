#pragma once

#include <grp.h>
#include <unistd.h>

// Makes this process one of an unprivileged user; only root may. Root may read and write every file, so tests of
// permissions do this in a child process.
inline bool become_nobody() { return ::setgroups(0, nullptr) == 0 && ::setgid(65534) == 0 && ::setuid(65534) == 0; }
