#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <exception>

#include "command_line.h"
#include "failure.h"
#include "output.h"
#include "platform/ComMsgMgr.h"
#include "text.h"

namespace qvtcfg {

void complain(const std::string& text) {
  constexpr std::size_t kLongest = 4000;
  std::fprintf(stderr, "qvtcfg: %s\n", one_line(text, kLongest).c_str());
}

namespace {

// Discards the engine's messages: their texts are reported as Failure.
void ignore_message(int /*type*/, const char* /*id*/, unsigned int /*mask*/, const char* /*text*/) {}

void enter(const std::string& directory) {
  if (directory.empty() || chdir(directory.c_str()) == 0) return;
  throw Failure(kFile, one_line(directory) + ": " + std::strerror(errno) + "; -C needs a folder");
}

void run(int argc, const char* const* argv) {
  Output out;
  Arguments arguments;
  if (const Run command = parse_command_line(argc, argv, arguments, out)) {
    enter(arguments.directory);
    command(arguments, out);
  }
  out.flush();
}

}  // namespace
}  // namespace qvtcfg

int main(int argc, char** argv) {
  ComMsgMgr::setSink(qvtcfg::ignore_message);
  try {
    qvtcfg::run(argc, argv);
    return qvtcfg::kDone;
  } catch (const qvtcfg::Failure& failure) {
    qvtcfg::complain(failure.what());
    return failure.code();
  } catch (const std::exception& error) {
    // Other system errors, such as no memory or no working directory.
    qvtcfg::complain(error.what());
    return qvtcfg::kFile;
  }
}
