#include "finding_text.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include "glyphs.h"
#include "text.h"

namespace qvtcfg {
namespace {

using SdkDebugDialog::Finding;
using SdkDebugDialog::Fix;
using SdkDebugDialog::Remark;
using SdkDebugDialog::Replacement;
using SdkDebugDialog::Severity;

constexpr struct {
  std::string_view name;
  Style style;
} kSeverities[] = {{"error", Style::kError}, {"warning", Style::kWarning}, {"note", Style::kNote}};

Style style_of(Severity severity) { return kSeverities[static_cast<std::size_t>(severity)].style; }

// A part of a line, in bytes, that is marked: by characters below it, or by a style alone.
struct Mark {
  std::size_t begin;
  std::size_t end;
  char below;
  Style style;
};

constexpr std::size_t kNumberWidth = 4;

std::string gutter(const std::string& number, char bar, const Look& look) {
  const std::string blanks(number.size() < kNumberWidth ? kNumberWidth - number.size() : 0, ' ');
  return look.styled(Style::kGutter, blanks + number + ' ' + bar) + ' ';
}

// The columns for a line, beside the gutter.
std::size_t room(const Look& look) { return look.columns - (kNumberWidth + 3); }

// Text of the same style, joined so that there is one escape sequence for each run.
class Row {
 public:
  explicit Row(const Look& look) : m_look(&look) {}

  void add(const std::string& text, std::optional<Style> style) {
    if (style != m_style) finish();
    m_style = style;
    m_run += text;
  }
  std::string text() && {
    finish();
    return std::move(m_text);
  }

 private:
  void finish() {
    m_text += m_style && !m_run.empty() ? m_look->styled(*m_style, m_run) : m_run;
    m_run.clear();
  }

  const Look* m_look;
  std::optional<Style> m_style;
  std::string m_run;
  std::string m_text;
};

const Mark* mark_at(const std::vector<Mark>& marks, std::size_t at) {
  const auto found =
      std::ranges::find_if(marks, [&](const Mark& m) { return m.begin <= at && at < std::max(m.end, m.begin + 1); });
  return found != marks.end() ? &*found : nullptr;
}

struct ShownLine {
  std::string text;
  std::string below;  // the marks; empty if there are none
};

// The marks that come first are shown before others.
ShownLine shown_line(std::string_view line, const Window& window, const std::vector<Mark>& marks, const Look& look) {
  Row text(look);
  Row below(look);
  std::size_t blanks = 0;
  bool any = false;
  const auto put_below = [&](const Mark* mark, std::size_t columns) {
    if (mark == nullptr || mark->below == '\0') {
      blanks += columns;
      return;
    }
    if (blanks > 0) below.add(std::string(blanks, ' '), std::nullopt);
    below.add(std::string(columns, mark->below), mark->style);
    blanks = 0;
    any = true;
  };
  if (window.begin > 0) {
    text.add("...", Style::kDefault);
    blanks += 3;
  }
  for (std::size_t at = window.begin; at < window.end;) {
    const Glyph glyph = first_glyph(line.substr(at));
    const Mark* const mark = mark_at(marks, at);
    std::optional<Style> style;
    if (glyph.spelled) style = Style::kDefault;
    if (mark != nullptr) style = mark->style;
    text.add(glyph.shown, style);
    put_below(mark, glyph.columns);
    at += glyph.bytes;
  }
  if (window.end < line.size()) {
    text.add("...", Style::kDefault);
  } else {
    put_below(mark_at(marks, line.size()), 1);
  }
  return {std::move(text).text(), any ? std::move(below).text() : ""};
}

std::string lines_of(const std::string& number, const ShownLine& shown, const Look& look) {
  std::string out = gutter(number, '|', look) + shown.text + '\n';
  if (!shown.below.empty()) out += gutter("", '|', look) + shown.below + '\n';
  return out;
}

std::string location(const Source& source, const Position& position) {
  return visible(source.name) + ':' + std::to_string(position.line) + ':' + std::to_string(position.column) + ": ";
}

bool has_place(const Remark& remark) { return remark.end > 0; }

// The parts of a line that a place covers, from its beginning.
Mark mark_in(std::string_view line, std::size_t line_begin, std::size_t begin, std::size_t end, char below,
             Style style) {
  return {begin - line_begin, std::min(end - line_begin, line.size()), below, style};
}

// --- Fixes ---

// The lines that a fix changes, as they are then.
struct Changed {
  std::string text;
  std::vector<Mark> marks;  // what is new
};

// Of long lines only what is near the change. A fix that reaches far is shown from its beginning.
constexpr std::size_t kNear = 4096;

Changed changed_by(const Fix& fix, const Lines& lines) {
  const std::string_view text = lines.text();
  const std::size_t first = fix.replacements.front().begin;
  const std::size_t last = std::min(fix.replacements.back().end, first + kNear);
  std::size_t from = std::max(lines.begin(lines.position(first).line), first - std::min(first, kNear));
  while (from < first && (static_cast<unsigned char>(text[from]) & 0xC0U) == 0x80) ++from;
  const std::size_t end = last + std::min(text.substr(last, kNear).find('\n'), text.substr(last, kNear).size());
  Changed changed;
  for (const Replacement& replacement : fix.replacements) {
    if (replacement.begin > end || replacement.begin < from) break;
    changed.text.append(text, from, replacement.begin - from);
    const std::size_t begin = changed.text.size();
    changed.text += replacement.text;
    if (!replacement.text.empty()) changed.marks.push_back({begin, changed.text.size(), '\0', Style::kAdded});
    from = replacement.end;
  }
  if (from < end) changed.text.append(text, from, end - from);
  return changed;
}

std::string fix_lines(const Fix& fix, const Lines& lines, const Look& look) {
  constexpr std::size_t kMostLines = 3;
  Changed changed = changed_by(fix, lines);
  std::string_view rest = changed.text;
  const std::size_t change = changed.marks.empty() ? 0 : changed.marks.front().begin;
  std::string out;
  for (std::size_t count = 0; count < kMostLines; ++count) {
    const std::string_view line = rest.substr(0, rest.find('\n'));
    const std::size_t focus = count == 0 ? std::min(change, line.size()) : 0;
    const Window window = window_around(line, focus, focus, room(look));
    out += gutter("+", '|', look) + shown_line(line, window, changed.marks, look).text + '\n';
    if (line.size() == rest.size()) break;
    rest.remove_prefix(line.size() + 1);
    for (Mark& mark : changed.marks) {
      mark.begin -= std::min(mark.begin, line.size() + 1);
      mark.end -= std::min(mark.end, line.size() + 1);
    }
    std::erase_if(changed.marks, [](const Mark& mark) { return mark.begin == mark.end; });
  }
  return out;
}

std::string fix_text(const Fix& fix, const Source& source, const Look& look) {
  std::string out = gutter("", '=', look) + look.styled(Style::kAdded, "fix:") + ' ' + visible(fix.title);
  out += fix.safe ? "\n" : " (a guess)\n";
  return fix.replacements.empty() ? out : out + fix_lines(fix, *source.lines, look);
}

}  // namespace

std::string_view severity_name(Severity severity) { return kSeverities[static_cast<std::size_t>(severity)].name; }

std::string whole_message(const Finding& finding) {
  return visible(finding.remedy.empty() ? finding.message : finding.message + "; " + finding.remedy);
}

std::string finding_line(const Finding& finding, const Source& source, const Look& look) {
  const std::string severity = std::string(severity_name(finding.severity)) + ':';
  return look.styled(Style::kHeading, location(source, source.lines->position(finding.begin))) +
         look.styled(style_of(finding.severity), severity) + ' ' + whole_message(finding) + " [" +
         std::string(finding.kind->code) + ']';
}

std::string marked_line(const Source& source, std::size_t begin, std::size_t end, const Look& look) {
  const Position at = source.lines->position(begin);
  const std::string_view line = source.lines->line(at.line);
  const Mark mark = mark_in(line, source.lines->begin(at.line), begin, end, '-', Style::kNote);
  const Window window = window_around(line, mark.begin, mark.end, room(look));
  return lines_of(std::to_string(at.line), shown_line(line, window, {mark}, look), look);
}

std::string finding_text(const Finding& finding, const Source& source, const Source& remarks, const Look& look) {
  const Lines& lines = *source.lines;
  const std::size_t number = lines.position(finding.begin).line;
  const std::string_view line = lines.line(number);
  const std::size_t begin = lines.begin(number);
  std::vector<Mark> marks = {mark_in(line, begin, finding.begin, finding.end, '^', style_of(finding.severity))};
  const Window window = window_around(line, marks[0].begin, marks[0].end, room(look));
  const auto is_shown = [&](const Remark& remark) {
    return source.lines == remarks.lines && remark.begin >= begin + window.begin && remark.end <= begin + window.end;
  };
  for (const Remark& remark : finding.remarks) {
    if (has_place(remark) && is_shown(remark)) {
      marks.push_back(mark_in(line, begin, remark.begin, remark.end, '-', Style::kNote));
    }
  }
  std::string out = finding_line(finding, source, look) + '\n';
  const bool of_file = finding.end == 0;
  if (!of_file) out += lines_of(std::to_string(number), shown_line(line, window, marks, look), look);
  for (const Remark& remark : finding.remarks) {
    out += gutter("", '=', look) + look.styled(Style::kNote, "note:") + ' ';
    if (has_place(remark)) out += location(remarks, remarks.lines->position(remark.begin));
    out += visible(remark.message) + '\n';
    if (has_place(remark) && !is_shown(remark)) out += marked_line(remarks, remark.begin, remark.end, look);
  }
  for (const Fix& fix : finding.fixes) out += fix_text(fix, source, look);
  return out;
}

}  // namespace qvtcfg
