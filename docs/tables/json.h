#pragma once

// What the tables say about the answers of qvtcfg in JSON.

#include <string>

#include "docs/tables/markdown.h"

namespace SdkDebugDialog {

// A part of the JSON Schema: a member whose value is an array or an object, in lines that begin with the indentation.
// Throws std::runtime_error for a part that there is not.
std::string print_schema_part(const std::string& part, const std::string& indentation);

// The errors, in Markdown.
markdown::Table error_table();

}  // namespace SdkDebugDialog
