#pragma once

#include <string_view>

// Whether this is a text that a reader of commands stores, spelled as callers know it and not too long.
bool is_reading_error(std::string_view text);

// The same for writers.
bool is_writing_error(std::string_view text);
