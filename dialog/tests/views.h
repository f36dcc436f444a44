// SPDX-License-Identifier: MIT
#pragma once

// The window and the dialogs as people see them, in any language: for tests of what holds for all of them.

#include <QString>
#include <QStringList>
#include <QTranslator>
#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

namespace qvtdialog {

// The language of what is made next, until it is destroyed: "en" or "de".
class Language {
 public:
  explicit Language(const QString& name);
  ~Language();

 private:
  std::vector<std::unique_ptr<QTranslator>> m_translators;
};

// Called with the window or a dialog on the screen, and with what can be seen in it, for messages.
using Look = std::function<void(QWidget& shown, const QString& view)>;

// Every tab of the window for each kind of processor of the example designs and each of its connections; findings and
// text that is edited, a file that has changed, the dialogs.
void look_at_all_views(const Look& look);

// Every widget that can be seen, menus and tool tips aside.
QList<QWidget*> visible_widgets(const QWidget& window);

// "label:frequency", or the class of a widget without a name.
QString name_of(const QWidget& widget);

}  // namespace qvtdialog
