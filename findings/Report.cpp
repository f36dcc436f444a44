#include "findings/Report.h"

#include <algorithm>
#include <cstdio>
#include <utility>

#include "SdkDebugDialog/OptionFile.h"

namespace SdkDebugDialog {

Subject::Subject(std::string_view t, TextKind k, const Processor& p)
    : text(t), kind(k), processor(p), line{0, t.size()} {
  if (kind != TextKind::optionFile) return;
  const std::string_view read = option_line(text);
  line.begin = static_cast<std::size_t>(read.data() - text.data());
  line.end = line.begin + read.size();
}

Finding& Report::add(Code code, const Place& place, std::string message, std::string remedy) {
  const FindingKind& kind = kind_of(code);
  const std::size_t count = ++m_counts[static_cast<std::size_t>(code)];
  if (kind.severity == Severity::error) ++m_errors;
  Finding finding;
  finding.kind = &kind;
  finding.severity = kind.severity;
  finding.begin = place.begin;
  finding.end = place.end;
  finding.message = std::move(message);
  finding.remedy = std::move(remedy);
  if (count > kMostOfOneKind) {
    if (count == kMostOfOneKind + 1) {
      finding.kind = &kind_of(Code::tooMany);
      finding.message = "there are more findings '" + std::string(kind.code) + "', which are not listed";
      finding.remedy.clear();
      m_findings.push_back(std::move(finding));
    }
    return m_unlisted = Finding();
  }
  m_places.emplace(place.begin, place.end);
  m_findings.push_back(std::move(finding));
  return m_findings.back();
}

bool Report::has(const Place& place) const { return m_places.contains({place.begin, place.end}); }

Finding* Report::find(Code code) {
  const auto found = std::ranges::find(m_findings, &kind_of(code), &Finding::kind);
  return found != m_findings.end() ? &*found : nullptr;
}

std::optional<Finding> Report::take_warning(const Place& place) {
  if (!has(place)) return std::nullopt;
  const auto found = std::ranges::find_if(m_findings, [&](const Finding& f) {
    return f.begin == place.begin && f.end == place.end && f.severity == Severity::warning;
  });
  if (found == m_findings.end()) return std::nullopt;
  Finding taken = std::move(*found);
  m_findings.erase(found);
  m_places.erase(m_places.find({place.begin, place.end}));
  --m_counts[static_cast<std::size_t>(taken.kind - &kind_of(Code{}))];
  return taken;
}

void Report::set_severity(Finding& finding, Severity severity) {
  if (finding.severity == Severity::error) --m_errors;
  if (severity == Severity::error) ++m_errors;
  finding.severity = severity;
}

std::vector<Finding> Report::findings() && {
  // Not all that would have to be fixed are listed.
  for (Finding& finding : m_findings) {
    const auto index = static_cast<std::size_t>(finding.kind - &kind_of(Code{}));
    if (m_counts[index] <= kMostOfOneKind) continue;
    for (Fix& fix : finding.fixes) fix.safe = false;
  }
  std::ranges::stable_sort(m_findings, [](const Finding& a, const Finding& b) {
    return std::pair(a.begin, a.severity) < std::pair(b.begin, b.severity);
  });
  return std::move(m_findings);
}

Fix fix(std::string title, bool safe, const Place& place, std::string text) {
  Fix made;
  made.title = std::move(title);
  made.safe = safe;
  made.replacements.push_back({place.begin, place.end, std::move(text)});
  return made;
}

std::string quoted(std::string_view word) {
  constexpr std::size_t kLongest = 60;
  std::string out = "'";
  for (const char c : word.substr(0, kLongest)) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte >= ' ' && byte != 0x7F) {
      out += c;
    } else {
      char spelled[5];
      std::snprintf(spelled, sizeof spelled, "\\x%02x", byte);
      out += spelled;
    }
  }
  return out += word.size() > kLongest ? "...'" : "'";
}

}  // namespace SdkDebugDialog
