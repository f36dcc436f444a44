#pragma once

#include <charconv>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

#include "options/Name.h"

namespace SdkDebugDialog {

// Appends to a string by way of a buffer, which costs less than many small appends to the string itself. What was put
// is in the string after flush.
class TextOut {
 public:
  explicit TextOut(std::string& text) : m_text(text) {}
  TextOut(const TextOut&) = delete;
  TextOut& operator=(const TextOut&) = delete;

  void put(std::string_view piece) {
    if (piece.size() > kBuffer) {
      flush();
      m_text.append(piece);
      return;
    }
    make_room(piece.size());
    m_end = append_text(m_end, piece);
  }

  // The name with the blanks around it.
  void put_name(const Name& name) { m_end = append(name); }

  void put(const Name& name, std::string_view value) {
    if (value.size() > kBuffer - Name::kRoom) {
      put_name(name);
      put(value);
      return;
    }
    m_end = append_text(append(name, value.size()), value);
  }

  // The name, and a number as printf's "%d" and "0x%x" give it.
  void put_decimal(const Name& name, std::int32_t value) { m_end = append_decimal(append(name), value); }
  void put_hex(const Name& name, std::uint32_t value) {
    char* const at = append(name);
    at[0] = '0';
    at[1] = 'x';
    m_end = std::to_chars(at + 2, at + kLongestNumber, value, 16).ptr;
  }

  void put_decimal(std::int32_t value) {
    make_room(kLongestNumber);
    m_end = append_decimal(m_end, value);
  }

  void flush() {
    m_text.append(m_buffer, static_cast<std::size_t>(m_end - m_buffer));
    m_end = m_buffer;
  }

 private:
  static constexpr std::size_t kBuffer = 1024;
  static constexpr std::size_t kLongestNumber = 11;

  void make_room(std::size_t size) {
    if (static_cast<std::size_t>(m_buffer + kBuffer - m_end) < size) flush();
  }
  // Leaves room for a number behind the name. Copying the padding as well spares a copy of variable length.
  char* append(const Name& name, std::size_t room = kLongestNumber) {
    make_room(Name::kRoom + room);
    char* const at = m_end;
    std::memcpy(at, name.padded().data(), Name::kRoom);
    return at + name.written().size();
  }
  // Two copies of fixed size, which may overlap, are quicker than one of any size.
  static char* append_text(char* at, std::string_view text) {
    const std::size_t size = text.size();
    const char* const from = text.data();
    if (size >= 8 && size <= 16) {
      std::memcpy(at, from, 8);
      std::memcpy(at + size - 8, from + size - 8, 8);
    } else if (size >= 4 && size < 8) {
      std::memcpy(at, from, 4);
      std::memcpy(at + size - 4, from + size - 4, 4);
    } else {
      std::memcpy(at, from, size);
    }
    return at + size;
  }
  static char* append_decimal(char* at, std::int32_t value) {
    return std::to_chars(at, at + kLongestNumber, value).ptr;
  }

  std::string& m_text;
  char m_buffer[kBuffer];
  char* m_end = m_buffer;
};

}  // namespace SdkDebugDialog
