// SPDX-License-Identifier: MIT
#pragma once

// A window on a design in a folder of its own, and what a person does with it: keys and clicks.

#include <QPointer>
#include <QString>
#include <QTemporaryDir>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "model/Session.h"
#include "widgets/MainWindow.h"

namespace qvtdialog {

// Without a display, tests run on the platform "offscreen". Call it before the application is made.
void use_some_platform();

// A folder with one of the example designs, in which the process works until it is destroyed.
class Folder {
 public:
  explicit Folder(const QString& design);
  ~Folder();
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;

  QString path(const QString& name) const { return m_folder.filePath(name); }

 private:
  QTemporaryDir m_folder;
  QString m_before;
};

void write_file(const QString& path, const std::string& content);
std::optional<std::string> content_of(const QString& path);
// Of every file in a folder, by name.
std::map<QString, std::string> contents_of(const QString& folder);

SdkDebugDialog::Design example(const QString& design);
// The text of a design with processors cpu_0, cpu_1, ... of all families; every fourth one cannot be debugged.
std::string design_of(int processors);

class Person {
 public:
  explicit Person(const QString& design = QStringLiteral("design.json"));

  Session session;
  MainWindow window;

  void select(const char* processor);
  Document& document() { return *window.document(); }

  // A widget by its name; the test ends if there is none.
  template <class Widget = QWidget>
  Widget& find(const QString& name) {
    auto* const found = window.findChild<Widget*>(name);
    if (found == nullptr) qFatal("there is no %s", qPrintable(name));
    return *found;
  }
  QWidget& field(const QString& setting) { return find(QStringLiteral("field:") + setting); }
  QString note(const QString& setting);

  // Goes to the tab of a setting with a click.
  void open_tab_of(const QString& setting);
  // Enters a value with clicks and keys, and leaves the field with the tab key.
  void enter(const QString& setting, const QString& text);
  // The same without leaving it.
  void type(const QString& setting, const QString& text);
  void click(const QString& button);
  // Presses keys in whatever has the focus.
  void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {});
  // Applies everything with Ctrl+S, what is lost included if that is asked for. False if the dialog could not store.
  bool apply(bool goOn = true);

 private:
  void activate();
};

// Does something with the next modal dialog, as soon as it is shown. The object that waits is gone afterwards; one that
// waits in vain is to be deleted.
QPointer<QTimer> in_next_dialog(std::function<void(QWidget& dialog)> action);

}  // namespace qvtdialog
