#include "given_text.h"

#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <utility>
#include <vector>

#include "failure.h"
#include "text.h"

namespace qvtcfg {
namespace {

std::string standard_input() {
  Content content = read_to_end(STDIN_FILENO);
  if (!content.error.empty()) throw Failure(kFile, "standard input: " + content.error);
  if (content.cut) throw Failure(kNotUnderstood, "standard input: too long for a connect command");
  content.text.erase(content.text.find_last_not_of('\n') + 1);  // the newline is not part of the command
  return std::move(content.text);
}

}  // namespace

Content read_to_end(int descriptor) {
  thread_local std::vector<char> block(std::size_t{64} << 10);
  Content content;
  while (content.text.size() <= kMostBytes) {
    const ssize_t count = read(descriptor, block.data(), block.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) content.error = std::strerror(errno);
    if (count <= 0) break;
    content.text.append(block.data(), static_cast<std::size_t>(count));
  }
  content.cut = content.text.size() > kMostBytes;
  if (content.cut) content.text.resize(kMostBytes);
  return content;
}

GivenText given_text(const std::string& argument, const std::string& name) {
  return argument == "-" ? GivenText{standard_input(), "standard input"} : GivenText{argument, name};
}

void require_text(const GivenText& given, const std::string& advice) {
  const auto at = first_non_text(given.text);
  if (!at) return;
  throw Failure(kNotUnderstood, given.source + ": the byte " + visible(given.text.substr(*at, 1)) + " at column " +
                                    std::to_string(*at + 1) + " is not valid text" + advice);
}

}  // namespace qvtcfg
