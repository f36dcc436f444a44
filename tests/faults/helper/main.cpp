// Reads or writes the option file of processor "p" below the working directory once and prints the result, the error
// text and the command. Calls of access() mark the begin and the end of the work in a trace.

#include <unistd.h>

#include <cstdio>
#include <cstring>

#include "options/QvtOption_Parser.h"
#include "tests/support/OptionFileWriter.h"

int main(int /*argc*/, char** argv) {
  Writer e;
  e.processor.command = "an older command";
  const bool writes = std::strcmp(argv[1], "write") == 0;
  static_cast<void>(::access("begin", F_OK));
  const int status = writes ? e.engine.Generate() : SdkDebugDialog::QvtOption_Parser::ReadQvtOptFile("p", e.imp);
  static_cast<void>(::access("end", F_OK));
  std::printf("%d|%s|%s", status, e.error().c_str(), e.processor.command.c_str());
}
