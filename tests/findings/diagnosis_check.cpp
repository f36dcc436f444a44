#include "diagnosis_check.h"

#include <algorithm>
#include <exception>
#include <initializer_list>
#include <optional>
#include <set>
#include <stdexcept>
#include <tuple>
#include <utility>

#include "fuzz/input.h"
#include "options/framing.h"
#include "options/groups.h"
#include "options/target.h"
#include "tests/settings/edit_check.h"
#include "tests/support/plain_token.h"

using SdkDebugDialog::diagnose;
using SdkDebugDialog::Finding;
using SdkDebugDialog::Fix;
using SdkDebugDialog::Processor;
using SdkDebugDialog::Remark;
using SdkDebugDialog::Replacement;
using SdkDebugDialog::Severity;
using SdkDebugDialog::TextKind;

void WatchedHardware::getProcessorInstances(std::vector<std::string>& out, bool flag) {
  asked = true;
  Hardware::getProcessorInstances(out, flag);
}
void WatchedHardware::getIpInstances(std::vector<std::string>& out, const HwIpType& ipClass) {
  asked = true;
  Hardware::getIpInstances(out, ipClass);
}
void WatchedHardware::getIpInstances(std::vector<std::string>& out, const std::string& ipType, bool flag) {
  asked = true;
  Hardware::getIpInstances(out, ipType, flag);
}
std::string WatchedHardware::getIpName(const std::string& instance) {
  asked = true;
  return Hardware::getIpName(instance);
}
void WatchedHardware::getOdmConnectedProcessorList(std::vector<std::string>& out, const std::string& debugInstance) {
  asked = true;
  Hardware::getOdmConnectedProcessorList(out, debugInstance);
}
void WatchedHardware::getPeripherals(const std::string& processor, std::vector<std::string>& out) {
  asked = true;
  Hardware::getPeripherals(processor, out);
}
std::string WatchedHardware::getParameterValue(const std::string& instance, const std::string& parameter) {
  asked = true;
  return Hardware::getParameterValue(instance, parameter);
}

namespace {

std::string lower(std::string_view word) {
  std::string text(word);
  for (char& letter : text) {
    if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter - 'A' + 'a');
  }
  return text;
}

std::string range(const TextPlace& place) { return std::to_string(place.begin) + " to " + std::to_string(place.end); }

// --- Where a text is refused ---

// Finds the word that a reader rejects: the one that the reader read last, but for
//
//   a keyword or option without its value    that keyword or option; the reader read the option behind it as well
//   an unknown keyword                       the keyword; the reader read its value as well
//   a check of the cable at the end          the last frequency in the last "-cable"; "-cable" for what is missing
//   a text that ends too early               its last word; all of a text without words
//
// Whether a word was refused, or the one before it, is found out by reading the text up to there with other ends.
class Refusal {
 public:
  Refusal(ByHand& hand, std::string_view line, TextKind kind) : m_hand(hand), m_line(line), m_kind(kind) {
    for (std::size_t at = 0;;) {
      const PlainToken token = plain_token(line.substr(at));
      if (token.kind == 3 && !token.thrown) break;
      at += token.end;
      m_words.push_back({{at - token.token.size(), at}, token.kind == 1, token.thrown});
    }
  }

  TextPlace place() {
    const std::size_t consumed = read(std::string(m_line)).consumed;
    const auto isRead = [&](const Word& word) { return word.place.end <= consumed; };
    const auto count = static_cast<std::size_t>(std::ranges::count_if(m_words, isRead));
    if (count == 0) return {0, m_line.size()};
    const Word& last = m_words[count - 1];
    if (last.isLoneDash) return last.place;
    if (count == m_words.size()) {
      if (const auto cable = last_cable(); cable && ends_well(m_line)) return failed_check(*cable);
    }
    // Head, target and connection, or the first option.
    if (m_kind != TextKind::cableText && count <= 3) return last.place;
    if (count == 1 || ends_well(up_to(count - 1))) return last.place;
    const Word& before = m_words[count - 2];
    if (last.isOption) return before.place;
    return before.isOption || is_keyword(count - 2) ? last.place : before.place;
  }

 private:
  struct Word {
    TextPlace place;
    bool isOption = false;
    bool isLoneDash = false;
  };
  struct Reading {
    bool understood = false;
    std::size_t consumed = 0;
  };

  // The engine is as it was after each reading, but for the processor's record, in which a target says what it admits.
  Reading read(const std::string& text) {
    SdkDebugDialog::EngineImp& imp = m_hand.imp();
    const SdkDebugDialog::ProcessorInfoImp processor = *imp.currentProcessor;
    imp.EngineImpInit();
    SdkDebugDialog::TokenCursor in(text);
    Reading reading;
    try {
      const auto source =
          m_kind == TextKind::optionFile ? SdkDebugDialog::Source::file : SdkDebugDialog::Source::command;
      reading.understood = m_kind == TextKind::cableText ? read_options(in, imp, SdkDebugDialog::kCableTextOptions)
                                                         : read_connect(in, imp, source);
    } catch (const std::out_of_range&) {
    }
    reading.consumed = text.size() - in.rest().size();
    imp.engine->GetErrorStr(m_error);
    *imp.currentProcessor = processor;
    m_hand.set("devices", std::vector<SdkDebugDialog::JtagOption>());
    return reading;
  }

  // The first words, with what stands between them.
  std::string_view up_to(std::size_t count) const { return m_line.substr(0, m_words[count - 1].place.end); }

  // Whether the text is read, or would be if another option followed: nothing in it is refused, and nothing lacks its
  // value.
  bool ends_well(std::string_view text) {
    const std::string alone(text);
    return read(alone).understood || read(alone + " -debugdevice").understood;
  }

  bool is_keyword(std::size_t word) {
    // Mostly the error text tells.
    read(std::string(m_line));
    const std::string unknown = "UNKNOWN Parameter '" + std::string(this->word(word)) + "' for ";
    if (m_error.starts_with(unknown) && m_error.find(" option '-", unknown.size() - 1) != std::string::npos) {
      return false;
    }
    const std::string text = std::string(up_to(word + 1)) + " ";
    // One of them is accepted by every keyword.
    const auto values = {"0",     "zarvek_parallel3", "cpu", "sp", "ppc405", "m", "1", "2", "3", "jtag",
                         "USER1", "cycle_approximate"};
    return std::ranges::any_of(values, [&](const char* value) { return ends_well(text + value); });
  }

  // The last option, if it is "-cable".
  std::optional<std::size_t> last_cable() const {
    for (std::size_t i = m_words.size(); i-- > 0;) {
      if (m_words[i].isOption) return lower(word(i)) == "-cable" ? std::optional(i) : std::nullopt;
    }
    return {};
  }

  TextPlace failed_check(std::size_t cable) {
    read(std::string(m_line));
    if (m_error.starts_with("Plug-in Module NOT specified")) return m_words[cable].place;
    TextPlace place = m_words[cable].place;
    for (std::size_t key = cable + 1; key + 1 < m_words.size(); key += 2) {
      if (lower(word(key)) == "frequency") place = m_words[key + 1].place;
    }
    return place;
  }

  std::string_view word(std::size_t i) const {
    return m_line.substr(m_words[i].place.begin, m_words[i].place.end - m_words[i].place.begin);
  }

  ByHand& m_hand;
  std::string_view m_line;
  TextKind m_kind;
  std::vector<Word> m_words;
  std::string m_error;
};

// --- The parts of the check ---

bool is_line(const std::string& text) { return text.find_first_of("\r\n") == std::string::npos; }

std::string list(const std::vector<Finding>& findings) {
  std::string text;
  for (const Finding& f : findings) {
    constexpr const char* kSeverities[] = {"error", "warning", "note"};
    text.append("\n    ").append(range({f.begin, f.end})).append(" ");
    text.append(kSeverities[static_cast<int>(f.severity)]).append(" ").append(f.kind->code).append(": ");
    text.append(f.message).append(f.remedy.empty() ? "" : "; ").append(f.remedy);
    for (const Fix& fix : f.fixes) text.append(fix.safe ? "; safe: " : "; unsafe: ").append(fix.title);
  }
  return text;
}

std::string fault_of(const Fix& fix, std::string_view text) {
  if (fix.title.empty() || !is_line(fix.title)) return "a fix without a title";
  if (fix.replacements.empty()) return "a fix that changes nothing: " + fix.title;
  std::size_t from = 0;
  for (const Replacement& r : fix.replacements) {
    if (r.begin < from || r.end < r.begin || r.end > text.size()) return "a replacement out of its place: " + fix.title;
    from = r.end;
  }
  return "";
}

std::string fault_of(const Finding& finding, std::string_view text) {
  if (finding.kind == nullptr) return "a finding of no kind";
  if (finding.kind->code.empty()) return "a kind without a code";
  if (SdkDebugDialog::find_finding_kind(finding.kind->code) != finding.kind) return "a kind that is not listed";
  if (finding.begin > finding.end || finding.end > text.size()) return "a finding out of the text";
  if (finding.message.empty()) return "a finding without a message";
  if (!is_line(finding.message) || !is_line(finding.remedy)) return "a message of several lines: " + finding.message;
  for (const Remark& remark : finding.remarks) {
    if (remark.message.empty() || !is_line(remark.message)) return "a remark that is no line";
    if (remark.begin > remark.end || remark.end > text.size()) return "a remark out of the text: " + remark.message;
  }
  for (const Fix& fix : finding.fixes) {
    if (std::string fault = fault_of(fix, text); !fault.empty()) return fault;
  }
  return "";
}

std::string fault_of(const std::vector<Finding>& findings, std::string_view text) {
  std::size_t from = 0;
  std::set<std::tuple<std::size_t, std::size_t, std::string_view>> met;
  for (const Finding& finding : findings) {
    if (std::string fault = fault_of(finding, text); !fault.empty()) return fault;
    if (finding.begin < from) return "findings out of order";
    if (!met.emplace(finding.begin, finding.end, finding.kind->code).second) {
      return "the same finding twice: " + finding.message;
    }
    from = finding.begin;
  }
  return "";
}

TextPlace place_of_refusal(ByHand& hand, const DiagnosisCase& c) {
  const bool inFile = c.kind == TextKind::optionFile;
  const std::string line = inFile ? first_line(c.text) : c.text;
  const std::size_t begin = inFile ? std::min(c.text.find_first_not_of('\n'), c.text.size()) : 0;
  const TextPlace place = Refusal(hand, line, c.kind).place();
  return {place.begin + begin, place.end + begin};
}

bool has_safe_fix(const Finding& finding) { return std::ranges::any_of(finding.fixes, &Fix::safe); }

bool is_error(const Finding& finding) { return finding.severity == Severity::error; }

}  // namespace

Processor DiagnosisBench::processor(std::string_view name) const {
  return name.empty() ? Processor() : m_design.find(name).value();
}

std::optional<TextPlace> DiagnosisBench::rejected(const DiagnosisCase& c) {
  if (ByHand(m_hardware, c.processor).read(c.text, c.kind)) return {};
  ByHand hand(m_hardware, c.processor);
  return place_of_refusal(hand, c);
}

std::string DiagnosisBench::fault(const DiagnosisCase& c) try {
  const Processor processor = this->processor(c.processor);
  m_hardware.asked = false;
  const std::vector<Finding> findings = diagnose(c.text, c.kind, processor);
  const std::string fixed = with_fixes(c.text, findings);
  const std::vector<Finding> again = fixed == c.text ? findings : diagnose(fixed, c.kind, processor);
  if (m_hardware.asked) return "the hardware description was asked";
  const auto told = [&](const std::string& fault) {
    const std::string change =
        fixed == c.text ? "" : "\n  fixed " + shown(DiagnosisCase{c.processor, c.kind, fixed}) + list(again);
    return fault + list(findings) + change;
  };
  if (std::string fault = fault_of(findings, c.text); !fault.empty()) return told(fault);
  m_figures.findings += findings.size();

  ByHand before(m_hardware, c.processor);
  const bool isRead = before.read(c.text, c.kind);
  ++(isRead ? m_figures.read : m_figures.refused);
  const auto error = std::ranges::find_if(findings, is_error);
  if (isRead && error != findings.end()) return told("an error in a text that is read");
  if (!isRead && error == findings.end()) return told("no error in a text that is refused");
  if (!isRead) {
    ByHand hand(m_hardware, c.processor);
    const TextPlace place = place_of_refusal(hand, c);
    if (place != TextPlace{error->begin, error->end}) return told("refused at " + range(place));
  }

  if (with_fixes(fixed, again) != fixed) return told("not the same the second time");
  if (std::ranges::any_of(findings, [](const Finding& f) { return is_error(f) && !has_safe_fix(f); })) return "";
  if (fixed == c.text) return isRead ? "" : told("safe fixes that change nothing");
  ByHand after(m_hardware, c.processor);
  if (!after.read(fixed, c.kind)) return told("not read after the safe fixes");
  ++(isRead ? m_figures.improved : m_figures.fixed);
  if (!isRead) return "";
  std::string names;
  for (const std::string_view name : differing(before.state(), after.state())) names.append(" ").append(name);
  return names.empty() ? "" : told("changed by safe fixes:" + names);
} catch (const std::exception& error) {
  return std::string("an exception: ") + error.what();
}

// --- Cases ---

std::string shown(const DiagnosisCase& c) { return shown(EditCase{c.processor, c.kind, c.text, {}}); }

DiagnosisCase minimised(DiagnosisBench& bench, DiagnosisCase c) {
  // The first words of a fault tell it from others.
  const auto kind = [&](const DiagnosisCase& tried) {
    const std::string fault = bench.fault(tried);
    return fault.substr(0, fault.find_first_of(":\n0123456789"));
  };
  const std::string fault = kind(c);
  for (std::size_t length = c.text.size(); length > 0; length /= 2) {
    for (std::size_t at = 0; at + length <= c.text.size();) {
      DiagnosisCase smaller = c;
      smaller.text.erase(at, length);
      if (kind(smaller) == fault) {
        c = std::move(smaller);
      } else {
        ++at;
      }
    }
  }
  return c;
}
