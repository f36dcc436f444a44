#pragma once

#include <sys/file.h>

#include <cerrno>

#include "util/Descriptor.h"

namespace SdkDebugDialog {

enum class Lock { got, heldByAnother, unknown };  // unknown: the file system does not support locks

// Tries to lock a file or folder for this descriptor alone, without waiting. The lock is released with the descriptor.
inline Lock lock(const Descriptor& file) {
  if (uninterrupted([&] { return ::flock(file.get(), LOCK_EX | LOCK_NB); }) == 0) return Lock::got;
  return errno == EWOULDBLOCK ? Lock::heldByAnother : Lock::unknown;
}

}  // namespace SdkDebugDialog
