#pragma once

// Collects findings.

#include <array>
#include <cstddef>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "SdkDebugDialog/Diagnosis.h"
#include "findings/kinds.h"

namespace SdkDebugDialog {

inline constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

// A part of a text, in bytes.
struct Place {
  std::size_t begin = 0;
  std::size_t end = 0;

  bool operator==(const Place&) const = default;
};

// The text, what kind it is, and the part of it that is read.
struct Subject {
  Subject(std::string_view text, TextKind kind, const Processor& processor);

  std::string_view in(const Place& place) const { return text.substr(place.begin, place.end - place.begin); }

  std::string_view text;
  TextKind kind;
  const Processor& processor;
  Place line;  // of a file: its command, as far as it is read; else the whole text
};

class Report {
 public:
  // Of one kind no more are listed.
  static constexpr std::size_t kMostOfOneKind = 1000;

  // The finding can be completed until the next one is added. Its severity is that of its kind.
  Finding& add(Code code, const Place& place, std::string message, std::string remedy = {});

  std::size_t errors() const { return m_errors; }
  // Whether something was found at this very place.
  bool has(const Place& place) const;
  // The first finding of a kind that is listed; null if there is none.
  Finding* find(Code code);
  // Removes the first warning at this very place.
  std::optional<Finding> take_warning(const Place& place);
  // For a finding whose severity is not that of its kind.
  void set_severity(Finding& finding, Severity severity);

  // In the order of their places.
  std::vector<Finding> findings() &&;

 private:
  std::vector<Finding> m_findings;
  std::multiset<std::pair<std::size_t, std::size_t>> m_places;  // of the findings
  std::array<std::size_t, static_cast<std::size_t>(Code::tooMany) + 1> m_counts{};
  Finding m_unlisted;
  std::size_t m_errors = 0;
};

// A fix that replaces one place.
Fix fix(std::string title, bool safe, const Place& place, std::string text);

// In single quotes; what is no text is escaped as \xNN, and a long word is cut.
std::string quoted(std::string_view word);

}  // namespace SdkDebugDialog
