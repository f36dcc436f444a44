#pragma once

#include <cstddef>
#include <filesystem>
#include <string>

namespace bench {

// A temporary folder with an option file for ovrin_0. Created by the first call, removed at the end of the program.
const std::filesystem::path& work_folder();

// A folder in the work folder whose etc has so many option files, each of another processor on another cable.
std::filesystem::path many_option_files(std::size_t count);

// The path of a file in examples/designs.
std::filesystem::path example_design(const std::string& name);

}  // namespace bench
