// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace qvtdialog {

// The letter that an '&' in a text makes a key; empty if there is none.
QString mnemonic_in(const QString& text);

// Texts that get an '&' in front of a letter of their own, as long as there are letters that are not taken: the first
// of a word if possible. What is given here is taken for the next ones.
class Mnemonics {
 public:
  // Letters that are keys already, such as those of buttons and menus.
  explicit Mnemonics(const QStringList& texts = {});
  QString with_key(const QString& text);

 private:
  QString m_taken;
};

}  // namespace qvtdialog
