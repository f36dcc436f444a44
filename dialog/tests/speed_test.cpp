// SPDX-License-Identifier: MIT
// A design of 100,000 processors: the window opens, scrolls, filters and selects without a pause.

#include <SdkDebugDialog/platform/DesignFile.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>
#include <QTreeView>

#include "support.h"

namespace qvtdialog {

namespace {

constexpr int kProcessors = 100000;

// What a person waits for includes what is painted.
template <class Action>
qint64 milliseconds(Action action) {
  QElapsedTimer timer;
  timer.start();
  action();
  QApplication::processEvents();
  return timer.elapsed();
}

}  // namespace

class SpeedTest : public QObject {
  Q_OBJECT

 private slots:
  void a_large_design_opens_scrolls_filters_and_selects_without_a_pause() {
    Folder folder(QStringLiteral("small"));
    write_file(QStringLiteral("etc/qvt_cpu_50000.opt"),
               "connect ov odm -cable type zarvek_platformusb frequency 12000000 -debugdevice deviceNr 2");
    auto file = std::make_shared<DesignFile>(DesignFile::parse(design_of(kProcessors), "huge"));
    std::unique_ptr<Session> session;
    std::unique_ptr<MainWindow> window;
    const qint64 opened = milliseconds([&] {
      session = std::make_unique<Session>(SdkDebugDialog::Design(file));
      window = std::make_unique<MainWindow>(*session, QStringLiteral("huge"));
      window->select_first();
      window->show();
      QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    });
    auto& view = *window->findChild<QTreeView*>(QStringLiteral("processors"));
    auto& filter = *window->findChild<QLineEdit*>(QStringLiteral("filter"));
    QCOMPARE(view.model()->rowCount(), kProcessors);
    qint64 scrolled = 0;
    for (int i = 1; i <= 20; ++i) {
      scrolled = std::max(scrolled, milliseconds([&] {
                            view.verticalScrollBar()->setValue(view.verticalScrollBar()->maximum() * i / 20);
                          }));
    }
    qint64 filtered = 0;
    for (const char key : {'5', '0', '0', '0', '0'}) {
      filtered = std::max(filtered, milliseconds([&] { QTest::keyClick(&filter, key); }));
    }
    QCOMPARE(view.model()->rowCount(), 1);
    filtered = std::max(filtered, milliseconds([&] { filter.clear(); }));
    qint64 selected = 0;
    for (int i = 0; i < 40; ++i) {
      const auto name = "cpu_" + std::to_string(i % 2 == 0 ? 50000 : 4 * i + i % 3);
      selected = std::max(selected, milliseconds([&] { window->select(name); }));
      QCOMPARE(window->document()->processor().name(), name);
    }
    qInfo("%d processors: window %lld ms, one scroll %lld ms, one key of the filter %lld ms, one selection %lld ms",
          kProcessors, opened, scrolled, filtered, selected);
    QVERIFY(opened < 1000 * slowness());
    QVERIFY(scrolled < 100 * slowness());
    QVERIFY(filtered < 250 * slowness());
    QVERIFY(selected < 100 * slowness());
  }

 private:
  // Sanitizers and builds without optimisation are several times slower.
  static qint64 slowness() {
#if defined(__SANITIZE_ADDRESS__) || !defined(NDEBUG)
    return 8;
#else
    return 1;
#endif
  }
};

}  // namespace qvtdialog

int main(int argc, char** argv) {
  qvtdialog::use_some_platform();
  QApplication application(argc, argv);
  qvtdialog::SpeedTest test;
  return QTest::qExec(&test, argc, argv);
}

#include "speed_test.moc"
