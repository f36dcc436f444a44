// SPDX-License-Identifier: MIT
// No text is cut off, in any language, at twice the size; the window fits on a small screen.

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyleOptionButton>
#include <QTabBar>
#include <QTest>
#include <QTreeView>

#include "support.h"
#include "views.h"
#include "widgets/Colours.h"
#include "widgets/Style.h"

namespace qvtdialog {

namespace {

void check_width(const QWidget& widget, const QString& view, int wanted, int room, const QString& text) {
  QVERIFY2(wanted <= room, qPrintable(view + QStringLiteral(": ") + name_of(widget) + QStringLiteral(": ") + text +
                                      QStringLiteral(" needs %1, has %2").arg(wanted).arg(room)));
}

// Texts of rows are wrapped, and the rows high enough.
void check_rows(const QTreeView& rows, const QString& view, const QModelIndex& parent) {
  for (int row = 0; row < rows.model()->rowCount(parent); ++row) {
    for (int column = 0; column < rows.model()->columnCount(parent) && parent.isValid(); ++column) {
      const QModelIndex index = rows.model()->index(row, column, parent);
      const QString text = index.data().toString();
      const QRect cell = rows.visualRect(index);
      if (text.isEmpty() || cell.isEmpty()) continue;  // scrolled out of sight
      const QSize needed = rows.fontMetrics().boundingRect(cell, Qt::TextWordWrap, text).size();
      check_width(rows, view, needed.height(), cell.height(), text);
    }
    check_rows(rows, view, rows.model()->index(row, 0, parent));
  }
}

void check_texts(const QWidget& window, const QString& view) {
  for (const QWidget* const widget : visible_widgets(window)) {
    const QFontMetrics metrics = widget->fontMetrics();
    if (const auto* const label = qobject_cast<const QLabel*>(widget)) {
      const int wanted = label->wordWrap() ? label->heightForWidth(label->width()) : label->minimumSizeHint().width();
      check_width(*label, view, wanted, label->wordWrap() ? label->height() : label->width(), label->text());
    }
    if (const auto* const button = qobject_cast<const QAbstractButton*>(widget); button && !button->text().isEmpty()) {
      check_width(*button, view, button->sizeHint().width(), button->width(), button->text());
      check_width(*button, view, button->sizeHint().height(), button->height(), button->text());
    }
    if (const auto* const tabs = qobject_cast<const QTabBar*>(widget)) {
      for (int i = 0; i < tabs->count(); ++i) {
        if (!tabs->isTabVisible(i)) continue;
        check_width(*tabs, view, metrics.size(Qt::TextShowMnemonic, tabs->tabText(i)).width(), tabs->tabRect(i).width(),
                    tabs->tabText(i));
      }
    }
    if (const auto* const header = qobject_cast<const QHeaderView*>(widget)) {
      for (int i = 0; i < header->count() && header->orientation() == Qt::Horizontal; ++i) {
        check_width(*header, view, header->sectionSizeHint(i), header->sectionSize(i),
                    header->model()->headerData(i, Qt::Horizontal).toString());
      }
    }
    if (const auto* const rows = qobject_cast<const QTreeView*>(widget); rows != nullptr && rows->wordWrap()) {
      check_rows(*rows, view, {});
    }
    if (const auto* const area = qobject_cast<const QScrollArea*>(widget)) {
      check_width(*area, view, area->horizontalScrollBar()->maximum(), 0, QStringLiteral("the page"));
    }
    if (QTest::currentTestFailed()) return;
  }
}

// A font for all windows, until it is destroyed.
class Font {
 public:
  explicit Font(int times) : m_before(QApplication::font()) {
    QFont font = m_before;
    font.setPointSizeF(font.pointSizeF() * times);
    QApplication::setFont(font);
  }
  ~Font() { QApplication::setFont(m_before); }

 private:
  QFont m_before;
};

}  // namespace

class ReadabilityTest : public QObject {
  Q_OBJECT

 private slots:
  void no_text_is_cut_off_data() {
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("times");
    for (const char* const name : {"en", "de"}) {
      for (const int times : {1, 2}) {
        QTest::addRow("%s, %d00 %%", name, times) << QString::fromLatin1(name) << times;
      }
    }
  }

  void no_text_is_cut_off() {
    QFETCH(QString, language);
    QFETCH(int, times);
    const Language spoken(language);
    const Font font(times);
    look_at_all_views([](QWidget& shown, const QString& view) {
      if (!QTest::currentTestFailed()) check_texts(shown, view);
    });
  }

  void check_boxes_are_large_and_can_be_seen() {
    const Font font(2);
    const Style style;
    QPalette dark;
    dark.setColor(QPalette::Window, QColor(45, 45, 48));
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text}) dark.setColor(role, Qt::white);
    QStyleOptionButton option;
    option.palette = dark;
    option.state = QStyle::State_Enabled | QStyle::State_Off;
    const int size = style.pixelMetric(QStyle::PM_IndicatorWidth, nullptr, nullptr);
    QVERIFY(size >= QFontMetrics(QApplication::font()).ascent());
    option.rect = QRect(0, 0, size, size);
    QPixmap picture(size, size);
    picture.fill(dark.color(QPalette::Base));
    QPainter painter(&picture);
    style.drawPrimitive(QStyle::PE_IndicatorCheckBox, &option, &painter, nullptr);
    painter.end();
    const QImage image = picture.toImage();
    QVERIFY(contrast(image.pixelColor(0, size / 2), dark.color(QPalette::Base)) >= 3);
    QVERIFY(contrast(image.pixelColor(size / 2, size - 1), dark.color(QPalette::Base)) >= 3);
  }

  void everything_fits_on_a_small_screen_data() {
    QTest::addColumn<QString>("language");
    for (const char* const name : {"en", "de"}) QTest::newRow(name) << QString::fromLatin1(name);
  }

  void everything_fits_on_a_small_screen() {
    QFETCH(QString, language);
    const Language spoken(language);
    look_at_all_views([](const QWidget& shown, const QString& view) {
      const QSize least = shown.minimumSizeHint().expandedTo(shown.minimumSize());
      QVERIFY2(least.width() <= 1024 && least.height() <= 768 - 60,
               qPrintable(view + QStringLiteral(": %1 x %2").arg(least.width()).arg(least.height())));
    });
  }
};

}  // namespace qvtdialog

int main(int argc, char** argv) {
  // A screen with room for twice the size.
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" SCREEN);
  QApplication application(argc, argv);
  qvtdialog::ReadabilityTest test;
  return QTest::qExec(&test, argc, argv);
}

#include "readability_test.moc"
