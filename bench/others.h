#pragma once

// Readers and writers made with other libraries. Each reader answers false when the command is not understood.

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

// Only parts the text: answers the number of its words.
std::size_t count_words(const std::string& text);

}  // namespace bench
