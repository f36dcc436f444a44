// Feeds a target with files, one after the other, where there is no libFuzzer.

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argc, char** argv) {
  LLVMFuzzerTestOneInput(nullptr, 0);
  for (int i = 1; i < argc; ++i) {
    std::fprintf(stderr, "%s\n", argv[i]);  // the last one named is the one that failed
    std::ifstream file(argv[i], std::ios::binary);
    if (!file) {
      std::fputs("cannot be read\n", stderr);
      return 1;
    }
    const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
  }
  return 0;
}
