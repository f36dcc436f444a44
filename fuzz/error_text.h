#pragma once

#include <string_view>

// Whether this is one of the error texts of the readers, and not too long.
bool is_reading_error(std::string_view text);

// The same for writers.
bool is_writing_error(std::string_view text);
