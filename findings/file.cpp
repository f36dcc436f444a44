// What is wrong with an option file, beside the command in it.

#include <algorithm>
#include <array>
#include <boost/locale/utf.hpp>
#include <cstddef>
#include <cstdio>
#include <string>
#include <utility>

#include "SdkDebugDialog/OptionFile.h"
#include "findings/checks.h"
#include "findings/names.h"
#include "findings/suggest.h"

namespace SdkDebugDialog {
namespace {

constexpr std::string_view kWhiteSpace = " \t\n\v\f\r";

bool is_blank(std::string_view text) { return text.find_first_not_of(kWhiteSpace) == text.npos; }

// The place without white space at its ends; it has something else.
Place trimmed(const Subject& subject, const Place& place) {
  const std::string_view text = subject.in(place);
  return {place.begin + text.find_first_not_of(kWhiteSpace), place.begin + text.find_last_not_of(kWhiteSpace) + 1};
}

std::string counted(std::size_t count, const char* one) {
  return std::to_string(count) + " " + one + (count == 1 ? "" : "s");
}

const char* verb(std::size_t count) { return count == 1 ? " is" : " are"; }

// --- Bytes ---

// Files of two bytes a character: every second byte of plain text is NUL.
bool is_utf16(std::string_view text) {
  if (text.starts_with("\xFF\xFE") || text.starts_with("\xFE\xFF")) return true;
  const std::string_view sample = text.substr(0, 64);
  std::array<std::size_t, 2> zeros{};
  for (std::size_t i = 0; i < sample.size(); ++i) {
    if (sample[i] == '\0') ++zeros[i % 2];
  }
  const std::size_t half = sample.size() / 2;
  return half >= 2 && ((zeros[0] == 0 && zeros[1] == half) || (zeros[0] >= half && zeros[1] == 0));
}

// The length of the character that the text begins with; 0 if it is none, or a control character that no text has.
std::size_t character_length(std::string_view text) {
  const char first = text.front();
  if (first >= ' ' && first < 0x7F) return 1;
  if (first == '\t' || first == '\r' || first == '\n') return 1;
  const char* at = text.data();
  const auto character = boost::locale::utf::utf_traits<char>::decode(at, text.data() + text.size());
  constexpr boost::locale::utf::code_point kFirstPrintable = 0xA0;  // of those that take more than a byte
  const bool isText = boost::locale::utf::is_valid_codepoint(character) && character >= kFirstPrintable;
  return isText ? static_cast<std::size_t>(at - text.data()) : 0;
}

// Bytes that are no text, and byte-order marks.
struct Oddities {
  std::size_t firstByte = std::string_view::npos;
  std::size_t bytes = 0;
  std::size_t firstMark = std::string_view::npos;
  std::size_t marks = 0;
};

Oddities oddities_of(const Subject& subject) {
  Oddities found;
  const std::string_view text = subject.text;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t length = character_length(text.substr(at));
    if (length == 0) {
      if (found.bytes++ == 0) found.firstByte = at;
    } else if (length == kByteOrderMark.size() && at != subject.line.begin &&
               text.compare(at, length, kByteOrderMark) == 0) {
      if (found.marks++ == 0) found.firstMark = at;
    }
    at += std::max<std::size_t>(length, 1);
  }
  return found;
}

// What is no text is an error where the reader refuses it, which is at the head.
void add_not_text(const Place& place, std::string message, std::string remedy, Report& report) {
  Finding* const head = report.find(Code::unknownHead);
  if (head == nullptr || place.begin < head->begin || place.begin >= head->end) {
    report.add(Code::notText, place, std::move(message), std::move(remedy));
    return;
  }
  head->kind = &kind_of(Code::notText);
  head->message = std::move(message);
  if (head->fixes.empty()) head->remedy = std::move(remedy);
}

// False if it is a file of another encoding, of which nothing else can be told.
bool check_bytes(const Subject& subject, Report& report) {
  const std::string_view text = subject.text;
  if (is_utf16(text)) {
    const Place place = {subject.line.begin, std::min(subject.line.begin + 2, text.size())};
    add_not_text(place, "the file is UTF-16: two bytes a character", "save the file as UTF-8", report);
    return false;
  }
  const Oddities found = oddities_of(subject);
  if (found.bytes > 0) {
    char byte[sizeof "0x00"];
    std::snprintf(byte, sizeof byte, "0x%02x", static_cast<unsigned char>(text[found.firstByte]));
    std::string message = std::string("the byte ") + byte + " is no text";
    if (found.bytes > 1) message.append("; there are ").append(counted(found.bytes, "such byte"));
    add_not_text({found.firstByte, found.firstByte + 1}, std::move(message),
                 "save the file as UTF-8, and remove what is no text", report);
  }
  if (found.marks > 0) {
    std::string message = "a byte-order mark stands inside the file";
    if (found.marks > 1) message.append("; there are ").append(std::to_string(found.marks));
    Finding& finding = report.add(Code::byteOrderMark, {found.firstMark, found.firstMark + kByteOrderMark.size()},
                                  std::move(message), "remove it");
    report.set_severity(finding, Severity::warning);
  }
  return true;
}

// --- The line that is read ---

// lineEnd is where it ends in the file, read or not.
void check_length(const Subject& subject, std::size_t lineEnd, Report& report) {
  const Place unread = {subject.line.end, lineEnd};
  if (is_blank(subject.in(unread))) return;
  const Place place = {unread.begin, trimmed(subject, unread).end};
  const std::size_t count = place.end - place.begin;
  report.add(Code::lineTooLong, place,
             "the last " + counted(count, "byte") + " of the line" + verb(count) + " not read: it is longer than " +
                 counted(kLongestLine, "byte"),
             "shorten the line");
}

void check_carriage_returns(const Subject& subject, std::size_t lineEnd, Report& report) {
  const std::string_view line = subject.in(subject.line);
  const std::size_t end = line.find_last_not_of('\r') + 1;
  if (const std::size_t inside = line.find('\r'); inside < end) {
    const std::size_t behind = line.find_first_not_of('\r', inside);
    report.add(Code::carriageReturn, {subject.line.begin + inside, subject.line.begin + behind},
               "a carriage return inside the line ends no line: it may be part of a word",
               "write a blank or a line feed instead");
  }
  // Of a line that is cut, the end is elsewhere.
  if (end == line.size() || lineEnd != subject.line.end) return;
  const Place place = {subject.line.begin + end, subject.line.end};
  Finding& finding =
      report.add(Code::carriageReturn, place, "the line ends with a carriage return", "save the file with line feeds");
  finding.fixes.push_back(fix("remove the carriage return", true, place, ""));
}

// --- The lines behind it ---

// Whether it begins with a head, or with what resembles one.
bool is_command(std::string_view line) {
  if (line.starts_with(kByteOrderMark)) line.remove_prefix(kByteOrderMark.size());
  const std::string_view word = line.substr(0, line.find_first_of(kWhiteSpace));
  return !nearest(word, head_names(Source::command)).names.empty();
}

void check_further_lines(const Subject& subject, std::size_t begin, Report& report) {
  Place all;
  std::size_t count = 0;
  // A first line that is no command is an error; what is behind it tells what to do.
  const bool isFirstCommand = is_command(subject.in(trimmed(subject, subject.line)));
  while (begin < subject.text.size()) {
    const std::size_t end = std::min(subject.text.find('\n', begin), subject.text.size());
    const Place line = {begin, end};
    begin = end + 1;
    if (is_blank(subject.in(line))) continue;
    const Place place = trimmed(subject, line);
    if (!isFirstCommand) {
      if (!is_command(subject.in(place))) continue;
      report.add(Code::furtherLines, place, "the command is not in the first line, which alone is read",
                 "remove the lines before it");
      return;
    }
    if (is_comment(subject.in(place))) {
      report.add(Code::comment, place, "a comment is a line that is not read, and lost when the file is written",
                 "keep comments elsewhere");
      continue;
    }
    if (count++ == 0) all.begin = place.begin;
    all.end = place.end;
  }
  if (count == 0) return;
  report.add(Code::furtherLines, all, counted(count, "further line") + verb(count) + " not read: only the first one is",
             "write the command in one line, and remove the others");
}

}  // namespace

bool is_comment(std::string_view line) {
  constexpr std::string_view kMarks[] = {"#", "//", ";", "--"};
  return std::ranges::any_of(kMarks, [&](std::string_view mark) { return line.starts_with(mark); });
}

void check_file(const Subject& subject, Report& report) {
  if (!check_bytes(subject, report)) return;
  // Of a line of blanks the reader refuses nothing else is worth telling.
  if (is_blank(subject.in(subject.line))) return;
  const std::size_t lineEnd = std::min(subject.text.find('\n', subject.line.end), subject.text.size());
  check_length(subject, lineEnd, report);
  check_carriage_returns(subject, lineEnd, report);
  check_further_lines(subject, lineEnd + 1, report);
}

}  // namespace SdkDebugDialog
