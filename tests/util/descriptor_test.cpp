#include "util/Descriptor.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <utility>

namespace SdkDebugDialog {
namespace {

bool is_open(int fd) { return ::fcntl(fd, F_GETFD) != -1; }

TEST(ADescriptor, IsNoneUntilItIsGivenOne) {
  const Descriptor none;
  EXPECT_FALSE(none);
  EXPECT_LT(none.get(), 0);
}

TEST(ADescriptor, ClosesItself) {
  int fd = -1;
  {
    const Descriptor file(::open("/dev/null", O_RDONLY));
    ASSERT_TRUE(file);
    fd = file.get();
    EXPECT_TRUE(is_open(fd));
  }
  EXPECT_FALSE(is_open(fd));
}

TEST(ADescriptor, IsClosedOnce) {
  Descriptor file(::open("/dev/null", O_RDONLY));
  const int fd = file.get();
  EXPECT_TRUE(file.close());
  EXPECT_FALSE(file);
  EXPECT_FALSE(is_open(fd));
  EXPECT_FALSE(file.close());
}

TEST(ADescriptor, IsHandedOnAndLeavesNone) {
  Descriptor first(::open("/dev/null", O_RDONLY));
  const int fd = first.get();
  Descriptor second(std::move(first));
  EXPECT_FALSE(first);  // NOLINT(bugprone-use-after-move)
  EXPECT_EQ(second.get(), fd);
  Descriptor third;
  third = std::move(second);
  EXPECT_FALSE(second);  // NOLINT(bugprone-use-after-move)
  EXPECT_EQ(third.get(), fd);
  EXPECT_TRUE(is_open(fd));
}

// The lowest one, which a program whose standard input is closed gets first.
TEST(ADescriptor, MayBeZero) {
  const int standardInput = ::dup(STDIN_FILENO);
  ::close(STDIN_FILENO);
  {
    const Descriptor zero(::open("/dev/null", O_RDONLY));
    EXPECT_EQ(zero.get(), 0);
    EXPECT_TRUE(zero);
  }
  EXPECT_FALSE(is_open(0));
  if (standardInput >= 0) {
    ::dup2(standardInput, STDIN_FILENO);
    ::close(standardInput);
  }
}

}  // namespace
}  // namespace SdkDebugDialog
