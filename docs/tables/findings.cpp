#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

#include "SdkDebugDialog/Diagnosis.h"
#include "docs/tables/markdown.h"
#include "docs/tables/print.h"
#include "docs/tables/roff.h"
#include "tools/qvtcfg/finding_text.h"

namespace SdkDebugDialog {
namespace {

// What would not be seen is spelled, but for line feeds between lines.
std::string visible(std::string_view text) {
  if (text.ends_with('\n')) text.remove_suffix(1);
  std::string out;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (c == '\n' || (byte >= ' ' && byte < 0x7F)) {
      out += c;
    } else if (c == '\t' || c == '\r') {
      out += c == '\t' ? "\\t" : "\\r";
    } else {
      char spelled[5];
      std::snprintf(spelled, sizeof spelled, "\\x%02X", byte);
      out += spelled;
    }
  }
  return out;
}

std::string severity(const FindingKind& kind) { return std::string(qvtcfg::severity_name(kind.severity)); }

std::string heading(const FindingKind& kind) { return "### " + std::string(kind.code); }

}  // namespace

markdown::Table finding_table() {
  std::vector<markdown::Row> rows;
  for (const FindingKind& kind : finding_kinds()) {
    rows.push_back({'[' + markdown::code(kind.code) + "](" + markdown::link_to(heading(kind)) + ')', severity(kind),
                    std::string(kind.title)});
  }
  return {{"code", "severity", "what is wrong"}, rows};
}

std::string print_finding_codes() {
  std::string items;
  for (const FindingKind& kind : finding_kinds()) {
    items += ".It Sy " + std::string(kind.code) + " Pq " + severity(kind) + '\n' + roff::lines(kind.title);
  }
  return roff::list(items);
}

std::string print_finding_descriptions() {
  std::string text;
  for (const FindingKind& kind : finding_kinds()) {
    text += '\n' + heading(kind) + "\n\n" + severity(kind) + ": **" + std::string(kind.title) + "**\n\n" +
            markdown::with_code(kind.meaning) + "\n\n" +
            (kind.exampleKind == TextKind::optionFile ? "An option file:\n\n" : "") + "```\n" + visible(kind.example) +
            "\n```\n\n" + markdown::with_code(kind.advice) + '\n';
  }
  return text + '\n';
}

}  // namespace SdkDebugDialog
