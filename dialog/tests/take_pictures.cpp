// SPDX-License-Identifier: MIT
// The pictures of the documents: take_pictures FOLDER writes them as PNG files; with QT_SCALE_FACTOR=2 in the
// environment those in twice the size alone. See scripts/pictures.

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QFont>
#include <QStyle>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <optional>

#include "support.h"
#include "views.h"
#include "widgets/CommandView.h"
#include "widgets/Style.h"

namespace qvtdialog {

namespace {

constexpr const char* kChain =
    "connect ov odm -cable type zarvek_platformusb port USB21 frequency 12000000 -configdevice devicenr 1 partname "
    "prom32 irlength 16 idcode 0xa5059093 -configdevice devicenr 2 partname fpga irlength 10 idcode 0x0a001093 "
    "-configdevice devicenr 3 partname cpld irlength 8 idcode 0x09608093 -debugdevice deviceNr 2 cpunr 1\n";
constexpr const char* kAddresses =
    "connect ppc hw -cable type zarvek_parallel3 port LPT1 frequency 200000 -debugdevice deviceNr 1 cpunr 1 "
    "romemStartAdr 0xffff0000 romemSize 65536 isocmStartAdr 0x70040000 isocmSize 131072  isocmDcrStartAdr 0xffffffff "
    "icacheStartAdr 0x70000000 itagStartAdr 0x70020000 dcacheStartAdr 0x70010000 dtagStartAdr 0x70030000 tlbStartAdr "
    "0x70040000 fpuType sp\n";
constexpr const char* kMisspelt =
    "conect ov odm -cabel type zarvek_platformusb frequency 12 MHz -debugdevice deviceNr 010 cpunr 3\n";

QPalette dark_palette() {
  QPalette palette(QColor(0x3A, 0x3D, 0x41), QColor(0x2B, 0x2D, 0x30));
  palette.setColor(QPalette::Base, QColor(0x1F, 0x21, 0x23));
  palette.setColor(QPalette::AlternateBase, QColor(0x27, 0x29, 0x2C));
  palette.setColor(QPalette::Text, QColor(0xE8, 0xE8, 0xE8));
  palette.setColor(QPalette::WindowText, QColor(0xE8, 0xE8, 0xE8));
  palette.setColor(QPalette::ButtonText, QColor(0xE8, 0xE8, 0xE8));
  palette.setColor(QPalette::ToolTipBase, QColor(0x3A, 0x3D, 0x41));
  palette.setColor(QPalette::ToolTipText, QColor(0xE8, 0xE8, 0xE8));
  palette.setColor(QPalette::PlaceholderText, QColor(0x9A, 0x9A, 0x9A));
  palette.setColor(QPalette::Highlight, QColor(0x2F, 0x6F, 0xB4));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::Link, QColor(0x6C, 0xB0, 0xF0));
  for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText, QPalette::HighlightedText}) {
    palette.setColor(QPalette::Disabled, role, QColor(0x8A, 0x8A, 0x8A));
  }
  return palette;
}

// The window as it opens, on a design with some option files.
class Scene {
 public:
  Scene() : m_folder(QStringLiteral("large")) {
    write_file(QStringLiteral("etc/qvt_ovrin_0.opt"), kChain);
    write_file(QStringLiteral("etc/qvt_ppc405_0.opt"), kAddresses);
    write_file(QStringLiteral("etc/qvt_ovrin_2.opt"), kMisspelt);
    m_person.emplace();
  }
  Person& person() { return *m_person; }
  void show_processor(const char* name) { person().select(name); }
  void show_tab_of(const char* setting) { person().open_tab_of(QString::fromLatin1(setting)); }
  void enter(const char* setting, const char* text) {
    person().enter(QString::fromLatin1(setting), QString::fromLatin1(text));
  }

 private:
  Folder m_folder;
  std::optional<Person> m_person;
};

void show_changed_words(Scene& scene) {
  scene.show_processor("ovrin_0");
  scene.enter("frequency", "24 MHz");
  scene.person().field(QStringLiteral("frequency")).setFocus();
}

void show_chain(Scene& scene) {
  scene.show_processor("ovrin_0");
  scene.show_tab_of("devices");
}

void show_addresses(Scene& scene) {
  scene.show_processor("ppc405_0");
  scene.show_tab_of("icache");
}

void show_misspelt(Scene& scene) { scene.show_processor("ovrin_2"); }

void show_edited_text(Scene& scene) {
  scene.show_processor("ovrin_0");
  scene.show_tab_of("bscan");
  scene.person().click(QStringLiteral("edit-command"));
  auto& text = scene.person().find<CommandView>(QStringLiteral("command"));
  text.moveCursor(QTextCursor::End);
  QTest::keyClicks(&text, QStringLiteral(" -bscn USER3"));
}

void show_refused(Scene& scene) {
  scene.show_processor("ovrin_0");
  scene.person().type(QStringLiteral("frequency"), QStringLiteral("5M"));
}

void make_changes(Scene& scene) {
  show_changed_words(scene);
  scene.show_processor("ppc405_0");
  scene.enter("connection", "simulator");
}

void show_changed_file(Scene& scene) {
  show_changed_words(scene);
  write_file(QStringLiteral("etc/qvt_ovrin_0.opt"), "connect ov odm -debugdevice deviceNr 3 cpunr 1\n");
  scene.person().document().look_at_file();
}

struct Picture {
  const char* name;
  void (*prepare)(Scene&);
  const char* language = "en";
  bool isDark = false;
  int times = 1;         // the size
  const char* key = "";  // opens a dialog, which is the picture
};

constexpr Picture kPictures[] = {
    {.name = "window", .prepare = show_changed_words},
    {.name = "chain", .prepare = show_chain},
    {.name = "addresses", .prepare = show_addresses},
    {.name = "not-understood", .prepare = show_misspelt},
    {.name = "edited-text", .prepare = show_edited_text},
    {.name = "refused", .prepare = show_refused},
    {.name = "apply", .prepare = make_changes, .key = "Ctrl+S"},
    {.name = "changed-file", .prepare = show_changed_file},
    {.name = "help", .prepare = show_refused, .key = "F1"},
    {.name = "dark", .prepare = show_addresses, .isDark = true},
    {.name = "twice", .prepare = show_chain, .times = 2},
    {.name = "german", .prepare = show_changed_words, .language = "de"},
};

bool take(const Picture& picture, const QString& folder) {
  QApplication::setPalette(picture.isDark ? dark_palette() : QApplication::style()->standardPalette());
  QFont font(QStringLiteral("DejaVu Sans"));
  font.setPointSize(9);
  QApplication::setFont(font);
  const Language spoken(QString::fromLatin1(picture.language));
  Scene scene;
  picture.prepare(scene);
  QImage image;
  const auto grab = [&image](QWidget& shown) {
    QTest::qWait(50);  // the layout, and what is told about processors in sight
    image = shown.grab().toImage();
  };
  const QKeySequence key(QString::fromLatin1(picture.key));
  grab(scene.person().window);
  if (!key.isEmpty()) {
    const QPointer<QTimer> waiting = in_next_dialog([&](QWidget& dialog) {
      grab(dialog);
      static_cast<QDialog&>(dialog).reject();
    });
    scene.person().press(key[0].key(), key[0].keyboardModifiers());
    delete waiting.data();
    if (auto* const help = scene.person().window.findChild<QDialog*>(QStringLiteral("help")); help->isVisible()) {
      grab(*help);
    }
  }
  const QString path = folder + QLatin1Char('/') + QString::fromLatin1(picture.name) + QStringLiteral(".png");
  const bool stored = image.convertToFormat(QImage::Format_RGB888).save(path, "PNG", 0);
  std::fprintf(stored ? stdout : stderr, "%s: %s\n", qPrintable(path), stored ? "taken" : "cannot be written");
  return stored;
}

}  // namespace

}  // namespace qvtdialog

int main(int argc, char** argv) {
  // The same everywhere: no display, theme, style or language of a person.
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" SCREEN);
  QApplication application(argc, argv);
  QApplication::setStyle(new qvtdialog::Style(QStringLiteral("Fusion")));
  // The application deletes its style. NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks)
  QApplication::setCursorFlashTime(0);
  if (argc != 2) {
    std::fputs("usage: take_pictures FOLDER\n", stderr);
    return 2;
  }
  const QString folder = QDir(QString::fromLocal8Bit(argv[1])).absolutePath();
  const int times = std::max(1, qEnvironmentVariableIntValue("QT_SCALE_FACTOR"));
  for (const auto& picture : qvtdialog::kPictures) {
    if (picture.times == times && !qvtdialog::take(picture, folder)) return 1;
  }
  return 0;
}
