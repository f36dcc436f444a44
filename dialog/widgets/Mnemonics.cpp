// SPDX-License-Identifier: MIT
#include "widgets/Mnemonics.h"

namespace qvtdialog {

QString mnemonic_in(const QString& text) {
  for (qsizetype i = 0; i + 1 < text.size(); ++i) {
    if (text[i] != QLatin1Char('&')) continue;
    if (text[i + 1] != QLatin1Char('&')) return text.mid(i + 1, 1).toLower();
    ++i;
  }
  return {};
}

Mnemonics::Mnemonics(const QStringList& texts) {
  for (const QString& text : texts) m_taken += mnemonic_in(text);
}

QString Mnemonics::with_key(const QString& text) {
  QString escaped = text;
  escaped.replace(QLatin1Char('&'), QStringLiteral("&&"));
  for (const bool beginnings : {true, false}) {
    for (qsizetype i = 0; i < escaped.size(); ++i) {
      const QChar letter = escaped[i].toLower();
      const bool begins = i == 0 || escaped[i - 1] == QLatin1Char(' ');
      if (begins != beginnings || !letter.isLetterOrNumber() || m_taken.contains(letter)) continue;
      m_taken += letter;
      return escaped.insert(i, QLatin1Char('&'));
    }
  }
  return escaped;
}

}  // namespace qvtdialog
