#pragma once

// The parts of documents that are printed from the tables of the code. A part stands between two lines, which say so
// in a comment of the document's language; in Markdown
//
//   <!-- printed from the syntax: targets -->
//   <!-- end -->
//
// The first one names the part: one of a few names, or the options that it describes, and where they may stand:
//
//   <!-- printed from the syntax: general: -comm -port -baud -timeout -->
//
// Parts about findings are "printed from the kinds of findings", those about commands and their options "printed from
// the command line", those about the keys of "qvtcfg set" "printed from the settings", and others about qvtcfg "printed
// from the tables of qvtcfg". In a man page the lines begin with the comment of roff, and tables become lists. In a
// JSON Schema a part is one member, whose value is an array or an object. It follows
//
//   "$comment": "printed from the tables of qvtcfg: setting names",
//
// and is the last member of its object.

#include <string>

namespace SdkDebugDialog {

inline constexpr const char* kDocuments[] = {
    "docs/connect-command.md",
    "docs/findings.md",
    "docs/man/qvt_option_file.5",
    "docs/man/qvtcfg-cable.1",
    "docs/man/qvtcfg-cables.1",
    "docs/man/qvtcfg-check.1",
    "docs/man/qvtcfg-command.1",
    "docs/man/qvtcfg-copy.1",
    "docs/man/qvtcfg-diff.1",
    "docs/man/qvtcfg-explain.1",
    "docs/man/qvtcfg-processors.1",
    "docs/man/qvtcfg-read.1",
    "docs/man/qvtcfg-set.1",
    "docs/man/qvtcfg-show.1",
    "docs/man/qvtcfg-unset.1",
    "docs/man/qvtcfg.1",
    "docs/qvtcfg-answer.schema.json",
    "docs/qvtcfg.md",
    "fuzz/command.dict",
};

// The document with all its parts printed anew; the rest stays. Throws std::runtime_error for a part that there is
// not, for one without an end, and for an option that the index links to and no part describes.
std::string with_parts(const std::string& document);

}  // namespace SdkDebugDialog
