// A program that reads a design from a file: design_file FILE

#include <SdkDebugDialog/Configuration.h>
#include <SdkDebugDialog/platform/DesignFile.h>

#include <exception>
#include <iostream>
#include <memory>

int main(int argc, char** argv) try {
  if (argc != 2) return 2;
  const SdkDebugDialog::Design design(std::make_shared<DesignFile>(DesignFile::load(argv[1])));
  for (const auto& processor : design.processors()) {
    std::cout << SdkDebugDialog::Configuration(processor).command().value() << '\n';
  }
} catch (const std::exception& error) {
  std::cerr << error.what() << '\n';
  return 1;
}
