#pragma once

// Collects the pieces of a text.

#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace SdkDebugDialog {

// Texts put together when the program is compiled.
template <std::size_t size>
consteval std::array<char, size> joined(std::string_view a, std::string_view b, std::string_view c) {
  std::array<char, size> text{};
  std::size_t end = 0;
  for (const std::string_view part : {a, b, c}) {
    for (const char letter : part) text[end++] = letter;
  }
  return text;
}

// Appends to a string by way of a buffer, which costs less than many small appends to the string itself. What was put
// is in the string after flush.
class TextOut {
 public:
  explicit TextOut(std::string& text) : m_text(text) {}
  TextOut(const TextOut&) = delete;
  TextOut& operator=(const TextOut&) = delete;

  // Pieces whose length is known when the program is compiled.
  template <std::size_t size>
  void put(const std::array<char, size>& piece) {
    make_room(size);
    std::memcpy(m_end, piece.data(), size);
    m_end += size;
  }

  void put(std::string_view piece) {
    if (piece.size() > kBuffer) {
      flush();
      m_text.append(piece);
      return;
    }
    make_room(piece.size());
    std::memcpy(m_end, piece.data(), piece.size());
    m_end += piece.size();
  }

  // What printf's "%d" and "0x%x" give.
  void put_decimal(std::int32_t value) {
    make_room(kLongestNumber);
    m_end = std::to_chars(m_end, m_end + kLongestNumber, value).ptr;
  }
  void put_hex(std::uint32_t value) {
    make_room(kLongestNumber);
    *m_end++ = '0';
    *m_end++ = 'x';
    m_end = std::to_chars(m_end, m_end + 8, value, 16).ptr;
  }

  void flush() {
    m_text.append(m_buffer, m_end);
    m_end = m_buffer;
  }

 private:
  static constexpr std::size_t kBuffer = 1024;
  static constexpr std::size_t kLongestNumber = 11;

  void make_room(std::size_t size) {
    if (static_cast<std::size_t>(m_buffer + kBuffer - m_end) < size) flush();
  }

  std::string& m_text;
  char m_buffer[kBuffer];
  char* m_end = m_buffer;
};

// Runs a writer on the end of a caller's text.
template <auto writer, class... Arguments>
int on_end(std::string& text, Arguments&... arguments) {
  TextOut out(text);
  const int result = writer(out, arguments...);
  out.flush();
  return result;
}

}  // namespace SdkDebugDialog
