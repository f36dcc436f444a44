#pragma once

// Which names the tables of the syntax have for a place in a text, and where a name belongs that stands elsewhere.

#include <string>
#include <string_view>

#include "findings/suggest.h"
#include "options/framing.h"
#include "options/syntax.h"

namespace SdkDebugDialog {

Names head_names(Source source);
// Those that may follow the head, or any head if it is null.
Names target_names(Source source, const Head* head);
Names connection_names(const Target& target);
Names option_names(const Run& run);
Names keyword_names(const Group& group);
// The words that the row takes, the cables' types included; empty for any other value.
Names value_names(const Keyword& row);

// What the row takes, in words: "a number in Hz", "'USER1', ... or 'USER4'".
std::string value_in_words(const Keyword& row);

// The options of the run that take the keyword.
Names options_with_keyword(std::string_view keyword, const Run& run);

// The places, other than this run, in which an option of the name may stand: "'ov odm' and 'ppc hw'"; empty if there is
// no such option.
std::string places_of_option(std::string_view name, const Run& run);

}  // namespace SdkDebugDialog
