// SPDX-License-Identifier: MIT
// What screen readers tell, and the order of the tab key, in every view.

#include <SdkDebugDialog/Configuration.h>

#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QAccessible>
#include <QApplication>
#include <QLineEdit>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include "support.h"
#include "views.h"
#include "widgets/AddressPicture.h"
#include "widgets/ChainPicture.h"
#include "widgets/CommandView.h"

namespace qvtdialog {

using SdkDebugDialog::find_setting;

namespace {

QString told(QWidget& widget, QAccessible::Text kind) {
  QAccessibleInterface* const told = QAccessible::queryAccessibleInterface(&widget);
  return told == nullptr ? QString() : told->text(kind);
}

// Parts of a field, such as the line of a combo box, leave the focus to it.
bool takes_focus(const QWidget& widget) {
  return widget.isEnabled() && widget.focusProxy() == nullptr && (widget.focusPolicy() & Qt::TabFocus) != 0;
}

QList<QWidget*> stops(const QWidget& window) {
  QList<QWidget*> found;
  for (QWidget* const widget : visible_widgets(window)) {
    if (takes_focus(*widget)) found += widget;
  }
  return found;
}

// What is more than a name can tell.
bool needs_description(const QWidget& widget) {
  return qobject_cast<const AddressPicture*>(&widget) != nullptr ||
         qobject_cast<const ChainPicture*>(&widget) != nullptr ||
         qobject_cast<const CommandView*>(&widget) != nullptr ||
         qobject_cast<const QAbstractItemView*>(&widget) != nullptr;
}

void check_texts(const QWidget& window, const QString& view) {
  for (QWidget* const widget : stops(window)) {
    const QByteArray name = (view + QStringLiteral(": ") + name_of(*widget)).toUtf8();
    const QString told_name = told(*widget, QAccessible::Name);
    QVERIFY2(!told_name.trimmed().isEmpty(), name);
    QVERIFY2(!told_name.contains(QLatin1Char('&')), name);
    if (needs_description(*widget)) QVERIFY2(!told(*widget, QAccessible::Description).isEmpty(), name);
  }
}

// The tab key goes to everything that can have the focus once, and comes back to where it was.
QList<QWidget*> tab_order(QWidget& window) {
  QList<QWidget*> order;
  const qsizetype all = stops(window).size();
  for (qsizetype i = 0; i < 2 * all + 2; ++i) {
    QWidget* const before = QApplication::focusWidget();
    QTest::keyClick(before == nullptr ? &window : before, Qt::Key_Tab);
    QWidget* const now = QApplication::focusWidget();
    if (now == nullptr || order.contains(now)) break;
    order += now;
  }
  return order;
}

// The page of a tab, the window itself for what is on none.
const QWidget* page_of(const QWidget* widget, const QWidget& window) {
  for (; widget != &window; widget = widget->parentWidget()) {
    if (widget->parentWidget() != nullptr && widget->parentWidget()->inherits("QStackedWidget")) break;
  }
  return widget;
}

void check_order(QWidget& window, const QString& view) {
  // Something else can have the focus, such as a view that does not let the tab key go.
  const QList<QWidget*> before = stops(window);
  if (!before.isEmpty()) before.front()->setFocus(Qt::TabFocusReason);
  const QList<QWidget*> order = tab_order(window);
  // A table that gets the focus selects a row, which can enable buttons.
  const QList<QWidget*> wanted = stops(window);
  for (QWidget* const widget : wanted) {
    QVERIFY2(order.contains(widget), qPrintable(view + QStringLiteral(": not reached: ") + name_of(*widget)));
  }
  QVERIFY2(order.size() == wanted.size(), qPrintable(view));
  for (qsizetype i = 0; i + 1 < order.size(); ++i) {
    const QWidget* const page = page_of(order[i], window);
    if (page == &window || page_of(order[i + 1], window) != page) continue;
    // Nothing that lies above what was visited before; side by side, from left to right.
    const QRect here(order[i]->mapTo(page, QPoint()), order[i]->size());
    const QRect next(order[i + 1]->mapTo(page, QPoint()), order[i + 1]->size());
    const bool isBelow = next.center().y() > here.center().y();
    QVERIFY2(isBelow || next.left() > here.left(), qPrintable(view + QStringLiteral(": ") + name_of(*order[i]) +
                                                              QStringLiteral(" before ") + name_of(*order[i + 1])));
  }
}

}  // namespace

class AccessibilityTest : public QObject {
  Q_OBJECT

 private slots:
  void everything_has_a_name_data() {
    QTest::addColumn<QString>("language");
    for (const char* const name : {"en", "de"}) QTest::newRow(name) << QString::fromLatin1(name);
  }

  void everything_has_a_name() {
    QFETCH(QString, language);
    const Language spoken(language);
    look_at_all_views([](const QWidget& shown, const QString& view) {
      if (!QTest::currentTestFailed()) check_texts(shown, view);
    });
  }

  void the_tab_key_goes_everywhere_in_order() {
    look_at_all_views([](QWidget& shown, const QString& view) {
      if (QTest::currentTestFailed()) return;
      QApplication::setActiveWindow(&shown);
      check_order(shown, view);
    });
  }

  void pictures_tell_their_content() {
    Folder folder(QStringLiteral("large"));
    Person person;
    person.select("ppc405_0");
    const auto set = [&](const char* setting, const char* text) {
      person.document().type(*find_setting(setting), text);
      person.document().end_typing();
    };
    set("devices", "1,prom32,16,0x05059093:2,fpga,10,0x0a001093");
    set("debug-device", "2");
    set("icache", "0x70000000");
    set("dcache", "0x70000000");
    const QString chain = told(person.find(QStringLiteral("chain_picture")), QAccessible::Description);
    for (const char* const part : {"TDI", "1: prom32", "2: fpga", "TDO", "debug device"}) {
      QVERIFY2(chain.contains(QString::fromLatin1(part)), qPrintable(chain));
    }
    const QString addresses = told(person.find(QStringLiteral("address_picture")), QAccessible::Description);
    for (const char* const part : {"Instruction cache", "Data cache", "0x70000000", "0x7000FFFF", "overlaps"}) {
      QVERIFY2(addresses.contains(QString::fromLatin1(part)), qPrintable(addresses));
    }
  }
};

}  // namespace qvtdialog

int main(int argc, char** argv) {
  qvtdialog::use_some_platform();
  QApplication application(argc, argv);
  qvtdialog::AccessibilityTest test;
  return QTest::qExec(&test, argc, argv);
}

#include "accessibility_test.moc"
