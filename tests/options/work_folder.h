#pragma once

// A temporary folder for one test. It is the working directory while it exists.

#include <gtest/gtest.h>
#include <stdlib.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

class WorkFolder {
 public:
  WorkFolder() : m_before(std::filesystem::current_path()) {
    std::string name = std::filesystem::temp_directory_path() / "options_test_XXXXXX";
    if (::mkdtemp(name.data()) == nullptr) ADD_FAILURE() << "no folder to work in";
    m_path = name;
    std::filesystem::create_directory(m_path / "etc");
    std::filesystem::current_path(m_path);
  }
  ~WorkFolder() {
    std::filesystem::current_path(m_before);
    std::filesystem::remove_all(m_path);
  }
  WorkFolder(const WorkFolder&) = delete;
  WorkFolder& operator=(const WorkFolder&) = delete;

  const std::filesystem::path& path() const { return m_path; }
  std::filesystem::path option_file(const std::string& processor) const {
    return m_path / "etc" / ("qvt_" + processor + ".opt");
  }

  static void write(const std::filesystem::path& file, const std::string& content) {
    std::ofstream(file, std::ios::binary) << content;
  }
  static std::string read(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }
  // The names in a folder, sorted.
  static std::vector<std::string> list(const std::filesystem::path& folder) {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) names.push_back(entry.path().filename());
    std::ranges::sort(names);
    return names;
  }

 private:
  std::filesystem::path m_before;
  std::filesystem::path m_path;
};
