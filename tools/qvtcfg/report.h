#pragma once

// The answer of qvtcfg check in each of its formats.

#include "checked.h"
#include "output.h"

namespace qvtcfg {

// For people: lines of the text with marks below them, then the totals.
void print_text(const CheckReport& report, Output& out);

// A line for each finding, for editors.
void print_short(const CheckReport& report, Output& out);

// The result of the answer with --json.
Json report_json(const CheckReport& report);

// A finding with its places, as in report_json. The places of the remarks are in a file, which is null for another
// text.
Json finding_json(const SdkDebugDialog::Finding& finding, const Lines& lines, const Json& remarks_file,
                  const Lines& remarks);

// A document in the format SARIF 2.1.0.
Json sarif(const CheckReport& report);

}  // namespace qvtcfg
