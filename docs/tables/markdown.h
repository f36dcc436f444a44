#pragma once

// Text in Markdown.

#include <string>
#include <string_view>
#include <vector>

namespace markdown {

std::string code(std::string_view text);

// Words in single quotes are marked as code instead. An apostrophe is one behind a letter.
std::string with_code(std::string_view text);

// The texts that are not empty.
std::string joined(const std::vector<std::string>& texts, std::string_view separator = ", ");

using Row = std::vector<std::string>;

struct Table {
  Row head;
  std::vector<Row> rows;
};

// A column that is empty in every row is left out.
std::string table(const Table& table);

// What a link to the heading leads to: "#-comm--port" for "### -comm, -port".
std::string link_to(std::string_view heading);

}  // namespace markdown
