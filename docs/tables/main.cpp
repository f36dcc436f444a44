// Prints the parts of the project's documents anew that come from tables of the code, and says which documents have
// changed: syntax_tables FOLDER, where FOLDER holds the project.

#include <exception>
#include <fstream>
#include <iostream>
#include <iterator>
#include <stdexcept>
#include <string>

#include "docs/tables/parts.h"

namespace {

void renew(const std::string& folder, const std::string& document) {
  const std::string path = folder + '/' + document;
  std::ifstream in(path, std::ios::binary);
  if (!in) throw std::runtime_error("cannot be read");
  const std::string before{std::istreambuf_iterator<char>(in), {}};
  const std::string after = SdkDebugDialog::with_parts(before);
  if (after == before) {
    std::cout << document << ": as it was\n";
    return;
  }
  std::ofstream out(path, std::ios::binary);
  if (!(out << after << std::flush)) throw std::runtime_error("cannot be written");
  std::cout << document << ": changed\n";
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: syntax_tables FOLDER\n";
    return 2;
  }
  bool failed = false;
  for (const char* const document : SdkDebugDialog::kDocuments) {
    try {
      renew(argv[1], document);
    } catch (const std::exception& error) {
      std::cerr << document << ": " << error.what() << '\n';
      failed = true;
    }
  }
  return failed ? 1 : 0;
}
