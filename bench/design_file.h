#pragma once

#include <cstddef>
#include <filesystem>

namespace bench {

// Writes a design file with this number of processors, in the style of examples/designs. Of every eight, four are soft
// processors behind a debug module, two are soft processors without one, one is a PowerPC behind a bridge and one is a
// Cortex-A9. Each has a UART; the eight share a memory. About 340 bytes per processor.
void write_design_file(const std::filesystem::path& path, std::size_t processors);

}  // namespace bench
