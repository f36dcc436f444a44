#pragma once

// What the tables of the syntax, the kinds of findings, the command line and the catalogue of settings say: tables and
// texts in Markdown, parts of man pages, and a dictionary for the fuzzers.

#include <map>
#include <string>
#include <vector>

#include "SdkDebugDialog/Diagnosis.h"
#include "docs/tables/markdown.h"
#include "options/syntax.h"

namespace SdkDebugDialog {

// --- The syntax ---

// Where each option is described.
using Links = std::map<const Option*, std::string>;

markdown::Table option_index_table(const Links& links);
markdown::Table head_table();
markdown::Table target_table();
markdown::Table keyword_table(const Option& option);                        // of an option that takes pairs
markdown::Table option_table(const std::vector<const Option*>& described);  // of options that take one value, or none
markdown::Table cable_type_table();
markdown::Table never_written_table();
markdown::Table not_read_back_table();
std::string print_dictionary();

// --- The kinds of findings ---

markdown::Table finding_table();
std::string print_finding_descriptions();
std::string print_finding_codes();  // for a man page

// --- The command line; the commands are called "set", "cable format" ---

markdown::Table command_table();                              // of those that can be run
markdown::Table parameter_table(const std::string& command);  // its arguments and options

// For man pages:
std::string print_synopsis(const std::string& command);  // the sections NAME and SYNOPSIS
std::string print_parameters(const std::string& command);
std::string print_commands();
std::string print_keys();

}  // namespace SdkDebugDialog
