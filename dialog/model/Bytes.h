// SPDX-License-Identifier: MIT
#pragma once

// Bytes as the characters of a text edit, and back, without loss. A character of UTF-8 that can be seen stands for
// itself, and so do the blank, the tab and the line feed. Every other byte is shown as one private character, U+E000
// plus the byte: bytes that are no UTF-8, control and format characters, other kinds of blanks, and whatever a
// QTextDocument would change or drop.

#include <QString>
#include <QStringView>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qvtdialog {

QString shown(std::string_view bytes);

// The bytes of a text that was shown, typed or pasted: bytes_of(shown(bytes)) == bytes.
std::string bytes_of(QStringView text);

// The byte that a character stands for; none for all others.
std::optional<unsigned char> shown_byte(QChar character);

// A text that is shown, with the places of its bytes. Made in linear time; a place is found by bisection.
class ShownText {
 public:
  ShownText() = default;
  explicit ShownText(std::string_view bytes);

  const QString& text() const { return m_text; }
  // The index of the character that the byte belongs to; the length of the text for a byte behind its end.
  qsizetype index_at(std::size_t byte) const;
  // The first byte of the character with this index.
  std::size_t byte_at(qsizetype index) const;

 private:
  // A character that has another number of bytes than of UTF-16 units.
  struct Wide {
    std::size_t byte;
    qsizetype index;
    std::size_t bytes;
    qsizetype units;
  };

  QString m_text;
  std::size_t m_bytes = 0;
  std::vector<Wide> m_wide;  // in the order of the text
};

}  // namespace qvtdialog
