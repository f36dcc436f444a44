#include "docs/tables/roff.h"

#include <cstddef>
#include <locale>
#include <vector>

namespace roff {

// A dash in front of a word is printed as it is typed, not as a hyphen.
std::string text(std::string_view markdown) {
  std::string out;
  bool inWord = false;
  bool inCode = false;
  for (const char c : markdown) {
    if (c == '`') {
      inCode = !inCode;
      out += inCode ? "\\fB" : "\\fR";
    } else if (c == '\\') {
      out += "\\e";
    } else if (c == '-' && !inWord) {
      out += "\\-";
    } else {
      out += c;
    }
    inWord = std::isalnum(c, std::locale::classic()) || (c == '.' && inWord);
  }
  return out;
}

std::string lines(std::string_view markdown) {
  constexpr std::size_t kWidth = 78;
  const std::string words = text(markdown) + ' ';
  std::string out;
  std::string line;
  for (std::size_t begin = 0; begin < words.size();) {
    const std::size_t end = words.find(' ', begin);
    const std::string word = words.substr(begin, end - begin);
    begin = end + 1;
    if (word.empty()) continue;
    // A sentence ends its line, so that the formatter sees its end.
    if (!line.empty() && (line.size() + 1 + word.size() > kWidth || line.ends_with('.'))) {
      out += line + '\n';
      line.clear();
    }
    // What begins with these is a request.
    if (line.empty() && (word.front() == '.' || word.front() == '\'')) line = "\\&";
    line += (line.empty() || line == "\\&" ? "" : " ") + word;
  }
  return line.empty() ? out : out + line + '\n';
}

std::string sentence(std::string_view markdown) {
  std::string out(markdown);
  if (out.empty()) return out;
  out.front() = std::toupper(out.front(), std::locale::classic());
  return out.ends_with('.') ? out : out + '.';
}

std::string list(std::string_view items) { return ".Bl -tag -width Ds\n" + std::string(items) + ".El\n"; }

std::string list(const markdown::Table& table) {
  std::string items;
  for (const markdown::Row& row : table.rows) {
    items += ".It " + text(row.front()) + '\n';
    for (std::size_t column = 1; column < row.size(); ++column) {
      const std::string& cell = row[column];
      const std::string& head = table.head[column];
      if (cell.empty()) continue;
      // What these columns hold is clear without their head.
      const bool isClear = (head == "value" && cell != "none") || head == "for" || head == "because";
      items += lines(sentence(isClear ? cell : std::string(head).append(": ").append(cell)));
    }
  }
  return list(items);
}

}  // namespace roff
