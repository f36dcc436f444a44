#pragma once

#include <unistd.h>

#include <cerrno>
#include <utility>

namespace SdkDebugDialog {

// A file descriptor that closes itself.
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
  // Closes now, for the error that this may report. A signal that comes meanwhile leaves it closed all the same.
  bool close() { return ::close(std::exchange(m_fd, -1)) == 0 || errno == EINTR; }

 private:
  int m_fd = -1;
};

// Repeats a call that a signal interrupts.
template <class Call>
auto uninterrupted(Call call) {
  auto result = call();
  while (result < 0 && errno == EINTR) result = call();
  return result;
}

}  // namespace SdkDebugDialog
