#pragma once

// The design, and the option files of its processors.

#include <SdkDebugDialog/Configuration.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "command_line.h"

namespace qvtcfg {

// Errors are thrown as Failure.
SdkDebugDialog::Design load_design(const Arguments& arguments);
// Nothing if no design is named and there is no default one.
std::optional<SdkDebugDialog::Design> load_design_if_any(const Arguments& arguments);

SdkDebugDialog::Processor find_processor(const SdkDebugDialog::Design& design, const std::string& name);

struct OptionFile {
  std::string path;                    // relative to the working directory
  std::string shown;                   // the path for messages and output
  std::optional<std::string> content;  // not set when there is no file, or none that can be read
};

OptionFile file_at(const std::string& path, const Arguments& arguments);
OptionFile option_file_of(const SdkDebugDialog::Processor& processor, const Arguments& arguments);

// The settings in the option file, or the defaults if there is no file. A warning is printed when only a part of the
// file is read.
SdkDebugDialog::Configuration open_configuration(const SdkDebugDialog::Processor& processor, const OptionFile& file);

// The command in the content of an option file: the first line with anything in it, as far as it is read.
std::string command_in(std::string_view content);

// Throws Failure if storing the edit loses something or stores what is not read back; the warnings about the settings
// may tell why. With force, that is a warning too.
void require_safe(const SdkDebugDialog::Edit& edit, const OptionFile& file, bool force,
                  const std::vector<std::string>& warnings = {});

// Whether storing the edit changes the file.
bool would_change(const SdkDebugDialog::Edit& edit, const OptionFile& file);

// What to do when no command can be written.
inline constexpr const char* kChangeCable = "; change the connection or the cable";

// Stores what require_safe let pass, and creates the folder for option files if it is missing. A file that the
// configuration was read from must be as it was then.
void store(SdkDebugDialog::Configuration& configuration, const SdkDebugDialog::Edit& edit, const OptionFile& file,
           const Arguments& arguments);

}  // namespace qvtcfg
