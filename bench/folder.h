#pragma once

#include <filesystem>
#include <string>

namespace bench {

// A work folder with an option file for ovrin_0, made when first asked for, gone when the program ends.
const std::filesystem::path& work_folder();

// One of examples/designs.
std::filesystem::path example_design(const std::string& name);

}  // namespace bench
