#pragma once

// Buffered standard output.

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <vector>

namespace qvtcfg {

using Json = nlohmann::ordered_json;

enum class Style { kHeading, kSet, kDefault, kRemoved, kAdded };

class Output {
 public:
  // Uses colours only on a terminal, and not with NO_COLOR or TERM=dumb.
  Output();

  void line(std::string_view text);
  void json(const Json& value);

  // Columns as wide as their widest cell; the first row is the heading.
  void table(const std::vector<std::vector<std::string>>& rows);

  // The text with the escape sequences of the style, if colours are used.
  std::string styled(Style style, const std::string& text) const;

  // Writes the buffer; throws Failure on an error.
  void flush();

 private:
  bool m_colour;
  std::string m_text;
};

// The text padded with blanks to the width.
std::string padded(std::string text, std::size_t width);

}  // namespace qvtcfg
