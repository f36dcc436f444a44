#include "util/regular_file.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <cerrno>
#include <chrono>
#include <filesystem>
#include <future>
#include <string>
#include <system_error>

#include "tests/options/work_folder.h"

namespace SdkDebugDialog {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

class ARegularFile : public testing::Test {
 protected:
  fs::path path(const std::string& name) const { return m_folder.path() / name; }

  void expect_failure(const fs::path& file, const char* otherKind, int error) const {
    SCOPED_TRACE(file);
    const RegularFile opened(file);
    EXPECT_FALSE(opened);
    EXPECT_STREQ(opened.other_kind(), otherKind);
    EXPECT_EQ(opened.error(), error);
    EXPECT_EQ(opened.size(), 0U);
  }

 private:
  WorkFolder m_folder;
};

TEST_F(ARegularFile, IsReadToItsEnd) {
  WorkFolder::write(path("file"), "0123456789");
  RegularFile file(path("file"));
  ASSERT_TRUE(file);
  EXPECT_EQ(file.size(), 10U);
  EXPECT_EQ(file.error(), 0);
  EXPECT_EQ(file.other_kind(), nullptr);
  char buffer[8];
  EXPECT_EQ(file.read(buffer, sizeof buffer), 8);
  EXPECT_EQ(std::string(buffer, 8), "01234567");
  EXPECT_EQ(file.read(buffer, sizeof buffer), 2);
  EXPECT_EQ(std::string(buffer, 2), "89");
  EXPECT_EQ(file.read(buffer, sizeof buffer), 0);
  EXPECT_EQ(file.error(), 0);
}

TEST_F(ARegularFile, IsNotInheritedByOtherPrograms) {
  WorkFolder::write(path("file"), "");
  const RegularFile file(path("file"));
  ASSERT_TRUE(file);
  int found = 0;
  for (const auto& entry : fs::directory_iterator("/proc/self/fd")) {
    std::error_code gone;  // the iterator's own
    if (fs::read_symlink(entry, gone) != fs::canonical(path("file"))) continue;
    ++found;
    EXPECT_EQ(::fcntl(std::stoi(entry.path().filename()), F_GETFD), FD_CLOEXEC);
  }
  EXPECT_EQ(found, 1);
}

TEST_F(ARegularFile, MayBeEmptyOrBehindALink) {
  WorkFolder::write(path("file"), "");
  fs::create_symlink("file", path("link"));
  for (const char* const name : {"file", "link"}) {
    RegularFile file(path(name));
    ASSERT_TRUE(file);
    EXPECT_EQ(file.size(), 0U);
    char byte = 0;
    EXPECT_EQ(file.read(&byte, 1), 0);
  }
}

TEST_F(ARegularFile, ThatIsNotThereIsAnErrorOfTheSystem) {
  WorkFolder::write(path("file"), "");
  fs::create_symlink("loop", path("loop"));
  expect_failure("", nullptr, ENOENT);
  expect_failure(path("missing"), nullptr, ENOENT);
  expect_failure(path("file") / "x", nullptr, ENOTDIR);
  expect_failure(path("loop"), nullptr, ELOOP);
}

TEST_F(ARegularFile, ThatCannotBeOpenedIsAnErrorOfTheSystem) {
  WorkFolder::write(path("file"), "");
  const std::string file = path("file");
  rlimit before = {};
  ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &before), 0);
  const rlimit none = {0, before.rlim_max};
  ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &none), 0);
  const RegularFile opened(file);
  ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &before), 0);
  EXPECT_FALSE(opened);
  EXPECT_EQ(opened.other_kind(), nullptr);
  EXPECT_EQ(opened.error(), EMFILE);
}

TEST_F(ARegularFile, ThatCannotBeReadIsAnErrorOfTheSystem) {
  RegularFile memory("/proc/self/mem");  // no page is mapped at address 0
  ASSERT_TRUE(memory);
  char byte = 0;
  EXPECT_LT(memory.read(&byte, 1), 0);
  EXPECT_EQ(memory.error(), EIO);
}

TEST_F(ARegularFile, IsNoDirectoryPipeOrDevice) {
  ASSERT_EQ(::mkfifo(path("pipe").c_str(), 0600), 0);
  ASSERT_EQ(::mknod(path("socket").c_str(), S_IFSOCK | 0600, 0), 0);
  expect_failure(path("."), "a directory", 0);
  expect_failure(path("pipe"), "a pipe", 0);
  expect_failure(path("socket"), "a socket", 0);
  expect_failure("/dev/null", "a character device", 0);
}

TEST_F(ARegularFile, DoesNotOpenAPipe) {
  ASSERT_EQ(::mkfifo(path("pipe").c_str(), 0600), 0);
  auto writer = std::async(std::launch::async, [&] { return Descriptor(::open(path("pipe").c_str(), O_WRONLY)); });
  expect_failure(path("pipe"), "a pipe", 0);
  EXPECT_EQ(writer.wait_for(50ms), std::future_status::timeout) << "the writer found a reader";
  const Descriptor reader(::open(path("pipe").c_str(), O_RDONLY | O_NONBLOCK));
  EXPECT_TRUE(writer.get());
}

}  // namespace
}  // namespace SdkDebugDialog
