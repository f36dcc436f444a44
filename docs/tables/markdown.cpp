#include "docs/tables/markdown.h"

#include <algorithm>
#include <cstddef>
#include <locale>

namespace markdown {

std::string code(std::string_view text) { return '`' + std::string(text) + '`'; }

std::string joined(const std::vector<std::string>& texts, std::string_view separator) {
  std::string all;
  for (const std::string& text : texts) {
    if (text.empty()) continue;
    if (!all.empty()) all += separator;
    all += text;
  }
  return all;
}

std::string with_code(std::string_view quoted) {
  std::string text(quoted);
  bool open = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '\'') continue;
    const bool opens = i == 0 || !std::isalnum(text[i - 1], std::locale::classic());
    if (!open && !opens) continue;
    text[i] = '`';
    open = !open;
  }
  return text;
}

std::string table(const Table& table) {
  const auto line = [&](const Row& cells) {
    std::string text = "|";
    for (std::size_t column = 0; column < table.head.size(); ++column) {
      if (std::ranges::all_of(table.rows, [&](const Row& row) { return row[column].empty(); })) continue;
      text += cells[column].empty() ? " |" : ' ' + cells[column] + " |";
    }
    return text + '\n';
  };
  std::string rule = line(Row(table.head.size(), "---"));
  std::erase(rule, ' ');
  std::string text = line(table.head) + rule;
  for (const Row& row : table.rows) text += line(row);
  return text;
}

std::string link_to(std::string_view heading) {
  heading.remove_prefix(std::min(heading.find_first_not_of("# "), heading.size()));
  std::string link = "#";
  for (const char c : heading) {
    if (c >= 'A' && c <= 'Z') {
      link += static_cast<char>(c - 'A' + 'a');
    } else if (c == ' ') {
      link += '-';
    } else if ((c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-' || c == '_') {
      link += c;
    }
  }
  return link;
}

}  // namespace markdown
