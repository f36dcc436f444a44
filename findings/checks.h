#pragma once

// The checks that a diagnosis is made of. Each adds its findings to the report.

#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "findings/Report.h"
#include "options/syntax.h"
#include "settings/State.h"

namespace SdkDebugDialog {

// A number, an address, or the port of "host:port", as the reader reads it: a value that is not what it seems.
void check_number(const Keyword& row, std::string_view value, const Place& place, Report& report);

// A value that is kept as text: what a shell or another syntax would not make a part of it.
void check_text(const Keyword& row, std::string_view value, const Place& place, Report& report);

// A file: lines that are not read, bytes that are no text, carriage returns, a line that is too long. Errors of the
// line that is read are known already: what is one of them is left out.
void check_file(const Subject& subject, Report& report);

// Whether a line looks like a comment.
bool is_comment(std::string_view line);

// The words of one device of the chain, as far as it has them.
struct DeviceWords {
  Place option;                                   // "-configdevice"
  std::optional<Place> number, irlength, idcode;  // the values
  bool isReached = false;                         // it has "jtagport", which says how the processor is reached
  bool isDescribed = false;                       // it has another keyword than that
};

// The words that tell the debug device, if any.
void check_chain(std::span<const JtagOption> chain, std::span<const DeviceWords> words, int debugDevice,
                 const std::optional<Place>& debugDeviceWord, Report& report);

}  // namespace SdkDebugDialog
