#pragma once

#include <unistd.h>

#include <cerrno>
#include <utility>

namespace SdkDebugDialog {

// Owns a file descriptor and closes it in the destructor.
class Descriptor {
 public:
  Descriptor() = default;
  explicit Descriptor(int fd) : m_fd(fd) {}
  ~Descriptor() {
    if (m_fd >= 0) ::close(m_fd);
  }
  Descriptor(Descriptor&& other) noexcept : m_fd(std::exchange(other.m_fd, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(m_fd, other.m_fd);
    return *this;
  }

  explicit operator bool() const { return m_fd >= 0; }
  int get() const { return m_fd; }
  // Closes now; false on an error. EINTR is not an error: the descriptor is closed nevertheless.
  bool close() { return ::close(std::exchange(m_fd, -1)) == 0 || errno == EINTR; }

 private:
  int m_fd = -1;
};

// Repeats a system call while it fails with EINTR.
template <class Call>
auto uninterrupted(Call call) {
  auto result = call();
  while (result < 0 && errno == EINTR) result = call();
  return result;
}

}  // namespace SdkDebugDialog
