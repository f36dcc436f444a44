#include "given_text.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "failure.h"
#include "text.h"

namespace qvtcfg {
namespace {

std::string standard_input() {
  constexpr std::size_t kLimit = std::size_t{64} << 20;
  std::string text;
  char block[65536];
  while (const std::size_t count = std::fread(block, 1, sizeof block, stdin)) {
    text.append(block, count);
    if (text.size() > kLimit) throw Failure(kNotUnderstood, "standard input: too long for a connect command");
  }
  if (std::ferror(stdin) != 0) throw Failure(kFile, std::string("standard input: ") + std::strerror(errno));
  text.erase(text.find_last_not_of('\n') + 1);  // the newline is not part of the command
  return text;
}

}  // namespace

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
