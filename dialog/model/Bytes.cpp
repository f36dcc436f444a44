// SPDX-License-Identifier: MIT
#include "model/Bytes.h"

#include <QChar>
#include <algorithm>
#include <iterator>

namespace qvtdialog {
namespace {

constexpr char16_t kFirstPrivate = 0xE000;
constexpr char16_t kLastPrivate = 0xE0FF;

struct Character {
  char32_t code = 0;
  std::size_t bytes = 0;  // 0: there is no character of UTF-8
};

// The character at the beginning of a text that is not empty.
Character first_character(std::string_view text) {
  struct Form {
    unsigned char mask;
    unsigned char lead;
    char32_t least;  // smaller codes have a shorter form
  };
  static constexpr Form kForms[] = {{0x80, 0x00, 0}, {0xE0, 0xC0, 0x80}, {0xF0, 0xE0, 0x800}, {0xF8, 0xF0, 0x10000}};
  const auto byte_at = [&](std::size_t at) { return static_cast<unsigned char>(text[at]); };
  const auto form = std::ranges::find_if(
      kForms, [&](const Form& candidate) { return (byte_at(0) & candidate.mask) == candidate.lead; });
  if (form == std::end(kForms)) return {};
  const std::size_t bytes = static_cast<std::size_t>(form - kForms) + 1;
  if (text.size() < bytes) return {};
  char32_t code = byte_at(0) & static_cast<unsigned char>(~form->mask);
  for (std::size_t at = 1; at < bytes; ++at) {
    if ((byte_at(at) & 0xC0U) != 0x80) return {};
    code = code << 6U | (byte_at(at) & 0x3FU);
  }
  if (code < form->least || code > QChar::LastValidCodePoint || QChar::isSurrogate(code)) return {};
  return {code, bytes};
}

bool stands_for_itself(char32_t code) {
  if (code == ' ' || code == '\t' || code == '\n') return true;
  return QChar::isPrint(code) && !QChar::isSpace(code) && code != QChar::ObjectReplacementCharacter;
}

}  // namespace

QString shown(std::string_view bytes) { return ShownText(bytes).text(); }

std::string bytes_of(QStringView text) {
  std::string bytes;
  bytes.reserve(static_cast<std::size_t>(text.size()));
  for (qsizetype at = 0; at < text.size();) {
    if (const auto byte = shown_byte(text[at])) {
      bytes += static_cast<char>(*byte);
      ++at;
      continue;
    }
    const auto* const end =
        std::find_if(text.begin() + at, text.end(), [](QChar c) { return shown_byte(c).has_value(); });
    const qsizetype count = end - (text.begin() + at);
    bytes += text.sliced(at, count).toUtf8().toStdString();
    at += count;
  }
  return bytes;
}

std::optional<unsigned char> shown_byte(QChar character) {
  const char16_t code = character.unicode();
  if (code < kFirstPrivate || code > kLastPrivate) return std::nullopt;
  return static_cast<unsigned char>(code - kFirstPrivate);
}

ShownText::ShownText(std::string_view bytes) : m_bytes(bytes.size()) {
  m_text.reserve(static_cast<qsizetype>(bytes.size()));
  for (std::size_t at = 0; at < bytes.size();) {
    const Character character = first_character(bytes.substr(at));
    if (character.bytes == 0 || !stands_for_itself(character.code)) {
      // One byte at a time: what follows an invalid byte can be a character again. The other bytes of a valid character
      // begin none.
      m_text += QChar(kFirstPrivate + static_cast<unsigned char>(bytes[at]));
      ++at;
      continue;
    }
    const qsizetype units = QChar::requiresSurrogates(character.code) ? 2 : 1;
    if (character.bytes != 1) m_wide.push_back({at, m_text.size(), character.bytes, units});
    m_text += QStringView(QChar::fromUcs4(character.code));
    at += character.bytes;
  }
}

qsizetype ShownText::index_at(std::size_t byte) const {
  byte = std::min(byte, m_bytes);
  const auto next = std::ranges::upper_bound(m_wide, byte, {}, &Wide::byte);
  if (next == m_wide.begin()) return static_cast<qsizetype>(byte);
  const Wide& wide = *std::prev(next);
  if (byte < wide.byte + wide.bytes) return wide.index;
  return wide.index + wide.units + static_cast<qsizetype>(byte - wide.byte - wide.bytes);
}

std::size_t ShownText::byte_at(qsizetype index) const {
  index = std::clamp<qsizetype>(index, 0, m_text.size());
  const auto next = std::ranges::upper_bound(m_wide, index, {}, &Wide::index);
  if (next == m_wide.begin()) return static_cast<std::size_t>(index);
  const Wide& wide = *std::prev(next);
  if (index < wide.index + wide.units) return wide.byte;
  return wide.byte + wide.bytes + static_cast<std::size_t>(index - wide.index - wide.units);
}

}  // namespace qvtdialog
