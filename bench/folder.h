#pragma once

#include <filesystem>
#include <string>

namespace bench {

// A temporary folder with an option file for ovrin_0. Created by the first call, removed at the end of the program.
const std::filesystem::path& work_folder();

// The path of a file in examples/designs.
std::filesystem::path example_design(const std::string& name);

}  // namespace bench
