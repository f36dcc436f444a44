#pragma once

// What goes to standard output: collected, then written whole and checked.

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <vector>

namespace qvtcfg {

using Json = nlohmann::ordered_json;

enum class Style { kHeading, kSet, kDefault, kRemoved, kAdded };

class Output {
 public:
  // Colours are used on a terminal only, and not where NO_COLOR or TERM=dumb ask for none.
  Output();

  void line(std::string_view text);
  void json(const Json& value);

  // Columns as wide as their widest cell; the first row is the heading.
  void table(const std::vector<std::vector<std::string>>& rows);

  // The text in the style's colour, if colours are used.
  std::string styled(Style style, const std::string& text) const;

  // Writes what was collected; throws Failure when it could not be written.
  void flush();

 private:
  bool m_colour;
  std::string m_text;
};

// The text, and blanks up to the width.
std::string padded(std::string text, std::size_t width);

}  // namespace qvtcfg
