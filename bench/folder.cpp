#include "bench/folder.h"

#include <stdlib.h>

#include <fstream>
#include <stdexcept>

#include "bench/texts.h"

namespace bench {
namespace {

class Folder {
 public:
  Folder() {
    std::string name = std::filesystem::temp_directory_path() / "bench_XXXXXX";
    if (::mkdtemp(name.data()) == nullptr) throw std::runtime_error("no folder to work in");
    path = name;
    std::filesystem::create_directory(path / "etc");
    std::ofstream(path / "etc/qvt_ovrin_0.opt") << hardware_text();
  }
  ~Folder() {
    std::error_code ignored;
    std::filesystem::remove_all(path, ignored);
  }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;

  std::filesystem::path path;
};

}  // namespace

const std::filesystem::path& work_folder() {
  static const Folder folder;
  return folder.path;
}

std::filesystem::path many_option_files(std::size_t count) {
  std::filesystem::path folder = work_folder() / ("files_" + std::to_string(count));
  std::filesystem::create_directories(folder / "etc");
  for (std::size_t i = 0; i < count; ++i) {
    const std::string number = std::to_string(i);
    std::ofstream(folder / ("etc/qvt_cpu_" + number + ".opt"))
        << "connect ov odm -cable type zarvek_platformusb port USB" << number
        << " frequency 12000000 -configdevice devicenr 1 partname dv3 irlength 6 idcode 0x1d23093 "
           "-debugdevice deviceNr 1 cpunr 1";
  }
  return folder;
}

std::filesystem::path example_design(const std::string& name) {
  return std::filesystem::path(PROJECT_SOURCE_DIR) / "examples/designs" / name;
}

}  // namespace bench
