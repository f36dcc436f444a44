#pragma once

// The answer of qvtcfg check in each of its formats.

#include "checked.h"
#include "output.h"

namespace qvtcfg {

// For people: lines of the text with marks below them, then the totals.
void print_text(const CheckReport& report, Output& out);

// A line for each finding, for editors.
void print_short(const CheckReport& report, Output& out);

// A document of this program's own.
Json report_json(const CheckReport& report);

// A finding with its places, as in report_json.
Json finding_json(const SdkDebugDialog::Finding& finding, const Lines& lines, std::string_view remarks_name,
                  const Lines& remarks);

// A document in the format SARIF 2.1.0.
Json sarif(const CheckReport& report);

}  // namespace qvtcfg
