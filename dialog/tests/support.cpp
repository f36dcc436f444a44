// SPDX-License-Identifier: MIT
#include "support.h"

#include <SdkDebugDialog/platform/DesignFile.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QTabBar>
#include <QTest>

#include "model/Bytes.h"
#include "widgets/SettingsForm.h"

namespace qvtdialog {

using SdkDebugDialog::Design;
using SdkDebugDialog::find_setting;

void use_some_platform() {
  const bool hasDisplay = qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM") && !hasDisplay) qputenv("QT_QPA_PLATFORM", "offscreen");
}

Folder::Folder(const QString& design) : m_before(QDir::currentPath()) {
  QFile::copy(QStringLiteral(EXAMPLE_DESIGNS "/%1.json").arg(design), path(QStringLiteral("design.json")));
  QDir(m_folder.path()).mkdir(QStringLiteral("etc"));
  QDir::setCurrent(m_folder.path());
}

Folder::~Folder() { QDir::setCurrent(m_before); }

void write_file(const QString& path, const std::string& content) {
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) qFatal("%s cannot be written", qPrintable(path));
  file.write(content.data(), static_cast<qint64>(content.size()));
}

std::optional<std::string> content_of(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return std::nullopt;
  return file.readAll().toStdString();
}

std::map<QString, std::string> contents_of(const QString& folder) {
  std::map<QString, std::string> found;
  for (const QFileInfo& file : QDir(folder).entryInfoList(QDir::Files | QDir::Hidden)) {
    found[file.fileName()] = content_of(file.filePath()).value_or("unreadable");
  }
  return found;
}

Design example(const QString& design) {
  return Design(std::make_shared<DesignFile>(
      DesignFile::load(QStringLiteral(EXAMPLE_DESIGNS "/%1.json").arg(design).toStdString())));
}

std::string design_of(int processors) {
  const char* const kinds[] = {"ovrin", "ppc440_varnel5", "ppc405_varnel4", "hc9_cortexa9"};
  const char* const debug[] = {"odm", "jtag_ppc_bridge", "jtag_ppc_bridge"};
  std::string text = R"({"name": "huge", "instances": [)";
  const auto add = [&](std::initializer_list<std::string_view> parts) {
    for (const std::string_view part : parts) text += part;
  };
  for (int i = 0; i < processors; ++i) {
    const std::string number = std::to_string(i);
    add({i != 0 ? "," : "", R"({"name": "cpu_)", number, R"(", "type": ")", kinds[i % 4],
         R"(", "class": "processor", "peripherals": []})"});
    if (i % 4 == 3) continue;
    add({R"(,{"name": "debug_)", number, R"(", "type": ")", debug[i % 4],
         R"(", "class": "debug", "processors": ["cpu_)", number, R"("]})"});
  }
  return text + "]}";
}

Person::Person(const QString& design)
    : session(Design(std::make_shared<DesignFile>(DesignFile::load(design.toStdString())))), window(session, design) {
  window.select_first();
  window.show();
  activate();
}

void Person::activate() {
  if (!QTest::qWaitForWindowExposed(&window)) qFatal("the window does not appear");
  window.activateWindow();
  if (!QTest::qWaitForWindowActive(&window)) qFatal("the window does not get the focus");
}

void Person::select(const char* processor) { window.select(processor); }

QString Person::note(const QString& setting) {
  const auto& label = find<QLabel>(QStringLiteral("note:") + setting);
  return label.isVisible() ? label.text() : QString();
}

void Person::open_tab_of(const QString& setting) {
  auto& form = find<SettingsForm>(QStringLiteral("settings"));
  const auto* const area =
      window.findChild<QScrollArea*>(QStringLiteral("page:") + shown(find_setting(setting.toStdString())->group));
  auto& bar = *form.tabBar();
  const int tab = form.indexOf(const_cast<QScrollArea*>(area));
  if (form.currentIndex() == tab) return;
  // A tab that is scrolled out of sight is reached with the keys.
  if (bar.rect().contains(bar.tabRect(tab))) QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(tab).center());
  if (form.currentIndex() != tab) {
    bar.setFocus();
    for (int i = 0; i < bar.count() && form.currentIndex() != tab; ++i) {
      QTest::keyClick(&bar, form.currentIndex() < tab ? Qt::Key_Right : Qt::Key_Left);
    }
  }
  if (form.currentIndex() != tab) qFatal("the tab of %s is not reached", qPrintable(setting));
}

void Person::type(const QString& setting, const QString& text) {
  open_tab_of(setting);
  QWidget& editor = field(setting);
  if (auto* const check = qobject_cast<QCheckBox*>(&editor)) {
    check->setFocus();
    const bool wanted = text == QLatin1String("on");
    if (check->isChecked() != wanted) QTest::keyClick(check, Qt::Key_Space);
    return;
  }
  auto* const box = qobject_cast<QComboBox*>(&editor);
  if (box != nullptr && !box->isEditable()) {
    box->setFocus();
    if (box->findText(text) < 0) qFatal("%s has no choice %s", qPrintable(setting), qPrintable(text));
    // What is chosen already can be chosen again from the list.
    if (box->currentText() == text) {
      QTest::keyClick(box, Qt::Key_Space);
      QTest::keyClick(box->view(), Qt::Key_Enter);
    }
    // The list can become another one on the way.
    while (box->currentText() != text) {
      const QString before = box->currentText();
      QTest::keyClick(box, box->currentIndex() < box->findText(text) ? Qt::Key_Down : Qt::Key_Up);
      if (box->currentText() == before) qFatal("%s: the arrow keys do nothing", qPrintable(setting));
    }
    return;
  }
  auto* const line = box != nullptr ? box->lineEdit() : qobject_cast<QLineEdit*>(&editor);
  line->setFocus();
  line->selectAll();
  if (text.isEmpty()) QTest::keyClick(line, Qt::Key_Delete);
  QTest::keyClicks(line, text);
}

void Person::enter(const QString& setting, const QString& text) {
  type(setting, text);
  press(Qt::Key_Tab);
}

void Person::click(const QString& button) {
  auto& found = find<QAbstractButton>(button);
  if (!found.isVisible() || !found.isEnabled()) qFatal("%s cannot be clicked", qPrintable(button));
  QTest::mouseClick(&found, Qt::LeftButton);
}

void Person::press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  // Without a window manager nobody makes the window the active one when a dialog has gone.
  if (QApplication::activeWindow() == nullptr) activate();
  QWidget* const target = QApplication::focusWidget();
  QTest::keyClick(target != nullptr ? target : &window, key, modifiers);
}

bool Person::apply(bool goOn) {
  bool stored = false;
  const QPointer<QTimer> waiting = in_next_dialog([&](QWidget& dialog) {
    auto& box = *dialog.findChild<QCheckBox*>(QStringLiteral("apply-go-on"));
    if (box.isVisible() && goOn) QTest::keyClick(&box, Qt::Key_Space);
    auto& store = *dialog.findChild<QAbstractButton*>(QStringLiteral("apply-store"));
    if (store.isEnabled()) QTest::mouseClick(&store, Qt::LeftButton);
    stored = !dialog.isVisible();
    if (!stored) static_cast<QDialog&>(dialog).reject();
  });
  press(Qt::Key_S, Qt::ControlModifier);
  delete waiting.data();
  return stored;
}

QPointer<QTimer> in_next_dialog(std::function<void(QWidget& dialog)> action) {
  auto* const timer = new QTimer;
  QObject::connect(timer, &QTimer::timeout, timer, [timer, action = std::move(action)] {
    QWidget* const dialog = QApplication::activeModalWidget();
    if (dialog == nullptr || !dialog->isVisible()) return;
    timer->stop();
    timer->deleteLater();
    action(*dialog);
  });
  timer->start(0);
  return timer;
}

}  // namespace qvtdialog
