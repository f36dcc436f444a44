#pragma once

// Readers and writers that use other libraries. Each reader returns false when the command is not understood.

#include <cstddef>
#include <string>

#include "bench/Settings.h"

namespace bench {

bool read_with_boost(const std::string& text, Settings& settings);
bool read_with_cli11(const std::string& text, Settings& settings);
bool read_with_cxxopts(const std::string& text, Settings& settings);
bool read_with_getopt(const std::string& text, Settings& settings);

// The same settings as JSON.
bool read_json(const std::string& text, Settings& settings);
std::string write_json(const Settings& settings);

// Only splits the text; returns the number of words.
std::size_t count_words(const std::string& text);

}  // namespace bench
