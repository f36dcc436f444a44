// Repeats one operation a given number of times, for a tool that counts instructions.
//   bench_count read|read-retyped|write TIMES

#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "bench/ours.h"
#include "bench/texts.h"

int main(int argc, char** argv) {
  const std::string_view work = argc == 3 ? argv[1] : "";
  const long times = argc == 3 ? std::strtol(argv[2], nullptr, 10) : 0;
  const std::string text = work == "read-retyped" ? bench::hardware_text_retyped() : bench::hardware_text();
  bench::Ours ours;
  ours.read(text);
  if (work == "read" || work == "read-retyped") {
    for (long i = 0; i < times; ++i) ours.read(text);
  } else if (work == "write") {
    for (long i = 0; i < times; ++i) ours.write();
  } else {
    std::fputs("usage: bench_count read|read-retyped|write TIMES\n", stderr);
    return 2;
  }
  return ours.settings() == bench::hardware_settings() ? 0 : 1;
}
