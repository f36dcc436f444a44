#pragma once

// A finding as a compiler shows it:
//
//   etc/qvt_cpu0.opt:1:16: error: no option '-cabel'; did you mean '-cable'? [unknown-option]
//     1 | connect ov odm -cabel type zarvek_platformusb
//       |                ^^^^^^
//       = fix: write '-cable'
//     + | connect ov odm -cable type zarvek_platformusb

#include <SdkDebugDialog/Diagnosis.h>

#include <string>
#include <string_view>

#include "lines.h"
#include "output.h"

namespace qvtcfg {

// A text in which something was found.
struct Source {
  std::string_view name;  // the path of a file, for example
  const Lines* lines = nullptr;
};

std::string_view severity_name(SdkDebugDialog::Severity severity);

// The message with the remedy.
std::string whole_message(const SdkDebugDialog::Finding& finding);

// NAME:LINE:COLUMN: SEVERITY: MESSAGE; REMEDY [CODE]
std::string finding_line(const SdkDebugDialog::Finding& finding, const Source& source, const Look& look = {});

// The line of the place, and marks below it.
std::string marked_line(const Source& source, std::size_t begin, std::size_t end, const Look& look);

// The line, then those with the place, the remarks and the fixes. The places of the remarks are in a text of their own.
// A finding with an empty place at the beginning is about the whole text: no line is shown for it.
std::string finding_text(const SdkDebugDialog::Finding& finding, const Source& source, const Source& remarks,
                         const Look& look);

}  // namespace qvtcfg
