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

  // Writes one piece after the other. A compiler keeps a pen that stays in a function in a register, which it cannot do
  // with a place that others could see: for all it knows a letter that is written may change that.
  class Pen {
   public:
    explicit Pen(TextOut& out) : m_out(out), m_at(out.m_end) {}
    ~Pen() { m_out.m_end = m_at; }
    Pen(const Pen&) = delete;
    Pen& operator=(const Pen&) = delete;

    // Pieces whose length is known when the program is compiled.
    template <std::size_t size>
    void put(const std::array<char, size>& piece) {
      make_room(size);
      std::memcpy(m_at, piece.data(), size);
      m_at += size;
    }

    void put(std::string_view piece) {
      if (piece.size() > kBuffer) {
        m_at = m_out.empty(m_at);
        m_out.m_text.append(piece);
        return;
      }
      make_room(piece.size());
      std::memcpy(m_at, piece.data(), piece.size());
      m_at += piece.size();
    }

    // What printf's "%d" and "0x%x" give.
    void put_decimal(std::int32_t value) {
      make_room(kLongestNumber);
      m_at = std::to_chars(m_at, m_at + kLongestNumber, value).ptr;
    }
    void put_hex(std::uint32_t value) {
      make_room(kLongestNumber);
      *m_at++ = '0';
      *m_at++ = 'x';
      m_at = std::to_chars(m_at, m_at + 8, value, 16).ptr;
    }

   private:
    void make_room(std::size_t size) {
      if (static_cast<std::size_t>(m_out.m_buffer + kBuffer - m_at) < size) m_at = m_out.empty(m_at);
    }

    TextOut& m_out;
    char* m_at;
  };

  template <class Piece>
  void put(const Piece& piece) {
    Pen(*this).put(piece);
  }
  void put_decimal(std::int32_t value) { Pen(*this).put_decimal(value); }

  void flush() { m_end = empty(m_end); }

 private:
  static constexpr std::size_t kBuffer = 1024;
  static constexpr std::size_t kLongestNumber = 11;

  // Moves what the buffer holds up to end to the text; where the buffer begins.
  char* empty(const char* end) {
    m_text.append(m_buffer, static_cast<std::size_t>(end - m_buffer));
    return m_buffer;
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
