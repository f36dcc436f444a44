// Only parses a JSON file into a document.
//   bench_parse_json FILE

#include <fstream>
#include <nlohmann/json.hpp>

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  std::ifstream file(argv[1]);
  return nlohmann::json::parse(file).empty() ? 1 : 0;
}
