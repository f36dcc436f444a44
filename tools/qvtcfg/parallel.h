#pragma once

#include <cstddef>
#include <functional>
#include <string>

namespace qvtcfg {

// Calls work(0) to work(count - 1), in a thread for each core of the machine, and waits. An exception of the first call
// that throws is passed on. When it takes longer than a second and standard error is a terminal, a line there tells
// how much is done: "1200 of 10000" and what.
void for_each_in_parallel(std::size_t count, const std::function<void(std::size_t)>& work, const std::string& what);

}  // namespace qvtcfg
