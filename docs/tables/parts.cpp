#include "docs/tables/parts.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <string_view>
#include <vector>

#include "docs/tables/json.h"
#include "docs/tables/markdown.h"
#include "docs/tables/print.h"
#include "docs/tables/roff.h"
#include "options/groups.h"

namespace SdkDebugDialog {
namespace {

// The name of the part that begins with this line.
std::optional<std::string> part_of(std::string_view line) {
  constexpr std::string_view kMarks[] = {
      "printed from the syntax: ", "printed from the kinds of findings: ", "printed from the tables of qvtcfg: ",
      "printed from the command line: ", "printed from the settings: "};
  constexpr std::string_view kCommentEnds[] = {" -->", "\","};
  for (const std::string_view mark : kMarks) {
    const std::size_t found = line.find(mark);
    if (found == std::string_view::npos) continue;
    line.remove_prefix(found + mark.size());
    for (const std::string_view end : kCommentEnds) {
      if (line.ends_with(end)) line.remove_suffix(end.size());
    }
    return std::string(line);
  }
  return {};
}

constexpr std::string_view kRoffComment = ".\\\"";

bool is_end(std::string_view line) { return line == "<!-- end -->" || line == "# end" || line == ".\\\" end"; }

// The indentation of a comment in JSON; none for other lines.
std::optional<std::string> json_indentation(std::string_view line) {
  const std::size_t start = std::min(line.find_first_not_of(' '), line.size());
  if (!line.substr(start).starts_with("\"$comment\"")) return {};
  return std::string(line.substr(0, start));
}

// The options of "general: -comm -port"; none if the part is none of options.
std::vector<const Option*> options_of(const std::string& part) {
  const std::size_t colon = part.find(':');
  if (colon == std::string::npos) return {};
  const std::string where = part.substr(0, colon);
  for (const Run* const run : kRuns) {
    if (run->where != where) continue;
    std::vector<const Option*> found;
    std::istringstream names(part.substr(colon + 1));
    for (std::string name; names >> name;) {
      found.push_back(find_option(name, *run, LetterCase{}));
      if (found.back() == nullptr) throw std::runtime_error("an option does not stand there: " + part);
    }
    return found;
  }
  throw std::runtime_error("options stand nowhere like that: " + part);
}

// Where the document describes each option: the heading above the part that does.
Links links_of(const std::string& document) {
  Links links;
  std::istringstream lines(document);
  std::string heading;
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with('#')) heading = line;
    const std::optional<std::string> part = part_of(line);
    if (!part) continue;
    for (const Option* const option : options_of(*part)) links[option] = markdown::link_to(heading);
  }
  return links;
}

// What follows the word in front, in "synopsis cable format".
std::optional<std::string> behind(std::string_view word, const std::string& part) {
  if (!part.starts_with(word)) return std::nullopt;
  return part.substr(word.size());
}

std::optional<markdown::Table> table_of(const std::string& part, const Links& links) {
  if (part == "option index") return option_index_table(links);
  if (part == "heads") return head_table();
  if (part == "targets") return target_table();
  if (part == "cable types") return cable_type_table();
  if (part == "never written") return never_written_table();
  if (part == "not read back") return not_read_back_table();
  if (part == "table") return finding_table();
  if (part == "errors") return error_table();
  if (part == "commands") return command_table();
  if (const auto command = behind("options ", part)) return parameter_table(*command);
  const std::vector<const Option*> options = options_of(part);
  if (options.empty()) return std::nullopt;
  return options.front()->takes == Option::Takes::pairs ? keyword_table(*options.front()) : option_table(options);
}

std::string print(const std::string& part, const Links& links, bool roff) {
  if (part == "all words") return print_dictionary();
  if (part == "descriptions") return print_finding_descriptions();
  if (part == "codes") return print_finding_codes();
  if (part == "keys") return print_keys();
  if (const auto command = behind("synopsis ", part)) return print_synopsis(*command);
  if (roff && part == "commands") return print_commands();
  if (const auto command = behind("options ", part); roff && command) return print_parameters(*command);
  const std::optional<markdown::Table> table = table_of(part, links);
  if (!table) throw std::runtime_error("there is no part of this name: " + part);
  return roff ? roff::list(*table) : markdown::table(*table);
}

}  // namespace

std::string with_parts(const std::string& document) {
  const Links links = links_of(document);
  std::string text;
  std::istringstream lines(document);
  for (std::string line; std::getline(lines, line);) {
    text += line + '\n';
    const std::optional<std::string> part = part_of(line);
    if (!part) continue;
    const std::optional<std::string> indentation = json_indentation(line);
    text += indentation ? print_schema_part(*part, *indentation) : print(*part, links, line.starts_with(kRoffComment));
    // A part of JSON ends with its own last line.
    const auto ends = [&] {
      return indentation ? line == *indentation + ']' || line == *indentation + '}' : is_end(line);
    };
    do {
      if (!std::getline(lines, line)) throw std::runtime_error("this part has no end: " + *part);
    } while (!ends());
    if (!indentation) text += line + '\n';
  }
  return text;
}

}  // namespace SdkDebugDialog
