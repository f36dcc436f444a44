#pragma once

// Everything that is seen of the library for one text, as lines that can be compared.

#include <string>
#include <string_view>
#include <type_traits>

// Control characters and what is not ASCII as \xNN.
inline void append_escaped(std::string& out, std::string_view text) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte >= ' ' && byte < 0x7F && c != '\\') {
      out += c;
      continue;
    }
    out += "\\x";
    out += kDigits[byte >> 4U];
    out += kDigits[byte & 0xFU];
  }
}

class Observation {
 public:
  // What the following lines are about.
  void begin(std::string_view what) { m_text.append("== ").append(what).append("\n"); }

  template <class Value>
  void put(std::string_view what, const Value& value) {
    m_text.append(what).append(": ");
    if constexpr (std::is_convertible_v<Value, std::string_view>) {
      m_text += '"';
      append_escaped(m_text, value);
      m_text += '"';
    } else if constexpr (std::is_enum_v<Value>) {
      m_text += std::to_string(static_cast<std::underlying_type_t<Value>>(value));
    } else {
      m_text += std::to_string(value);
    }
    m_text += '\n';
  }

  const std::string& text() const { return m_text; }

 private:
  std::string m_text;
};
