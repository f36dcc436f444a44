#pragma once

// What the tables of the syntax, and of the kinds of findings, say, in Markdown; for the fuzzers as a dictionary.

#include <map>
#include <string>
#include <vector>

#include "SdkDebugDialog/Diagnosis.h"
#include "options/syntax.h"

namespace SdkDebugDialog {

// Where each option is described.
using Links = std::map<const Option*, std::string>;

std::string print_option_index(const Links& links);
std::string print_heads();
std::string print_targets();
std::string print_keywords(const Option& option);                        // of an option that takes pairs
std::string print_options(const std::vector<const Option*>& described);  // of options that take one value, or none
std::string print_cable_types();
std::string print_never_written();
std::string print_not_read_back();
std::string print_dictionary();
const char* severity_name(Severity severity);
std::string print_finding_table();
std::string print_finding_descriptions();

}  // namespace SdkDebugDialog
