#pragma once

// Buffered standard output.

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace qvtcfg {

using Json = nlohmann::ordered_json;

enum class Style { kHeading, kSet, kDefault, kRemoved, kAdded, kError, kWarning, kNote, kGutter };

// How a stream shows text.
struct Look {
  bool colour = false;
  std::size_t columns = 100;

  // The text with the escape sequences of the style, if colours are used.
  std::string styled(Style style, const std::string& text) const;
};

// Colours are used only on a terminal, and not with NO_COLOR or TERM=dumb.
Look look_of(int descriptor);

class Output {
 public:
  Output();

  void line(std::string_view text);
  // Whole lines.
  void text(std::string_view lines) { m_text += lines; }
  void json(const Json& document);

  // The result of the subcommand, which goes into the answer in JSON.
  void result(Json value) { m_result = std::move(value); }
  Json take_result() { return std::exchange(m_result, nullptr); }

  // Columns as wide as their widest cell; the first row is the heading.
  void table(const std::vector<std::vector<std::string>>& rows);

  const Look& look() const { return m_look; }
  std::string styled(Style style, const std::string& text) const { return m_look.styled(style, text); }

  std::string take_text() { return std::exchange(m_text, {}); }

  // Writes the buffer; throws OutputFailure on an error.
  void flush();

 private:
  Look m_look;
  std::string m_text;
  Json m_result;
};

// The text padded with blanks to the width.
std::string padded(std::string text, std::size_t width);

}  // namespace qvtcfg
