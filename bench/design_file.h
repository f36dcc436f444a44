#pragma once

#include <cstddef>
#include <filesystem>

namespace bench {

// Writes a design file with that many processors, in the style of examples/designs: of every eight, four soft ones
// behind a debug module, two soft ones on their own, a PowerPC behind a bridge and a Cortex-A9. Each has a UART of its
// own and shares a memory with the others. Some 340 bytes a processor.
void write_design_file(const std::filesystem::path& path, std::size_t processors);

}  // namespace bench
