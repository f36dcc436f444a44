// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QElapsedTimer>
#include <QHelpEvent>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>
#include <set>
#include <vector>

#include "widgets/AddressPicture.h"
#include "widgets/ChainPicture.h"
#include "widgets/Colours.h"

using namespace qvtdialog;  // NOLINT(google-build-using-namespace)
using SdkDebugDialog::find_setting;
using SdkDebugDialog::JtagOption;
using SdkDebugDialog::Setting;

Q_DECLARE_METATYPE(const SdkDebugDialog::Setting*)

namespace {

std::vector<JtagOption> chain_of(int count) {
  std::vector<JtagOption> chain;
  for (int i = 0; i < count; ++i) {
    JtagOption device;
    device.partname = i % 2 == 0 ? "prom32" : "fpga";
    device.devicenr = static_cast<std::int8_t>(i % 127 + 1);
    device.irlength = i % 2 == 0 ? 16 : 10;
    device.idcode = 0xA5059093;
    chain.push_back(device);
  }
  return chain;
}

// What the tooltip at a point says; it takes a moment to go.
QString tooltip_at(QAbstractScrollArea& picture, const QPoint& point) {
  QToolTip::hideText();
  if (!QTest::qWaitFor([] { return !QToolTip::isVisible(); })) return QStringLiteral("the last tooltip stays");
  QHelpEvent help(QEvent::ToolTip, point, picture.viewport()->mapToGlobal(point));
  QApplication::sendEvent(picture.viewport(), &help);
  return QToolTip::text();
}

template <class Picture>
void show(Picture& picture, const QSize& size) {
  picture.resize(size);
  picture.show();
  picture.activateWindow();
  picture.setFocus();
  QVERIFY(QTest::qWaitForWindowExposed(&picture));
}

// Whether a colour is in a part of a widget's picture, which has more pixels than the widget on some displays.
bool has_colour(const QImage& image, const QRect& place, const QColor& colour) {
  const double scale = image.devicePixelRatio();
  const QRect part = QRectF(place.topLeft() * scale, place.size() * scale).toRect();
  for (int y = part.top(); y <= part.bottom(); ++y) {
    for (int x = part.left(); x <= part.right(); ++x) {
      if (image.valid(x, y) && image.pixelColor(x, y) == colour) return true;
    }
  }
  return false;
}

AddressRegion region(const char* label, std::uint64_t begin, std::uint64_t end, bool overlaps, const char* setting) {
  return {QString::fromLatin1(label), begin, end, overlaps, find_setting(setting)};
}

std::vector<AddressRegion> regions() {
  return {region("instructions", 0x70000000, 0x70010000, false, "icache"),
          region("data", 0x70010000, 0x70020000, true, "dcache"), region("tags", 0x70018000, 0x70028000, true, "itag"),
          region("rom", 0xFFF00000, 0x100000000, false, "rom")};
}

QPalette palette_of(const QColor& base, const QColor& text) {
  QPalette palette;
  palette.setColor(QPalette::Base, base);
  palette.setColor(QPalette::Text, text);
  return palette;
}

constexpr Tone kTones[] = {Tone::accent, Tone::error, Tone::warning, Tone::note, Tone::quiet, Tone::added, Tone::byte};

}  // namespace

class PicturesTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { qRegisterMetaType<const Setting*>(); }

  void coloursCanBeRead_data();
  void coloursCanBeRead();
  void knowsContrast();

  void chainIsDrawnInOrder();
  void chainWrapsAndScrolls();
  void chainForgetsItsScrollBar();
  void chainIsSelectedByClick();
  void chainIsSelectedByKeys();
  void chainTellsItsDevices();
  void chainMarksTheDebugDevice();
  void chainWithoutDevicesIsASentence();
  void chainOfManyDevicesIsQuick();
  void chainFitsAHigherFont();

  void addressesAreToScale();
  void longGapsAreLeftOut();
  void overlapsAreRed();
  void addressesAskForTheirSetting();
  void addressesTellTheirRegions();
  void addressesWithoutRegionsAreASentence();
  void narrowRegionsStayVisible();
};

// --- Colours ---

void PicturesTest::coloursCanBeRead_data() {
  QTest::addColumn<QPalette>("palette");
  QTest::newRow("white") << palette_of(Qt::white, Qt::black);
  QTest::newRow("light grey") << palette_of(QColor(0xEF, 0xEF, 0xEF), Qt::black);
  QTest::newRow("beige") << palette_of(QColor(0xFD, 0xF6, 0xE3), QColor(0x07, 0x36, 0x42));
  QTest::newRow("dark grey") << palette_of(QColor(0x2A, 0x2A, 0x2A), QColor(0xEE, 0xEE, 0xEE));
  QTest::newRow("dark blue") << palette_of(QColor(0x00, 0x2B, 0x36), QColor(0xEE, 0xE8, 0xD5));
  QTest::newRow("black") << palette_of(Qt::black, Qt::white);
}

void PicturesTest::coloursCanBeRead() {
  QFETCH(const QPalette, palette);
  std::vector<QColor> backgrounds = {palette.color(QPalette::Base)};
  for (const Tone tone : kTones) backgrounds.push_back(background(tone, palette));
  for (const QColor& behind : backgrounds) {
    QVERIFY(contrast(palette.color(QPalette::Text), behind) >= 4.5);
    for (const Tone tone : kTones) QVERIFY(contrast(colour(tone, palette), behind) >= 4.5);
    for (int role = 0; role <= static_cast<int>(SdkDebugDialog::Role::unknown); ++role) {
      QVERIFY(contrast(colour(static_cast<SdkDebugDialog::Role>(role), palette), behind) >= 4.5);
    }
  }
  // They still are different colours.
  std::set<QRgb> tones;
  for (const Tone tone : kTones) tones.insert(colour(tone, palette).rgb());
  QCOMPARE(tones.size(), std::size(kTones));
}

void PicturesTest::knowsContrast() {
  QCOMPARE(contrast(Qt::black, Qt::white), 21.0);
  QCOMPARE(contrast(Qt::red, Qt::red), 1.0);
  QVERIFY(is_dark(palette_of(Qt::black, Qt::white)));
  QVERIFY(!is_dark(palette_of(Qt::white, Qt::black)));
}

// --- The JTAG chain ---

void PicturesTest::chainIsDrawnInOrder() {
  ChainPicture picture;
  picture.show_chain(chain_of(3), 2, QStringLiteral("cpu0"));
  show(picture, {2000, 200});
  for (int i = 0; i + 1 < 3; ++i) {
    QVERIFY(picture.device_rect(i).right() < picture.device_rect(i + 1).left());
    QCOMPARE(picture.device_rect(i).center().y(), picture.device_rect(i + 1).center().y());
  }
  QVERIFY(picture.device_rect(1).height() > picture.device_rect(0).height());
}

void PicturesTest::chainWrapsAndScrolls() {
  ChainPicture picture;
  picture.show_chain(chain_of(100), 50, QStringLiteral("cpu0"));
  show(picture, {700, 300});
  QVERIFY(picture.verticalScrollBar()->maximum() > 0);
  QCOMPARE(picture.horizontalScrollBar()->maximum(), 0);
  int rows = 1;
  for (int i = 0; i + 1 < 100; ++i) {
    const QRect here = picture.device_rect(i);
    const QRect next = picture.device_rect(i + 1);
    QVERIFY(!here.intersects(next));
    QVERIFY(here.right() < picture.viewport()->width());
    if (next.left() > here.right()) continue;
    QVERIFY(next.top() > here.bottom());
    ++rows;
  }
  QVERIFY(rows > 10);
  picture.set_selected(99);
  QVERIFY(picture.viewport()->rect().contains(picture.device_rect(99)));
  // Too narrow even for one device.
  picture.resize(100, 300);
  QApplication::processEvents();
  QVERIFY(picture.horizontalScrollBar()->maximum() > 0);
}

// What it looks like does not depend on the sizes that it had before.
void PicturesTest::chainForgetsItsScrollBar() {
  ChainPicture picture;
  picture.show_chain(chain_of(4), 2, QStringLiteral("cpu0"));
  show(picture, {300, 200});
  QVERIFY(picture.verticalScrollBar()->maximum() > 0);
  const int needed = picture.device_rect(0).width() * 6;
  for (int width = 300; width < needed; ++width) {
    picture.resize(width, 200);
    const QRect grown = picture.device_rect(3);
    picture.resize(needed, 200);
    picture.resize(width, 200);
    QCOMPARE(picture.device_rect(3), grown);
  }
  QCOMPARE(picture.verticalScrollBar()->maximum(), 0);
}

void PicturesTest::chainIsSelectedByClick() {
  ChainPicture picture;
  picture.show_chain(chain_of(20), 13, QStringLiteral("cpu0"));
  show(picture, {700, 300});
  QSignalSpy spy(&picture, &ChainPicture::selected);
  picture.verticalScrollBar()->setValue(picture.verticalScrollBar()->maximum());
  for (const int index : {19, 18}) {
    QTest::mouseClick(picture.viewport(), Qt::LeftButton, {}, picture.device_rect(index).center());
    QCOMPARE(spy.last().first().toInt(), index);
    QCOMPARE(picture.selected_index(), index);
  }
  const QRect last = picture.device_rect(18);
  QTest::mouseClick(picture.viewport(), Qt::LeftButton, {}, {last.center().x(), last.bottom() + 3});
  QCOMPARE(spy.count(), 2);
  QCOMPARE(picture.selected_index(), 18);
  // The window sets it without a signal, and a shorter chain forgets it.
  picture.set_selected(3);
  picture.show_chain(chain_of(2), 0, {});
  QCOMPARE(picture.selected_index(), -1);
  QCOMPARE(spy.count(), 2);
}

void PicturesTest::chainIsSelectedByKeys() {
  ChainPicture picture;
  picture.show_chain(chain_of(20), 1, QStringLiteral("cpu0"));
  show(picture, {700, 300});
  QTest::keyClick(&picture, Qt::Key_Right);
  QCOMPARE(picture.selected_index(), 0);
  QTest::keyClick(&picture, Qt::Key_Left);
  QCOMPARE(picture.selected_index(), 0);
  QTest::keyClick(&picture, Qt::Key_Right);
  QCOMPARE(picture.selected_index(), 1);
  QTest::keyClick(&picture, Qt::Key_Down);
  QCOMPARE(picture.device_rect(picture.selected_index()).left(), picture.device_rect(1).left());
  QVERIFY(picture.device_rect(picture.selected_index()).top() > picture.device_rect(1).bottom());
  QTest::keyClick(&picture, Qt::Key_Up);
  QCOMPARE(picture.selected_index(), 1);
  QTest::keyClick(&picture, Qt::Key_End);
  QCOMPARE(picture.selected_index(), 19);
  QVERIFY(picture.viewport()->rect().contains(picture.device_rect(19)));
  QTest::keyClick(&picture, Qt::Key_Home);
  QCOMPARE(picture.selected_index(), 0);
}

void PicturesTest::chainTellsItsDevices() {
  ChainPicture picture;
  picture.show_chain(chain_of(2), 2, QStringLiteral("cpu0"));
  show(picture, {900, 200});
  QCOMPARE(picture.accessibleDescription(),
           QStringLiteral("TDI, 1: prom32, 2: fpga, TDO; debug device: 2: fpga, IDCODE 0xA5059093, IR 10, debug device "
                          "of cpu0"));
  QTest::keyClick(&picture, Qt::Key_Right);
  QVERIFY(picture.accessibleDescription().endsWith(QStringLiteral("; selected: 1: prom32, IDCODE 0xA5059093, IR 16")));
  QCOMPARE(tooltip_at(picture, picture.device_rect(0).center()), QStringLiteral("1: prom32, IDCODE 0xA5059093, IR 16"));
}

void PicturesTest::chainMarksTheDebugDevice() {
  ChainPicture picture;
  picture.show_chain(chain_of(3), 2, QStringLiteral("cpu0"));
  show(picture, {1200, 200});
  const QImage image = picture.viewport()->grab().toImage();
  const QColor tint = background(Tone::accent, picture.palette());
  QVERIFY(has_colour(image, picture.device_rect(1), tint));
  QVERIFY(!has_colour(image, picture.device_rect(0), tint));
  // A number that no device has.
  picture.show_chain(chain_of(3), 9, QStringLiteral("cpu0"));
  const QImage without = picture.viewport()->grab().toImage();
  QVERIFY(has_colour(without, picture.viewport()->rect(), colour(Tone::error, picture.palette())));
  QVERIFY(!has_colour(without, picture.viewport()->rect(), tint));
}

void PicturesTest::chainWithoutDevicesIsASentence() {
  ChainPicture picture;
  show(picture, {400, 100});
  QCOMPARE(picture.accessibleDescription(), QStringLiteral("There are no devices in the JTAG chain."));
  const QImage image = picture.viewport()->grab().toImage();
  QVERIFY(has_colour(image, picture.viewport()->rect(), colour(Tone::quiet, picture.palette())));
  QTest::keyClick(&picture, Qt::Key_Right);
  QTest::keyClick(&picture, Qt::Key_End);
  QTest::mouseClick(picture.viewport(), Qt::LeftButton, {}, {10, 10});
  QCOMPARE(picture.selected_index(), -1);
}

// The bound is far from what it takes, and far below what painting all of them takes each time.
void PicturesTest::chainOfManyDevicesIsQuick() {
  ChainPicture picture;
  show(picture, {700, 400});
  QElapsedTimer timer;
  timer.start();
  picture.show_chain(chain_of(10'000), 50, QStringLiteral("cpu0"));
  const qint64 shown = timer.restart();
  for (int i = 0; i < 20; ++i) {
    picture.verticalScrollBar()->setValue(picture.verticalScrollBar()->maximum() * i / 20);
    picture.viewport()->grab();
  }
  const qint64 painted = timer.elapsed();
  QVERIFY2(shown < 2000 && painted < 4000, qPrintable(QStringLiteral("%1 ms, %2 ms").arg(shown).arg(painted)));
}

void PicturesTest::chainFitsAHigherFont() {
  ChainPicture picture;
  picture.show_chain(chain_of(3), 2, QStringLiteral("cpu0"));
  show(picture, {900, 300});
  const QRect before = picture.device_rect(0);
  QFont font = picture.font();
  font.setPointSizeF(font.pointSizeF() * 2);
  picture.setFont(font);
  const QRect after = picture.device_rect(0);
  QVERIFY(after.height() > before.height() * 3 / 2 && after.width() > before.width() * 3 / 2);
}

// --- The addresses ---

void PicturesTest::addressesAreToScale() {
  AddressPicture picture;
  picture.show_regions({region("one", 0x10000, 0x20000, false, "icache"),
                        region("two", 0x20000, 0x40000, false, "dcache"),
                        region("four", 0x50000, 0x90000, false, "itag")});
  show(picture, {1500, 400});
  const int block = picture.region_rect(0).width();
  QVERIFY(qAbs(picture.region_rect(1).width() - 2 * block) <= 2);
  QVERIFY(qAbs(picture.region_rect(2).width() - 4 * block) <= 4);
  QCOMPARE(picture.region_rect(1).left(), picture.region_rect(0).left() + block);
  // A gap of a block is drawn as such.
  const int gap = picture.region_rect(2).left() - (picture.region_rect(1).left() + picture.region_rect(1).width());
  QVERIFY(qAbs(gap - block) <= 2);
}

void PicturesTest::longGapsAreLeftOut() {
  AddressPicture picture;
  picture.show_regions(regions());
  show(picture, {900, 400});
  QCOMPARE(picture.horizontalScrollBar()->maximum(), 0);
  for (int i = 0; i < 4; ++i) QVERIFY(picture.viewport()->rect().contains(picture.region_rect(i)));
  // 2 GB of a gap leave room for the blocks, which still are to scale.
  QVERIFY(picture.region_rect(0).width() > 40);
  QVERIFY(qAbs(picture.region_rect(0).width() - picture.region_rect(1).width()) <= 2);
}

void PicturesTest::overlapsAreRed() {
  AddressPicture picture;
  picture.show_regions(regions());
  show(picture, {900, 400});
  const QImage image = picture.viewport()->grab().toImage();
  const QColor red = colour(Tone::error, picture.palette());
  const auto bar = [&](int index) { return picture.region_rect(index).adjusted(2, 2, -2, -2); };
  QVERIFY(!has_colour(image, bar(0), red));
  QVERIFY(has_colour(image, bar(1), red));
  QVERIFY(has_colour(image, bar(2), red));
  QVERIFY(!has_colour(image, bar(3), red));
  // Hatched is only what overlaps: the first half of it is free.
  const QRect half(bar(1).topLeft(), QSize(bar(1).width() / 2 - 4, bar(1).height()));
  QVERIFY(!has_colour(image, half, red));
  // Their names stand below, in red.
  const QRect lane = picture.lane_rect(3);
  const QRect below(0, lane.bottom() + 1, lane.width(), picture.viewport()->height() - lane.bottom());
  QVERIFY(has_colour(image, below, red));
}

void PicturesTest::addressesAskForTheirSetting() {
  AddressPicture picture;
  picture.show_regions(regions());
  show(picture, {900, 400});
  QSignalSpy spy(&picture, &AddressPicture::setting_wanted);
  const auto wanted = [&] { return spy.last().first().value<const Setting*>(); };
  QTest::mouseClick(picture.viewport(), Qt::LeftButton, {}, picture.region_rect(1).center());
  QCOMPARE(wanted(), find_setting("dcache"));
  QTest::mouseClick(picture.viewport(), Qt::LeftButton, {}, picture.lane_rect(3).center());
  QCOMPARE(wanted(), find_setting("rom"));
  QTest::mouseClick(picture.viewport(), Qt::LeftButton, {}, {5, 5});
  QCOMPARE(spy.count(), 2);
  QTest::keyClick(&picture, Qt::Key_Home);
  QTest::keyClick(&picture, Qt::Key_Down);
  QTest::keyClick(&picture, Qt::Key_Down);
  QTest::keyClick(&picture, Qt::Key_Return);
  QCOMPARE(wanted(), find_setting("itag"));
  QTest::keyClick(&picture, Qt::Key_Up);
  QTest::keyClick(&picture, Qt::Key_Enter);
  QCOMPARE(wanted(), find_setting("dcache"));
}

void PicturesTest::addressesTellTheirRegions() {
  AddressPicture picture;
  picture.show_regions(regions());
  show(picture, {900, 400});
  const QString data = QStringLiteral("data: 0x70010000 – 0x7001FFFF, 64 KB, overlaps with tags");
  QVERIFY2(picture.accessibleDescription().contains(data), qPrintable(picture.accessibleDescription()));
  QVERIFY(picture.accessibleDescription().endsWith(QStringLiteral("rom: 0xFFF00000 – 0xFFFFFFFF, 1 MB")));
  QCOMPARE(tooltip_at(picture, picture.region_rect(1).center()), data);
}

void PicturesTest::addressesWithoutRegionsAreASentence() {
  AddressPicture picture;
  show(picture, {400, 100});
  QCOMPARE(picture.accessibleDescription(), QStringLiteral("No address is set."));
  QSignalSpy spy(&picture, &AddressPicture::setting_wanted);
  for (const auto key : {Qt::Key_Home, Qt::Key_Down, Qt::Key_End, Qt::Key_Up, Qt::Key_Return}) {
    QTest::keyClick(&picture, key);
  }
  QTest::mouseClick(picture.viewport(), Qt::LeftButton, {}, {10, 10});
  QCOMPARE(spy.count(), 0);
  picture.show_regions(regions());
  picture.show_regions({});
  const QImage image = picture.viewport()->grab().toImage();
  QVERIFY(has_colour(image, picture.viewport()->rect(), colour(Tone::quiet, picture.palette())));
}

void PicturesTest::narrowRegionsStayVisible() {
  AddressPicture picture;
  picture.show_regions({region("byte", 0, 1, false, "rom"), region("all", 0, 0x100000000, false, "isocm"),
                        region("word", 0xFFFFFFFC, 0x100000000, false, "icache")});
  show(picture, {500, 300});
  for (int i = 0; i < 3; ++i) {
    QVERIFY(picture.region_rect(i).width() >= picture.fontMetrics().height());
    QVERIFY(picture.viewport()->rect().contains(picture.region_rect(i)));
  }
}

QTEST_MAIN(PicturesTest)
#include "pictures_test.moc"
